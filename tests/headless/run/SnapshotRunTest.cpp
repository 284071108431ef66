// Saved worlds resumed, damaged world state files, and output files that a
// failed run must leave as they were.
#include <gtest/gtest.h>

#include <QDir>
#include <QImage>
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

TEST(SnapshotRunTest, DamagedFilesAndWorldOptionsAreRefused) {
  QTemporaryDir dir;
  const QString good = dir.filePath("good.json"), bad = dir.filePath("bad.json"), out = dir.filePath("out.json");
  ASSERT_EQ(InProcessRun({"--seed", "9", "--grid", "6", "--ticks", "5", "--wall", "2,2", "--json", good}).status, ExitOk);
  // A damaged file is refused naming the fault (the reader's own tests name every rule).
  const std::pair<QByteArray, std::string> cases[] = {{ReadAll(good).left(5000), "not a world state"}};
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
