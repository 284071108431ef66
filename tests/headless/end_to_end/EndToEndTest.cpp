// Runs the real keldor-headless executable as a user would.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>

#include <csignal>

namespace {

struct Finished {
  bool finished, crashed;
  int status;
  QByteArray out, err;
};

Finished RunProgram(const QStringList& arguments, const QProcessEnvironment& environment = QProcessEnvironment::systemEnvironment()) {
  QProcess p;
  p.setProcessEnvironment(environment);
  p.start(KELDOR_HEADLESS_EXECUTABLE, arguments);
  const bool finished = p.waitForFinished(120000);
  return {finished, p.exitStatus() == QProcess::CrashExit, p.exitCode(), p.readAllStandardOutput(),
          p.readAllStandardError()};
}

QByteArray ReadAll(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// The golden runs pin what a seeded run writes; here the program itself
// starts without a display, reports, and exits with 2 on a bad argument.
TEST(EndToEndTest, RunsWithoutADisplayAndABadArgumentExitsWithTwo) {
  const Finished run = RunProgram({"--seed", "3", "--ticks", "50"});
  ASSERT_TRUE(run.finished && !run.crashed);
  EXPECT_EQ(run.status, 0) << run.err.toStdString();
  EXPECT_TRUE(run.out.startsWith("keldor-headless: 50 ticks, population ")) << run.out.toStdString();
  const Finished bad = RunProgram({"--grid", "abc"});
  EXPECT_FALSE(bad.crashed);
  EXPECT_EQ(bad.status, 2);
  EXPECT_TRUE(bad.err.contains("--grid")) << bad.err.toStdString();
}

TEST(EndToEndTest, ResumedRunEqualsTheStraightRunAndAnInterruptedRunReplacesNoFile) {
  QTemporaryDir dir;
  const QString straight = dir.filePath("straight.json"), saved = dir.filePath("saved.json");
  const QStringList world = {"--seed", "6", "--life-span", "1", "--ants-per-nest", "50"};
  ASSERT_EQ(RunProgram(world + QStringList{"--ticks", "300", "--json", straight}).status, 0);
  ASSERT_EQ(RunProgram(world + QStringList{"--ticks", "200", "--json", saved}).status, 0);
  const QString resumed = dir.filePath("resumed.json");
  ASSERT_EQ(RunProgram({"--load", saved, "--ticks", "100", "--json", resumed}).status, 0);
  EXPECT_EQ(ReadAll(resumed), ReadAll(straight));

  // Ctrl+C in the middle of a long run: the earlier files stay whole.
  const QString csv = dir.filePath("t.csv");
  QFile(csv).open(QIODevice::WriteOnly);
  QFile::copy(straight, dir.filePath("kept"));
  QProcess p;
  p.start(KELDOR_HEADLESS_EXECUTABLE, {"--seed", "1", "--ticks", "100000000", "--json", straight, "--csv", csv});
  ASSERT_TRUE(p.waitForStarted());
  QThread::msleep(1000);  // the handlers are in place from the start of main
  ::kill(static_cast<pid_t>(p.processId()), SIGINT);
  ASSERT_TRUE(p.waitForFinished(20000));
  EXPECT_EQ(p.exitStatus(), QProcess::NormalExit);
  EXPECT_EQ(p.exitCode(), 128 + SIGINT);
  EXPECT_EQ(ReadAll(straight), ReadAll(dir.filePath("kept")));
  EXPECT_TRUE(ReadAll(csv).isEmpty());
  EXPECT_EQ(QDir(dir.path()).entryList(QDir::Files).size(), 5) << "a temporary file stayed behind";
}

}  // namespace
