#include "platform/WindowsRegistry.h"

#ifdef _WIN32

#include <windows.h>

namespace keldor {

long WindowsRegistry::OpenKey(RegistryKey root, const std::string& subKey, uint32_t access, RegistryKey& opened) {
  HKEY key = nullptr;
  const LONG result = RegOpenKeyExA(reinterpret_cast<HKEY>(root), subKey.c_str(), 0, access, &key);
  opened = reinterpret_cast<RegistryKey>(key);
  return result;
}

long WindowsRegistry::QueryValue(RegistryKey key, const std::string& valueName, uint32_t& type,
                                 std::vector<char>& buffer, uint32_t& length) {
  DWORD valueType = 0;
  DWORD size = static_cast<DWORD>(buffer.size());
  const LONG result = RegQueryValueExA(reinterpret_cast<HKEY>(key), valueName.c_str(), nullptr, &valueType,
                                       reinterpret_cast<BYTE*>(buffer.data()), &size);
  type = valueType;
  length = size;
  return result;
}

long WindowsRegistry::CloseKey(RegistryKey key) { return RegCloseKey(reinterpret_cast<HKEY>(key)); }

}  // namespace keldor

#endif
