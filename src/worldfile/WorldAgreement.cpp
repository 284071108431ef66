#include "worldfile/WorldAgreement.h"

#include <vector>

#include "model/World.h"

namespace keldor {

namespace {

// A world cell's place in the file's cell list: column by column.
int CellIndex(const WorldSettings& s, int x, int y) { return (x - 1) * s.GridY + (y - 1); }

std::string CellName(const WorldSettings& s, int x, int y) {
  return "Cells[" + std::to_string(CellIndex(s, x, y)) + "]";
}

std::string CellText(int x, int y) { return "cell (" + std::to_string(x) + ", " + std::to_string(y) + ")"; }

bool InWorld(const WorldSettings& s, int x, int y) { return x >= 1 && x <= s.GridX && y >= 1 && y <= s.GridY; }

}  // namespace

std::optional<std::string> FindDisagreement(const World& world) {
  const WorldSettings& s = world.Settings;
  if (!world.HasWorld()) return std::nullopt;
  std::vector<int> living(static_cast<size_t>(s.GridX) * static_cast<size_t>(s.GridY), 0);
  int population = 0;
  for (const Nest& nest : world.Nests) {
    for (const Ant& ant : nest.Ants) {
      if (!(ant.Energy > 0)) continue;
      ++population;
      // An ant whose head is on the world's far edge stands in the ring, which the file does not hold.
      if (InWorld(s, ant.CellX, ant.CellY)) ++living[static_cast<size_t>(CellIndex(s, ant.CellX, ant.CellY))];
    }
  }
  if (population != s.Population) {
    return "Population: " + std::to_string(s.Population) + " where the nests hold " + std::to_string(population) +
           " living ants";
  }
  std::vector<std::vector<const WallObject*>> walls(living.size());
  for (const WallObject& wall : world.Walls) walls[static_cast<size_t>(CellIndex(s, wall.X, wall.Y))].push_back(&wall);
  for (int x = 1; x <= s.GridX; ++x) {
    for (int y = 1; y <= s.GridY; ++y) {
      const auto i = static_cast<size_t>(CellIndex(s, x, y));
      const Cell& cell = world.Cells(x, y);
      if (cell.AntCount != living[i]) {
        return CellName(s, x, y) + ".AntCount: " + std::to_string(cell.AntCount) + " where " +
               std::to_string(living[i]) + " living ants stand on " + CellText(x, y);
      }
      bool same = cell.Objects.Count() == static_cast<int>(walls[i].size());
      for (int k = 0; same && k < cell.Objects.Count(); ++k) same = cell.Objects[k] == *walls[i][static_cast<size_t>(k)];
      if (!same) {
        return CellName(s, x, y) + ".Objects: not the " + std::to_string(walls[i].size()) +
               " walls that Walls puts on " + CellText(x, y);
      }
    }
  }
  return std::nullopt;
}

}  // namespace keldor
