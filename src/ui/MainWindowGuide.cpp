// The main window's help and navigation: Help > Keldor Help (F1), the
// shortcuts of New, Open World and Save World As, the wheel and arrow keys
// over the terrain view, and following the picked ant.
#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <algorithm>
#include <cstdlib>

#include "ui/HelpWindow.h"
#include "ui/MainWindow.h"
#include "ui/PickWindow.h"
#include "ui/TerrainNavigation.h"
#include "ui/PictureBox.h"
#include "window/Viewport.h"

namespace keldor {

void MainWindow::BuildGuide() {
  const std::pair<const char*, const char*> shortcuts[] = {
      {"mnuFileNew", "Ctrl+N"}, {"mnuFileOpen", "Ctrl+O"}, {"mnuFileSaveAs", "Ctrl+S"}};
  for (const auto& [name, keys] : shortcuts) findChild<QAction*>(name)->setShortcut(QKeySequence(keys));

  QAction* about = findChild<QAction*>("mnuHelpAbout");
  QMenu* help = menuBar()->actions().last()->menu();
  auto* guide = new QAction("Keldor &Help", help);
  guide->setObjectName("mnuHelpGuide");
  guide->setShortcut(QKeySequence::HelpContents);
  connect(guide, &QAction::triggered, this, [this] { Help()->show(), Help()->raise(), Help()->activateWindow(); });
  help->insertAction(about, guide);
  help->insertSeparator(about);

  new TerrainNavigation(
      picTerreno_, this,
      [this](int steps) {
        if (!window_.Controls.WorldControlsEnabled) return;
        for (int i = 0; i < std::abs(steps); ++i) steps > 0 ? ZoomIn(window_) : ZoomOut(window_);
        ApplyLayout();
        ShowControls();
      },
      [this](int columns, int rows) {
        if (!window_.Controls.WorldControlsEnabled) return;
        ScrollBySteps(window_, columns, rows);
        ShowControls();
      });
}

HelpWindow* MainWindow::Help() {
  if (!help_) help_ = new HelpWindow(this);
  return help_;
}

void MainWindow::FollowPick() {
  if (!pickWindow_ || !pickWindow_->isVisible() || !pickWindow_->Following()) return;
  if (const Ant* ant = LivingAnt(world_, pick_)) KeepInView(window_, ant->HeadX, ant->HeadY);
}

}  // namespace keldor
