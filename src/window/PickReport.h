// The inspector's logic: what lies under a point of the terrain view (an ant,
// else a nest, else a cell), found again by its identity as the world
// changes, and the lines the inspector window shows for it.
//
// Ants and nests are renumbered when others are removed (the last record
// moves into the freed slot), so a pick holds their Serial, which nothing
// else changes or reuses, and looks it up again on every refresh.
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace keldor {

struct World;
struct Ant;

struct Pick {
  enum class Kind { None, Ant, Nest, Cell };
  Kind What = Kind::None;
  uint32_t Serial = 0;  // of the ant or the nest
  int16_t CellX = 0;
  int16_t CellY = 0;
};

// (x, y) in world units. An ant is picked when its body (the segment from
// rear to head) lies within `reach` world units; of several, the nearest.
// Else a nest whose disc holds the point, else the world cell under it.
Pick PickAt(const World& world, double x, double y, double reach);

// The picked ant while it lives; null once it died or was removed.
const Ant* LivingAnt(const World& world, const Pick& pick);

struct PickReport {
  std::string Title;
  std::vector<std::pair<std::string, std::string>> Lines;  // label, value
};

PickReport ReportPick(const World& world, const Pick& pick);

}  // namespace keldor
