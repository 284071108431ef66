#include "sim/FoodPiles.h"

#include <algorithm>
#include <cmath>

#include "model/Numeric.h"
#include "model/Queries.h"
#include "model/Random.h"
#include "model/World.h"
#include "sim/AntIndex.h"
#include "sim/Editing.h"

namespace keldor {
namespace {

// A living ant whose head lies on the pile's disc takes a bite.
void Bite(const WorldSettings& s, FoodPile& pile, Cell& cell, const Nest& nest, Ant& ant) {
  if (!(ant.Energy > 0)) return;
  const double radius = std::sqrt(pile.Amount / Pi);
  const double dx = CellCentre(pile.X, s.CellSize) * s.ScaleX - s.ScaleX * ant.HeadX;
  const double dy = CellCentre(pile.Y, s.CellSize) * s.ScaleY - s.ScaleY * ant.HeadY;
  if (!(radius >= std::sqrt(dx * dx + dy * dy) && ant.Load < nest.AntUnit)) return;
  if (pile.Amount > nest.AntUnit) {
    ant.Load += nest.AntUnit;
    pile.Amount -= nest.AntUnit;
  } else {
    ant.Load += pile.Amount;
    pile.Amount = 0;
  }
  cell.Food = pile.Amount;
}

void FeedAnts(World& world, AntIndex* index, FoodPile& pile, Cell& cell) {
  const WorldSettings& s = world.Settings;
  if (index == nullptr) {
    for (int n = 0; n < world.NestCount; ++n) {
      Nest& nest = world.Nests[static_cast<size_t>(n)];
      for (Ant& ant : nest.Ants) Bite(s, pile, cell, nest, ant);
    }
    return;
  }
  // The disc only shrinks during the pass: its radius now bounds every bite.
  const double reach = std::sqrt(pile.Amount / Pi) / std::min(s.ScaleX, s.ScaleY);
  const double centreX = CellCentre(pile.X, s.CellSize);
  const double centreY = CellCentre(pile.Y, s.CellSize);
  for (const AntRef& ref : index->Near(centreX, centreY, reach)) {
    Nest& nest = world.Nests[static_cast<size_t>(ref.Nest)];
    Bite(s, pile, cell, nest, nest.Ants[ref.Ant]);
  }
}

// -1 or +1 with one draw, then 0 or 1 with another: an offset of -1, 0 or +1.
double RandomOffset(RandomSource& random) {
  const double sign = random.Sign();
  return sign * random.Coin();
}

// A full pile seeds a small pile on a free neighbouring cell.
void Spread(World& world, RandomSource& random, int pileIndex) {
  const FoodPile source = world.FoodPiles[pileIndex];
  const int nx = CInt(RandomOffset(random) + source.X);
  const int ny = CInt(RandomOffset(random) + source.Y);
  const WorldSettings& s = world.Settings;
  if (nx < 1 || nx > s.GridX || ny < 1 || ny > s.GridY) return;
  Cell& target = world.Cells(nx, ny);
  if (target.Food != 0 || target.AntCount != 0 || source.SpreadBudget <= 0) return;
  if (nx == source.X && ny == source.Y) return;
  FoodPile* seeded = AppendFoodPile(world, random, static_cast<int16_t>(nx), static_cast<int16_t>(ny),
                                    s.SpreadFoodAmount);
  if (seeded == nullptr) return;
  target.Food = seeded->Amount;
  --world.FoodPiles[pileIndex].SpreadBudget;
}

}  // namespace

void FoodPileUpdate(World& world, RandomSource& random, AntIndex* index, const TickInput& input) {
  const double capacity = world.Settings.CellFoodCapacity();
  for (int j = 0; j <= world.FoodPileCount() - 1; ++j) {
    if (input.CurrentTool == FoodTool && input.PointerHeld) {
      AdjustFoodAt(world, j, input.PointerCellX, input.PointerCellY, input.PointerButton);
    }
    FoodPile& pile = world.FoodPiles[j];
    Cell& cell = world.Cells(pile.X, pile.Y);
    const bool walled = cell.Objects.HasBrick();
    if (world.Running && !walled) FeedAnts(world, index, pile, cell);
    pile.Amount = cell.Food;
    if (pile.Amount == 0) {
      cell.Food = 0;
      world.FoodPiles.Remove(j);
      --j;
      continue;
    }
    if (world.Running && !walled) {
      pile.Amount += capacity / 5000;
      if (capacity <= pile.Amount) {
        pile.Amount = capacity;
        Spread(world, random, j);
      }
    }
    // Spreading may have grown the list: look the pile up again.
    FoodPile& current = world.FoodPiles[j];
    cell.Food = current.Amount;
    const double emission = Int(world.Settings.FoodScentMax * cell.Food / capacity);
    if (current.Amount > 0 && emission > std::abs(cell.Scent)) cell.Scent = emission;
  }
}

}  // namespace keldor
