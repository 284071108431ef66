#include "snapshot/StateJson.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <sstream>

#include "app/headless/TickCsv.h"
#include "support/TestWorld.h"
#include "window/WindowState.h"

namespace keldor::headless {
namespace {

using keldor::testing::TestWorld;

QJsonObject RoundTrip(const World& w, int64_t tick) {
  const WindowState window;
  return QJsonDocument::fromJson(QJsonDocument(StateJson(w, window, ResumeState{tick, {}, std::nullopt})).toJson())
      .object();
}

TEST(StateJsonTest, ContainersRoundTripWithTheirCountsAndFields) {
  TestWorld t(7);
  World& w = t.world;
  Nest& nest = w.Nests[0];
  nest.Ants[3].Energy = 0;  // a dead ant keeps its record
  w.Cells(2, 5).Scent = -17.5;
  w.Cells(2, 5).Signature = Signature::Unmarked();
  WallObject& wall = w.Walls.Append();
  wall.TypeName = PlasterBrickType;
  wall.ShapeCount = 1;
  wall.Shapes.resize(2);
  wall.Shapes[0].Material = "CaSO4";
  wall.Shapes[0].Points[2] = {3 * w.Settings.CellSize, 4 * w.Settings.CellSize};
  w.Cells(3, 4).Objects.Append() = wall;
  const QJsonObject json = RoundTrip(w, 42);

  EXPECT_EQ(json["Tick"].toInteger(), 42);
  const QJsonArray cells = json["Cells"].toArray();
  ASSERT_EQ(cells.size(), 30 * 30);
  // Column by column: (2, 5) follows the first column.
  const QJsonObject scented = cells[30 + 4].toObject();
  EXPECT_TRUE(scented["X"].toInt() == 2 && scented["Y"].toInt() == 5);
  EXPECT_EQ(scented["Scent"].toDouble(), -17.5);
  EXPECT_EQ(scented["Signature"].toString(), "0000000000000000");
  EXPECT_EQ(cells[0].toObject()["Signature"].toString(), "");

  const QJsonArray nests = json["Nests"].toArray();
  ASSERT_EQ(nests.size(), json["NestCount"].toInt());
  const QJsonObject n = nests[0].toObject();
  EXPECT_EQ(n["Signature"].toString().toStdString(), nest.Signature.ToString());
  const QJsonArray ants = n["Ants"].toArray();
  ASSERT_EQ(ants.size(), 30);
  EXPECT_EQ(ants[3].toObject()["Energy"].toDouble(), 0);
  EXPECT_EQ(ants[5].toObject()["RearX"].toDouble(), nest.Ants[5].RearX);  // doubles survive exactly

  const QJsonArray piles = json["FoodPiles"].toArray();
  ASSERT_EQ(piles.size(), json["FoodPileCount"].toInt());
  ASSERT_GT(piles.size(), 0);
  EXPECT_EQ(piles[0].toObject()["Amount"].toDouble(), w.FoodPiles[0].Amount);

  const QJsonArray walls = json["Walls"].toArray();
  ASSERT_EQ(walls.size(), json["WallCount"].toInt());
  const QJsonArray shapes = walls[0].toObject()["Shapes"].toArray();
  ASSERT_EQ(shapes.size(), 2);
  EXPECT_EQ(shapes[0].toObject()["Material"].toString(), "CaSO4");
  const QJsonArray points = shapes[0].toObject()["Points"].toArray();
  ASSERT_EQ(points.size(), 5);
  EXPECT_EQ(points[2].toObject()["X"].toDouble(), 3 * w.Settings.CellSize);
  EXPECT_EQ(cells[2 * 30 + 3].toObject()["Objects"].toArray(), QJsonArray({walls[0]}));  // the cell's copy

}

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
