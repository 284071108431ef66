#include "window/PickReport.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "model/Queries.h"
#include "model/World.h"

namespace keldor {

namespace {

struct AntPlace {
  const Nest* Home = nullptr;
  int Index = 0;
};

AntPlace FindAnt(const World& world, uint32_t serial) {
  for (int n = 0; n < world.NestCount; ++n) {
    const Nest& nest = world.Nests[static_cast<size_t>(n)];
    for (int i = 0; i < nest.AntCount(); ++i) {
      if (nest.Ants[i].Serial == serial) return {&nest, i};
    }
  }
  return {};
}

const Nest* FindNest(const World& world, uint32_t serial) {
  for (int n = 0; n < world.NestCount; ++n) {
    if (world.Nests[static_cast<size_t>(n)].Serial == serial) return &world.Nests[static_cast<size_t>(n)];
  }
  return nullptr;
}

double DistanceToBody(const Ant& ant, double x, double y) {
  const double dx = ant.HeadX - ant.RearX;
  const double dy = ant.HeadY - ant.RearY;
  const double lengthSquared = dx * dx + dy * dy;
  const double along = lengthSquared > 0 ? std::clamp(((x - ant.RearX) * dx + (y - ant.RearY) * dy) / lengthSquared, 0.0, 1.0) : 0.0;
  return std::hypot(x - (ant.RearX + along * dx), y - (ant.RearY + along * dy));
}

std::string Number(double v, int decimals = 2) {
  char text[64];
  std::snprintf(text, sizeof text, "%.*f", decimals, v);
  return text;
}

std::string Point(double x, double y) { return "(" + Number(x) + ", " + Number(y) + ")"; }

std::string CellText(int x, int y) { return "(" + std::to_string(x) + ", " + std::to_string(y) + ")"; }

std::string ColourText(Colour colour) {
  return "RGB(" + std::to_string(colour.Red()) + ", " + std::to_string(colour.Green()) + ", " +
         std::to_string(colour.Blue()) + ")";
}

int LivingAnts(const Nest& nest) {
  return static_cast<int>(std::count_if(nest.Ants.begin(), nest.Ants.end(), [](const Ant& a) { return a.Energy > 0; }));
}

PickReport ReportAnt(const World& world, const Pick& pick) {
  const AntPlace place = FindAnt(world, pick.Serial);
  if (place.Home == nullptr) return {"The picked ant is gone", {}};
  const Ant& a = place.Home->Ants[place.Index];
  std::string title = place.Index == 0 ? "Queen" : "Ant";
  if (!(a.Energy > 0)) title += " (dead)";
  return {title,
          {{"Nest", place.Home->Name},
           {"Energy", Number(a.Energy)},
           {"Load", Number(a.Load)},
           {"Life factor", Number(a.LifeFactor)},
           {"Cell", CellText(a.CellX, a.CellY)},
           {"Head", Point(a.HeadX, a.HeadY)},
           {"Rear", Point(a.RearX, a.RearY)},
           {"Angle", Number(a.Angle, 4)}}};
}

PickReport ReportNest(const World& world, const Pick& pick) {
  const Nest* nest = FindNest(world, pick.Serial);
  if (nest == nullptr) return {"The picked nest is gone", {}};
  return {"Nest",
          {{"Name", nest->Name},
           {"Colour", ColourText(nest->Colour)},
           {"Store", Number(nest->FoodStore)},
           {"Population", std::to_string(LivingAnts(*nest))},
           {"Signature", nest->Signature.ToString()}}};
}

PickReport ReportCell(const World& world, const Pick& pick) {
  if (!world.HasWorld() || pick.CellX > world.Settings.GridX || pick.CellY > world.Settings.GridY) {
    return {"The picked cell is gone", {}};
  }
  const Cell& c = world.Cells(pick.CellX, pick.CellY);
  std::string objects = std::to_string(c.ObjectCount());
  for (const WallObject& object : c.Objects) objects += " " + object.TypeName;
  return {"Cell " + CellText(pick.CellX, pick.CellY),
          {{"Scent", Number(c.Scent)},
           {"Signature", c.Signature.ToString()},
           {"Food", Number(c.Food)},
           {"Ants", std::to_string(c.AntCount)},
           {"Objects", objects}}};
}

}  // namespace

Pick PickAt(const World& world, double x, double y, double reach) {
  if (!world.HasWorld()) return {};
  const Ant* nearest = nullptr;
  double nearestDistance = reach;
  for (int n = 0; n < world.NestCount; ++n) {
    for (const Ant& ant : world.Nests[static_cast<size_t>(n)].Ants) {
      if (!(ant.Energy > 0)) continue;
      const double distance = DistanceToBody(ant, x, y);
      if (distance <= nearestDistance) {
        nearest = &ant;
        nearestDistance = distance;
      }
    }
  }
  if (nearest != nullptr) return {Pick::Kind::Ant, nearest->Serial, nearest->CellX, nearest->CellY};
  for (int n = 0; n < world.NestCount; ++n) {
    const Nest& nest = world.Nests[static_cast<size_t>(n)];
    if (std::hypot(x - nest.X, y - nest.Y) <= nest.Radius / world.Settings.ScaleX) {
      return {Pick::Kind::Nest, nest.Serial, nest.CellX, nest.CellY};
    }
  }
  const int16_t cellX = CellOfCoordinate(x, world.Settings.CellSize);
  const int16_t cellY = CellOfCoordinate(y, world.Settings.CellSize);
  if (cellX < 1 || cellY < 1 || cellX > world.Settings.GridX || cellY > world.Settings.GridY) return {};
  return {Pick::Kind::Cell, 0, cellX, cellY};
}

const Ant* LivingAnt(const World& world, const Pick& pick) {
  if (pick.What != Pick::Kind::Ant) return nullptr;
  const AntPlace place = FindAnt(world, pick.Serial);
  if (place.Home == nullptr) return nullptr;
  const Ant& ant = place.Home->Ants[place.Index];
  return ant.Energy > 0 ? &ant : nullptr;
}

PickReport ReportPick(const World& world, const Pick& pick) {
  switch (pick.What) {
    case Pick::Kind::Ant: return ReportAnt(world, pick);
    case Pick::Kind::Nest: return ReportNest(world, pick);
    case Pick::Kind::Cell: return ReportCell(world, pick);
    case Pick::Kind::None: break;
  }
  return {"Choose the arrow tool and click an ant, a nest or a cell", {}};
}

}  // namespace keldor
