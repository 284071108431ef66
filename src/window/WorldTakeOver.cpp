#include "window/WorldTakeOver.h"

#include <utility>

#include "model/Numeric.h"
#include "model/World.h"
#include "window/Commands.h"
#include "window/WindowState.h"

namespace keldor {

void TakeOverWindow(WindowState& window, const World& loaded, WindowRecord&& loadedWindow) {
  ControlState& controls = window.Controls;
  std::swap(controls.ActionTops[static_cast<size_t>(window.View.CurrentTool)],
            controls.ActionTops[static_cast<size_t>(loadedWindow.View.CurrentTool)]);
  controls.CrossHairPointer = loadedWindow.View.CurrentTool != NoTool;
  controls.WorldControlsEnabled = loadedWindow.TimerEnabled;
  controls.StopToolTip = loaded.Running ? "Pause" : "Play";
  controls.StopImage = loaded.Running ? PlayPauseImage::Pause : PlayPauseImage::Play;
  controls.OdorToolTip = loadedWindow.View.ShowOdor != 0 ? "Hide Odor Traces" : "Show Odor Traces";
  controls.AntsToolTip = loadedWindow.View.ShowAnts != 0 ? "Hide ants" : "Show ants";
  controls.PopulationCaption = CStr(loaded.Settings.Population);
  loadedWindow.View.InfoVisible = window.View.InfoVisible;
  static_cast<WindowRecord&>(window) = std::move(loadedWindow);
  CollapsePalette(window);
}

}  // namespace keldor
