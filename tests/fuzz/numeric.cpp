// The number-text conversions on any text, and on any double's bit pattern.
#include <cstdint>
#include <cstring>
#include <string_view>

#include "model/Numeric.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  const double value = keldor::ToNumber(text);
  if (!keldor::IsNumeric(text) && value != 0) __builtin_trap();  // a text that is no number reads as 0
  double bits = 0;
  std::memcpy(&bits, data, size < sizeof bits ? size : sizeof bits);
  for (const double v : {value, bits}) {
    if (keldor::IsNumeric(keldor::Format(v, "#.0")) != std::isfinite(v)) __builtin_trap();
    keldor::Format(v, "#.##");
    keldor::CStr(v);
    keldor::CInt(v);
    keldor::Int(v);
  }
  return 0;
}
