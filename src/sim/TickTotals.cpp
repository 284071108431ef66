#include "sim/TickTotals.h"

#include <charconv>
#include <string_view>

#include "model/World.h"

namespace keldor {

namespace {

// The shortest decimal text that reads back as exactly v.
std::string_view Shortest(double v, char (&buf)[32]) {
  const auto result = std::to_chars(buf, buf + sizeof buf, v);
  return std::string_view(buf, static_cast<size_t>(result.ptr - buf));
}

}  // namespace

TickTotals MeasureTotals(const World& world) {
  TickTotals t;
  t.Population = world.Settings.Population;
  t.NestCount = world.NestCount;
  t.FoodPileCount = world.FoodPileCount();
  if (world.HasWorld()) {
    for (int x = 1; x <= world.Settings.GridX; ++x) {
      for (int y = 1; y <= world.Settings.GridY; ++y) {
        const Cell& c = world.Cells(x, y);
        t.FoodOnMap += c.Food;
        if (c.Scent != 0) ++t.ScentedCells;
      }
    }
  }
  for (int i = 0; i < world.NestCount; ++i) {
    const Nest& n = world.Nests[static_cast<size_t>(i)];
    t.FoodStored += n.FoodStore;
    for (const Ant& a : n.Ants) {
      if (a.Energy > 0) t.Carrying += a.Load;
    }
  }
  return t;
}

void WriteTickCsvRow(std::ostream& out, int64_t tick, const TickTotals& t) {
  char buf[32];
  out << tick << ',' << t.Population << ',' << t.NestCount << ',' << t.FoodPileCount << ',';
  out << Shortest(t.FoodOnMap, buf) << ',';
  out << Shortest(t.FoodStored, buf) << ',';
  out << Shortest(t.Carrying, buf) << ',' << t.ScentedCells << '\n';
}

}  // namespace keldor
