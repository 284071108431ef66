// A modal message box with an OK button. The desktop program shows a real
// one; tests and the batch runner answer it themselves. Show returns when the
// box is closed.
#pragma once

#include <string>

namespace keldor {

class MessageBox {
 public:
  virtual ~MessageBox() = default;
  virtual void Show(const std::string& text) = 0;
};

}  // namespace keldor
