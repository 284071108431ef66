// One session of the page: the engine, the window state beside it, and the
// workbench around them (speed, Fastest pacing, charts, inspector, options),
// driven by the page's JavaScript as the desktop window drives its own. The
// page calls Timer() at the tick timer's interval (every animation frame at
// Fastest) and shows the two canvases whenever FrameNumber() moves on.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "PixelCanvas.h"
#include "engine/Simulation.h"
#include "render/ViewPainter.h"
#include "window/Commands.h"
#include "window/FastestPacer.h"
#include "window/MessageBox.h"
#include "window/OptionsForm.h"
#include "window/PickReport.h"
#include "window/RunChart.h"
#include "window/RunSpeed.h"
#include "window/TickRate.h"
#include "window/WindowState.h"

namespace keldor::web {

// The messages a tick or a command gives, kept until the page shows them.
class MessageQueue : public MessageBox {
 public:
  void Show(const std::string& text) override { waiting_.push_back(text); }
  std::vector<std::string> Take() { return std::exchange(waiting_, {}); }

 private:
  std::vector<std::string> waiting_;
};

class WebSession {
 public:
  // The mini-map is mapPixels square; the terrain view starts at the design size.
  explicit WebSession(int mapPixels);

  // --- world and run ---
  void New();
  void NewWithSeed(uint64_t seed);
  void PlayPause();
  void Step();
  void SetSpeed(RunSpeed speed);
  RunSpeed Speed() const { return speed_; }
  // The tick timer fired; `now` is seconds on a steady clock.
  void Timer(double now);
  // Milliseconds until the next Timer call; 0 asks for the next animation frame.
  int TimerIntervalMs() const;
  bool TimerEnabled() const { return window_.TimerEnabled; }
  bool HasWorld() const { return world_.HasWorld(); }
  bool Running() const { return world_.Running; }
  int64_t Ticks() const { return simulation_.Ticks(); }
  std::string Status(double now);
  std::vector<std::string> TakeMessages() { return messages_.Take(); }

  // --- views ---
  void ToggleOdor();
  void ToggleAnts();
  void ZoomIn();
  void ZoomOut();
  // The terrain view's size in pixels.
  void ResizeTerrain(int width, int height);
  // Scrolling: by pixels of the terrain view, and the scroll bars' values.
  void ScrollBy(double dx, double dy);
  void SetScroll(int horizontal, int vertical);
  const WindowState& Window() const { return window_; }
  // A press or drag on the mini-map at pixel (x, y).
  void NavigateMap(double x, double y);

  // --- the terrain pointer (buttons: 1 left, 2 right) and the tools ---
  void PointerPressed(double x, double y, int buttons);
  void PointerMoved(double x, double y, int buttons);
  void PointerReleased(int buttons);
  void SelectTool(int tool);
  void TogglePalette();

  // --- drawing ---
  const PixelCanvas& Terrain() const { return terrain_; }
  const PixelCanvas& Map() const { return map_; }
  // Counts the frames shown since the session began.
  uint32_t FrameNumber() const { return frameNumber_; }

  // --- options ---
  // Opening gives the form (the tick reads its nest-scent slider while it is
  // open); closing with ok applies it.
  OptionsForm& OpenOptions();
  OptionsForm* Options() { return options_.get(); }
  void CloseOptions(bool ok);

  // --- workbench ---
  const RunChart& Chart() const { return chart_; }
  // Picks what lies under terrain pixel (x, y); the inspector shows it.
  void PickAt(double x, double y);
  PickReport Inspect() const { return ReportPick(world_, pick_); }
  std::string ChartCsv() const;

  // --- world files ---
  std::string SaveText() const { return simulation_.SaveText(window_); }
  // The fault, or empty when the world was opened.
  std::string OpenText(const std::string& text);

  const World& TheWorld() const { return world_; }

 private:
  bool RunOneTick(TickPainter& painter);
  void AdvanceTick();
  void RunFastestSlice(double now);
  void ShowTick();
  void StartNewWorld(std::optional<uint64_t> seed);
  double Now() const;

  MessageQueue messages_;
  Simulation simulation_;
  World& world_;
  WindowState window_;
  PopulationLimitNotice populationLimit_;
  PixelCanvas terrain_;
  PixelCanvas map_;
  ViewPainter painter_;
  NullPainter noDrawing_;
  RunSpeed speed_ = RunSpeed::Normal;
  FastestPacer pacer_;
  TickRate rate_;
  RunChart chart_;
  Pick pick_;
  std::unique_ptr<OptionsForm> options_;
  uint32_t frameNumber_ = 0;
};

}  // namespace keldor::web
