// The checks a field description attaches to a field. The writer ignores
// them; the reader refuses a value that fails one, naming the field.
#pragma once

#include <cmath>
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
inline constexpr NumberCheck AtLeastZero{[](double v) { return v >= 0; }, "below 0"};
// The zoom buttons step by 1 from New's zoom and never go below 2.
inline constexpr NumberCheck ZoomValue{[](double v) { return v == std::trunc(v) && v >= 2 && v <= Int16Max; },
                                       "not a whole number from 2 to 32767, a zoom the zoom buttons reach"};

// What an ant's or a nest's Serial is: the identity of a live record, unique
// in the file, or the spare slot's leftover (a copy of a live one, or 0).
enum class SerialUse { Identity, Spare };

// Whether a file written before a field existed may lack it (then null).
enum class Absent { Refused, AsNull };

}  // namespace keldor
