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

uint64_t RivalNeighbourhood::ColoniesNear(size_t slot) {
  if (!cellsSummarised_) SummariseCells();
  if (cellsOfReach_ == 0) return ~uint64_t{0};
  const size_t rows = static_cast<size_t>(index_->Rows());
  const size_t column = slot / rows;
  const size_t first = column >= static_cast<size_t>(cellsOfReach_) ? column - static_cast<size_t>(cellsOfReach_) : 0;
  const size_t last = std::min(static_cast<size_t>(index_->Columns()) - 1, column + static_cast<size_t>(cellsOfReach_));
  const size_t row = slot % rows;
  uint64_t colonies = 0;
  for (size_t k = first; k <= last; ++k) colonies |= columnColonies_[k * rows + row];
  return colonies;
}

void RivalNeighbourhood::SummariseCells() {
  cellsSummarised_ = true;
  // One more cell than the reach spans: a head lies anywhere in its cell.
  const double cellsOfReach = std::ceil(reach_ / index_->CellSize()) + 1;
  if (colonies_ > MaxColonyBits || !(cellsOfReach <= MaxCellsOfReach)) return;
  cellsOfReach_ = static_cast<int>(cellsOfReach);
  cellColonies_.assign(static_cast<size_t>(index_->Columns()) * static_cast<size_t>(index_->Rows()), 0);
  index_->ForEachIndexed([&](size_t slot, const IndexedAnt& ant) {
    cellColonies_[slot] |= uint64_t{1} << colonyOfNest_[static_cast<size_t>(ant.Ref.Nest)];
  });
  // Summed along each column here, across columns when a slot is asked.
  const int rows = index_->Rows();
  columnColonies_.resize(cellColonies_.size());
  for (size_t column = 0; column < cellColonies_.size(); column += static_cast<size_t>(rows)) {
    const uint64_t* cells = &cellColonies_[column];
    for (int y = 0; y < rows; ++y) {
      uint64_t colonies = 0;
      for (int j = std::max(0, y - cellsOfReach_); j <= std::min(rows - 1, y + cellsOfReach_); ++j) colonies |= cells[j];
      columnColonies_[column + static_cast<size_t>(y)] = colonies;
    }
  }
}

}  // namespace keldor
