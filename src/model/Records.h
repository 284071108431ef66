// The world's records: cells, nests with their ants, food piles and the
// plaster-brick walls. Plain value types; a copy owns its strings and arrays.
//
// Units: positions are world units (the mini-map's scale, a cell is CellSize
// wide); lengths, radii, food, energy and bites are body units (world x ScaleX)
// and their squares. Counts and grid coordinates are 16-bit.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "model/CellObjects.h"
#include "model/Colour.h"
#include "model/Signature.h"
#include "model/SlotList.h"
#include "model/WallObject.h"

namespace keldor {

// The fields an ant step reads (scent, signature, ant count and, at the
// start of Objects, the brick count) come first, so that they lie together.
struct Cell {
  double Scent = 0;  // > 0 food scent, < 0 nest scent
  keldor::Signature Signature;  // empty in a new world; "0000000000000000" once unmarked
  int16_t AntCount = 0;
  int16_t X = 0;
  int16_t Y = 0;
  CellObjects Objects;
  double Food = 0;
  keldor::Colour Colour{};
  int16_t ObjectCount() const { return Objects.Count(); }
};

// One ant, a segment from its rear point to its head point (world units).
struct Ant {
  double RearX = 0;
  double RearY = 0;
  double HeadX = 0;
  double HeadY = 0;
  int16_t CellX = 0;
  int16_t CellY = 0;
  uint32_t Serial = 0;  // given at birth and never reused: the ant's identity across renumbering
  double Angle = 0;  // turn to apply at the start of the next step, radians
  double Length = 0;
  double Load = 0;
  double LifeFactor = 0;
  double Energy = 0;  // alive while > 0
  keldor::Colour Colour{};
  bool operator==(const Ant&) const = default;
};

struct Nest {
  std::string Name;
  uint32_t Serial = 0;  // given at creation and never reused
  keldor::Signature Signature;
  double X = 0;  // centre, world units
  double Y = 0;
  int16_t CellX = 0;
  int16_t CellY = 0;
  double Radius = 0;  // body units
  double AntLength = 0;
  double AntBodyArea = 0;
  double AntUnit = 0;  // bite, energy and birth unit
  SlotList<Ant> Ants;  // Ants[0] is the queen
  keldor::Colour Colour{};
  double FoodStore = 0;
  int16_t LifeSpan = 0;
  // Ant records held, queen and unremoved dead included.
  int16_t AntCount() const { return Ants.Count(); }
};

struct FoodPile {
  int16_t X = 0;
  int16_t Y = 0;
  int16_t SpreadBudget = 0;
  double Amount = 0;
  bool operator==(const FoodPile&) const = default;
};

}  // namespace keldor
