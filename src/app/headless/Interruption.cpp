#include "app/headless/Interruption.h"

#include <csignal>

namespace keldor::headless {

namespace {

volatile std::sig_atomic_t caughtSignal = 0;

void NoteSignal(int signal) { caughtSignal = signal; }

}  // namespace

void CatchInterruptions() {
  std::signal(SIGINT, NoteSignal);
  std::signal(SIGTERM, NoteSignal);
}

int InterruptingSignal() { return caughtSignal; }

}  // namespace keldor::headless
