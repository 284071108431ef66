#include "snapshot/SnapshotRead.h"

#include <tuple>

#include <QJsonDocument>
#include <QJsonParseError>

#include "model/Numeric.h"
#include "model/World.h"
#include "window/WindowState.h"
#include "model/WorldCreation.h"
#include "snapshot/JsonFieldReader.h"
#include "snapshot/StateJson.h"

namespace keldor {

namespace {

using Scope = JsonFieldReader::Scope;

class SnapshotReader {
 public:
  SnapshotReader(World& world, WindowState& window, ResumeState& resume)
      : world_(world), window_(window), resume_(resume) {}

  std::optional<std::string> Read(const QJsonObject& json) {
    read_.Integer(json, "FormatVersion", SnapshotFormatVersion, SnapshotFormatVersion);
    if (!read_.Failed()) {
      ReadSettings(json);
      ReadWindowState(json);
      ReadView(read_.Object(json, "View"));
      ReadResumeState(json);
      ReadCells(json);
      ReadNests(json);
      ReadFoodPiles(json);
      ReadWalls(world_.Walls, read_.Array(json, "Walls", Count(json, "WallCount")), "Walls");
    }
    if (read_.Failed()) return read_.Error();
    return std::nullopt;
  }

 private:
  // Reads the object under `key` with readFields, naming its fields inside it.
  template <class ReadFields>
  auto Nested(const QJsonObject& json, const char* key, ReadFields readFields) {
    const QJsonObject inner = read_.Object(json, key);
    const Scope scope(read_, key);
    return readFields(inner);
  }

  int16_t Count(const QJsonObject& json, const char* key) { return read_.Int16(json, key, 0, Int16Max); }

  // A cell coordinate pair (keys xKey, yKey) inside the range.
  std::pair<int16_t, int16_t> CellOf(const QJsonObject& json, const char* xKey, const char* yKey, bool ringAllowed) {
    const int lo = ringAllowed ? 0 : 1;
    const int16_t x = read_.Int16(json, xKey, lo, world_.Settings.GridX + (ringAllowed ? 1 : 0));
    const int16_t y = read_.Int16(json, yKey, lo, world_.Settings.GridY + (ringAllowed ? 1 : 0));
    return {x, y};
  }

  double Positive(const QJsonObject& json, const char* key) {
    const double v = read_.Number(json, key);
    if (!read_.Failed() && !(v > 0)) read_.Fail(key, "not above 0");
    return v;
  }

  Colour ColourOf(const QJsonObject& json, const char* key) {
    return Colour::FromPacked(static_cast<uint32_t>(read_.Integer(json, key, 0, Colour::MaxPacked)));
  }

  Signature SignatureOf(const QJsonObject& json, const char* key) {
    const std::string text = read_.Text(json, key);
    if (read_.Failed()) return {};
    if (text.size() > static_cast<size_t>(Signature::Capacity) || text.find_first_not_of("01") != std::string::npos) {
      read_.Fail(key, "not a signature of up to 16 digits 0 and 1");
      return {};
    }
    return Signature(text);
  }

  void ReadSettings(const QJsonObject& json) {
    WorldSettings& s = world_.Settings;
    s.GridX = read_.Int16(json, "GridX", MinGridSize, MaxGridSize);
    s.GridY = read_.Int16(json, "GridY", MinGridSize, MaxGridSize);
    s.CellSize = Positive(json, "CellSize");
    s.ScaleX = Positive(json, "ScaleX");
    s.ScaleY = Positive(json, "ScaleY");
    s.SpreadFoodAmount = read_.Number(json, "SpreadFoodAmount");
    world_.NestCount = Count(json, "NestCount");
    s.Population = Count(json, "Population");
    s.AntsPerNest = Count(json, "AntsPerNest");
    s.AntSizeMm = read_.Number(json, "AntSizeMm");
    s.AntRed = read_.Int16(json, "AntRed");
    s.AntGreen = read_.Int16(json, "AntGreen");
    s.AntBlue = read_.Int16(json, "AntBlue");
    s.AntColour = ColourOf(json, "AntColour");
    s.LifeSpan = read_.Int16(json, "LifeSpan");
    s.FoodRate = read_.Int16(json, "FoodRate");
    s.FoodScentMax = read_.Int16(json, "FoodScentMax");
    s.NestScentMax = read_.Int16(json, "NestScentMax");
    s.FoodTraceSetting = read_.Int16(json, "FoodTraceSetting");
    s.NestTraceSetting = read_.Int16(json, "NestTraceSetting");
    window_.View.CurrentTool = static_cast<Tool>(read_.Int16(json, "CurrentTool", NoTool, NestTool));
    window_.View.ToolColour = ColourOf(json, "ToolColour");
  }

