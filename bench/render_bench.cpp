// One full frame (clear, cells with scent and ant numbers, walls, nests, food
// piles, ants, frames, zoom label) through ViewPainter on the two Qt
// canvases, at the design view size and at 1920 x 1080.
//
// The worlds are the simulation benchmark's, run with real ticks before
// measuring: the default world 2000 ticks, the crowded and large worlds 300
// ticks each (enough to spread scent and ants, and keeps setup short).
#include <benchmark/benchmark.h>

#include <QGuiApplication>

#include "window/Viewport.h"
#include "platform/ViewCanvases.h"
#include "support/BenchWorlds.h"
#include "support/PaintFrame.h"

namespace keldor {
namespace {

using WorldBuilder = std::unique_ptr<bench::BenchWorld> (*)();

// zoomOutTo: press the zoom-out button until the zoom is that low (0: keep 10).
void RenderFrame(benchmark::State& state, WorldBuilder build, int ticks, bool fullHd, int zoomOutTo = 0) {
  auto subject = build();
  subject->Tick(ticks);
  World& world = subject->world;
  WindowState& window = subject->window;
  window.View.ShowOdor = 1;
  window.View.ShowAnts = 1;
  window.View.InfoVisible = true;
  int width = static_cast<int>(TerrainDesignWidth / TwipsPerPixel);
  int height = static_cast<int>(TerrainDesignHeight / TwipsPerPixel);
  if (fullHd) {
    width = 1920;
    height = 1080;
    ResizeTerrainView(window, width * TwipsPerPixel, height * TwipsPerPixel);
  }
  while (window.View.ZoomX > zoomOutTo && zoomOutTo > 0) ZoomOut(window);
  ViewCanvases views(QSize(width, height), MapBoxPixels(), window.View);
  for (auto _ : state) {
    testing::PaintFrame(world, window.View, views.Painter());
    benchmark::DoNotOptimize(views.Terrain().Image().constBits());
    benchmark::DoNotOptimize(views.Map().Image().constBits());
  }
  state.counters["ants"] = world.Settings.Population;
  state.counters["cells"] = world.Settings.GridX * world.Settings.GridY;
}

BENCHMARK_CAPTURE(RenderFrame, Default_448x403, bench::DefaultWorld, 2000, false)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(RenderFrame, Default_1920x1080, bench::DefaultWorld, 2000, true)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(RenderFrame, Crowded_448x403, bench::CrowdedWorld, 300, false)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(RenderFrame, Crowded_1920x1080, bench::CrowdedWorld, 300, true)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(RenderFrame, Largest_ZoomedOut_1920x1080, bench::LargestWorld, 100, true, 2)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(RenderFrame, Large_448x403, bench::LargeWorld, 300, false)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(RenderFrame, Large_1920x1080, bench::LargeWorld, 300, true)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace keldor

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QGuiApplication app(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
