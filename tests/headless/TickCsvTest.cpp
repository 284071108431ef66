#include "app/headless/TickCsv.h"

#include <gtest/gtest.h>

#include <sstream>

#include "support/TestWorld.h"

namespace keldor::headless {
namespace {

using keldor::testing::TestWorld;

TEST(TickCsvTest, TotalsCountWorldCellsStoresAndLivingCarriers) {
  TestWorld t;
  World& w = t.world;
  for (int x = 1; x <= 30; ++x) {
    for (int y = 1; y <= 30; ++y) w.Cells(x, y).Food = 0;
  }
  w.FoodPiles.Clear();
  w.Cells(1, 1).Food = 1.0 / 3;  // the total is written so it reads back exactly
  w.Cells(30, 30).Food = 1;
  w.Cells(0, 0).Food = 100;  // the ring is not part of the world
  w.Cells(31, 5).Scent = 9;
  w.Cells(4, 4).Scent = -250;
  w.Cells(5, 6).Scent = 0.5;
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
  EXPECT_EQ(out.str().substr(out.str().find('\n') + 1), "9,30,1,0,1.3333333333333333,4,0.5,2\n");
}

}  // namespace
}  // namespace keldor::headless
