// World files written and read back: the same world, the checks naming the
// field, hostile documents, files from before serials and seeds were kept,
// and the file access around them.
#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <fstream>
#include <functional>
#include <utility>
#include <vector>

#include <nlohmann/json.hpp>

#include "support/TestWorld.h"
#include "worldfile/WorldFile.h"
#include "worldfile/WorldFileIo.h"

namespace keldor {
namespace {

using Json = nlohmann::json;

struct Loaded {
  World world;
  WindowRecord window;
  ResumeState resume;
  std::optional<std::string> fault;
};

Loaded Read(std::string_view text) {
  Loaded loaded;
  loaded.fault = ReadWorldFileText(text, loaded.world, loaded.window, loaded.resume);
  return loaded;
}

class WorldFileTest : public ::testing::Test {
 protected:
  WorldFileTest() {
    const WallObject brick{PlasterBrickType, 2, 3, 1, {WallShape{}, WallShape{}}};
    saved_.world.Walls.Append() = brick;
    saved_.world.Cells(2, 3).Objects.Add(brick);
    resume_ = ResumeState{200, {1, 2, 3, UINT64_MAX}, 25069.5, 42};
    text_ = WorldFileText(saved_.world, saved_.window, resume_);
  }

  // The fault of the saved document after change.
  std::string FaultAfter(const std::function<void(Json&)>& change) const {
    Json document = Json::parse(text_);
    change(document);
    const Loaded loaded = Read(document.dump());
    return loaded.fault.value_or("(read)");
  }

