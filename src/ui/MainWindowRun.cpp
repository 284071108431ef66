// The main window's run control (the Run menu, New with Seed, Fastest), its
// status line, and the charts and inspector windows that follow the run.
#include <QAction>
#include <QActionGroup>
#include <QInputDialog>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>

#include "window/Commands.h"
#include "window/MessageBox.h"
#include "window/OptionsForm.h"
#include "render/PickMarker.h"
#include "ui/ChartsWindow.h"
#include "ui/PickWindow.h"
#include "ui/PictureBox.h"
#include "ui/MainWindow.h"
#include "window/StatusText.h"

namespace keldor {

namespace {

// How near the pointer an ant's body must be to pick it, in pixels.
constexpr double PickReachPixels = 6;
// The charts are redrawn at most twice a second: a redraw over a long run
// takes about 10 ms, which at the frame rate would slow Fastest by a third.
constexpr double ChartRefreshSeconds = 0.5;

}  // namespace

void MainWindow::BuildRunMenus(QMenu* file, QMenu* tools) {
  QAction* newWithSeed = new QAction("New with &Seed...", file);
  newWithSeed->setObjectName("mnuFileNewSeed");
  newWithSeed->setShortcut(QKeySequence("Ctrl+Shift+N"));
  connect(newWithSeed, &QAction::triggered, this, [this] { AskSeed(); });
  file->insertAction(file->actions().value(1), newWithSeed);

  QMenu* run = new QMenu("&Run", this);
  menuBar()->insertMenu(menuBar()->actions().last(), run);
  QAction* play = run->addAction("&Play/Pause", this, [this] {
    if (!window_.Controls.WorldControlsEnabled) return;
    TogglePlayPause(world_, window_);
    ApplyLayout();
    ShowControls();
    ShowRun();
  });
  play->setObjectName("mnuPlayPause");
  play->setShortcut(Qt::Key_Space);
  QAction* step = run->addAction("&Step", this, [this] { Step(); });
  step->setObjectName("mnuStep");
  step->setShortcut(Qt::Key_Period);
  QMenu* speed = run->addMenu("Speed");
  auto* group = new QActionGroup(speed);
  for (size_t i = 0; i < mnuSpeed_.size(); ++i) {
    const RunSpeed s = AllRunSpeeds[i];
    QAction* item = speed->addAction(QString::fromUtf8(SpeedLabel(s).data(), SpeedLabel(s).size()));
    item->setObjectName(QString("mnuSpeed_%1").arg(i));
    item->setCheckable(true);
    item->setChecked(s == speed_);
    group->addAction(item);
    connect(item, &QAction::triggered, this, [this, s] { SetSpeed(s); });
    mnuSpeed_[i] = item;
  }
  speed->addSeparator();
  speed->addAction("&Faster", QKeySequence("Ctrl+Up"), this, [this] { SetSpeed(Faster(speed_)); })->setObjectName("mnuFaster");
  speed->addAction("&Slower", QKeySequence("Ctrl+Down"), this, [this] { SetSpeed(Slower(speed_)); })->setObjectName("mnuSlower");

  tools->addSeparator();
  tools->addAction("&Charts", QKeySequence("Ctrl+G"), this, [this] { Charts()->show(), Charts()->raise(), ShowRun(); })
      ->setObjectName("mnuCharts");
  tools->addAction("&Inspector", QKeySequence("Ctrl+I"), this, [this] { PickView()->show(), PickView()->raise(), ShowRun(); })
      ->setObjectName("mnuInspector");

  lblStatus_ = new QLabel(this);
  lblStatus_->setObjectName("lblStatus");
  statusBar()->addWidget(lblStatus_, 1);
  statusBar()->setSizeGripEnabled(false);
  ShowRun();
}

void MainWindow::SetSpeed(RunSpeed speed) {
  speed_ = speed;
  simulation_.ChooseClock(speed_ == RunSpeed::Normal);
  mnuSpeed_[static_cast<size_t>(speed)]->setChecked(true);
  ShowControls();
  ShowRun();
}

void MainWindow::StartNewWorld(std::optional<uint64_t> seed) {
  simulation_.ClockForNew(seed, speed_ == RunSpeed::Normal);
  NewFromOptions(simulation_, window_);
  chart_.Clear();
  pick_ = {};
  ShowRun();
}

void MainWindow::NewWithSeed(uint64_t seed) {
  CollapsePalette(window_);
  StartNewWorld(seed);
  ApplyLayout();
  ShowControls();
  ShowRun();
}

void MainWindow::AskSeed() {
  QInputDialog dialog(this);
  dialog.setObjectName("dlgSeed");
  dialog.setWindowTitle("New with Seed");
  dialog.setLabelText("Seed (a whole number):");
  dialog.setTextValue(QString::number(simulation_.Seed().value_or(1)));
  // Wide enough for the whole title beside the title bar's buttons.
  dialog.setMinimumWidth(dialog.fontMetrics().horizontalAdvance(dialog.windowTitle()) + 24 * dialog.fontMetrics().height());
  // A bad seed is explained and asked for again, with what was typed.
  while (dialog.exec() == QDialog::Accepted) {
    bool ok = false;
    const qulonglong seed = dialog.textValue().trimmed().toULongLong(&ok);
    if (ok) {
      NewWithSeed(seed);
      return;
    }
    messages_.Show("The seed must be a whole number from 0 to 18446744073709551615.");
  }
}

void MainWindow::Step() {
  if (simulation_.TickInProgress() || !world_.HasWorld() || world_.Running) return;
  world_.Running = true;
  AdvanceTick();
  world_.Running = false;  // the population limit may have paused it already
  ShowRun();
}

void MainWindow::TimerFired() {
  if (speed_ == RunSpeed::Fastest && world_.Running) RunFastestSlice();
  else AdvanceTick();
}

bool MainWindow::RunOneTick(TickPainter& painter) {
  const bool ran = world_.Running;
  if (!simulation_.Tick(painter, TickInputOf(window_, world_))) return false;
  ShowPopulation(world_, window_);
  ++ticksRun_;
  if (ran) chart_.Record(simulation_.Ticks(), world_);
  return true;
}

void MainWindow::ShowTick() {
  if (const Ant* ant = LivingAnt(world_, pick_)) DrawPickMarker(world_, window_.View, *ant, canvases_.TerrainCanvas());
  ShowFrame();
  ResizeCanvases();
  FollowPick();
  ShowControls();
  ShowRun();
}

void MainWindow::RunFastestSlice() {
  if (simulation_.TickInProgress()) return;
  double now = Seconds();
  pacer_.StartSlice(now);
  // Undrawn ticks change the world as drawn ones do: the painter only reads it.
  do {
    if (pacer_.FrameDue(now)) {
      RunOneTick(canvases_.Painter());
      pacer_.FrameShown(now);
      ShowTick();
      return;
    }
    RunOneTick(noDrawing_);
    now = Seconds();
  } while (!pacer_.SliceOver(now) && world_.Running);
}

void MainWindow::ShowRun() {
  const double now = Seconds();
  rate_.Update(now, simulation_.Ticks());
  const QString status = QString::fromStdString(
      StatusText({world_.HasWorld(), world_.Running, simulation_.Ticks(), simulation_.Seed(), speed_, rate_.PerSecond()}));
  if (lblStatus_ != nullptr && lblStatus_->text() != status) lblStatus_->setText(status);
  if (charts_ && charts_->isVisible() && now - chartsShownAt_ >= ChartRefreshSeconds) {
    charts_->Refresh();
    chartsShownAt_ = now;
  }
  if (pickWindow_ && pickWindow_->isVisible()) pickWindow_->Show(ReportPick(world_, pick_));
}

void MainWindow::PickAt(QPointF pixel) {
  const double perPixel = scale_.TwipsPerPixel();
  const ViewState& view = window_.View;
  const double x = (view.Terrain.Left + scale_.Twips(pixel.x())) / view.ZoomX;
  const double y = (view.Terrain.Top + scale_.Twips(pixel.y())) / view.ZoomY;
  pick_ = keldor::PickAt(world_, x, y, PickReachPixels * perPixel / view.ZoomX);
  ShowRun();
}

ChartsWindow* MainWindow::Charts() {
  if (!charts_) charts_ = new ChartsWindow(chart_, this);
  return charts_;
}

PickWindow* MainWindow::PickView() {
  if (!pickWindow_) pickWindow_ = new PickWindow(this);
  return pickWindow_;
}

double MainWindow::Seconds() const { return static_cast<double>(steady_.nsecsElapsed()) / 1e9; }

}  // namespace keldor
