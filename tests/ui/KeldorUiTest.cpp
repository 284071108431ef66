// The windows driven as a user drives them, offscreen: the main window's
// buttons, palette, layout and panels, mouse editing on the terrain, the
// options dialog, the population-limit message, the splash and About boxes.
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QSlider>
#include <QTimer>
#include <functional>

#include "model/Random.h"
#include "platform/NoRegistry.h"
#include "support/RecordingMessageBox.h"
#include "support/UiDriving.h"
#include "ui/AboutBox.h"
#include "ui/MainWindow.h"
#include "ui/OptionsDialog.h"
#include "ui/PictureBox.h"
#include "ui/SplashScreen.h"
#include "window/SystemInfo.h"

namespace keldor {
using testing::Child;
using testing::Click;
using testing::RecordingMessageBox;
using testing::SendMouse;

namespace {

// Runs answer on the next modal window once it is open; answer must close it.
void AnswerNextModal(std::function<void(QWidget*)> answer) {
  auto poll = std::make_shared<std::function<void()>>();
  *poll = [answer, poll] {
    if (QWidget* modal = QApplication::activeModalWidget()) {
      answer(modal);
      *poll = nullptr;  // break the cycle
    } else {
      QTimer::singleShot(10, *poll);
    }
  };
  QTimer::singleShot(10, *poll);
}

// Replaces a box's text by typing, then leaves the box (its text is taken over).
void Type(QWidget* dialog, const char* box, const QString& text) {
  // The box takes its text over when it loses the focus, which it only has
  // while the dialog is the active window: a loaded machine may be slow to
  // make it so.
  dialog->activateWindow();
  QVERIFY(QTest::qWaitForWindowActive(dialog));
  auto* edit = Child<QLineEdit>(dialog, box);
  edit->setFocus();
  QTRY_VERIFY(edit->hasFocus());
  edit->selectAll();
  QTest::keyClicks(edit, text);
  QTest::keyClick(edit, Qt::Key_Tab);
}

class NoPrograms : public ProgramStarter {
 public:
  bool FileExists(const std::string&) override { return false; }
  bool Start(const std::string& path) override {
    started.push_back(path);
    return true;
  }
  std::vector<std::string> started;
};

}  // namespace

class KeldorUiTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    clock_ = std::make_unique<VirtualClock>(7);
    window_ = std::make_unique<MainWindow>(messages_, clock_.get());
    window_->show();
    QVERIFY(QTest::qWaitForWindowExposed(window_.get()));
  }
  void cleanup() {
    window_.reset();
    messages_.shown.clear();
    messages_.whileShown = nullptr;
  }

  // ---- The main window

  void startsWithoutAWorldAndWithFaintDisabledButtons() {
    for (const char* name : {"btnStop", "cmdZoomIn", "cmdZoomOut", "btnOdor", "btnAnts"}) {
      auto* button = Child<QPushButton>(W(), name);
      QVERIFY(!button->isEnabled());
      const auto ink = [&](QIcon::Mode mode) {
        const QImage image = button->icon().pixmap(24, mode).toImage().convertToFormat(QImage::Format_ARGB32);
        double darkness = 0;
        for (int y = 0; y < image.height(); ++y) {
          for (int x = 0; x < image.width(); ++x) darkness += qAlpha(image.pixel(x, y)) * (255 - qGray(image.pixel(x, y)));
        }
        return darkness;
      };
      QVERIFY2(ink(QIcon::Disabled) < 0.5 * ink(QIcon::Normal), name);
    }
    QVERIFY(!window_->TheWorld().HasWorld());
    QTest::qWait(200);
    QCOMPARE(window_->TicksRun(), 0);
  }

  void newLeavesTheWorldPausedAndPlayPauseToggles() {
    Child<QAction>(W(), "mnuFileNew")->trigger();
    World& w = window_->TheWorld();
    QVERIFY(w.HasWorld() && !w.Running);
    auto* stop = Child<QPushButton>(W(), "btnStop");
    QVERIFY(stop->isEnabled());
    QCOMPARE(stop->toolTip(), QString("Play"));
    const QImage playPicture = stop->icon().pixmap(24).toImage();
    QTRY_VERIFY(window_->TicksRun() >= 2);  // the timer runs while paused: the views are redrawn
    Click(W(), "btnStop");
    QVERIFY(w.Running);
    QCOMPARE(stop->toolTip(), QString("Pause"));
    QVERIFY(stop->icon().pixmap(24).toImage() != playPicture);
    Click(W(), "btnStop");
    QVERIFY(!w.Running);
    QCOMPARE(stop->toolTip(), QString("Play"));
    QCOMPARE(stop->icon().pixmap(24).toImage(), playPicture);
    Click(W(), "btnStop");
    Click(W(), "btnStart");  // Start while running builds a new world, paused
    QVERIFY(!w.Running);
    QCOMPARE(stop->toolTip(), QString("Play"));
  }

  void odorAndAntsToggles() {
    Click(W(), "btnStart");
    const ViewState& v = window_->Window().View;
    QCOMPARE(Child<QPushButton>(W(), "btnOdor")->toolTip(), QString("Odor Traces"));
    const auto press = [&](const char* button, const int16_t& shown, int expected, const char* tip) {
      Click(W(), button);
      QCOMPARE(int(shown), expected);
      QCOMPARE(Child<QPushButton>(W(), button)->toolTip(), QString(tip));
    };
    press("btnOdor", v.ShowOdor, 1, "Hide Odor Traces");
    press("btnOdor", v.ShowOdor, 0, "Show Odor Traces");
    press("btnAnts", v.ShowAnts, 0, "Show ants");
    press("btnAnts", v.ShowAnts, 1, "Hide ants");
  }

  void paletteExpandsAndCollapses() {
    Click(W(), "btnStart");
    auto* pick = Child<QPushButton>(W(), "btnPickAction");
    auto* palette = Child<QWidget>(W(), "fraActions");
    const int collapsed = palette->height();
    QCOMPARE(pick->text(), QString("v"));
    Click(W(), "btnPickAction");
    QCOMPARE(pick->text(), QString("^"));
    for (const char* name : {"btnAction_1", "btnAction_2", "btnAction_3", "btnAction_4"}) {
      QVERIFY(palette->rect().contains(Child<QWidget>(palette, name)->geometry()));
    }
    // Choosing a tool moves it to the top slot and closes the palette.
    Click(palette, "btnAction_2");
    QCOMPARE(pick->text(), QString("v"));
    QCOMPARE(palette->height(), collapsed);
    QCOMPARE(window_->Window().View.CurrentTool, WallTool);
    QVERIFY(Child<QWidget>(palette, "btnAction_2")->y() < collapsed);
    QCOMPARE(Child<QWidget>(W(), "picTerreno")->cursor().shape(), Qt::CrossCursor);
    Click(W(), "btnPickAction");
    Click(W(), "cmdZoomIn");  // another command of the button bar closes it
    QCOMPARE(palette->height(), collapsed);
  }

  void layoutFillsTheClientAreaAndSnapsBack() {
    QWidget* client = window_->centralWidget();
    const auto checkEdges = [&] {  // no empty band below or right of the views
      const int bottomGap = client->height() - Child<QWidget>(W(), "HScroll1")->geometry().bottom() - 1;
      const int rightGap = client->width() - Child<QWidget>(W(), "fraInfo")->geometry().right() - 1;
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

  void hidingThePanelKeepsTheCentreAndScrollBarsFollowTheModel() {
    Click(W(), "btnStart");
    WindowState& w = window_->Window();
    Click(W(), "cmdZoomIn");
    Click(W(), "cmdZoomIn");
    auto* map = Child<PictureBox>(W(), "picMapa");
    const int16_t before = w.HScroll1.Value;
    QTest::mouseMove(map, QPoint(5, 5));
    QCOMPARE(w.HScroll1.Value, before);  // pointing needs a held button
    QTest::mouseClick(map, Qt::LeftButton, {}, QPoint(map->width() * 2 / 3, map->height() / 2));
    QVERIFY(w.HScroll1.Value != before);
    const float cx = w.ViewCentreX, cy = w.ViewCentreY;
    auto* view = Child<QWidget>(W(), "picTerreno");
    const int width = view->width();
    Click(W(), "btnQuick_2");
    QVERIFY(!Child<QWidget>(W(), "fraInfo")->isVisible());
    QVERIFY(!Child<QAction>(W(), "mnuInfo")->isChecked());
    QVERIFY(view->width() > width);
    QVERIFY(std::abs(w.ViewCentreX - cx) <= 1.0f / 12);
    QVERIFY(std::abs(w.ViewCentreY - cy) <= 1.0f / 12);
    auto* bar = Child<QScrollBar>(W(), "HScroll1");
    QCOMPARE(bar->value(), int(w.HScroll1.Value));
    const double left = w.View.Terrain.Left;
    bar->triggerAction(QAbstractSlider::SliderPageStepAdd);
    QCOMPARE(int(w.HScroll1.Value), bar->value());
    QVERIFY(w.View.Terrain.Left > left);
    Child<QAction>(W(), "mnuInfo")->trigger();
    QVERIFY(Child<QWidget>(W(), "fraInfo")->isVisible());
    QCOMPARE(view->width(), width);
  }

  void populationLimitIsReportedWithoutTickingInside() {
    window_->TheWorld().Settings.AntsPerNest = 2000;  // the first nest reaches the limit at once
    Click(W(), "btnStart");
    Click(W(), "btnStop");
    int ticksDuringMessage = -1;
    messages_.whileShown = [&] {
      const int before = window_->TicksRun();
      QTest::qWait(400);  // the tick timer fires several times while the message is open
      ticksDuringMessage = window_->TicksRun() - before;
    };
    QTRY_VERIFY(!messages_.shown.empty());
    QCOMPARE(messages_.shown.front(), std::string("Maximum ant population has been reached."));
    QCOMPARE(ticksDuringMessage, 0);
    // Closing the message presses Play/Pause: every message so far toggled it once.
    const bool running = messages_.shown.size() % 2 == 0;
    QCOMPARE(window_->TheWorld().Running, running);
    QCOMPARE(Child<QPushButton>(W(), "btnStop")->toolTip(), QString(running ? "Pause" : "Play"));
  }

  // ---- Editing on the terrain view

  void leftDragPaintsWallsAndRightDragErasesThem() {
    World& w = StartWithTool(2);
    Drag(PixelOfCell(3, 4), PixelOfCell(7, 4), Qt::LeftButton);
    for (int x = 3; x <= 7; ++x) QVERIFY2(w.Cells(x, 4).Objects.HasBrick(), qPrintable(QString::number(x)));
    QCOMPARE(int(w.WallCount()), 5);
    Drag(PixelOfCell(4, 4), PixelOfCell(6, 4), Qt::RightButton);
    QCOMPARE(int(w.WallCount()), 2);
    QVERIFY(w.Cells(3, 4).Objects.HasBrick() && w.Cells(7, 4).Objects.HasBrick());
  }

  void heldFoodToolGrowsAPileWhilePaused() {
    World& w = StartWithTool(1);
    QVERIFY(!w.Running);
    int x = 4;
    while (w.Cells(x, 9).Food != 0) ++x;
    const QPoint cell = PixelOfCell(x, 9);
    SendMouse(View(), QEvent::MouseMove, cell, Qt::NoButton, Qt::NoButton);
    SendMouse(View(), QEvent::MouseButtonPress, cell, Qt::LeftButton, Qt::LeftButton);
    const int ticks = window_->TicksRun();
    QTRY_VERIFY(window_->TicksRun() >= ticks + 4);
    SendMouse(View(), QEvent::MouseButtonRelease, cell, Qt::LeftButton, Qt::NoButton);
    QVERIFY(w.Cells(x, 9).Food >= 2 * w.Settings.SpreadFoodAmount);
    QVERIFY(w.Cells(x, 9).Food <= w.Settings.CellFoodCapacity());
  }

  // ---- The options dialog

  // The corrections themselves are the options form's (OptionsFormTest): here
  // each box, the slider and OK reach it.
  void typedTextsAreCorrectedAndOkTakesThemOver() {
    OptionsDialog dialog(window_->TheWorld(), window_->Window(), W());
    dialog.show();
    QStringList seen;
    const auto typeAndRead = [&](const char* box, const QString& text, const char* read) {
      Type(&dialog, box, text);
      seen << Child<QLineEdit>(&dialog, read)->text();
    };
    typeAndRead("txtNumAnts", "-7.9", "txtNumAnts");
    typeAndRead("txtAntsRed", "300", "txtAntsRed");
    typeAndRead("txtAntSize", "20", "txtAntSize");
    typeAndRead("txtGridDimX", "21", "txtGridDimY");
    Child<QSlider>(&dialog, "sliLifeSpan")->setValue(40);
    Click(&dialog, "btnAcept");
    QCOMPARE(seen, QStringList({"8", "255", "5.9", "21"}));
    World& w = window_->TheWorld();
    QCOMPARE(int(w.Settings.AntsPerNest), 8);
    QCOMPARE(int(w.Settings.AntRed), 255);
    QCOMPARE(w.Settings.AntSizeMm, 5.9);
    QCOMPARE(int(w.Settings.GridX), 30);  // the grid changes with the next world
    Click(W(), "btnStart");
    QCOMPARE(int(w.Settings.GridX), 21);
    QCOMPARE(int(w.Nests[0].LifeSpan), 40);
  }

  void destroyingTheDialogWhileABoxHasTheFocus() {
    auto* dialog = new OptionsDialog(window_->TheWorld(), window_->Window(), W());
    dialog->show();
    dialog->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(dialog));
    auto* box = Child<QLineEdit>(dialog, "txtNumAnts");
    box->setFocus();
    QTest::keyClicks(box, "5");
    QTRY_VERIFY(box->hasFocus());
    delete dialog;
    QVERIFY(!window_->Window().OptionsOpen);
  }

  void closingTheMainWindowClosesTheDialog() {
    AnswerNextModal([&](QWidget* dialog) {
      QVERIFY(qobject_cast<OptionsDialog*>(dialog) != nullptr);
      window_->close();
    });
    Child<QAction>(W(), "mnuOptions")->trigger();
    QVERIFY(QApplication::activeModalWidget() == nullptr);
    QVERIFY(!window_->isVisible());
    QVERIFY(!window_->Window().OptionsOpen);
  }

  // ---- Splash and About

  void splashHandsOverAtTheFirstKeyOrClick() {
    for (bool key : {true, false}) {
      int handedOver = 0;
      QPointer<SplashScreen> splash = new SplashScreen([&] { ++handedOver; });
      splash->show();
      QVERIFY(QTest::qWaitForWindowExposed(splash));
      QCOMPARE(Child<QLabel>(splash, "Label2")->text(), QString("https://keldor.example.org"));
      if (key) QTest::keyClick(splash, Qt::Key_Space);
      else QTest::mouseClick(splash, Qt::LeftButton);
      QCOMPARE(handedOver, 1);
      QTRY_VERIFY(splash.isNull());  // closed and deleted
    }
  }

  void aboutShowsTheUnavailableMessageWithoutARegistry() {
    NoRegistry registry;
    NoPrograms programs;
    RecordingMessageBox messages;
    AboutBox about(registry, programs, messages);
    QCOMPARE(about.windowTitle(), QString("About Keldor"));
    about.show();
    QVERIFY(QTest::qWaitForWindowExposed(&about));
    Click(&about, "cmdSysInfo");
    QCOMPARE(messages.shown, std::vector<std::string>{"System Information Is Unavailable At This Time"});
    QVERIFY(programs.started.empty());
    Click(&about, "cmdOK");
    QVERIFY(!about.isVisible());
  }

 private:
  QWidget* W() const { return window_.get(); }
  PictureBox* View() const { return Child<PictureBox>(window_.get(), "picTerreno"); }

  World& StartWithTool(int index) {
    Click(W(), "btnStart");
    Click(W(), "btnPickAction");
    Click(W(), qPrintable(QString("btnAction_%1").arg(index)));
    return window_->TheWorld();
  }

  // The pixel at the middle of cell (x, y) of the terrain view.
  QPoint PixelOfCell(int x, int y) const {
    const double cellSize = window_->TheWorld().Settings.CellSize;
    const ViewState& v = window_->Window().View;
    const double perPixel = window_->Scale().TwipsPerPixel();
    return QPoint(int(((x - 0.5) * cellSize * v.ZoomX - v.Terrain.Left) / perPixel),
                  int(((y - 0.5) * cellSize * v.ZoomY - v.Terrain.Top) / perPixel));
  }

  void Drag(QPoint from, QPoint to, Qt::MouseButton button) {
    SendMouse(View(), QEvent::MouseMove, from, Qt::NoButton, Qt::NoButton);
    SendMouse(View(), QEvent::MouseButtonPress, from, button, button);
    for (int i = 1; i <= 20; ++i) SendMouse(View(), QEvent::MouseMove, from + (to - from) * i / 20, Qt::NoButton, button);
    SendMouse(View(), QEvent::MouseButtonRelease, to, button, Qt::NoButton);
  }

  RecordingMessageBox messages_;
  std::unique_ptr<VirtualClock> clock_;
  std::unique_ptr<MainWindow> window_;
};

}  // namespace keldor

QTEST_MAIN(keldor::KeldorUiTest)
#include "KeldorUiTest.moc"
