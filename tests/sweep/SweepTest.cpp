#include "app/sweep/Sweep.h"

#include <gtest/gtest.h>

#include <sys/resource.h>

#include <csignal>
#include <sstream>

#include <QFile>
#include <QTemporaryDir>

#include "Version.h"
#include "app/headless/FailureReport.h"
#include "app/headless/HeadlessRun.h"
#include "app/sweep/Experiment.h"
#include "app/sweep/ResultsFile.h"
#include "app/sweep/SweepOptions.h"

namespace keldor::sweep {
namespace {

// 2 food rates x 2 nest sizes x 3 repetitions: 12 runs.
constexpr const char* GridExperiment = R"({
  "options": {"grid": 12, "nest": ["3,3"]},
  "vary": {"food-rate": [2, 10], "ants-per-nest": {"first": 10, "step": 10, "last": 20}},
  "repetitions": 3, "seed": 5, "ticks": 40, "every": 20
})";

QByteArray ReadAll(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void Write(const QString& path, const QByteArray& text) {
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(text);
}

struct Sweep {
  Sweep(const QString& experiment, const QStringList& arguments) {
    std::vector<std::string> list{"keldor-sweep", experiment.toStdString()};
    for (const QString& argument : arguments) list.push_back(argument.toStdString());
    status = RunSweep(list, out, err, false);
  }
  int status;
  std::ostringstream out;
  std::ostringstream err;
};

class SweepTest : public testing::Test {
 protected:
  void SetUp() override { Write(experiment, GridExperiment); }
  QString Path(const QString& name) const { return dir.filePath(name); }
  QByteArray RunTable(const QString& name, const QStringList& arguments) {
    const Sweep sweep(experiment, QStringList{"--out", Path(name)} + arguments);
    EXPECT_EQ(sweep.status, 0) << sweep.err.str();
    return ReadAll(Path(name));
  }
  QTemporaryDir dir;
  QString experiment = dir.filePath("experiment.json");
};

TEST_F(SweepTest, TableIsTheSameForEveryJobCountAndShardsConcatenateToIt) {
  const QByteArray table = RunTable("one.csv", {"--jobs", "1"});
  const QList<QByteArray> lines = table.split('\n');
  ASSERT_EQ(lines.size(), 14);  // header, 12 rows, and the empty text after the last line end
  EXPECT_EQ(lines[0], "run,food-rate,ants-per-nest,seed,tick,Population,NestCount,FoodPileCount,FoodOnMap,"
                      "FoodStored,Carrying,ScentedCells");
  // Run 7 is repetition 7 % 3 = 1 of combination 7 / 3 = 2 (food rate 10, 10 ants): seed 5 + 1.
  EXPECT_TRUE(lines[8].startsWith("7,10,10,6,40,")) << lines[8].toStdString();
  EXPECT_EQ(RunTable("two.csv", {"--jobs", "2"}), table);

  const QList<QByteArray> first = RunTable("s1.csv", {"--shard", "1/2"}).split('\n');
  const QList<QByteArray> second = RunTable("s2.csv", {"--shard", "2/2", "--jobs", "2"}).split('\n');
  ASSERT_EQ(first.size(), 8);
  ASSERT_EQ(second.size(), 8);
  for (int row = 0; row < 12; ++row) EXPECT_EQ((row % 2 == 0 ? first : second)[1 + row / 2], lines[1 + row]);

  // Every 20 ticks of 40: the rows of ticks 20 and 40, the last one the table's.
  const QList<QByteArray> series = ReadAll(Path("one-run-000007.csv")).split('\n');
  ASSERT_EQ(series.size(), 4);
  EXPECT_TRUE(series[1].startsWith("20,"));
  EXPECT_TRUE(lines[8].endsWith("," + series[2]));
}

TEST_F(SweepTest, ARowIsTheLastCsvRowOfTheSameKeldorHeadlessRun) {
  const QList<QByteArray> rows = RunTable("t.csv", {}).split('\n');
  std::ostringstream out, err;
  ASSERT_EQ(headless::RunHeadless({"keldor-headless", "--grid", "12", "--nest", "3,3", "--food-rate", "10",
                                   "--ants-per-nest", "20", "--seed", "7", "--ticks", "40", "--csv",
                                   Path("h.csv").toStdString()},
                                  out, err),
            0);
  // Run 11: combination 3 (food rate 10, 20 ants), repetition 2, seed 7.
  const QList<QByteArray> headlessRows = ReadAll(Path("h.csv")).split('\n');
  EXPECT_EQ(rows[12], "11,10,20,7," + headlessRows[headlessRows.size() - 2]);
}

TEST_F(SweepTest, ResumeCompletesAnInterruptedTableWithoutRepeatingRuns) {
  const QByteArray table = RunTable("full.csv", {});
  // Interrupted after five rows and half of the sixth.
  const qsizetype sixthRow = table.indexOf("\n5,") + 1;
  Write(Path("cut.csv"), table.left(sixthRow + 10));
  Write(Path("cut.csv.experiment"), ReadAll(Path("full.csv.experiment")));
  for (const char* run : {"0", "1", "2", "3", "4"}) {
    QFile::copy(Path("full-run-00000%1.csv").arg(run), Path("cut-run-00000%1.csv").arg(run));
  }
  const Sweep refused(experiment, {"--out", Path("cut.csv")});
  EXPECT_EQ(refused.status, 2);
  const Sweep resumed(experiment, {"--out", Path("cut.csv"), "--resume", "--jobs", "2"});
  ASSERT_EQ(resumed.status, 0) << resumed.err.str();
  EXPECT_EQ(ReadAll(Path("cut.csv")), table);
  EXPECT_NE(resumed.out.str().find("7 runs of 12 in this shard (5 already done)"), std::string::npos) << resumed.out.str();
}

TEST_F(SweepTest, BadExperimentsAreRefusedNamingTheKeyOrValue) {
  const struct {
    const char* experiment;
    const char* message;
  } cases[] = {
      {R"({"ticks": 5, "repetition": 2})", "unknown key \"repetition\""},
      {R"({"ticks": 5, "options": {"gird": 3}})", "options: unknown option \"gird\""},
      {R"({"ticks": 5, "options": {"paused": 1}})", "options: \"paused\" takes true or false"},
      {R"({"ticks": 5, "options": {"json": "a"}})", "options: \"json\" is not set here"},
      {R"({"ticks": 5, "vary": {"food-rate": [2, 101]}})", "vary \"food-rate\": --food-rate: 101 is outside 0..100"},
      {R"({"ticks": 5, "vary": {"grid": {"first": 9, "step": 1, "last": 8}}})", "does not reach 8"},
      {R"({"ticks": 5, "vary": {"grid": [10, 20]}, "options": {"nest": "15,15"}})",
       "run 0 (grid 10): --nest 15,15: the cell lies outside"},
      {R"({"ticks": 5, "seed": 1.5})", "\"seed\": 1.5 is not a whole number"},
      {R"({"ticks": 5, "options": {"grid": 12.5}})", "options: --grid: '12.5' is not a whole number"},
      {R"({"ticks": 5, "options": {"nest": ["3,3", "3,x"]}})", "options: --nest: 'x' is not a whole number"},
      {R"({"ticks": 5, "vary": {"grid": {"first": 1, "step": 0.00001, "last": 2}}})", "in at most 100000 values"},
      // Hostile files: a repeated key at any depth, deep nesting, a number beyond a double.
      {R"({"ticks": 5, "ticks": 6})", "\"ticks\" appears twice"},
      {R"({"ticks": 5, "vary": {"grid": {"first": 1, "first": 2, "step": 1, "last": 3}}})", "\"first\" appears twice"},
      {"[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[[", "nested deeper than 64 levels"},
      {R"({"ticks": 1e400})", "number overflow"},
      {R"({"ticks": 5,})", "line 1, column 13"},
      {R"({"seed": 1})", "\"ticks\" is missing"},
      // A huge key is named in a message of bounded length.
      {R"({"ticks": 5, "options": {"xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx": 1}})",
       "unknown option \"xxxxxxxxxx"},
  };
  for (const auto& c : cases) {
    Write(experiment, c.experiment);
    const Sweep sweep(experiment, {"--out", Path("bad.csv")});
    EXPECT_EQ(sweep.status, 2) << c.experiment;
    EXPECT_NE(sweep.err.str().find(c.message), std::string::npos) << c.experiment << "\n" << sweep.err.str();
    EXPECT_FALSE(QFile::exists(Path("bad.csv"))) << c.experiment;
    EXPECT_LE(sweep.err.str().size(), std::string("keldor-sweep: ...\n").size() + headless::MaxShownMessage);
  }
  // A device is no experiment: refused before it is read, not read until memory runs out.
  const Sweep device("/dev/zero", {"--out", Path("bad.csv")});
  EXPECT_EQ(device.status, 2);
  EXPECT_NE(device.err.str().find("'/dev/zero': not a regular file"), std::string::npos) << device.err.str();
}

TEST(ExperimentTest, RangesKeepTheirDecimalsAndVaryTheLastKeyFastest) {
  const ExperimentParse p = ParseExperiment(
      R"({"ticks": 1, "vary": {"ant-size": {"first": 0.1, "step": 0.1, "last": 0.35}, "odor": [true, false]}})");
  ASSERT_EQ(p.Error, "");
  // 0.1, 0.2, 0.3 (0.35 is not reached) x 2 flags; 0.1 + 2 * 0.1 printed with one decimal.
  EXPECT_EQ(p.Result.RunCount(), 6);
  EXPECT_EQ(p.Result.Run(5).VariedValues, (std::vector<std::string>{"0.3", "false"}));
  // Run 4: the third size with the flag set; the size is the 0.3 the table shows.
  const headless::HeadlessOptions run4 = p.Result.Run(4).Options;
  EXPECT_TRUE(run4.World.AntSizeMm == 0.3 && run4.View.Odor && !p.Result.Run(5).Options.View.Odor);
  // Values are read from their JSON values: a list of cells, a number as text, keys in file order.
  const ExperimentParse q = ParseExperiment(
      R"({"ticks": 2, "seed": 40, "options": {"nest": ["1,2", "3,4"], "zoom": "4"},
          "vary": {"grid": {"first": 8, "step": 2, "last": 12}, "food-rate": [1.0, 7]}, "repetitions": 2})");
  ASSERT_EQ(q.Error, "");
  // Run 9: combination 9 / 2 = 4 (grid 8 + 2 * 2 = 12, food rate 1), repetition 1.
  const RunPlan plan = q.Result.Run(9);
  EXPECT_EQ(plan.VariedValues, (std::vector<std::string>{"12", "1"}));
  EXPECT_TRUE(plan.Options.World.Grid == 12 && plan.Options.World.FoodRate == 1 && plan.Options.View.Zoom == 4);
  EXPECT_EQ(plan.Options.Scenario.at(1).Argument, "--nest 3,4");
}

