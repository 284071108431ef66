// The options dialog opened from the main window's menu and filled in as a
// user does: typing, sliding, OK and Cancel.
#include <QLineEdit>
#include <QSlider>
#include <QtTest>

#include "model/Numeric.h"
#include "model/Random.h"
#include "ui/frmKeldor.h"
#include "ui/frmOptions.h"
#include "UiTestSupport.h"

namespace keldor {

using testing::Child;

namespace {

// Replaces a box's text by typing, then leaves the box (its text is taken over).
void Type(QWidget* dialog, const char* box, const QString& text) {
  auto* edit = Child<QLineEdit>(dialog, box);
  edit->setFocus();
  edit->selectAll();
  QTest::keyClicks(edit, text);
  QTest::keyClick(edit, Qt::Key_Tab);
}

QString Text(QWidget* dialog, const char* box) { return Child<QLineEdit>(dialog, box)->text(); }

}  // namespace

class frmOptionsTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    clock_ = std::make_unique<VirtualClock>(3);
    window_ = std::make_unique<frmKeldor>(messages_, *clock_);
    window_->show();
    QVERIFY(QTest::qWaitForWindowExposed(window_.get()));
  }
  void cleanup() { window_.reset(); }

  void typedTextsAreCorrected() {
    QStringList seen;
    Open([&](QWidget* dialog) {
      QCOMPARE(dialog->windowTitle(), QString("Options"));
      Type(dialog, "txtNumAnts", "-7.9");
      seen << Text(dialog, "txtNumAnts");
      Type(dialog, "txtNumAnts", "many");
      seen << Text(dialog, "txtNumAnts");
      Type(dialog, "txtAntsRed", "300");
      seen << Text(dialog, "txtAntsRed");
      Type(dialog, "txtAntSize", "20");
      seen << Text(dialog, "txtAntSize");
      Type(dialog, "txtGridDimX", "25");
      seen << Text(dialog, "txtGridDimY");
      Type(dialog, "txtGridDimX", "1000");
      seen << Text(dialog, "txtGridDimX");
      QTest::mouseClick(Child<QPushButton>(dialog, "btnAcept"), Qt::LeftButton);
    });
    QCOMPARE(seen, QStringList({"8", "30", "255", "5.9", "25", "181"}));
    const WorldSettings& s = window_->TheWorld().Settings;
    QCOMPARE(int(s.AntsPerNest), 30);
    QCOMPARE(int(s.AntRed), 255);
    QCOMPARE(s.AntSizeMm, 5.9);
    QCOMPARE(int(window_->TheWorld().PendingGridSize), 181);
  }

  void cancelKeepsWhatWasTakenOverOnChange() {
    Open([&](QWidget* dialog) {
      Type(dialog, "txtNumAnts", "12");
      Type(dialog, "txtAntsBlue", "200");
      Child<QSlider>(dialog, "sliLifeSpan")->setValue(10);
      Child<QSlider>(dialog, "sliFoodRate")->setValue(60);
      Child<QSlider>(dialog, "sliFoodTrace")->setValue(123);
      // The typed text is taken over by leaving the box for the Cancel button.
      auto* size = Child<QLineEdit>(dialog, "txtAntSize");
      size->setFocus();
      size->selectAll();
      QTest::keyClicks(size, "2.5");
      QTest::mouseClick(Child<QPushButton>(dialog, "btnCancel"), Qt::LeftButton);
    });
    const WorldSettings& s = window_->TheWorld().Settings;
    QCOMPARE(int(s.AntsPerNest), 12);
    QCOMPARE(s.AntSizeMm, 2.5);
    QCOMPARE(s.AntColour, Rgb(150, 100, 200));
    QCOMPARE(int(s.FoodTraceSetting), 123);
    QCOMPARE(int(s.AntBlue), 70);
    QCOMPARE(int(s.LifeSpan), 100);
    QCOMPARE(int(s.FoodRate), 2);
  }

  void okTakesOverTheRestAndNewUsesIt() {
    Open([&](QWidget* dialog) {
      Child<QSlider>(dialog, "sliLifeSpan")->setValue(40);
      Type(dialog, "txtGridDimX", "21");
      QTest::mouseClick(Child<QPushButton>(dialog, "btnAcept"), Qt::LeftButton);
    });
    World& w = window_->TheWorld();
    QCOMPARE(int(w.Settings.LifeSpan), 40);
    QCOMPARE(int(w.Settings.GridX), 30);
    testing::Click(window_.get(), "btnStart");
    QCOMPARE(int(w.Settings.GridX), 21);
    QCOMPARE(int(w.Nests[0].LifeSpan), 40);
    QCOMPARE(int(w.Nests[0].CellX), 10);
  }

  void theTickReadsTheNestSliderWhileOpen() {
    World& w = window_->TheWorld();
    bool openWhileShown = false;
    int valueWhileShown = 0;
    Open([&](QWidget* dialog) {
      Child<QSlider>(dialog, "sliNestTrace")->setValue(77);
      openWhileShown = w.OptionsOpen;
      valueWhileShown = w.NestTraceValue();
      dialog->close();
    });
    QVERIFY(openWhileShown);
    QCOMPARE(valueWhileShown, 77);
    QVERIFY(!w.OptionsOpen);
  }

  void destroyingTheDialogWhileABoxHasTheFocus() {
    auto* dialog = new frmOptions(window_->TheWorld(), window_.get());
    dialog->show();
    dialog->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(dialog));
    auto* box = Child<QLineEdit>(dialog, "txtNumAnts");
    box->setFocus();
    QTest::keyClicks(box, "5");
    QTRY_VERIFY(box->hasFocus());
    delete dialog;
    QVERIFY(!window_->TheWorld().OptionsOpen);
  }

  void closingTheMainWindowClosesTheDialog() {
    bool dialogClosed = false;
    testing::AnswerNextModal([&](QWidget*) { window_->close(); });
    Child<QAction>(window_.get(), "mnuOptions")->trigger();
    dialogClosed = QApplication::activeModalWidget() == nullptr;
    QVERIFY(dialogClosed);
    QVERIFY(!window_->isVisible());
    QVERIFY(!window_->TheWorld().OptionsOpen);
  }

 private:
  // Opens the dialog from the menu and runs answer inside it; answer closes it.
  void Open(std::function<void(QWidget*)> answer) {
    bool answered = false;
    testing::AnswerNextModal([&](QWidget* dialog) {
      QVERIFY(qobject_cast<frmOptions*>(dialog) != nullptr);
      dialog->activateWindow();
      QVERIFY(QTest::qWaitForWindowActive(dialog));
      answer(dialog);
      answered = true;
      if (dialog->isVisible()) dialog->close();
    });
    Child<QAction>(window_.get(), "mnuOptions")->trigger();
    QVERIFY(answered);
  }

  testing::RecordingMessageBox messages_;
  std::unique_ptr<VirtualClock> clock_;
  std::unique_ptr<frmKeldor> window_;
};

}  // namespace keldor

QTEST_MAIN(keldor::frmOptionsTest)
#include "frmOptionsTest.moc"
