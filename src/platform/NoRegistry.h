// The registry on systems that have none: no key exists, so the About box
// reports that the system-information tool is unavailable.
#pragma once

#include "window/Registry.h"

namespace keldor {

class NoRegistry : public Registry {
 public:
  long OpenKey(RegistryKey root, const std::string& subKey, uint32_t access, RegistryKey& opened) override;
  long QueryValue(RegistryKey key, const std::string& valueName, uint32_t& type, std::vector<char>& buffer,
                  uint32_t& length) override;
  long CloseKey(RegistryKey key) override;
};

}  // namespace keldor
