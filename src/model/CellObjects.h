// What stands on one cell. Almost every cell holds nothing, so the list
// allocates only when an object is added. The number of plaster bricks is
// kept beside the list: every ant step asks whether a cell is walled, and
// that is one read of a field next to the cell's scent.
#pragma once

#include <cassert>
#include <cstdint>
#include <vector>

#include "model/Numeric.h"
#include "model/WallObject.h"

namespace keldor {

class CellObjects {
 public:
  int16_t Count() const { return static_cast<int16_t>(items_.size()); }
  bool CanAdd() const { return items_.size() < static_cast<size_t>(Int16Max); }
  bool HasBrick() const { return bricks_ > 0; }

  const WallObject& operator[](int k) const {
    assert(k >= 0 && k < Count());
    return items_[static_cast<size_t>(k)];
  }
  auto begin() const { return items_.begin(); }
  auto end() const { return items_.end(); }

  void Add(WallObject object) {
    assert(CanAdd());
    if (IsBrick(object)) ++bricks_;
    items_.push_back(std::move(object));
  }

  // Takes away the first plaster brick, keeping the other objects in order.
  void RemoveBrick() {
    for (auto it = items_.begin(); it != items_.end(); ++it) {
      if (IsBrick(*it)) {
        items_.erase(it);
        --bricks_;
        return;
      }
    }
  }

  bool operator==(const CellObjects&) const = default;

 private:
  static bool IsBrick(const WallObject& object) { return object.TypeName == PlasterBrickType; }

  int16_t bricks_ = 0;
  std::vector<WallObject> items_;
};

}  // namespace keldor
