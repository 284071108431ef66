// The world file reader on any document: it reads a whole world or names the
// fault, and a world it accepts is written back as a document it accepts again.
#include <cstdint>
#include <string_view>

#include "model/World.h"
#include "worldfile/WorldFile.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  keldor::World world;
  keldor::WindowRecord window;
  keldor::ResumeState resume;
  const auto fault = keldor::ReadWorldFileText(text, world, window, resume);
  if (fault) {
    if (fault->empty()) __builtin_trap();
    return 0;
  }
  keldor::World again;
  keldor::WindowRecord againWindow;
  keldor::ResumeState againResume;
  if (keldor::ReadWorldFileText(keldor::WorldFileText(world, window, resume), again, againWindow, againResume)) {
    __builtin_trap();
  }
  return 0;
}
