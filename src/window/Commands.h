// The main window's commands, without a toolkit: start-up, New, Play/Pause,
// the ants and odor toggles and collapsing the tool palette, and the answer
// to the population limit. The desktop window's handlers call these and then
// show the new WindowState.
#pragma once

#include "sim/TickInput.h"

namespace keldor {

struct World;
struct WindowState;
struct NewWorldInputs;
class MessageBox;
class Simulation;

// Start-up (the main window's load): the world's settings, zoom 10, centred
// scroll bars and the view centre on the middle of the map.
void StartUp(World& world, WindowState& window);

// New (File > New and Start): the view reset (font, zoom 10, odor hidden,
// ants shown, controls enabled, a paused Play/Pause button, the odor tool
// tip, centred scroll bars, scroll steps from the new cell size), the new
// world with the cursor on its first nest, and the tick timer enabled.
void NewWorld(Simulation& simulation, WindowState& window, const NewWorldInputs& inputs);

// Caption "v" and height 555: the closed tool palette.
void CollapsePalette(WindowState& window);

// Play/Pause: collapse the palette, toggle Running, and show "Pause" with the
// pause picture while running, "Play" with the play picture while paused.
void TogglePlayPause(World& world, WindowState& window);

// Show or hide the ants; ignored while no world exists.
void ToggleAnts(WindowState& window);

// Show or hide the odor traces; ignored while no world exists.
void ToggleOdor(WindowState& window);

// The population label after a tick: the living ants as a whole number.
void ShowPopulation(const World& world, WindowState& window);

// The window's answer to the population limit: the message, then Play/Pause
// pressed as a user would.
class PopulationLimitNotice : public TickEvents {
 public:
  PopulationLimitNotice(World& world, WindowState& window, MessageBox& messages)
      : world_(world), window_(window), messages_(messages) {}
  void PopulationLimitReached() override;

 private:
  World& world_;
  WindowState& window_;
  MessageBox& messages_;
};

}  // namespace keldor
