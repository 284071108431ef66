// One ant's step in the ant pass: turn, forward step or step back, the trail
// it lays, the queen's mark on the nest cell, delivery and feeding at the nest.
#pragma once

#include <cstdint>

#include "model/Signature.h"

namespace keldor {

struct World;
struct Cell;
struct Nest;
class RandomSource;

// What the ants read from a neighbouring cell: its scent and signature.
struct ScentLookup {
  double Scent = 0;
  keldor::Signature Signature;
};

// nestTrace: what the ants read from the "Nest Scent" slider, NestScentMax
// unless the options dialog is open; a cell at -nestTrace is a nest cell.

// The strongest nest scent in the cross around (x, y), or the nest cell itself.
ScentLookup NestwardCell(const World& world, int x, int y, int16_t nestTrace);
// The strongest food scent in the cross around (x, y).
ScentLookup FoodwardCell(const World& world, int x, int y);

// Marks the target with the nest's signature: copied onto an unmarked cell,
// mixed character by character (after a reseed) into a foreign one.
void BlendSignature(RandomSource& random, int antIndex, const Nest& source, Cell& target, int length);

// The trail rules for ant j of nest i moving from cell (cx, cy) to (nx, ny).
void LayScentTrail(World& world, RandomSource& random, int nestIndex, int antIndex, int cx, int cy, int nx, int ny,
                   int16_t nestTrace);

// Steps ant j of nest i; does nothing for a dead ant or a paused world.
void StepAnt(World& world, RandomSource& random, int nestIndex, int antIndex, int16_t nestTrace);

}  // namespace keldor
