// The engine's own rules: what a paused tick leaves behind, the tick count,
// the population-limit notice without a listener, and a refused file.
#include <gtest/gtest.h>

#include "engine/Simulation.h"
#include "model/WorldCreation.h"
#include "sim/TickPainter.h"
#include "window/Commands.h"
#include "window/WindowState.h"

namespace keldor {
namespace {

struct SeededRun {
  SeededRun() {
    simulation.StepFromSeed(3);
    StartUp(simulation.TheWorld(), window);
    NewWorld(simulation, window, {});
  }
  void Ticks(int count) {
    for (int i = 0; i < count; ++i) simulation.Tick(painter, TickInputOf(window, simulation.TheWorld()));
  }
  VirtualClock timeOfDay{99};
  Simulation simulation{&timeOfDay};
  WindowState window;
  NullPainter painter;
};

TEST(SimulationTest, PausedTicksLeaveNoTraceInTheResumeState) {
  SeededRun run;
  run.simulation.TheWorld().Running = true;
  run.Ticks(5);
  EXPECT_EQ(run.simulation.Ticks(), 5);
  const ResumeState afterFive = run.simulation.Resume();
  ASSERT_TRUE(afterFive.ClockTime.has_value());
  EXPECT_EQ(afterFive.Seed, 3u);
  run.simulation.TheWorld().Running = false;
  run.Ticks(7);
  const ResumeState paused = run.simulation.Resume();
  EXPECT_EQ(paused.Tick, 5);
  EXPECT_EQ(paused.Random, afterFive.Random);
  EXPECT_EQ(paused.ClockTime, afterFive.ClockTime);

}

TEST(SimulationTest, NewCountsTicksFromZeroAndTheLimitPausesWithoutAListener) {
  SeededRun run;
  World& world = run.simulation.TheWorld();
  world.Running = true;
  run.Ticks(2);
  NewWorld(run.simulation, run.window, {});
  EXPECT_EQ(run.simulation.Ticks(), 0);
  // A nest that takes the population to exactly 2000: the next tick's limit
  // check notices it and, with nobody listening, pauses the world.
  world.Settings.AntsPerNest = static_cast<int16_t>(2000 - world.Settings.Population);
  ASSERT_TRUE(CreateNest(world, run.simulation.Random(), 3, 3));
  ASSERT_EQ(world.Settings.Population, 2000);
  world.Running = true;
  run.Ticks(1);
  EXPECT_EQ(run.simulation.PopulationLimitNotices(), 1);
  EXPECT_FALSE(world.Running);
  EXPECT_EQ(run.simulation.Ticks(), 1);  // the tick ran before the pause
}

TEST(SimulationTest, ARefusedFileChangesNothing) {
  SeededRun run;
  run.simulation.TheWorld().Running = true;
  run.Ticks(4);
  const std::string before = run.simulation.SaveText(run.window);
  WindowRecord window;
  EXPECT_TRUE(run.simulation.LoadText("{\"FormatVersion\": 1}", window).has_value());
  EXPECT_TRUE(run.simulation.LoadText("not json", window).has_value());
  EXPECT_EQ(run.simulation.SaveText(run.window), before);
  EXPECT_EQ(run.simulation.Ticks(), 4);
  // A good file replaces the count, exactly even past 2^53 (not a double).
  SeededRun other;
  other.simulation.TheWorld().Running = true;
  other.Ticks(9);
  std::string late = other.simulation.SaveText(other.window);
  late.replace(late.find("\"Tick\": 9,"), 11, "\"Tick\": 9007199254740993,");
  ASSERT_FALSE(run.simulation.LoadText(late, window).has_value());
  EXPECT_EQ(run.simulation.Ticks(), INT64_C(9007199254740993));
  EXPECT_NE(run.simulation.SaveText(window).find("\"Tick\": 9007199254740993,"), std::string::npos);
}

}  // namespace
}  // namespace keldor
