#include "sim/RivalNeighbourhood.h"

#include <algorithm>
#include <cmath>
#include <string_view>
#include <unordered_map>

#include "model/World.h"
#include "sim/AntIndex.h"

namespace keldor {
namespace {

// Each slot becomes the union of the slots within `radius` along one axis.
void SpreadAlong(std::vector<uint64_t>& masks, int columns, int rows, int radius, bool alongColumns) {
  const std::vector<uint64_t> source = masks;
  const int lines = alongColumns ? rows : columns;
  const int length = alongColumns ? columns : rows;
  for (int line = 0; line < lines; ++line) {
    for (int at = 0; at < length; ++at) {
      uint64_t merged = 0;
      const int from = std::max(0, at - radius);
      const int to = std::min(length - 1, at + radius);
      for (int k = from; k <= to; ++k) {
        const int x = alongColumns ? k : line;
        const int y = alongColumns ? line : k;
        merged |= source[static_cast<size_t>(x) * static_cast<size_t>(rows) + static_cast<size_t>(y)];
      }
      const int x = alongColumns ? at : line;
      const int y = alongColumns ? line : at;
      masks[static_cast<size_t>(x) * static_cast<size_t>(rows) + static_cast<size_t>(y)] = merged;
    }
  }
}

}  // namespace

RivalNeighbourhood::RivalNeighbourhood(const World& world, const AntIndex& index, double reach) {
  const int cellsOfReach = static_cast<int>(std::ceil(PaddedReach(reach, index.CellSize()) / index.CellSize())) + 1;
  if (!(cellsOfReach <= MaxCellsOfReach)) return;
  std::unordered_map<std::string_view, int> colonyOf;
  colonyBit_.reserve(static_cast<size_t>(world.NestCount));
  for (int n = 0; n < world.NestCount; ++n) {
    const auto [entry, added] =
        colonyOf.try_emplace(world.Nests[static_cast<size_t>(n)].Signature.View(), static_cast<int>(colonyOf.size()));
    if (entry->second >= MaxColonies) {
      colonyBit_.clear();
      return;
    }
    colonyBit_.push_back(uint64_t{1} << entry->second);
  }
  nearColonies_.assign(static_cast<size_t>(index.Columns()) * static_cast<size_t>(index.Rows()), 0);
  for (int n = 0; n < world.NestCount; ++n) {
    for (const Ant& ant : world.Nests[static_cast<size_t>(n)].Ants) {
      if (ant.Energy > 0) nearColonies_[index.CellSlotAt(ant.HeadX, ant.HeadY)] |= colonyBit_[static_cast<size_t>(n)];
    }
  }
  SpreadAlong(nearColonies_, index.Columns(), index.Rows(), cellsOfReach, false);
  SpreadAlong(nearColonies_, index.Columns(), index.Rows(), cellsOfReach, true);
}

}  // namespace keldor
