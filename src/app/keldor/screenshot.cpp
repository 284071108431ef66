// keldor-screenshot: builds the default world in the main window with New
// with Seed, plays it with the odor traces shown for a number of ticks, and
// saves the window's picture to a PNG; with "charts", run at Fastest, paused,
// with the Keldor Charts window beside it. Used for the documentation; run
// with the offscreen platform or under a virtual display.
//   keldor-screenshot OUTPUT.png [TICKS] [SEED] [charts]
#include <QApplication>
#include <QCommandLineParser>
#include <QPainter>
#include <QPushButton>
#include <algorithm>
#include <cstdio>

#include "app/keldor/HelpOrVersion.h"
#include "platform/QtMessageBox.h"
#include "ui/AppTexts.h"
#include "ui/ChartsWindow.h"
#include "ui/MainWindow.h"

namespace {

void DescribeCommandLine(QCommandLineParser& parser) {
  parser.setApplicationDescription(
      "Makes the default world with New with Seed SEED, plays it with the odor traces shown for TICKS ticks "
      "and saves the main window's picture to OUTPUT.png; with \"charts\", run at Fastest and paused, with the "
      "charts window beside it. Run it with QT_QPA_PLATFORM=offscreen or on a virtual display.");
  parser.addHelpOption();
  parser.addVersionOption();
  parser.addPositionalArgument("OUTPUT.png", "The picture to write.");
  parser.addPositionalArgument("TICKS", "Ticks to run (default 400).", "[TICKS]");
  parser.addPositionalArgument("SEED", "Seed of the run's clock (default 1).", "[SEED]");
  parser.addPositionalArgument("charts", "Picture the charts window too.", "[charts]");
}

}  // namespace

int main(int argc, char* argv[]) {
  keldor::AnswerHelpOrVersion(argc, argv, "keldor-screenshot", DescribeCommandLine);
  QApplication app(argc, argv);
  QApplication::setApplicationName(keldor::ApplicationTitle);
  QCommandLineParser parser;
  DescribeCommandLine(parser);
  parser.process(app);
  const QStringList args = parser.positionalArguments();
  if (args.isEmpty() || args.size() > 4) parser.showHelp(2);
  const int ticks = args.size() > 1 ? args[1].toInt() : 400;
  const uint64_t seed = args.size() > 2 ? args[2].toULongLong() : 1;
  const bool charts = args.size() > 3 && args[3] == "charts";

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
  if (!picture.save(args[0])) {
    std::fprintf(stderr, "cannot write %s\n", qPrintable(args[0]));
    return 1;
  }
  return 0;
}
