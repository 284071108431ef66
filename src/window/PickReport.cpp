#include "window/PickReport.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <numbers>

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

std::string CellText(int x, int y) { return "(" + std::to_string(x) + ", " + std::to_string(y) + ")"; }

std::string ColourText(Colour colour) {
  return "RGB(" + std::to_string(colour.Red()) + ", " + std::to_string(colour.Green()) + ", " +
         std::to_string(colour.Blue()) + ")";
}

int LivingAnts(const Nest& nest) {
  return static_cast<int>(std::count_if(nest.Ants.begin(), nest.Ants.end(), [](const Ant& a) { return a.Energy > 0; }));
}

// Where the ant stands in its round: the nest takes its load and feeds it
// while its head is inside the nest's disc; outside, a load means it is on its
// way home and no load that it looks for food.
std::string AntActivity(const World& world, const Nest& home, const Ant& ant) {
  if (!(ant.Energy > 0)) return "dead";
  const double dx = world.Settings.ScaleX * home.X - world.Settings.ScaleX * ant.HeadX;
  const double dy = world.Settings.ScaleY * home.Y - world.Settings.ScaleY * ant.HeadY;
  if (std::sqrt(dy * dy + dx * dx) < home.Radius) return "at the nest";
  return ant.Load > 0 ? "carrying food home" : "searching for food";
}

// The compass direction from the ant's rear to its head; north is up.
std::string Heading(const Ant& ant) {
  static const char* const directions[] = {"east", "south-east", "south", "south-west",
                                           "west", "north-west", "north", "north-east"};
  const double degrees = std::atan2(ant.HeadY - ant.RearY, ant.HeadX - ant.RearX) * 180 / std::numbers::pi;
  const int sector = static_cast<int>(std::lround(degrees / 45)) % 8;
  return directions[(sector + 8) % 8];
}

// The upkeep takes one hundredth of the nest's unit each tick, except from an
// ant whose life factor is exactly 1 while its energy is above 1.
std::string LifeLeft(const Nest& home, const Ant& ant) {
  if (!(ant.Energy > 0)) return "none";
  if (ant.LifeFactor == 1.0 && ant.Energy > 1.0) return "does not tire";
  const double perTick = (home.AntUnit + home.AntUnit) / 200;
  if (!(perTick > 0)) return "does not tire";
  return "about " + std::to_string(static_cast<long long>(std::ceil(ant.Energy / perTick))) + " ticks without eating";
}

std::string EnergyShare(const Nest& home, const Ant& ant) {
  const double maxEnergy = 5 * home.AntUnit;
  if (!(ant.Energy > 0) || !(maxEnergy > 0)) return "none";
  return std::to_string(std::lround(100 * ant.Energy / maxEnergy)) + "% of full";
}

PickReport ReportAnt(const World& world, const Pick& pick) {
  const AntPlace place = FindAnt(world, pick.Serial);
  if (place.Home == nullptr) return {"The picked ant is gone", {}};
  const Ant& a = place.Home->Ants[place.Index];
  std::string title = place.Index == 0 ? "Queen" : "Ant";
  if (!(a.Energy > 0)) title += " (dead)";
  return {title,
          {{"Colony", place.Home->Name},
           {"Doing", AntActivity(world, *place.Home, a)},
           {"Carrying", a.Load > 0 ? Number(a.Load) + " food" : "nothing"},
           {"Energy", EnergyShare(*place.Home, a)},
           {"Life left", LifeLeft(*place.Home, a)},
           {"Cell", CellText(a.CellX, a.CellY)},
           {"Heading", Heading(a)}}};
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
