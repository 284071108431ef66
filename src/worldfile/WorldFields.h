// The one description of a world file's fields, which the writer and the
// reader both run: FieldWriter turns each described field into a JSON key,
// FieldReader reads it back with its checks. A record type T is described
// for T (reading) and const T (writing) by the same template, so a field is
// always written and read alike. The reader runs the description in the
// order written here: a field that bounds another (the grid size, a count)
// comes before it.
#pragma once

#include <cmath>
#include <concepts>
#include <type_traits>
#include <utility>

#include "model/World.h"
#include "model/WorldCreation.h"
#include "worldfile/FieldChecks.h"
#include "worldfile/ResumeState.h"
#include "worldfile/WindowRecord.h"

namespace keldor::worldfields {

// T is Record or const Record.
template <class T, class Record>
concept Is = std::same_as<std::remove_const_t<T>, Record>;

// The longest ant the options dialog keeps: the radius of a new nest, shown
// with one decimal (so up to 0.05 mm more), or the size it takes over while
// its box holds no number.
inline double LongestAntMm(double cellSize) {
  const double nestRadiusMm = cellSize / 2 * WorldScale / TwipsPerMm;
  return nestRadiusMm + 0.05 > DefaultAntSizeMm ? nestRadiusMm + 0.05 : DefaultAntSizeMm;
}

// What the records below the world need from it.
struct Bounds {
  int16_t GridX = 0;
  int16_t GridY = 0;
  double CellSize = 0;
  double FoodCapacity = 0;  // of one cell
  int AntsInNests = 0;  // so far, checked against the 16-bit population
  // A cell of the world (1..Grid) or, with the ring, 0..Grid+1.
  Range Columns(bool ring) const { return {ring ? 0 : 1, GridX + (ring ? 1 : 0)}; }
  Range Rows(bool ring) const { return {ring ? 0 : 1, GridY + (ring ? 1 : 0)}; }
  // A point of the world, its far edges included.
  bool InsideX(double x) const { return x >= 0 && x <= GridX * CellSize; }
  bool InsideY(double y) const { return y >= 0 && y <= GridY * CellSize; }
  bool HoldsFood(double amount) const { return amount >= 0 && amount <= FoodCapacity; }
  double LongestAntTwips() const { return LongestAntMm(CellSize) * TwipsPerMm; }
};

// The rules a world file's values follow beyond their fields' types, as
// problems named in a refusal.
inline constexpr const char* OutsideWorld = "outside the world";
inline constexpr const char* NotFoodOfACell = "not from 0 to a cell's food capacity";

inline constexpr Range ColourComponentRange{0, 255};
inline constexpr Range LifeSpanValues{LifeSpanRange.Min, LifeSpanRange.Max};
inline constexpr Range TraceValues{TraceRange.Min, TraceRange.Max};
// A trace slider the dialog never moved reads 0.
inline constexpr Range TraceSettingValues{0, TraceRange.Max};


// Making room for items read: done on a reader's records only.
template <class T>
void Resize(SlotList<T>& list, int16_t count) { list.Reset(count); }
template <class T>
void Resize(const SlotList<T>&, int16_t) {}
template <class T>
void Resize(std::vector<T>& list, int64_t count) { list.resize(static_cast<size_t>(count)); }
template <class T>
void Resize(const std::vector<T>&, int64_t) {}
inline void Resize(CellGrid& cells, int16_t gridX, int16_t gridY) { cells.Reset(gridX, gridY); }
inline void Resize(const CellGrid&, int16_t, int16_t) {}

// Object k of a cell: the written one, or a new one the reader appends.
template <class Describe>
void WithObject(const CellObjects& objects, int k, Describe describe) { describe(objects[k]); }
template <class Describe>
void WithObject(CellObjects& objects, int, Describe describe) {
  WallObject object;
  describe(object);
  objects.Add(std::move(object));
}

template <class Io, Is<WorldPoint> P>
void Describe(Io& io, P& p) {
  io.Field("X", p.X);
  io.Field("Y", p.Y);
}

template <class Io, Is<WallShape> S>
void Describe(Io& io, S& shape) {
  io.Field("Colour", shape.Colour);
  io.Field("Material", shape.Material);
  io.List("Points", static_cast<int64_t>(shape.Points.size()), [] {},
          [&](int i) { Describe(io, shape.Points[static_cast<size_t>(i)]); });
}

template <class Io, Is<WallObject> W>
void Describe(Io& io, W& wall, const Bounds& bounds) {
  io.Field("TypeName", wall.TypeName);
  io.Field("X", wall.X, bounds.Columns(false));
  io.Field("Y", wall.Y, bounds.Rows(false));
  io.Field("ShapeCount", wall.ShapeCount, CountRange);
  // Slots 0..ShapeCount.
  const int64_t slots = int64_t{wall.ShapeCount} + 1;
  io.List("Shapes", slots, [&] { Resize(wall.Shapes, slots); },
          [&](int i) { Describe(io, wall.Shapes[static_cast<size_t>(i)]); });
}

template <class Io, Is<Cell> C>
void Describe(Io& io, C& cell, int16_t x, int16_t y, const Bounds& bounds) {
  // New numbers every cell of the world with its column and row.
  io.Field("X", cell.X, {x, x});
  io.Field("Y", cell.Y, {y, y});
  io.Field("Signature", cell.Signature);
  io.Field("Food", cell.Food);
  io.Require("Food", bounds.HoldsFood(cell.Food), NotFoodOfACell);
  io.Field("AntCount", cell.AntCount, CountRange);
  io.Field("Scent", cell.Scent);
  io.Field("Colour", cell.Colour);
  const int16_t objects = io.Count("ObjectCount", cell.ObjectCount());
  io.List("Objects", objects, [] {}, [&](int k) {
    WithObject(cell.Objects, k, [&](auto& object) { Describe(io, object, bounds); });
  });
}

template <class Io, Is<Ant> A>
void Describe(Io& io, A& a, SerialUse use, const Bounds& bounds) {
  io.Serial("Serial", a.Serial, use);
  // The spare slot holds leftovers a birth overwrites; the rules are a live ant's.
  const bool live = use == SerialUse::Identity;
  io.Field("RearX", a.RearX);
  io.Field("RearY", a.RearY);
  io.Field("HeadX", a.HeadX);
  io.Require("HeadX", !live || bounds.InsideX(a.HeadX), OutsideWorld);
  io.Field("HeadY", a.HeadY);
  io.Require("HeadY", !live || bounds.InsideY(a.HeadY), OutsideWorld);
  // A head on the world's far edge lies in the ring's cell.
  io.Field("CellX", a.CellX, bounds.Columns(true));
  io.Field("CellY", a.CellY, bounds.Rows(true));
  io.Field("Angle", a.Angle);
  io.Field("Length", a.Length);
  io.Require("Length", !live || (a.Length > 0 && a.Length <= bounds.LongestAntTwips()),
             "not above 0 and at most the radius of a new nest");
  // The rear trails the head by the body's length (in world units, Length / ScaleX).
  const double span = std::hypot(a.HeadX - a.RearX, a.HeadY - a.RearY) * WorldScale;
  io.Require("RearX", !live || std::fabs(span / a.Length - 1) <= 1e-9, "not the ant's length from its head");
  io.Field("Load", a.Load);
  io.Require("Load", !live || a.Load >= 0, "below 0");
  io.Field("LifeFactor", a.LifeFactor);
  io.Field("Energy", a.Energy);
  io.Field("Colour", a.Colour);
}

template <class Io, Is<Nest> N>
void Describe(Io& io, N& n, Bounds& bounds) {
  io.Serial("Serial", n.Serial, SerialUse::Identity);
  io.Field("Name", n.Name);
  io.Field("Signature", n.Signature);
  io.Field("X", n.X);
  io.Field("Y", n.Y);
  io.Field("CellX", n.CellX, bounds.Columns(false));
  io.Field("CellY", n.CellY, bounds.Rows(false));
  io.Field("Radius", n.Radius);
  io.Field("AntLength", n.AntLength);
  io.Field("AntBodyArea", n.AntBodyArea);
  io.Field("AntUnit", n.AntUnit);
  io.Field("Colour", n.Colour);
  io.Field("FoodStore", n.FoodStore, AtLeastZero);
  io.Field("LifeSpan", n.LifeSpan, LifeSpanValues);
  const int16_t ants = io.Count("AntCount", n.AntCount());
  io.List("Ants", ants,
          [&] {
            bounds.AntsInNests += ants;
            io.Require("AntCount", bounds.AntsInNests <= Int16Max, "takes the ants of all nests past 32767");
            Resize(n.Ants, ants);
          },
          [&](int i) { Describe(io, n.Ants[i], SerialUse::Identity, bounds); });
  if (io.Failed()) return;
  // A birth reuses the spare slot and keeps the fields it does not write.
  io.Object("SpareAnt", [&] { Describe(io, n.Ants[ants], SerialUse::Spare, bounds); });
}

template <class Io, Is<FoodPile> P>
void Describe(Io& io, P& pile, const Bounds& bounds) {
  io.Field("X", pile.X, bounds.Columns(false));
  io.Field("Y", pile.Y, bounds.Rows(false));
  io.Field("SpreadBudget", pile.SpreadBudget);
  io.Field("Amount", pile.Amount);
  io.Require("Amount", bounds.HoldsFood(pile.Amount), NotFoodOfACell);
}

template <class Io, Is<ViewScale> V>
void Describe(Io& io, V& v) {
  io.Field("Left", v.Left);
  io.Field("Top", v.Top);
  io.Field("Width", v.Width, AboveZero);
  io.Field("Height", v.Height, AboveZero);
}

template <class Io, Is<ScrollBar> B>
void Describe(Io& io, B& b) {
  io.Field("Min", b.Min);
  io.Field("Max", b.Max);
  io.Field("Value", b.Value);
  io.Field("SmallChange", b.SmallChange);
  io.Field("LargeChange", b.LargeChange);
}

template <class Io, Is<World> W>
void DescribeSettings(Io& io, W& world) {
  auto& s = world.Settings;
  io.Field("GridX", s.GridX, {MinGridSize, MaxGridSize});
  io.Field("GridY", s.GridY, {MinGridSize, MaxGridSize});
  io.Field("CellSize", s.CellSize);
  io.Require("CellSize", s.CellSize == MapBoxSize / s.GridX, "not 2000 / GridX, the cell size New makes");
  io.Field("ScaleX", s.ScaleX);
  io.Require("ScaleX", s.ScaleX == WorldScale, "not 10, the scale New makes");
  io.Field("ScaleY", s.ScaleY);
  io.Require("ScaleY", s.ScaleY == WorldScale, "not 10, the scale New makes");
  io.Constant("CellFoodCapacity", s.CellFoodCapacity());
  io.Field("SpreadFoodAmount", s.SpreadFoodAmount);
  io.Field("NestCount", world.NestCount, CountRange);
  io.Field("Population", s.Population, CountRange);
  io.Field("AntsPerNest", s.AntsPerNest, CountRange);
  io.Field("AntSizeMm", s.AntSizeMm);
  io.Require("AntSizeMm", s.AntSizeMm > 0 && s.AntSizeMm <= LongestAntMm(s.CellSize),
             "not above 0 and at most the radius of a new nest");
  io.Field("AntRed", s.AntRed, ColourComponentRange);
  io.Field("AntGreen", s.AntGreen, ColourComponentRange);
  io.Field("AntBlue", s.AntBlue, ColourComponentRange);
  io.Field("AntColour", s.AntColour);
  io.Field("LifeSpan", s.LifeSpan, LifeSpanValues);
  io.Field("FoodRate", s.FoodRate, {FoodRateRange.Min, FoodRateRange.Max});
  io.Field("FoodScentMax", s.FoodScentMax, TraceValues);
  io.Field("NestScentMax", s.NestScentMax, TraceValues);
  io.Field("FoodTraceSetting", s.FoodTraceSetting, TraceSettingValues);
  io.Field("NestTraceSetting", s.NestTraceSetting, TraceSettingValues);
}

template <class Io, Is<World> W, Is<WindowRecord> R>
void DescribeWindow(Io& io, W& world, R& window, const Bounds& bounds) {
  io.Field("CurrentTool", window.View.CurrentTool);
  io.Field("ToolColour", window.View.ToolColour);
  io.Field("TimerEnabled", window.TimerEnabled);
  io.Field("Running", world.Running);
  io.Field("MouseButton", window.MouseButton);
  io.Field("MouseHeld", window.MouseHeld);
  io.Field("AntSizeTwips", world.AntSizeTwips);
  io.Field("NestRadius", world.NestRadius);
  io.Field("ZoomX", window.View.ZoomX, ZoomValue);
  io.Field("ZoomY", window.View.ZoomY, ZoomValue);
  io.Require("ZoomY", window.View.ZoomY == window.View.ZoomX, "not ZoomX: the zoom buttons change both alike");
  io.Field("AntBodyArea", world.AntBodyArea);
  io.Field("ShowOdor", window.View.ShowOdor);
  io.Field("ShowAnts", window.View.ShowAnts);
  io.Field("FoodChance", world.FoodChance);
  io.Field("ViewCentreX", window.ViewCentreX);
  io.Field("ViewCentreY", window.ViewCentreY);
  io.Field("MouseX", window.View.MouseX);
  io.Field("MouseY", window.View.MouseY);
  io.Field("CursorCellX", window.CursorCellX, bounds.Columns(false));
  io.Field("CursorCellY", window.CursorCellY, bounds.Rows(false));
  io.Object("View", [&] {
    io.Object("Terrain", [&] { Describe(io, window.View.Terrain); });
    io.Object("Map", [&] { Describe(io, window.View.Map); });
    // The map box is the world's extent, the same in every world.
    io.Constant("MapBoxWidth", MapBoxSize);
    io.Constant("MapBoxHeight", MapBoxSize);
    io.Object("HScroll1", [&] { Describe(io, window.HScroll1); });
    io.Object("VScroll1", [&] { Describe(io, window.VScroll1); });
    io.Field("TerrainFontSize", window.View.TerrainFontSize, {1, Int16Max});
  });
}

template <class Io, Is<ResumeState> S>
void Describe(Io& io, S& resume) {
  io.Field("Tick", resume.Tick, {0, INT64_MAX});
  io.Field("RandomState", resume.Random);
  io.Nullable("ClockTime", resume.ClockTime,
              NumberCheck{[](double t) { return t >= 0 && t < SecondsPerDay; }, "not a time of day in seconds"});
  io.Nullable("Seed", resume.Seed, Absent::AsNull);
}

template <class Io, Is<World> W>
void DescribeContents(Io& io, W& world, Bounds& bounds) {
  const auto& s = world.Settings;
  if (io.Failed()) return;
  Resize(world.Cells, s.GridX, s.GridY);
  // Column by column; none before New.
  const int64_t cells = world.HasWorld() ? int64_t{s.GridX} * s.GridY : 0;
  io.List("Cells", cells, [] {}, [&](int i) {
    const auto x = static_cast<int16_t>(i / s.GridY + 1);
    const auto y = static_cast<int16_t>(i % s.GridY + 1);
    Describe(io, world.Cells(x, y), x, y, bounds);
  });
  io.LastSerial("LastSerial", world.LastSerial);
  io.List("Nests", world.NestCount, [&] { Resize(world.Nests, world.NestCount); },
          [&](int i) { Describe(io, world.Nests[static_cast<size_t>(i)], bounds); });
  const int16_t piles = io.Count("FoodPileCount", world.FoodPileCount());
  io.List("FoodPiles", piles, [&] { Resize(world.FoodPiles, piles); },
          [&](int i) { Describe(io, world.FoodPiles[i], bounds); });
  const int16_t walls = io.Count("WallCount", world.WallCount());
  io.List("Walls", walls, [&] { Resize(world.Walls, walls); }, [&](int i) { Describe(io, world.Walls[i], bounds); });
}

// The whole file: its version, the world with the window fields a file keeps,
// and what an exact resumption needs.
template <class Io, Is<World> W, Is<WindowRecord> R, Is<ResumeState> S>
void DescribeWorldFile(Io& io, W& world, R& window, S& resume, int& version) {
  io.Field("FormatVersion", version, {version, version});
  if (io.Failed()) return;
  DescribeSettings(io, world);
  Bounds bounds{world.Settings.GridX, world.Settings.GridY, world.Settings.CellSize,
                world.Settings.CellFoodCapacity()};
  DescribeWindow(io, world, window, bounds);
  Describe(io, resume);
  DescribeContents(io, world, bounds);
}

}  // namespace keldor::worldfields
