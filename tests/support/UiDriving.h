// Driving Qt windows as a user does, by the names of their controls. A
// missing control stops the test at once.
#pragma once

#include <QAction>
#include <QApplication>
#include <QMouseEvent>
#include <QPushButton>
#include <QtTest>

namespace keldor::testing {

template <typename T = QWidget>
T* Child(const QObject* parent, const char* name) {
  T* child = parent->findChild<T*>(name);
  if (child == nullptr) qFatal("no control named %s", name);
  return child;
}

inline void Trigger(const QObject* window, const char* action) { Child<QAction>(window, action)->trigger(); }

inline void Click(const QObject* parent, const char* name) {
  QTest::mouseClick(Child<QPushButton>(parent, name), Qt::LeftButton);
}

// Sends a mouse event as the window system does (QTest's mouseMove carries no buttons).
inline void SendMouse(QWidget* target, QEvent::Type type, QPoint at, Qt::MouseButton button, Qt::MouseButtons held) {
  QMouseEvent event(type, at, target->mapToGlobal(at), button, held, Qt::NoModifier);
  QApplication::sendEvent(target, &event);
}

}  // namespace keldor::testing