  void ReadWindowState(const QJsonObject& json) {
    World& w = world_;
    WindowState& window = window_;
    window.TimerEnabled = read_.Bool(json, "TimerEnabled");
    w.Running = read_.Bool(json, "Running");
    window.MouseButton = read_.Int16(json, "MouseButton");
    window.MouseHeld = read_.Bool(json, "MouseHeld");
    w.AntSizeTwips = read_.Int16(json, "AntSizeTwips");
    w.NestRadius = read_.Int16(json, "NestRadius");
    window.View.ZoomX = Positive(json, "ZoomX");
    window.View.ZoomY = Positive(json, "ZoomY");
    w.AntBodyArea = read_.Number(json, "AntBodyArea");
    window.View.ShowOdor = read_.Int16(json, "ShowOdor");
    window.View.ShowAnts = read_.Int16(json, "ShowAnts");
    w.FoodChance = read_.Number(json, "FoodChance");
    window.ViewCentreX = read_.Single(json, "ViewCentreX");
    window.ViewCentreY = read_.Single(json, "ViewCentreY");
    window.View.MouseX = read_.Single(json, "MouseX");
    window.View.MouseY = read_.Single(json, "MouseY");
    std::tie(window.CursorCellX, window.CursorCellY) = CellOf(json, "CursorCellX", "CursorCellY", false);
  }

  ViewScale ReadScale(const QJsonObject& json) {
    return {read_.Number(json, "Left"), read_.Number(json, "Top"), Positive(json, "Width"), Positive(json, "Height")};
  }

  ScrollBar ReadScrollBar(const QJsonObject& json) {
    return {read_.Int16(json, "Min"), read_.Int16(json, "Max"), read_.Int16(json, "Value"),
            read_.Int16(json, "SmallChange"), read_.Int16(json, "LargeChange")};
  }

  void ReadView(const QJsonObject& json) {
    const Scope scope(read_, "View");
    WindowState& w = window_;
    const auto scale = [this](const QJsonObject& o) { return ReadScale(o); };
    const auto bar = [this](const QJsonObject& o) { return ReadScrollBar(o); };
    w.View.Terrain = Nested(json, "Terrain", scale);
    w.View.Map = Nested(json, "Map", scale);
    // The map box is the world's extent, the same in every world.
    for (const char* side : {"MapBoxWidth", "MapBoxHeight"}) {
      if (read_.Number(json, side) != MapBoxSize) read_.Fail(side, "must be " + CStr(MapBoxSize));
    }
    w.HScroll1 = Nested(json, "HScroll1", bar);
    w.VScroll1 = Nested(json, "VScroll1", bar);
    w.View.TerrainFontSize = static_cast<int>(read_.Integer(json, "TerrainFontSize", 1, Int16Max));
  }

  void ReadResumeState(const QJsonObject& json) {
    resume_.Tick = read_.Integer(json, "Tick", 0, INT64_C(1) << 53);
    const QJsonArray words = read_.Array(json, "RandomState", static_cast<int64_t>(resume_.Random.size()));
    for (qsizetype i = 0; i < words.size() && !read_.Failed(); ++i) {
      bool ok = false;
      const QString text = words[i].toString();
      resume_.Random[static_cast<size_t>(i)] = text.toULongLong(&ok, 16);
      if (!ok || text.size() != 16) read_.Fail("RandomState", "not four words of 16 hex digits");
    }
    if (!read_.Failed() && !json.value("ClockTime").isNull()) {
      const double time = read_.Number(json, "ClockTime");
      if (!read_.Failed() && !(time >= 0 && time < SecondsPerDay)) read_.Fail("ClockTime", "not a time of day in seconds");
      resume_.ClockTime = time;
    }
  }

