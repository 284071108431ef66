#include "sim/AntStep.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <cmath>

#include "model/Numeric.h"
#include "model/Queries.h"
#include "model/Random.h"
#include "model/World.h"

namespace keldor {
namespace {

// A turn of up to maxDegrees either way, from two fresh draws: sign, then size.
double RandomTurn(RandomSource& random, double maxDegrees) {
  const double sign = random.Sign();
  return sign * random.Rnd() * maxDegrees * Pi / 180;
}

// The queen's turn of up to 60 degrees, scaled by the radian factor taken
// first: it rounds differently from RandomTurn in the last bit.
double QueenTurn(RandomSource& random) {
  const double sign = random.Sign();
  return sign * random.Rnd() * 60 * (Pi / 180);
}

bool IsBrick(const World& world, int x, int y) { return world.Cells(x, y).Objects.HasBrick(); }

bool InGrid(const World& world, int x, int y) {
  return x >= 1 && x <= world.Settings.GridX && y >= 1 && y <= world.Settings.GridY;
}

// The step-back cell of a stuck ant may lie beyond the grid; the grid's ring
// of border cells takes its trail update then.
Cell& CellOrBorder(World& world, int x, int y) {
  const int cx = std::clamp(x, 0, world.Settings.GridX + 1);
  const int cy = std::clamp(y, 0, world.Settings.GridY + 1);
  return world.Cells(cx, cy);
}

// Visits the cross around (x, y) in column-then-row order (left, up, centre,
// down, right), leaving out cells beyond column GridX or row GridY; stops
// when visit returns true.
template <class Visit>
void ForCross(const World& world, int x, int y, Visit visit) {
  static constexpr int offsets[5][2] = {{-1, 0}, {0, -1}, {0, 0}, {0, 1}, {1, 0}};
  const int gridX = world.Settings.GridX;
  const int gridY = world.Settings.GridY;
  for (const auto& [dx, dy] : offsets) {
    const int a = x + dx;
    const int b = y + dy;
    if (a >= 0 && a <= gridX && b >= 0 && b <= gridY && visit(world.Cells(a, b))) return;
  }
}

// Mixes the source into a foreign signature character by character, after a
// reseed. Rare next to the checks before it, so kept out of their way.
[[gnu::noinline]] void MixSignature(RandomSource& random, const Signature& source, Cell& target, int length) {
  random.ReseedFromClock();
  assert(length <= Signature::Capacity);
  std::array<char, Signature::Capacity> mixed{};
  for (int k = 0; k < length; ++k) {
    // A never-marked (empty) signature reads as "0" characters.
    const char own = k < target.Signature.Length() ? target.Signature[k] : '0';
    mixed[static_cast<size_t>(k)] = random.Coin() == 0 ? source[k] : own;
  }
  target.Signature = Signature(std::string_view(mixed.data(), static_cast<size_t>(length)));
}

ScentLookup LookupOf(const Cell& cell) { return {cell.Scent, cell.Signature}; }
// A lookup that found no cell reads as scent 0 with no signature.
ScentLookup LookupOf(const Cell* cell) { return cell != nullptr ? LookupOf(*cell) : ScentLookup{}; }
double ScentOf(const Cell* cell) { return cell != nullptr ? cell->Scent : 0; }

void Translate(Ant& ant, double dx, double dy) {
  ant.RearX += dx;
  ant.RearY += dy;
  ant.HeadX += dx;
  ant.HeadY += dy;
}

// Rotates the ant about (px, py) unless its head would leave the map box.
void Turn(Ant& ant, double px, double py, TurnRotation rotation) {
  const double c = rotation.Cos;
  const double s = rotation.Sin;
  const double headX = (ant.HeadX - px) * c + px - (ant.HeadY - py) * s;
  const double headY = (ant.HeadX - px) * s + py + (ant.HeadY - py) * c;
  if (headX < 0 || headX > MapBoxSize || headY < 0 || headY > MapBoxSize) return;
  const double rearX = (ant.RearX - px) * c + px - (ant.RearY - py) * s;
  const double rearY = (ant.RearX - px) * s + py + (ant.RearY - py) * c;
  ant.RearX = rearX;
  ant.RearY = rearY;
  ant.HeadX = headX;
  ant.HeadY = headY;
}

// The forward test, condition by condition. C is the current cell, N the
// target; the scent rules compare exact scent values.
bool IsEdgeNeighbourOrSame(int cx, int cy, int nx, int ny) { return nx == cx || ny == cy; }

bool HasRoom(const World& world, const Nest& nest, const Cell& target) {
  const WorldSettings& s = world.Settings;
  const double cellArea = (s.ScaleX * s.CellSize) * (s.ScaleX * s.CellSize);
  return target.AntCount <= cellArea / nest.AntBodyArea / 2;
}

// A loaded ant keeps to its own colony's trail or to unmarked cells.
bool MayEnterTrail(const Nest& nest, const Ant& ant, const Cell& target) {
  return ant.Load == 0 || target.Signature == nest.Signature || target.Signature == Signature::Unmarked();
}

// Rules b, c and d: a searching ant climbs the food gradient, walks anywhere
// while no food scent is near, or follows the nest gradient on a food crest.
bool SearchingRulesAdmit(const World& world, int16_t nestTrace, int cx, int cy, const Cell& c, const Cell& n) {
  const double foodward = FoodwardCell(world, cx, cy).Scent;
  if (n.Scent == foodward) return true;                   // b
  if (foodward <= 0 && c.Scent <= 0) return true;         // c
  return c.Scent == foodward && n.Scent == NestwardCell(world, cx, cy, nestTrace).Scent;  // d
}

// Rules e to h: a loaded ant heads for the nest cell, leaves a nestless
// spot for food scent, or walks down its own colony's nest gradient.
bool CarryingRulesAdmit(const World& world, int16_t nestTrace, const Nest& nest, int cx, int cy, const Cell& c,
                        const Cell& n) {
  const double nestMark = -world.Settings.NestScentMax;
  if (n.Scent == nestMark) return true;  // e
  const ScentLookup nw = NestwardCell(world, cx, cy, nestTrace);
  if (n.Scent > 0 && nw.Scent == 0) return true;  // f
  if (c.Scent > nestMark && c.Scent == nw.Scent && n.Scent == FoodwardCell(world, cx, cy).Scent) return true;  // g
  return nw.Signature == nest.Signature && (n.Scent < 0 || nw.Scent != 0) && n.Scent == nw.Scent;  // h
}

// A worker's step after its turn: the cell it stands on, the cell ahead,
// whether they are one cell, and the step vector, (head - rear) / s.
struct WorkerStep {
  int CurrentX, CurrentY;
  int TargetX, TargetY;
  bool StaysInCell;
  double DX, DY;
};

// The neighbourhood lookups are pure: each is made only when a rule needs it.
bool MayStepForward(const World& world, int16_t nestTrace, const Nest& nest, const Ant& ant, const WorkerStep& step) {
  const int cx = step.CurrentX, cy = step.CurrentY, nx = step.TargetX, ny = step.TargetY;
  if (!InGrid(world, nx, ny) || !IsEdgeNeighbourOrSame(cx, cy, nx, ny) || IsBrick(world, nx, ny)) return false;
  const Cell& c = world.Cells(cx, cy);
  const Cell& n = world.Cells(nx, ny);
  if (!HasRoom(world, nest, n) || !MayEnterTrail(nest, ant, n)) return false;
  if (step.StaysInCell) return true;  // a
  return ant.Load == 0 ? SearchingRulesAdmit(world, nestTrace, cx, cy, c, n)
                       : CarryingRulesAdmit(world, nestTrace, nest, cx, cy, c, n);
}

void StepQueen(World& world, RandomSource& random, int nestIndex) {
  Nest& nest = world.Nests[static_cast<size_t>(nestIndex)];
  Ant& queen = nest.Ants[0];
  const CellFinder cellOf(world.Settings.CellSize);
  const int cx = cellOf(queen.RearX);
  const int cy = cellOf(queen.RearY);
  queen.CellX = static_cast<int16_t>(cx);
  queen.CellY = static_cast<int16_t>(cy);
  queen.Angle = IsBrick(world, cx, cy) ? 0 : QueenTurn(random);
  Turn(queen, nest.X, nest.Y, TurnRotation::Of(queen.Angle));
  Cell& cell = world.Cells(cx, cy);
  cell.Scent = -world.Settings.NestScentMax;
  BlendSignature(random, 0, nest, cell, Signature::Capacity);
}

// Delivery at the nest and feeding from the store, for a worker inside the
// nest's radius whose step stayed in its cell.
void DeliverAndFeed(World& world, Nest& nest, Ant& ant, Cell& cell) {
  const WorldSettings& s = world.Settings;
  const double ddy = s.ScaleY * nest.Y - s.ScaleY * ant.HeadY;
  const double ddx = s.ScaleX * nest.X - s.ScaleX * ant.HeadX;
  if (!(std::sqrt(ddy * ddy + ddx * ddx) < nest.Radius)) return;
  cell.Scent = -s.NestScentMax;
  if (ant.Load > 0) {
    nest.FoodStore += ant.Load;
    ant.Load = 0;
  }
  const double maxEnergy = 5 * nest.AntUnit;
  if (ant.Energy <= 0 || ant.Energy > maxEnergy) return;
  const double eat = Min(maxEnergy - ant.Energy, nest.FoodStore);
  ant.Energy += eat;
  nest.FoodStore -= eat;
}

// Moves one ant from cell `from` to cell `to` in the cells' ant counts.
void MoveAntCount(World& world, int fromX, int fromY, int toX, int toY) {
  --world.Cells(fromX, fromY).AntCount;
  ++world.Cells(toX, toY).AntCount;
}

void StepForward(World& world, RandomSource& random, int nestIndex, int antIndex, const WorkerStep& step,
                 int16_t nestTrace) {
  Ant& ant = world.Nests[static_cast<size_t>(nestIndex)].Ants[antIndex];
  Translate(ant, step.DX, step.DY);
  ant.Angle = RandomTurn(random, 60);
  MoveAntCount(world, step.CurrentX, step.CurrentY, step.TargetX, step.TargetY);
  LayScentTrail(world, random, nestIndex, antIndex, step.CurrentX, step.CurrentY, step.TargetX, step.TargetY,
                nestTrace);
  ant.CellX = static_cast<int16_t>(step.TargetX);
  ant.CellY = static_cast<int16_t>(step.TargetY);
}

// Where an ant's rear and head were when its step began.
struct AntPosition {
  double RearX, RearY, HeadX, HeadY;
  explicit AntPosition(const Ant& ant) : RearX(ant.RearX), RearY(ant.RearY), HeadX(ant.HeadX), HeadY(ant.HeadY) {}
  void RestoreTo(Ant& ant) const {
    ant.RearX = RearX;
    ant.RearY = RearY;
    ant.HeadX = HeadX;
    ant.HeadY = HeadY;
  }
};

// A refused step: back off one step, or, where that cell is off the grid or
// walled, stay where the step began (the turn undone).
void BackOff(World& world, RandomSource& random, int nestIndex, int antIndex, const WorkerStep& step,
             const CellFinder& cellOf, const AntPosition& before, int16_t nestTrace) {
  Ant& ant = world.Nests[static_cast<size_t>(nestIndex)].Ants[antIndex];
  const int bx = cellOf(ant.HeadX - step.DX);
  const int by = cellOf(ant.HeadY - step.DY);
  if (InGrid(world, bx, by) && !IsBrick(world, bx, by)) {
    if (bx != step.CurrentX || by != step.CurrentY) MoveAntCount(world, step.CurrentX, step.CurrentY, bx, by);
    LayScentTrail(world, random, nestIndex, antIndex, step.CurrentX, step.CurrentY, bx, by, nestTrace);
    Translate(ant, -step.DX, -step.DY);
    ant.Angle = RandomTurn(random, 60);
    ant.CellX = static_cast<int16_t>(bx);
    ant.CellY = static_cast<int16_t>(by);
    return;
  }
  LayScentTrail(world, random, nestIndex, antIndex, step.CurrentX, step.CurrentY, bx, by, nestTrace);
  before.RestoreTo(ant);
  ant.Angle = RandomTurn(random, 60);
}

void StepWorker(World& world, RandomSource& random, int nestIndex, int antIndex, double stepDivisor,
                int16_t nestTrace, TurnRotation turn) {
  Nest& nest = world.Nests[static_cast<size_t>(nestIndex)];
  Ant& ant = nest.Ants[antIndex];
  const CellFinder cellOf(world.Settings.CellSize);
  const AntPosition before(ant);
  WorkerStep step{};
  step.CurrentX = cellOf(ant.HeadX);
  step.CurrentY = cellOf(ant.HeadY);
  ant.CellX = static_cast<int16_t>(step.CurrentX);
  ant.CellY = static_cast<int16_t>(step.CurrentY);
  Turn(ant, ant.RearX + (ant.HeadX - ant.RearX) / stepDivisor, ant.RearY + (ant.HeadY - ant.RearY) / stepDivisor,
       turn);
  step.DX = (ant.HeadX - ant.RearX) / stepDivisor;
  step.DY = (ant.HeadY - ant.RearY) / stepDivisor;
  step.TargetX = cellOf(ant.HeadX + step.DX);
  step.TargetY = cellOf(ant.HeadY + step.DY);
  step.StaysInCell = step.TargetX == step.CurrentX && step.TargetY == step.CurrentY;

  if (MayStepForward(world, nestTrace, nest, ant, step)) {
    StepForward(world, random, nestIndex, antIndex, step, nestTrace);
  } else {
    BackOff(world, random, nestIndex, antIndex, step, cellOf, before, nestTrace);
  }
  if (step.StaysInCell) {
    DeliverAndFeed(world, nest, ant, world.Cells(step.CurrentX, step.CurrentY));
  }
}

}  // namespace

ScentLookup NestwardCell(const World& world, int x, int y, int16_t nestTrace) {
  // Pointers to the best cells so far: no signature is copied until the end.
  const double nestCell = -nestTrace;
  const Cell& centre = world.Cells(x, y);
  const double own = centre.Scent;
  const Cell* best = &centre;
  const Cell* second = nullptr;  // none yet: reads as scent 0, no signature
  bool found = false;
  ForCross(world, x, y, [&](const Cell& cell) {
    if (cell.Scent == nestCell) {
      best = &cell;
      found = true;
      return true;
    }
    if (cell.Scent != 0 && cell.Scent <= best->Scent) best = &cell;
    if (cell.Scent > ScentOf(second) && cell.Scent < own) second = &cell;
    return false;
  });
  if (found) return LookupOf(*best);
  return std::abs(best->Scent) < ScentOf(second) ? LookupOf(second) : LookupOf(*best);
}

ScentLookup FoodwardCell(const World& world, int x, int y) {
  const Cell& centre = world.Cells(x, y);
  const double own = centre.Scent;
  const Cell* best = &centre;
  const Cell* second = nullptr;
  ForCross(world, x, y, [&](const Cell& cell) {
    if (cell.Scent >= best->Scent) best = &cell;
    if (cell.Scent < ScentOf(second) && cell.Scent > own) second = &cell;
    return false;
  });
  return best->Scent < 0 ? LookupOf(second) : LookupOf(*best);
}

void BlendSignature(RandomSource& random, int antIndex, const Nest& source, Cell& target, int length) {
  target.Colour = Colour(255, 255, 255);
  if (!(source.Ants[antIndex].Energy > 0) || target.Signature == source.Signature) return;
  if (target.Signature == Signature::Unmarked()) {
    target.Signature = source.Signature;
    return;
  }
  MixSignature(random, source.Signature, target, length);
}

void LayScentTrail(World& world, RandomSource& random, int nestIndex, int antIndex, int cx, int cy, int nx, int ny,
                   int16_t nestTrace) {
  Cell& c = CellOrBorder(world, cx, cy);
  Cell& n = CellOrBorder(world, nx, ny);
  Nest& nest = world.Nests[static_cast<size_t>(nestIndex)];
  Ant& ant = nest.Ants[antIndex];
  const double nestCell = -nestTrace;
  const bool loaded = ant.Load > 0;
  if (!loaded && c.Scent <= 0 && n.Scent > 0) {  // U1
    if (std::abs(n.Scent) > std::abs(c.Scent) && c.Scent != nestCell) c.Scent = n.Scent - 1;
  } else if (!loaded && c.Scent <= 0) {  // U2
    if (n.Scent < c.Scent) {
      c.Scent = n.Scent + 1;
    } else if (n.Scent > c.Scent) {
      n.Scent = c.Scent + 1;
    }
  } else if (!loaded) {  // U3
    ant.Angle = RandomTurn(random, 5);
    if (c.Scent < n.Scent) c.Scent = n.Scent - 1;
  } else if (c.Scent <= 0 && c.Scent >= n.Scent && n.Scent != 0) {  // L1
    ant.Angle = RandomTurn(random, 5);
    if (c.Scent != nestCell) c.Scent = n.Scent + 1;
  } else if (c.Scent < 0 && n.Scent > 0) {  // L2
    if (std::abs(n.Scent) > std::abs(c.Scent)) c.Scent = n.Scent - 1;
  } else if (c.Scent > 0) {  // L3
    ant.Angle = RandomTurn(random, 5);
    if (n.Scent < c.Scent && std::abs(n.Scent) < std::abs(c.Scent) && n.Scent != nestCell) n.Scent = c.Scent - 1;
  }
  BlendSignature(random, antIndex, nest, c, Signature::Capacity);
  if (nx != cx && ny != cy) BlendSignature(random, antIndex, nest, n, Signature::Capacity);
}

void StepAnt(World& world, RandomSource& random, int nestIndex, int antIndex, int16_t nestTrace) {
  const double angle = world.Nests[static_cast<size_t>(nestIndex)].Ants[antIndex].Angle;
  StepAnt(world, random, nestIndex, antIndex, nestTrace, TurnRotation::Of(angle));
}

void StepAnt(World& world, RandomSource& random, int nestIndex, int antIndex, int16_t nestTrace, TurnRotation turn) {
  if (!world.Running) return;
  if (!(world.Nests[static_cast<size_t>(nestIndex)].Ants[antIndex].Energy > 0)) return;
  // Every ant draws its step divisor, the queen too, though she never walks.
  const double stepDivisor = random.Coin() + 2;
  if (antIndex == 0) {
    StepQueen(world, random, nestIndex);
  } else {
    StepWorker(world, random, nestIndex, antIndex, stepDivisor, nestTrace, turn);
  }
}

}  // namespace keldor
