// Building a world: New's world part throws the old world away and makes a
// fresh grid with one nest in its centre and food scattered over it;
// CreateNest adds one nest with its colony on a cell; MakeSignature draws a
// colony signature.
#pragma once

#include <cstdint>
#include <string>
#include <utility>

#include "model/Records.h"
#include "model/WorldSettings.h"

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

// The zoom New sets, which the food it lays is measured with.
inline constexpr double NewWorldZoom = 10;

// The world's part of New: a fresh grid of the size read from the inputs, the
// first nest on FirstNestCell, food scattered over the free cells; paused.
void CreateWorld(World& world, RandomSource& random, const NewWorldInputs& inputs);

// The cell of New's first nest: (Int(GridX / 2), Int(GridY / 2)), at least 1.
std::pair<int16_t, int16_t> FirstNestCell(const WorldSettings& settings);

// Appends a nest with AntsPerNest ants on cell (cellX, cellY), which must be
// a world cell. Returns false, changing nothing, when the nest list is full
// or the population would pass 32767.
bool CreateNest(World& world, RandomSource& random, int16_t cellX, int16_t cellY);

// A point at distance length / ScaleX from the centre in a random direction,
// from three draws: the sign of its x offset, the size of it, the sign of its
// y offset. Where a new ant's free end lies round the nest centre.
WorldPoint PointOnCircle(RandomSource& random, WorldPoint centre, double length, double scaleX);

// The spread budget of a new food pile, 1 to 8: CInt(Int(Rnd * 8) + 1).
int16_t DrawSpreadBudget(RandomSource& random);

// Removes nest n from the list: the last nest moves into its slot.
void RemoveNestRecord(World& world, int n);

// A string of n characters "0"/"1" drawn after reseeding from the clock.
std::string MakeSignature(RandomSource& random, int n);

}  // namespace keldor
