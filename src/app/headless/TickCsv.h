// The per-tick CSV of a batch run: a header, then one row of totals for each
// tick (sim/TickTotals).
#pragma once

#include <cstdint>
#include <ostream>

namespace keldor {
struct World;
}

namespace keldor::headless {

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
