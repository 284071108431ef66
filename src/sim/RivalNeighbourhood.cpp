#include "sim/RivalNeighbourhood.h"

#include <algorithm>
#include <cmath>
#include <string_view>
#include <unordered_map>

#include "model/World.h"
#include "sim/AntIndex.h"

namespace keldor {

RivalNeighbourhood::RivalNeighbourhood(const World& world, const AntIndex& index, double reach)
    : columns_(index.Columns()), rows_(index.Rows()) {
  // One more cell than the reach spans: a head lies anywhere in its cell.
  const double cellsOfReach = std::ceil(PaddedReach(reach, index.CellSize()) / index.CellSize()) + 1;
  if (!(cellsOfReach <= MaxCellsOfReach)) return;
  cellsOfReach_ = static_cast<int>(cellsOfReach);
  std::unordered_map<std::string_view, int> colonyOf;
  colonyBit_.reserve(static_cast<size_t>(world.NestCount));
  for (int n = 0; n < world.NestCount; ++n) {
    const auto [entry, added] =
        colonyOf.try_emplace(world.Nests[static_cast<size_t>(n)].Signature.View(), static_cast<int>(colonyOf.size()));
    if (entry->second >= MaxColonies) return;
    colonyBit_.push_back(uint64_t{1} << entry->second);
  }
  colonies_.assign(static_cast<size_t>(columns_) * static_cast<size_t>(rows_), 0);
  nearColonies_.assign(colonies_.size(), 0);
  for (int n = 0; n < world.NestCount; ++n) {
    for (const Ant& ant : world.Nests[static_cast<size_t>(n)].Ants) {
      if (ant.Energy > 0) colonies_[index.CellSlotAt(ant.HeadX, ant.HeadY)] |= colonyBit_[static_cast<size_t>(n)];
    }
  }
}

uint64_t RivalNeighbourhood::NearbyColonies(size_t slot) const {
  const int x = static_cast<int>(slot / static_cast<size_t>(rows_));
  const int y = static_cast<int>(slot % static_cast<size_t>(rows_));
  const int y0 = std::max(0, y - cellsOfReach_);
  const int y1 = std::min(rows_ - 1, y + cellsOfReach_);
  uint64_t bits = 0;
  for (int k = std::max(0, x - cellsOfReach_); k <= std::min(columns_ - 1, x + cellsOfReach_); ++k) {
    const uint64_t* column = &colonies_[static_cast<size_t>(k) * static_cast<size_t>(rows_)];
    for (int j = y0; j <= y1; ++j) bits |= column[j];
  }
  return bits;
}

}  // namespace keldor
