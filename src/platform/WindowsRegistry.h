// The Windows registry through advapi32 (RegOpenKeyExA, RegQueryValueExA,
// RegCloseKey). Built only on Windows.
#pragma once

#ifdef _WIN32

#include "window/Registry.h"

namespace keldor {

class WindowsRegistry : public Registry {
 public:
  long OpenKey(RegistryKey root, const std::string& subKey, uint32_t access, RegistryKey& opened) override;
  long QueryValue(RegistryKey key, const std::string& valueName, uint32_t& type, std::vector<char>& buffer,
                  uint32_t& length) override;
  long CloseKey(RegistryKey key) override;
};

}  // namespace keldor

#endif
