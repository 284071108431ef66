// Helpers for driving the windows in tests: a message box that records what
// it was asked to show, a way to answer the next modal dialog, and lookups of
// controls by their names.
#pragma once

#include <QApplication>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <functional>
#include <string>
#include <vector>

#include "model/MessageBox.h"

namespace keldor::testing {

class RecordingMessageBox : public MessageBox {
 public:
  void Show(const std::string& text) override {
    shown.push_back(text);
    if (whileShown) whileShown();
  }
  std::vector<std::string> shown;
  // Runs while the box is "open", as the user would take time to read it.
  std::function<void()> whileShown;
};

// Runs answer on the next modal window once it is open. The dialog must be
// opened (exec) after this call; answer must close it.
inline void AnswerNextModal(std::function<void(QWidget*)> answer) {
  auto poll = std::make_shared<std::function<void()>>();
  *poll = [answer, poll] {
    QWidget* modal = QApplication::activeModalWidget();
    if (modal == nullptr) {
      QTimer::singleShot(10, *poll);
      return;
    }
    answer(modal);
    *poll = nullptr;  // break the cycle
  };
  QTimer::singleShot(10, *poll);
}

template <typename T = QWidget>
T* Child(QObject* parent, const char* name) {
  T* child = parent->findChild<T*>(name);
  if (child == nullptr) qFatal("no control named %s", name);
  return child;
}

inline void Click(QObject* parent, const char* name) { QTest::mouseClick(Child<QPushButton>(parent, name), Qt::LeftButton); }

}  // namespace keldor::testing
