#include "platform/SystemRegistry.h"

#include "platform/NoRegistry.h"
#include "platform/WindowsRegistry.h"

namespace keldor {

std::unique_ptr<Registry> MakeSystemRegistry() {
#ifdef _WIN32
  return std::make_unique<WindowsRegistry>();
#else
  return std::make_unique<NoRegistry>();
#endif
}

}  // namespace keldor
