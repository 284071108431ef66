#include "model/OptionsForm.h"

#include <algorithm>
#include <cmath>

#include "model/Numeric.h"
#include "model/Queries.h"
#include "model/World.h"

namespace keldor {

namespace {

int16_t ClampToRange(double value, SliderRange range) {
  return static_cast<int16_t>(std::clamp<int32_t>(CInt(value), range.Min, range.Max));
}

// A colour box's number as a component: floored into 0..255.
int ColourComponent(const std::string& text) { return static_cast<int>(Int(Max(0, Min(ToNumber(text), 255)))); }

}  // namespace

OptionsForm::OptionsForm(World& world) : world_(world) {
  const WorldSettings& s = world.Settings;
  lifeSpan_ = s.LifeSpan;
  foodRate_ = s.FoodRate;
  foodTrace_ = s.FoodScentMax;
  nestTrace_ = s.NestScentMax;
  txtNumAnts_Change(CStr(s.AntsPerNest));
  txtAntSize_Change(CStr(s.AntSizeMm));
  const int16_t gridSize = world.PendingGridSize != 0 ? world.PendingGridSize : s.GridX;
  txtGridDimX_Change(CStr(gridSize));
  colour_[0] = CStr(s.AntRed);
  colour_[1] = CStr(s.AntGreen);
  colour_[2] = CStr(s.AntBlue);
  for (ColourBox box : {ColourBox::Red, ColourBox::Green, ColourBox::Blue}) {
    txtAntsColour_Change(box, std::string(ColourText(box)));
  }
  world_.OptionsOpen = true;
  world_.OptionsNestTraceValue = static_cast<int16_t>(nestTrace_);
}

OptionsForm::~OptionsForm() { world_.OptionsOpen = false; }

void OptionsForm::txtNumAnts_Change(const std::string& text) {
  if (IsNumeric(text)) {
    // The whole part towards minus infinity, then the sign dropped: -7.9 gives 8.
    numAnts_ = CStr(ClampToInt16(static_cast<int64_t>(std::fabs(Int(std::clamp(ToNumber(text), -1e9, 1e9))))));
  } else {
    numAnts_ = CStr(DefaultAntsPerNestText);
  }
  world_.Settings.AntsPerNest = ClampToInt16(CInt(ToNumber(numAnts_)));
}

void OptionsForm::txtAntSize_Change(const std::string& text) {
  WorldSettings& s = world_.Settings;
  antSize_ = text;
  if (!IsNumeric(text)) {
    s.AntSizeMm = DefaultAntSizeMm;
    return;
  }
  // An ant is never longer than the radius of a new nest.
  const double length = ToNumber(text) * TwipsPerMm;
  const double longest = s.CellSize / 2 * s.ScaleX;
  if (length > longest) antSize_ = Format(longest / TwipsPerMm, "#.0");
  s.AntSizeMm = ToNumber(antSize_);
}

void OptionsForm::txtAntsColour_Change(ColourBox box, const std::string& text) {
  WorldSettings& s = world_.Settings;
  std::string& changed = colour_[static_cast<int>(box)];
  changed = text;
  if (!(IsNumeric(colour_[0]) && IsNumeric(colour_[1]) && IsNumeric(colour_[2]))) {
    s.AntColour = Rgb(150, 100, 70);
    return;
  }
  changed = CStr(ColourComponent(changed));
  preview_ = Rgb(CInt(ToNumber(colour_[0])), CInt(ToNumber(colour_[1])), CInt(ToNumber(colour_[2])));
  s.AntColour = preview_;
}

void OptionsForm::txtGridDimX_Change(const std::string& text) {
  // A number shows at once as the size New builds from it.
  gridX_ = IsNumeric(text) ? CStr(GridSizeFromText(text)) : text;
  // The grid is square.
  gridY_ = gridX_;
}

void OptionsForm::sliLifeSpan_Change(int value) { lifeSpan_ = ClampToRange(value, LifeSpanRange); }

void OptionsForm::sliFoodRate_Change(int value) { foodRate_ = ClampToRange(value, FoodRateRange); }

void OptionsForm::sliFoodTrace_Change(int value) {
  foodTrace_ = ClampToRange(value, TraceRange);
  world_.Settings.FoodTraceSetting = static_cast<int16_t>(foodTrace_);
}

void OptionsForm::sliNestTrace_Change(int value) {
  nestTrace_ = ClampToRange(value, TraceRange);
  world_.Settings.NestTraceSetting = static_cast<int16_t>(nestTrace_);
  world_.OptionsNestTraceValue = static_cast<int16_t>(nestTrace_);
}

void OptionsForm::ApplyOptions() {
  WorldSettings& s = world_.Settings;
  int16_t* components[3] = {&s.AntRed, &s.AntGreen, &s.AntBlue};
  for (int i = 0; i < 3; ++i) {
    // A box typed while another held no number was never corrected: clamp it here too.
    if (IsNumeric(colour_[i])) *components[i] = static_cast<int16_t>(ColourComponent(colour_[i]));
  }
  s.AntColour = Rgb(s.AntRed, s.AntGreen, s.AntBlue);
  s.FoodRate = static_cast<int16_t>(foodRate_);
  s.LifeSpan = static_cast<int16_t>(lifeSpan_);
  if (s.CurrentTool == NestTool) s.ToolColour = s.AntColour;
  if (IsNumeric(gridX_)) world_.PendingGridSize = static_cast<int16_t>(GridSizeFromText(gridX_));
}

NewWorldInputs OptionsNewWorldInputs(const World& world) {
  const WorldSettings& s = world.Settings;
  const std::string grid = CStr(world.PendingGridSize != 0 ? world.PendingGridSize : s.GridX);
  return NewWorldInputs{grid, grid, CStr(s.AntSizeMm), s.LifeSpan};
}

void NewFromOptions(World& world, RandomSource& random) {
  mnuFileNew_Click(world, random, OptionsNewWorldInputs(world));
  world.PendingGridSize = 0;
}

}  // namespace keldor