  testing::TestWorld saved_{7};
  ResumeState resume_;
  std::string text_;
};

TEST_F(WorldFileTest, AWorldReadBackIsWrittenAsTheSameText) {
  const Loaded loaded = Read(text_);
  ASSERT_FALSE(loaded.fault) << *loaded.fault;
  EXPECT_EQ(WorldFileText(loaded.world, loaded.window, loaded.resume), text_);
  EXPECT_EQ(loaded.resume.Seed, 42u);
  resume_.Seed = UINT64_MAX;  // written whole, not as a double
  const std::string text = WorldFileText(saved_.world, saved_.window, resume_);
  EXPECT_NE(text.find("\"Seed\": 18446744073709551615,"), std::string::npos);
  EXPECT_EQ(Read(text).resume.Seed, UINT64_MAX);
}

TEST_F(WorldFileTest, BadFieldsAreRefusedNamingThem) {
  EXPECT_EQ(FaultAfter([](Json& s) { s["Running"] = "yes"; }), "Running: not true or false");
  EXPECT_EQ(FaultAfter([](Json& s) { s["View"]["MapBoxWidth"] = 2001; }), "View.MapBoxWidth: must be 2000");
  EXPECT_EQ(FaultAfter([](Json& s) { s["MouseX"] = 1e39; }), "MouseX: outside the single-precision range");
  EXPECT_EQ(FaultAfter([](Json& s) { s["ClockTime"] = 86400; }), "ClockTime: not a time of day in seconds");
  EXPECT_EQ(FaultAfter([](Json& s) { s["Seed"] = -1; }), "Seed: not null or a whole number from 0 to 2^64 - 1");
  EXPECT_EQ(FaultAfter([](Json& s) { s["RandomState"][2] = "12345678abcdefgh"; }),
            "RandomState: not four words of 16 hex digits");
  EXPECT_EQ(FaultAfter([](Json& s) { s["Walls"][0]["Shapes"][1]["Points"] = Json::array(); }),
            "Walls[0].Shapes[1].Points: holds 0 items where 5 are expected");
  EXPECT_EQ(FaultAfter([](Json& s) { s["Cells"][4]["Objects"] = Json::object(); }), "Cells[4].Objects: not a list");
  EXPECT_EQ(FaultAfter([](Json& s) { s["Nests"][0]["Ants"][1] = 3; }), "Nests[0].Ants[1]: not an object");
  // Versions, ranges, presence, list lengths and formats, each named.
  const std::pair<std::function<void(Json&)>, std::string> named[] = {
      {[](Json& s) { s["FormatVersion"] = 2; }, "FormatVersion: not a whole number from 1 to 1"},
      {[](Json& s) { s["GridX"] = 182; }, "GridX: not a whole number from 1 to 181"},
      {[](Json& s) { s.erase("Running"); }, "Running: missing"},
      {[](Json& s) { s["FoodPileCount"] = s["FoodPileCount"].get<int>() + 1; }, "FoodPiles: holds"},
      {[](Json& s) { s["Cells"] = Json::array(); }, "Cells: holds 0 items where 900 are expected"},
      {[](Json& s) { s["Nests"][0]["CellX"] = 31; }, "Nests[0].CellX: not a whole number from 1 to 30"},
      {[](Json& s) { s["Nests"][0]["Signature"] = "0120"; }, "Nests[0].Signature: not a signature"},
      {[](Json& s) { s["Nests"][0]["Colour"] = 16777216; }, "Nests[0].Colour: not a whole number from 0 to 16777215"},
      {[](Json& s) { s["Nests"][0]["Ants"][3]["CellY"] = -1; }, "Nests[0].Ants[3].CellY: not a whole number from 0 to 31"},
  };
  for (const auto& [change, name] : named) EXPECT_EQ(FaultAfter(change).find(name), 0u) << FaultAfter(change);
  // The count is checked against the list before room is made for it.
  EXPECT_EQ(FaultAfter([](Json& s) { s["Nests"][0]["AntCount"] = 32767; }),
            "Nests[0].Ants: holds " + std::to_string(saved_.world.Nests[0].AntCount()) + " items where 32767 are expected");
}

// One edit per rule a world the program makes keeps. The saved world is New's
// 30 x 30 grid (cells 2000 / 30 wide) with one nest of 30 living ants on cell
// (15, 15), the 435th in the list, and a brick on cell (2, 3), the 33rd.
TEST_F(WorldFileTest, WorldsTheProgramCannotMakeAreRefusedNamingTheRule) {
  const std::string outside = "outside the world";
  const std::string noFood = "not from 0 to a cell's food capacity";
  const std::vector<std::pair<std::function<void(Json&)>, std::string>> cases = {
      {[](Json& s) { s["CellSize"] = 0.5; }, "CellSize: not 2000 / GridX, the cell size New makes"},
      {[](Json& s) { s["ScaleY"] = 5; }, "ScaleY: not 10, the scale New makes"},
      {[](Json& s) { s["Nests"][0]["Ants"][1]["HeadX"] = 2500; }, "Nests[0].Ants[1].HeadX: " + outside},
      {[](Json& s) { s["Nests"][0]["Ants"][2]["HeadY"] = -32768; }, "Nests[0].Ants[2].HeadY: " + outside},
      {[](Json& s) { s["Nests"][0]["Ants"][0]["RearX"] = s["Nests"][0]["Ants"][0]["RearX"].get<double>() + 1; },
       "Nests[0].Ants[0].RearX: not the ant's length from its head"},
      {[](Json& s) { s["Nests"][0]["Ants"][4]["Length"] = 0; },
       "Nests[0].Ants[4].Length: not above 0 and at most the radius of a new nest"},
      {[](Json& s) { s["Population"] = 0; }, "Population: 0 where the nests hold 30 living ants"},
      {[](Json& s) { s["Population"] = 32767; }, "Population: 32767 where the nests hold 30 living ants"},
      {[](Json& s) { s["NestCount"] = 0; s["Nests"] = Json::array(); },
       "Population: 30 where the nests hold 0 living ants"},
      {[](Json& s) { s["Cells"][434]["AntCount"] = 29; }, "Cells[434].AntCount: 29 where 30 living ants stand on cell (15, 15)"},
      {[](Json& s) { s["Cells"][435]["AntCount"] = 1; }, "Cells[435].AntCount: 1 where 0 living ants stand on cell (15, 16)"},
      {[](Json& s) { s["WallCount"] = 0; s["Walls"] = Json::array(); },
       "Cells[32].Objects: not the 0 walls that Walls puts on cell (2, 3)"},
      {[](Json& s) { s["Cells"][32]["ObjectCount"] = 0; s["Cells"][32]["Objects"] = Json::array(); },
       "Cells[32].Objects: not the 1 walls that Walls puts on cell (2, 3)"},
      {[](Json& s) { s["Cells"][31]["Y"] = 3; }, "Cells[31].Y: not a whole number from 2 to 2"},
      {[](Json& s) { s["Cells"][0]["Food"] = -1; }, "Cells[0].Food: " + noFood},
      // A cell holds pi x (2000 / 30 / 2 x 10)^2 = 349065.85 at most.
      {[](Json& s) { s["FoodPiles"][0]["Amount"] = 349066; }, "FoodPiles[0].Amount: " + noFood},
      {[](Json& s) { s["Nests"][0]["FoodStore"] = -0.5; }, "Nests[0].FoodStore: below 0"},
      {[](Json& s) { s["Nests"][0]["Ants"][3]["Load"] = -1; }, "Nests[0].Ants[3].Load: below 0"},
      {[](Json& s) { s["Nests"][0]["LifeSpan"] = 101; }, "Nests[0].LifeSpan: not a whole number from 1 to 100"},
      {[](Json& s) { s["LifeSpan"] = 0; }, "LifeSpan: not a whole number from 1 to 100"},
      {[](Json& s) { s["FoodRate"] = -1; }, "FoodRate: not a whole number from 0 to 100"},
      {[](Json& s) { s["AntGreen"] = 256; }, "AntGreen: not a whole number from 0 to 255"},
      {[](Json& s) { s["NestScentMax"] = 0; }, "NestScentMax: not a whole number from 1 to 500"},
      {[](Json& s) { s["FoodTraceSetting"] = 501; }, "FoodTraceSetting: not a whole number from 0 to 500"},
      {[](Json& s) { s["AntSizeMm"] = -1; }, "AntSizeMm: not above 0 and at most the radius of a new nest"},
      // A 30-cell grid's nest radius is 2000 / 30 / 2 x 10 twips: 5.88 mm, shown as 5.9.
      {[](Json& s) { s["AntSizeMm"] = 5.95; }, "AntSizeMm: not above 0 and at most the radius of a new nest"},
      {[](Json& s) { s["ZoomX"] = 1e300; }, "ZoomX: not a whole number from 2 to 32767, a zoom the zoom buttons reach"},
      {[](Json& s) { s["ZoomX"] = 10.5; }, "ZoomX: not a whole number from 2 to 32767, a zoom the zoom buttons reach"},
      {[](Json& s) { s["ZoomY"] = 11; }, "ZoomY: not ZoomX: the zoom buttons change both alike"},
  };
  for (const auto& [edit, fault] : cases) EXPECT_EQ(FaultAfter(edit), fault);
  // The largest ant the dialog keeps on this grid is still read.
  EXPECT_EQ(FaultAfter([](Json& s) { s["AntSizeMm"] = 5.9; }), "(read)");
  // A key given twice would let the last one win unseen.
  std::string twice = text_;
  twice.insert(1, "\"Tick\": 5,");
  EXPECT_EQ(Read(twice).fault, "Tick: given twice");
}

TEST_F(WorldFileTest, HostileDocumentsAreRefusedWithoutBuildingThem) {
  EXPECT_EQ(Read(std::string(1'000'000, '[')).fault, "not a world state: nested deeper than 32 levels");
  for (const std::string& text : {std::string("{\"GridX\": NaN}"), text_.substr(0, 5000), std::string("")}) {
    EXPECT_EQ(Read(text).fault.value_or("").rfind("not a world state: ", 0), 0u) << text.substr(0, 40);
  }
  EXPECT_EQ(Read("[1]").fault, "not a world state: the document is not an object");
  std::string huge = text_;
  huge.replace(huge.find("\"Food\": ", huge.find("\"Cells\"")) + 8, 1, "-1e999");
  EXPECT_EQ(Read(huge).fault, "Cells[0].Food: not a number");
  // A value that is not finite is written as null and refused on reading.
  saved_.world.FoodChance = std::nan("");
  EXPECT_EQ(Read(WorldFileText(saved_.world, saved_.window, resume_)).fault, "FoodChance: not a number");
}

TEST_F(WorldFileTest, SerialsAreUniqueAndNotPastLastSerial) {
  EXPECT_EQ(FaultAfter([](Json& s) { s["Nests"][0]["Ants"][1]["Serial"] = s["Nests"][0]["Ants"][0]["Serial"]; }),
            "Nests[0].Ants[1].Serial: not unique");
  EXPECT_EQ(FaultAfter([](Json& s) { s["LastSerial"] = 0; }), "Nests[0].Serial: not a whole number from 0 to 0");
  EXPECT_EQ(FaultAfter([](Json& s) { s["Nests"][0].erase("Serial"); }), "Nests[0].Serial: missing");
  // The spare slot may repeat a live ant's serial: it holds a moved ant's fields.
  EXPECT_EQ(FaultAfter([](Json& s) { s["Nests"][0]["SpareAnt"]["Serial"] = s["Nests"][0]["Ants"][0]["Serial"]; }),
            "(read)");
}

TEST_F(WorldFileTest, FilesWithoutSerialsOrSeedGetSerialsInFileOrder) {
  Json document = Json::parse(text_);
  document.erase("LastSerial");
  document.erase("Seed");
  for (Json& nest : document["Nests"]) {
    nest.erase("Serial");
    nest["SpareAnt"].erase("Serial");
    for (Json& ant : nest["Ants"]) ant.erase("Serial");
  }
  const Loaded loaded = Read(document.dump());
  ASSERT_FALSE(loaded.fault) << *loaded.fault;
  EXPECT_EQ(loaded.resume.Seed, std::nullopt);
  // Each nest, then its ants: 1, 2, 3, ...
  uint32_t next = 1;
  for (int n = 0; n < loaded.world.NestCount; ++n) {
    const Nest& nest = loaded.world.Nests[static_cast<size_t>(n)];
    EXPECT_EQ(nest.Serial, next++);
    for (const Ant& ant : nest.Ants) EXPECT_EQ(ant.Serial, next++);
    EXPECT_EQ(nest.Ants[nest.AntCount()].Serial, 0u);
  }
  EXPECT_EQ(loaded.world.LastSerial, next - 1);
}

TEST_F(WorldFileTest, FilesAreReplacedWholeOrNotAtAll) {
  const std::filesystem::path dir = std::filesystem::path(::testing::TempDir()) / "world-file-test";
  std::filesystem::remove_all(dir);
  std::filesystem::create_directories(dir / "taken");
  const std::string path = (dir / "world.json").string();
  ASSERT_EQ(WriteWorldFile(path, saved_.world, saved_.window, resume_), std::nullopt);
  Loaded loaded;
  ASSERT_EQ(ReadWorldFile(path, loaded.world, loaded.window, loaded.resume), std::nullopt);
  EXPECT_EQ(WorldFileText(loaded.world, loaded.window, loaded.resume), text_);

  // A directory in the way is neither read nor replaced, and no temporary file stays.
  const std::string taken = (dir / "taken").string();
  EXPECT_EQ(ReadWorldFile(taken, loaded.world, loaded.window, loaded.resume),
            "cannot read '" + taken + "': it is a directory");
  EXPECT_NE(WriteWorldFile(taken, saved_.world, saved_.window, resume_), std::nullopt);
  EXPECT_TRUE(std::filesystem::is_directory(taken));
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(dir), {}), 2);
  EXPECT_EQ(ReadWorldFile("/dev/null", loaded.world, loaded.window, loaded.resume),
            "cannot read '/dev/null': not a regular file");
  std::ofstream(path) << "{";
  const std::string fault = ReadWorldFile(path, loaded.world, loaded.window, loaded.resume).value_or("");
  EXPECT_EQ(fault.rfind("'" + path + "': not a world state", 0), 0u);
  std::filesystem::remove_all(dir);
}

}  // namespace
}  // namespace keldor
