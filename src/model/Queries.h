// Small questions asked of the world: whether a nest stands on a cell, how
// far an ant's head is from another ant's body and how long its body is.
// None changes anything.
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

// The square of an ant's length from rear to head, in world units.
inline double SquaredSpan(const Ant& ant) {
  const double dx = ant.HeadX - ant.RearX;
  const double dy = ant.HeadY - ant.RearY;
  return dx * dx + dy * dy;
}

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

// CellOfCoordinate for many coordinates of one cell size, without a division
// each. The product by the reciprocal differs from the quotient by a few
// units in the last place, far less than 1e-9 of a cell in the 16-bit range:
// where the product lies farther than that from a cell border, both floor to
// the same cell; nearer, the division decides.
class CellFinder {
 public:
  explicit CellFinder(double cellSize) : cellSize_(cellSize), inverse_(1 / cellSize) {}

  int16_t operator()(double v) const {
    const double t = v * inverse_;
    if (t > -Int16Max && t < Int16Max) {
      const int truncated = static_cast<int>(t);
      const int floor = truncated > t ? truncated - 1 : truncated;
      const double fraction = t - floor;
      if (fraction > BorderMargin && fraction < 1 - BorderMargin) return static_cast<int16_t>(floor + 1);
    }
    return CellOfCoordinate(v, cellSize_);
  }

 private:
  static constexpr double BorderMargin = 1e-9;
  double cellSize_;
  double inverse_;
};

}  // namespace keldor
