// Runs the real keldor-headless executable as a user would.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>

#include <sys/resource.h>
#include <sys/stat.h>

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

// The program as run with a file-size limit, the way a full disk refuses writes.
Finished RunWithFileLimit(const QStringList& arguments, rlim_t bytes) {
  QProcess p;
  p.setChildProcessModifier([bytes] {
    ::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{bytes, bytes};
    ::setrlimit(RLIMIT_FSIZE, &limit);
  });
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

// A write the disk refuses fails the run with 1 and leaves the earlier file:
// a world file is about 270 KB, 2000 CSV rows over 64 KB, a frame or picture over 1 KB.
TEST(EndToEndTest, AFullDiskFailsTheRunAndKeepsTheEarlierFile) {
  QTemporaryDir dir;
  const QString earlier = dir.filePath("out");
  const std::vector<std::pair<QStringList, rlim_t>> cases = {
      {{"--json", earlier}, 65536}, {{"--csv", earlier}, 65536}, {{"--png", earlier}, 1024},
      {{"--frames", dir.path(), "--every", "100"}, 1024}};
  for (const auto& [outputs, limit] : cases) {
    const QString kept = outputs[0] == "--frames" ? dir.filePath("frame-000100.png") : earlier;
    QFile file(kept);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write("earlier") == 7);
    file.close();
    const Finished run = RunWithFileLimit(QStringList{"--seed", "1", "--ticks", "2000"} + outputs, limit);
    EXPECT_EQ(run.status, 1) << outputs[0].toStdString() << run.err.toStdString();
    EXPECT_TRUE(run.err.contains(outputs[0].toUtf8() + ": cannot write")) << run.err.toStdString();
    EXPECT_EQ(ReadAll(kept), "earlier") << outputs[0].toStdString();
    QFile::remove(kept);
  }
  EXPECT_EQ(QDir(dir.path()).entryList(QDir::Files).size(), 0) << "a temporary file stayed behind";
}

// Outputs are regular files that can be made, each named once: a FIFO, a
// folder, the input world, a file named twice or a bad argument is refused
// with 2 before the first tick, and every file stays what it was.
TEST(EndToEndTest, AnOutputThatIsNoRegularFileOrTheInputIsRefused) {
  QTemporaryDir dir;
  const QString fifo = dir.filePath("fifo"), world = dir.filePath("in.json");
  ASSERT_EQ(::mkfifo(fifo.toLocal8Bit().constData(), 0600), 0);
  ASSERT_EQ(RunProgram({"--seed", "1", "--ticks", "1", "--json", world}).status, 0);
  const QByteArray saved = ReadAll(world);
  const std::vector<QStringList> cases = {{"--csv", fifo}, {"--json", dir.path()}, {"--png", fifo},
                                          {"--load", world, "--csv", world}, {"--json", world, "--frames", world},
                                          {"--load", fifo}, {"--json", world, "--csv", world},
                                          {"--json", world, "--png", QDir(dir.path()).filePath("./in.json")},
                                          {"--json", world, "--csv", "/nonexistent/t.csv"}, {"--json", world, "--every", "x"}};
  for (const QStringList& arguments : cases) {
    const Finished run = RunProgram(QStringList{"--ticks", "1"} + arguments);
    EXPECT_EQ(run.status, 2) << arguments.join(' ').toStdString();
    EXPECT_FALSE(run.out.contains("ticks")) << run.out.toStdString();
  }
  struct stat status {};
  EXPECT_TRUE(::stat(fifo.toLocal8Bit().constData(), &status) == 0 && S_ISFIFO(status.st_mode));
  EXPECT_EQ(ReadAll(world), saved);
}

}  // namespace
