// One ant's step in the ant pass: turn, forward step or step back, the trail
// it lays, the queen's mark on the nest cell, delivery and feeding at the nest.
#pragma once

#include <cstdint>

#include "model/Signature.h"
#include "model/Trigonometry.h"

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

// The cosine and sine of a turn angle.
struct TurnRotation {
  double Cos = 1;
  double Sin = 0;
  static TurnRotation Of(double angle) {
    const SineCosine t = SinCos(angle);
    return {t.Cos, t.Sin};
  }
};

// Steps ant j of nest i; does nothing for a dead ant or a paused world.
void StepAnt(World& world, RandomSource& random, int nestIndex, int antIndex, int16_t nestTrace);
// The same step for a pass that works out the workers' turns beforehand:
// turn is TurnRotation::Of(the ant's Angle) (a worker turns by the angle its
// last step left it; the queen draws hers during the step and ignores turn).
void StepAnt(World& world, RandomSource& random, int nestIndex, int antIndex, int16_t nestTrace, TurnRotation turn);

}  // namespace keldor
