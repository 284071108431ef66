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
  bool MayHoldRival(size_t slot, int nest) {
    if (colonies_.empty()) return true;
    uint64_t& near = nearColonies_[slot];
    if ((near & Summed) == 0) near = Summed | NearbyColonies(slot);
    return (near & ~Summed & ~colonyBit_[static_cast<size_t>(nest)]) != 0;
  }

 private:
  // Up to 63 colonies, one bit each; beyond that, or for a reach of many
  // cells, no summary is made and every biter is searched.
  static constexpr int MaxColonies = 63;
  static constexpr uint64_t Summed = uint64_t{1} << 63;  // the slot's neighbourhood is summed up
  static constexpr int MaxCellsOfReach = 8;

  // The colonies of the slots within cellsOfReach_ of the slot, both ways.
  uint64_t NearbyColonies(size_t slot) const;

  int columns_ = 0;
  int rows_ = 0;
  int cellsOfReach_ = 0;
  std::vector<uint64_t> colonyBit_;     // per nest: the bit of its colony (nests of one signature)
  std::vector<uint64_t> colonies_;      // per cell slot: the colonies with a head in it
  std::vector<uint64_t> nearColonies_;  // per cell slot: Summed and the nearby colonies, once asked
};

}  // namespace keldor
