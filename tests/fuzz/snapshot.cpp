// The world state loader on any document: it reads a whole world or names the
// fault, and a world it accepts is written back as a document it accepts again.
#include <cstdint>

#include <QByteArray>

#include "model/World.h"
#include "snapshot/SnapshotFile.h"
#include "snapshot/SnapshotRead.h"
#include "window/WindowState.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const QByteArray text(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
  keldor::World world;
  keldor::WindowState window;
  keldor::ResumeState resume;
  const auto fault = keldor::ReadSnapshot(text, world, window, resume);
  if (fault) {
    if (fault->empty()) __builtin_trap();
    return 0;
  }
  keldor::World again;
  keldor::WindowState againWindow;
  keldor::ResumeState againResume;
  if (keldor::ReadSnapshot(keldor::SnapshotText(world, window, resume), again, againWindow, againResume)) {
    __builtin_trap();
  }
  return 0;
}