  void ReadCells(const QJsonObject& json) {
    const WorldSettings& s = world_.Settings;
    if (read_.Failed()) return;
    world_.Cells.Reset(s.GridX, s.GridY);
    const QJsonArray cells = read_.Array(json, "Cells", int64_t{s.GridX} * s.GridY);
    // Column by column, as they are written.
    for (qsizetype i = 0; i < cells.size() && !read_.Failed(); ++i) {
      const Scope scope(read_, "Cells[" + std::to_string(i) + "]");
      const QJsonObject c = read_.Element(cells, i);
      Cell& cell = world_.Cells(static_cast<int>(i / s.GridY) + 1, static_cast<int>(i % s.GridY) + 1);
      cell.X = read_.Int16(c, "X");
      cell.Y = read_.Int16(c, "Y");
      cell.Signature = SignatureOf(c, "Signature");
      cell.Food = read_.Number(c, "Food");
      cell.AntCount = Count(c, "AntCount");
      cell.Scent = read_.Number(c, "Scent");
      cell.Colour = ColourOf(c, "Colour");
      ReadCellObjects(cell.Objects, read_.Array(c, "Objects", Count(c, "ObjectCount")));
    }
  }

  void ReadAnt(const QJsonObject& json, Ant& a) {
    a.RearX = read_.Number(json, "RearX");
    a.RearY = read_.Number(json, "RearY");
    a.HeadX = read_.Number(json, "HeadX");
    a.HeadY = read_.Number(json, "HeadY");
    // A head on the world's far edge lies in the ring's cell.
    std::tie(a.CellX, a.CellY) = CellOf(json, "CellX", "CellY", true);
    a.Angle = read_.Number(json, "Angle");
    a.Length = read_.Number(json, "Length");
    a.Load = read_.Number(json, "Load");
    a.LifeFactor = read_.Number(json, "LifeFactor");
    a.Energy = read_.Number(json, "Energy");
    a.Colour = ColourOf(json, "Colour");
  }

  void ReadNest(const QJsonObject& json, Nest& n) {
    n.Name = read_.Text(json, "Name");
    n.Signature = SignatureOf(json, "Signature");
    n.X = read_.Number(json, "X");
    n.Y = read_.Number(json, "Y");
    std::tie(n.CellX, n.CellY) = CellOf(json, "CellX", "CellY", false);
    n.Radius = read_.Number(json, "Radius");
    n.AntLength = read_.Number(json, "AntLength");
    n.AntBodyArea = read_.Number(json, "AntBodyArea");
    n.AntUnit = read_.Number(json, "AntUnit");
    n.Colour = ColourOf(json, "Colour");
    n.FoodStore = read_.Number(json, "FoodStore");
    n.LifeSpan = read_.Int16(json, "LifeSpan");
    const int16_t antCount = Count(json, "AntCount");
    const QJsonArray ants = read_.Array(json, "Ants", antCount);
    if (read_.Failed()) return;
    antsInNests_ += antCount;
    if (antsInNests_ > Int16Max) return read_.Fail("AntCount", "takes the ants of all nests past 32767");
    n.Ants.Reset(antCount);
    for (qsizetype i = 0; i < ants.size() && !read_.Failed(); ++i) {
      const Scope scope(read_, "Ants[" + std::to_string(i) + "]");
      ReadAnt(read_.Element(ants, i), n.Ants[static_cast<int>(i)]);
    }
    Nested(json, "SpareAnt", [&](const QJsonObject& o) { ReadAnt(o, n.Ants[antCount]); });
  }

  void ReadNests(const QJsonObject& json) {
    const QJsonArray nests = read_.Array(json, "Nests", world_.NestCount);
    if (read_.Failed()) return;
    world_.Nests.resize(static_cast<size_t>(world_.NestCount));
    for (qsizetype i = 0; i < nests.size() && !read_.Failed(); ++i) {
      const Scope scope(read_, "Nests[" + std::to_string(i) + "]");
      ReadNest(read_.Element(nests, i), world_.Nests[static_cast<size_t>(i)]);
    }
  }

