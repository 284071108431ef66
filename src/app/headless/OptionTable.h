// A program's options described once: each option's name, value type, range,
// help and where its value goes. The command line is read through the
// description here; keldor-sweep reads experiment files through the same one.
// Every value check and its message lives here, whatever the value came from.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace keldor::headless {

enum class ValueType {
  Flag,      // no value
  Whole,     // an integer within Min..Max
  Unsigned,  // an integer from 0 to 2^64 - 1
  Positive,  // a decimal number above 0
  Pair,      // "A,B": two integers within Min..Max (a cell X,Y, a size W,H)
  Path,      // a file or folder name, not empty
  Text,      // any text; its user checks it
};

// A checked value: true for a flag, int64_t for Whole, uint64_t for Unsigned,
// double for Positive, a pair for Pair, the text for Path and Text.
using OptionValue = std::variant<bool, int64_t, uint64_t, double, std::pair<int, int>, std::string>;

struct OptionRow {
  std::string Name;       // without its dashes
  ValueType Type = ValueType::Flag;
  std::string ValueName;  // "N", "X,Y", "FILE": the value in the help
  int64_t Min = 0;
  int64_t Max = 0;
  bool Repeats = false;   // may be given several times; every value is stored, in order
  bool InExperiments = true;  // false: keldor-sweep sets it, or it makes no sense there
  std::string Help;
  std::function<void(const OptionValue&)> Store;
};

using OptionTable = std::vector<OptionRow>;

const OptionRow* FindOption(const OptionTable& table, std::string_view name);

// A checked value, or the message naming the option and the value.
struct ValueRead {
  std::optional<OptionValue> Value;
  std::string Error;
};

// Reads a value given as text (a command-line argument, a JSON string).
ValueRead ReadValueText(const OptionRow& row, std::string_view text);
// Checks a value given as a number; `shown` is how the message writes it.
ValueRead CheckWholeValue(const OptionRow& row, int64_t value);
ValueRead CheckPositiveValue(const OptionRow& row, double value, const std::string& shown);

// The options of one command line, each value checked and stored in order.
struct CommandLineRead {
  std::vector<std::string> Given;       // the options given, in order
  std::vector<std::string> Positional;  // arguments that are no option, and all after "--"
  std::string Error;                    // the first fault; empty when none
};

// Reads `arguments` (program name first): "--name value", "--name=value",
// flags alone, "-h" for "--help".
CommandLineRead ReadCommandLine(const OptionTable& table, const std::vector<std::string>& arguments);

// The --help text: the usage line, the description, then one line per option.
std::string HelpText(std::string_view usage, std::string_view description, const OptionTable& table);

}  // namespace keldor::headless
