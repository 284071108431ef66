// What the charts window plots and exports, recorded after every tick in
// which the world ran: the population of each colony, the food stored,
// carried and on the map, and the scented cells, each a bounded ChartSeries;
// and the batch runner's CSV row of each tick, thinned evenly (every 2nd,
// 4th... tick kept) once a run holds more than MaxRows of them.
#pragma once

#include <array>
#include <cstdint>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "model/Colour.h"
#include "sim/TickTotals.h"
#include "window/ChartSeries.h"

namespace keldor {

struct World;

class RunChart {
 public:
  // Colonies after the first MaxColonies are not plotted.
  static constexpr size_t MaxColonies = 12;
  static constexpr size_t MaxRows = 65536;

  enum class Total { FoodStored, FoodCarried, FoodOnMap, ScentedCells };
  static constexpr Total AllTotals[] = {Total::FoodStored, Total::FoodCarried, Total::FoodOnMap, Total::ScentedCells};
  static std::string_view TotalName(Total total);

  struct Colony {
    uint32_t Serial = 0;  // the nest's
    std::string Name;  // "Nest at cell (x, y)"
    keldor::Colour Colour{};
    ChartSeries Population;
  };

  void Clear();
  // Samples the world as it is after tick number `tick` (1, 2, ...).
  void Record(int64_t tick, const World& world);

  const ChartSeries& TotalSeries(Total total) const { return totals_[static_cast<size_t>(total)]; }
  const std::vector<Colony>& Colonies() const { return colonies_; }
  // Ticks recorded since the last Clear.
  int64_t Ticks() const { return ticks_; }

  // The header and the rows kept, as keldor-headless --csv writes them.
  void WriteCsv(std::ostream& out) const;
  size_t RowCount() const { return rows_.size(); }

 private:
  struct Row {
    int64_t Tick = 0;
    TickTotals Totals;
  };
  void RecordColonies(int64_t tick, const World& world);
  void KeepRow(int64_t tick, const TickTotals& totals);

  std::array<ChartSeries, std::size(AllTotals)> totals_;
  std::vector<Colony> colonies_;
  int64_t ticks_ = 0;
  std::vector<Row> rows_;
  int64_t rowStride_ = 1;
};

}  // namespace keldor
