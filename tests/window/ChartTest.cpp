// Chart series decimation and the per-tick chart record.
#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "support/TestWorld.h"
#include "window/ChartSeries.h"
#include "window/ChartTicks.h"
#include "window/RunChart.h"

namespace keldor {
namespace {

TEST(RoundTicksTest, StepsAreOneTwoOrFiveTimesAPowerOfTenAndTheAxisEndsOnATick) {
  struct Case {
    double dataMax;
    double interval, max;
  } cases[] = {
      {89127, 20000, 100000},  // 89127 / 5 = 17825: 10000 gives 50000, too short; 20000 x 5 reaches it
      {1340, 500, 1500},       // 268 a step: 100 and 200 fall short, 500 x 3 = 1500
      {479000, 100000, 500000},
      {1e9, 2e8, 1e9},
      {7, 2, 8},               // counts: 1 x 5 < 7, 2 x 4 = 8
      {0.3, 1, 1},             // an almost empty chart still has one whole step
  };
  for (const Case& c : cases) {
    const AxisTicks ticks = RoundTicks(c.dataMax, 5);
    EXPECT_DOUBLE_EQ(ticks.Interval, c.interval) << c.dataMax;
    EXPECT_DOUBLE_EQ(ticks.Max, c.max) << c.dataMax;
  }
}

TEST(ChartSeriesTest, ShortSeriesKeepEveryTick) {
  ChartSeries series(4);
  for (int t = 1; t <= 4; ++t) series.Append(t, t * 10);
  std::vector<ChartPoint> points;
  series.Points(points);
  EXPECT_EQ(points, (std::vector<ChartPoint>{{1, 10}, {2, 20}, {3, 30}, {4, 40}}));
}

TEST(ChartSeriesTest, FullSeriesMergeNeighboursIntoLowAndHighInTickOrder) {
  ChartSeries series(4);
  const double values[] = {5, 1, 7, 3, 2};
  for (int t = 1; t <= 5; ++t) series.Append(t, values[t - 1]);
  // Buckets [1,2] low 1 at 2, high 5 at 1; [3,4] low 3 at 4, high 7 at 3; [5] 2.
  std::vector<ChartPoint> points;
  series.Points(points);
  EXPECT_EQ(points, (std::vector<ChartPoint>{{1, 5}, {2, 1}, {3, 7}, {4, 3}, {5, 2}}));
  EXPECT_EQ(series.BucketWidth(), 2);
}

TEST(ChartSeriesTest, AMillionTicksStayBoundedAndKeepTheirExtremes) {
  ChartSeries series;
  for (int64_t t = 1; t <= 1'000'000; ++t) series.Append(t, t == 654'321 ? 1e9 : (t == 3 ? -5 : t % 100));
  std::vector<ChartPoint> points;
  series.Points(points);
  EXPECT_LE(points.size(), 2 * ChartSeries::DefaultMaxBuckets);
  EXPECT_TRUE(std::is_sorted(points.begin(), points.end(), [](auto& a, auto& b) { return a.Tick < b.Tick; }));
  EXPECT_NE(std::find(points.begin(), points.end(), ChartPoint{654'321, 1e9}), points.end());
  EXPECT_NE(std::find(points.begin(), points.end(), ChartPoint{3, -5}), points.end());
}

TEST(RunChartTest, RecordsTotalsAndColoniesAndThinsRowsEvenly) {
  testing::TestWorld t;
  World& w = t.world;
  w.Nests[0].Ants[1].Energy = 0;  // dead: not in the colony's population
  RunChart chart;
  for (int64_t tick = 1; tick <= 70'000; ++tick) chart.Record(tick, w);
  ASSERT_EQ(chart.Colonies().size(), 1u);
  w.Nests[0].CellX = 12;  // a hand-set cell: the name reads it at the colony's first record
  w.Nests[0].CellY = 30;
  RunChart named;
  named.Record(1, w);
  EXPECT_EQ(named.Colonies()[0].Name, "Nest at cell (12, 30)");
  std::vector<ChartPoint> points;
  chart.Colonies()[0].Population.Points(points);
  EXPECT_EQ(points.back().Value, 29);  // 30 ants, one dead
  // 65536 rows fill at tick 65536; tick 65537 halves them to the odd ticks 1..65535
  // (32768) and keeps every other tick from there: 65537..69999 adds 2232.
  EXPECT_EQ(chart.RowCount(), 35'000u);
  std::ostringstream csv;
  chart.WriteCsv(csv);
  const std::string text = csv.str();
  EXPECT_EQ(text.substr(0, text.find('\n')), TickCsvHeader);
  EXPECT_EQ(text.find("\n2,"), std::string::npos);
  EXPECT_NE(text.find("\n69999,"), std::string::npos);
}

}  // namespace
}  // namespace keldor
