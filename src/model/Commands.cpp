#include "model/Commands.h"

#include "model/Numeric.h"
#include "model/Viewport.h"
#include "model/World.h"

namespace keldor {

namespace {

// Slider maxima that start-up gives the options dialog.
constexpr int StartUpTraceSliderMax = 1000;

}  // namespace

void StartUp(World& world) {
  WorldSettings& s = world.Settings;
  s.ScaleX = 10;
  s.ScaleY = 10;
  world.ZoomX = 10;
  world.ZoomY = 10;
  if (s.GridX == 0) s.GridX = 30;
  s.CellSize = world.View.Map.Width / s.GridX;
  s.SpreadFoodAmount = Pi * ((s.CellSize / 4) * (s.CellSize / 4)) * s.ScaleX;
  LoadDefaults(world);
  SetScrollRanges(world);
  CentreScrollBars(world);
  world.ViewCentreX = static_cast<float>((world.View.Map.Left + world.View.Map.Width) * 0.5);
  world.ViewCentreY = static_cast<float>((world.View.Map.Top + world.View.Map.Height) * 0.5);
}

void LoadDefaults(World& world) {
  WorldSettings& s = world.Settings;
  s.AntsPerNest = 30;
  s.AntSizeMm = 3.0;
  s.AntRed = 150;
  s.AntGreen = 100;
  s.AntBlue = 70;
  s.LifeSpan = 100;
  s.AntColour = Rgb(s.AntRed, s.AntGreen, s.AntBlue);
  s.FoodRate = 2;
  s.FoodScentMax = ClampToInt16(CInt(StartUpTraceSliderMax / 2.0));
  s.NestScentMax = ClampToInt16(CInt(s.FoodScentMax / 2.0));
}

void CollapsePalette(World& world) {
  world.Controls.PickActionCaption = "v";
  world.Controls.ActionsHeight = CollapsedPaletteHeight;
}

void TogglePlayPause(World& world) {
  CollapsePalette(world);
  world.Running = !world.Running;
  if (world.Running) {
    world.Controls.StopToolTip = "Pause";
    world.Controls.StopImage = PlayPauseImage::Pause;
  } else {
    world.Controls.StopToolTip = "Play";
    world.Controls.StopImage = PlayPauseImage::Play;
  }
}

void ToggleAnts(World& world) {
  CollapsePalette(world);
  if (!world.TimerEnabled) return;
  if (world.ShowAnts != 0) {
    world.ShowAnts = 0;
    world.Controls.AntsToolTip = "Show ants";
  } else {
    world.ShowAnts = 1;
    world.Controls.AntsToolTip = "Hide ants";
  }
}

void ToggleOdor(World& world) {
  CollapsePalette(world);
  if (!world.TimerEnabled) return;
  if (world.ShowOdor == 0) {
    world.ShowOdor = 1;
    world.Controls.OdorToolTip = "Hide Odor Traces";
  } else {
    world.ShowOdor = 0;
    world.Controls.OdorToolTip = "Show Odor Traces";
  }
}

}  // namespace keldor
