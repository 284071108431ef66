#include "app/sweep/OptionJson.h"

#include <cmath>
#include <limits>

namespace keldor::sweep {

namespace {

using headless::ValueRead;
using headless::ValueType;

std::string Takes(const headless::OptionRow& row) {
  switch (row.Type) {
    case ValueType::Flag: return "true or false";
    case ValueType::Whole:
    case ValueType::Unsigned:
    case ValueType::Positive: return "a number or a string";
    default: return row.Repeats ? "a string " + row.ValueName + " or a list of them" : "a string " + row.ValueName;
  }
}

// A JSON number as a whole number, when it is one (12 and 12.0 alike).
std::optional<int64_t> WholeNumber(const Json& value) {
  if (value.is_number_integer() && !value.is_number_unsigned()) return value.get<int64_t>();
  const double number = value.get<double>();
  constexpr double Limit = 9223372036854775808.0;  // 2^63
  if (std::floor(number) != number || !(number >= -Limit && number < Limit)) return std::nullopt;
  return static_cast<int64_t>(number);
}

ValueRead ReadNumber(const headless::OptionRow& row, const Json& value) {
  const std::string shown = JsonText(value);
  if (row.Type == ValueType::Positive) return headless::CheckPositiveValue(row, value.get<double>(), shown);
  if (row.Type == ValueType::Unsigned && value.is_number_unsigned()) return {value.get<uint64_t>(), ""};
  const auto whole = WholeNumber(value);
  if (row.Type == ValueType::Whole && whole) return headless::CheckWholeValue(row, *whole);
  if (row.Type == ValueType::Unsigned && whole && *whole >= 0) return {static_cast<uint64_t>(*whole), ""};
  return {std::nullopt, "--" + row.Name + ": '" + shown + "' is not a whole number" +
                            (row.Type == ValueType::Unsigned
                                 ? " from 0 to " + std::to_string(std::numeric_limits<uint64_t>::max())
                                 : "")};
}

// One scalar value of the option, or the reason it does not fit.
ValueRead ReadScalar(const headless::OptionRow& row, const Json& value) {
  if (row.Type == ValueType::Flag) return {value.get<bool>(), ""};
  if (value.is_string()) return headless::ReadValueText(row, value.get<std::string>());
  return ReadNumber(row, value);
}

bool Fits(const headless::OptionRow& row, const Json& value) {
  switch (row.Type) {
    case ValueType::Flag: return value.is_boolean();
    case ValueType::Whole:
    case ValueType::Unsigned:
    case ValueType::Positive: return value.is_number() || value.is_string();
    default: return value.is_string();
  }
}

}  // namespace

JsonOptionRead StoreJsonOption(const headless::OptionRow& row, const Json& value) {
  const bool list = row.Repeats && value.is_array() && !value.empty();
  const Json single = Json::array({value});
  for (const Json& item : list ? value : single) {
    if (!Fits(row, item)) return {false, "\"" + row.Name + "\" takes " + Takes(row)};
  }
  JsonOptionRead read;
  for (const Json& item : list ? value : single) {
    const ValueRead scalar = ReadScalar(row, item);
    if (!scalar.Value) return {false, scalar.Error};
    if (row.Type == ValueType::Flag && !std::get<bool>(*scalar.Value)) continue;
    row.Store(*scalar.Value);
    read.Given = true;
  }
  return read;
}

}  // namespace keldor::sweep