// The options' values reach the sweeps above; here the version and a fault.
TEST(SweepOptionsTest, VersionNamesTheProgramAndABadShardIsRefused) {
  EXPECT_EQ(ParseSweepArguments({"keldor-sweep", "--version"}, 1).Message,
            std::string("keldor-sweep ") + KeldorVersion + "\n");
  EXPECT_EQ(ParseSweepArguments({"keldor-sweep", "a", "--shard", "3/2"}, 1).Message,
            "--shard: '3/2' is not I/N with 1 <= I <= N");
}

// --resume checks the table it completes: its experiment, every row, and
// every done run's series table. The 12-run table's first rows are run 0
// (food rate 2, 10 ants, seed 5) and run 1 (seed 6); it has 4 + 8 fields.
TEST_F(SweepTest, ResumeRefusesAnotherExperimentAndDamagedRows) {
  const QByteArray table = RunTable("t.csv", {});
  const qsizetype third = table.indexOf("\n2,") + 1;
  const QByteArray header = table.left(table.indexOf('\n') + 1), row0 = table.mid(header.size(), table.indexOf("\n1,") + 1 - header.size());
  const std::vector<std::pair<QByteArray, std::string>> cases = {
      {header + row0 + row0, "line 3 holds run 0 a second time"},
      {header + "0,2,10,6" + row0.mid(8), "line 2 gives run 0 another seed than 5"},
      {header + "0,2,10,5,40\n", "line 2 has 5 fields where the header has 12"},
      {header + "12" + row0.mid(1), "line 2 does not start with a run number from 0 to 11"},
      {table.left(third), ""},
  };
  for (const auto& [text, problem] : cases) {
    Write(Path("t.csv"), text);
    const Sweep resumed(experiment, {"--out", Path("t.csv"), "--resume"});
    EXPECT_EQ(resumed.status, problem.empty() ? 0 : 2) << problem << resumed.err.str();
    EXPECT_NE(resumed.err.str().find(problem), std::string::npos) << resumed.err.str();
  }
  EXPECT_EQ(ReadAll(Path("t.csv")), table);
  // A shard's table holds only its runs: run 1 is not of shard 1 of 2.
  const Sweep otherShard(experiment, {"--out", Path("t.csv"), "--resume", "--shard", "1/2"});
  EXPECT_NE(otherShard.err.str().find("line 3 holds run 1, which is not of this shard"), std::string::npos);
  // A done run whose series table is gone does not count as done.
  QFile::remove(Path("t-run-000003.csv"));
  const Sweep noSeries(experiment, {"--out", Path("t.csv"), "--resume"});
  EXPECT_NE(noSeries.err.str().find("series table of run 3"), std::string::npos) << noSeries.err.str();
  Write(experiment, QByteArray(GridExperiment).replace("\"seed\": 5, \"ticks\": 40", "\"seed\": 6, \"ticks\": 41"));
  const Sweep changed(experiment, {"--out", Path("t.csv"), "--resume"});
  EXPECT_EQ(changed.status, 2);
  EXPECT_NE(changed.err.str().find("belongs to another experiment (changed: seed, ticks)"), std::string::npos)
      << changed.err.str();
}

