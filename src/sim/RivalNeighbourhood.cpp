#include "sim/RivalNeighbourhood.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <string_view>
#include <unordered_map>

#include "model/World.h"
#include "sim/AntIndex.h"

namespace keldor {

void RivalNeighbourhood::Reset(const World& world, const AntIndex& index, double reach) {
  index_ = &index;
  reach_ = PaddedReach(reach, index.CellSize());
  cellsSummarised_ = false;
  cellsOfReach_ = 0;
  std::unordered_map<std::string_view, int> colonyOf;
  colonyOfNest_.clear();
  for (int n = 0; n < world.NestCount; ++n) {
    const auto signature = world.Nests[static_cast<size_t>(n)].Signature.View();
    colonyOfNest_.push_back(colonyOf.try_emplace(signature, static_cast<int>(colonyOf.size())).first->second);
  }
  colonies_ = static_cast<int>(colonyOf.size());
  isolated_.assign(static_cast<size_t>(colonies_), false);
  if (colonies_ > MaxColoniesCompared) return;

  constexpr double far = std::numeric_limits<double>::infinity();
  std::vector<Box> boxes(static_cast<size_t>(colonies_), Box{far, far, -far, -far});
  index.ForEachIndexed([&](size_t, const IndexedAnt& ant) {
    Box& box = boxes[static_cast<size_t>(colonyOfNest_[static_cast<size_t>(ant.Ref.Nest)])];
    box = {std::min(box.Left, ant.HeadX), std::min(box.Top, ant.HeadY), std::max(box.Right, ant.HeadX),
           std::max(box.Bottom, ant.HeadY)};
  });
  // A colony with no living ant has an empty box and meets nobody.
  for (size_t a = 0; a < boxes.size(); ++a) {
    bool meets = false;
    for (size_t b = 0; b < boxes.size() && !meets; ++b) {
      const Box& p = boxes[a];
      const Box& q = boxes[b];
      meets = b != a && p.Left - reach_ <= q.Right && q.Left <= p.Right + reach_ && p.Top - reach_ <= q.Bottom &&
              q.Top <= p.Bottom + reach_;
    }
    isolated_[a] = !meets;
  }
}

bool RivalNeighbourhood::MayHoldRival(size_t slot, int nest) {
  if (!cellsSummarised_) SummariseCells();
  if (cellsOfReach_ == 0) return true;
  uint64_t& near = nearColonies_[slot];
  if ((near & Summed) == 0) near = Summed | NearbyColonies(slot);
  const uint64_t own = uint64_t{1} << colonyOfNest_[static_cast<size_t>(nest)];
  return (near & ~Summed & ~own) != 0;
}

void RivalNeighbourhood::SummariseCells() {
  cellsSummarised_ = true;
  // One more cell than the reach spans: a head lies anywhere in its cell.
  const double cellsOfReach = std::ceil(reach_ / index_->CellSize()) + 1;
  if (colonies_ > MaxColonyBits || !(cellsOfReach <= MaxCellsOfReach)) return;
  cellsOfReach_ = static_cast<int>(cellsOfReach);
  cellColonies_.assign(static_cast<size_t>(index_->Columns()) * static_cast<size_t>(index_->Rows()), 0);
  nearColonies_.assign(cellColonies_.size(), 0);
  index_->ForEachIndexed([&](size_t slot, const IndexedAnt& ant) {
    cellColonies_[slot] |= uint64_t{1} << colonyOfNest_[static_cast<size_t>(ant.Ref.Nest)];
  });
}

uint64_t RivalNeighbourhood::NearbyColonies(size_t slot) const {
  const int rows = index_->Rows();
  const int columns = index_->Columns();
  const int x = static_cast<int>(slot / static_cast<size_t>(rows));
  const int y = static_cast<int>(slot % static_cast<size_t>(rows));
  const int y0 = std::max(0, y - cellsOfReach_);
  const int y1 = std::min(rows - 1, y + cellsOfReach_);
  uint64_t bits = 0;
  for (int k = std::max(0, x - cellsOfReach_); k <= std::min(columns - 1, x + cellsOfReach_); ++k) {
    const uint64_t* column = &cellColonies_[static_cast<size_t>(k) * static_cast<size_t>(rows)];
    for (int j = y0; j <= y1; ++j) bits |= column[j];
  }
  return bits;
}

}  // namespace keldor
