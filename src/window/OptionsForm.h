// The options dialog without a toolkit: its fields as the user sees them, the
// corrections made while the user types, what is taken over at once and what
// only on OK, and what the next New reads from it. The Qt dialog is a thin
// shell over this class.
//
// Open points decided here:
//  - An edited grid size is taken over on OK and kept in the window state until the
//    next New builds a grid of that size; reopening the dialog shows it.
//  - The grid box holds only sizes the program can build: a number is
//    replaced at once by the size New makes of it (0 gives 20, a number
//    outside MinGridSize..MaxGridSize the nearest size within).
//  - OK with a colour box that holds no number keeps that colour component as
//    it was; nothing is made up from an unreadable text.
#pragma once

#include <string>

#include "model/Colour.h"
#include "model/WorldCreation.h"

namespace keldor {

struct World;
struct WindowState;
class Simulation;

enum class ColourBox { Red = 0, Green = 1, Blue = 2 };

// Population text for letters or an empty box.
inline constexpr int DefaultAntsPerNestText = 30;

class OptionsForm {
 public:
  // Opens the dialog: fills every field from the settings (running the text
  // handlers, as loading does) and lets the tick read the nest-scent slider.
  OptionsForm(World& world, WindowState& window);
  // Closing unloads the dialog: the tick reads NestScentMax again.
  ~OptionsForm();
  OptionsForm(const OptionsForm&) = delete;
  OptionsForm& operator=(const OptionsForm&) = delete;

  const std::string& NumAntsText() const { return numAnts_; }
  const std::string& AntSizeText() const { return antSize_; }
  const std::string& ColourText(ColourBox box) const { return colour_[static_cast<int>(box)]; }
  const std::string& GridDimXText() const { return gridX_; }
  const std::string& GridDimYText() const { return gridY_; }
  int LifeSpan() const { return lifeSpan_; }
  int FoodRate() const { return foodRate_; }
  int FoodTrace() const { return foodTrace_; }
  int NestTrace() const { return nestTrace_; }
  // picAntColor's background: the colour the three boxes make.
  Colour PreviewColour() const { return preview_; }

  // Change handlers: each takes the text as typed and leaves the corrected
  // text in the field (the window shows it with the caret at its end).
  void AntCountTyped(const std::string& text);
  void AntSizeTyped(const std::string& text);
  void ColourTyped(ColourBox box, const std::string& text);
  void GridSizeTyped(const std::string& text);
  void LifeSpanMoved(int value);
  void FoodRateMoved(int value);
  void FoodTraceMoved(int value);
  void NestTraceMoved(int value);

  // OK: the colour components, life span, food rate and grid size.
  void ApplyOptions();

 private:
  World& world_;
  WindowState& window_;
  std::string numAnts_;
  std::string antSize_;
  std::string colour_[3];
  std::string gridX_;
  std::string gridY_;
  int lifeSpan_ = 0;
  int foodRate_ = 0;
  int foodTrace_ = 0;
  int nestTrace_ = 0;
  Colour preview_{};
};

// New as the File menu and the Start button run it: loads the dialog, which
// fills it from the settings, reads its grid size (the one waiting from the
// last OK, else the current one), ant size and life span, and uses up the
// waiting grid size.
void NewFromOptions(Simulation& simulation, WindowState& window);

}  // namespace keldor
