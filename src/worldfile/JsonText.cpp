#include "worldfile/JsonText.h"

#include <cmath>
#include <cstdlib>

#include "model/ShortestText.h"

namespace keldor {

namespace {

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
  // value = 0.d1..dn x 10^point
  const ShortestDecimal shortest = ShortestDigits(std::fabs(value));
  const std::string digits = std::to_string(shortest.Digits);
  const int n = static_cast<int>(digits.size());
  const int point = n + shortest.Exponent;
  // Decimal form unless the exponent form is shorter, by the rule Qt's
  // shortest 'g' format follows.
  int bias = 4;
  if (n <= point && n > 1) {
    bias += 1;
  } else if (n == 1 && point <= 0) {
    bias -= 1;
  }
  const bool decimal = point <= 0 ? 1 - point <= bias : point <= n + bias;
  std::string text = value < 0 ? "-" : "";
  if (!decimal) {
    text += digits[0];
    if (n > 1) text += "." + digits.substr(1);
    return text + "e" + ExponentText(point - 1);
  }
  if (point <= 0) return text + "0." + std::string(static_cast<size_t>(-point), '0') + digits;
  const auto whole = static_cast<size_t>(point);
  if (point < n) return text + digits.substr(0, whole) + "." + digits.substr(whole);
  return text + digits + std::string(static_cast<size_t>(point - n), '0');
}

std::string JsonText(const nlohmann::json& document) {
  std::string out;
  AppendValue(out, document, 0);
  return out + "\n";
}

}  // namespace keldor
