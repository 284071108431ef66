// The indexes the encounter and pickup phases rebuild every tick. A tick
// context keeps one between ticks, so that a large world refills the same
// arrays instead of allocating (and faulting in) fresh memory each tick.
#pragma once

#include "sim/AntIndex.h"
#include "sim/RivalNeighbourhood.h"

namespace keldor {

struct NeighbourSearch {
  AntIndex Index;
  RivalNeighbourhood Rivals;
};

}  // namespace keldor
