#include "app/headless/ScenarioSetup.h"

#include "model/Queries.h"
#include "model/Records.h"
#include "model/World.h"
#include "model/WorldCreation.h"
#include "sim/Editing.h"
#include "window/WindowState.h"

namespace keldor::headless {

namespace {

bool IsWorldCell(const World& world, int x, int y) {
  return x >= 1 && x <= world.Settings.GridX && y >= 1 && y <= world.Settings.GridY;
}

// Applies one step on a world cell; returns why it could not be applied.
std::optional<std::string> ApplyStep(World& world, WindowState& window, RandomSource& random, const ScenarioStep& step) {
  const auto x = static_cast<int16_t>(step.X);
  const auto y = static_cast<int16_t>(step.Y);
  switch (step.Kind) {
    case ScenarioKind::Nest:
      // As the nest tool does it: the pointer on the cell, then the nest.
      window.CursorCellX = x;
      window.CursorCellY = y;
      if (!CreateNest(world, random, x, y)) return "no room for another nest of " + std::to_string(world.Settings.AntsPerNest) + " ants";
      return std::nullopt;
    case ScenarioKind::Wall:
      if (world.Cells(x, y).Objects.HasBrick()) return std::nullopt;
      if (!AddWallAt(world, x, y)) return "no room for another wall";
      return std::nullopt;
    case ScenarioKind::Food: {
      Cell& cell = world.Cells(x, y);
      if (cell.Food != 0) return std::nullopt;
      const FoodPile* pile = AppendFoodPile(world, random, x, y, world.Settings.SpreadFoodAmount);
      if (pile == nullptr) return "no room for another food pile";
      cell.Food = pile->Amount;
      return std::nullopt;
    }
  }
  return std::nullopt;
}

}  // namespace

std::optional<std::string> ApplyScenario(World& world, WindowState& window, RandomSource& random,
                                         const std::vector<ScenarioStep>& steps) {
  for (const ScenarioStep& step : steps) {
    if (!IsWorldCell(world, step.X, step.Y)) {
      return step.Argument + ": the cell lies outside the " + std::to_string(world.Settings.GridX) + " x " +
             std::to_string(world.Settings.GridY) + " world";
    }
    if (const auto problem = ApplyStep(world, window, random, step)) return step.Argument + ": " + *problem;
  }
  return std::nullopt;
}

}  // namespace keldor::headless
