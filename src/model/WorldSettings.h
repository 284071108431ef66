// The global settings: set to their defaults at start-up, re-read in part by
// New, and otherwise changed only by the options dialog.
#pragma once

#include <cstdint>

#include "model/Colour.h"
#include "model/Numeric.h"

namespace keldor {

struct WorldSettings {
  int16_t GridX = 0;  // cell columns; 30 from start-up
  int16_t GridY = 0;  // cell rows; 0 until New has read a grid-height text
  double CellSize = 0;  // side of a cell, world units
  double ScaleX = 0;    // world unit to body unit factors (10)
  double ScaleY = 0;
  double SpreadFoodAmount = 0;  // amount of a seeded or tool-laid pile; fixed at start-up
  int16_t Population = 0;       // living ants in all nests
  int16_t AntsPerNest = 0;
  double AntSizeMm = 0;
  int16_t AntRed = 0;
  int16_t AntGreen = 0;
  int16_t AntBlue = 0;
  Colour AntColour{};
  int16_t LifeSpan = 0;
  int16_t FoodRate = 0;  // percent chance that a free cell gets food at New
  int16_t FoodScentMax = 0;
  int16_t NestScentMax = 0;
  int16_t FoodTraceSetting = 0;  // caps the scent mark of an encounter
  int16_t NestTraceSetting = 0;  // stored by the dialog, read by nothing

  // The most food one cell holds: a disc filling the cell, in body units squared.
  double CellFoodCapacity() const {
    const double r = CellSize / 2 * ScaleX;
    return Pi * (r * r);
  }
};

// The world's part of start-up: scales 10, a 30-cell grid unless one is set,
// CellSize and the spread amount from it, and the defaults.
void StartUpSettings(WorldSettings& settings);

// The default settings, as a freshly loaded options dialog leaves them.
void LoadDefaults(WorldSettings& settings);

// The world's extent in world units, the mini-map's scale: New divides it
// into GridX cells. It is also the mini-map box's size, which bounds the ants'
// turns.
inline constexpr double MapBoxSize = 2000;

// The options dialog's slider ranges as the user sees them; a world file's
// values are held to them too.
struct SliderRange {
  int Min;
  int Max;
};
inline constexpr SliderRange LifeSpanRange{1, 100};
inline constexpr SliderRange FoodRateRange{0, 100};
inline constexpr SliderRange TraceRange{1, 500};

// Ant size taken over while the dialog's box holds no number.
inline constexpr double DefaultAntSizeMm = 3.0;
// Body units (twips) per millimetre.
inline constexpr double TwipsPerMm = 56.7;

// The world-to-body-unit factors start-up and New set (ScaleX, ScaleY).
inline constexpr double WorldScale = 10;

}  // namespace keldor
