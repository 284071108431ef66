#include "model/Numeric.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>

namespace keldor {

int32_t CIntOutsideFastRange(double v) {
  if (std::isnan(v)) return 0;
  // std::nearbyint rounds ties to even under the default rounding mode.
  const double r = std::nearbyint(v);
  if (r >= static_cast<double>(std::numeric_limits<int32_t>::max())) return std::numeric_limits<int32_t>::max();
  if (r <= static_cast<double>(std::numeric_limits<int32_t>::min())) return std::numeric_limits<int32_t>::min();
  return static_cast<int32_t>(r);
}

bool TryAddInt16(int16_t& count, int delta) {
  const int64_t next = static_cast<int64_t>(count) + delta;
  if (next > Int16Max || next < Int16Min) return false;
  count = static_cast<int16_t>(next);
  return true;
}

namespace {

std::string_view Trim(std::string_view text) {
  while (!text.empty() && std::isspace(static_cast<unsigned char>(text.front()))) text.remove_prefix(1);
  while (!text.empty() && std::isspace(static_cast<unsigned char>(text.back()))) text.remove_suffix(1);
  return text;
}

}  // namespace

bool IsNumeric(std::string_view text) {
  text = Trim(text);
  if (!text.empty() && (text.front() == '+' || text.front() == '-')) text.remove_prefix(1);
  int digits = 0;
  int points = 0;
  for (char c : text) {
    if (std::isdigit(static_cast<unsigned char>(c))) {
      ++digits;
    } else if (c == '.') {
      if (++points > 1) return false;
    } else {
      return false;
    }
  }
  return digits > 0;
}

double ToNumber(std::string_view text) {
  if (!IsNumeric(text)) return 0.0;
  const std::string s(Trim(text));
  return std::strtod(s.c_str(), nullptr);
}

std::string_view CStrInto(double v, char (&buffer)[CStrCapacity]) {
  // Whole numbers (the views print thousands per frame) without printf; -0
  // is written "0" like 0.
  if (std::fabs(v) < 1e15 && v == std::trunc(v)) {
    const auto end = std::to_chars(buffer, buffer + CStrCapacity, static_cast<int64_t>(v)).ptr;
    return {buffer, static_cast<size_t>(end - buffer)};
  }
  const int length = std::snprintf(buffer, CStrCapacity, "%.15g", v);
  return {buffer, static_cast<size_t>(std::clamp(length, 0, static_cast<int>(CStrCapacity) - 1))};
}

std::string CStr(double v) {
  char buffer[CStrCapacity];
  return std::string(CStrInto(v, buffer));
}

namespace {

// Fixed-point text of |v| with the given decimals, split at the point.
void FixedParts(double v, int decimals, std::string& whole, std::string& fraction) {
  char buf[400];
  std::snprintf(buf, sizeof buf, "%.*f", decimals, std::fabs(v));
  std::string s(buf);
  const auto dot = s.find('.');
  whole = s.substr(0, dot);
  fraction = dot == std::string::npos ? "" : s.substr(dot + 1);
}

}  // namespace

std::string Format(double v, std::string_view pattern) {
  int decimals = 0;
  bool keepZeros = false;
  if (pattern == "#.0") {
    decimals = 1;
    keepZeros = true;
  } else if (pattern == "#.##") {
    decimals = 2;
  } else {
    return CStr(v);
  }
  std::string whole, fraction;
  FixedParts(v, decimals, whole, fraction);
  if (!keepZeros) {
    while (!fraction.empty() && fraction.back() == '0') fraction.pop_back();
  }
  if (whole == "0") whole.clear();  // '#' shows no leading zero
  const bool roundsToZero = whole.empty() && fraction.find_first_not_of('0') == std::string::npos;
  const bool negative = v < 0 && !roundsToZero;
  return (negative ? "-" : "") + whole + "." + fraction;
}

}  // namespace keldor
