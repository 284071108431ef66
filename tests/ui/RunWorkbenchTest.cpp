// The run workbench of the main window, offscreen: speeds and the timer,
// Step, Fastest against drawing every tick, the charts, the inspector, and
// New with Seed against the batch runner.
#include <QFile>
#include <QLabel>
#include <QCheckBox>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <algorithm>
#include <sstream>

#include "app/headless/HeadlessRun.h"
#include "model/Random.h"
#include "support/RecordingMessageBox.h"
#include "support/UiDriving.h"
#include "ui/ChartsWindow.h"
#include "ui/MainWindow.h"
#include "ui/PickWindow.h"
#include "ui/PictureBox.h"

namespace keldor {
using testing::Trigger;

namespace {

// The world file of the window's run.
QJsonObject Json(MainWindow& window) {
  return QJsonDocument::fromJson(QByteArray::fromStdString(window.TheSimulation().SaveText(window.Window()))).object();
}

// Without the viewport, whose size is the window's own.
QJsonObject WorldAndSettings(QJsonObject state) {
  state.remove("View");
  return state;
}

}  // namespace

class RunWorkbenchTest : public QObject {
  Q_OBJECT

 private slots:
  void init() { window_ = Open(); }
  void cleanup() { window_.reset(); }

  void speedChangesTheTimerInterval() {
    Trigger(W(), "mnuFileNew");
    const int expected[] = {300, 150, 75, 38, 19, 9};  // 75 ms over 0.25 .. 8, to whole milliseconds
    for (int i = 0; i < 6; ++i) {
      Trigger(W(), qPrintable(QString("mnuSpeed_%1").arg(i)));
      QCOMPARE(window_->TimerInterval(), expected[i]);
    }
    Trigger(W(), "mnuFaster");
    QCOMPARE(window_->Speed(), RunSpeed::Fastest);
    QCOMPARE(window_->TimerInterval(), 33);  // paused: shown 30 times a second
    Trigger(W(), "mnuPlayPause");
    QCOMPARE(window_->TimerInterval(), 0);  // running: back to back
    Trigger(W(), "mnuPlayPause");
  }

  void stepRunsExactlyOneTick() {
    Trigger(W(), "mnuFileNew");
    QVERIFY(W()->findChild<QLabel*>("lblStatus")->text().endsWith("Paused: press Space to play"));
    const int ticks = window_->TicksRun();
    Trigger(W(), "mnuStep");
    QCOMPARE(window_->TicksRun(), ticks + 1);
    QCOMPARE(window_->WorldTicks(), 1);
    QVERIFY(!window_->TheWorld().Running);
    QCOMPARE(W()->findChild<QPushButton*>("btnStop")->toolTip(), QString("Play"));
    Trigger(W(), "mnuPlayPause");
    Trigger(W(), "mnuStep");  // ignored while running
    QCOMPARE(window_->TicksRun(), ticks + 1);
  }

  void fastestGivesTheWorldOfDrawingEveryTick() {
    window_->NewWithSeed(5);
    Trigger(W(), "mnuSpeed_6");
    Trigger(W(), "mnuPlayPause");
    QTRY_VERIFY_WITH_TIMEOUT(window_->WorldTicks() >= 3000, 60000);
    Trigger(W(), "mnuPlayPause");
    window_->AdvanceTick();  // a paused tick, as the other world gets
    const int64_t ticks = window_->WorldTicks();

    auto drawn = Open();
    drawn->NewWithSeed(5);
    Trigger(drawn.get(), "mnuPlayPause");
    while (drawn->WorldTicks() < ticks) drawn->AdvanceTick();
    Trigger(drawn.get(), "mnuPlayPause");
    drawn->AdvanceTick();
    QVERIFY(Json(*drawn) == Json(*window_));
  }

  void chartsGetOnePointPerTickAndStayBounded() {
    window_->NewWithSeed(3);
    Trigger(W(), "mnuCharts");
    ChartsWindow* charts = window_->Charts();
    for (int i = 0; i < 5; ++i) Trigger(W(), "mnuStep");
    charts->Refresh();
    QCOMPARE(charts->PointCounts(), (std::vector<int>{5, 5, 5, 5, 5}));  // one colony, three foods, scent
    Trigger(W(), "mnuSpeed_6");
    Trigger(W(), "mnuPlayPause");
    QTRY_VERIFY_WITH_TIMEOUT(window_->WorldTicks() >= 10000, 60000);
    charts->Refresh();
    for (int points : charts->PointCounts()) QVERIFY(points <= 2 * int(ChartSeries::DefaultMaxBuckets));
  }

