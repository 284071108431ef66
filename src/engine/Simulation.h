// One run of the simulation, the owner every front end drives: the world, the
// random source and the clock it is reseeded from, the tick context, the
// number of ticks the world has run and the population-limit notices those
// ticks gave. The desktop window, the batch runner, the sweep and the
// screenshot tool each hold one and never wire these parts themselves.
//
// A tick in which the world did not run leaves no trace in what a world file
// resumes from: the stepped clock and the generator are put back as they
// were, and the tick count stays (every tick reseeds before it draws, so the
// generator's words between ticks matter only to the file).
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "engine/RunClock.h"
#include "engine/SystemTimeOfDay.h"
#include "model/Random.h"
#include "model/World.h"
#include "sim/Tick.h"
#include "worldfile/ResumeState.h"

namespace keldor {

struct NewWorldInputs;
struct WindowRecord;

class Simulation : private TickEvents {
 public:
  // The time of day comes from `timeOfDay` (tests), else from the system clock.
  explicit Simulation(Clock* timeOfDay = nullptr);
  Simulation(const Simulation&) = delete;
  Simulation& operator=(const Simulation&) = delete;

  World& TheWorld() { return world_; }
  const World& TheWorld() const { return world_; }
  RandomSource& Random() { return random_; }

  // The clock the random source reads: the time of day, or a stepped clock
  // started from the time of day now or from a seed.
  void FollowTimeOfDay() { clock_.FollowTimeOfDay(); }
  void StepFromTimeOfDay() { clock_.StepFromTimeOfDay(); }
  void StepFromSeed(uint64_t seed) { clock_.StepFromSeed(seed); }
  // The seed the stepped clock started from (a loaded world keeps its own).
  std::optional<uint64_t> Seed() const { return clock_.Seed(); }
  // The clock steps: from a seed, from the time of day, or from a loaded world.
  bool ClockSteps() const { return clock_.Steps(); }
  // The clock for a run speed: a world made with a seed or loaded with a
  // stepped clock keeps its clock; otherwise the time of day at normal speed,
  // and at the other speeds a clock stepped from the time of day now.
  void ChooseClock(bool normalSpeed);
  // The clock New runs on: started from the seed, else chosen for the speed.
  void ClockForNew(std::optional<uint64_t> seed, bool normalSpeed);

  // New's world part (CreateWorld) on the clock as it is; the tick count
  // starts again from 0.
  void New(const NewWorldInputs& inputs);

  // Runs one tick; false, running nothing, while another tick is in progress
  // (one asked for from inside the modal population-limit message).
  bool Tick(TickPainter& painter, const TickInput& input);
  bool TickInProgress() const { return context_.InProgress; }
  // Ticks the world has run since New (paused ticks do not count), counted on
  // from a loaded world's tick.
  int64_t Ticks() const { return ticks_; }
  // Population-limit notices given since this run was made.
  int64_t PopulationLimitNotices() const { return limitNotices_; }
  // Hears each population-limit notice inside its tick: the desktop window
  // shows its message and pauses the world there. Without a listener the
  // world is paused directly.
  void SetTickListener(TickEvents* listener) { listener_ = listener; }
  // Pair ants through the cell index (the default) or by the full scans.
  void UseAntIndex(bool use) { context_.UseAntIndex = use; }

  // What a world file resumes from now.
  ResumeState Resume() const;
  // The world file text of this run, with the window's saved fields.
  std::string SaveText(const WindowRecord& window) const;
  // Reads a world file. On success the world, the clock (the file's time and
  // seed, or the time of day when the file has no time), the generator and
  // the tick count are the file's, and `window` holds its window fields. On
  // a fault nothing changes; the fault names the field.
  std::optional<std::string> LoadText(std::string_view text, WindowRecord& window);
  // The same from a file; the fault names the file.
  std::optional<std::string> LoadFile(const std::string& path, WindowRecord& window);

 private:
  void PopulationLimitReached() override;
  // Reads a world into fresh records, then takes it over; the fault otherwise.
  using WorldReader = std::function<std::optional<std::string>(World&, WindowRecord&, ResumeState&)>;
  std::optional<std::string> Load(WindowRecord& window, const WorldReader& read);
  void TakeOver(World&& world, const ResumeState& resume);

  SystemTimeOfDay systemTime_;
  RunClock clock_;
  RandomSource random_;
  World world_;
  TickContext context_;
  TickEvents* listener_ = nullptr;
  int64_t ticks_ = 0;
  int64_t limitNotices_ = 0;
};

}  // namespace keldor
