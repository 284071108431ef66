#include "app/headless/TickCsv.h"

#include "sim/TickTotals.h"

namespace keldor::headless {

TickCsv::TickCsv(std::ostream& out) : out_(out) { out_ << TickCsvHeader << '\n'; }

void TickCsv::WriteRow(int64_t tick, const World& world) { WriteTickCsvRow(out_, tick, MeasureTotals(world)); }

}  // namespace keldor::headless
