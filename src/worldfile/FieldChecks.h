// The checks a field description attaches to a field. The writer ignores
// them; the reader refuses a value that fails one, naming the field.
#pragma once

#include <cstdint>

#include "model/Numeric.h"

namespace keldor {

// A whole number from Lo to Hi.
struct Range {
  int64_t Lo = INT16_MIN;
  int64_t Hi = INT16_MAX;
};

inline constexpr Range CountRange{0, Int16Max};

// A finite number that passes Ok, else refused with Problem.
struct NumberCheck {
  bool (*Ok)(double);
  const char* Problem;
};

inline constexpr NumberCheck AnyNumber{[](double) { return true; }, ""};
inline constexpr NumberCheck AboveZero{[](double v) { return v > 0; }, "not above 0"};

// What an ant's or a nest's Serial is: the identity of a live record, unique
// in the file, or the spare slot's leftover (a copy of a live one, or 0).
enum class SerialUse { Identity, Spare };

// Whether a file written before a field existed may lack it (then null).
enum class Absent { Refused, AsNull };

}  // namespace keldor
