// Living ants bucketed by the cell of their head, for the two scans that
// pair ants with nearby things (food pickup, encounters). The buckets are one
// flat array sorted by cell (a counting sort); within a cell the ants keep
// nest-then-ant order, so each nest's ants form one run there.
#pragma once

#include <algorithm>
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

// An indexed ant with its head position, so that a search can rule out far
// ants without reading their records.
struct IndexedAnt {
  AntRef Ref;
  int32_t RunEnd = 0;  // where the run of its nest in its cell ends
  double HeadX = 0;
  double HeadY = 0;
};

// The extents of the living ants indexed, gathered while building: the
// longest queen and worker, and the largest squared head-to-rear span of all
// of them and of the workers.
struct LivingAntExtents {
  double QueenLength = 0;
  double WorkerLength = 0;
  double SquaredSpan = 0;
  double WorkerSquaredSpan = 0;
};

// A reach widened just enough to cover the rounding of the distance formulas
// and of the cell arithmetic (relative 1e-9, plus a millionth of a cell).
inline double PaddedReach(double reach, double cellSize) { return reach * (1 + 1e-9) + cellSize * 1e-6; }

class AntIndex {
 public:
  AntIndex() = default;
  explicit AntIndex(const World& world) { Rebuild(world); }

  // Buckets every living ant, reusing the arrays of the last build; valid
  // while no ant moves, is born or is removed (an ant that dies meanwhile
  // stays listed).
  void Rebuild(const World& world);

  // Calls visit(IndexedAnt) for every ant whose head may lie within reach
  // (world units) of (x, y): the ants of the block of cells around that disc,
  // cell by cell, each cell in nest-then-ant order. When visit returns false
  // the rest of that ant's nest in that cell is passed over.
  template <class Visit>
  void ForEachNear(double worldX, double worldY, double reach, Visit visit) const {
    const double padded = PaddedReach(reach, cellSize_);
    const int x0 = Column(worldX - padded);
    const int x1 = Column(worldX + padded);
    const int y0 = Row(worldY - padded);
    const int y1 = Row(worldY + padded);
    for (int x = x0; x <= x1; ++x) {
      const int end = cellStart_[CellSlot(x, y1) + 1];
      for (int k = cellStart_[CellSlot(x, y0)]; k < end;) {
        const IndexedAnt& ant = ants_[static_cast<size_t>(k)];
        k = visit(ant) ? k + 1 : ant.RunEnd;
      }
    }
  }

  // Calls visit(slot, IndexedAnt) for every indexed ant, slot by slot: one
  // pass over the index, cheaper than one over the ant records.
  template <class Visit>
  void ForEachIndexed(Visit visit) const {
    for (size_t k = 0; k < ants_.size(); ++k) visit(static_cast<size_t>(slotOfEntry_[k]), ants_[k]);
  }

  // The same ants, in nest-then-ant order, as a scan of every ant meets them.
  const std::vector<AntRef>& Near(double worldX, double worldY, double reach);

  const LivingAntExtents& Extents() const { return extents_; }

  // The bucket grid: columns and rows of cell slots (the grid and its border
  // ring), and the slot a world point falls in.
  int Columns() const { return columns_; }
  int Rows() const { return rows_; }
  double CellSize() const { return cellSize_; }
  size_t CellSlotAt(double worldX, double worldY) const { return CellSlot(Column(worldX), Row(worldY)); }

 private:
  // The clamped column (or row) of a world coordinate: floor(v / cellSize)
  // held to 0..count-1. Truncation equals the floor on everything the lower
  // clamp lets through; multiplying by the reciprocal keeps the order of
  // coordinates, all a block search needs.
  int Bucket(double world, int count) const {
    const double v = world * inverseCellSize_;
    if (!(v > 0)) return 0;
    if (v >= count - 1) return count - 1;
    return static_cast<int>(v);
  }
  int Column(double worldX) const { return Bucket(worldX, columns_); }
  int Row(double worldY) const { return Bucket(worldY, rows_); }
  size_t CellSlot(int x, int y) const {
    return static_cast<size_t>(x) * static_cast<size_t>(rows_) + static_cast<size_t>(y);
  }

  double cellSize_ = 1;
  double inverseCellSize_ = 1;
  int columns_ = 0;
  int rows_ = 0;
  std::vector<int> cellStart_;  // ants of cell slot c: ants_[cellStart_[c] .. cellStart_[c + 1])
  std::vector<IndexedAnt> ants_;
  struct ScannedAnt {
    IndexedAnt Entry;
    int Slot = 0;
  };
  std::vector<ScannedAnt> scanned_;  // while building: the living ants in scan order
  std::vector<int> slotOfEntry_;     // the cell slot of each entry of ants_
  LivingAntExtents extents_;
  std::vector<AntRef> found_;
};

}  // namespace keldor
