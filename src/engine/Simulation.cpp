#include "engine/Simulation.h"

#include <cstdint>

#include "model/WorldCreation.h"
#include "worldfile/WindowRecord.h"
#include "worldfile/WorldFile.h"
#include "worldfile/WorldFileIo.h"

namespace keldor {

Simulation::Simulation(Clock* timeOfDay)
    : clock_(timeOfDay != nullptr ? *timeOfDay : systemTime_), random_(clock_), context_{world_, random_, *this} {}

void Simulation::ChooseClock(bool normalSpeed) {
  if (clock_.Pinned()) return;
  if (normalSpeed) clock_.FollowTimeOfDay();
  else clock_.StepFromTimeOfDay();
}

void Simulation::ClockForNew(std::optional<uint64_t> seed, bool normalSpeed) {
  if (seed) {
    clock_.StepFromSeed(*seed);
    return;
  }
  clock_.FollowTimeOfDay();
  ChooseClock(normalSpeed);
}

void Simulation::New(const NewWorldInputs& inputs) {
  CreateWorld(world_, random_, inputs);
  ticks_ = 0;
}

bool Simulation::Tick(TickPainter& painter, const TickInput& input) {
  if (context_.InProgress) return false;
  const bool ran = world_.Running;
  const RandomState before = random_.State();
  clock_.BeginTick();
  RunTick(context_, painter, input);
  clock_.EndTick(ran);
  if (ran) {
    // The count stops at the largest tick number rather than wrap.
    if (ticks_ < INT64_MAX) ++ticks_;
  } else {
    random_.SetState(before);
  }
  return true;
}

void Simulation::PopulationLimitReached() {
  ++limitNotices_;
  if (listener_ != nullptr) listener_->PopulationLimitReached();
  else world_.Running = false;
}

ResumeState Simulation::Resume() const {
  return {ticks_, random_.State(), clock_.SteppedTime(), clock_.Seed()};
}

std::string Simulation::SaveText(const WindowRecord& window) const { return WorldFileText(world_, window, Resume()); }

void Simulation::TakeOver(World&& world, const ResumeState& resume) {
  world_ = std::move(world);
  ticks_ = resume.Tick;
  if (resume.ClockTime) clock_.StepFrom(*resume.ClockTime, resume.Seed);
  else clock_.FollowTimeOfDay();
  random_.SetState(resume.Random);
}

std::optional<std::string> Simulation::LoadText(std::string_view text, WindowRecord& window) {
  return Load(window, [text](World& world, WindowRecord& record, ResumeState& resume) {
    return ReadWorldFileText(text, world, record, resume);
  });
}

std::optional<std::string> Simulation::LoadFile(const std::string& path, WindowRecord& window) {
  return Load(window, [&path](World& world, WindowRecord& record, ResumeState& resume) {
    return ReadWorldFile(path, world, record, resume);
  });
}

std::optional<std::string> Simulation::Load(WindowRecord& window, const WorldReader& read) {
  World loaded;
  WindowRecord loadedWindow;
  ResumeState resume;
  if (auto fault = read(loaded, loadedWindow, resume)) return fault;
  TakeOver(std::move(loaded), resume);
  window = loadedWindow;
  return std::nullopt;
}

}  // namespace keldor
