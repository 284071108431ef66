// One value per tick, held in a bounded number of buckets. While the series
// is short every bucket holds one tick; when the buckets are all used,
// neighbours merge in pairs and each new bucket spans twice as many ticks. A
// bucket keeps the lowest and highest value of its ticks, so the drawn line
// still reaches every peak and trough of a run of a million ticks.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace keldor {

struct ChartPoint {
  int64_t Tick = 0;
  double Value = 0;
  bool operator==(const ChartPoint&) const = default;
};

class ChartSeries {
 public:
  static constexpr size_t DefaultMaxBuckets = 1024;

  // maxBuckets: even, at least 2.
  explicit ChartSeries(size_t maxBuckets = DefaultMaxBuckets);

  // Ticks are appended in increasing order; a gap starts a new bucket.
  void Append(int64_t tick, double value);
  void Clear();

  // The line to draw, in tick order: each bucket's lowest and highest value
  // at the ticks they occurred (one point where both are the same tick).
  void Points(std::vector<ChartPoint>& out) const;

  size_t BucketCount() const { return buckets_.size(); }
  // Ticks per bucket now.
  int64_t BucketWidth() const { return width_; }

 private:
  struct Bucket {
    int64_t First = 0;
    int64_t Last = 0;
    ChartPoint Low;
    ChartPoint High;
  };
  static Bucket Merge(const Bucket& a, const Bucket& b);

  size_t maxBuckets_;
  int64_t width_ = 1;
  std::vector<Bucket> buckets_;
};

}  // namespace keldor
