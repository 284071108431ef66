// Numeric conventions shared by every layer: the rounding and floor of the
// world's formulas, the fixed value of pi, 16-bit counts that refuse to wrap,
// and the text conversions the dialogs and labels use.
#pragma once

#include <cmath>
#include <cstdint>
#include <string>
#include <string_view>

namespace keldor {

// The world's formulas use this value of pi everywhere, not the full-precision one.
inline constexpr double Pi = 3.1415926;

// Largest value a 16-bit count, index or coordinate may hold.
inline constexpr int Int16Max = 32767;
inline constexpr int Int16Min = -32768;

// Floor, returned as a double like the formulas expect. Inline: the tick
// calls it for every ant step. Below 2^52 the truncation is exact, and the
// sign copy keeps floor(-0.0) == -0.0.
inline double Int(double v) {
  if (!(std::fabs(v) < 0x1p52)) return std::floor(v);
  const double truncated = static_cast<double>(static_cast<int64_t>(v));
  return std::copysign(truncated > v ? truncated - 1 : truncated, v);
}

// CInt for NaN and for values at or beyond 2^30: NaN gives 0, values beyond
// the 32-bit range saturate.
int32_t CIntOutsideFastRange(double v);

// Round to the nearest integer, ties to the even integer (0.5 -> 0, 1.5 -> 2,
// 2.5 -> 2, -2.5 -> -2). NaN gives 0; values beyond the 32-bit range saturate.
// Adding and subtracting 1.5 * 2^52 leaves no fraction bits, so the default
// round-to-nearest-even mode does the rounding.
inline int32_t CInt(double v) {
  if (!(std::fabs(v) < 0x1p30)) return CIntOutsideFastRange(v);
  constexpr double shift = 0x1.8p52;
  return static_cast<int32_t>((v + shift) - shift);
}

// Saturating conversion into the 16-bit range.
inline int16_t ClampToInt16(int64_t v) {
  if (v > Int16Max) return Int16Max;
  if (v < Int16Min) return Int16Min;
  return static_cast<int16_t>(v);
}

// Adds delta to a 16-bit count. Returns false and leaves the count unchanged
// when the result would leave -32768..32767: a count never wraps.
bool TryAddInt16(int16_t& count, int delta);

// True when the text reads as a decimal number: optional surrounding spaces,
// an optional sign, digits with at most one decimal point, at least one digit.
bool IsNumeric(std::string_view text);

// The value of a numeric text (0 for a text that is not numeric).
double ToNumber(std::string_view text);

// Decimal text of a number without a leading space: 30, 3, 0.5, -1.25.
std::string CStr(double v);

// Room for any text CStr writes, its terminating zero included.
inline constexpr size_t CStrCapacity = 32;
// The same text written into buffer, without allocating; returns the text,
// which lies in the buffer.
std::string_view CStrInto(double v, char (&buffer)[CStrCapacity]);

// Format with the two patterns the system uses:
//   "#.0"  exactly one decimal, no leading zero below 1 (0.7 -> ".7", 2 -> "2.0")
//   "#.##" up to two decimals, the point always kept (1.1 -> "1.1", 2 -> "2.")
// Any other pattern falls back to CStr.
std::string Format(double v, std::string_view pattern);

}  // namespace keldor
