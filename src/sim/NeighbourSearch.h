// The indexes the encounter and pickup phases rebuild every tick. A tick
// context keeps one between ticks, so that a large world refills the same
// arrays instead of allocating (and faulting in) fresh memory each tick.
#pragma once

#include <cstddef>

#include "sim/AntIndex.h"
#include "sim/RivalNeighbourhood.h"

namespace keldor {

struct NeighbourSearch {
  AntIndex Index;
  RivalNeighbourhood Rivals;
  // From this many biters on, encounters are found on two threads; below
  // it a second thread costs more than it saves. The bites are the same.
  size_t MinBitersForTwoThreads = 4096;
};

}  // namespace keldor
