#include "app/headless/OptionTable.h"

#include <cctype>
#include <cerrno>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <string>
#include <type_traits>

namespace keldor::headless {

namespace {

std::string Dashed(const OptionRow& row) { return "--" + row.Name; }

ValueRead Fail(std::string message) { return {std::nullopt, std::move(message)}; }

std::string_view Trimmed(std::string_view text) {
  const size_t first = text.find_first_not_of(" \t");
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

#ifndef __cpp_lib_to_chars
// Emscripten's libc++ has no floating-point from_chars. strtod, in the "C"
// locale, reads the same texts once its extras are refused (leading blanks, a
// second sign, hexadecimal); both round correctly.
std::optional<double> ParseDouble(std::string_view text) {
  if (text.empty() || text[0] == '+' || std::isspace(static_cast<unsigned char>(text[0])) ||
      text.find_first_of("xX") != std::string_view::npos) {
    return std::nullopt;
  }
  const std::string whole(text);
  char* end = nullptr;
  errno = 0;
  const double value = std::strtod(whole.c_str(), &end);
  if (errno == ERANGE || end != whole.c_str() + whole.size()) return std::nullopt;
  return value;
}
#endif

// The whole text as a number of type T, an optional "+" first.
template <class T>
std::optional<T> ParseNumber(std::string_view text) {
  if (text.size() > 1 && text[0] == '+' && text[1] != '-') text.remove_prefix(1);
#ifndef __cpp_lib_to_chars
  if constexpr (std::is_floating_point_v<T>) {
    return ParseDouble(text);
  } else
#endif
  {
    T value{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size() || text.empty()) return std::nullopt;
    return value;
  }
}

ValueRead ReadWhole(const OptionRow& row, std::string_view text) {
  const auto value = ParseNumber<int64_t>(text);
  if (!value) return Fail(Dashed(row) + ": '" + std::string(text) + "' is not a whole number");
  return CheckWholeValue(row, *value);
}

ValueRead ReadPair(const OptionRow& row, std::string_view text) {
  const size_t comma = text.find(',');
  if (comma == std::string_view::npos || text.find(',', comma + 1) != std::string_view::npos) {
    return Fail(Dashed(row) + ": '" + std::string(text) + "' is not two numbers A,B");
  }
  const ValueRead a = ReadWhole(row, Trimmed(text.substr(0, comma)));
  if (!a.Value) return a;
  const ValueRead b = ReadWhole(row, Trimmed(text.substr(comma + 1)));
  if (!b.Value) return b;
  return {std::pair<int, int>(static_cast<int>(std::get<int64_t>(*a.Value)), static_cast<int>(std::get<int64_t>(*b.Value))),
          ""};
}

}  // namespace

const OptionRow* FindOption(const OptionTable& table, std::string_view name) {
  for (const OptionRow& row : table) {
    if (row.Name == name) return &row;
  }
  return nullptr;
}

ValueRead CheckWholeValue(const OptionRow& row, int64_t value) {
  if (value < row.Min || value > row.Max) {
    return Fail(Dashed(row) + ": " + std::to_string(value) + " is outside " + std::to_string(row.Min) + ".." +
                std::to_string(row.Max));
  }
  return {value, ""};
}

ValueRead CheckPositiveValue(const OptionRow& row, double value, const std::string& shown) {
  if (!std::isfinite(value)) return Fail(Dashed(row) + ": '" + shown + "' is not a number");
  if (!(value > 0)) return Fail(Dashed(row) + ": " + shown + " must be above 0");
  return {value, ""};
}

ValueRead ReadValueText(const OptionRow& row, std::string_view text) {
  switch (row.Type) {
    case ValueType::Flag:
      return {true, ""};
    case ValueType::Whole:
      return ReadWhole(row, text);
    case ValueType::Unsigned:
      if (const auto value = ParseNumber<uint64_t>(text)) return {*value, ""};
      return Fail(Dashed(row) + ": '" + std::string(text) + "' is not a whole number from 0 to " +
                  std::to_string(std::numeric_limits<uint64_t>::max()));
    case ValueType::Positive:
      if (const auto value = ParseNumber<double>(text)) return CheckPositiveValue(row, *value, std::string(text));
      return Fail(Dashed(row) + ": '" + std::string(text) + "' is not a number");
    case ValueType::Pair:
      return ReadPair(row, text);
    case ValueType::Path:
      if (text.empty()) return Fail(Dashed(row) + ": the file name is empty");
      return {std::string(text), ""};
    case ValueType::Text:
      return {std::string(text), ""};
  }
  return Fail(Dashed(row) + ": unknown value type");
}

CommandLineRead ReadCommandLine(const OptionTable& table, const std::vector<std::string>& arguments) {
  CommandLineRead read;
  for (size_t i = 1; i < arguments.size() && read.Error.empty(); ++i) {
    const std::string& argument = arguments[i];
    if (argument == "--") {
      read.Positional.insert(read.Positional.end(), arguments.begin() + static_cast<std::ptrdiff_t>(i) + 1,
                             arguments.end());
      break;
    }
    if (argument.size() < 2 || argument[0] != '-') {
      read.Positional.push_back(argument);
      continue;
    }
    const bool shortHelp = argument == "-h";
    if (argument[1] != '-' && !shortHelp) {
      read.Error = "unknown option '" + argument + "'";
      break;
    }
    const size_t equals = argument.find('=');
    const std::string name = shortHelp ? "help" : argument.substr(2, equals == std::string::npos ? equals : equals - 2);
    const OptionRow* row = FindOption(table, name);
    if (row == nullptr) {
      read.Error = "unknown option '" + name + "'";
      break;
    }
    std::string text;
    if (row->Type == ValueType::Flag) {
      if (equals != std::string::npos) read.Error = "--" + name + ": takes no value";
    } else if (equals != std::string::npos) {
      text = argument.substr(equals + 1);
    } else if (i + 1 < arguments.size()) {
      text = arguments[++i];
    } else {
      read.Error = "--" + name + ": missing value " + row->ValueName;
    }
    if (!read.Error.empty()) break;
    const ValueRead value = ReadValueText(*row, text);
    if (!value.Value) {
      read.Error = value.Error;
      break;
    }
    row->Store(*value.Value);
    read.Given.push_back(name);
  }
  return read;
}

std::string HelpText(std::string_view usage, std::string_view description, const OptionTable& table) {
  constexpr size_t HelpColumn = 24;
  std::string text = "Usage: " + std::string(usage) + "\n" + std::string(description) + "\n\nOptions:\n";
  for (const OptionRow& row : table) {
    std::string line = "  --" + row.Name + (row.ValueName.empty() ? "" : " " + row.ValueName);
    line += line.size() + 2 <= HelpColumn ? std::string(HelpColumn - line.size(), ' ') : "\n" + std::string(HelpColumn, ' ');
    text += line + row.Help + "\n";
  }
  return text;
}

}  // namespace keldor::headless
