#include "worldfile/JsonText.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace keldor {

namespace {

// Up to 17 significant digits d1..dn with value = 0.d1..dn x 10^DecimalPoint.
struct Digits {
  char Text[32]{};
  int Count = 0;
  int DecimalPoint = 0;
};

// The n-digit decimal nearest to v (printf rounds exactly in every libc the
// builds use), and whether it reads back as v.
bool NearestDigits(double v, int n, Digits& digits) {
  char text[40];
  std::snprintf(text, sizeof text, "%.*e", n - 1, v);
  if (std::strtod(text, nullptr) != v) return false;
  int count = 0;
  const char* p = text;
  for (; *p != 'e'; ++p) {
    if (*p != '.') digits.Text[count++] = *p;
  }
  digits.Count = count;
  digits.DecimalPoint = std::atoi(p + 1) + 1;
  return true;
}

// The shortest digits that read back as v (v > 0, finite) and, among those,
// the nearest to v. Grisu2 (the JSON library's own) finds them for nearly
// every double but now and then gives one digit more than needed or a last
// digit one off; the exact decimal conversions correct both.
Digits ShortestDigits(double v) {
  Digits grisu;
  int exponent = 0;
  nlohmann::detail::dtoa_impl::grisu2(grisu.Text, grisu.Count, exponent, v);
  grisu.DecimalPoint = grisu.Count + exponent;
  Digits best = grisu;
  Digits shorter;
  bool foundShorter = false;
  while (best.Count > 1 && NearestDigits(v, best.Count - 1, shorter)) {
    best = shorter;
    foundShorter = true;
  }
  Digits nearest;
  if (!foundShorter && NearestDigits(v, grisu.Count, nearest)) best = nearest;
  while (best.Count > 1 && best.Text[best.Count - 1] == '0') --best.Count;
  return best;
}

std::string ExponentText(int exponent) {
  std::string text = exponent < 0 ? "-" : "+";
  const std::string magnitude = std::to_string(std::abs(exponent));
  if (magnitude.size() < 2) text += '0';
  return text + magnitude;
}

void AppendEscaped(std::string& out, const std::string& text) {
  static constexpr char Hex[] = "0123456789abcdef";
  out += '"';
  for (const char c : text) {
    const auto u = static_cast<unsigned char>(c);
    switch (u) {
      case '"': out += "\\\""; break;
      case '\\': out += "\\\\"; break;
      case '\b': out += "\\b"; break;
      case '\f': out += "\\f"; break;
      case '\n': out += "\\n"; break;
      case '\r': out += "\\r"; break;
      case '\t': out += "\\t"; break;
      default:
        if (u < 0x20) {
          out += "\\u00";
          out += Hex[u >> 4];
          out += Hex[u & 0xF];
        } else {
          out += c;
        }
    }
  }
  out += '"';
}

void AppendValue(std::string& out, const nlohmann::json& value, int depth) {
  const std::string indent(static_cast<size_t>(4 * depth), ' ');
  const std::string inner(static_cast<size_t>(4 * (depth + 1)), ' ');
  switch (value.type()) {
    case nlohmann::json::value_t::object: {
      out += "{\n";
      size_t left = value.size();
      for (const auto& [key, item] : value.items()) {
        out += inner;
        AppendEscaped(out, key);
        out += ": ";
        AppendValue(out, item, depth + 1);
        out += --left > 0 ? ",\n" : "\n";
      }
      out += indent + "}";
      break;
    }
    case nlohmann::json::value_t::array: {
      out += "[\n";
      size_t left = value.size();
      for (const nlohmann::json& item : value) {
        out += inner;
        AppendValue(out, item, depth + 1);
        out += --left > 0 ? ",\n" : "\n";
      }
      out += indent + "]";
      break;
    }
    case nlohmann::json::value_t::string: AppendEscaped(out, value.get_ref<const std::string&>()); break;
    case nlohmann::json::value_t::boolean: out += value.get<bool>() ? "true" : "false"; break;
    case nlohmann::json::value_t::number_integer: out += std::to_string(value.get<int64_t>()); break;
    case nlohmann::json::value_t::number_unsigned: out += std::to_string(value.get<uint64_t>()); break;
    case nlohmann::json::value_t::number_float: {
      const double v = value.get<double>();
      out += std::isfinite(v) ? NumberText(v) : "null";
      break;
    }
    default: out += "null"; break;
  }
}

}  // namespace

std::string NumberText(double value) {
  // Whole numbers within 64 bits are written as integers.
  if (std::trunc(value) == value && std::fabs(value) <= 0x1p53) {
    return std::to_string(static_cast<int64_t>(value));
  }
  const Digits d = ShortestDigits(std::fabs(value));
  const int n = d.Count;
  const int point = d.DecimalPoint;
  // Decimal form unless the exponent form is shorter, by the rule Qt's
  // shortest 'g' format follows.
  int bias = 4;
  if (n <= point && n > 1) {
    bias += 1;
  } else if (n == 1 && point <= 0) {
    bias -= 1;
  }
  const bool decimal = point <= 0 ? 1 - point <= bias : point <= n || point <= n + bias;
  const std::string digits(d.Text, static_cast<size_t>(n));
  std::string text = value < 0 ? "-" : "";
  if (!decimal) {
    text += digits[0];
    if (n > 1) text += "." + digits.substr(1);
    return text + "e" + ExponentText(point - 1);
  }
  if (point <= 0) return text + "0." + std::string(static_cast<size_t>(-point), '0') + digits;
  if (point < n) return text + digits.substr(0, static_cast<size_t>(point)) + "." + digits.substr(static_cast<size_t>(point));
  return text + digits + std::string(static_cast<size_t>(point - n), '0');
}

std::string JsonText(const nlohmann::json& document) {
  std::string out;
  AppendValue(out, document, 0);
  return out + "\n";
}

}  // namespace keldor
