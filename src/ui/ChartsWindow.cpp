#include "ui/ChartsWindow.h"

#include <QChart>
#include <QChartView>
#include <QFile>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLineSeries>
#include <QMessageBox>
#include <QPushButton>
#include <QValueAxis>
#include <QVBoxLayout>
#include <algorithm>
#include <sstream>

#include "platform/QtColour.h"
#include "window/RunChart.h"

namespace keldor {

namespace {

// Food stored, carried and on the map.
const QColor FoodColours[] = {QColor(160, 90, 20), QColor(40, 110, 200), QColor(16, 152, 16)};

}  // namespace

ChartsWindow::ChartsWindow(const RunChart& chart, QWidget* parent) : QWidget(parent, Qt::Window), chart_(chart) {
  setObjectName("frmCharts");
  setWindowTitle("Keldor Charts");
  auto* layout = new QVBoxLayout(this);
  plots_ = new QWidget(this);
  auto* plotLayout = new QVBoxLayout(plots_);
  plotLayout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(plots_, 1);
  population_ = AddPlot(plots_, "Population");
  food_ = AddPlot(plots_, "Food");
  // The food on the map outweighs the rest by far: it has the right-hand scale.
  food_.RightY = new QValueAxis();
  food_.RightY->setLabelFormat("%.3g");
  food_.Chart->addAxis(food_.RightY, Qt::AlignRight);
  for (size_t i = 0; i < 3; ++i) {
    const QString name = QString::fromUtf8(RunChart::TotalName(RunChart::AllTotals[i]).data());
    AddLine(food_, name, i == 2 ? food_.RightY : nullptr)->setColor(FoodColours[i]);
  }
  food_.RightY->setLinePenColor(FoodColours[2]);
  food_.RightY->setLabelsColor(FoodColours[2]);
  scent_ = AddPlot(plots_, "Scented cells");
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

ChartsWindow::Plot ChartsWindow::AddPlot(QWidget* area, const QString& title) {
  Plot plot;
  plot.Chart = new QChart();
  plot.Chart->setTitle(title);
  plot.Chart->setAnimationOptions(QChart::NoAnimation);
  plot.Chart->legend()->setAlignment(Qt::AlignRight);
  plot.X = new QValueAxis();
  plot.X->setLabelFormat("%d");
  plot.Y = new QValueAxis();
  plot.Y->setLabelFormat("%.3g");
  plot.Chart->addAxis(plot.X, Qt::AlignBottom);
  plot.Chart->addAxis(plot.Y, Qt::AlignLeft);
  auto* view = new QChartView(plot.Chart, area);
  view->setRenderHint(QPainter::Antialiasing, false);
  area->layout()->addWidget(view);
  return plot;
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
  double xMax = 1;
  double populationMax = 1;
  for (size_t i = 0; i < colonies.size(); ++i) Show(population_.Lines[i], colonies[i].Population, xMax, populationMax);
  double foodMax = 1;
  for (size_t i = 0; i < 2; ++i) Show(food_.Lines[i], chart_.TotalSeries(RunChart::AllTotals[i]), xMax, foodMax);
  double mapFoodMax = 1;
  Show(food_.Lines[2], chart_.TotalSeries(RunChart::Total::FoodOnMap), xMax, mapFoodMax);
  food_.RightY->setRange(0, mapFoodMax * 1.05);
  double scentMax = 1;
  Show(scent_.Lines[0], chart_.TotalSeries(RunChart::Total::ScentedCells), xMax, scentMax);
  const std::pair<Plot*, double> ranges[] = {{&population_, populationMax}, {&food_, foodMax}, {&scent_, scentMax}};
  for (const auto& [plot, yMax] : ranges) {
    plot->X->setRange(0, xMax);
    plot->Y->setRange(0, yMax * 1.05);
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
  return plots_->grab().save(path, "PNG");
}

void ChartsWindow::AskCsv() {
  const QString path = QFileDialog::getSaveFileName(this, "Export CSV", "keldor-run.csv", "CSV files (*.csv)");
  if (!path.isEmpty() && !ExportCsv(path)) QMessageBox::warning(this, windowTitle(), "Could not write " + path);
}

void ChartsWindow::AskPng() {
  const QString path = QFileDialog::getSaveFileName(this, "Export PNG", "keldor-charts.png", "PNG images (*.png)");
  if (!path.isEmpty() && !ExportPng(path)) QMessageBox::warning(this, windowTitle(), "Could not write " + path);
}

}  // namespace keldor
