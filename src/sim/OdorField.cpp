#include "sim/OdorField.h"

#include "model/Numeric.h"
#include "model/Queries.h"
#include "model/World.h"
#include "sim/TickPainter.h"

namespace keldor {

Colour ScentColour(double scent, double foodScentMax, double nestScentMax) {
  if (scent > 0) {
    const double f = scent / foodScentMax;
    return Colour(CInt(185 - 69 * f), CInt(200 - 32 * f), CInt(145 - 29 * f));
  }
  const double n = scent / nestScentMax;
  return Colour(CInt(200 + 61 * n), CInt(172 + 43 * n), CInt(145 + 42 * n));
}

void CellUpdate(World& world, TickPainter& painter) {
  // The painter sees the world read-only: the settings hold for the whole pass.
  const WorldSettings& s = world.Settings;
  const int gridX = s.GridX;
  const int gridY = s.GridY;
  const int foodScentMax = s.FoodScentMax;
  const int nestScentMax = s.NestScentMax;
  const bool running = world.Running;
  constexpr Signature unmarked = Signature::Unmarked();
  for (int x = 1; x <= gridX; ++x) {
    Cell* column = world.Cells.Column(x);
    for (int y = 1; y <= gridY; ++y) {
      Cell& cell = column[y];
      if (cell.Objects.HasBrick()) {
        cell.Scent = 0;
        cell.Signature = unmarked;
      }
      if (cell.Scent != 0 || cell.AntCount != 0) {
        if (cell.Scent > foodScentMax) cell.Scent = foodScentMax;
        if (cell.Scent < -nestScentMax) cell.Scent = -nestScentMax;
        cell.Colour = ScentColour(cell.Scent, foodScentMax, nestScentMax);
        // The painter decides whether odor traces are shown.
        painter.DrawCell(world, cell);
        if (running) {
          if (cell.Scent > 0) {
            cell.Scent -= 1;
          } else if (cell.Scent < 0) {
            cell.Scent += 1;
          }
        }
      }
      // Most cells are already unmarked: leave their memory untouched.
      if (cell.Scent == 0 && cell.Signature != unmarked) cell.Signature = unmarked;
    }
  }
}

}  // namespace keldor
