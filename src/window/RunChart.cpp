#include "window/RunChart.h"

#include <algorithm>

#include "model/World.h"

namespace keldor {

std::string_view RunChart::TotalName(Total total) {
  constexpr std::string_view names[] = {"Food stored", "Food carried", "Food on the map", "Scented cells"};
  return names[static_cast<size_t>(total)];
}

void RunChart::Clear() {
  for (ChartSeries& series : totals_) series.Clear();
  colonies_.clear();
  ticks_ = 0;
  rows_.clear();
  rowStride_ = 1;
}

void RunChart::Record(int64_t tick, const World& world) {
  const TickTotals totals = MeasureTotals(world);
  const double values[] = {totals.FoodStored, totals.Carrying, totals.FoodOnMap, static_cast<double>(totals.ScentedCells)};
  for (size_t i = 0; i < totals_.size(); ++i) totals_[i].Append(tick, values[i]);
  RecordColonies(tick, world);
  KeepRow(tick, totals);
  ++ticks_;
}

void RunChart::RecordColonies(int64_t tick, const World& world) {
  for (int n = 0; n < world.NestCount; ++n) {
    const Nest& nest = world.Nests[static_cast<size_t>(n)];
    auto colony = std::find_if(colonies_.begin(), colonies_.end(), [&](const Colony& c) { return c.Serial == nest.Serial; });
    if (colony == colonies_.end()) {
      if (colonies_.size() == MaxColonies) continue;
      // Named by where its nest lies on the map, which a reader can find.
      const std::string name = "Nest at cell (" + std::to_string(nest.CellX) + ", " + std::to_string(nest.CellY) + ")";
      colony = colonies_.insert(colonies_.end(), Colony{nest.Serial, name, nest.Colour, ChartSeries()});
    }
    const auto living = std::count_if(nest.Ants.begin(), nest.Ants.end(), [](const Ant& a) { return a.Energy > 0; });
    colony->Population.Append(tick, static_cast<double>(living));
  }
}

void RunChart::KeepRow(int64_t tick, const TickTotals& totals) {
  if (rows_.size() == MaxRows) {
    // Every other row goes; the rows left are 2 * stride ticks apart.
    for (size_t i = 0; i < MaxRows / 2; ++i) rows_[i] = rows_[2 * i];
    rows_.resize(MaxRows / 2);
    rowStride_ *= 2;
  }
  if (!rows_.empty() && (tick - rows_.front().Tick) % rowStride_ != 0) return;
  rows_.push_back({tick, totals});
}

void RunChart::WriteCsv(std::ostream& out) const {
  out << TickCsvHeader << '\n';
  for (const Row& row : rows_) WriteTickCsvRow(out, row.Tick, row.Totals);
}

}  // namespace keldor
