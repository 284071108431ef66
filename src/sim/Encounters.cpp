#include "sim/Encounters.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <tuple>
#include <vector>

#include "model/Numeric.h"
#include "model/Queries.h"
#include "model/World.h"
#include "sim/NeighbourSearch.h"

namespace keldor {
namespace {

// An ant's share of a touch reach: an eighth of a queen's length (she is
// broader), a fifth of a worker's.
constexpr double QueenReachDivisor = 8;
constexpr double WorkerReachDivisor = 5;
double ReachShare(const Ant& ant, int index) { return ant.Length / (index == 0 ? QueenReachDivisor : WorkerReachDivisor); }

// The biter's head touches the living victim's body.
bool Touches(const World& world, const Ant& biter, int biterIndex, const Ant& victim, int victimIndex) {
  const double d = PointToSegmentDistance(biter, victim) * world.Settings.ScaleX;
  const double reach = (ReachShare(biter, biterIndex) + ReachShare(victim, victimIndex)) / 2;
  return d <= reach && victim.Energy > 0;
}

// A touch turns into a bite unless the biter carries food.
void Bite(World& world, Cell& cell, const Nest& nest, const Ant& biter, Ant& victim) {
  if (biter.Load != 0) return;
  cell.Scent = Max(1, Min(cell.Scent + 1, world.Settings.FoodTraceSetting));
  victim.Colour = Colour(255, 0, 0);
  victim.Energy = Max(1, victim.Energy - nest.AntUnit);
}

// A bite leaves a living victim at least 1 energy unless a bite unit is not
// finite: only then could one bite change which ant a later biter touches.
bool BitesLeaveVictimsAlive(const World& world) {
  for (int n = 0; n < world.NestCount; ++n) {
    if (!std::isfinite(world.Nests[static_cast<size_t>(n)].AntUnit)) return false;
  }
  return true;
}

// The encounter phase through the index. A victim's head lies within the
// touch reach plus the victim's own head-to-rear span of the biter's head, so
// the largest worker length and span bound the block of cells to search;
// queens, longer than any worker, are tested one per nest instead.
class NearbyEncounters {
 public:
  NearbyEncounters(World& world, NeighbourSearch& search)
      : world_(world),
        index_(search.Index),
        rivals_(search.Rivals),
        firstTouch_(static_cast<size_t>(world.NestCount)) {
    const LivingAntExtents& living = index_.Extents();
    const double scaleX = world.Settings.ScaleX;
    // A living victim's head lies within the largest touch-reach share
    // / ScaleX plus the longest body of a biter's head.
    const double share = std::max(living.QueenLength / QueenReachDivisor, living.WorkerLength / WorkerReachDivisor);
    rivals_.Reset(world, index_, share / scaleX + std::sqrt(living.SquaredSpan));
    workerShare_ = living.WorkerLength / WorkerReachDivisor / 2 / scaleX;
    workerSpan_ = std::sqrt(living.WorkerSquaredSpan);
    queenReach_.reserve(static_cast<size_t>(world.NestCount));
    for (int n = 0; n < world.NestCount; ++n) {
      const Ant& queen = world.Nests[static_cast<size_t>(n)].Ants[0];
      queenReach_.push_back(ReachShare(queen, 0) / 2 / scaleX + std::sqrt(SquaredSpan(queen)));
    }
  }

  // Every living ant bites the first ant its head touches in each rival
  // colony: the lowest-numbered one, as a scan in ant order meets them.
  // Touches depend only on positions, which no bite changes: the biters are
  // taken slot by slot from the index, only where a rival colony is near,
  // and their bites are then made in the order of a scan of the ants.
  void ResolveAll() {
    FindBiters();
    bites_.clear();
    for (const Biter& biter : biters_) FindBites(biter.Ref, biter.ColoniesNear);
    std::sort(bites_.begin(), bites_.end());
    for (const PendingBite& bite : bites_) {
      const Nest& nest = world_.Nests[static_cast<size_t>(bite.Biter.Nest)];
      const Ant& biter = nest.Ants[bite.Biter.Ant];
      Bite(world_, world_.Cells(biter.CellX, biter.CellY), nest, biter,
           world_.Nests[static_cast<size_t>(bite.VictimNest)].Ants[bite.VictimAnt]);
    }
  }

 private:
  struct Biter {
    AntRef Ref;
    uint64_t ColoniesNear;  // from its slot's rival summary
  };
  struct PendingBite {
    AntRef Biter;
    int VictimNest = 0;
    int VictimAnt = 0;
    bool operator<(const PendingBite& other) const {
      return std::tie(Biter.Nest, Biter.Ant, VictimNest) < std::tie(other.Biter.Nest, other.Biter.Ant, other.VictimNest);
    }
  };

  // The living ants with a rival colony's head within reach of their slot.
  void FindBiters() {
    biters_.clear();
    if (!rivals_.AnyMayMeet()) return;
    size_t lastSlot = SIZE_MAX;
    uint64_t coloniesNear = 0;
    index_.ForEachIndexed([&](size_t slot, const IndexedAnt& ant) {
      const int nest = ant.Ref.Nest;
      if (!rivals_.MayMeetRival(nest)) return;
      if (slot != lastSlot) {
        lastSlot = slot;
        coloniesNear = rivals_.ColoniesNear(slot);
      }
      if (rivals_.HoldsRival(coloniesNear, nest)) biters_.push_back({ant.Ref, coloniesNear});
    });
  }

