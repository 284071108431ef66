#include "model/WorldCreation.h"

#include <algorithm>
#include <cmath>

#include "model/Commands.h"
#include "model/Numeric.h"
#include "model/Random.h"
#include "model/Viewport.h"
#include "model/World.h"

namespace keldor {

namespace {

// The control-side steps of New: font, zoom, display flags, enabled buttons,
// a paused Play/Pause button, the odor tool tip and centred scroll bars.
void ResetViewForNewWorld(World& world) {
  world.View.TerrainFontSize = 8;
  world.Settings.ScaleX = 10;
  world.Settings.ScaleY = 10;
  world.ZoomX = 10;
  world.ZoomY = 10;
  world.ShowOdor = 0;
  world.ShowAnts = 1;
  world.Controls.WorldControlsEnabled = true;
  world.Running = true;
  btnStop_Click(world);
  world.Controls.OdorToolTip = "Odor Traces";
  SetScrollRanges(world);
  CentreScrollBars(world);
}

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
      p.SpreadBudget = static_cast<int16_t>(CInt(Int(random.Rnd() * 8) + 1));
      const double half = s.CellSize / 2 * world.ZoomX;
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
    const double r1 = random.Rnd(), r2 = random.Rnd(), r3 = random.Rnd();
    const double reach = a.Length / s.ScaleX;
    a.HeadX = a.RearX + SignOfDraw(r1) * r2 * a.Length / s.ScaleX;
    a.HeadY = a.RearY + SignOfDraw(r3) * std::sqrt(reach * reach - (a.HeadX - a.RearX) * (a.HeadX - a.RearX));
  } else {
    // A worker: head on the nest centre, rear on a circle around it.
    a.Length = n.AntLength;
    a.HeadX = n.X;
    a.HeadY = n.Y;
    const double r1 = random.Rnd(), r2 = random.Rnd(), r3 = random.Rnd();
    const double reach = n.AntLength / s.ScaleX;
    a.RearX = a.HeadX + SignOfDraw(r1) * r2 * n.AntLength / s.ScaleX;
    a.RearY = a.HeadY + SignOfDraw(r3) * std::sqrt(reach * reach - (a.RearX - a.HeadX) * (a.RearX - a.HeadX));
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

void mnuFileNew_Click(World& world, RandomSource& random, const NewWorldInputs& inputs) {
  WorldSettings& s = world.Settings;
  ResetViewForNewWorld(world);
  ReadGridSize(world, inputs);
  s.CellSize = world.View.Map.Width / s.GridX;
  world.View.HScroll1.SmallChange = ClampToInt16(CInt(s.CellSize * world.ZoomX));
  world.View.VScroll1.SmallChange = ClampToInt16(CInt(s.CellSize * world.ZoomY));
  world.View.HScroll1.LargeChange = ClampToInt16(CInt(world.View.Terrain.Width / 4));
  world.View.VScroll1.LargeChange = ClampToInt16(CInt(world.View.Terrain.Height / 4));
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
  world.CursorCellX = static_cast<int16_t>(Int(s.GridX / 2.0));
  world.CursorCellY = static_cast<int16_t>(Int(s.GridY / 2.0));
  // A 1-wide grid has no centre column 0: keep the first nest on the world.
  world.CursorCellX = std::max<int16_t>(world.CursorCellX, 1);
  world.CursorCellY = std::max<int16_t>(world.CursorCellY, 1);
  CreateNest(world, random);
  world.FoodChance = 100 - s.FoodRate;
  ScatterFood(world, random);
  world.Running = false;
  world.TimerEnabled = true;
}

bool CreateNest(World& world, RandomSource& random) {
  WorldSettings& s = world.Settings;
  const int16_t antCount = std::max<int16_t>(s.AntsPerNest, 0);
  if (world.NestCount >= Int16Max || s.Population + antCount > Int16Max) return false;

  ++world.NestCount;
  world.Nests.resize(static_cast<size_t>(world.NestCount));
  Nest& n = world.Nests.back();
  n = Nest{};
  n.Name = "NEST_" + std::to_string(world.NestCount - 1);
  n.Serial = world.NextSerial();
  n.CellX = world.CursorCellX;
  n.CellY = world.CursorCellY;
  n.X = (n.CellX - 1) * s.CellSize + s.CellSize / 2;
  n.Y = (n.CellY - 1) * s.CellSize + s.CellSize / 2;
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

std::string MakeSignature(RandomSource& random, int n) {
  random.ReseedFromClock();
  std::string s;
  for (int k = 0; k < n; ++k) s += Int(random.Rnd() * 2) == 0 ? '0' : '1';
  return s;
}

}  // namespace keldor
