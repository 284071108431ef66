#include "window/OptionsForm.h"

#include <algorithm>
#include <cmath>

#include "engine/Simulation.h"
#include "model/Numeric.h"
#include "model/Queries.h"
#include "model/World.h"
#include "window/Commands.h"
#include "window/WindowState.h"

namespace keldor {

namespace {

int16_t ClampToRange(double value, SliderRange range) {
  return static_cast<int16_t>(std::clamp<int32_t>(CInt(value), range.Min, range.Max));
}

// A colour box's number as a component: floored into 0..255.
int ColourComponent(const std::string& text) { return static_cast<int>(Int(Max(0, Min(ToNumber(text), 255)))); }

}  // namespace

OptionsForm::OptionsForm(World& world, WindowState& window) : world_(world), window_(window) {
  const WorldSettings& s = world.Settings;
  lifeSpan_ = s.LifeSpan;
  foodRate_ = s.FoodRate;
  foodTrace_ = s.FoodScentMax;
  nestTrace_ = s.NestScentMax;
  AntCountTyped(CStr(s.AntsPerNest));
  AntSizeTyped(CStr(s.AntSizeMm));
  const int16_t gridSize = window.PendingGridSize != 0 ? window.PendingGridSize : s.GridX;
  GridSizeTyped(CStr(gridSize));
  colour_[0] = CStr(s.AntRed);
  colour_[1] = CStr(s.AntGreen);
  colour_[2] = CStr(s.AntBlue);
  for (ColourBox box : {ColourBox::Red, ColourBox::Green, ColourBox::Blue}) {
    ColourTyped(box, std::string(ColourText(box)));
  }
  window_.OptionsOpen = true;
  window_.OptionsNestTraceValue = static_cast<int16_t>(nestTrace_);
}

OptionsForm::~OptionsForm() { window_.OptionsOpen = false; }

void OptionsForm::AntCountTyped(const std::string& text) {
  if (IsNumeric(text)) {
    // The whole part towards minus infinity, then the sign dropped: -7.9 gives 8.
    numAnts_ = CStr(ClampToInt16(static_cast<int64_t>(std::fabs(Int(std::clamp(ToNumber(text), -1e9, 1e9))))));
  } else {
    numAnts_ = CStr(DefaultAntsPerNestText);
  }
  world_.Settings.AntsPerNest = ClampToInt16(CInt(ToNumber(numAnts_)));
}

void OptionsForm::AntSizeTyped(const std::string& text) {
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

void OptionsForm::ColourTyped(ColourBox box, const std::string& text) {
  WorldSettings& s = world_.Settings;
  std::string& changed = colour_[static_cast<int>(box)];
  changed = text;
  if (!(IsNumeric(colour_[0]) && IsNumeric(colour_[1]) && IsNumeric(colour_[2]))) {
    s.AntColour = Colour(150, 100, 70);
    return;
  }
  changed = CStr(ColourComponent(changed));
  preview_ = Colour(CInt(ToNumber(colour_[0])), CInt(ToNumber(colour_[1])), CInt(ToNumber(colour_[2])));
  s.AntColour = preview_;
}

void OptionsForm::GridSizeTyped(const std::string& text) {
  // A number shows at once as the size New builds from it.
  gridX_ = IsNumeric(text) ? CStr(GridSizeFromText(text)) : text;
  // The grid is square.
  gridY_ = gridX_;
}

void OptionsForm::LifeSpanMoved(int value) { lifeSpan_ = ClampToRange(value, LifeSpanRange); }

void OptionsForm::FoodRateMoved(int value) { foodRate_ = ClampToRange(value, FoodRateRange); }

void OptionsForm::FoodTraceMoved(int value) {
  foodTrace_ = ClampToRange(value, TraceRange);
  world_.Settings.FoodTraceSetting = static_cast<int16_t>(foodTrace_);
}

void OptionsForm::NestTraceMoved(int value) {
  nestTrace_ = ClampToRange(value, TraceRange);
  world_.Settings.NestTraceSetting = static_cast<int16_t>(nestTrace_);
  window_.OptionsNestTraceValue = static_cast<int16_t>(nestTrace_);
}

void OptionsForm::ApplyOptions() {
  WorldSettings& s = world_.Settings;
  int16_t* components[3] = {&s.AntRed, &s.AntGreen, &s.AntBlue};
  for (int i = 0; i < 3; ++i) {
    // The box's number rounded half to even; one typed while another box
    // held no number was never corrected, so it is held to 0..255 here too.
    if (IsNumeric(colour_[i])) *components[i] = static_cast<int16_t>(std::clamp<int32_t>(CInt(std::clamp(ToNumber(colour_[i]), -1e9, 1e9)), 0, 255));
  }
  s.AntColour = Colour(s.AntRed, s.AntGreen, s.AntBlue);
  s.FoodRate = static_cast<int16_t>(foodRate_);
  s.LifeSpan = static_cast<int16_t>(lifeSpan_);
  if (window_.View.CurrentTool == NestTool) window_.View.ToolColour = s.AntColour;
  if (IsNumeric(gridX_)) window_.PendingGridSize = static_cast<int16_t>(GridSizeFromText(gridX_));
}

void NewFromOptions(Simulation& simulation, WindowState& window) {
  NewWorldInputs inputs;
  {
    // New loads the dialog to read it: loading fills it from the settings,
    // which takes over the population, ant length and colour again, so a
    // colour typed and then cancelled does not reach the new world.
    const OptionsForm form(simulation.TheWorld(), window);
    inputs = {form.GridDimXText(), form.GridDimYText(), form.AntSizeText(), form.LifeSpan()};
  }
  NewWorld(simulation, window, inputs);
  window.PendingGridSize = 0;
}

}  // namespace keldor
