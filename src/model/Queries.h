// Small questions asked of the world: whether a nest stands on a cell and how
// far an ant's head is from another ant's body. None changes anything.
#pragma once

#include <cstdint>

#include "model/Numeric.h"
#include "model/Records.h"

namespace keldor {

struct World;

// True when any nest stands on cell (x, y).
bool IsNestCell(const World& world, int x, int y);

// a if a < b (a > b for Max), else b: a comparison with NaN returns b.
inline double Min(double a, double b) { return a < b ? a : b; }
inline double Max(double a, double b) { return a > b ? a : b; }

// Distance, in world units, from a's head to the segment from b's rear to b's head.
double PointToSegmentDistance(const Ant& a, const Ant& b);

// The centre of cell column (or row) `cell` in world units.
inline double CellCentre(int cell, double cellSize) { return (cell - 1) * cellSize + cellSize / 2; }

// The cell column (or row) of a world coordinate: Int(v / CellSize) + 1,
// held to the 16-bit range. Every ant step asks it several times: where the
// result fits, the floor is taken directly on the truncated quotient.
inline int16_t CellOfCoordinate(double v, double cellSize) {
  const double q = v / cellSize;
  if (q >= Int16Min && q < Int16Max) {
    const int truncated = static_cast<int>(q);
    return static_cast<int16_t>((truncated > q ? truncated - 1 : truncated) + 1);
  }
  return ClampToInt16(CInt(Int(q) + 1));
}

}  // namespace keldor
