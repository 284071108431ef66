// keldor-headless: runs a Keldor world without a window (see --help).
#include <iostream>

#include <unistd.h>

#include <QGuiApplication>

#include "app/headless/HeadlessRun.h"
#include "app/headless/Interruption.h"

int main(int argc, char* argv[]) {
  keldor::headless::CatchInterruptions();
  // The PNG frame is drawn with fonts, which need a GUI application; the
  // offscreen platform lets it run without a display.
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  // The application takes the arguments it reads itself (-platform...) out of argv.
  QGuiApplication app(argc, argv);
  return keldor::headless::RunHeadless(std::vector<std::string>(argv, argv + argc), std::cout, std::cerr,
                                       isatty(STDERR_FILENO) != 0);
}
