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
  const double sign = SignOfDraw(random.Rnd());
  return sign * random.Rnd() * maxDegrees * Pi / 180;
}

// The queen's turn of up to 60 degrees, scaled by the radian factor taken
// first: it rounds differently from RandomTurn in the last bit.
double QueenTurn(RandomSource& random) {
  const double sign = SignOfDraw(random.Rnd());
  return sign * random.Rnd() * 60 * (Pi / 180);
}

bool IsBrick(const World& world, int x, int y) { return CellHasObjectType(world.Cells(x, y), PlasterBrickType); }

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
    mixed[static_cast<size_t>(k)] = Int(2 * random.Rnd()) == 0 ? source[k] : own;
  }
  target.Signature = Signature(std::string_view(mixed.data(), static_cast<size_t>(length)));
}

ScentLookup LookupOf(const Cell& cell) { return {cell.Scent, cell.Signature}; }
// A lookup that found no cell reads as scent 0 with no signature.
ScentLookup LookupOf(const Cell* cell) { return cell != nullptr ? LookupOf(*cell) : ScentLookup{}; }
double ScentOf(const Cell* cell) { return cell != nullptr ? cell->Scent : 0; }

struct Move {
  double DX = 0;
  double DY = 0;
};

void Translate(Ant& ant, double dx, double dy) {
  ant.RearX += dx;
  ant.RearY += dy;
  ant.HeadX += dx;
  ant.HeadY += dy;
}

// Rotates the ant about (px, py) unless its head would leave the map box.
void Turn(const World& world, Ant& ant, double px, double py) {
  const double c = std::cos(ant.Angle);
  const double s = std::sin(ant.Angle);
  const double headX = (ant.HeadX - px) * c + px - (ant.HeadY - py) * s;
  const double headY = (ant.HeadX - px) * s + py + (ant.HeadY - py) * c;
  if (headX < 0 || headX > world.View.MapBoxWidth || headY < 0 || headY > world.View.MapBoxHeight) return;
  const double rearX = (ant.RearX - px) * c + px - (ant.RearY - py) * s;
  const double rearY = (ant.RearX - px) * s + py + (ant.RearY - py) * c;
  ant.RearX = rearX;
  ant.RearY = rearY;
  ant.HeadX = headX;
  ant.HeadY = headY;
}

bool MayStepForward(const World& world, const Nest& nest, const Ant& ant, int cx, int cy, int nx, int ny) {
  const WorldSettings& s = world.Settings;
  if (!InGrid(world, nx, ny)) return false;
  if (nx != cx && ny != cy) return false;
  if (IsBrick(world, nx, ny)) return false;
  const Cell& c = world.Cells(cx, cy);
  const Cell& n = world.Cells(nx, ny);
  const double cellArea = (s.ScaleX * s.CellSize) * (s.ScaleX * s.CellSize);
  if (n.AntCount > cellArea / nest.AntBodyArea / 2) return false;
  const double load = ant.Load;
  if (!(load == 0 || n.Signature == nest.Signature || n.Signature == Signature::Unmarked())) return false;

  // The neighbourhood lookups are pure: each is made only when a rule needs it.
  if (nx == cx && ny == cy) return true;  // a
  if (load == 0) {
    const double foodward = FoodwardCell(world, cx, cy).Scent;
    return n.Scent == foodward                                                        // b
           || (foodward <= 0 && c.Scent <= 0)                                         // c
           || (c.Scent == foodward && n.Scent == NestwardCell(world, cx, cy).Scent);  // d
  }
  const double nestMark = -s.NestScentMax;
  if (n.Scent == nestMark) return true;  // e
  const ScentLookup nw = NestwardCell(world, cx, cy);
  return (n.Scent > 0 && nw.Scent == 0)                                                          // f
         || (c.Scent > nestMark && c.Scent == nw.Scent && n.Scent == FoodwardCell(world, cx, cy).Scent)  // g
         || (nw.Signature == nest.Signature && (n.Scent < 0 || nw.Scent != 0) &&                     // h
             n.Scent == nw.Scent);
}

