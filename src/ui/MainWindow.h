// The main window "Keldor": menus, the button bar with the drop-down tool
// palette, the terrain view with its scroll bars and the information panel
// with the mini-map and the population. Every handler calls the toolkit-free
// command and then shows what the world's ControlState says; the tick timer runs the
// tick every 75 ms and shows the frame it drew.
#pragma once

#include <QFileDialog>
#include <QMainWindow>
#include <QPointer>
#include <QTimer>
#include <array>
#include <functional>
#include <memory>

#include "model/Random.h"
#include "window/WindowLayout.h"
#include "model/World.h"
#include "sim/Tick.h"
#include "window/Commands.h"
#include "window/WindowState.h"
#include "platform/ViewCanvases.h"
#include "ui/TwipScale.h"

class QAction;
class QFrame;
class QLabel;
class QPushButton;
class QScrollBar;

namespace keldor {

class MessageBox;
class PictureBox;
class Registry;
class ProgramStarter;
class OptionsDialog;

inline constexpr int TickIntervalMs = 75;

class MainWindow : public QMainWindow {
  Q_OBJECT

 public:
  // messages shows the population-limit and System Info messages; clock seeds
  // the random source.
  MainWindow(MessageBox& messages, Clock& clock, QWidget* parent = nullptr);
  ~MainWindow() override;

  World& TheWorld() { return world_; }
  WindowState& Window() { return window_; }
  const WindowLayout& Layout() const { return layout_; }
  TwipScale Scale() const { return scale_; }
  // Ticks run to completion so far, counted on from its saved tick after Open World.
  int TicksRun() const { return ticksRun_; }
  // Runs one tick now, as the tick timer does.
  void AdvanceTick();
  // Asks for the file of Open World and Save World As (an empty name cancels);
  // Qt's file dialog unless replaced.
  using WorldFileChooser = std::function<QString(QWidget* parent, const char* caption, QFileDialog::AcceptMode mode)>;
  void SetWorldFileChooser(WorldFileChooser choose) { chooseWorldFile_ = std::move(choose); }

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void BuildMenus();
  void BuildButtonBar(QWidget* central);
  void BuildPalette(QWidget* central);
  void BuildTerrain(QWidget* central);
  void BuildInfoPanel(QWidget* central);
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

  // Lays the window out for its current size (snapping back to the minimum).
  void DoResize();
  void ApplyLayout();
  // Sizes the off-screen canvases to the boxes in device pixels.
  void ResizeCanvases();
  void ShowControls();
  void ShowFrame();

  MessageBox& messages_;
  RandomSource random_;
  World world_;
  WindowState window_;
  PopulationLimitNotice populationLimit_{world_, window_, messages_};
  WindowLayout layout_;
  TwipScale scale_;
  std::unique_ptr<Registry> registry_;
  std::unique_ptr<ProgramStarter> starter_;
  ViewCanvases canvases_;
  TickContext tick_;
  QTimer timer_;
  bool showing_ = false;
  int ticksRun_ = 0;
  QPointer<OptionsDialog> options_;
  WorldFileChooser chooseWorldFile_;

  QAction* mnuFileSaveAs_ = nullptr;
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