  void inspectorShowsAKnownAntAndMarksIt() {
    window_->NewWithSeed(9);
    Trigger(W(), "mnuInspector");
    World& w = window_->TheWorld();
    Nest& nest = w.Nests[0];
    // A worker moved away from the nest, across cell (13, 13).
    Ant& ant = nest.Ants[1];
    const double cell = w.Settings.CellSize;
    ant.RearX = 12.2 * cell;
    ant.HeadX = 12.8 * cell;
    ant.RearY = ant.HeadY = 12.5 * cell;
    ant.CellX = ant.CellY = 13;
    ant.Energy = 1234.5;
    const double perPixel = window_->Scale().TwipsPerPixel();
    const ViewState& view = window_->Window().View;
    const QPoint pixel(int((12.5 * cell * view.ZoomX - view.Terrain.Left) / perPixel),
                       int((12.5 * cell * view.ZoomY - view.Terrain.Top) / perPixel));
    QTest::mouseClick(W()->findChild<PictureBox*>("picTerreno"), Qt::LeftButton, {}, pixel);
    PickWindow* inspector = window_->PickView();
    QCOMPARE(inspector->Title(), QString("Ant"));
    // The wording is the report's (PickReportTest); here the clicked ant's lines reach the window.
    QVERIFY2(inspector->Text().contains("Life left: does not tire\nCell: (13, 13)\nHeading: east"),
             qPrintable(inspector->Text()));
    const auto marked = [&] {  // any magenta pixel
      const QImage frame = W()->findChild<PictureBox*>("picTerreno")->Frame().convertToFormat(QImage::Format_RGB32);
      const auto* pixels = reinterpret_cast<const QRgb*>(frame.constBits());
      return std::find(pixels, pixels + frame.width() * frame.height(), qRgb(255, 0, 255)) != pixels + frame.width() * frame.height();
    };
    window_->AdvanceTick();
    QVERIFY(marked());

    // Followed, the ant walking off the view brings the view along.
    inspector->findChild<QCheckBox*>("chkFollow")->setChecked(true);
    ant.RearX = 1.2 * cell;
    ant.HeadX = 1.8 * cell;
    ant.RearY = ant.HeadY = 1.5 * cell;
    ant.CellX = ant.CellY = 2;
    const auto inView = [&] {
      const ViewScale& t = view.Terrain;
      const double x = ant.HeadX * view.ZoomX, y = ant.HeadY * view.ZoomY;
      return x > t.Left && x < t.Left + t.Width && y > t.Top && y < t.Top + t.Height;
    };
    QVERIFY(!inView());
    window_->AdvanceTick();
    QVERIFY(inView());
    ant.Energy = 0;
    window_->AdvanceTick();
    QVERIFY(!marked());
    QCOMPARE(inspector->Title(), QString("Ant (dead)"));
  }

  void seededNewMatchesTheBatchRunner() {
    window_->NewWithSeed(42);  // as the seed dialog asks it (GuideTest)
    Trigger(W(), "mnuPlayPause");
    for (int i = 0; i < 120; ++i) window_->AdvanceTick();
    const int64_t ticks = window_->WorldTicks();
    QCOMPARE(ticks, 120);
    QTemporaryDir dir;
    std::ostringstream out, err;
    QCOMPARE(headless::RunHeadless({"keldor-headless", "--seed", "42", "--ticks", std::to_string(ticks), "--json",
                                    dir.filePath("run.json").toStdString(), "--csv", dir.filePath("run.csv").toStdString()},
                                   out, err),
             0);
    QFile json(dir.filePath("run.json"));
    QVERIFY(json.open(QIODevice::ReadOnly));
    QVERIFY(WorldAndSettings(QJsonDocument::fromJson(json.readAll()).object()) == WorldAndSettings(Json(*window_)));
    QVERIFY(window_->Charts()->ExportCsv(dir.filePath("window.csv")));
    QFile batchCsv(dir.filePath("run.csv")), windowCsv(dir.filePath("window.csv"));
    QVERIFY(batchCsv.open(QIODevice::ReadOnly) && windowCsv.open(QIODevice::ReadOnly));
    QCOMPARE(windowCsv.readAll(), batchCsv.readAll());
  }

 private:
  std::unique_ptr<MainWindow> Open() {
    auto window = std::make_unique<MainWindow>(messages_, &clock_);
    window->show();
    if (!QTest::qWaitForWindowExposed(window.get())) qFatal("window not exposed");
    return window;
  }
  QWidget* W() const { return window_.get(); }

  testing::RecordingMessageBox messages_;
  VirtualClock clock_{7};
  std::unique_ptr<MainWindow> window_;
};

}  // namespace keldor

QTEST_MAIN(keldor::RunWorkbenchTest)
#include "RunWorkbenchTest.moc"