void StepQueen(World& world, RandomSource& random, int nestIndex) {
  Nest& nest = world.Nests[static_cast<size_t>(nestIndex)];
  Ant& queen = nest.Ants[0];
  const double cellSize = world.Settings.CellSize;
  const int cx = CellOfCoordinate(queen.RearX, cellSize);
  const int cy = CellOfCoordinate(queen.RearY, cellSize);
  queen.CellX = static_cast<int16_t>(cx);
  queen.CellY = static_cast<int16_t>(cy);
  queen.Angle = IsBrick(world, cx, cy) ? 0 : QueenTurn(random);
  Turn(world, queen, nest.X, nest.Y);
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

void StepWorker(World& world, RandomSource& random, int nestIndex, int antIndex, double stepDivisor) {
  Nest& nest = world.Nests[static_cast<size_t>(nestIndex)];
  Ant& ant = nest.Ants[antIndex];
  const double cellSize = world.Settings.CellSize;
  const Ant saved = ant;
  const int cx = CellOfCoordinate(ant.HeadX, cellSize);
  const int cy = CellOfCoordinate(ant.HeadY, cellSize);
  ant.CellX = static_cast<int16_t>(cx);
  ant.CellY = static_cast<int16_t>(cy);
  Turn(world, ant, ant.RearX + (ant.HeadX - ant.RearX) / stepDivisor,
       ant.RearY + (ant.HeadY - ant.RearY) / stepDivisor);
  const Move step{(ant.HeadX - ant.RearX) / stepDivisor, (ant.HeadY - ant.RearY) / stepDivisor};
  const int nx = CellOfCoordinate(ant.HeadX + step.DX, cellSize);
  const int ny = CellOfCoordinate(ant.HeadY + step.DY, cellSize);
  Cell& current = world.Cells(cx, cy);

  if (MayStepForward(world, nest, ant, cx, cy, nx, ny)) {
    Translate(ant, step.DX, step.DY);
    ant.Angle = RandomTurn(random, 60);
    Cell& target = world.Cells(nx, ny);
    --current.AntCount;
    ++target.AntCount;
    LayScentTrail(world, random, nestIndex, antIndex, cx, cy, nx, ny);
    ant.CellX = static_cast<int16_t>(nx);
    ant.CellY = static_cast<int16_t>(ny);
  } else {
    const int bx = CellOfCoordinate(ant.HeadX - step.DX, cellSize);
    const int by = CellOfCoordinate(ant.HeadY - step.DY, cellSize);
    if (InGrid(world, bx, by) && !IsBrick(world, bx, by)) {
      if (bx != cx || by != cy) {
        --current.AntCount;
        ++world.Cells(bx, by).AntCount;
      }
      LayScentTrail(world, random, nestIndex, antIndex, cx, cy, bx, by);
      Translate(ant, -step.DX, -step.DY);
      ant.Angle = RandomTurn(random, 60);
      ant.CellX = static_cast<int16_t>(bx);
      ant.CellY = static_cast<int16_t>(by);
    } else {
      LayScentTrail(world, random, nestIndex, antIndex, cx, cy, bx, by);
      ant.RearX = saved.RearX;
      ant.RearY = saved.RearY;
      ant.HeadX = saved.HeadX;
      ant.HeadY = saved.HeadY;
      ant.Angle = RandomTurn(random, 60);
    }
  }
  if (nx == cx && ny == cy) DeliverAndFeed(world, nest, ant, current);
}

}  // namespace

ScentLookup NestwardCell(const World& world, int x, int y) {
  // Pointers to the best cells so far: no signature is copied until the end.
  const double nestCell = -world.NestTraceValue();
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
  target.Colour = Rgb(255, 255, 255);
  if (!(source.Ants[antIndex].Energy > 0) || target.Signature == source.Signature) return;
  if (target.Signature == Signature::Unmarked()) {
    target.Signature = source.Signature;
    return;
  }
  MixSignature(random, source.Signature, target, length);
}

void LayScentTrail(World& world, RandomSource& random, int nestIndex, int antIndex, int cx, int cy, int nx, int ny) {
  Cell& c = CellOrBorder(world, cx, cy);
  Cell& n = CellOrBorder(world, nx, ny);
  Nest& nest = world.Nests[static_cast<size_t>(nestIndex)];
  Ant& ant = nest.Ants[antIndex];
  const double nestCell = -world.NestTraceValue();
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

void StepAnt(World& world, RandomSource& random, int nestIndex, int antIndex) {
  if (!world.Running) return;
  if (!(world.Nests[static_cast<size_t>(nestIndex)].Ants[antIndex].Energy > 0)) return;
  // Every ant draws its step divisor, the queen too, though she never walks.
  const double stepDivisor = Int(2 * random.Rnd()) + 2;
  if (antIndex == 0) {
    StepQueen(world, random, nestIndex);
  } else {
    StepWorker(world, random, nestIndex, antIndex, stepDivisor);
  }
}

}  // namespace keldor
