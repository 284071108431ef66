#include "app/headless/StreamMessageBox.h"

namespace keldor::headless {

void StreamMessageBox::Show(const std::string& text) { out_ << text << std::endl; }

}  // namespace keldor::headless
