#include "render/AntFigure.h"

#include <cmath>

#include "model/Numeric.h"
#include "model/World.h"
#include "render/ViewState.h"
#include "render/ViewColours.h"

namespace keldor {

namespace {

struct Point {
  double X;
  double Y;
};

// A circle of the figure: where along the body it sits and its radius in units of Length.
struct FigureCircle {
  Point Centre;
  double Radius;
};

void DrawOnMap(const World& world, const Nest& nest, const Ant& ant, Canvas& map) {
  const double cx = (ant.RearX + ant.HeadX) / 2;
  const double cy = (ant.RearY + ant.HeadY) / 2;
  const double a = nest.AntLength / (2 * world.Settings.ScaleX);
  const double b = nest.AntLength / (2 * world.Settings.ScaleY);
  map.Pen.FillColor = ant.Colour;
  map.Line(cx - a, cy, cx + a, cy, ant.Colour);
  map.Line(cx, cy - b, cx, cy + b, ant.Colour);
  map.Circle(cx, cy, a, ant.Colour);
  if (ant.Load > 0) {
    map.Pen.FillColor = FoodGreen;
    map.Circle(ant.HeadX, ant.HeadY, std::sqrt(ant.Load / Pi) / world.Settings.ScaleX, FoodGreen);
  }
  map.Pen.FillColor = ant.Colour;
}

void DrawOnTerrain(const World& world, const ViewState& view, const Nest& nest, const Ant& ant, bool queen,
                   Canvas& terrain) {
  const double zx = view.ZoomX;
  const double zy = view.ZoomY;
  if (!AnyPointVisible(view.Terrain, {{ant.RearX * zx, ant.RearY * zy}, {ant.HeadX * zx, ant.HeadY * zy}})) return;
  const double radiusScale = zx / world.Settings.ScaleX;
  const Point h{ant.HeadX, ant.HeadY};
  const Point r{ant.RearX, ant.RearY};
  const Point body{h.X - r.X, h.Y - r.Y};  // rear to head
  auto circle = [&](const FigureCircle& c, Colour outline) {
    terrain.Circle(c.Centre.X * zx, c.Centre.Y * zy, c.Radius * radiusScale, outline);
  };

  if (ant.Load > 0) {
    terrain.Pen.FillColor = FoodGreen;
    circle({{h.X + body.X / 4, h.Y + body.Y / 4}, std::sqrt(ant.Load / Pi)}, Black);
  }
  terrain.Pen.FillColor = ant.Colour;
  const double len = ant.Length;
  // Only the figure drawn is worked out: a frame draws tens of thousands of workers.
  if (queen) {
    circle({h, len / 8}, Black);
    circle({{h.X - body.X / 3, h.Y - body.Y / 3}, len / 5}, Black);
    circle({{r.X + body.X / 4, r.Y + body.Y / 4}, len / 4 + std::sqrt(nest.FoodStore / Pi)}, Black);
  } else {
    circle({h, len / 5}, Black);
    circle({{h.X - body.X * 11 / 28, h.Y - body.Y * 11 / 28}, len / 7}, Black);
    circle({{r.X + body.X / 6, r.Y + body.Y / 6}, len / 6}, Black);
  }
}

}  // namespace

void DrawAnt(const World& world, const ViewState& view, const Nest& nest, int antIndex, Canvas& terrain, Canvas& map) {
  const Ant& ant = nest.Ants[antIndex];
  if (view.InfoVisible) DrawOnMap(world, nest, ant, map);
  DrawOnTerrain(world, view, nest, ant, antIndex == 0, terrain);
}

}  // namespace keldor
