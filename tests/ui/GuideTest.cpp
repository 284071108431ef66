// The guide, the navigation by wheel, arrow keys and shortcuts, the chart
// axes and exports, and the slider value tips.
#include <QAction>
#include <QApplication>
#include <QChartView>
#include <QFileDialog>
#include <QGraphicsTextItem>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollBar>
#include <QSlider>
#include <QTemporaryDir>
#include <QTextBrowser>
#include <QWheelEvent>
#include <QtTest>

#include "model/Random.h"
#include "support/TestWorld.h"
#include "ui/ChartsWindow.h"
#include "ui/HelpWindow.h"
#include "ui/MainWindow.h"
#include "ui/OptionsDialog.h"
#include "ui/PictureBox.h"
#include "support/RecordingMessageBox.h"
#include "window/RunChart.h"

namespace keldor {
namespace {

// Every text the charts' scenes draw: titles, axis labels and legends.
QStringList ChartTexts(QWidget& charts) {
  QStringList texts;
  for (QChartView* view : charts.findChildren<QChartView*>()) {
    for (QGraphicsItem* item : view->scene()->items()) {
      if (auto* text = dynamic_cast<QGraphicsTextItem*>(item)) texts << text->toPlainText();
    }
  }
  return texts;
}

}  // namespace

class GuideTest : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates)); }

  void init() {
    window_ = std::make_unique<MainWindow>(messages_, &clock_);
    window_->show();
    window_->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window_.get()));
  }
  void cleanup() { window_.reset(); }

  void f1OpensTheGuideAndEveryPageShowsWithItsPictures() {
    QTest::keyClick(window_.get(), Qt::Key_F1);
    HelpWindow* guide = window_->Help();
    QVERIFY(guide->isVisible());
    auto* browser = guide->findChild<QTextBrowser*>("txtHelp");
    int pictures = 0;
    for (int page = 0; page < guide->PageCount(); ++page) {
      guide->findChild<QListWidget*>("lstHelpPages")->setCurrentRow(page);
      QCOMPARE(guide->CurrentPage(), page);
      QVERIFY2(guide->PageText().startsWith(guide->PageTitle(page)), qPrintable(guide->PageTitle(page)));
      auto images = QRegularExpression("<img src=\"([^\"]+)\"").globalMatch(browser->document()->toHtml());
      for (; images.hasNext(); ++pictures) {
        const QString name = images.next().captured(1);
        QVERIFY2(!browser->loadResource(QTextDocument::ImageResource, QUrl(name)).isNull(), qPrintable(name));
      }
    }
    QCOMPARE(pictures, 3);  // the window, the close-up and the legend
  }

  void wheelAndArrowsDoWhatTheZoomButtonsAndScrollBarsDo() {
    window_->NewWithSeed(3);
    auto* terrain = window_->findChild<PictureBox*>("picTerreno");
    const WindowState& w = window_->Window();
    const auto place = [&] { return std::tuple(w.View.ZoomX, w.HScroll1.Value, w.VScroll1.Value); };
    const auto start = place();
    window_->findChild<QPushButton*>("cmdZoomIn")->click();
    const auto zoomedByButton = place();
    QCOMPARE(std::get<0>(zoomedByButton), std::get<0>(start) + 1);
    window_->findChild<QPushButton*>("cmdZoomOut")->click();
    QCOMPARE(place(), start);
    const auto turn = [&](int angle) {
      const QPointF middle(terrain->width() / 2.0, terrain->height() / 2.0);
      QWheelEvent wheel(middle, terrain->mapToGlobal(middle), {}, QPoint(0, angle), Qt::NoButton, Qt::NoModifier,
                        Qt::NoScrollPhase, false);
      QApplication::sendEvent(terrain, &wheel);
    };
    turn(120);
    QCOMPARE(place(), zoomedByButton);
    turn(-60), turn(-60);  // two half notches make one
    QCOMPARE(place(), start);

    auto* bar = window_->findChild<QScrollBar*>("HScroll1");
    bar->triggerAction(QAbstractSlider::SliderSingleStepAdd);
    const int byBar = bar->value();
    QVERIFY(byBar > std::get<1>(start));
    bar->triggerAction(QAbstractSlider::SliderSingleStepSub);
    QTest::keyClick(window_.get(), Qt::Key_Right);
    QCOMPARE(int(w.HScroll1.Value), byBar);
    QTest::keyClick(window_.get(), Qt::Key_Left);
    QTest::keyClick(window_.get(), Qt::Key_Down);
    QCOMPARE(int(w.HScroll1.Value), int(std::get<1>(start)));
    QCOMPARE(int(w.VScroll1.Value), std::get<2>(start) + w.VScroll1.SmallChange);
  }

  void fileShortcutsRunTheirCommands() {
    QStringList asked;
    window_->SetWorldFileChooser([&](QWidget*, const char* caption, QFileDialog::AcceptMode) {
      asked << caption;
      return QString();
    });
    QVERIFY(!window_->TheWorld().HasWorld());
    QTest::keyClick(window_.get(), Qt::Key_N, Qt::ControlModifier);
    QVERIFY(window_->TheWorld().HasWorld());
    QTest::keyClick(window_.get(), Qt::Key_S, Qt::ControlModifier), QTest::keyClick(window_.get(), Qt::Key_O, Qt::ControlModifier);
    QCOMPARE(asked, QStringList({"Save World As", "Open World"}));
  }

  void aBadSeedIsAskedForAgain() {
    QTimer::singleShot(50, [] {
      auto* dialog = qobject_cast<QInputDialog*>(QApplication::activeModalWidget());
      QVERIFY(dialog != nullptr);
      dialog->setTextValue("twelve");
      QTimer::singleShot(50, [dialog] {  // the same dialog, asked again with what was typed
        QCOMPARE(dialog->textValue(), QString("twelve"));
        dialog->setTextValue("12");
        dialog->accept();
      });
      dialog->accept();
    });
    window_->findChild<QAction*>("mnuFileNewSeed")->trigger();
    QCOMPARE(messages_.shown.size(), 1u);
    QVERIFY(window_->findChild<QLabel*>("lblStatus")->text().contains("Seed 12"));
  }

  void chartAxesShowRoundGroupedNumbersUpToABillion() {
    testing::TestWorld t;
    RunChart chart;
    t.world.Nests[0].FoodStore = 1000;
    chart.Record(1, t.world);
    t.world.Nests[0].FoodStore = 479000;
    chart.Record(1'000'000'000, t.world);
    ChartsWindow charts(chart);
    charts.show();
    QVERIFY(QTest::qWaitForWindowExposed(&charts));
    charts.Refresh();
    QApplication::processEvents();
    const QStringList texts = ChartTexts(charts);
    // Ticks every 200,000,000 to the billionth tick; food stored up to 500,000 in steps of 100,000.
    for (const char* label : {"200,000,000", "1,000,000,000", "100,000", "500,000"}) {
      QVERIFY2(texts.contains(label), qPrintable(label + (": " + texts.join(" | "))));
    }
    // Their spacing is the axis rule's (ChartTest); here no label falls back to exponents.
    for (const QString& text : texts) {
      QVERIFY2(!text.contains(QRegularExpression("[0-9]e[+-]?[0-9]", QRegularExpression::CaseInsensitiveOption)), qPrintable(text));
    }
    QVERIFY(texts.contains("Tick"));
  }

  void exportsAddTheirExtensionAndThePictureHasTwiceThePixels() {
    testing::TestWorld t;
    RunChart chart;
    chart.Record(1, t.world);
    ChartsWindow charts(chart);
    charts.show();
    QVERIFY(QTest::qWaitForWindowExposed(&charts));
    QTemporaryDir dir;
    QTimer::singleShot(50, [&] {
      auto* dialog = charts.findChild<QFileDialog*>("dlgExportCsv");
      QVERIFY(dialog != nullptr);
      dialog->setDirectory(dir.path());
      auto* typed = dialog->findChild<QLineEdit*>("fileNameEdit");  // the name as a user types it
      QVERIFY(typed != nullptr);
      typed->setText("run");
      QMetaObject::invokeMethod(dialog, "accept");
    });
    charts.findChild<QPushButton*>("cmdExportCsv")->click();
    QVERIFY2(QFile::exists(dir.filePath("run.csv")), qPrintable(QDir(dir.path()).entryList().join(",")));

    QVERIFY(charts.ExportPng(dir.filePath("charts.png")));
    const QImage picture(dir.filePath("charts.png"));
    QCOMPARE(picture.size(), charts.findChild<QWidget*>("plots")->size() * 2);
  }

  void slidersShowTheirValue() {
    OptionsDialog dialog(window_->TheWorld(), window_->Window(), window_.get());
    for (auto* slider : dialog.findChildren<QSlider*>()) {
      QCOMPARE(slider->toolTip(), QString::number(slider->value()));
      slider->setValue(slider->minimum() + 1);
      QCOMPARE(slider->toolTip(), QString::number(slider->minimum() + 1));
    }
  }

 private:
  testing::RecordingMessageBox messages_;
  VirtualClock clock_{7};
  std::unique_ptr<MainWindow> window_;
};

}  // namespace keldor

QTEST_MAIN(keldor::GuideTest)
#include "GuideTest.moc"
