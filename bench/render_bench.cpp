// One full frame (clear, cells with numbers, walls, nests, food piles, ants,
// frames, zoom label) through ViewPainter on the two view canvases, for three
// worlds, at the design view size and at 1920 x 1080.
//
// The worlds are built with New and CreateNest and then given a spread of
// scent, colours and wandering ants like a world that has run for a while.
#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <random>

#include "model/Commands.h"
#include "model/Numeric.h"
#include "model/Queries.h"
#include "model/Random.h"
#include "model/World.h"
#include "model/WorldCreation.h"
#include "platform/ViewCanvases.h"
#include "support/PaintFrame.h"

namespace keldor {
namespace {

struct CellSpot {
  int X;
  int Y;
};

World NewWorld(const std::string& grid, int16_t foodRate) {
  World world;
  VirtualClock clock(7);
  RandomSource random(clock);
  Form_Load(world);
  world.Settings.FoodRate = foodRate;
  NewWorldInputs inputs;
  inputs.GridWidthText = grid;
  inputs.GridHeightText = grid;
  mnuFileNew_Click(world, random, inputs);
  world.ShowOdor = 1;
  return world;
}

void ReplaceNests(World& world, int16_t antsPerNest, const std::vector<CellSpot>& spots) {
  world.Cells(world.Nests[0].CellX, world.Nests[0].CellY).AntCount = 0;
  world.Nests.clear();
  world.NestCount = 0;
  world.Settings.Population = 0;
  world.Settings.AntsPerNest = antsPerNest;
  VirtualClock clock(11);
  RandomSource random(clock);
  for (const CellSpot& spot : spots) {
    world.CursorCellX = static_cast<int16_t>(spot.X);
    world.CursorCellY = static_cast<int16_t>(spot.Y);
    CreateNest(world, random);
  }
}

void AddWalls(World& world, int count, std::mt19937& rng) {
  const double size = world.Settings.CellSize;
  std::uniform_int_distribution<int> column(1, world.Settings.GridX);
  for (int i = 0; i < count; ++i) {
    const int x = column(rng), y = column(rng);
    WallObject& wall = world.Walls.Append();
    wall.TypeName = PlasterBrickType;
    wall.X = static_cast<int16_t>(x);
    wall.Y = static_cast<int16_t>(y);
    wall.ShapeCount = 1;
    wall.Shapes.resize(2);
    WallShape& shape = wall.Shapes[0];
    shape.Colour = Rgb(170, 70, 50);
    shape.Points = {WorldPoint{(x - 1) * size, (y - 1) * size}, {(x - 1) * size, y * size}, {x * size, y * size},
                    {x * size, (y - 1) * size}, {}};
  }
}

// Scent on most cells and every worker somewhere on the map, a tenth loaded.
void SpreadActivity(World& world, std::mt19937& rng) {
  std::uniform_real_distribution<double> unit(0, 1);
  const WorldSettings& s = world.Settings;
  for (int x = 1; x <= s.GridX; ++x) {
    for (int y = 1; y <= s.GridY; ++y) {
      Cell& c = world.Cells(x, y);
      if (unit(rng) < 0.2) continue;
      c.Scent = unit(rng) < 0.5 ? -unit(rng) * s.NestScentMax : unit(rng) * s.FoodScentMax;
      const double f = c.Scent > 0 ? c.Scent / s.FoodScentMax : c.Scent / s.NestScentMax;
      c.Colour = c.Scent > 0 ? Rgb(CInt(185 - 69 * f), CInt(200 - 32 * f), CInt(145 - 29 * f))
                             : Rgb(CInt(200 + 61 * f), CInt(172 + 43 * f), CInt(145 + 42 * f));
    }
  }
  const double extent = world.View.Map.Width;
  for (int16_t n = 0; n < world.NestCount; ++n) {
    Nest& nest = world.Nests[static_cast<size_t>(n)];
    world.Cells(nest.CellX, nest.CellY).AntCount = 1;
    for (int16_t a = 1; a < nest.AntCount(); ++a) {
      Ant& ant = nest.Ants[a];
      const double angle = unit(rng) * 2 * Pi;
      ant.RearX = unit(rng) * (extent - 40) + 20;
      ant.RearY = unit(rng) * (extent - 40) + 20;
      ant.HeadX = ant.RearX + std::cos(angle) * ant.Length / s.ScaleX;
      ant.HeadY = ant.RearY + std::sin(angle) * ant.Length / s.ScaleY;
      ant.Load = unit(rng) < 0.1 ? nest.AntUnit : 0;
      Cell& cell = world.Cells(CellOfCoordinate(ant.HeadX, s.CellSize), CellOfCoordinate(ant.HeadY, s.CellSize));
      ++cell.AntCount;
    }
  }
}

World DefaultWorld() {
  World world = NewWorld("30", 2);
  std::mt19937 rng(1);
  // A colony that has grown for a while.
  ReplaceNests(world, 400, {{15, 15}});
  SpreadActivity(world, rng);
  return world;
}

World CrowdedWorld() {
  World world = NewWorld("30", 2);
  std::mt19937 rng(2);
  ReplaceNests(world, 480, {{8, 8}, {22, 8}, {8, 22}, {22, 22}});
  SpreadActivity(world, rng);
  return world;
}

World LargeWorld() {
  World world = NewWorld("100", 10);
  std::mt19937 rng(3);
  ReplaceNests(world, 200,
               {{10, 10}, {50, 10}, {90, 10}, {30, 35}, {70, 35}, {10, 60}, {50, 60}, {90, 60}, {30, 90}, {70, 90}});
  AddWalls(world, 200, rng);
  SpreadActivity(world, rng);
  return world;
}

void RenderFrame(benchmark::State& state, World (*build)(), bool fullHd) {
  World world = build();
  int width = static_cast<int>(TerrainDesignWidth / TwipsPerPixel);
  int height = static_cast<int>(TerrainDesignHeight / TwipsPerPixel);
  if (fullHd) {
    width = 1920;
    height = 1080;
    ResizeTerrainView(world, width * TwipsPerPixel, height * TwipsPerPixel);
  }
  ViewCanvases views(QSize(width, height), MapBoxPixels());
  for (auto _ : state) {
    testing::PaintFrame(world, views.Painter());
    benchmark::DoNotOptimize(views.Terrain().Image().constBits());
  }
  int ants = 0;
  for (const Nest& nest : world.Nests) ants += nest.AntCount();
  state.counters["ants"] = ants;
  state.counters["cells"] = world.Settings.GridX * world.Settings.GridY;
}

BENCHMARK_CAPTURE(RenderFrame, Default_448x403, DefaultWorld, false)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(RenderFrame, Default_1920x1080, DefaultWorld, true)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(RenderFrame, Crowded_448x403, CrowdedWorld, false)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(RenderFrame, Crowded_1920x1080, CrowdedWorld, true)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(RenderFrame, Large_448x403, LargeWorld, false)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(RenderFrame, Large_1920x1080, LargeWorld, true)->Unit(benchmark::kMillisecond);

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
