// The shortest decimal text that reads back as exactly the same double, in
// the form std::to_chars(first, last, value) writes it: plain digits or
// scientific notation, whichever is shorter (plain on a tie), "1e+22",
// "1e-05", "inf", "nan". Every build writes the same text, including those
// whose standard library has no floating-point to_chars.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace keldor {

// The shortest decimal digits that read back as a finite value above 0, the
// nearest to it among them: value = Digits x 10^Exponent, Digits without
// trailing zeros.
struct ShortestDecimal {
  uint64_t Digits = 0;
  int Exponent = 0;
};
ShortestDecimal ShortestDigits(double value);

// Room for any text ShortestText writes ("-1.7976931348623157e+308").
inline constexpr size_t ShortestTextCapacity = 32;

// Writes the text into buffer and returns it; it lies in the buffer.
std::string_view ShortestText(double value, char (&buffer)[ShortestTextCapacity]);

}  // namespace keldor
