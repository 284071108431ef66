// Read-only access to the operating system's registry, shaped like the three
// calls the About box uses (open a key, query one value, close the key). The
// Windows build reads the real registry; elsewhere no key exists.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace keldor {

using RegistryKey = uintptr_t;

inline constexpr RegistryKey HKeyLocalMachine = 0x80000002;
inline constexpr uint32_t KeyAllAccess = 0x2003F;
inline constexpr long RegistrySuccess = 0;
// Value types.
inline constexpr uint32_t RegString = 1;
inline constexpr uint32_t RegDword = 4;

class Registry {
 public:
  virtual ~Registry() = default;
  // RegOpenKeyExA: RegistrySuccess and the opened key, or an error code.
  virtual long OpenKey(RegistryKey root, const std::string& subKey, uint32_t access, RegistryKey& opened) = 0;
  // RegQueryValueExA: fills buffer (its size is the room offered), the value's
  // type and the number of bytes written.
  virtual long QueryValue(RegistryKey key, const std::string& valueName, uint32_t& type, std::vector<char>& buffer,
                          uint32_t& length) = 0;
  virtual long CloseKey(RegistryKey key) = 0;
};

}  // namespace keldor
