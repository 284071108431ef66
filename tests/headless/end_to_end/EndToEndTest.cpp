// Runs the real keldor-headless executable as a user would.
#include <gtest/gtest.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

namespace {

struct Process {
  explicit Process(const QStringList& arguments) {
    QProcess p;
    p.start(KELDOR_HEADLESS_EXECUTABLE, arguments);
    finished = p.waitForFinished(120000);
    status = p.exitCode();
    crashed = p.exitStatus() == QProcess::CrashExit;
    out = p.readAllStandardOutput();
    err = p.readAllStandardError();
  }
  bool finished = false;
  bool crashed = false;
  int status = -1;
  QByteArray out;
  QByteArray err;
};

TEST(EndToEndTest, SeededRunWritesAConsistentState) {
  QTemporaryDir dir;
  const QString json = dir.filePath("out.json");
  const Process run({"--seed", "3", "--ticks", "50", "--json", json});
  ASSERT_TRUE(run.finished);
  ASSERT_FALSE(run.crashed);
  ASSERT_EQ(run.status, 0) << run.err.toStdString();
  EXPECT_TRUE(run.out.startsWith("keldor-headless: 50 ticks, population ")) << run.out.toStdString();

  QFile file(json);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QJsonObject state = QJsonDocument::fromJson(file.readAll()).object();
  EXPECT_EQ(state["Tick"].toInt(), 50);
  EXPECT_EQ(state["Cells"].toArray().size(), state["GridX"].toInt() * state["GridY"].toInt());
  EXPECT_EQ(state["FoodPiles"].toArray().size(), state["FoodPileCount"].toInt());
  EXPECT_EQ(state["Walls"].toArray().size(), state["WallCount"].toInt());
  const QJsonArray nests = state["Nests"].toArray();
  ASSERT_EQ(nests.size(), state["NestCount"].toInt());

  // Population counts the living ants, and each cell's AntCount the living ants on it.
  int living = 0;
  std::map<std::pair<int, int>, int> antsOnCell;
  for (const QJsonValue& nest : nests) {
    const QJsonArray ants = nest.toObject()["Ants"].toArray();
    EXPECT_EQ(ants.size(), nest.toObject()["AntCount"].toInt());
    for (const QJsonValue& ant : ants) {
      const QJsonObject a = ant.toObject();
      if (a["Energy"].toDouble() <= 0) continue;
      ++living;
      ++antsOnCell[{a["CellX"].toInt(), a["CellY"].toInt()}];
    }
  }
  EXPECT_EQ(living, state["Population"].toInt());
  for (const QJsonValue& cell : state["Cells"].toArray()) {
    const QJsonObject c = cell.toObject();
    const auto found = antsOnCell.find({c["X"].toInt(), c["Y"].toInt()});
    EXPECT_EQ(c["AntCount"].toInt(), found == antsOnCell.end() ? 0 : found->second);
  }
}

TEST(EndToEndTest, SameSeedSameFileAndBadArgumentsExitWithTwo) {
  QTemporaryDir dir;
  const Process a({"--seed", "9", "--ticks", "25", "--json", dir.filePath("a.json")});
  const Process b({"--seed", "9", "--ticks", "25", "--json", dir.filePath("b.json")});
  ASSERT_EQ(a.status, 0);
  ASSERT_EQ(b.status, 0);
  QFile fa(dir.filePath("a.json")), fb(dir.filePath("b.json"));
  ASSERT_TRUE(fa.open(QIODevice::ReadOnly) && fb.open(QIODevice::ReadOnly));
  EXPECT_EQ(fa.readAll(), fb.readAll());

  const Process bad({"--grid", "abc"});
  EXPECT_FALSE(bad.crashed);
  EXPECT_EQ(bad.status, 2);
  EXPECT_TRUE(bad.err.contains("--grid")) << bad.err.toStdString();
}

}  // namespace
