// The splash screen: a picture with the authorship line and web address. It
// hands over to the main window after 51 ticks of its 20 ms timer, or at the
// first click or key press, and then closes itself.
#pragma once

#include <QTimer>
#include <QWidget>
#include <functional>

#include "window/SplashCounter.h"

namespace keldor {

class SplashScreen : public QWidget {
  Q_OBJECT

 public:
  // showMain shows the main window (not modal); it runs once.
  explicit SplashScreen(std::function<void()> showMain, QWidget* parent = nullptr);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void CountTick();
  void HandOver();

  std::function<void()> showMain_;
  SplashCounter counter_;
  QTimer timer_;
  bool handedOver_ = false;
};

}  // namespace keldor
