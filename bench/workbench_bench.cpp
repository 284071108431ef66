// The run workbench's costs: recording the chart point of a tick, redrawing
// the charts over 1,000,000 ticks, the charts' share of a 100,000-tick run of
// the default world, and the ticks per second of Fastest in the main window
// with the frames it shows.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QImage>
#include <QTimer>

#include "window/MessageBox.h"
#include "support/BenchWorlds.h"
#include "ui/ChartsWindow.h"
#include "ui/PictureBox.h"
#include "ui/MainWindow.h"
#include "window/RunChart.h"

namespace keldor {
namespace {

void BM_ChartRecordOneTick(benchmark::State& state) {
  auto subject = bench::DefaultWorld();
  subject->Tick(500);
  RunChart chart;
  int64_t tick = 0;
  for (auto _ : state) chart.Record(++tick, subject->world);
  state.counters["ants"] = subject->world.Settings.Population;
}
BENCHMARK(BM_ChartRecordOneTick)->Iterations(1'000'000)->Unit(benchmark::kNanosecond);

// A million recorded ticks of a world that runs one tick in a hundred, so the lines move.
void BM_ChartsRedrawMillionTicks(benchmark::State& state) {
  auto subject = bench::DefaultWorld();
  RunChart chart;
  for (int64_t tick = 1; tick <= 1'000'000; ++tick) {
    if (tick % 100 == 0) subject->Tick();
    chart.Record(tick, subject->world);
  }
  ChartsWindow window(chart);
  window.resize(560, 640);
  window.show();
  QImage image(window.size(), QImage::Format_ARGB32_Premultiplied);
  for (auto _ : state) {
    window.Refresh();
    window.render(&image);
  }
  state.counters["points"] = window.PointCounts()[0];
}
BENCHMARK(BM_ChartsRedrawMillionTicks)->Iterations(20)->Unit(benchmark::kMillisecond);

// Whole runs of the default world, without and with a chart point per tick.
void BM_HundredThousandTicks(benchmark::State& state) {
  const bool charts = state.range(0) != 0;
  for (auto _ : state) {
    auto subject = bench::DefaultWorld();
    RunChart chart;
    for (int64_t tick = 1; tick <= 100'000; ++tick) {
      subject->Tick();
      if (charts) chart.Record(tick, subject->world);
    }
    benchmark::DoNotOptimize(chart.Ticks());
    state.counters["ants"] = subject->world.Settings.Population;
  }
}
BENCHMARK(BM_HundredThousandTicks)->Arg(0)->Arg(1)->Iterations(1)->Unit(benchmark::kMillisecond);

class SilentMessageBox : public MessageBox {
 public:
  void Show(const std::string&) override {}
};

// 100,000 ticks of Fastest on the default world in the main window, charts
// open or not: ticks and frames shown per second of wall time.
void BM_FastestWindow(benchmark::State& state) {
  for (auto _ : state) {
    VirtualClock clock(11);
    SilentMessageBox messages;
    MainWindow window(messages, &clock);
    window.show();
    window.NewWithSeed(11);
    if (state.range(0) != 0) window.Charts()->show();
    window.SetSpeed(RunSpeed::Fastest);
    window.findChild<QAction*>("mnuPlayPause")->trigger();
    auto* view = window.findChild<PictureBox*>("picTerreno");
    qint64 lastFrame = 0;
    int frames = 0;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, [&] {
      if (view->Frame().cacheKey() == lastFrame) return;
      lastFrame = view->Frame().cacheKey();
      ++frames;
    });
    poll.start(2);
    QElapsedTimer elapsed;
    elapsed.start();
    while (window.WorldTicks() < 100'000) {
      QApplication::processEvents(QEventLoop::AllEvents, 50);
      // Past the population-limit pause, as the simulation benchmarks run.
      if (!window.TheWorld().Running) window.findChild<QAction*>("mnuPlayPause")->trigger();
    }
    const double seconds = elapsed.elapsed() / 1000.0;
    state.counters["ticks_per_s"] = static_cast<double>(window.WorldTicks()) / seconds;
    state.counters["frames_per_s"] = frames / seconds;
    state.counters["ants"] = window.TheWorld().Settings.Population;
  }
}
BENCHMARK(BM_FastestWindow)->Arg(0)->Arg(1)->Iterations(1)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace keldor

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
