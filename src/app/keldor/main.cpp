// keldor: the desktop program. The splash screen comes first and hands over
// to the main window; the process ends when the last window closes.
//
//   keldor [--version] [--help] [FILE]
//
// FILE is a world state file, opened once the main window shows.
#include <QApplication>
#include <QCommandLineParser>
#include <cstdio>
#include <memory>

#include "app/keldor/HelpOrVersion.h"
#include "platform/QtMessageBox.h"
#include "ui/AppTexts.h"
#include "ui/ButtonPictures.h"
#include "ui/MainWindow.h"
#include "ui/SplashScreen.h"

namespace {

void DescribeCommandLine(QCommandLineParser& parser) {
  parser.setApplicationDescription("Keldor, an ant-colony foraging simulation.");
  parser.addHelpOption();
  parser.addVersionOption();
  parser.addPositionalArgument("FILE", "A world state file (as File > Save World As... writes it) to continue from.",
                               "[FILE]");
}

}  // namespace

int main(int argc, char* argv[]) {
  keldor::AnswerHelpOrVersion(argc, argv, "keldor", DescribeCommandLine);

  QApplication app(argc, argv);
  QApplication::setApplicationName(keldor::ApplicationTitle);
  QApplication::setWindowIcon(keldor::AppIcon());
  QCommandLineParser parser;
  DescribeCommandLine(parser);
  parser.process(app);
  const QStringList files = parser.positionalArguments();
  if (files.size() > 1) {
    std::fprintf(stderr, "keldor: one world file at most\n");
    return 1;
  }
  const QString worldFile = files.isEmpty() ? QString() : files.first();

  keldor::QtMessageBox messages;
  std::unique_ptr<keldor::MainWindow> main;
  auto* splash = new keldor::SplashScreen([&] {
    main = std::make_unique<keldor::MainWindow>(messages);
    main->show();
    if (!worldFile.isEmpty()) main->OpenWorldFile(worldFile);
  });
  splash->show();
  // Desktops often leave a splash window without the keyboard; ask for it so
  // that the first key press hands over.
  splash->activateWindow();
  return app.exec();
}
