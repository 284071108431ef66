#include "ui/ChartsWindow.h"

#include <QChart>
#include <QChartView>
#include <QFile>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLineSeries>
#include <QMessageBox>
#include <QPushButton>
#include <QResizeEvent>
#include <QPixmap>
#include <QLocale>
#include <QValueAxis>
#include <QVBoxLayout>
#include <algorithm>
#include <sstream>

#include "platform/QtColour.h"
#include "window/ChartTicks.h"
#include "window/RunChart.h"

namespace keldor {

namespace {

// Food stored, carried and on the map.
const QColor FoodColours[] = {QColor(160, 90, 20), QColor(40, 110, 200), QColor(16, 152, 16)};

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

void ShowRoundTicks(QValueAxis* axis, double dataMax) {
  const AxisTicks ticks = RoundTicks(dataMax, AxisTickCount);
  axis->setTickAnchor(0);
  axis->setTickInterval(ticks.Interval);
  axis->setRange(0, ticks.Max);
}

QValueAxis* NewAxis(const QString& title) {
  auto* axis = new QValueAxis();
  axis->setTitleText(title);
  axis->setTickType(QValueAxis::TicksDynamic);
  axis->setLabelFormat("%.0f");
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
  plots_ = new QWidget(this);
  auto* plotLayout = new QVBoxLayout(plots_);
  plotLayout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(plots_, 1);
  population_ = AddPlot(plots_, "Population", "Living ants");
  food_ = AddPlot(plots_, "Food", "Stored and carried (food units)");
  // The food on the map outweighs the rest by far: it has the right-hand scale.
  food_.RightY = NewAxis("On the map (food units)");
  food_.Chart->addAxis(food_.RightY, Qt::AlignRight);
  for (size_t i = 0; i < 3; ++i) {
    const QString name = QString::fromUtf8(RunChart::TotalName(RunChart::AllTotals[i]).data());
    AddLine(food_, name, i == 2 ? food_.RightY : nullptr)->setColor(FoodColours[i]);
  }
  food_.RightY->setLinePenColor(FoodColours[2]);
  food_.RightY->setLabelsColor(FoodColours[2]);
  food_.RightY->setTitleBrush(FoodColours[2]);
  scent_ = AddPlot(plots_, "Scented cells", "Cells with scent");
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
  resize(560, 640);
}

ChartsWindow::Plot ChartsWindow::AddPlot(QWidget* area, const QString& title, const QString& yTitle) {
  Plot plot;
  plot.Chart = new QChart();
  plot.Chart->setTitle(title);
  plot.Chart->setAnimationOptions(QChart::NoAnimation);
  plot.Chart->setLocalizeNumbers(true);
  plot.Chart->setLocale(GroupingLocale());
  plot.Chart->legend()->setAlignment(Qt::AlignBottom);
  plot.X = NewAxis("Ticks run");
  plot.Y = NewAxis(yTitle);
  plot.Chart->addAxis(plot.X, Qt::AlignBottom);
  plot.Chart->addAxis(plot.Y, Qt::AlignLeft);
  auto* view = new QChartView(plot.Chart, area);
  view->setRenderHint(QPainter::Antialiasing, false);
  view->installEventFilter(this);
  area->layout()->addWidget(view);
  plot.View = view;
  return plot;
}

bool ChartsWindow::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize) {
    for (const Plot* plot : {&population_, &food_, &scent_}) {
      if (plot->View == watched) AlignPlotArea(*plot, static_cast<QResizeEvent*>(event)->size());
    }
  }
  return QWidget::eventFilter(watched, event);
}

void ChartsWindow::AlignPlotArea(const Plot& plot, QSize size) {
  // The same margins on every chart, wide enough for a label of nine digits
  // and an axis title on either side: the three x axes line up.
  const QFontMetrics metrics(plot.Chart->font());
  const int side = metrics.horizontalAdvance("000,000,000") + 2 * metrics.height() + 12;
  const int top = 2 * metrics.height() + 8;
  const int bottom = 4 * metrics.height() + 16;  // tick labels, axis title, legend
  const QRectF area(side, top, size.width() - 2 * side, size.height() - top - bottom);
  plot.Chart->setPlotArea(area.isValid() ? area : QRectF());
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
    ShowRoundTicks(plot->X, xMax);
    ShowRoundTicks(plot->Y, yMax);
  }
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
