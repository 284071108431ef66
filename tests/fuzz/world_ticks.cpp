// A world the world file reader accepts runs: each accepted document is
// loaded into a simulation, set running and ticked with the pointer and tool
// it saved. After every tick the world still keeps the rules the reader
// checks, so the saved world is accepted again.
#include <cstdint>
#include <string_view>

#include "engine/Simulation.h"
#include "model/Random.h"
#include "sim/TickPainter.h"
#include "worldfile/WindowRecord.h"
#include "worldfile/WorldAgreement.h"
#include "worldfile/WorldFile.h"

namespace {

constexpr int Ticks = 4;

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  keldor::VirtualClock clock(1);
  keldor::Simulation simulation(&clock);
  keldor::WindowRecord window;
  if (simulation.LoadText(text, window)) return 0;
  simulation.TheWorld().Running = true;
  keldor::TickInput input;
  input.CurrentTool = window.View.CurrentTool;
  input.PointerHeld = window.MouseHeld;
  input.PointerButton = window.MouseButton;
  input.PointerCellX = input.CursorCellX = window.CursorCellX;
  input.PointerCellY = input.CursorCellY = window.CursorCellY;
  keldor::NullPainter painter;
  for (int tick = 0; tick < Ticks; ++tick) {
    simulation.Tick(painter, input);
    if (keldor::FindDisagreement(simulation.TheWorld())) __builtin_trap();
  }
  keldor::WindowRecord again;
  if (simulation.LoadText(simulation.SaveText(window), again)) __builtin_trap();
  return 0;
}
