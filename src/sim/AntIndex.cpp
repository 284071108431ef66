#include "sim/AntIndex.h"

#include "model/World.h"

namespace keldor {

void AntIndex::Rebuild(const World& world) {
  cellSize_ = world.Settings.CellSize;
  inverseCellSize_ = 1 / world.Settings.CellSize;
  columns_ = world.Settings.GridX + 2;
  rows_ = world.Settings.GridY + 2;
  constexpr int dead = -1;
  slotOfAnt_.clear();
  cellStart_.assign(static_cast<size_t>(columns_) * static_cast<size_t>(rows_) + 1, 0);
  for (int n = 0; n < world.NestCount; ++n) {
    for (const Ant& ant : world.Nests[static_cast<size_t>(n)].Ants) {
      if (!(ant.Energy > 0)) {
        slotOfAnt_.push_back(dead);
        continue;
      }
      const size_t slot = CellSlot(Column(ant.HeadX), Row(ant.HeadY));
      slotOfAnt_.push_back(static_cast<int>(slot));
      ++cellStart_[slot];
    }
  }
  // Running totals make cellStart_[c] the end of cell c; filling from the
  // last ant backwards moves it to the start of c and keeps scan order.
  for (size_t c = 1; c < cellStart_.size(); ++c) cellStart_[c] += cellStart_[c - 1];
  ants_.resize(static_cast<size_t>(cellStart_.back()));
  slotOfEntry_.resize(ants_.size());
  size_t k = slotOfAnt_.size();
  for (int n = world.NestCount - 1; n >= 0; --n) {
    const Nest& nest = world.Nests[static_cast<size_t>(n)];
    for (int a = nest.AntCount() - 1; a >= 0; --a) {
      const int slot = slotOfAnt_[--k];
      if (slot == dead) continue;
      const int at = --cellStart_[static_cast<size_t>(slot)];
      slotOfEntry_[static_cast<size_t>(at)] = slot;
      ants_[static_cast<size_t>(at)] = {{static_cast<int16_t>(n), static_cast<int16_t>(a)}, 0, nest.Ants[a].HeadX,
                                        nest.Ants[a].HeadY};
    }
  }
  // A run ends where the next ant belongs to another nest or another cell.
  for (int i = static_cast<int>(ants_.size()) - 1; i >= 0; --i) {
    const size_t at = static_cast<size_t>(i);
    IndexedAnt& ant = ants_[at];
    const bool runGoesOn = at + 1 < ants_.size() && slotOfEntry_[at + 1] == slotOfEntry_[at] &&
                           ants_[at + 1].Ref.Nest == ant.Ref.Nest;
    ant.RunEnd = runGoesOn ? ants_[at + 1].RunEnd : i + 1;
  }
}

const std::vector<AntRef>& AntIndex::Near(double worldX, double worldY, double reach) {
  found_.clear();
  ForEachNear(worldX, worldY, reach, [this](const IndexedAnt& ant) {
    found_.push_back(ant.Ref);
    return true;
  });
  std::sort(found_.begin(), found_.end());
  return found_;
}

}  // namespace keldor
