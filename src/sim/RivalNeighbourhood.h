// Where rival colonies can meet, so that the encounter search passes over
// biters with no rival within reach: in a world of large, separate colonies
// that is almost every biter. Two summaries, both exact bounds:
//   - per colony (the nests of one signature), whether the box around its
//     living ants' heads comes within reach of another colony's box;
//   - per cell, which colonies have a head within reach of it (made on first
//     use, for up to 64 colonies).
// Valid while no ant moves, is born or dies: for one encounter phase.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace keldor {

struct World;
class AntIndex;

class RivalNeighbourhood {
 public:
  RivalNeighbourhood() = default;
  RivalNeighbourhood(const World& world, const AntIndex& index, double reach) { Reset(world, index, reach); }

  // Summarises the world anew, reusing the arrays of the last summary.
  // reach: world units within which a head may touch another ant's body
  // (the largest touch reach plus the longest body).
  void Reset(const World& world, const AntIndex& index, double reach);

  // False when no living ant of another colony comes within reach of any
  // living ant of nest n.
  bool MayMeetRival(int nest) const { return !isolated_[static_cast<size_t>(colonyOfNest_[static_cast<size_t>(nest)])]; }

  // False when no colony comes within reach of another.
  bool AnyMayMeet() const { return anyMeets_; }

  // The colonies with a living ant's head within reach of any point of the
  // cell slot, one bit each; every bit set where no cell summary is kept.
  uint64_t ColoniesNear(size_t slot);
  // Whether colonies (from ColoniesNear) holds one other than nest n's.
  bool HoldsRival(uint64_t colonies, int nest) const {
    const int colony = colonyOfNest_[static_cast<size_t>(nest)];
    return colony >= MaxColonyBits || (colonies & ~(uint64_t{1} << colony)) != 0;
  }
  // Whether colonies (from ColoniesNear) may hold nest n's colony.
  bool MayHoldColonyOf(uint64_t colonies, int nest) const {
    const int colony = colonyOfNest_[static_cast<size_t>(nest)];
    return colony >= MaxColonyBits || ((colonies >> colony) & 1) != 0;
  }
  // Whether nests a and b share a signature.
  bool Allied(int a, int b) const {
    return colonyOfNest_[static_cast<size_t>(a)] == colonyOfNest_[static_cast<size_t>(b)];
  }
  // False when no living ant of a colony other than nest n's has its head
  // within reach of any point of the cell slot.
  bool MayHoldRival(size_t slot, int nest) { return HoldsRival(ColoniesNear(slot), nest); }

 private:
  struct Box {
    double Left, Top, Right, Bottom;
  };
  static constexpr int MaxColoniesCompared = 256;  // beyond that, no colony counts as isolated
  static constexpr int MaxColonyBits = 64;         // beyond that, no cell summary

  void SummariseCells();

  const AntIndex* index_ = nullptr;
  double reach_ = 0;
  int colonies_ = 0;
  std::vector<int> colonyOfNest_;
  std::vector<bool> isolated_;          // per colony
  bool anyMeets_ = true;                // some colony is not isolated
  bool cellsSummarised_ = false;
  bool cellSummary_ = false;            // false: every slot may hold every colony
  size_t cellsOfReach_ = 0;               // slots each way within reach of a slot
  std::vector<uint64_t> cellColonies_;    // per cell slot: the colonies with a head in it
  std::vector<uint64_t> columnColonies_;  // per cell slot: those of the slots within reach in its column
};

}  // namespace keldor
