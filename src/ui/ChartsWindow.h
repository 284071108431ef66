// "Keldor Charts": the run's population of each colony in its colour, the
// food stored, carried and on the map, and the scented cells, over the ticks
// the world has run, on round-numbered axes whose x axes line up. Shows what RunChart holds; exports its rows as CSV and
// the charts as PNG.
#pragma once

#include <QWidget>
#include <vector>

#include "window/ChartSeries.h"

class QChart;
class QLineSeries;
class QValueAxis;

namespace keldor {

class RunChart;

class ChartsWindow : public QWidget {
  Q_OBJECT

 public:
  ChartsWindow(const RunChart& chart, QWidget* parent = nullptr);

  // Shows the chart's series as they are now.
  void Refresh();
  // Points in each plotted line, colonies first.
  std::vector<int> PointCounts() const;

  bool ExportCsv(const QString& path) const;
  // The plots at twice the screen's pixels.
  bool ExportPng(const QString& path);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Plot {
    QChart* Chart = nullptr;
    QValueAxis* X = nullptr;
    QValueAxis* Y = nullptr;
    QValueAxis* RightY = nullptr;  // for a line on another scale
    std::vector<QLineSeries*> Lines;
  };
  Plot AddPlot(QWidget* area, const QString& title, const QString& yTitle);
  // Widens the margins of the charts so that their plot areas line up.
  void AlignXAxes();
  QLineSeries* AddLine(Plot& plot, const QString& name, QValueAxis* y = nullptr);
  // Replaces the line's points by the series' and widens the plot's ranges to hold them.
  void Show(QLineSeries* line, const ChartSeries& series, double& xMax, double& yMax);
  void AskCsv();
  void AskPng();

  const RunChart& chart_;
  QWidget* plots_ = nullptr;
  Plot population_;
  Plot food_;
  Plot scent_;
  std::vector<ChartPoint> points_;
};

}  // namespace keldor
