// The splash screen's hand-over and the About box.
#include <QLabel>
#include <QtTest>

#include "model/SystemInfo.h"
#include "platform/NoRegistry.h"
#include "ui/frmAbout.h"
#include "ui/frmSplash.h"
#include "UiTestSupport.h"

namespace keldor {

using testing::Child;

namespace {

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

class SplashAboutTest : public QObject {
  Q_OBJECT

 private slots:
  void splashHandsOverAtTheFirstKey() {
    int handedOver = 0;
    QPointer<frmSplash> splash = new frmSplash([&] { ++handedOver; });
    splash->show();
    QVERIFY(QTest::qWaitForWindowExposed(splash));
    QCOMPARE(Child<QLabel>(splash, "Label2")->text(), QString("https://keldor.example.org"));
    QTest::keyClick(splash, Qt::Key_Space);
    QCOMPARE(handedOver, 1);
    QTRY_VERIFY(splash.isNull());  // closed and deleted
  }

  void splashHandsOverAfterItsTimerRunsOut() {
    int handedOver = 0;
    QElapsedTimer elapsed;
    elapsed.start();
    QPointer<frmSplash> splash = new frmSplash([&] { ++handedOver; });
    splash->show();
    QTRY_COMPARE(handedOver, 1);
    // 51 ticks of 20 ms: about a second, never less.
    QVERIFY(elapsed.elapsed() >= 51 * 20);
    QTRY_VERIFY(splash.isNull());
    QTest::qWait(100);
    QCOMPARE(handedOver, 1);
  }

  void splashClickHandsOver() {
    int handedOver = 0;
    QPointer<frmSplash> splash = new frmSplash([&] { ++handedOver; });
    splash->show();
    QVERIFY(QTest::qWaitForWindowExposed(splash));
    QTest::mouseClick(splash, Qt::LeftButton);
    QCOMPARE(handedOver, 1);
  }

  void aboutShowsTheUnavailableMessageWithoutARegistry() {
    NoRegistry registry;
    NoPrograms programs;
    testing::RecordingMessageBox messages;
    frmAbout about(registry, programs, messages);
    QCOMPARE(about.windowTitle(), QString("About Keldor"));
    about.show();
    QVERIFY(QTest::qWaitForWindowExposed(&about));
    QCOMPARE(Child<QPushButton>(&about, "cmdSysInfo")->text(), QString("&System Info..."));
    testing::Click(&about, "cmdSysInfo");
    QCOMPARE(messages.shown, std::vector<std::string>{"System Information Is Unavailable At This Time"});
    QVERIFY(programs.started.empty());
    testing::Click(&about, "cmdOK");
    QVERIFY(!about.isVisible());
  }
};

}  // namespace keldor

QTEST_MAIN(keldor::SplashAboutTest)
#include "SplashAboutTest.moc"
