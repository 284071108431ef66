// keldor: the desktop program. The splash screen comes first and hands over
// to the main window; the process ends when the last window closes.
#include <QApplication>
#include <memory>

#include "platform/QtMessageBox.h"
#include "ui/AppTexts.h"
#include "ui/ButtonPictures.h"
#include "ui/MainWindow.h"
#include "ui/SplashScreen.h"

int main(int argc, char* argv[]) {
  QApplication app(argc, argv);
  QApplication::setApplicationName(keldor::ApplicationTitle);
  QApplication::setWindowIcon(keldor::AppIcon());

  keldor::QtMessageBox messages;
  std::unique_ptr<keldor::MainWindow> main;
  auto* splash = new keldor::SplashScreen([&] {
    main = std::make_unique<keldor::MainWindow>(messages);
    main->show();
  });
  splash->show();
  // Desktops often leave a splash window without the keyboard; ask for it so
  // that the first key press hands over.
  splash->activateWindow();
  return app.exec();
}
