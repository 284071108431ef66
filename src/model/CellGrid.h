// The grid of cells: columns 0..GridX+1 by rows 0..GridY+1. Only 1..GridX by
// 1..GridY belong to the world; the ring around them stays empty, so the
// neighbour lookups can read column 0 and row 0 without bounds tests.
#pragma once

#include <cassert>
#include <cstdint>
#include <vector>

#include "model/Records.h"

namespace keldor {

class CellGrid {
 public:
  CellGrid() = default;

  // A fresh, zeroed grid for a world of gridX by gridY cells.
  void Reset(int16_t gridX, int16_t gridY) {
    assert(gridX >= 1 && gridY >= 1);
    columns_ = gridX + 2;
    rows_ = gridY + 2;
    cells_.assign(static_cast<size_t>(columns_) * static_cast<size_t>(rows_), Cell{});
  }

  bool Exists() const { return !cells_.empty(); }
  int Columns() const { return columns_; }  // GridX + 2
  int Rows() const { return rows_; }        // GridY + 2

  Cell& operator()(int x, int y) { return cells_[Index(x, y)]; }
  // Column x: its cells (x, 0) .. (x, GridY + 1) lie next to each other.
  Cell* Column(int x) { return &cells_[Index(x, 0)]; }
  const Cell& operator()(int x, int y) const { return cells_[Index(x, y)]; }

 private:
  size_t Index(int x, int y) const {
    assert(x >= 0 && x < columns_ && y >= 0 && y < rows_);
    return static_cast<size_t>(x) * static_cast<size_t>(rows_) + static_cast<size_t>(y);
  }

  std::vector<Cell> cells_;
  int columns_ = 0;
  int rows_ = 0;
};

}  // namespace keldor
