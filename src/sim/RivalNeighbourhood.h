// Which colonies have a living ant near each cell, so that the encounter
// search can pass over a biter with no rival colony within reach: in a world
// of large, separate colonies that is almost every biter.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace keldor {

struct World;
class AntIndex;

class RivalNeighbourhood {
 public:
  // reach: world units within which a head may touch another ant's body
  // (the largest touch reach plus the longest body).
  RivalNeighbourhood(const World& world, const AntIndex& index, double reach);

  // False only when no living ant of a colony other than nest n's has its
  // head within reach of any point of the cell slot.
  bool MayHoldRival(size_t slot, int nest) const {
    if (nearColonies_.empty()) return true;
    return (nearColonies_[slot] & ~colonyBit_[static_cast<size_t>(nest)]) != 0;
  }

 private:
  // Up to 64 colonies, one bit each; beyond that, or for a reach of many
  // cells, the summary is not built and every biter is searched.
  static constexpr int MaxColonies = 64;
  static constexpr int MaxCellsOfReach = 8;

  std::vector<uint64_t> colonyBit_;     // per nest: the bit of its colony (nests of one signature)
  std::vector<uint64_t> nearColonies_;  // per cell slot: colonies with a head within reach
};

}  // namespace keldor
