#include "platform/NoRegistry.h"

namespace keldor {

namespace {
constexpr long FileNotFound = 2;
}

long NoRegistry::OpenKey(RegistryKey, const std::string&, uint32_t, RegistryKey& opened) {
  opened = 0;
  return FileNotFound;
}

long NoRegistry::QueryValue(RegistryKey, const std::string&, uint32_t& type, std::vector<char>&, uint32_t& length) {
  type = 0;
  length = 0;
  return FileNotFound;
}

long NoRegistry::CloseKey(RegistryKey) { return 0; }

}  // namespace keldor
