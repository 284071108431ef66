// The main window driven as a user drives it: menus, the button bar, the
// palette, resizing, the panels and the population-limit message.
#include <QAction>
#include <QLabel>
#include <QMenuBar>
#include <QScrollBar>
#include <QtTest>

#include "model/Random.h"
#include "ui/frmKeldor.h"
#include "ui/PictureBox.h"
#include "UiTestSupport.h"

namespace keldor {

using testing::Child;
using testing::Click;

class frmKeldorTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    clock_ = std::make_unique<VirtualClock>(7);
    window_ = std::make_unique<frmKeldor>(messages_, *clock_);
    window_->show();
    QVERIFY(QTest::qWaitForWindowExposed(window_.get()));
  }
  void cleanup() {
    window_.reset();
    messages_.shown.clear();
    messages_.whileShown = nullptr;
  }

  void startsWithoutAWorld() {
    QCOMPARE(window_->windowTitle(), QString("Keldor"));
    QVERIFY(!Child<QPushButton>(window_.get(), "btnStop")->isEnabled());
    // Disabled buttons show a faint picture, dark ink included.
    for (const char* name : {"btnStop", "cmdZoomIn", "cmdZoomOut", "btnOdor", "btnAnts"}) {
      auto* button = Child<QPushButton>(window_.get(), name);
      QVERIFY(!button->isEnabled());
      const auto ink = [&](QIcon::Mode mode) {
        const QImage image = button->icon().pixmap(24, mode).toImage().convertToFormat(QImage::Format_ARGB32);
        double darkness = 0;
        for (int y = 0; y < image.height(); ++y) {
          for (int x = 0; x < image.width(); ++x) {
            darkness += qAlpha(image.pixel(x, y)) * (255 - qGray(image.pixel(x, y)));
          }
        }
        return darkness;
      };
      QVERIFY2(ink(QIcon::Disabled) < 0.5 * ink(QIcon::Normal), name);
    }
    QVERIFY(!window_->TheWorld().HasWorld());
    QTest::qWait(200);
    QCOMPARE(window_->TicksRun(), 0);
  }

  void menusCarryTheirCaptions() {
    QStringList menus;
    for (QAction* a : window_->menuBar()->actions()) menus << a->text();
    QCOMPARE(menus, QStringList({"&File", "&Tools", "&Help"}));
    QCOMPARE(Child<QAction>(window_.get(), "mnuFileNew")->text(), QString("&New"));
    QCOMPARE(Child<QAction>(window_.get(), "mnuFileExit")->text(), QString("&Exit"));
    QCOMPARE(Child<QAction>(window_.get(), "mnuView")->text(), QString("&View"));
    QCOMPARE(Child<QAction>(window_.get(), "mnuOptions")->text(), QString("&Options..."));
    QCOMPARE(Child<QAction>(window_.get(), "mnuHelpAbout")->text(), QString("&About..."));
    QVERIFY(Child<QAction>(window_.get(), "mnuButtons")->isChecked());
    QVERIFY(Child<QAction>(window_.get(), "mnuInfo")->isChecked());
  }

  void newLeavesTheWorldPausedAndPlayPauseToggles() {
    Child<QAction>(window_.get(), "mnuFileNew")->trigger();
    World& w = window_->TheWorld();
    QVERIFY(w.HasWorld());
    QVERIFY(!w.Running);
    auto* stop = Child<QPushButton>(window_.get(), "btnStop");
    QVERIFY(stop->isEnabled());
    QCOMPARE(stop->toolTip(), QString("Play"));
    const QImage playPicture = stop->icon().pixmap(24).toImage();
    // The timer runs while paused: the views are redrawn.
    QTRY_VERIFY(window_->TicksRun() >= 2);

    Click(window_.get(), "btnStop");
    QVERIFY(w.Running);
    QCOMPARE(stop->toolTip(), QString("Pause"));
    QVERIFY(stop->icon().pixmap(24).toImage() != playPicture);
    Click(window_.get(), "btnStop");
    QVERIFY(!w.Running);
    QCOMPARE(stop->toolTip(), QString("Play"));
    QCOMPARE(stop->icon().pixmap(24).toImage(), playPicture);

    // Start while running builds a new world, paused.
    Click(window_.get(), "btnStop");
    Click(window_.get(), "btnStart");
    QVERIFY(!w.Running);
    QCOMPARE(stop->toolTip(), QString("Play"));
  }

  void odorAndAntsToggles() {
    Click(window_.get(), "btnStart");
    World& w = window_->TheWorld();
    auto* odor = Child<QPushButton>(window_.get(), "btnOdor");
    auto* ants = Child<QPushButton>(window_.get(), "btnAnts");
    QCOMPARE(odor->toolTip(), QString("Odor Traces"));
    Click(window_.get(), "btnOdor");
    QCOMPARE(w.ShowOdor, 1);
    QCOMPARE(odor->toolTip(), QString("Hide Odor Traces"));
    Click(window_.get(), "btnOdor");
    QCOMPARE(w.ShowOdor, 0);
    QCOMPARE(odor->toolTip(), QString("Show Odor Traces"));
    Click(window_.get(), "btnAnts");
    QCOMPARE(w.ShowAnts, 0);
    QCOMPARE(ants->toolTip(), QString("Show ants"));
    Click(window_.get(), "btnAnts");
    QCOMPARE(ants->toolTip(), QString("Hide ants"));
  }

  void paletteExpandsAndCollapses() {
    Click(window_.get(), "btnStart");
    auto* pick = Child<QPushButton>(window_.get(), "btnPickAction");
    auto* palette = Child<QWidget>(window_.get(), "fraActions");
    const int collapsed = palette->height();
    QCOMPARE(pick->text(), QString("v"));
    QVERIFY(!Child<QWidget>(window_.get(), "btnAction_4")->isVisibleTo(palette) ||
            Child<QWidget>(window_.get(), "btnAction_4")->y() >= collapsed);
    Click(window_.get(), "btnPickAction");
    QCOMPARE(pick->text(), QString("^"));
    QVERIFY(palette->height() > 4 * collapsed);
    // Every tool button now lies inside the open palette.
    for (const char* name : {"btnAction_1", "btnAction_2", "btnAction_3", "btnAction_4"}) {
      QVERIFY(palette->rect().contains(Child<QWidget>(palette, name)->geometry()));
    }
    QCOMPARE(Child<QWidget>(palette, "btnAction_2")->toolTip(), QString("Add/Remove plaster brick"));
    // Choosing a tool moves it to the top slot and closes the palette.
    Click(palette, "btnAction_2");
    QCOMPARE(pick->text(), QString("v"));
    QCOMPARE(palette->height(), collapsed);
    QCOMPARE(window_->TheWorld().Settings.CurrentTool, int16_t{2});
    QVERIFY(Child<QWidget>(palette, "btnAction_2")->y() < collapsed);
    QCOMPARE(Child<QWidget>(window_.get(), "picTerreno")->cursor().shape(), Qt::CrossCursor);
    // Another command of the button bar closes an open palette.
    Click(window_.get(), "btnPickAction");
    Click(window_.get(), "cmdZoomIn");
    QCOMPARE(pick->text(), QString("v"));
    QCOMPARE(palette->height(), collapsed);
  }

  void layoutFillsTheClientAreaAndSnapsBack() {
    // The views reach the bottom and right edges of the client area, whatever
    // frame the window system draws, with no empty band below the scroll bar.
    QWidget* client = window_->centralWidget();
    const auto checkEdges = [&] {
      const int bottomGap = client->height() - Child<QWidget>(window_.get(), "HScroll1")->geometry().bottom() - 1;
      const int rightGap = client->width() - Child<QWidget>(window_.get(), "fraInfo")->geometry().right() - 1;
      QVERIFY2(bottomGap >= 0 && bottomGap <= 3, qPrintable(QString::number(bottomGap)));
      QVERIFY2(rightGap >= 0 && rightGap <= 5, qPrintable(QString::number(rightGap)));
    };
    checkEdges();
    window_->resize(200, 150);
    const double perPixel = window_->Scale().TwipsPerPixel();
    QTRY_VERIFY(client->width() * perPixel + ClassicFrameWidth >= MinWindowWidth - perPixel);
    QTRY_VERIFY(client->height() * perPixel + ClassicFrameHeight >= MinWindowHeight - perPixel);
    QCOMPARE(window_->Layout().Width, MinWindowWidth);
    checkEdges();
  }

  void hidingThePanelKeepsTheCentre() {
    Click(window_.get(), "btnStart");
    World& w = window_->TheWorld();
    Click(window_.get(), "cmdZoomIn");
    Click(window_.get(), "cmdZoomIn");
    // Point at the mini-map to move the view, then hide the panel.
    auto* map = Child<PictureBox>(window_.get(), "picMapa");
    QTest::mouseClick(map, Qt::LeftButton, {}, QPoint(map->width() * 2 / 3, map->height() / 2));
    const float cx = w.ViewCentreX;
    const float cy = w.ViewCentreY;
    auto* view = Child<QWidget>(window_.get(), "picTerreno");
    const int width = view->width();
    Click(window_.get(), "btnQuick_2");
    QVERIFY(!Child<QWidget>(window_.get(), "fraInfo")->isVisible());
    QVERIFY(!Child<QAction>(window_.get(), "mnuInfo")->isChecked());
    QVERIFY(Child<QWidget>(window_.get(), "btnQuick_2")->styleSheet().contains("#ff0000"));
    QCOMPARE(view->width(), width + window_->Scale().Pixels(2175 + 90));
    QVERIFY(std::abs(w.ViewCentreX - cx) <= 1.0f / 12);
    QVERIFY(std::abs(w.ViewCentreY - cy) <= 1.0f / 12);
    // The scroll bars show the model's values.
    QCOMPARE(Child<QScrollBar>(window_.get(), "HScroll1")->value(), int(w.View.HScroll1.Value));
    Child<QAction>(window_.get(), "mnuInfo")->trigger();
    QVERIFY(Child<QWidget>(window_.get(), "fraInfo")->isVisible());
    QVERIFY(Child<QWidget>(window_.get(), "btnQuick_2")->styleSheet().contains("#00ff00"));
    QCOMPARE(view->width(), width);
  }

  void userScrollingMovesTheView() {
    Click(window_.get(), "btnStart");
    World& w = window_->TheWorld();
    Click(window_.get(), "cmdZoomIn");
    auto* bar = Child<QScrollBar>(window_.get(), "HScroll1");
    const double left = w.View.Terrain.Left;
    bar->triggerAction(QAbstractSlider::SliderPageStepAdd);
    QCOMPARE(int(w.View.HScroll1.Value), bar->value());
    QVERIFY(w.View.Terrain.Left > left);
  }

  void mapPointingNeedsAHeldButtonToDrag() {
    Click(window_.get(), "btnStart");
    World& w = window_->TheWorld();
    Click(window_.get(), "cmdZoomIn");
    auto* map = Child<PictureBox>(window_.get(), "picMapa");
    const int16_t before = w.View.HScroll1.Value;
    QTest::mouseMove(map, QPoint(5, 5));
    QCOMPARE(w.View.HScroll1.Value, before);
    QTest::mouseClick(map, Qt::LeftButton, {}, QPoint(1, 1));
    QCOMPARE(w.View.HScroll1.Value, w.View.HScroll1.Min);
    QCOMPARE(w.View.VScroll1.Value, w.View.VScroll1.Min);
  }

  void populationLimitIsReportedWithoutTickingInside() {
    // A first nest of exactly 2000 ants reaches the limit at once.
    window_->TheWorld().Settings.AntsPerNest = 2000;
    Click(window_.get(), "btnStart");
    Click(window_.get(), "btnStop");
    int ticksDuringMessage = -1;
    messages_.whileShown = [&] {
      const int before = window_->TicksRun();
      QTest::qWait(400);  // Timer1 fires several times while the message is open
      ticksDuringMessage = window_->TicksRun() - before;
    };
    QTRY_VERIFY(!messages_.shown.empty());
    QCOMPARE(messages_.shown.front(), std::string("Maximum ant population has been reached."));
    QCOMPARE(ticksDuringMessage, 0);
    // Closing the message presses Play/Pause: every message so far toggled it once.
    const bool running = messages_.shown.size() % 2 == 0;
    QCOMPARE(window_->TheWorld().Running, running);
    QCOMPARE(Child<QPushButton>(window_.get(), "btnStop")->toolTip(), QString(running ? "Pause" : "Play"));
  }

  void exitClosesTheWindow() {
    Child<QAction>(window_.get(), "mnuFileExit")->trigger();
    QVERIFY(!window_->isVisible());
  }

 private:
  testing::RecordingMessageBox messages_;
  std::unique_ptr<VirtualClock> clock_;
  std::unique_ptr<frmKeldor> window_;
};

}  // namespace keldor

QTEST_MAIN(keldor::frmKeldorTest)
#include "frmKeldorTest.moc"
