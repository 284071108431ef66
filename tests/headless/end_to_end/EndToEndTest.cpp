// Runs the real keldor-headless executable as a user would.
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
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

// Pixels of the given colour inside a rectangle of the picture.
int CountPixels(const QImage& image, const QRect& area, QRgb colour) {
  int count = 0;
  for (int y = area.top(); y <= area.bottom(); ++y) {
    for (int x = area.left(); x <= area.right(); ++x) count += (image.pixel(x, y) | 0xff000000u) == colour;
  }
  return count;
}

TEST(EndToEndTest, PngHoldsTheTerrainViewAndMiniMapWithoutADisplay) {
  QProcessEnvironment noDisplay = QProcessEnvironment::systemEnvironment();
  for (const char* name : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"}) noDisplay.remove(name);
  QTemporaryDir dir;
  const auto frame = [&](const QString& name, QStringList options) {
    options << "--seed" << "2" << "--ticks" << "30" << "--hide-ants" << "--png" << dir.filePath(name + ".png")
            << "--json" << dir.filePath(name + ".json");
    const Finished run = RunProgram(options, noDisplay);
    EXPECT_EQ(run.status, 0) << run.err.toStdString();
    return QImage(dir.filePath(name + ".png"));
  };
  const QRgb nestGrey = qRgb(50, 50, 50);
  constexpr int mapSide = 133;  // the 2000-unit mini-map at 15 twips per pixel
  constexpr int gap = 8;

  const QImage plain = frame("plain", {});
  ASSERT_EQ(plain.size(), QSize(448 + gap + mapSide, 403));
  const QJsonObject nest =
      QJsonDocument::fromJson(ReadAll(dir.filePath("plain.json"))).object()["Nests"].toArray()[0].toObject();
  const double nestX = nest["X"].toDouble();
  const double nestY = nest["Y"].toDouble();
  // After New the view is centred on the world's centre (1000, 1000); a world
  // unit is zoom twips on the terrain view and 133/2000 pixels on the map.
  const auto terrainPixel = [&](QSize view, int zoom) {
    return QPoint(view.width() / 2 + static_cast<int>((nestX - 1000) * zoom / 15),
                  view.height() / 2 + static_cast<int>((nestY - 1000) * zoom / 15));
  };
  EXPECT_EQ(plain.pixel(terrainPixel({448, 403}, 10)) | 0xff000000u, nestGrey);
  const QRect map(448 + gap, 0, mapSide, mapSide);
  const QPoint nestOnMap(map.left() + static_cast<int>(nestX * mapSide / 2000), static_cast<int>(nestY * mapSide / 2000));
  EXPECT_EQ(plain.pixel(nestOnMap) | 0xff000000u, nestGrey);
  EXPECT_GT(CountPixels(plain, map, qRgb(255, 0, 0)), 0);  // the frame of the visible area

  EXPECT_NE(frame("odor", {"--odor"}), plain);

  // A smaller view zoomed out: the nest moves towards the middle and shrinks.
  const QImage small = frame("small", {"--view", "300,200", "--zoom", "4"});
  ASSERT_EQ(small.size(), QSize(300 + gap + mapSide, 200));
  EXPECT_EQ(small.pixel(terrainPixel({300, 200}, 4)) | 0xff000000u, nestGrey);
  const int zoomedOutNestArea = CountPixels(small, QRect(0, 0, 300, 200), nestGrey);
  EXPECT_TRUE(zoomedOutNestArea > 0 && zoomedOutNestArea < CountPixels(plain, QRect(0, 0, 448, 403), nestGrey) / 4);
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
