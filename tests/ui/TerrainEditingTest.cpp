// Editing on the terrain view with the mouse: walls painted by a left drag
// and erased by a right drag, nests toggled by a press, food grown by holding.
#include <QtTest>

#include "model/Queries.h"
#include "model/Random.h"
#include "ui/PictureBox.h"
#include "ui/frmKeldor.h"
#include "UiTestSupport.h"

namespace keldor {

using testing::Child;
using testing::Click;

namespace {

// Sends a mouse event as the window system does (QTest's mouseMove carries no buttons).
void SendMouse(QWidget* target, QEvent::Type type, QPoint at, Qt::MouseButton button, Qt::MouseButtons held) {
  QMouseEvent event(type, at, target->mapToGlobal(at), button, held, Qt::NoModifier);
  QApplication::sendEvent(target, &event);
}

}  // namespace

class TerrainEditingTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    clock_ = std::make_unique<VirtualClock>(11);
    window_ = std::make_unique<frmKeldor>(messages_, *clock_);
    window_->show();
    QVERIFY(QTest::qWaitForWindowExposed(window_.get()));
    Click(window_.get(), "btnStart");
    view_ = Child<PictureBox>(window_.get(), "picTerreno");
  }
  void cleanup() { window_.reset(); }

  void leftDragPaintsWallsAndRightDragErasesThem() {
    SelectTool(2);
    World& w = window_->TheWorld();
    const QPoint from = PixelOfCell(3, 4);
    const QPoint to = PixelOfCell(7, 4);
    Drag(from, to, Qt::LeftButton);
    // Cells 3..7 of row 4 (the press toggles its own cell, the drag paints the rest).
    for (int x = 3; x <= 7; ++x) QVERIFY2(CellHasObjectType(w, "PLASTER_BRICK", x, 4), qPrintable(QString::number(x)));
    QCOMPARE(int(w.WallCount()), 5);
    Drag(PixelOfCell(4, 4), PixelOfCell(6, 4), Qt::RightButton);
    QCOMPARE(int(w.WallCount()), 2);
    QVERIFY(CellHasObjectType(w, "PLASTER_BRICK", 3, 4));
    QVERIFY(!CellHasObjectType(w, "PLASTER_BRICK", 5, 4));
    QVERIFY(CellHasObjectType(w, "PLASTER_BRICK", 7, 4));
  }

  void nestPressTogglesANest() {
    SelectTool(4);
    World& w = window_->TheWorld();
    const QPoint cell = PixelOfCell(5, 6);
    QTest::mouseClick(view_, Qt::LeftButton, {}, cell);
    QCOMPARE(int(w.NestCount), 2);
    QVERIFY(IsNestCell(w, 5, 6));
    QTest::mouseClick(view_, Qt::LeftButton, {}, cell);
    QCOMPARE(int(w.NestCount), 1);
    QVERIFY(!IsNestCell(w, 5, 6));
  }

  void heldFoodToolGrowsAPile() {
    SelectTool(1);
    World& w = window_->TheWorld();
    int x = 4, y = 9;
    while (w.Cells(x, y).Food != 0) ++x;
    const QPoint cell = PixelOfCell(x, y);
    SendMouse(view_, QEvent::MouseMove, cell, Qt::NoButton, Qt::NoButton);
    SendMouse(view_, QEvent::MouseButtonPress, cell, Qt::LeftButton, Qt::LeftButton);
    const int ticks = window_->TicksRun();
    QTRY_VERIFY(window_->TicksRun() >= ticks + 4);
    SendMouse(view_, QEvent::MouseButtonRelease, cell, Qt::LeftButton, Qt::NoButton);
    const double grown = w.Cells(x, y).Food;
    QVERIFY(grown >= 2 * w.Settings.SpreadFoodAmount);
    QVERIFY(grown <= w.Settings.CellFoodCapacity());
  }

 private:
  void SelectTool(int index) {
    Click(window_.get(), "btnPickAction");
    Click(window_.get(), qPrintable(QString("btnAction_%1").arg(index)));
    QCOMPARE(int(window_->TheWorld().Settings.CurrentTool), index);
  }

  // The pixel at the middle of cell (x, y) of the terrain view.
  QPoint PixelOfCell(int x, int y) const {
    const World& w = window_->TheWorld();
    const double size = w.Settings.CellSize;
    const double tx = ((x - 0.5) * size) * w.ZoomX - w.View.Terrain.Left;
    const double ty = ((y - 0.5) * size) * w.ZoomY - w.View.Terrain.Top;
    const double perPixel = window_->Scale().TwipsPerPixel();
    return QPoint(int(tx / perPixel), int(ty / perPixel));
  }

  void Drag(QPoint from, QPoint to, Qt::MouseButton button) {
    SendMouse(view_, QEvent::MouseMove, from, Qt::NoButton, Qt::NoButton);
    SendMouse(view_, QEvent::MouseButtonPress, from, button, button);
    const int steps = 20;
    for (int i = 1; i <= steps; ++i) {
      SendMouse(view_, QEvent::MouseMove, from + (to - from) * i / steps, Qt::NoButton, button);
    }
    SendMouse(view_, QEvent::MouseButtonRelease, to, button, Qt::NoButton);
  }

  testing::RecordingMessageBox messages_;
  std::unique_ptr<VirtualClock> clock_;
  std::unique_ptr<frmKeldor> window_;
  PictureBox* view_ = nullptr;
};

}  // namespace keldor

QTEST_MAIN(keldor::TerrainEditingTest)
#include "TerrainEditingTest.moc"
