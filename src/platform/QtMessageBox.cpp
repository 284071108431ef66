#include "platform/QtMessageBox.h"

#include <QApplication>
#include <QMessageBox>

namespace keldor {

void QtMessageBox::Show(const std::string& text) {
  QMessageBox box(QMessageBox::NoIcon, QApplication::applicationName(), QString::fromStdString(text),
                  QMessageBox::Ok, parent_);
  box.exec();
}

}  // namespace keldor
