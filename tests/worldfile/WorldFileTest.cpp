// World files written and read back: the same world, the checks naming the
// field, hostile documents, files from before serials and seeds were kept,
// and the file access around them.
#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <fstream>
#include <functional>

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
    saved_.world.Walls.Append() = WallObject{PlasterBrickType, 2, 3, 1, {WallShape{}, WallShape{}}};
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
  EXPECT_EQ(FaultAfter([](Json& s) { s["CellSize"] = 1000; }).substr(0, 28), "CellFoodCapacity: must be 78");
  EXPECT_EQ(FaultAfter([](Json& s) { s["Walls"][0]["Shapes"][1]["Points"] = Json::array(); }),
            "Walls[0].Shapes[1].Points: holds 0 items where 5 are expected");
  EXPECT_EQ(FaultAfter([](Json& s) { s["Cells"][4]["Objects"] = Json::object(); }), "Cells[4].Objects: not a list");
  EXPECT_EQ(FaultAfter([](Json& s) { s["Nests"][0]["Ants"][1] = 3; }), "Nests[0].Ants[1]: not an object");
  // The count is checked against the list before room is made for it.
  EXPECT_EQ(FaultAfter([](Json& s) { s["Nests"][0]["AntCount"] = 32767; }),
            "Nests[0].Ants: holds " + std::to_string(saved_.world.Nests[0].AntCount()) + " items where 32767 are expected");
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
