// keldor-headless's argument parsing on any argument list: the input's lines
// are the arguments after the program name.
#include <cstdint>

#include <QString>
#include <QStringList>

#include "app/headless/HeadlessOptions.h"
#include "model/WorldCreation.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  QStringList arguments{"keldor-headless"};
  arguments += QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)).split('\n');
  const auto parsed = keldor::headless::ParseHeadlessArguments(arguments);
  if (parsed.Result != keldor::headless::ParsedArguments::Outcome::Run) return 0;
  // Accepted values lie within their documented ranges.
  const auto& o = parsed.Options;
  if (o.Ticks < 0 || o.View.Width < 1 || o.View.Height < 1) __builtin_trap();
  if (o.World.Grid && (*o.World.Grid < keldor::MinGridSize || *o.World.Grid > keldor::MaxGridSize)) __builtin_trap();
  return 0;
}
