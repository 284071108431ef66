#include "model/Queries.h"

#include <cmath>

#include "model/Numeric.h"
#include "model/World.h"

namespace keldor {

bool IsNestCell(const World& world, int x, int y) {
  for (int i = 0; i < world.NestCount; ++i) {
    if (world.Nests[static_cast<size_t>(i)].CellX == x && world.Nests[static_cast<size_t>(i)].CellY == y) return true;
  }
  return false;
}

double PointToSegmentDistance(const Ant& a, const Ant& b) {
  const double dx = b.HeadX - b.RearX;
  const double dy = b.HeadY - b.RearY;
  const double wx = a.HeadX - b.RearX;
  const double wy = a.HeadY - b.RearY;
  const double c1 = dx * wx + dy * wy;
  const double c2 = dx * dx + dy * dy;
  if (c1 <= 0) return std::sqrt((a.HeadY - b.RearY) * (a.HeadY - b.RearY) + (a.HeadX - b.RearX) * (a.HeadX - b.RearX));
  if (c2 <= c1) return std::sqrt((a.HeadY - b.HeadY) * (a.HeadY - b.HeadY) + (a.HeadX - b.HeadX) * (a.HeadX - b.HeadX));
  const double t = c1 / c2;
  const double px = b.RearX + t * dx;
  const double py = b.RearY + t * dy;
  return std::sqrt((a.HeadY - py) * (a.HeadY - py) + (a.HeadX - px) * (a.HeadX - px));
}

}  // namespace keldor
