#include "window/WorldTakeOver.h"

#include <utility>

#include "model/Numeric.h"
#include "model/World.h"
#include "window/Commands.h"
#include "window/WindowState.h"

namespace keldor {

void TakeOverWorld(World& world, WindowState& window, World&& loaded, WindowRecord&& loadedWindow) {
  ControlState controls = window.Controls;
  std::swap(controls.ActionTops[static_cast<size_t>(window.View.CurrentTool)],
            controls.ActionTops[static_cast<size_t>(loadedWindow.View.CurrentTool)]);
  controls.CrossHairPointer = loadedWindow.View.CurrentTool != NoTool;
  controls.WorldControlsEnabled = loadedWindow.TimerEnabled;
  controls.StopToolTip = loaded.Running ? "Pause" : "Play";
  controls.StopImage = loaded.Running ? PlayPauseImage::Pause : PlayPauseImage::Play;
  controls.OdorToolTip = loadedWindow.View.ShowOdor != 0 ? "Hide Odor Traces" : "Show Odor Traces";
  controls.AntsToolTip = loadedWindow.View.ShowAnts != 0 ? "Hide ants" : "Show ants";
  controls.PopulationCaption = CStr(loaded.Settings.Population);
  WindowState taken;
  static_cast<WindowRecord&>(taken) = std::move(loadedWindow);
  taken.Controls = std::move(controls);
  taken.View.InfoVisible = window.View.InfoVisible;
  taken.PendingGridSize = window.PendingGridSize;
  world = std::move(loaded);
  window = std::move(taken);
  CollapsePalette(window);
}

}  // namespace keldor
