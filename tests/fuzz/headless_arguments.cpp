// keldor-headless's argument parsing on any argument list: the input's lines
// are the arguments after the program name.
#include <cstdint>
#include <sstream>
#include <string>
#include <vector>

#include "app/headless/HeadlessOptions.h"
#include "model/WorldCreation.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  std::vector<std::string> arguments{"keldor-headless"};
  std::istringstream lines(std::string(reinterpret_cast<const char*>(data), size));
  for (std::string line; std::getline(lines, line);) arguments.push_back(line);
  const auto parsed = keldor::headless::ParseHeadlessArguments(arguments);
  if (parsed.Result != keldor::headless::ParsedArguments::Outcome::Run) return 0;
  // Accepted values lie within their documented ranges and combine as documented.
  const auto& o = parsed.Options;
  if (o.Ticks < 0 || o.View.Width < 1 || o.View.Height < 1 || o.Every < 1) __builtin_trap();
  if (o.World.Grid && (*o.World.Grid < keldor::MinGridSize || *o.World.Grid > keldor::MaxGridSize)) __builtin_trap();
  if ((o.Play && o.Paused) || (o.Play && o.LoadPath.empty())) __builtin_trap();
  return 0;
}
