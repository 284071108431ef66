// Living ants bucketed by the cell of their head, for the two scans that
// pair ants with nearby things (food pickup, encounters). A query returns the
// ants of a block of cells in nest-then-ant order, so a pass that walks the
// answer meets the ants in the same order as a scan of every ant would.
#pragma once

#include <cstdint>
#include <vector>

namespace keldor {

struct World;

struct AntRef {
  int16_t Nest = 0;
  int16_t Ant = 0;
  bool operator<(const AntRef& other) const {
    return Nest != other.Nest ? Nest < other.Nest : Ant < other.Ant;
  }
};

class AntIndex {
 public:
  // Buckets every living ant; valid while no ant moves, is born or is removed.
  explicit AntIndex(const World& world);

  // Ants whose head cell lies within reach (world units, plus one cell) of
  // (x, y), in scan order, leaving out the ants of nest skipNest.
  const std::vector<AntRef>& Near(double worldX, double worldY, double reach, int skipNest = -1);

 private:
  int Clamp(int v, int high) const;
  double cellSize_;
  int columns_;
  int rows_;
  std::vector<std::vector<AntRef>> buckets_;
  std::vector<AntRef> found_;
};

}  // namespace keldor
