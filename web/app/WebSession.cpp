#include "WebSession.h"

#include <emscripten.h>

#include <cmath>
#include <sstream>

#include "render/PickMarker.h"
#include "window/StatusText.h"
#include "window/TerrainTools.h"
#include "window/Viewport.h"
#include "window/WorldTakeOver.h"

namespace keldor::web {

namespace {

// How near the pointer an ant's body must be to pick it, in pixels.
constexpr double PickReachPixels = 6;

}  // namespace

WebSession::WebSession(int mapPixels)
    : world_(simulation_.TheWorld()),
      populationLimit_(world_, window_, messages_),
      terrain_(static_cast<int>(TerrainDesignWidth / TwipsPerPixel), static_cast<int>(TerrainDesignHeight / TwipsPerPixel)),
      map_(mapPixels, mapPixels),
      painter_(terrain_, map_, window_.View, [this] { ++frameNumber_; }) {
  simulation_.SetTickListener(&populationLimit_);
  StartUp(world_, window_);
  ResizeTerrainView(window_, terrain_.Width() * TwipsPerPixel, terrain_.Height() * TwipsPerPixel);
}

double WebSession::Now() const { return emscripten_get_now() / 1000; }

void WebSession::StartNewWorld(std::optional<uint64_t> seed) {
  if (simulation_.TickInProgress()) return;
  CollapsePalette(window_);
  simulation_.ClockForNew(seed, speed_ == RunSpeed::Normal);
  NewFromOptions(simulation_, window_);
  chart_.Clear();
  pick_ = {};
}

void WebSession::New() { StartNewWorld(std::nullopt); }
void WebSession::NewWithSeed(uint64_t seed) { StartNewWorld(seed); }

void WebSession::PlayPause() {
  if (!window_.Controls.WorldControlsEnabled) return;
  TogglePlayPause(world_, window_);
}

void WebSession::Step() {
  if (simulation_.TickInProgress() || !world_.HasWorld() || world_.Running) return;
  world_.Running = true;
  AdvanceTick();
  world_.Running = false;  // the population limit may have paused it already
}

void WebSession::SetSpeed(RunSpeed speed) {
  speed_ = speed;
  simulation_.ChooseClock(speed_ == RunSpeed::Normal);
}

int WebSession::TimerIntervalMs() const {
  if (speed_ == RunSpeed::Fastest) return world_.Running ? 0 : static_cast<int>(1000 * FastestPacer::FrameSeconds);
  return keldor::TimerIntervalMs(speed_);
}

void WebSession::Timer(double now) {
  if (!window_.TimerEnabled) return;
  if (speed_ == RunSpeed::Fastest && world_.Running) RunFastestSlice(now);
  else AdvanceTick();
}

bool WebSession::RunOneTick(TickPainter& painter) {
  const bool ran = world_.Running;
  if (!simulation_.Tick(painter, TickInputOf(window_, world_))) return false;
  ShowPopulation(world_, window_);
  if (ran) chart_.Record(simulation_.Ticks(), world_);
  return true;
}

void WebSession::AdvanceTick() {
  if (RunOneTick(painter_)) ShowTick();
}

void WebSession::ShowTick() {
  if (const Ant* ant = LivingAnt(world_, pick_)) DrawPickMarker(world_, window_.View, *ant, terrain_);
}

void WebSession::RunFastestSlice(double now) {
  pacer_.StartSlice(now);
  // Undrawn ticks change the world as drawn ones do: the painter only reads it.
  do {
    if (pacer_.FrameDue(now)) {
      AdvanceTick();
      pacer_.FrameShown(now);
      return;
    }
    RunOneTick(noDrawing_);
    now = Now();
  } while (!pacer_.SliceOver(now) && world_.Running);
}

std::string WebSession::Status(double now) {
  rate_.Update(now, simulation_.Ticks());
  return StatusText({world_.HasWorld(), world_.Running, simulation_.Ticks(), simulation_.Seed(), speed_,
                     rate_.PerSecond()});
}

void WebSession::ToggleOdor() { keldor::ToggleOdor(window_); }
void WebSession::ToggleAnts() { keldor::ToggleAnts(window_); }
void WebSession::ZoomIn() {
  if (window_.Controls.WorldControlsEnabled) keldor::ZoomIn(window_);
}
void WebSession::ZoomOut() {
  if (window_.Controls.WorldControlsEnabled) keldor::ZoomOut(window_);
}

void WebSession::ResizeTerrain(int width, int height) {
  // A tick cannot be halfway through its drawing here: the message of the
  // population limit does not wait inside the tick in the browser.
  if (width == terrain_.Width() && height == terrain_.Height()) return;
  terrain_.Resize(width, height);
  ResizeTerrainView(window_, terrain_.Width() * TwipsPerPixel, terrain_.Height() * TwipsPerPixel);
}

void WebSession::ScrollBy(double dx, double dy) {
  SetScroll(static_cast<int>(std::lround(window_.HScroll1.Value + dx * TwipsPerPixel)),
            static_cast<int>(std::lround(window_.VScroll1.Value + dy * TwipsPerPixel)));
}

void WebSession::SetScroll(int horizontal, int vertical) {
  SetHorizontalScroll(window_, horizontal);
  SetVerticalScroll(window_, vertical);
}

void WebSession::NavigateMap(double x, double y) {
  const ViewScale& map = window_.View.Map;
  NavigateFromMap(window_, map.Left + x * map.Width / map_.Width(), map.Top + y * map.Height / map_.Height());
}

void WebSession::PointerPressed(double x, double y, int buttons) {
  if (!world_.HasWorld()) return;
  if (window_.View.CurrentTool == NoTool && buttons == 1) PickAt(x, y);
  // The press acts on the cell under the pointer, even without a move before it.
  PointerMoved(x, y, 0);
  TerrainPointerPressed(world_, window_, simulation_.Random(), buttons);
}

void WebSession::PointerMoved(double x, double y, int buttons) {
  if (!world_.HasWorld()) return;
  const ViewScale& t = window_.View.Terrain;
  TerrainPointerMoved(world_, window_, buttons, static_cast<float>(t.Left + x * TwipsPerPixel),
                      static_cast<float>(t.Top + y * TwipsPerPixel));
}

void WebSession::PointerReleased(int buttons) {
  if (world_.HasWorld()) TerrainPointerReleased(window_, buttons);
}

void WebSession::SelectTool(int tool) {
  if (window_.Controls.WorldControlsEnabled && tool >= 0 && tool <= 4) keldor::SelectTool(world_, window_, tool);
}

void WebSession::TogglePalette() {
  if (window_.Controls.WorldControlsEnabled) keldor::TogglePalette(window_);
}

OptionsForm& WebSession::OpenOptions() {
  if (!options_) options_ = std::make_unique<OptionsForm>(world_, window_);
  return *options_;
}

void WebSession::CloseOptions(bool ok) {
  if (!options_) return;
  if (ok) options_->ApplyOptions();
  options_.reset();
}

void WebSession::PickAt(double x, double y) {
  const ViewState& view = window_.View;
  pick_ = keldor::PickAt(world_, (view.Terrain.Left + x * TwipsPerPixel) / view.ZoomX,
                         (view.Terrain.Top + y * TwipsPerPixel) / view.ZoomY,
                         PickReachPixels * TwipsPerPixel / view.ZoomX);
}

std::string WebSession::ChartCsv() const {
  std::ostringstream out;
  chart_.WriteCsv(out);
  return out.str();
}

std::string WebSession::OpenText(const std::string& text) {
  if (simulation_.TickInProgress()) return "A tick is running";
  WindowRecord loaded;
  if (auto fault = simulation_.LoadText(text, loaded)) return *fault;
  options_.reset();
  TakeOverWindow(window_, world_, std::move(loaded));
  simulation_.ChooseClock(speed_ == RunSpeed::Normal);
  chart_.Clear();
  pick_ = {};
  // The loaded viewport takes this page's terrain size.
  ResizeTerrainView(window_, terrain_.Width() * TwipsPerPixel, terrain_.Height() * TwipsPerPixel);
  return "";
}

}  // namespace keldor::web
