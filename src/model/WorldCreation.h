// Building a world: New throws the old world away and makes a fresh grid with
// one nest in its centre and food scattered over it; CreateNest adds one nest
// with its colony on the cursor cell; MakeSignature draws a colony signature.
#pragma once

#include <string>

namespace keldor {

struct World;
class RandomSource;

// Grid sizes New accepts: the largest square grid whose cell count still fits
// a 16-bit count, so food piles and walls (one per cell at most) never overflow.
inline constexpr int MinGridSize = 1;
inline constexpr int MaxGridSize = 181;
inline constexpr int ZeroGridReplacement = 20;

// What New reads from the options dialog's controls, as plain values.
struct NewWorldInputs {
  std::string GridWidthText = "30";
  std::string GridHeightText = "30";
  std::string AntSizeText = "3";
  int LifeSpanSlider = 100;
};

// The grid size New takes from a numeric grid text: 0 means 20, anything else
// is held within MinGridSize..MaxGridSize.
int GridSizeFromText(const std::string& text);

// New (File > New and Start). Leaves the world paused with the tick timer enabled.
// The control-side effects (enabled buttons, tool tips, scroll bars, font)
// are written into world.Controls and world.View for the window to show.
void NewWorld(World& world, RandomSource& random, const NewWorldInputs& inputs);

// Appends a nest with AntsPerNest ants on (CursorCellX, CursorCellY), which
// must be a world cell. Returns false, changing nothing, when the nest list is
// full or the population would pass 32767.
bool CreateNest(World& world, RandomSource& random);

// A string of n characters "0"/"1" drawn after reseeding from the clock.
std::string MakeSignature(RandomSource& random, int n);

}  // namespace keldor
