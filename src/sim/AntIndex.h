// Living ants bucketed by the cell of their head, for the two scans that
// pair ants with nearby things (food pickup, encounters). The buckets are one
// flat array sorted by cell (a counting sort); within a cell the ants keep
// nest-then-ant order.
#pragma once

#include <algorithm>
#include <cmath>
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

// A reach widened just enough to cover the rounding of the distance formulas
// and of the cell arithmetic (relative 1e-9, plus a millionth of a cell).
inline double PaddedReach(double reach, double cellSize) { return reach * (1 + 1e-9) + cellSize * 1e-6; }

class AntIndex {
 public:
  // Buckets every living ant; valid while no ant moves, is born or is removed.
  explicit AntIndex(const World& world);

  // Calls visit(AntRef) for every ant whose head may lie within reach (world
  // units) of (x, y): the ants of the block of cells around that disc, cell
  // by cell, each cell in nest-then-ant order.
  template <class Visit>
  void ForEachNear(double worldX, double worldY, double reach, Visit visit) const {
    const double padded = PaddedReach(reach, cellSize_);
    const int x0 = Column(worldX - padded);
    const int x1 = Column(worldX + padded);
    const int y0 = Row(worldY - padded);
    const int y1 = Row(worldY + padded);
    for (int x = x0; x <= x1; ++x) {
      const size_t first = CellSlot(x, y0);
      const auto end = ants_.begin() + cellStart_[CellSlot(x, y1) + 1];
      for (auto it = ants_.begin() + cellStart_[first]; it != end; ++it) visit(*it);
    }
  }

  // The same ants, in nest-then-ant order, as a scan of every ant meets them.
  const std::vector<AntRef>& Near(double worldX, double worldY, double reach);

 private:
  int Column(double worldX) const {
    return std::clamp(static_cast<int>(std::floor(worldX / cellSize_)), 0, columns_ - 1);
  }
  int Row(double worldY) const { return std::clamp(static_cast<int>(std::floor(worldY / cellSize_)), 0, rows_ - 1); }
  size_t CellSlot(int x, int y) const {
    return static_cast<size_t>(x) * static_cast<size_t>(rows_) + static_cast<size_t>(y);
  }

  double cellSize_;
  int columns_;
  int rows_;
  std::vector<int> cellStart_;  // ants of cell slot c: ants_[cellStart_[c] .. cellStart_[c + 1])
  std::vector<AntRef> ants_;
  std::vector<AntRef> found_;
};

}  // namespace keldor
