// The one description of a world file's fields, which the writer and the
// reader both run: FieldWriter turns each described field into a JSON key,
// FieldReader reads it back with its checks. A record type T is described
// for T (reading) and const T (writing) by the same template, so a field is
// always written and read alike. The reader runs the description in the
// order written here: a field that bounds another (the grid size, a count)
// comes before it.
#pragma once

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

// What the records below the world need from it.
struct Bounds {
  int16_t GridX = 0;
  int16_t GridY = 0;
  int AntsInNests = 0;  // so far, checked against the 16-bit population
  // A cell of the world (1..Grid) or, with the ring, 0..Grid+1.
  Range Columns(bool ring) const { return {ring ? 0 : 1, GridX + (ring ? 1 : 0)}; }
  Range Rows(bool ring) const { return {ring ? 0 : 1, GridY + (ring ? 1 : 0)}; }
};

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
void Describe(Io& io, C& cell, const Bounds& bounds) {
  io.Field("X", cell.X);
  io.Field("Y", cell.Y);
  io.Field("Signature", cell.Signature);
  io.Field("Food", cell.Food);
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
  io.Field("RearX", a.RearX);
  io.Field("RearY", a.RearY);
  io.Field("HeadX", a.HeadX);
  io.Field("HeadY", a.HeadY);
  // A head on the world's far edge lies in the ring's cell.
  io.Field("CellX", a.CellX, bounds.Columns(true));
  io.Field("CellY", a.CellY, bounds.Rows(true));
  io.Field("Angle", a.Angle);
  io.Field("Length", a.Length);
  io.Field("Load", a.Load);
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
  io.Field("FoodStore", n.FoodStore);
  io.Field("LifeSpan", n.LifeSpan);
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
  io.Field("CellSize", s.CellSize, AboveZero);
  io.Field("ScaleX", s.ScaleX, AboveZero);
  io.Field("ScaleY", s.ScaleY, AboveZero);
  io.Constant("CellFoodCapacity", s.CellFoodCapacity());
  io.Field("SpreadFoodAmount", s.SpreadFoodAmount);
  io.Field("NestCount", world.NestCount, CountRange);
  io.Field("Population", s.Population, CountRange);
  io.Field("AntsPerNest", s.AntsPerNest, CountRange);
  io.Field("AntSizeMm", s.AntSizeMm);
  io.Field("AntRed", s.AntRed);
  io.Field("AntGreen", s.AntGreen);
  io.Field("AntBlue", s.AntBlue);
  io.Field("AntColour", s.AntColour);
  io.Field("LifeSpan", s.LifeSpan);
  io.Field("FoodRate", s.FoodRate);
  io.Field("FoodScentMax", s.FoodScentMax);
  io.Field("NestScentMax", s.NestScentMax);
  io.Field("FoodTraceSetting", s.FoodTraceSetting);
  io.Field("NestTraceSetting", s.NestTraceSetting);
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
  io.Field("ZoomX", window.View.ZoomX, AboveZero);
  io.Field("ZoomY", window.View.ZoomY, AboveZero);
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
  io.Field("Tick", resume.Tick, {0, INT64_C(1) << 53});
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
    Describe(io, world.Cells(i / s.GridY + 1, i % s.GridY + 1), bounds);
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
  Bounds bounds{world.Settings.GridX, world.Settings.GridY};
  DescribeWindow(io, world, window, bounds);
  Describe(io, resume);
  DescribeContents(io, world, bounds);
}

}  // namespace keldor::worldfields
