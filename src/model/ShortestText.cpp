#include "model/ShortestText.h"

#include <cmath>
#include <cstdint>
#include <cstring>

// The header-only form of Debian's fmt: its Dragonbox search gives the
// shortest digits that round-trip, the nearest to the value among them.
#define FMT_HEADER_ONLY
#include <fmt/format.h>

namespace keldor {

namespace {

int DecimalDigits(uint64_t v) {
  int n = 1;
  while (v >= 10) {
    v /= 10;
    ++n;
  }
  return n;
}

// Writes v's digits at out; returns the end.
char* WriteDigits(char* out, uint64_t v, int count) {
  for (int i = count - 1; i >= 0; --i) {
    out[i] = static_cast<char>('0' + v % 10);
    v /= 10;
  }
  return out + count;
}

// The exact decimal digits of a whole number, as plain notation writes them
// (2^60 is 1152921504606846976, not its shortest digits 1152921504606847
// followed by zeros). Below 2^73, the largest plain notation writes.
char* WriteWholeNumber(char* out, double whole) {
  if (whole < 0x1p64) {
    const auto v = static_cast<uint64_t>(whole);
    return WriteDigits(out, v, DecimalDigits(v));
  }
  // whole = mantissa * 2^shift, doubled shift times in base 10^9 limbs.
  int exponent = 0;
  const double fraction = std::frexp(whole, &exponent);
  const auto mantissa = static_cast<uint64_t>(std::ldexp(fraction, 53));
  constexpr uint32_t base = 1000000000;
  uint32_t limbs[4] = {static_cast<uint32_t>(mantissa % base), static_cast<uint32_t>(mantissa / base), 0, 0};
  for (int i = 0; i < exponent - 53; ++i) {
    uint32_t carry = 0;
    for (uint32_t& limb : limbs) {
      const uint32_t doubled = limb * 2 + carry;
      carry = doubled >= base ? 1 : 0;
      limb = doubled - carry * base;
    }
  }
  int top = 3;
  while (limbs[top] == 0) --top;
  out = WriteDigits(out, limbs[top], DecimalDigits(limbs[top]));
  for (int i = top - 1; i >= 0; --i) out = WriteDigits(out, limbs[i], 9);
  return out;
}

// digits * 10^exponent in plain notation; value is the number itself.
char* WritePlain(char* out, double value, uint64_t digits, int count, int exponent) {
  if (exponent >= 0) return WriteWholeNumber(out, value);
  const int integerDigits = count + exponent;
  if (integerDigits > 0) {
    char all[20];
    WriteDigits(all, digits, count);
    std::memcpy(out, all, static_cast<size_t>(integerDigits));
    out[integerDigits] = '.';
    std::memcpy(out + integerDigits + 1, all + integerDigits, static_cast<size_t>(count - integerDigits));
    return out + count + 1;
  }
  *out++ = '0';
  *out++ = '.';
  std::memset(out, '0', static_cast<size_t>(-integerDigits));
  return WriteDigits(out - integerDigits, digits, count);
}

// digits * 10^exponent as d.ddde+XX, the exponent with at least two digits.
char* WriteScientific(char* out, uint64_t digits, int count, int exponent) {
  char all[20];
  WriteDigits(all, digits, count);
  *out++ = all[0];
  if (count > 1) {
    *out++ = '.';
    std::memcpy(out, all + 1, static_cast<size_t>(count - 1));
    out += count - 1;
  }
  const int scientific = exponent + count - 1;
  *out++ = 'e';
  *out++ = scientific < 0 ? '-' : '+';
  const int magnitude = scientific < 0 ? -scientific : scientific;
  return WriteDigits(out, static_cast<uint64_t>(magnitude), magnitude < 10 ? 2 : DecimalDigits(static_cast<uint64_t>(magnitude)));
}

char* WriteWord(char* out, const char* word) {
  const size_t n = std::strlen(word);
  std::memcpy(out, word, n);
  return out + n;
}

}  // namespace

ShortestDecimal ShortestDigits(double value) {
  const auto decimal = fmt::detail::dragonbox::to_decimal(value);
  ShortestDecimal shortest{decimal.significand, decimal.exponent};
  while (shortest.Digits % 10 == 0) {
    shortest.Digits /= 10;
    ++shortest.Exponent;
  }
  return shortest;
}

std::string_view ShortestText(double value, char (&buffer)[ShortestTextCapacity]) {
  char* out = buffer;
  if (std::signbit(value)) *out++ = '-';
  if (std::isnan(value)) {
    out = WriteWord(out, "nan");
  } else if (std::isinf(value)) {
    out = WriteWord(out, "inf");
  } else if (value == 0) {
    *out++ = '0';
  } else {
    const ShortestDecimal decimal = ShortestDigits(std::fabs(value));
    const uint64_t digits = decimal.Digits;
    const int count = DecimalDigits(digits);
    const int exponent = decimal.Exponent;
    const int scientific = exponent + count - 1;
    const int plainLength = exponent >= 0 ? count + exponent : (count + exponent > 0 ? count + 1 : 1 - exponent + 1);
    const int magnitude = scientific < 0 ? -scientific : scientific;
    const int scientificLength = count + (count > 1 ? 1 : 0) + 2 + (magnitude < 100 ? 2 : 3);
    out = plainLength <= scientificLength ? WritePlain(out, std::fabs(value), digits, count, exponent)
                                          : WriteScientific(out, digits, count, exponent);
  }
  return std::string_view(buffer, static_cast<size_t>(out - buffer));
}

}  // namespace keldor
