#include "app/headless/TickCsv.h"

#include <charconv>
#include <string>

#include "app/headless/TickTotals.h"

namespace keldor::headless {

namespace {

// The shortest decimal text that reads back as exactly v.
std::string Shortest(double v) {
  char buf[32];
  const auto result = std::to_chars(buf, buf + sizeof buf, v);
  return std::string(buf, result.ptr);
}

}  // namespace

TickCsv::TickCsv(std::ostream& out) : out_(out) { out_ << TickCsvHeader << '\n'; }

void WriteTickCsvRow(std::ostream& out, int64_t tick, const World& world) {
  const TickTotals t = MeasureTotals(world);
  out << tick << ',' << t.Population << ',' << t.NestCount << ',' << t.FoodPileCount << ',' << Shortest(t.FoodOnMap)
      << ',' << Shortest(t.FoodStored) << ',' << Shortest(t.Carrying) << ',' << t.ScentedCells << '\n';
}

void TickCsv::WriteRow(int64_t tick, const World& world) { WriteTickCsvRow(out_, tick, world); }

}  // namespace keldor::headless
