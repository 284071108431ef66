#include "window/Commands.h"

#include "engine/Simulation.h"
#include "model/Numeric.h"
#include "model/World.h"
#include "model/WorldCreation.h"
#include "window/MessageBox.h"
#include "window/Viewport.h"
#include "window/WindowState.h"

namespace keldor {

void StartUp(World& world, WindowState& window) {
  StartUpSettings(world.Settings);
  window.View.ZoomX = 10;
  window.View.ZoomY = 10;
  SetScrollRanges(window);
  CentreScrollBars(window);
  const ViewScale& map = window.View.Map;
  window.ViewCentreX = static_cast<float>((map.Left + map.Width) * 0.5);
  window.ViewCentreY = static_cast<float>((map.Top + map.Height) * 0.5);
}

void NewWorld(Simulation& simulation, WindowState& window, const NewWorldInputs& inputs) {
  World& world = simulation.TheWorld();
  ViewState& view = window.View;
  view.TerrainFontSize = 8;
  view.ZoomX = NewWorldZoom;
  view.ZoomY = NewWorldZoom;
  view.ShowOdor = 0;
  view.ShowAnts = 1;
  window.Controls.WorldControlsEnabled = true;
  world.Running = true;
  TogglePlayPause(world, window);
  window.Controls.OdorToolTip = "Odor Traces";
  SetScrollRanges(window);
  CentreScrollBars(window);
  simulation.New(inputs);
  const double cellSize = world.Settings.CellSize;
  window.HScroll1.SmallChange = ClampToInt16(CInt(cellSize * view.ZoomX));
  window.VScroll1.SmallChange = ClampToInt16(CInt(cellSize * view.ZoomY));
  window.HScroll1.LargeChange = ClampToInt16(CInt(view.Terrain.Width / 4));
  window.VScroll1.LargeChange = ClampToInt16(CInt(view.Terrain.Height / 4));
  const auto [x, y] = FirstNestCell(world.Settings);
  window.CursorCellX = x;
  window.CursorCellY = y;
  window.TimerEnabled = true;
}

void CollapsePalette(WindowState& window) {
  window.Controls.PickActionCaption = "v";
  window.Controls.ActionsHeight = CollapsedPaletteHeight;
}

void TogglePlayPause(World& world, WindowState& window) {
  CollapsePalette(window);
  world.Running = !world.Running;
  if (world.Running) {
    window.Controls.StopToolTip = "Pause";
    window.Controls.StopImage = PlayPauseImage::Pause;
  } else {
    window.Controls.StopToolTip = "Play";
    window.Controls.StopImage = PlayPauseImage::Play;
  }
}

void ToggleAnts(WindowState& window) {
  CollapsePalette(window);
  if (!window.TimerEnabled) return;
  if (window.View.ShowAnts != 0) {
    window.View.ShowAnts = 0;
    window.Controls.AntsToolTip = "Show ants";
  } else {
    window.View.ShowAnts = 1;
    window.Controls.AntsToolTip = "Hide ants";
  }
}

void ToggleOdor(WindowState& window) {
  CollapsePalette(window);
  if (!window.TimerEnabled) return;
  if (window.View.ShowOdor == 0) {
    window.View.ShowOdor = 1;
    window.Controls.OdorToolTip = "Hide Odor Traces";
  } else {
    window.View.ShowOdor = 0;
    window.Controls.OdorToolTip = "Show Odor Traces";
  }
}

void ShowPopulation(const World& world, WindowState& window) {
  window.Controls.PopulationCaption = CStr(world.Settings.Population);
}

void PopulationLimitNotice::PopulationLimitReached() {
  messages_.Show("Maximum ant population has been reached.");
  TogglePlayPause(world_, window_);
}

}  // namespace keldor
