#include "ui/ChartsWindow.h"

#include <QChart>
#include <QChartView>
#include <QFile>
#include <QFileDialog>
#include <QGraphicsLayout>
#include <QHBoxLayout>
#include <QLineSeries>
#include <QLocale>
#include <QMessageBox>
#include <QPixmap>
#include <QPushButton>
#include <QScrollArea>
#include <QValueAxis>
#include <QVBoxLayout>
#include <algorithm>
#include <sstream>

#include "platform/QtColour.h"
#include "ui/ScreenFit.h"
#include "window/ChartTicks.h"
#include "window/RunChart.h"

namespace keldor {

namespace {

// Food stored, carried and on the map.
const QColor FoodColours[] = {QColor(160, 90, 20), QColor(40, 110, 200), QColor(16, 152, 16)};

// The charts' own margin around their contents.
const QMargins ChartMargins(8, 8, 8, 8);

// Labelled ticks on an axis at most; fewer when the steps round up.
constexpr int AxisTickCount = 5;
// The exported picture has this many pixels for each screen pixel.
constexpr int ExportScale = 2;

// Whole numbers with digit grouping (1,340 and 479,000), never exponents.
QLocale GroupingLocale() {
  QLocale locale;
  locale.setNumberOptions(locale.numberOptions() & ~QLocale::OmitGroupSeparator);
  return locale;
}

// A value axis ends on its first round tick above the data; the time axis
// ends at the latest tick, so that the lines reach the right-hand side.
void ShowRoundTicks(QValueAxis* axis, double dataMax, bool endOnTick = true) {
  const AxisTicks ticks = RoundTicks(dataMax, AxisTickCount);
  axis->setTickAnchor(0);
  axis->setTickInterval(ticks.Interval);
  axis->setRange(0, endOnTick ? ticks.Max : std::max(dataMax, 1.0));
}

QValueAxis* NewAxis(const QString& title) {
  auto* axis = new QValueAxis();
  axis->setTitleText(title);
  axis->setTickType(QValueAxis::TicksDynamic);
  axis->setLabelFormat("%.0f");
  axis->setTruncateLabels(false);
  return axis;
}

// A file name the user typed without an extension gets `suffix`.
QString AskSaveFile(QWidget* parent, const char* objectName, const QString& caption, const QString& name,
                    const QString& filter, const QString& suffix) {
  QFileDialog dialog(parent, caption, name, filter);
  dialog.setObjectName(objectName);
  dialog.setOption(QFileDialog::DontUseNativeDialog);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix(suffix);
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
  return dialog.selectedFiles().first();
}

}  // namespace

ChartsWindow::ChartsWindow(const RunChart& chart, QWidget* parent) : QWidget(parent, Qt::Window), chart_(chart) {
  setObjectName("frmCharts");
  setWindowTitle("Keldor Charts");
  auto* layout = new QVBoxLayout(this);
  // On a small screen the charts keep a readable height and scroll.
  auto* scroll = new QScrollArea(this);
  scroll->setWidgetResizable(true);
  scroll->setFrameShape(QFrame::NoFrame);
  plots_ = new QWidget(scroll);
  plots_->setObjectName("plots");
  auto* plotLayout = new QVBoxLayout(plots_);
  plotLayout->setContentsMargins(0, 0, 0, 0);
  scroll->setWidget(plots_);
  layout->addWidget(scroll, 1);
  population_ = AddPlot(plots_, "Population", "Ants");
  food_ = AddPlot(plots_, "Food: stored and carried, on the map", "Food units");
  // The food on the map outweighs the rest by far: it has the right-hand scale.
  food_.RightY = NewAxis("On the map");
  food_.Chart->addAxis(food_.RightY, Qt::AlignRight);
  for (size_t i = 0; i < 3; ++i) {
    const QString name = QString::fromUtf8(RunChart::TotalName(RunChart::AllTotals[i]).data());
    AddLine(food_, name, i == 2 ? food_.RightY : nullptr)->setColor(FoodColours[i]);
  }
  food_.RightY->setLinePenColor(FoodColours[2]);
  food_.RightY->setLabelsColor(FoodColours[2]);
  food_.RightY->setTitleBrush(FoodColours[2]);
  scent_ = AddPlot(plots_, "Scented cells", "Cells");
  AddLine(scent_, "Scented cells")->setColor(Qt::darkGray);
  scent_.Chart->legend()->hide();

  auto* buttons = new QHBoxLayout();
  auto* csv = new QPushButton("Export &CSV...", this);
  csv->setObjectName("cmdExportCsv");
  connect(csv, &QPushButton::clicked, this, &ChartsWindow::AskCsv);
  auto* png = new QPushButton("Export &PNG...", this);
  png->setObjectName("cmdExportPng");
  connect(png, &QPushButton::clicked, this, &ChartsWindow::AskPng);
  buttons->addStretch();
  buttons->addWidget(csv);
  buttons->addWidget(png);
  layout->addLayout(buttons);
  resize(QSize(640, 760).boundedTo(AvailableSize(*this)));
}

ChartsWindow::Plot ChartsWindow::AddPlot(QWidget* area, const QString& title, const QString& yTitle) {
  Plot plot;
  plot.Chart = new QChart();
  plot.Chart->setTitle(title);
  plot.Chart->setAnimationOptions(QChart::NoAnimation);
  plot.Chart->setLocalizeNumbers(true);
  plot.Chart->setLocale(GroupingLocale());
  plot.Chart->legend()->setAlignment(Qt::AlignBottom);
  plot.X = NewAxis("Tick");
  plot.Y = NewAxis(yTitle);
  plot.Chart->addAxis(plot.X, Qt::AlignBottom);
  plot.Chart->addAxis(plot.Y, Qt::AlignLeft);
  auto* view = new QChartView(plot.Chart, area);
  view->setRenderHint(QPainter::Antialiasing, false);
  view->setMinimumHeight(view->fontMetrics().height() * 15);  // room for a plot between title, labels and legend
  view->installEventFilter(this);
  area->layout()->addWidget(view);
  return plot;
}

bool ChartsWindow::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize) QMetaObject::invokeMethod(this, &ChartsWindow::AlignXAxes, Qt::QueuedConnection);
  return QWidget::eventFilter(watched, event);
}

