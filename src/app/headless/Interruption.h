// SIGINT and SIGTERM during a batch run: the handler only notes the signal;
// the run stops after the tick in progress and discards its unfinished files.
#pragma once

namespace keldor::headless {

// Installs the handlers (once per process, from main).
void CatchInterruptions();

// The signal that asked the run to stop, or 0.
int InterruptingSignal();

}  // namespace keldor::headless
