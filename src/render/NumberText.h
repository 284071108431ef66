// The text of a number exactly as CStr writes it, kept on the stack when the
// number is whole and within 16 bits (every ant count, every clamped scent):
// the terrain view prints two numbers per cell, tens of thousands a frame.
#pragma once

#include <charconv>
#include <cstddef>
#include <string>
#include <string_view>

#include "model/Numeric.h"

namespace keldor {

class NumberText {
 public:
  explicit NumberText(double value) {
    if (value >= Int16Min && value <= Int16Max && static_cast<int>(value) == value) {
      // -0 passes as 0, which CStr also writes "0".
      const char* end = std::to_chars(digits_, digits_ + sizeof digits_, static_cast<int>(value)).ptr;
      length_ = static_cast<size_t>(end - digits_);
    } else {
      other_ = CStr(value);
    }
  }

  std::string_view View() const { return length_ > 0 ? std::string_view(digits_, length_) : std::string_view(other_); }

 private:
  char digits_[8];  // "-32768"
  size_t length_ = 0;
  std::string other_;  // any other number
};

}  // namespace keldor
