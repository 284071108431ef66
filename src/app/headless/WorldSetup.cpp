#include "app/headless/WorldSetup.h"

#include "app/headless/ScenarioSetup.h"
#include "window/Commands.h"
#include "model/Numeric.h"
#include "window/Viewport.h"
#include "model/World.h"
#include "model/WorldCreation.h"
#include "window/WindowState.h"

namespace keldor::headless {

namespace {

// Body units per millimetre of ant length.
constexpr double BodyUnitsPerMm = 56.7;

// The longest ant the options dialog accepts on a grid: the nest radius.
double MaxAntSizeMm(const World& world, int grid) {
  const double cellSize = MapBoxSize / grid;
  return cellSize / 2 * world.Settings.ScaleX / BodyUnitsPerMm;
}

// Writes the settings as the options dialog would and returns what New reads
// from the dialog's controls afterwards.
std::optional<std::string> ApplySettings(World& world, const WorldOptions& options, NewWorldInputs& inputs) {
  WorldSettings& s = world.Settings;
  const int grid = options.Grid.value_or(s.GridX);
  if (options.AntSizeMm) {
    const double limit = MaxAntSizeMm(world, grid);
    if (!(*options.AntSizeMm <= limit)) {
      return "--ant-size: " + CStr(*options.AntSizeMm) + " mm is longer than the nest radius of " +
             Format(limit, "#.##") + " mm on a grid of " + std::to_string(grid);
    }
    s.AntSizeMm = *options.AntSizeMm;
  }
  if (options.FoodRate) s.FoodRate = static_cast<int16_t>(*options.FoodRate);
  if (options.AntsPerNest) s.AntsPerNest = static_cast<int16_t>(*options.AntsPerNest);
  if (options.LifeSpan) s.LifeSpan = static_cast<int16_t>(*options.LifeSpan);
  if (options.FoodTrace) s.FoodTraceSetting = static_cast<int16_t>(*options.FoodTrace);
  inputs.GridWidthText = std::to_string(grid);
  inputs.GridHeightText = inputs.GridWidthText;
  inputs.AntSizeText = CStr(s.AntSizeMm);
  inputs.LifeSpanSlider = s.LifeSpan;
  return std::nullopt;
}

// The zoom and display buttons, pressed only where the world differs.
void ApplyView(WindowState& window, const ViewOptions& view) {
  if (view.Zoom) {
    while (window.View.ZoomX < *view.Zoom) ZoomIn(window);
    while (window.View.ZoomX > *view.Zoom) ZoomOut(window);
  }
  if (view.Odor && window.View.ShowOdor == 0) ToggleOdor(window);
  if (view.HideAnts && window.View.ShowAnts != 0) ToggleAnts(window);
}

}  // namespace

std::optional<std::string> BuildWorld(World& world, WindowState& window, RandomSource& random,
                                      const HeadlessOptions& options) {
  StartUp(world, window);
  ResizeTerrainView(window, options.View.Width * TwipsPerPixel, options.View.Height * TwipsPerPixel);
  NewWorldInputs inputs;
  if (auto problem = ApplySettings(world, options.World, inputs)) return problem;
  NewWorld(world, window, random, inputs);
  if (auto problem = ApplyScenario(world, window, random, options.Scenario)) return problem;
  ApplyView(window, options.View);
  if (!options.Paused) TogglePlayPause(world, window);
  return std::nullopt;
}

std::optional<std::string> ContinueWorld(World& world, WindowState& window, World&& loaded, WindowState&& loadedWindow,
                                         RandomSource& random, const HeadlessOptions& options) {
  world = std::move(loaded);
  window = std::move(loadedWindow);
  const double width = options.View.Width * TwipsPerPixel;
  const double height = options.View.Height * TwipsPerPixel;
  const ViewScale& terrain = window.View.Terrain;
  if (terrain.Width != width || terrain.Height != height) ResizeTerrainView(window, width, height);
  if (auto problem = ApplyScenario(world, window, random, options.Scenario)) return problem;
  ApplyView(window, options.View);
  if (options.Paused && world.Running) TogglePlayPause(world, window);
  if (options.Play && !world.Running) TogglePlayPause(world, window);
  return std::nullopt;
}

}  // namespace keldor::headless
