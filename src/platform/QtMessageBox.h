// The message box of the desktop program: a modal QMessageBox with an OK
// button and the application's name as its title.
#pragma once

#include "window/MessageBox.h"

class QWidget;

namespace keldor {

class QtMessageBox : public MessageBox {
 public:
  explicit QtMessageBox(QWidget* parent = nullptr) : parent_(parent) {}
  void Show(const std::string& text) override;

 private:
  QWidget* parent_;
};

}  // namespace keldor