void ChartsWindow::AlignXAxes() {
  // Each chart lays out its own labels, titles and legend; the charts with
  // narrower ones get the difference as an extra margin, so that the three
  // plot areas start and end at the same x.
  const Plot* plots[] = {&population_, &food_, &scent_};
  double left = 0;
  double right = 0;
  for (const Plot* plot : plots) {
    plot->Chart->setMargins(ChartMargins);
    plot->Chart->layout()->activate();
    left = std::max(left, plot->Chart->plotArea().left());
    right = std::max(right, plot->Chart->size().width() - plot->Chart->plotArea().right());
  }
  for (const Plot* plot : plots) {
    const QRectF area = plot->Chart->plotArea();
    const QMargins extra(static_cast<int>(left - area.left()), 0,
                         static_cast<int>(right - (plot->Chart->size().width() - area.right())), 0);
    plot->Chart->setMargins(ChartMargins + extra);
    plot->Chart->layout()->activate();
  }
}

QLineSeries* ChartsWindow::AddLine(Plot& plot, const QString& name, QValueAxis* y) {
  auto* line = new QLineSeries();
  line->setName(name);
  plot.Chart->addSeries(line);
  line->attachAxis(plot.X);
  line->attachAxis(y != nullptr ? y : plot.Y);
  plot.Lines.push_back(line);
  return line;
}

void ChartsWindow::Show(QLineSeries* line, const ChartSeries& series, double& xMax, double& yMax) {
  series.Points(points_);
  QList<QPointF> shown;
  shown.reserve(static_cast<qsizetype>(points_.size()));
  for (const ChartPoint& p : points_) {
    shown.append(QPointF(static_cast<double>(p.Tick), p.Value));
    yMax = std::max(yMax, p.Value);
  }
  if (!points_.empty()) xMax = std::max(xMax, static_cast<double>(points_.back().Tick));
  line->replace(shown);
}

void ChartsWindow::Refresh() {
  const auto& colonies = chart_.Colonies();
  while (population_.Lines.size() > colonies.size()) {
    population_.Chart->removeSeries(population_.Lines.back());
    delete population_.Lines.back();
    population_.Lines.pop_back();
  }
  for (size_t i = population_.Lines.size(); i < colonies.size(); ++i) {
    QLineSeries* line = AddLine(population_, QString::fromStdString(colonies[i].Name));
    line->setColor(ToQColor(colonies[i].Colour));
  }
  double xMax = 0;
  double populationMax = 0;
  for (size_t i = 0; i < colonies.size(); ++i) Show(population_.Lines[i], colonies[i].Population, xMax, populationMax);
  double foodMax = 0;
  for (size_t i = 0; i < 2; ++i) Show(food_.Lines[i], chart_.TotalSeries(RunChart::AllTotals[i]), xMax, foodMax);
  double mapFoodMax = 0;
  Show(food_.Lines[2], chart_.TotalSeries(RunChart::Total::FoodOnMap), xMax, mapFoodMax);
  ShowRoundTicks(food_.RightY, mapFoodMax);
  double scentMax = 0;
  Show(scent_.Lines[0], chart_.TotalSeries(RunChart::Total::ScentedCells), xMax, scentMax);
  const std::pair<Plot*, double> ranges[] = {{&population_, populationMax}, {&food_, foodMax}, {&scent_, scentMax}};
  for (const auto& [plot, yMax] : ranges) {
    ShowRoundTicks(plot->X, xMax, false);
    ShowRoundTicks(plot->Y, yMax);
  }
  AlignXAxes();
}

std::vector<int> ChartsWindow::PointCounts() const {
  std::vector<int> counts;
  for (const Plot* plot : {&population_, &food_, &scent_}) {
    for (const QLineSeries* line : plot->Lines) counts.push_back(static_cast<int>(line->count()));
  }
  return counts;
}

bool ChartsWindow::ExportCsv(const QString& path) const {
  std::ostringstream text;
  chart_.WriteCsv(text);
  QFile file(path);
  if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)) return false;
  const std::string bytes = text.str();
  return file.write(bytes.data(), static_cast<qint64>(bytes.size())) == static_cast<qint64>(bytes.size()) && file.flush();
}

bool ChartsWindow::ExportPng(const QString& path) {
  Refresh();
  // Drawn again at twice the pixels, sharp enough for a printed page.
  QPixmap picture(plots_->size() * ExportScale);
  picture.setDevicePixelRatio(ExportScale);
  picture.fill(Qt::white);
  plots_->render(&picture);
  return picture.save(path, "PNG");
}

void ChartsWindow::AskCsv() {
  const QString path = AskSaveFile(this, "dlgExportCsv", "Export CSV", "keldor-run.csv", "CSV files (*.csv)", "csv");
  if (!path.isEmpty() && !ExportCsv(path)) QMessageBox::warning(this, windowTitle(), "Could not write " + path);
}

void ChartsWindow::AskPng() {
  const QString path = AskSaveFile(this, "dlgExportPng", "Export PNG", "keldor-charts.png", "PNG images (*.png)", "png");
  if (!path.isEmpty() && !ExportPng(path)) QMessageBox::warning(this, windowTitle(), "Could not write " + path);
}

}  // namespace keldor