  void ReadFoodPiles(const QJsonObject& json) {
    const QJsonArray piles = read_.Array(json, "FoodPiles", Count(json, "FoodPileCount"));
    if (read_.Failed()) return;
    world_.FoodPiles.Reset(static_cast<int16_t>(piles.size()));
    for (qsizetype i = 0; i < piles.size() && !read_.Failed(); ++i) {
      const Scope scope(read_, "FoodPiles[" + std::to_string(i) + "]");
      const QJsonObject p = read_.Element(piles, i);
      FoodPile& pile = world_.FoodPiles[static_cast<int>(i)];
      std::tie(pile.X, pile.Y) = CellOf(p, "X", "Y", false);
      pile.SpreadBudget = read_.Int16(p, "SpreadBudget");
      pile.Amount = read_.Number(p, "Amount");
    }
  }

  WorldPoint ReadPoint(const QJsonObject& json) { return {read_.Number(json, "X"), read_.Number(json, "Y")}; }

  void ReadShape(const QJsonObject& json, WallShape& shape) {
    shape.Colour = ColourOf(json, "Colour");
    shape.Material = read_.Text(json, "Material");
    const QJsonArray points = read_.Array(json, "Points", static_cast<int64_t>(shape.Points.size()));
    for (qsizetype i = 0; i < points.size() && !read_.Failed(); ++i) {
      const Scope scope(read_, "Points[" + std::to_string(i) + "]");
      shape.Points[static_cast<size_t>(i)] = ReadPoint(read_.Element(points, i));
    }
  }

  void ReadWall(const QJsonObject& json, WallObject& wall) {
    wall.TypeName = read_.Text(json, "TypeName");
    std::tie(wall.X, wall.Y) = CellOf(json, "X", "Y", false);
    wall.ShapeCount = Count(json, "ShapeCount");
    // Slots 0..ShapeCount.
    const QJsonArray shapes = read_.Array(json, "Shapes", int64_t{wall.ShapeCount} + 1);
    wall.Shapes.resize(static_cast<size_t>(shapes.size()));
    for (qsizetype i = 0; i < shapes.size() && !read_.Failed(); ++i) {
      const Scope scope(read_, "Shapes[" + std::to_string(i) + "]");
      ReadShape(read_.Element(shapes, i), wall.Shapes[static_cast<size_t>(i)]);
    }
  }

  void ReadWalls(SlotList<WallObject>& walls, const QJsonArray& items, const char* key) {
    if (read_.Failed()) return;
    walls.Reset(static_cast<int16_t>(items.size()));
    for (qsizetype i = 0; i < items.size() && !read_.Failed(); ++i) {
      const Scope scope(read_, key + ("[" + std::to_string(i) + "]"));
      ReadWall(read_.Element(items, i), walls[static_cast<int>(i)]);
    }
  }

  void ReadCellObjects(CellObjects& objects, const QJsonArray& items) {
    for (qsizetype i = 0; i < items.size() && !read_.Failed(); ++i) {
      const Scope scope(read_, "Objects[" + std::to_string(i) + "]");
      WallObject object;
      ReadWall(read_.Element(items, i), object);
      objects.Add(std::move(object));
    }
  }

  World& world_;
  WindowState& window_;
  ResumeState& resume_;
  JsonFieldReader read_;
  int antsInNests_ = 0;
};

}  // namespace

std::optional<std::string> ReadSnapshot(const QByteArray& text, World& world, WindowState& window,
                                        ResumeState& resume) {
  QJsonParseError parse{};
  const QJsonDocument document = QJsonDocument::fromJson(text, &parse);
  if (parse.error != QJsonParseError::NoError) {
    return "not a world state: " + parse.errorString().toStdString() + " at character " + std::to_string(parse.offset);
  }
  if (!document.isObject()) return "not a world state: the document is not an object";
  return SnapshotReader(world, window, resume).Read(document.object());
}

}  // namespace keldor
