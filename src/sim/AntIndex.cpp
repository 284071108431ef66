#include "sim/AntIndex.h"

#include "model/Queries.h"
#include "model/World.h"

namespace keldor {

void AntIndex::Rebuild(const World& world) {
  cellSize_ = world.Settings.CellSize;
  inverseCellSize_ = 1 / world.Settings.CellSize;
  columns_ = world.Settings.GridX + 2;
  rows_ = world.Settings.GridY + 2;
  extents_ = {};
  scanned_.clear();
  cellStart_.assign(static_cast<size_t>(columns_) * static_cast<size_t>(rows_) + 1, 0);
  // One pass over the ant records; the rest of the build reads scanned_.
  for (int n = 0; n < world.NestCount; ++n) {
    const Nest& nest = world.Nests[static_cast<size_t>(n)];
    for (int a = 0; a < nest.AntCount(); ++a) {
      const Ant& ant = nest.Ants[a];
      if (!(ant.Energy > 0)) continue;
      const size_t slot = CellSlot(Column(ant.HeadX), Row(ant.HeadY));
      ++cellStart_[slot];
      scanned_.push_back({{{static_cast<int16_t>(n), static_cast<int16_t>(a)}, 0, ant.HeadX, ant.HeadY},
                          static_cast<int>(slot)});
      const double squaredSpan = SquaredSpan(ant);
      extents_.SquaredSpan = std::max(extents_.SquaredSpan, squaredSpan);
      if (a == 0) {
        extents_.QueenLength = std::max(extents_.QueenLength, ant.Length);
      } else {
        extents_.WorkerLength = std::max(extents_.WorkerLength, ant.Length);
        extents_.WorkerSquaredSpan = std::max(extents_.WorkerSquaredSpan, squaredSpan);
      }
    }
  }
  // Running totals make cellStart_[c] the end of cell c; filling from the
  // last ant backwards moves it to the start of c and keeps scan order.
  for (size_t c = 1; c < cellStart_.size(); ++c) cellStart_[c] += cellStart_[c - 1];
  ants_.resize(scanned_.size());
  slotOfEntry_.resize(scanned_.size());
  for (size_t k = scanned_.size(); k-- > 0;) {
    const ScannedAnt& scanned = scanned_[k];
    const size_t at = static_cast<size_t>(--cellStart_[static_cast<size_t>(scanned.Slot)]);
    ants_[at] = scanned.Entry;
    slotOfEntry_[at] = scanned.Slot;
  }
  // A run ends where the next ant belongs to another nest or another cell.
  for (size_t at = ants_.size(); at-- > 0;) {
    IndexedAnt& ant = ants_[at];
    const bool runGoesOn = at + 1 < ants_.size() && slotOfEntry_[at + 1] == slotOfEntry_[at] &&
                           ants_[at + 1].Ref.Nest == ant.Ref.Nest;
    ant.RunEnd = runGoesOn ? ants_[at + 1].RunEnd : static_cast<int32_t>(at + 1);
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
