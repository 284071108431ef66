#include "model/WorldCreation.h"

#include <algorithm>
#include <cmath>

#include "model/Numeric.h"
#include "model/Queries.h"
#include "model/Random.h"
#include "model/World.h"

namespace keldor {

namespace {

void ReadGridSize(World& world, const NewWorldInputs& inputs) {
  WorldSettings& s = world.Settings;
  if (IsNumeric(inputs.GridWidthText)) {
    s.GridX = static_cast<int16_t>(GridSizeFromText(inputs.GridWidthText));
    // The dialog keeps the height equal to the width; a height text that is
    // not a number falls back to a square grid.
    s.GridY = IsNumeric(inputs.GridHeightText) ? static_cast<int16_t>(GridSizeFromText(inputs.GridHeightText)) : s.GridX;
  }
  if (s.GridX == 0) s.GridX = ZeroGridReplacement;
  // No grid-height text has been read yet: keep the world square.
  if (s.GridY == 0) s.GridY = s.GridX;
}

void ScatterFood(World& world, RandomSource& random) {
  const WorldSettings& s = world.Settings;
  const float chance = static_cast<float>(world.FoodChance / 100);
  for (int16_t x = 1; x <= s.GridX; ++x) {
    for (int16_t y = 1; y <= s.GridY; ++y) {
      Cell& c = world.Cells(x, y);
      c.Scent = 0;
      c.X = x;
      c.Y = y;
      if (c.AntCount != 0) continue;
      if (!(static_cast<float>(random.Rnd()) > chance)) continue;
      if (!world.FoodPiles.CanAppend()) continue;
      FoodPile& p = world.FoodPiles.Append();
      p.X = x;
      p.Y = y;
      p.SpreadBudget = DrawSpreadBudget(random);
      const double half = s.CellSize / 2 * NewWorldZoom;
      p.Amount = Pi * (random.Rnd() * 3 + 1) / 4 * (half * half);
      c.Food = p.Amount;
    }
  }
}

void PlaceAnt(const Nest& n, Ant& a, int index, const WorldSettings& s, RandomSource& random) {
  if (index == 0) {
    // The queen: rear on the nest centre, head on a circle around it.
    a.Length = n.Radius;
    a.RearX = n.X;
    a.RearY = n.Y;
    const WorldPoint head = PointOnCircle(random, {a.RearX, a.RearY}, a.Length, s.ScaleX);
    a.HeadX = head.X;
    a.HeadY = head.Y;
  } else {
    // A worker: head on the nest centre, rear on a circle around it.
    a.Length = n.AntLength;
    a.HeadX = n.X;
    a.HeadY = n.Y;
    const WorldPoint rear = PointOnCircle(random, {a.HeadX, a.HeadY}, n.AntLength, s.ScaleX);
    a.RearX = rear.X;
    a.RearY = rear.Y;
  }
  a.CellX = n.CellX;
  a.CellY = n.CellY;
  a.Angle = 0;
  a.Load = 0;
  a.Colour = n.Colour;
  a.LifeFactor = n.LifeSpan / 100.0;
  const double r4 = random.Rnd();
  a.Energy = Int(Pi * (a.Length * a.Length) * (0.9 + 0.1 * r4) * a.LifeFactor);
}

}  // namespace

int GridSizeFromText(const std::string& text) {
  const int32_t v = CInt(ToNumber(text));
  if (v == 0) return ZeroGridReplacement;
  return std::clamp<int32_t>(v, MinGridSize, MaxGridSize);
}

void CreateWorld(World& world, RandomSource& random, const NewWorldInputs& inputs) {
  WorldSettings& s = world.Settings;
  s.ScaleX = WorldScale;
  s.ScaleY = WorldScale;
  ReadGridSize(world, inputs);
  s.CellSize = MapBoxSize / s.GridX;
  world.Walls.Clear();
  world.FoodPiles.Clear();
  world.Cells.Reset(s.GridX, s.GridY);
  if (IsNumeric(inputs.AntSizeText)) {
    world.AntSizeTwips = ClampToInt16(CInt(ToNumber(inputs.AntSizeText) * 56.7));
    world.NestRadius = ClampToInt16(CInt(s.CellSize / 2 * s.ScaleX));
  }
  world.Nests.clear();
  world.NestCount = 0;
  s.Population = 0;
  const double l = world.AntSizeTwips;
  world.AntBodyArea = ((l / 6) * (l / 6) + (l / 7) * (l / 7) + (l / 5) * (l / 5)) * Pi;
  random.ReseedFromClock();
  s.LifeSpan = ClampToInt16(inputs.LifeSpanSlider);
  const auto [x, y] = FirstNestCell(s);
  CreateNest(world, random, x, y);
  world.FoodChance = 100 - s.FoodRate;
  ScatterFood(world, random);
  world.Running = false;
}

std::pair<int16_t, int16_t> FirstNestCell(const WorldSettings& s) {
  // A 1-wide grid has no centre column 0: keep the first nest on the world.
  return {std::max<int16_t>(static_cast<int16_t>(Int(s.GridX / 2.0)), 1),
          std::max<int16_t>(static_cast<int16_t>(Int(s.GridY / 2.0)), 1)};
}

bool CreateNest(World& world, RandomSource& random, int16_t cellX, int16_t cellY) {
  WorldSettings& s = world.Settings;
  const int16_t antCount = std::max<int16_t>(s.AntsPerNest, 0);
  if (world.NestCount >= Int16Max || s.Population + antCount > Int16Max) return false;

  ++world.NestCount;
  world.Nests.resize(static_cast<size_t>(world.NestCount));
  Nest& n = world.Nests.back();
  n = Nest{};
  n.Name = "NEST_" + std::to_string(world.NestCount - 1);
  n.Serial = world.NextSerial();
  n.CellX = cellX;
  n.CellY = cellY;
  n.X = CellCentre(n.CellX, s.CellSize);
  n.Y = CellCentre(n.CellY, s.CellSize);
  n.Radius = world.NestRadius;
  n.AntLength = s.AntSizeMm * 56.7;
  n.Colour = s.AntColour;
  n.AntBodyArea = world.AntBodyArea;
  n.AntUnit = Pi * ((n.AntLength / 4) * (n.AntLength / 4));
  n.FoodStore = 0;
  n.Signature = keldor::Signature(MakeSignature(random, Signature::Capacity));
  n.LifeSpan = s.LifeSpan;
  n.Ants.Reset(antCount);
  for (int i = 0; i < antCount; ++i) {
    PlaceAnt(n, n.Ants[i], i, s, random);
    n.Ants[i].Serial = world.NextSerial();
  }
  s.Population = static_cast<int16_t>(s.Population + antCount);
  Cell& c = world.Cells(n.CellX, n.CellY);
  c.AntCount = static_cast<int16_t>(c.AntCount + antCount);
  return true;
}

WorldPoint PointOnCircle(RandomSource& random, WorldPoint centre, double length, double scaleX) {
  const double signX = random.Sign();
  const double x = centre.X + signX * random.Rnd() * length / scaleX;
  const double signY = random.Sign();
  const double reach = length / scaleX;
  return {x, centre.Y + signY * std::sqrt(reach * reach - (x - centre.X) * (x - centre.X))};
}

int16_t DrawSpreadBudget(RandomSource& random) { return static_cast<int16_t>(CInt(Int(random.Rnd() * 8) + 1)); }

void RemoveNestRecord(World& world, int n) {
  const int last = world.NestCount - 1;
  if (n != last) world.Nests[static_cast<size_t>(n)] = std::move(world.Nests[static_cast<size_t>(last)]);
  --world.NestCount;
  world.Nests.resize(static_cast<size_t>(world.NestCount));
}

std::string MakeSignature(RandomSource& random, int n) {
  random.ReseedFromClock();
  std::string s;
  for (int k = 0; k < n; ++k) s += Int(random.Rnd() * 2) == 0 ? '0' : '1';
  return s;
}

}  // namespace keldor

namespace keldor {
namespace {

// The "Food Scent" slider's maximum that start-up gives the options dialog.
constexpr int StartUpTraceSliderMax = 1000;

}  // namespace

void StartUpSettings(WorldSettings& s) {
  s.ScaleX = WorldScale;
  s.ScaleY = WorldScale;
  if (s.GridX == 0) s.GridX = 30;
  s.CellSize = MapBoxSize / s.GridX;
  s.SpreadFoodAmount = Pi * ((s.CellSize / 4) * (s.CellSize / 4)) * s.ScaleX;
  LoadDefaults(s);
}

void LoadDefaults(WorldSettings& s) {
  s.AntsPerNest = 30;
  s.AntSizeMm = DefaultAntSizeMm;
  s.AntRed = 150;
  s.AntGreen = 100;
  s.AntBlue = 70;
  s.LifeSpan = 100;
  s.AntColour = Colour(s.AntRed, s.AntGreen, s.AntBlue);
  s.FoodRate = 2;
  s.FoodScentMax = ClampToInt16(CInt(StartUpTraceSliderMax / 2.0));
  s.NestScentMax = ClampToInt16(CInt(s.FoodScentMax / 2.0));
}

}  // namespace keldor
