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
  cellSummary_ = false;
  std::unordered_map<std::string_view, int> colonyOf;
  colonyOfNest_.clear();
  for (int n = 0; n < world.NestCount; ++n) {
    const auto signature = world.Nests[static_cast<size_t>(n)].Signature.View();
    colonyOfNest_.push_back(colonyOf.try_emplace(signature, static_cast<int>(colonyOf.size())).first->second);
  }
  colonies_ = static_cast<int>(colonyOf.size());
  isolated_.assign(static_cast<size_t>(colonies_), false);
  anyMeets_ = true;
  if (colonies_ > MaxColoniesCompared) return;
  anyMeets_ = false;

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
    anyMeets_ = anyMeets_ || meets;
  }
}

uint64_t RivalNeighbourhood::ColoniesNear(size_t slot) {
  if (!cellsSummarised_) SummariseCells();
  if (!cellSummary_) return ~uint64_t{0};
  const size_t rows = static_cast<size_t>(index_->Rows());
  const size_t column = slot / rows;
  const size_t first = column - std::min(column, cellsOfReach_);
  const size_t last = std::min(static_cast<size_t>(index_->Columns()) - 1, column + cellsOfReach_);
  uint64_t colonies = 0;
  for (size_t k = first, at = slot - (column - first) * rows; k <= last; ++k, at += rows) colonies |= columnColonies_[at];
  return colonies;
}

namespace {

// out[i] = the OR of in[i - reach] .. in[i + reach] (those of the count that
// exist), offset by offset, so that the loops run over plain ranges.
void SpreadAlongColumn(const uint64_t* __restrict in, uint64_t* __restrict out, size_t count, size_t reach) {
  std::copy(in, in + count, out);
  for (size_t d = 1; d <= reach && d < count; ++d) {
    const size_t pairs = count - d;
    const uint64_t* __restrict above = in + d;
    uint64_t* __restrict below = out + d;
    for (size_t i = 0; i < pairs; ++i) out[i] |= above[i];
    for (size_t i = 0; i < pairs; ++i) below[i] |= in[i];
  }
}

}  // namespace

void RivalNeighbourhood::SummariseCells() {
  cellsSummarised_ = true;
  // One more cell than the reach spans: a head lies anywhere in its cell.
  const double cellsOfReach = std::ceil(reach_ / index_->CellSize()) + 1;
  if (colonies_ > MaxColonyBits || std::isnan(cellsOfReach)) return;
  cellSummary_ = true;
  const size_t rows = static_cast<size_t>(index_->Rows());
  const size_t columns = static_cast<size_t>(index_->Columns());
  cellColonies_.assign(rows * columns, 0);
  index_->ForEachIndexed([&](size_t slot, const IndexedAnt& ant) {
    cellColonies_[slot] |= uint64_t{1} << colonyOfNest_[static_cast<size_t>(ant.Ref.Nest)];
  });
  // Beyond the grid's size a reach adds nothing.
  cellsOfReach_ = static_cast<size_t>(std::min(cellsOfReach, static_cast<double>(std::max(rows, columns))));
  columnColonies_.resize(cellColonies_.size());
  for (size_t column = 0; column < cellColonies_.size(); column += rows) {
    SpreadAlongColumn(&cellColonies_[column], &columnColonies_[column], rows, cellsOfReach_);
  }
}

}  // namespace keldor
