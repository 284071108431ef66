// The main window "Keldor": menus, the button bar with the drop-down tool
// palette, the terrain view with its scroll bars and the information panel
// with the mini-map and the population. Every handler calls the toolkit-free
// command and then shows what the window state says; the tick timer runs the
// tick every 75 ms and shows the frame it drew. The Run menu changes the
// speed and steps a paused world; the status line, the charts and the
// inspector follow the run.
#pragma once

#include <QElapsedTimer>
#include <QFileDialog>
#include <QMainWindow>
#include <QPointer>
#include <QTimer>
#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

#include "engine/Simulation.h"
#include "window/WindowLayout.h"
#include "model/World.h"
#include "window/Commands.h"
#include "window/WindowState.h"
#include "platform/ViewCanvases.h"
#include "sim/TickPainter.h"
#include "ui/TwipScale.h"
#include "window/FastestPacer.h"
#include "window/PickReport.h"
#include "window/RunChart.h"
#include "window/RunSpeed.h"
#include "window/TickRate.h"

class QAction;
class QFrame;
class QLabel;
class QMenu;
class QPushButton;
class QScrollBar;

namespace keldor {

class MessageBox;
class PictureBox;
class Registry;
class ProgramStarter;
class OptionsDialog;
class ChartsWindow;
class PickWindow;
class HelpWindow;

class MainWindow : public QMainWindow {
  Q_OBJECT

 public:
  // messages shows the population-limit and System Info messages; timeOfDay
  // is the time of day the random source reads (null: the system's).
  explicit MainWindow(MessageBox& messages, Clock* timeOfDay = nullptr, QWidget* parent = nullptr);
  ~MainWindow() override;

  World& TheWorld() { return simulation_.TheWorld(); }
  Simulation& TheSimulation() { return simulation_; }
  WindowState& Window() { return window_; }
  const WindowLayout& Layout() const { return layout_; }
  TwipScale Scale() const { return scale_; }
  // Timer ticks run to completion so far, paused ones included.
  int TicksRun() const { return ticksRun_; }
  // Runs one tick now, as the tick timer does.
  void AdvanceTick();
  // Asks for the file of Open World and Save World As (an empty name cancels);
  // Qt's file dialog unless replaced.
  using WorldFileChooser = std::function<QString(QWidget* parent, const char* caption, QFileDialog::AcceptMode mode)>;
  void SetWorldFileChooser(WorldFileChooser choose) { chooseWorldFile_ = std::move(choose); }
  // Continues from the world state file at path, as Open World does once a
  // file is chosen; a file that cannot be read shows its fault instead.
  void OpenWorldFile(const QString& path);

  // Run control, status line, charts and inspector.
  RunSpeed Speed() const { return speed_; }
  void SetSpeed(RunSpeed speed);
  int TimerInterval() const { return timer_.interval(); }
  // Ticks the world has run since New, counted on from a loaded world's tick.
  int64_t WorldTicks() const { return simulation_.Ticks(); }
  // New, with the random source's clock started from the seed as keldor-headless --seed starts it.
  void NewWithSeed(uint64_t seed);
  // One tick of a paused world.
  void Step();
  ChartsWindow* Charts();
  PickWindow* PickView();
  HelpWindow* Help();

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void BuildMenus();
  void BuildButtonBar(QWidget* central);
  void BuildPalette(QWidget* central);
  void BuildTerrain(QWidget* central);
  void BuildInfoPanel(QWidget* central);
  // Help > Keldor Help, the file shortcuts, and the wheel and arrow keys.
  void BuildGuide();
  // Keeps the picked ant in view while the inspector's Follow is ticked.
  void FollowPick();
  QPushButton* AddBarButton(QWidget* bar, const char* name, double left, const char* toolTip);

  // Runs a command on the world, then shows the controls.
  template <typename Command>
  void Run(Command command);
  void OnFileNew();
  void OnSaveWorldAs();
  void OnOpenWorld();
  void OnOptions();
  void OnAbout();
  void TerrainMouse(int kind, int buttons, QPointF pixel);
  void MapMouse(bool release, int buttons, QPointF pixel);
  void ScrollBarMoved();

  void BuildRunMenus(QMenu* file, QMenu* tools);
  void StartNewWorld(std::optional<uint64_t> seed);
  void AskSeed();
  void TimerFired();
  // Runs one tick drawing on `painter`, with the run clock, tick count and
  // charts; false when a tick is already running (inside its modal message).
  bool RunOneTick(TickPainter& painter);
  // Shows the tick the canvases hold: frame, controls, status, charts, inspector.
  void ShowTick();
  // Fastest: ticks back to back for one slice, one drawn about every 1/30 s.
  void RunFastestSlice();
  void ShowRun();
  void PickAt(QPointF pixel);
  double Seconds() const;

  // Lays the window out for its current size (snapping back to the minimum).
  void DoResize();
  void ApplyLayout();
  // Sizes the off-screen canvases to the boxes in device pixels.
  void ResizeCanvases();
  void ShowControls();
  void ShowFrame();

  MessageBox& messages_;
  Simulation simulation_;
  World& world_;
  WindowState window_;
  PopulationLimitNotice populationLimit_{simulation_.TheWorld(), window_, messages_};
  WindowLayout layout_;
  TwipScale scale_;
  std::unique_ptr<Registry> registry_;
  std::unique_ptr<ProgramStarter> starter_;
  ViewCanvases canvases_;
  QTimer timer_;
  bool showing_ = false;
  int ticksRun_ = 0;
  QPointer<OptionsDialog> options_;
  WorldFileChooser chooseWorldFile_;

  QAction* mnuFileSaveAs_ = nullptr;
  RunSpeed speed_ = RunSpeed::Normal;
  NullPainter noDrawing_;
  QElapsedTimer steady_;
  FastestPacer pacer_;
  TickRate rate_;
  RunChart chart_;
  double chartsShownAt_ = -1;
  Pick pick_;
  QPointer<ChartsWindow> charts_;
  QPointer<PickWindow> pickWindow_;
  QPointer<HelpWindow> help_;
  std::array<QAction*, std::size(AllRunSpeeds)> mnuSpeed_{};
  QLabel* lblStatus_ = nullptr;

  QAction* mnuButtons_ = nullptr;
  QAction* mnuInfo_ = nullptr;
  QFrame* fraButtonBar_ = nullptr;
  QPushButton* btnStart_ = nullptr;
  QPushButton* btnStop_ = nullptr;
  QPushButton* cmdZoomIn_ = nullptr;
  QPushButton* cmdZoomOut_ = nullptr;
  QPushButton* btnInfo_ = nullptr;
  QPushButton* btnOdor_ = nullptr;
  QPushButton* btnAnts_ = nullptr;
  QFrame* fraActions_ = nullptr;
  std::array<QPushButton*, 5> btnAction_{};
  QPushButton* btnPickAction_ = nullptr;
  std::array<QPushButton*, 2> btnQuick_{};
  PictureBox* picTerreno_ = nullptr;
  QScrollBar* hScroll1_ = nullptr;
  QScrollBar* vScroll1_ = nullptr;
  QFrame* fraInfo_ = nullptr;
  PictureBox* picMapa_ = nullptr;
  QLabel* lblPop_ = nullptr;
};

}  // namespace keldor
