#include "window/SystemInfo.h"

#include <cstdio>

#include "window/MessageBox.h"

namespace keldor {

namespace {

constexpr const char* SysInfoPathKey = "SOFTWARE\\Microsoft\\Shared Tools\\MSINFO";
constexpr const char* SysInfoPathValue = "PATH";
constexpr const char* SysInfoFolderKey = "SOFTWARE\\Microsoft\\Shared Tools Location";
constexpr const char* SysInfoFolderValue = "MSINFO";

// Hex digits of one byte without padding: 0 gives "0", 31 gives "1F".
std::string HexByte(unsigned char b) {
  char text[3];
  std::snprintf(text, sizeof text, "%X", b);
  return text;
}

}  // namespace

bool GetKeyValue(Registry& registry, RegistryKey root, const std::string& keyName, const std::string& subKeyRef,
                 std::string& keyValue) {
  keyValue.clear();
  RegistryKey key = 0;
  if (registry.OpenKey(root, keyName, KeyAllAccess, key) != RegistrySuccess) return false;
  std::vector<char> buffer(RegistryValueBufferSize, '\0');
  uint32_t type = 0;
  uint32_t length = static_cast<uint32_t>(buffer.size());
  if (registry.QueryValue(key, subKeyRef, type, buffer, length) != RegistrySuccess) {
    registry.CloseKey(key);
    return false;
  }
  if (length > buffer.size()) length = static_cast<uint32_t>(buffer.size());
  std::string value(buffer.data(), length);
  if (!value.empty() && value.back() == '\0') value.pop_back();
  if (type == RegDword) {
    keyValue = "&h";
    for (auto it = value.rbegin(); it != value.rend(); ++it) keyValue += HexByte(static_cast<unsigned char>(*it));
  } else {
    keyValue = value;
  }
  registry.CloseKey(key);
  return true;
}

void StartSysInfo(Registry& registry, ProgramStarter& starter, MessageBox& messages) {
  std::string path;
  if (GetKeyValue(registry, HKeyLocalMachine, SysInfoPathKey, SysInfoPathValue, path)) {
    if (starter.Start(path)) return;
  } else if (GetKeyValue(registry, HKeyLocalMachine, SysInfoFolderKey, SysInfoFolderValue, path)) {
    path += "\\MSINFO32.EXE";
    if (starter.FileExists(path) && starter.Start(path)) return;
  }
  messages.Show(SysInfoUnavailableText);
}

}  // namespace keldor
