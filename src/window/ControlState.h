// What the main window's controls show, kept without a toolkit so that the
// commands can be run and tested headless. The desktop window copies these
// values onto its widgets after every command and tick.
#pragma once

#include <array>
#include <string>

namespace keldor {

inline constexpr int CollapsedPaletteHeight = 555;  // twips: only the top tool shows

enum class PlayPauseImage { None, Play, Pause };

struct ControlState {
  // btnStop, zoom buttons, btnOdor, btnAnts, btnAction(0), btnPickAction:
  // disabled until the first New.
  bool WorldControlsEnabled = false;
  std::string StopToolTip = "Pause";
  PlayPauseImage StopImage = PlayPauseImage::None;
  std::string OdorToolTip = "Show Odor Traces";
  std::string AntsToolTip = "Toggle Ants Display";
  // The tool palette: caption "v" and height 555 while collapsed, "^" while expanded.
  std::string PickActionCaption = "v";
  int ActionsHeight = CollapsedPaletteHeight;
  // Tops of the five tool buttons (twips); the selected tool sits in the top slot.
  std::array<int, 5> ActionTops = {135, 585, 990, 1395, 1800};
  // Pointer over the terrain: arrow with no tool, cross-hair with any tool.
  bool CrossHairPointer = false;
  // The button bar of the window layout (the info panel's flag is in ViewState).
  bool ButtonBarVisible = true;
  // lblPop's caption; the design text until the first tick writes it.
  std::string PopulationCaption = "0000";
};

}  // namespace keldor
