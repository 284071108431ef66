// The options dialog's corrections on any sequence of typed texts and slider
// moves, then OK: each byte pair picks a control and a length of text or a
// slider value.
#include <cstdint>
#include <string>

#include "engine/Simulation.h"
#include "model/Random.h"
#include "window/Commands.h"
#include "model/Numeric.h"
#include "window/OptionsForm.h"
#include "model/World.h"
#include "window/WindowState.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  keldor::VirtualClock clock(1);
  keldor::Simulation simulation(&clock);
  keldor::World& world = simulation.TheWorld();
  keldor::WindowState window;
  keldor::StartUp(world, window);
  {
    keldor::OptionsForm form(world, window);
    for (size_t i = 0; i + 1 < size;) {
      const uint8_t control = data[i] % 10;
      const size_t length = std::min<size_t>(data[i + 1] % 16, size - i - 2);
      const std::string text(reinterpret_cast<const char*>(data) + i + 2, length);
      const int slider = static_cast<int8_t>(data[i + 1]) * 5;
      i += 2 + length;
      switch (control) {
        case 0: form.AntCountTyped(text); break;
        case 1: form.AntSizeTyped(text); break;
        case 2: case 3: case 4: form.ColourTyped(static_cast<keldor::ColourBox>(control - 2), text); break;
        case 5: form.GridSizeTyped(text); break;
        case 6: form.LifeSpanMoved(slider); break;
        case 7: form.FoodRateMoved(slider); break;
        case 8: form.FoodTraceMoved(slider); break;
        default: form.NestTraceMoved(slider); break;
      }
      // The ant count box always shows a count New can make.
      const double ants = keldor::ToNumber(form.NumAntsText());
      if (!(ants >= 0 && ants <= keldor::Int16Max)) __builtin_trap();
    }
    form.ApplyOptions();
    // OK leaves every colour component a byte.
    const auto& s = world.Settings;
    for (const int16_t component : {s.AntRed, s.AntGreen, s.AntBlue}) {
      if (component < 0 || component > 255) __builtin_trap();
    }
  }
  // New reads the dialog as OK left it.
  keldor::NewFromOptions(simulation, window);
  return 0;
}
