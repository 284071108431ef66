// keldor-screenshot: builds the default world in the main window, plays it
// with the odor traces shown for a number of ticks, and saves the window's
// picture to a PNG. Used for the documentation; run with the offscreen
// platform or under a virtual display.
//   keldor-screenshot OUTPUT.png [TICKS] [SEED]
#include <QApplication>
#include <QPushButton>
#include <cstdio>
#include <cstdlib>

#include "model/Random.h"
#include "platform/QtMessageBox.h"
#include "ui/AppTexts.h"
#include "ui/MainWindow.h"

int main(int argc, char* argv[]) {
  QApplication app(argc, argv);
  QApplication::setApplicationName(keldor::ApplicationTitle);
  if (argc < 2) {
    std::fprintf(stderr, "usage: keldor-screenshot OUTPUT.png [TICKS] [SEED]\n");
    return 2;
  }
  const int ticks = argc > 2 ? std::atoi(argv[2]) : 400;
  const uint64_t seed = argc > 3 ? std::strtoull(argv[3], nullptr, 10) : 1;

  keldor::VirtualClock clock(seed);
  keldor::QtMessageBox messages;
  keldor::MainWindow window(messages, clock);
  window.show();
  for (const char* button : {"btnStart", "btnStop", "btnOdor"}) window.findChild<QPushButton*>(button)->click();
  for (int i = 0; i < ticks; ++i) {
    clock.Advance(keldor::TickIntervalMs / 1000.0);
    window.AdvanceTick();
  }
  QApplication::processEvents();
  if (!window.grab().save(argv[1])) {
    std::fprintf(stderr, "cannot write %s\n", argv[1]);
    return 1;
  }
  return 0;
}
