// Run speeds, the run clock and the status line.
#include <gtest/gtest.h>

#include "model/Random.h"
#include "engine/RunClock.h"
#include "window/RunSpeed.h"
#include "window/StatusText.h"

namespace keldor {
namespace {

TEST(RunSpeedTest, IntervalsAreTheTickPeriodOverTheFactorInWholeMilliseconds) {
  // 75 / 0.25, 75 / 0.5, 75, 37.5 -> 38, 18.75 -> 19, 9.375 -> 9; Fastest does not wait.
  const int expected[] = {300, 150, 75, 38, 19, 9, 0};
  for (size_t i = 0; i < std::size(AllRunSpeeds); ++i) EXPECT_EQ(TimerIntervalMs(AllRunSpeeds[i]), expected[i]) << i;
  EXPECT_EQ(Faster(RunSpeed::Fastest), RunSpeed::Fastest);
}

class FixedClock : public Clock {
 public:
  double SecondsSinceMidnight() override { return 100; }
};

TEST(RunClockTest, SteppedClockMovesOnOnlyAfterTicksInWhichTheWorldRan) {
  FixedClock timeOfDay;
  RunClock clock(timeOfDay);
  EXPECT_EQ(clock.SecondsSinceMidnight(), 100);  // 1x: the time of day itself
  clock.StepFromTimeOfDay();
  clock.BeginTick();
  EXPECT_EQ(clock.SecondsSinceMidnight(), 100);  // starts at the time of day
  clock.EndTick(false);                          // a paused tick: the read is undone
  clock.BeginTick();
  EXPECT_EQ(clock.SecondsSinceMidnight(), 100);
  clock.EndTick(true);  // 100 + 1 us (the read) + 75 ms
  EXPECT_DOUBLE_EQ(clock.SecondsSinceMidnight(), 100.075001);
  EXPECT_FALSE(clock.Seed().has_value());
  clock.FollowTimeOfDay();
  EXPECT_EQ(clock.SecondsSinceMidnight(), 100);
}

TEST(RunClockTest, SeededClockReadsAsTheBatchRunnersClock) {
  FixedClock timeOfDay;
  RunClock clock(timeOfDay);
  clock.StepFromSeed(42);
  VirtualClock batch(42);  // keldor-headless --seed 42: read, tick, advance 0.075 s
  for (int tick = 0; tick < 3; ++tick) {
    clock.BeginTick();
    EXPECT_EQ(clock.SecondsSinceMidnight(), batch.SecondsSinceMidnight());
    clock.EndTick(true);
    batch.Advance(0.075);
  }
  EXPECT_EQ(clock.Seed(), 42u);
}

TEST(StatusTextTest, NamesTickSeedSpeedRateAndThePausedHint) {
  EXPECT_EQ(StatusText({}), "No world: File > New makes one");
  EXPECT_EQ(StatusText({true, false, 0, 7, RunSpeed::Normal, 0}),
            "Tick 0   Seed 7   Speed 1x   0 ticks/s   Paused: press Space to play");
  EXPECT_EQ(StatusText({true, true, 1234, std::nullopt, RunSpeed::Fastest, 5123.6}),
            "Tick 1234   Seed time of day   Speed Fastest   5124 ticks/s");
  // Paused later in the run, it still says so.
  EXPECT_EQ(StatusText({true, false, 1234, 7, RunSpeed::Normal, 0}),
            "Tick 1234   Seed 7   Speed 1x   0 ticks/s   Paused: press Space to play");
}

}  // namespace
}  // namespace keldor
