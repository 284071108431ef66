// The main window's commands, without a toolkit: start-up and its defaults,
// Play/Pause, the ants and odor toggles and collapsing the tool palette. The
// desktop window's handlers call these and then show the new ControlState.
#pragma once

namespace keldor {

struct World;

// Start-up (the main window's load): scales and zoom 10, GridX 30, CellSize
// from the mini-map, the spread amount, the defaults, centred scroll bars.
void StartUp(World& world);

// The default settings, as a freshly loaded options dialog leaves them.
void LoadDefaults(World& world);

// Caption "v" and height 555: the closed tool palette.
void CollapsePalette(World& world);

// Play/Pause: collapse the palette, toggle Running, and show "Pause" with the
// pause picture while running, "Play" with the play picture while paused.
void TogglePlayPause(World& world);

// Show or hide the ants; ignored while no world exists.
void ToggleAnts(World& world);

// Show or hide the odor traces; ignored while no world exists.
void ToggleOdor(World& world);

}  // namespace keldor
