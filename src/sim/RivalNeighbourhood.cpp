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
  if (colonies_ > MaxColoniesCompared) return;

  // One pass over the index: each colony's box, and each slot's colonies
  // while there are few enough of them for the cell summary.
  constexpr double far = std::numeric_limits<double>::infinity();
  std::vector<Box> boxes(static_cast<size_t>(colonies_), Box{far, far, -far, -far});
  const bool colonyBits = colonies_ <= MaxColonyBits;
  cellColonies_.assign(colonyBits ? static_cast<size_t>(index.Columns()) * static_cast<size_t>(index.Rows()) : 0, 0);
  index.ForEachIndexed([&](size_t slot, const IndexedAnt& ant) {
    const int colony = colonyOfNest_[static_cast<size_t>(ant.Ref.Nest)];
    Box& box = boxes[static_cast<size_t>(colony)];
    box = {std::min(box.Left, ant.HeadX), std::min(box.Top, ant.HeadY), std::max(box.Right, ant.HeadX),
           std::max(box.Bottom, ant.HeadY)};
    if (colonyBits) cellColonies_[slot] |= uint64_t{1} << colony;
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
  return cellSummary_ ? nearColonies_[slot] : ~uint64_t{0};
}

namespace {

// out[i] = the OR of in[i - reach] .. in[i + reach] (those that exist), for
// count elements of `lanes` values each, side by side: lane k of an element
// is ORed with lane k of its neighbours. Offset by offset, so the loops run
// over plain ranges.
void SpreadWithinReach(const uint64_t* in, uint64_t* out, size_t count, size_t lanes, size_t reach) {
  std::copy(in, in + count * lanes, out);
  for (size_t d = 1; d <= reach && d < count; ++d) {
    const size_t span = (count - d) * lanes;  // the values that have a neighbour d elements on
    const size_t offset = d * lanes;
    for (size_t e = 0; e < span; ++e) out[e] |= in[e + offset];
    for (size_t e = 0; e < span; ++e) out[e + offset] |= in[e];
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
  // Beyond the grid's size a reach adds nothing.
  const size_t reach = static_cast<size_t>(std::min(cellsOfReach, static_cast<double>(std::max(rows, columns))));
  columnColonies_.resize(cellColonies_.size());
  nearColonies_.resize(cellColonies_.size());
  for (size_t column = 0; column < cellColonies_.size(); column += rows) {
    SpreadWithinReach(&cellColonies_[column], &columnColonies_[column], rows, 1, reach);
  }
  SpreadWithinReach(columnColonies_.data(), nearColonies_.data(), columns, rows, reach);
}

}  // namespace keldor
