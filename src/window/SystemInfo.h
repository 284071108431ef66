// The About box's System Info button: find the system-information tool
// through two registry keys and start it, or say that it is unavailable.
#pragma once

#include <string>

#include "window/Registry.h"

namespace keldor {

class MessageBox;

// Starting a program found on disk.
class ProgramStarter {
 public:
  virtual ~ProgramStarter() = default;
  virtual bool FileExists(const std::string& path) = 0;
  // Starts the program with normal focus; false when it could not be started.
  virtual bool Start(const std::string& path) = 0;
};

inline constexpr int RegistryValueBufferSize = 1024;
inline constexpr const char* SysInfoUnavailableText = "System Information Is Unavailable At This Time";

// Reads one value. A string value comes back unchanged; a 32-bit value as
// "&h" followed by the hex digits of its bytes, most significant first. A
// final NUL is dropped. False (and an empty text) when the key or value is
// missing.
bool GetKeyValue(Registry& registry, RegistryKey root, const std::string& keyName, const std::string& subKeyRef,
                 std::string& keyValue);

// Starts the tool named by the first key, else MSINFO32.EXE in the folder of
// the second key if that file exists; otherwise shows the unavailable message.
void StartSysInfo(Registry& registry, ProgramStarter& starter, MessageBox& messages);

}  // namespace keldor
