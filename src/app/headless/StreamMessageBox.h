// The message box of a run without a window: the text goes to a stream (the
// batch runner's standard error) and the box counts as closed at once.
#pragma once

#include <ostream>
#include <string>

#include "window/MessageBox.h"

namespace keldor::headless {

class StreamMessageBox : public MessageBox {
 public:
  explicit StreamMessageBox(std::ostream& out) : out_(out) {}
  void Show(const std::string& text) override;

 private:
  std::ostream& out_;
};

}  // namespace keldor::headless
