#include "sim/OdorField.h"

#include "model/Numeric.h"
#include "model/Queries.h"
#include "model/World.h"
#include "sim/TickPainter.h"

namespace keldor {

double ScentColour(double scent, double foodScentMax, double nestScentMax) {
  if (scent > 0) {
    const double f = scent / foodScentMax;
    return Rgb(CInt(185 - 69 * f), CInt(200 - 32 * f), CInt(145 - 29 * f));
  }
  const double n = scent / nestScentMax;
  return Rgb(CInt(200 + 61 * n), CInt(172 + 43 * n), CInt(145 + 42 * n));
}

void CellUpdate(World& world, TickPainter& painter) {
  const WorldSettings& s = world.Settings;
  for (int x = 1; x <= s.GridX; ++x) {
    for (int y = 1; y <= s.GridY; ++y) {
      Cell& cell = world.Cells(x, y);
      if (CellHasObjectType(cell, PlasterBrickType)) {
        cell.Scent = 0;
        cell.Signature = Signature::Unmarked();
      }
      if (cell.Scent != 0 || cell.AntCount != 0) {
        if (cell.Scent > s.FoodScentMax) cell.Scent = s.FoodScentMax;
        if (cell.Scent < -s.NestScentMax) cell.Scent = -s.NestScentMax;
        cell.Colour = ScentColour(cell.Scent, s.FoodScentMax, s.NestScentMax);
        // The painter decides whether odor traces are shown.
        painter.DrawCell(world, cell);
        if (world.Running) {
          if (cell.Scent > 0) {
            cell.Scent -= 1;
          } else if (cell.Scent < 0) {
            cell.Scent += 1;
          }
        }
      }
      if (cell.Scent == 0) cell.Signature = Signature::Unmarked();
    }
  }
}

}  // namespace keldor
