#include "window/ChartSeries.h"

#include <cassert>

namespace keldor {

ChartSeries::ChartSeries(size_t maxBuckets) : maxBuckets_(maxBuckets) {
  assert(maxBuckets_ >= 2 && maxBuckets_ % 2 == 0);
  buckets_.reserve(maxBuckets_);
}

void ChartSeries::Append(int64_t tick, double value) {
  const ChartPoint point{tick, value};
  if (!buckets_.empty()) {
    Bucket& last = buckets_.back();
    if (tick == last.Last + 1 && last.Last - last.First + 1 < width_) {
      last.Last = tick;
      if (value < last.Low.Value) last.Low = point;
      if (value > last.High.Value) last.High = point;
      return;
    }
  }
  if (buckets_.size() == maxBuckets_) {
    for (size_t i = 0; i < maxBuckets_ / 2; ++i) buckets_[i] = Merge(buckets_[2 * i], buckets_[2 * i + 1]);
    buckets_.resize(maxBuckets_ / 2);
    width_ *= 2;
    Append(tick, value);
    return;
  }
  buckets_.push_back({tick, tick, point, point});
}

void ChartSeries::Clear() {
  buckets_.clear();
  width_ = 1;
}

void ChartSeries::Points(std::vector<ChartPoint>& out) const {
  out.clear();
  out.reserve(2 * buckets_.size());
  for (const Bucket& b : buckets_) {
    const bool lowFirst = b.Low.Tick <= b.High.Tick;
    out.push_back(lowFirst ? b.Low : b.High);
    if (b.Low.Tick != b.High.Tick) out.push_back(lowFirst ? b.High : b.Low);
  }
}

ChartSeries::Bucket ChartSeries::Merge(const Bucket& a, const Bucket& b) {
  return {a.First, b.Last, b.Low.Value < a.Low.Value ? b.Low : a.Low, b.High.Value > a.High.Value ? b.High : a.High};
}

}  // namespace keldor
