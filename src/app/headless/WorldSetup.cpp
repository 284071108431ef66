#include "app/headless/WorldSetup.h"

#include "app/headless/ScenarioSetup.h"
#include "model/Commands.h"
#include "model/Numeric.h"
#include "model/Viewport.h"
#include "model/World.h"
#include "model/WorldCreation.h"

namespace keldor::headless {

namespace {

// Body units per millimetre of ant length.
constexpr double BodyUnitsPerMm = 56.7;

// The longest ant the options dialog accepts on a grid: the nest radius.
double MaxAntSizeMm(const World& world, int grid) {
  const double cellSize = world.View.Map.Width / grid;
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
void ApplyView(World& world, const ViewOptions& view) {
  if (view.Zoom) {
    while (world.ZoomX < *view.Zoom) cmdZoomIn_Click(world);
    while (world.ZoomX > *view.Zoom) cmdZoomOut_Click(world);
  }
  if (view.Odor && world.ShowOdor == 0) btnOdor_Click(world);
  if (view.HideAnts && world.ShowAnts != 0) btnAnts_Click(world);
}

}  // namespace

std::optional<std::string> BuildWorld(World& world, RandomSource& random, const HeadlessOptions& options) {
  Form_Load(world);
  ResizeTerrainView(world, options.View.Width * TwipsPerPixel, options.View.Height * TwipsPerPixel);
  NewWorldInputs inputs;
  if (auto problem = ApplySettings(world, options.World, inputs)) return problem;
  mnuFileNew_Click(world, random, inputs);
  if (auto problem = ApplyScenario(world, random, options.Scenario)) return problem;
  ApplyView(world, options.View);
  if (!options.Paused) btnStop_Click(world);
  return std::nullopt;
}

std::optional<std::string> ContinueWorld(World& world, World&& loaded, RandomSource& random,
                                         const HeadlessOptions& options) {
  world = std::move(loaded);
  const double width = options.View.Width * TwipsPerPixel;
  const double height = options.View.Height * TwipsPerPixel;
  if (world.View.Terrain.Width != width || world.View.Terrain.Height != height) ResizeTerrainView(world, width, height);
  if (auto problem = ApplyScenario(world, random, options.Scenario)) return problem;
  ApplyView(world, options.View);
  if (options.Paused && world.Running) btnStop_Click(world);
  return std::nullopt;
}

}  // namespace keldor::headless