// One sweep writes a table at a time; a second is refused naming it.
TEST_F(SweepTest, ASecondSweepOnATableInUseIsRefused) {
  const ExperimentParse parsed = ParseExperiment(GridExperiment);
  ResultsFile held;
  ASSERT_FALSE(held.Open(Path("t.csv").toStdString(), parsed.Result, {}, false));
  const Sweep second(experiment, {"--out", Path("t.csv"), "--resume"});
  EXPECT_EQ(second.status, 2);
  EXPECT_NE(second.err.str().find("'" + Path("t.csv").toStdString() + "' is being written by another sweep"),
            std::string::npos) << second.err.str();
}

// A full disk (here a file-size limit of 600 bytes, which the 12-row table
// passes after about 8 rows) fails the sweep with 1; --resume then completes it.
TEST_F(SweepTest, AFullDiskFailsTheSweepAndResumeCompletesIt) {
  const QByteArray full = RunTable("full.csv", {});
  ASSERT_GT(full.size(), 600);
  rlimit was{};
  ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &was), 0);
  const auto handler = ::signal(SIGXFSZ, SIG_IGN);
  rlimit limit = was;
  limit.rlim_cur = 600;
  ::setrlimit(RLIMIT_FSIZE, &limit);
  const Sweep failed(experiment, {"--out", Path("t.csv")});
  ::setrlimit(RLIMIT_FSIZE, &was);
  ::signal(SIGXFSZ, handler);
  EXPECT_EQ(failed.status, 1);
  EXPECT_NE(failed.err.str().find("cannot write '" + Path("t.csv").toStdString() + "': File too large"),
            std::string::npos) << failed.err.str();
  const Sweep resumed(experiment, {"--out", Path("t.csv"), "--resume"});
  EXPECT_EQ(resumed.status, 0) << resumed.err.str();
  EXPECT_EQ(ReadAll(Path("t.csv")), full);
}

