#include "sim/AntIndex.h"

#include <algorithm>
#include <cmath>

#include "model/World.h"

namespace keldor {

AntIndex::AntIndex(const World& world)
    : cellSize_(world.Settings.CellSize), columns_(world.Settings.GridX + 2), rows_(world.Settings.GridY + 2) {
  buckets_.resize(static_cast<size_t>(columns_) * static_cast<size_t>(rows_));
  for (int n = 0; n < world.NestCount; ++n) {
    const Nest& nest = world.Nests[static_cast<size_t>(n)];
    for (int a = 0; a < nest.AntCount(); ++a) {
      const Ant& ant = nest.Ants[a];
      if (!(ant.Energy > 0)) continue;
      const int x = Clamp(static_cast<int>(std::floor(ant.HeadX / cellSize_)), columns_);
      const int y = Clamp(static_cast<int>(std::floor(ant.HeadY / cellSize_)), rows_);
      buckets_[static_cast<size_t>(x) * static_cast<size_t>(rows_) + static_cast<size_t>(y)].push_back(
          {static_cast<int16_t>(n), static_cast<int16_t>(a)});
    }
  }
}

int AntIndex::Clamp(int v, int high) const { return std::clamp(v, 0, high - 1); }

const std::vector<AntRef>& AntIndex::Near(double worldX, double worldY, double reach, int skipNest) {
  // One extra cell each way absorbs rounding at the cell borders.
  const int x0 = Clamp(static_cast<int>(std::floor((worldX - reach) / cellSize_)) - 1, columns_);
  const int x1 = Clamp(static_cast<int>(std::floor((worldX + reach) / cellSize_)) + 1, columns_);
  const int y0 = Clamp(static_cast<int>(std::floor((worldY - reach) / cellSize_)) - 1, rows_);
  const int y1 = Clamp(static_cast<int>(std::floor((worldY + reach) / cellSize_)) + 1, rows_);
  found_.clear();
  for (int x = x0; x <= x1; ++x) {
    for (int y = y0; y <= y1; ++y) {
      const auto& bucket = buckets_[static_cast<size_t>(x) * static_cast<size_t>(rows_) + static_cast<size_t>(y)];
      // A bucket is in nest order: the skipped nest is one run within it.
      const auto skipBegin = std::lower_bound(bucket.begin(), bucket.end(), AntRef{static_cast<int16_t>(skipNest), 0});
      const auto skipEnd = std::lower_bound(skipBegin, bucket.end(), AntRef{static_cast<int16_t>(skipNest + 1), 0});
      found_.insert(found_.end(), bucket.begin(), skipBegin);
      found_.insert(found_.end(), skipEnd, bucket.end());
    }
  }
  std::sort(found_.begin(), found_.end());
  return found_;
}

}  // namespace keldor
