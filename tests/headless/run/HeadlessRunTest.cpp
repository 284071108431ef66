#include "app/headless/HeadlessRun.h"

#include <gtest/gtest.h>

#include <sstream>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

namespace keldor::headless {
namespace {

struct InProcessRun {
  explicit InProcessRun(QStringList arguments) {
    arguments.prepend("keldor-headless");
    status = RunHeadless(arguments, out, err);
  }
  int status = -1;
  std::ostringstream out;
  std::ostringstream err;
};

QByteArray ReadAll(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QJsonObject ReadJson(const QString& path) { return QJsonDocument::fromJson(ReadAll(path)).object(); }

class HeadlessRunTest : public ::testing::Test {
 protected:
  QString Path(const QString& name) const { return dir.filePath(name); }
  QTemporaryDir dir;
};

TEST_F(HeadlessRunTest, BadArgumentsExitWithStatusTwoNamingThem) {
  const QString unwritable = Path("no-such-folder/out.json");
  for (const auto& [arguments, named] : std::vector<std::pair<QStringList, std::string>>{
           {{"--ticks", "many"}, "--ticks"},
           {{"--grid", "500"}, "--grid"},
           {{"--wall", "31,2"}, "--wall 31,2"},
           {{"--grid", "10", "--food", "11,1"}, "--food 11,1"},
           {{"--frobnicate"}, "frobnicate"},
           {{"--seed"}, "--seed"},
           {{"--ant-size", "9"}, "--ant-size"},
           {{"--json", unwritable}, "--json"},
           {{"--csv", dir.path()}, "--csv"},
           {{"--png", dir.path()}, "--png"},
       }) {
    const InProcessRun run(arguments);
    EXPECT_EQ(run.status, ExitBadArguments) << named;
    EXPECT_NE(run.err.str().find(named), std::string::npos) << run.err.str();
    EXPECT_TRUE(run.out.str().empty()) << named;
  }
  EXPECT_FALSE(QFile::exists(unwritable));
}

TEST_F(HeadlessRunTest, WritesOneCsvRowPerTickAndTheFinalState) {
  const InProcessRun run({"--seed", "3", "--ticks", "20", "--csv", Path("t.csv"), "--json", Path("s.json")});
  ASSERT_EQ(run.status, ExitOk) << run.err.str();
  const QList<QByteArray> lines = ReadAll(Path("t.csv")).trimmed().split('\n');
  ASSERT_EQ(lines.size(), 21);
  EXPECT_EQ(lines[0], "tick,Population,NestCount,FoodPileCount,FoodOnMap,FoodStored,Carrying,ScentedCells");
  EXPECT_TRUE(lines[20].startsWith("20,"));

  const QJsonObject json = ReadJson(Path("s.json"));
  EXPECT_EQ(json["Tick"].toInt(), 20);
  EXPECT_TRUE(json["Running"].toBool());
  // The last row describes the state the JSON holds.
  const QList<QByteArray> last = lines[20].split(',');
  EXPECT_EQ(last[1].toInt(), json["Population"].toInt());
  EXPECT_EQ(last[2].toInt(), json["NestCount"].toInt());
  EXPECT_EQ(last[3].toInt(), json["FoodPiles"].toArray().size());
  EXPECT_NE(run.out.str().find("20 ticks"), std::string::npos) << run.out.str();
}

TEST_F(HeadlessRunTest, PopulationLimitIsReportedOnStandardErrorAndPressesPlayPause) {
  const InProcessRun running({"--seed", "5", "--ants-per-nest", "2000", "--ticks", "1", "--json", Path("r.json")});
  ASSERT_EQ(running.status, ExitOk);
  EXPECT_NE(running.err.str().find("Maximum ant population has been reached."), std::string::npos);
  EXPECT_FALSE(ReadJson(Path("r.json"))["Running"].toBool());

  // From paused, the same press resumes the world.
  const InProcessRun paused({"--seed", "5", "--ants-per-nest", "2000", "--paused", "--ticks", "1", "--json", Path("p.json")});
  ASSERT_EQ(paused.status, ExitOk);
  EXPECT_TRUE(ReadJson(Path("p.json"))["Running"].toBool());
}

}  // namespace
}  // namespace keldor::headless