  // Records the bites of one living ant standing in a crowded cell; only the
  // colonies near its slot can be touched.
  void FindBites(AntRef ref, uint64_t coloniesNear) {
    const int nestIndex = ref.Nest;
    const int antIndex = ref.Ant;
    const int nestCount = world_.NestCount;
    const Nest& nest = world_.Nests[static_cast<size_t>(nestIndex)];
    const Ant& biter = nest.Ants[antIndex];
    if (world_.Cells(biter.CellX, biter.CellY).AntCount < 3) return;
    const double scaleX = world_.Settings.ScaleX;
    const double biterShare = ReachShare(biter, antIndex) / 2 / scaleX;
    for (int m = 0; m < nestCount; ++m) {
      const Nest& other = world_.Nests[static_cast<size_t>(m)];
      int& first = firstTouch_[static_cast<size_t>(m)];
      first = rivals_.Allied(m, nestIndex) || !rivals_.MayHoldColonyOf(coloniesNear, m) ? NotRival : Untouched;
      if (first == NotRival || other.AntCount() == 0) continue;
      const Ant& queen = other.Ants[0];
      const double queenReach =
          PaddedReach(biterShare + queenReach_[static_cast<size_t>(m)], world_.Settings.CellSize);
      if (std::abs(queen.HeadX - biter.HeadX) <= queenReach && std::abs(queen.HeadY - biter.HeadY) <= queenReach &&
          Touches(world_, biter, antIndex, queen, 0)) {
        first = 0;
      }
    }
    const double workerReach = biterShare + workerShare_ + workerSpan_;
    const double paddedReach = PaddedReach(workerReach, world_.Settings.CellSize);
    index_.ForEachNear(biter.HeadX, biter.HeadY, workerReach, [&](const IndexedAnt& near) {
      // A run lists its nest's ants in rising order: once past the first
      // touch, or in a nest that is no rival, the rest of it can be skipped.
      const AntRef victim = near.Ref;
      int& first = firstTouch_[static_cast<size_t>(victim.Nest)];
      if (victim.Ant >= first) return false;
      if (victim.Ant == 0) return true;
      if (std::abs(near.HeadX - biter.HeadX) > paddedReach || std::abs(near.HeadY - biter.HeadY) > paddedReach) {
        return true;
      }
      const Nest& other = world_.Nests[static_cast<size_t>(victim.Nest)];
      if (!Touches(world_, biter, antIndex, other.Ants[victim.Ant], victim.Ant)) return true;
      first = victim.Ant;
      return false;
    });
    for (int m = 0; m < nestCount; ++m) {
      const int victim = firstTouch_[static_cast<size_t>(m)];
      if (victim != NotRival && victim != Untouched) bites_.push_back({ref, m, victim});
    }
  }

  static constexpr int NotRival = -1;  // below every ant number: an ally, or no ant within reach
  static constexpr int Untouched = std::numeric_limits<int>::max();

  World& world_;
  const AntIndex& index_;
  RivalNeighbourhood& rivals_;
  double workerShare_ = 0;  // the longest worker's share of a touch reach, world units
  double workerSpan_ = 0;   // the longest worker body, world units
  std::vector<double> queenReach_;  // per nest: the queen's share of a touch reach plus her span
  std::vector<int> firstTouch_;  // per nest: the first touched ant so far, Untouched or NotRival
  std::vector<Biter> biters_;
  std::vector<PendingBite> bites_;
};

}  // namespace

void ResolveEncounter(World& world, Cell& cell, int nestIndex, int antIndex) {
  if (cell.AntCount < 3) return;
  const Nest& nest = world.Nests[static_cast<size_t>(nestIndex)];
  const Ant& biter = nest.Ants[antIndex];
  for (int m = 0; m < world.NestCount; ++m) {
    Nest& other = world.Nests[static_cast<size_t>(m)];
    if (other.Signature == nest.Signature) continue;
    for (int k = 0; k < other.AntCount(); ++k) {
      if (Touches(world, biter, antIndex, other.Ants[k], k)) {
        Bite(world, cell, nest, biter, other.Ants[k]);
        break;
      }
    }
  }
}

void ResolveEncounters(World& world, NeighbourSearch* search) {
  if (!world.Running) return;
  if (search != nullptr && BitesLeaveVictimsAlive(world)) {
    NearbyEncounters(world, *search).ResolveAll();
    return;
  }
  for (int n = 0; n < world.NestCount; ++n) {
    Nest& nest = world.Nests[static_cast<size_t>(n)];
    for (int i = 0; i < nest.AntCount(); ++i) {
      const Ant& ant = nest.Ants[i];
      if (ant.Energy > 0) ResolveEncounter(world, world.Cells(ant.CellX, ant.CellY), n, i);
    }
  }
}

}  // namespace keldor
