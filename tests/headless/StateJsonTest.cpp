#include "app/headless/StateJson.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>

#include "support/TestWorld.h"

namespace keldor::headless {
namespace {

using keldor::testing::TestWorld;

QJsonObject RoundTrip(const QJsonObject& json) {
  return QJsonDocument::fromJson(QJsonDocument(json).toJson()).object();
}

TEST(StateJsonTest, NamesEverySettingAndWindowStateField) {
  TestWorld t;
  const QJsonObject json = StateJson(t.world, 0);
  for (const char* name :
       {"GridX", "GridY", "CellSize", "ScaleX", "ScaleY", "SpreadFoodAmount", "CellFoodCapacity", "NestCount",
        "Population", "AntsPerNest", "AntSizeMm", "AntRed", "AntGreen", "AntBlue", "AntColour", "LifeSpan",
        "FoodRate", "FoodScentMax", "NestScentMax", "FoodTraceSetting", "NestTraceSetting", "CurrentTool",
        "ToolColour", "Running", "MouseButton", "MouseHeld", "AntSizeTwips", "NestRadius", "ZoomX", "ZoomY",
        "AntBodyArea", "ShowOdor", "ShowAnts", "FoodPileCount", "WallCount", "FoodChance", "ViewCentreX",
        "ViewCentreY", "MouseX", "MouseY", "CursorCellX", "CursorCellY", "Tick", "Cells", "Nests", "FoodPiles",
        "Walls"}) {
    EXPECT_TRUE(json.contains(name)) << name;
  }
  EXPECT_EQ(json["GridX"].toInt(), 30);
  EXPECT_EQ(json["Population"].toInt(), 30);
  EXPECT_EQ(json["ShowAnts"].toInt(), 1);
  EXPECT_EQ(json["Running"].toBool(), false);
  EXPECT_EQ(json["FoodScentMax"].toInt(), 500);
}

TEST(StateJsonTest, ContainersRoundTripWithTheirCountsAndFields) {
  TestWorld t(7);
  World& w = t.world;
  Nest& nest = w.Nests[0];
  nest.Ants[3].Energy = 0;  // a dead ant keeps its record
  nest.FoodStore = 12.25;
  w.Cells(2, 5).Scent = -17.5;
  w.Cells(2, 5).Signature = Signature::Unmarked();
  const QJsonObject json = RoundTrip(StateJson(w, 42));

  EXPECT_EQ(json["Tick"].toInteger(), 42);
  const QJsonArray cells = json["Cells"].toArray();
  ASSERT_EQ(cells.size(), 30 * 30);
  // Column by column: the second entry is (1, 2); (2, 5) follows the first column.
  EXPECT_EQ(cells[1].toObject()["X"].toInt(), 1);
  EXPECT_EQ(cells[1].toObject()["Y"].toInt(), 2);
  const QJsonObject scented = cells[30 + 4].toObject();
  EXPECT_EQ(scented["X"].toInt(), 2);
  EXPECT_EQ(scented["Y"].toInt(), 5);
  EXPECT_EQ(scented["Scent"].toDouble(), -17.5);
  EXPECT_EQ(scented["Signature"].toString(), "0000000000000000");
  EXPECT_EQ(cells[0].toObject()["Signature"].toString(), "");

  const QJsonArray nests = json["Nests"].toArray();
  ASSERT_EQ(nests.size(), json["NestCount"].toInt());
  const QJsonObject n = nests[0].toObject();
  EXPECT_EQ(n["Name"].toString(), "NEST_0");
  EXPECT_EQ(n["Signature"].toString().toStdString(), nest.Signature.ToString());
  EXPECT_EQ(n["FoodStore"].toDouble(), 12.25);
  const QJsonArray ants = n["Ants"].toArray();
  ASSERT_EQ(ants.size(), n["AntCount"].toInt());
  ASSERT_EQ(ants.size(), 30);
  EXPECT_EQ(ants[3].toObject()["Energy"].toDouble(), 0);
  // Every double survives the text form exactly.
  EXPECT_EQ(ants[5].toObject()["RearX"].toDouble(), nest.Ants[5].RearX);
  EXPECT_EQ(ants[5].toObject()["Energy"].toDouble(), nest.Ants[5].Energy);
  EXPECT_EQ(ants[0].toObject()["Length"].toDouble(), nest.Radius);

  const QJsonArray piles = json["FoodPiles"].toArray();
  ASSERT_EQ(piles.size(), json["FoodPileCount"].toInt());
  ASSERT_GT(piles.size(), 0);
  const QJsonObject pile = piles[0].toObject();
  EXPECT_EQ(pile["Amount"].toDouble(), w.FoodPiles[0].Amount);
  EXPECT_EQ(pile["SpreadBudget"].toInt(), w.FoodPiles[0].SpreadBudget);
}

TEST(StateJsonTest, WallsNestTheirShapesAndPoints) {
  TestWorld t;
  World& w = t.world;
  WallObject wall;
  wall.TypeName = PlasterBrickType;
  wall.X = 3;
  wall.Y = 4;
  wall.ShapeCount = 1;
  wall.Shapes.resize(2);
  wall.Shapes[0].Colour = Rgb(235, 235, 235);
  wall.Shapes[0].Material = "CaSO4";
  wall.Shapes[0].Points[2] = {3 * w.Settings.CellSize, 4 * w.Settings.CellSize};
  w.Walls.Append() = wall;
  w.Cells(3, 4).Objects.Append() = wall;
  const QJsonObject json = RoundTrip(StateJson(w, 0));

  EXPECT_EQ(json["WallCount"].toInt(), 1);
  const QJsonArray walls = json["Walls"].toArray();
  ASSERT_EQ(walls.size(), 1);
  const QJsonObject brick = walls[0].toObject();
  EXPECT_EQ(brick["TypeName"].toString(), "PLASTER_BRICK");
  EXPECT_EQ(brick["ShapeCount"].toInt(), 1);
  const QJsonArray shapes = brick["Shapes"].toArray();
  ASSERT_EQ(shapes.size(), 2);
  EXPECT_EQ(shapes[0].toObject()["Material"].toString(), "CaSO4");
  const QJsonArray points = shapes[0].toObject()["Points"].toArray();
  ASSERT_EQ(points.size(), 5);
  EXPECT_EQ(points[2].toObject()["X"].toDouble(), 3 * w.Settings.CellSize);

  const QJsonObject cell = json["Cells"].toArray()[2 * 30 + 3].toObject();
  EXPECT_EQ(cell["ObjectCount"].toInt(), 1);
  EXPECT_EQ(cell["Objects"].toArray()[0].toObject(), brick);
}

TEST(StateJsonTest, SameSeedSameDocumentOtherSeedAnother) {
  const QByteArray a = QJsonDocument(StateJson(TestWorld(5).world, 0)).toJson();
  const QByteArray b = QJsonDocument(StateJson(TestWorld(5).world, 0)).toJson();
  const QByteArray c = QJsonDocument(StateJson(TestWorld(6).world, 0)).toJson();
  EXPECT_EQ(a, b);
  EXPECT_NE(a, c);
}

}  // namespace
}  // namespace keldor::headless
