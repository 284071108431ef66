// An experiment's value of a keldor-headless option, read straight from its
// JSON value through the option's description: a number for a numeric option
// (or its text as a string), true or false for a flag, "X,Y" for a cell, and
// for a repeatable option one value or a list of them.
#pragma once

#include <string>

#include "app/headless/OptionTable.h"
#include "app/sweep/ExperimentJson.h"

namespace keldor::sweep {

struct JsonOptionRead {
  bool Given = false;  // false for a flag set to false: the option is left out
  std::string Error;   // the value's shape, or the option's own check, that failed
};

// Checks the value and stores it with the option's Store.
JsonOptionRead StoreJsonOption(const headless::OptionRow& row, const Json& value);

}  // namespace keldor::sweep
