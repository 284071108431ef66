// The per-tick CSV of a batch run: a header, then one row of totals for each
// tick. Numbers are written in their shortest exact decimal form.
#pragma once

#include <cstdint>
#include <ostream>

namespace keldor {
struct World;
}

namespace keldor::headless {

inline constexpr const char* TickCsvHeader = "tick,Population,NestCount,FoodPileCount,FoodOnMap,FoodStored,Carrying,ScentedCells";

// Writes one row: the totals of the world as it is after tick number `tick`.
void WriteTickCsvRow(std::ostream& out, int64_t tick, const World& world);

class TickCsv {
 public:
  // Writes the header line.
  explicit TickCsv(std::ostream& out);
  // Writes the row of the world as it is after tick number `tick`.
  void WriteRow(int64_t tick, const World& world);

 private:
  std::ostream& out_;
};

}  // namespace keldor::headless
