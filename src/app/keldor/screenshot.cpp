// keldor-screenshot: builds the default world in the main window with New
// with Seed, plays it with the odor traces shown for a number of ticks, and
// saves the window's picture to a PNG; with "charts", run at Fastest, paused,
// with the Keldor Charts window beside it. Used for the documentation; run
// with the offscreen platform or under a virtual display.
//   keldor-screenshot OUTPUT.png [TICKS] [SEED] [charts]
#include <QApplication>
#include <QPainter>
#include <QPushButton>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "platform/QtMessageBox.h"
#include "ui/AppTexts.h"
#include "ui/ChartsWindow.h"
#include "ui/MainWindow.h"

int main(int argc, char* argv[]) {
  QApplication app(argc, argv);
  QApplication::setApplicationName(keldor::ApplicationTitle);
  if (argc < 2) {
    std::fprintf(stderr, "usage: keldor-screenshot OUTPUT.png [TICKS] [SEED] [charts]\n");
    return 2;
  }
  const int ticks = argc > 2 ? std::atoi(argv[2]) : 400;
  const uint64_t seed = argc > 3 ? std::strtoull(argv[3], nullptr, 10) : 1;
  const bool charts = argc > 4 && std::string_view(argv[4]) == "charts";

  keldor::QtMessageBox messages;
  keldor::MainWindow window(messages);
  window.show();
  const auto click = [&](const char* button) { window.findChild<QPushButton*>(button)->click(); };
  window.NewWithSeed(seed);
  if (charts) window.SetSpeed(keldor::RunSpeed::Fastest);
  click("btnStop");
  click("btnOdor");
  for (int i = 0; i < ticks; ++i) window.AdvanceTick();
  if (charts) click("btnStop");  // paused: no more ticks before the picture
  QApplication::processEvents();
  QImage picture = window.grab().toImage();
  if (charts) {
    keldor::ChartsWindow* chartsWindow = window.Charts();
    chartsWindow->resize(chartsWindow->width(), window.height());
    chartsWindow->show();
    chartsWindow->Refresh();
    QApplication::processEvents();
    const QImage right = chartsWindow->grab().toImage();
    QImage both(picture.width() + right.width(), std::max(picture.height(), right.height()), QImage::Format_RGB32);
    both.fill(Qt::white);
    QPainter painter(&both);
    painter.drawImage(0, 0, picture);
    painter.drawImage(picture.width(), 0, right);
    painter.end();
    picture = both;
  }
  if (!picture.save(argv[1])) {
    std::fprintf(stderr, "cannot write %s\n", argv[1]);
    return 1;
  }
  return 0;
}
