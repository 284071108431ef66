// A message box that records every text it is asked to show; whileShown, when
// set, runs as if the box were open, before Show returns.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "window/MessageBox.h"

namespace keldor::testing {

struct RecordingMessageBox : MessageBox {
  void Show(const std::string& text) override {
    shown.push_back(text);
    if (whileShown) whileShown();
  }
  std::vector<std::string> shown;
  std::function<void()> whileShown;
};

}  // namespace keldor::testing
