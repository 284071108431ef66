// The wall record: a plaster brick with its shape, the one kind of object
// that stands on a cell.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "model/Colour.h"

namespace keldor {

inline constexpr const char* PlasterBrickType = "PLASTER_BRICK";

struct WorldPoint {
  double X = 0;
  double Y = 0;
  bool operator==(const WorldPoint&) const = default;
};

struct WallShape {
  keldor::Colour Colour{};
  std::array<WorldPoint, 5> Points{};  // corners 0..3 of the cell; 4 unused
  std::string Material;
  bool operator==(const WallShape&) const = default;
};

// An object standing on a cell; the only kind is the plaster brick. The same
// record is held by the world's wall list and by its cell's object list.
struct WallObject {
  std::string TypeName;
  int16_t X = 0;
  int16_t Y = 0;
  int16_t ShapeCount = 0;
  std::vector<WallShape> Shapes;  // slots 0..ShapeCount
  bool operator==(const WallObject&) const = default;
};

}  // namespace keldor
