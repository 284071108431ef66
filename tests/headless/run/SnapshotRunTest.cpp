// Saved worlds resumed, damaged world state files, and output files that a
// failed run must leave as they were.
#include <gtest/gtest.h>

#include <QDir>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include "headless/run/InProcessRun.h"

namespace keldor::headless {
namespace {

void Write(const QString& path, const QByteArray& text) {
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(text);
}

TEST(SnapshotRunTest, DamagedFilesAndWorldOptionsAreRefusedNamingTheField) {
  QTemporaryDir dir;
  const QString good = dir.filePath("good.json"), bad = dir.filePath("bad.json"), out = dir.filePath("out.json");
  ASSERT_EQ(InProcessRun({"--seed", "9", "--grid", "6", "--ticks", "5", "--wall", "2,2", "--json", good}).status, ExitOk);
  const QJsonObject state = QJsonDocument::fromJson(ReadAll(good)).object();
  const auto changed = [&](const std::function<void(QJsonObject&)>& change) {
    QJsonObject copy = state;
    change(copy);
    return QJsonDocument(copy).toJson();
  };
  const auto inFirstNest = [](QJsonObject& s, const std::function<void(QJsonObject&)>& change) {
    QJsonArray nests = s["Nests"].toArray();
    QJsonObject nest = nests[0].toObject();
    change(nest);
    nests[0] = nest;
    s["Nests"] = nests;
  };
  const std::pair<QByteArray, std::string> cases[] = {
      {ReadAll(good).left(5000), "not a world state"},  // truncated
      {changed([](QJsonObject& s) { s["FormatVersion"] = 2; }), "FormatVersion: not a whole number from 1 to 1"},
      {changed([](QJsonObject& s) { s["GridX"] = 182; }), "GridX: not a whole number from 1 to 181"},
      {changed([](QJsonObject& s) { s["NestCount"] = 32768; }), "NestCount: not a whole number from 0 to 32767"},
      {changed([](QJsonObject& s) { s.remove("Running"); }), "Running: missing"},
      {changed([](QJsonObject& s) { s["FoodPileCount"] = s["FoodPileCount"].toInt() + 1; }), "FoodPiles: holds"},
      {changed([](QJsonObject& s) { s["Cells"] = QJsonArray(); }), "Cells: holds 0 items where 36 are expected"},
      {changed([](QJsonObject& s) { s["RandomState"] = QJsonArray{"1", "2", "3", "4"}; }), "RandomState: not four"},
      {changed([&](QJsonObject& s) { inFirstNest(s, [](QJsonObject& n) { n["CellX"] = 7; }); }),
       "Nests[0].CellX: not a whole number from 1 to 6"},
      {changed([&](QJsonObject& s) { inFirstNest(s, [](QJsonObject& n) { n["Signature"] = "0120"; }); }),
       "Nests[0].Signature: not a signature"},
      {changed([&](QJsonObject& s) { inFirstNest(s, [](QJsonObject& n) { n["Colour"] = 16777216; }); }),
       "Nests[0].Colour: not a whole number from 0 to 16777215"},  // one past white, 2^24 - 1
      {changed([&](QJsonObject& s) {
         inFirstNest(s, [](QJsonObject& n) {
           QJsonArray ants = n["Ants"].toArray();
           QJsonObject ant = ants[3].toObject();
           ant["CellY"] = -1;  // the ring around the world is row 0
           ants[3] = ant;
           n["Ants"] = ants;
         });
       }),
       "Nests[0].Ants[3].CellY: not a whole number from 0 to 7"},
      {changed([](QJsonObject& s) {
         QJsonArray walls = s["Walls"].toArray();
         QJsonObject wall = walls[0].toObject();
         wall["Shapes"] = QJsonArray{};
         walls[0] = wall;
         s["Walls"] = walls;
       }),
       "Walls[0].Shapes: holds 0 items where 2 are expected"}};
  for (const auto& [text, named] : cases) {
    Write(bad, text);
    const InProcessRun run({"--load", bad, "--ticks", "3", "--json", out});
    EXPECT_EQ(run.status, ExitBadArguments) << named;
    EXPECT_NE(run.err.str().find(named), std::string::npos) << run.err.str();
  }
  // A world saved paused stays paused unless --play presses Play.
  const QString paused = dir.filePath("paused.json"), resumed = dir.filePath("resumed.json");
  ASSERT_EQ(InProcessRun({"--seed", "9", "--grid", "6", "--paused", "--ticks", "1", "--json", paused}).status, ExitOk);
  for (const bool play : {false, true}) {
    ASSERT_EQ(InProcessRun(QStringList{"--load", paused, "--json", resumed} + QStringList(play ? 1 : 0, "--play")).status, ExitOk);
    EXPECT_EQ(QJsonDocument::fromJson(ReadAll(resumed)).object()["Running"].toBool(), play);
  }
  const InProcessRun grid({"--load", good, "--grid", "10"});
  EXPECT_EQ(grid.status, ExitBadArguments);
  EXPECT_NE(grid.err.str().find("--grid: not with --load"), std::string::npos) << grid.err.str();
  EXPECT_FALSE(QFile::exists(out));
}

TEST(SafeOutputTest, FailedRunsLeaveEarlierFilesAsTheyWere) {
  QTemporaryDir dir;
  const QString out = dir.filePath("out"), run = dir.filePath("run.json");
  const QByteArray earlier = "an earlier result\n";
  const QStringList cases[] = {{"--json", out, "--csv", out},
                               {"--json", out, "--png", QDir(dir.path()).filePath("./out")},
                               {"--json", run, "--csv", "/nonexistent/t.csv"},
                               {"--json", run, "--ticks", "x"}};
  for (const QStringList& arguments : cases) {
    Write(out, earlier);
    Write(run, earlier);
    const InProcessRun failed(QStringList{"--seed", "1", "--ticks", "2"} + arguments);
    EXPECT_EQ(failed.status, ExitBadArguments) << arguments.join(' ').toStdString();
    EXPECT_EQ(ReadAll(out), earlier) << failed.err.str();
    EXPECT_EQ(ReadAll(run), earlier) << failed.err.str();
    EXPECT_EQ(QDir(dir.path()).entryList(QDir::Files).size(), 2) << "a temporary file stayed behind";
  }
}

TEST(FramesTest, EveryNthTickIsSavedAsTheFrameThatRunWouldEndOn) {
  QTemporaryDir dir;
  const QString frames = dir.filePath("frames");
  ASSERT_EQ(InProcessRun({"--seed", "2", "--ticks", "12", "--frames", frames, "--every", "5"}).status, ExitOk);
  // 12 ticks, every 5th: ticks 5 and 10.
  EXPECT_EQ(QDir(frames).entryList(QDir::Files), QStringList({"frame-000005.png", "frame-000010.png"}));
  ASSERT_EQ(InProcessRun({"--seed", "2", "--ticks", "10", "--png", dir.filePath("10.png")}).status, ExitOk);
  const QImage last(dir.filePath("10.png"));
  ASSERT_FALSE(last.isNull());
  EXPECT_EQ(QImage(QDir(frames).filePath("frame-000010.png")), last);
  EXPECT_EQ(InProcessRun({"--every", "5"}).status, ExitBadArguments);
}

}  // namespace
}  // namespace keldor::headless
