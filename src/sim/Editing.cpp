#include "sim/Editing.h"

#include "model/Numeric.h"
#include "model/Queries.h"
#include "model/Random.h"
#include "model/World.h"
#include "model/WorldCreation.h"

namespace keldor {
namespace {

WallObject PlasterBrick(const World& world, int16_t x, int16_t y) {
  const double size = world.Settings.CellSize;
  WallObject wall;
  wall.TypeName = PlasterBrickType;
  wall.X = x;
  wall.Y = y;
  wall.ShapeCount = 1;
  wall.Shapes.resize(2);
  WallShape& shape = wall.Shapes[0];
  shape.Colour = Colour(235, 235, 235);
  shape.Material = "CaSO4";
  shape.Points[0] = {(x - 1) * size, (y - 1) * size};
  shape.Points[1] = {(x - 1) * size, y * size};
  shape.Points[2] = {x * size, y * size};
  shape.Points[3] = {x * size, (y - 1) * size};
  return wall;
}

FoodPile* FirstPileOn(World& world, int x, int y) {
  for (FoodPile& pile : world.FoodPiles) {
    if (pile.X == x && pile.Y == y) return &pile;
  }
  return nullptr;
}

}  // namespace

FoodPile* AppendFoodPile(World& world, RandomSource& random, int16_t x, int16_t y, double amount) {
  if (!world.FoodPiles.CanAppend()) return nullptr;
  FoodPile& pile = world.FoodPiles.Append();
  pile.X = x;
  pile.Y = y;
  pile.SpreadBudget = DrawSpreadBudget(random);
  pile.Amount = amount;
  return &pile;
}

bool AddWallAt(World& world, int16_t x, int16_t y) {
  Cell& cell = world.Cells(x, y);
  if (!world.Walls.CanAppend() || !cell.Objects.CanAdd()) return false;
  const WallObject wall = PlasterBrick(world, x, y);
  world.Walls.Append() = wall;
  cell.Objects.Add(wall);
  return true;
}

bool RemoveWallAt(World& world, int wallIndex, double x, double y) {
  const WallObject& wall = world.Walls[wallIndex];
  if (!(wall.X == x && wall.Y == y)) return false;
  world.Cells(wall.X, wall.Y).Objects.RemoveBrick();
  world.Walls.Remove(wallIndex);
  return true;
}

int16_t RemoveAntsAt(World& world, RandomSource& random, int x, int y) {
  Cell& cell = world.Cells(x, y);
  const double capacity = world.Settings.CellFoodCapacity();
  int16_t removed = 0;
  for (int n = 0; n < world.NestCount; ++n) {
    Nest& nest = world.Nests[static_cast<size_t>(n)];
    int a = 1;  // the queen is never removed
    while (a <= nest.AntCount() - 1) {
      if (cell.AntCount <= 0) break;
      Ant& ant = nest.Ants[a];
      if (ant.CellX != x || ant.CellY != y) {
        ++a;
        continue;
      }
      const double energy = ant.Energy;
      if (FoodPile* pile = FirstPileOn(world, x, y)) {
        pile->Amount = Min(ant.Load + pile->Amount, capacity);
        cell.Food = pile->Amount;
      } else if (ant.Load > 0) {
        if (FoodPile* dropped = AppendFoodPile(world, random, static_cast<int16_t>(x), static_cast<int16_t>(y), ant.Load)) {
          cell.Food = dropped->Amount;
        }
      }
      if (energy <= 0) {
        ++a;
        continue;
      }
      --cell.AntCount;
      nest.Ants.Remove(a);
      --world.Settings.Population;
      ++removed;
    }
  }
  return removed;
}

std::optional<double> AdjustFoodAt(World& world, int pileIndex, double x, double y, int button) {
  FoodPile& pile = world.FoodPiles[pileIndex];
  if (!(pile.X == x && pile.Y == y)) return std::nullopt;
  const WorldSettings& s = world.Settings;
  if (button == 1) {
    pile.Amount = Min(pile.Amount + s.SpreadFoodAmount, s.CellFoodCapacity());
  } else if (button == 2) {
    pile.Amount = Max(pile.Amount - s.SpreadFoodAmount, 0);
  }
  world.Cells(pile.X, pile.Y).Food = pile.Amount;
  return pile.Amount;
}

void RemoveNestAt(World& world, RandomSource& random, int x, int y) {
  int found = -1;
  for (int n = 0; n < world.NestCount && found < 0; ++n) {
    const Nest& nest = world.Nests[static_cast<size_t>(n)];
    if (nest.CellX == x && nest.CellY == y) found = n;
  }
  if (found < 0) return;
  Nest& nest = world.Nests[static_cast<size_t>(found)];
  Cell& cell = world.Cells(x, y);
  const double capacity = world.Settings.CellFoodCapacity();
  cell.Food = Min(nest.FoodStore + cell.Food, capacity);
  FoodPile* pile = FirstPileOn(world, x, y);
  if (pile == nullptr) {
    pile = AppendFoodPile(world, random, static_cast<int16_t>(x), static_cast<int16_t>(y), world.Settings.SpreadFoodAmount);
  }
  if (pile != nullptr) pile->Amount = cell.Food;
  for (const Ant& ant : nest.Ants) {
    if (!(ant.Energy > 0)) continue;
    --world.Cells(ant.CellX, ant.CellY).AntCount;
    cell.Food = Min(ant.Load + cell.Food, capacity);
    --world.Settings.Population;
  }
  RemoveNestRecord(world, found);
}

}  // namespace keldor