// merge joins shard tables into the single-machine table; a missing shard's
// runs are named, and a table of another experiment is refused.
TEST_F(SweepTest, MergeJoinsShardsCheckingEveryRunOnceAndOneExperiment) {
  const QByteArray single = RunTable("all.csv", {});
  RunTable("s1.csv", {"--shard", "1/3"});
  RunTable("s2.csv", {"--shard", "2/3"});
  RunTable("s3.csv", {"--shard", "3/3"});
  const auto merge = [&](const QStringList& tables) {
    std::vector<std::string> list{"keldor-sweep", "merge", Path("m.csv").toStdString()};
    for (const QString& table : tables) list.push_back(Path(table).toStdString());
    std::ostringstream out, err;
    const int status = RunSweep(list, out, err, false);
    return std::pair{status, err.str()};
  };
  EXPECT_EQ(merge({"s3.csv", "s1.csv", "s2.csv"}).first, 0);
  EXPECT_EQ(ReadAll(Path("m.csv")), single);
  QFile::remove(Path("m.csv"));
  // Shard 2 of 3 holds runs 1, 4, 7 and 10.
  EXPECT_EQ(merge({"s1.csv", "s3.csv"}), std::pair(2, std::string("keldor-sweep merge: 4 of 12 runs are missing: 1, 4, 7, 10\n")));
  EXPECT_NE(merge({"s1.csv", "s2.csv", "s3.csv", "s1.csv"}).second.find("holds run 0, which an earlier row holds"),
            std::string::npos);
  Write(experiment, QByteArray(GridExperiment).replace("\"ticks\": 40", "\"ticks\": 30"));
  RunTable("other.csv", {"--shard", "2/3"});
  EXPECT_NE(merge({"s1.csv", "other.csv", "s3.csv"}).second.find("belongs to another experiment than"), std::string::npos);
  EXPECT_FALSE(QFile::exists(Path("m.csv")));
}

}  // namespace
}  // namespace keldor::sweep
