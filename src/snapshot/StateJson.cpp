#include "snapshot/StateJson.h"

#include <QJsonArray>
#include <QString>

#include "model/World.h"
#include "window/WindowState.h"

namespace keldor {

namespace {

QString Text(const std::string& s) { return QString::fromStdString(s); }
QString Text(const Signature& s) { return QString::fromStdString(s.ToString()); }

// The packed number, written as a whole number.
QJsonValue ColourJson(Colour c) { return static_cast<qint64>(c.Packed()); }

// The live items 0..Count()-1 of a list, each through toJson.
template <class List, class ToJson>
QJsonArray LiveItems(const List& list, ToJson toJson) {
  QJsonArray items;
  for (const auto& item : list) items.append(toJson(item));
  return items;
}

QJsonObject PointJson(const WorldPoint& p) { return {{"X", p.X}, {"Y", p.Y}}; }

QJsonObject ShapeJson(const WallShape& shape) {
  QJsonArray points;
  for (const WorldPoint& p : shape.Points) points.append(PointJson(p));
  return {{"Colour", ColourJson(shape.Colour)}, {"Points", points}, {"Material", Text(shape.Material)}};
}

QJsonObject WallJson(const WallObject& wall) {
  QJsonArray shapes;
  for (const WallShape& shape : wall.Shapes) shapes.append(ShapeJson(shape));
  return {{"TypeName", Text(wall.TypeName)},
          {"X", wall.X},
          {"Y", wall.Y},
          {"ShapeCount", wall.ShapeCount},
          {"Shapes", shapes}};
}

QJsonObject CellJson(const Cell& c) {
  return {{"X", c.X},
          {"Y", c.Y},
          {"Signature", Text(c.Signature)},
          {"Food", c.Food},
          {"AntCount", c.AntCount},
          {"Scent", c.Scent},
          {"Colour", ColourJson(c.Colour)},
          {"ObjectCount", c.ObjectCount()},
          {"Objects", LiveItems(c.Objects, WallJson)}};
}

QJsonObject AntJson(const Ant& a) {
  return {{"RearX", a.RearX},   {"RearY", a.RearY}, {"HeadX", a.HeadX},   {"HeadY", a.HeadY},
          {"CellX", a.CellX},   {"CellY", a.CellY}, {"Angle", a.Angle},   {"Length", a.Length},
          {"Load", a.Load},     {"LifeFactor", a.LifeFactor},             {"Energy", a.Energy},
          {"Colour", ColourJson(a.Colour)}};
}

QJsonObject NestJson(const Nest& n) {
  return {{"Name", Text(n.Name)},
          {"Signature", Text(n.Signature)},
          {"X", n.X},
          {"Y", n.Y},
          {"CellX", n.CellX},
          {"CellY", n.CellY},
          {"Radius", n.Radius},
          {"AntCount", n.AntCount()},
          {"AntLength", n.AntLength},
          {"AntBodyArea", n.AntBodyArea},
          {"AntUnit", n.AntUnit},
          {"Ants", LiveItems(n.Ants, AntJson)},
          {"Colour", ColourJson(n.Colour)},
          {"FoodStore", n.FoodStore},
          {"LifeSpan", n.LifeSpan},
          // A birth reuses the spare slot and keeps the fields it does not write.
          {"SpareAnt", AntJson(n.Ants[n.AntCount()])}};
}

QJsonObject FoodPileJson(const FoodPile& p) {
  return {{"X", p.X}, {"Y", p.Y}, {"SpreadBudget", p.SpreadBudget}, {"Amount", p.Amount}};
}

void AddSettings(QJsonObject& json, const World& world, const WindowState& window) {
  const WorldSettings& s = world.Settings;
  json.insert("GridX", s.GridX);
  json.insert("GridY", s.GridY);
  json.insert("CellSize", s.CellSize);
  json.insert("ScaleX", s.ScaleX);
  json.insert("ScaleY", s.ScaleY);
  json.insert("SpreadFoodAmount", s.SpreadFoodAmount);
  json.insert("CellFoodCapacity", s.CellFoodCapacity());
  json.insert("NestCount", world.NestCount);
  json.insert("Population", s.Population);
  json.insert("AntsPerNest", s.AntsPerNest);
  json.insert("AntSizeMm", s.AntSizeMm);
  json.insert("AntRed", s.AntRed);
  json.insert("AntGreen", s.AntGreen);
  json.insert("AntBlue", s.AntBlue);
  json.insert("AntColour", ColourJson(s.AntColour));
  json.insert("LifeSpan", s.LifeSpan);
  json.insert("FoodRate", s.FoodRate);
  json.insert("FoodScentMax", s.FoodScentMax);
  json.insert("NestScentMax", s.NestScentMax);
  json.insert("FoodTraceSetting", s.FoodTraceSetting);
  json.insert("NestTraceSetting", s.NestTraceSetting);
  json.insert("CurrentTool", static_cast<int16_t>(window.View.CurrentTool));
  json.insert("ToolColour", ColourJson(window.View.ToolColour));
}

void AddWindowState(QJsonObject& json, const World& world, const WindowState& window) {
  json.insert("TimerEnabled", window.TimerEnabled);
  json.insert("Running", world.Running);
  json.insert("MouseButton", window.MouseButton);
  json.insert("MouseHeld", window.MouseHeld);
  json.insert("AntSizeTwips", world.AntSizeTwips);
  json.insert("NestRadius", world.NestRadius);
  json.insert("ZoomX", window.View.ZoomX);
  json.insert("ZoomY", window.View.ZoomY);
  json.insert("AntBodyArea", world.AntBodyArea);
  json.insert("ShowOdor", window.View.ShowOdor);
  json.insert("ShowAnts", window.View.ShowAnts);
  json.insert("FoodPileCount", world.FoodPileCount());
  json.insert("WallCount", world.WallCount());
  json.insert("FoodChance", world.FoodChance);
  json.insert("ViewCentreX", window.ViewCentreX);
  json.insert("ViewCentreY", window.ViewCentreY);
  json.insert("MouseX", window.View.MouseX);
  json.insert("MouseY", window.View.MouseY);
  json.insert("CursorCellX", window.CursorCellX);
  json.insert("CursorCellY", window.CursorCellY);
}

QJsonObject ScaleJson(const ViewScale& v) {
  return {{"Left", v.Left}, {"Top", v.Top}, {"Width", v.Width}, {"Height", v.Height}};
}

QJsonObject ScrollBarJson(const ScrollBar& b) {
  return {{"Min", b.Min}, {"Max", b.Max}, {"Value", b.Value}, {"SmallChange", b.SmallChange}, {"LargeChange", b.LargeChange}};
}

QJsonObject ViewJson(const WindowState& w) {
  return {{"Terrain", ScaleJson(w.View.Terrain)},   {"Map", ScaleJson(w.View.Map)},
          {"MapBoxWidth", MapBoxSize},              {"MapBoxHeight", MapBoxSize},
          {"HScroll1", ScrollBarJson(w.HScroll1)},  {"VScroll1", ScrollBarJson(w.VScroll1)},
          {"TerrainFontSize", w.View.TerrainFontSize}};
}

// The generator's words as 16 hex digits each: JSON numbers cannot hold 64 bits.
QJsonArray RandomStateJson(const RandomState& state) {
  QJsonArray words;
  for (const uint64_t word : state) words.append(QString("%1").arg(word, 16, 16, QChar('0')));
  return words;
}

void AddResumeState(QJsonObject& json, const ResumeState& resume) {
  json.insert("FormatVersion", SnapshotFormatVersion);
  json.insert("Tick", static_cast<qint64>(resume.Tick));
  json.insert("RandomState", RandomStateJson(resume.Random));
  json.insert("ClockTime", resume.ClockTime ? QJsonValue(*resume.ClockTime) : QJsonValue());
}

// World cells 1..GridX by 1..GridY, column by column; none before New.
QJsonArray CellsJson(const World& world) {
  QJsonArray cells;
  if (!world.HasWorld()) return cells;
  for (int x = 1; x <= world.Settings.GridX; ++x) {
    for (int y = 1; y <= world.Settings.GridY; ++y) cells.append(CellJson(world.Cells(x, y)));
  }
  return cells;
}

QJsonArray NestsJson(const World& world) {
  QJsonArray nests;
  for (int i = 0; i < world.NestCount; ++i) nests.append(NestJson(world.Nests[static_cast<size_t>(i)]));
  return nests;
}

}  // namespace

QJsonObject StateJson(const World& world, const WindowState& window, const ResumeState& resume) {
  QJsonObject json;
  AddSettings(json, world, window);
  AddWindowState(json, world, window);
  AddResumeState(json, resume);
  json.insert("View", ViewJson(window));
  json.insert("Cells", CellsJson(world));
  json.insert("Nests", NestsJson(world));
  json.insert("FoodPiles", LiveItems(world.FoodPiles, FoodPileJson));
  json.insert("Walls", LiveItems(world.Walls, WallJson));
  return json;
}

}  // namespace keldor
