// A world file goes round the batch runner and the desktop program without a
// bit changing: opened in a fresh window or in one that ran another world,
// run on and saved, it equals the batch runner's continuation of the same
// file; the window's tick counter and charts belong to the loaded world.
#include <QAction>
#include <QFile>
#include <QLabel>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include "model/Random.h"
#include "ui/ChartsWindow.h"
#include "ui/MainWindow.h"
#include "support/RecordingMessageBox.h"

namespace keldor {
using testing::RecordingMessageBox;

namespace {

// Runs keldor-headless; fails the test on a non-zero exit.
void RunBatch(const QStringList& arguments) {
  QProcess batch;
  batch.start(KELDOR_HEADLESS, arguments);
  QVERIFY(batch.waitForFinished(60000));
  QVERIFY2(batch.exitCode() == 0, batch.readAllStandardError().constData());
}

QByteArray Contents(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// The batch runner's --view for the window's terrain view, in pixels: the
// viewport saved in the file is then the window's too.
QString ViewOf(MainWindow& window) {
  const QWidget* terrain = window.findChild<QWidget*>("picTerreno");
  return QString("%1,%2").arg(terrain->width()).arg(terrain->height());
}

void ChooseFile(MainWindow& window, const char* entry, const QString& path) {
  window.SetWorldFileChooser([path](QWidget*, const char*, QFileDialog::AcceptMode) { return path; });
  window.findChild<QAction*>(entry)->trigger();
}

}  // namespace

class WorldFileRoundTripTest : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() {
    RunBatch({"--seed", "5", "--ticks", "200", "--json", Path("t200.json")});
  }

  void openedWorldRunsOnAsTheBatchRunnerDoes_data() {
    QTest::addColumn<int>("earlierTicks");
    QTest::newRow("fresh window") << 0;
    QTest::newRow("after another world") << 300;
  }
  void openedWorldRunsOnAsTheBatchRunnerDoes() {
    QFETCH(int, earlierTicks);
    RecordingMessageBox messages;
    VirtualClock timeOfDay(77);  // a time of day unlike the file's clock
    MainWindow window(messages, &timeOfDay);
    window.show();
    RunBatch({"--load", Path("t200.json"), "--play", "--ticks", "100", "--view", ViewOf(window), "--json",
              Path("batch300.json")});
    if (earlierTicks > 0) {
      window.NewWithSeed(8);
      window.findChild<QAction*>("mnuPlayPause")->trigger();
      for (int i = 0; i < earlierTicks; ++i) window.AdvanceTick();
      QCOMPARE(window.WorldTicks(), earlierTicks);
    }
    window.OpenWorldFile(Path("t200.json"));
    QCOMPARE(window.WorldTicks(), 200);
    QVERIFY(window.findChild<QLabel*>("lblStatus")->text().startsWith("Tick 200   Seed 5   "));
    for (int i = 0; i < 100; ++i) window.AdvanceTick();
    const QString saved = Path("window300-" + QString::number(earlierTicks) + ".json");
    ChooseFile(window, "mnuFileSaveAs", saved);
    QCOMPARE(Contents(saved), Contents(Path("batch300.json")));
    QVERIFY(window.findChild<QLabel*>("lblStatus")->text().startsWith("Tick 300   Seed 5   "));

    // The charts start again from the loaded world: ticks 201..300 only.
    const QString csv = Path("charts-" + QString::number(earlierTicks) + ".csv");
    QVERIFY(window.Charts()->ExportCsv(csv));
    const QList<QByteArray> rows = Contents(csv).trimmed().split('\n');
    QCOMPARE(rows.size(), 101);  // the header and 100 ticks
    QVERIFY(rows[1].startsWith("201,") && rows[100].startsWith("300,"));
  }

  void aWorldSavedPausedStaysPausedOrPlaysAsAsked() {
    RecordingMessageBox messages;
    MainWindow window(messages);
    window.show();
    window.OpenWorldFile(Path("t200.json"));
    window.findChild<QAction*>("mnuPlayPause")->trigger();  // pause, then save
    for (int i = 0; i < 5; ++i) window.AdvanceTick();     // paused redraws do not count
    ChooseFile(window, "mnuFileSaveAs", Path("paused.json"));
    QVERIFY(Contents(Path("paused.json")).contains("\"Tick\": 200,"));
    QVERIFY(Contents(Path("paused.json")).contains("\"Running\": false,"));

    RunBatch({"--load", Path("paused.json"), "--ticks", "100", "--json", Path("still.json")});
    QVERIFY(Contents(Path("still.json")).contains("\"Tick\": 200,"));
    RunBatch({"--load", Path("paused.json"), "--play", "--ticks", "100", "--view", ViewOf(window), "--json",
              Path("played.json")});
    // Played on, the paused file continues as the running one does, but for the Play/Pause state.
    QCOMPARE(Contents(Path("played.json")), Contents(Path("batch300.json")));

    // A damaged file is reported and leaves the window's world as it was.
    QFile damaged(Path("damaged.json"));
    QVERIFY(damaged.open(QIODevice::WriteOnly));
    damaged.write(Contents(Path("paused.json")).replace("\"GridX\": 30", "\"GridX\": -30"));
    damaged.close();
    const std::string before = window.TheSimulation().SaveText(window.Window());
    window.OpenWorldFile(damaged.fileName());
    QVERIFY(messages.shown.size() == 1 && messages.shown[0].find("GridX") != std::string::npos);
    QCOMPARE(window.TheSimulation().SaveText(window.Window()), before);
  }

 private:
  QString Path(const QString& name) const { return dir_.filePath(name); }
  QTemporaryDir dir_;
};

}  // namespace keldor

QTEST_MAIN(keldor::WorldFileRoundTripTest)
#include "WorldFileRoundTripTest.moc"
