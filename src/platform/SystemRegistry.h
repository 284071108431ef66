// The registry of the system the program runs on: the Windows registry on
// Windows, an empty one elsewhere.
#pragma once

#include <memory>

#include "window/Registry.h"

namespace keldor {

std::unique_ptr<Registry> MakeSystemRegistry();

}  // namespace keldor
