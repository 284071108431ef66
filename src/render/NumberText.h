// The text of a number exactly as CStr writes it, kept on the stack: the
// terrain view prints two numbers per cell, tens of thousands a frame.
#pragma once

#include <cstddef>
#include <string_view>

#include "model/Numeric.h"

namespace keldor {

class NumberText {
 public:
  explicit NumberText(double value) : length_(CStrInto(value, text_).size()) {}
  NumberText(const NumberText&) = delete;
  NumberText& operator=(const NumberText&) = delete;

  std::string_view View() const { return {text_, length_}; }

 private:
  char text_[CStrCapacity];
  size_t length_;
};

}  // namespace keldor
