#include "app/headless/TickCsv.h"

#include <gtest/gtest.h>

#include <sstream>

#include "support/TestWorld.h"

namespace keldor::headless {
namespace {

using keldor::testing::TestWorld;

// A default world with every food pile and all food taken away.
TestWorld EmptiedWorld() {
  TestWorld t;
  for (int x = 1; x <= 30; ++x) {
    for (int y = 1; y <= 30; ++y) t.world.Cells(x, y).Food = 0;
  }
  t.world.FoodPiles.Clear();
  return t;
}

std::vector<std::string> Lines(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream in(text);
  for (std::string line; std::getline(in, line);) lines.push_back(line);
  return lines;
}

TEST(TickCsvTest, TotalsCountWorldCellsStoresAndLivingCarriers) {
  TestWorld t = EmptiedWorld();
  World& w = t.world;
  w.Cells(1, 1).Food = 2.5;
  w.Cells(30, 30).Food = 1.25;
  w.Cells(0, 0).Food = 100;  // the ring is not part of the world
  w.Cells(31, 5).Scent = 9;
  w.Cells(4, 4).Scent = -250;
  w.Cells(5, 6).Scent = 0.5;
  w.Cells(7, 7).Scent = 3;
  w.Nests[0].FoodStore = 4;
  w.Nests[0].Ants[1].Load = 0.5;
  w.Nests[0].Ants[2].Load = 0.25;
  w.Nests[0].Ants[2].Energy = 0;  // dead: its load is not carried
  Ant& spare = w.Nests[0].Ants[w.Nests[0].AntCount()];  // the spare slot is not an ant
  spare.Load = 64;
  spare.Energy = 1;

  std::ostringstream out;
  TickCsv csv(out);
  csv.WriteRow(9, w);
  EXPECT_EQ(Lines(out.str())[1], "9,30,1,0,3.75,4,0.5,3");
}

TEST(TickCsvTest, NumbersReadBackExactly) {
  TestWorld t = EmptiedWorld();
  t.world.Cells(2, 2).Food = 0.1 + 0.2;
  std::ostringstream out;
  TickCsv csv(out);
  csv.WriteRow(1, t.world);
  const std::string row = Lines(out.str())[1];
  EXPECT_EQ(row, "1,30,1,0,0.30000000000000004,0,0,0");
}

}  // namespace
}  // namespace keldor::headless
