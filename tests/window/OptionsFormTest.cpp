#include "window/OptionsForm.h"

#include <gtest/gtest.h>

#include "model/Numeric.h"
#include "support/TestWorld.h"
#include "window/WindowState.h"

namespace keldor {
namespace {

class OptionsFormTest : public ::testing::Test {
 protected:
  testing::TestWorld t;
  World& w = t.world;
  WindowState& window = t.window;
  WorldSettings& s = t.world.Settings;
};

TEST_F(OptionsFormTest, TextBoxesAreCorrectedAsTyped) {
  OptionsForm form(w, window);
  const std::pair<const char*, const char*> ants[] = {
      {"-7.9", "8"}, {"abc", "30"}, {"", "30"}, {"12.99", "12"}, {"99999999999", "32767"}};
  for (const auto& [typed, shown] : ants) {
    form.AntCountTyped(typed);
    EXPECT_EQ(form.NumAntsText(), shown) << typed;
  }
  EXPECT_EQ(s.AntsPerNest, 32767);
  // 30 x 30 grid: the nest radius is 2000/30/2*10 twips, 5.88 mm.
  form.AntSizeTyped("9");
  EXPECT_EQ(form.AntSizeText(), "5.9");
  EXPECT_DOUBLE_EQ(s.AntSizeMm, 5.9);
  form.AntSizeTyped("x");
  EXPECT_EQ(form.AntSizeText(), "x");
  EXPECT_DOUBLE_EQ(s.AntSizeMm, 3.0);

  const std::tuple<ColourBox, const char*, const char*> colours[] = {{ColourBox::Red, "300", "255"},
                                                                     {ColourBox::Green, "-4", "0"},
                                                                     {ColourBox::Blue, "12.7", "12"}};
  for (const auto& [box, typed, shown] : colours) {
    form.ColourTyped(box, typed);
    EXPECT_EQ(form.ColourText(box), shown) << typed;
  }
  EXPECT_EQ(s.AntColour, Colour(255, 0, 12));
  form.ColourTyped(ColourBox::Green, "g");  // unreadable: the settings colour falls back
  EXPECT_EQ(s.AntColour, Colour(150, 100, 70));
  EXPECT_EQ(form.PreviewColour(), Colour(255, 0, 12));
  form.GridSizeTyped("500");
  EXPECT_EQ(form.GridDimXText(), "181");
  form.GridSizeTyped("0");
  EXPECT_EQ(form.GridDimXText(), "20");
  form.GridSizeTyped("-3");
  EXPECT_EQ(form.GridDimYText(), "1");
  form.GridSizeTyped("");  // no number: OK leaves the grid alone
  form.ApplyOptions();  // the colour components change only on OK; the unreadable one stays
  EXPECT_EQ(s.AntColour, Colour(255, 100, 12));
  EXPECT_EQ(window.PendingGridSize, 0);
  // Typed while Green holds no number, so never corrected on change: OK clamps them.
  form.ColourTyped(ColourBox::Red, "-50");
  form.ColourTyped(ColourBox::Blue, "300.5");
  form.ColourTyped(ColourBox::Green, "100");  // the preview takes them as typed: -50 and CInt 300, held to 0..255
  EXPECT_EQ(form.PreviewColour(), Colour(0, 100, 255));
  form.ApplyOptions();
  EXPECT_EQ(s.AntColour, Colour(0, 100, 255));
  EXPECT_TRUE(s.AntRed == 0 && s.AntBlue == 255);
  // OK rounds an uncorrected number half to even, as CInt does: 2.7 gives 3, 2.5 gives 2.
  form.ColourTyped(ColourBox::Green, "x");
  form.ColourTyped(ColourBox::Red, "2.7");
  form.ColourTyped(ColourBox::Blue, "2.5");
  form.ColourTyped(ColourBox::Green, "5");
  form.ApplyOptions();
  EXPECT_TRUE(s.AntRed == 3 && s.AntGreen == 5 && s.AntBlue == 2);
  EXPECT_EQ(s.AntColour.Packed(), 3u + 256u * 5 + 65536u * 2);
}

TEST_F(OptionsFormTest, CancelKeepsOnlyWhatWasTakenOverOnChange) {
  {
    OptionsForm form(w, window);
    EXPECT_EQ(form.PreviewColour(), Colour(150, 100, 70));
    form.NestTraceMoved(40);
    EXPECT_EQ(TickInputOf(window, w).NestTraceSlider, 40);  // the tick reads the slider while the form is open
    form.AntCountTyped("12");
    form.AntSizeTyped("2");
    form.ColourTyped(ColourBox::Red, "10");
    form.LifeSpanMoved(20);
    form.FoodRateMoved(50);
    form.FoodTraceMoved(77);
    form.GridSizeTyped("40");
  }  // closed without OK
  EXPECT_EQ(s.NestTraceSetting, 40);
  EXPECT_FALSE(TickInputOf(window, w).NestTraceSlider);
  EXPECT_EQ(s.AntsPerNest, 12);
  EXPECT_DOUBLE_EQ(s.AntSizeMm, 2);
  EXPECT_EQ(s.AntColour, Colour(10, 100, 70));
  EXPECT_EQ(s.FoodTraceSetting, 77);
  EXPECT_EQ(s.AntRed, 150);
  EXPECT_EQ(s.LifeSpan, 100);
  EXPECT_EQ(s.FoodRate, 2);
  EXPECT_EQ(window.PendingGridSize, 0);
  // New fills the dialog again from the settings: the cancelled colour is gone.
  NewFromOptions(t.simulation, window);
  EXPECT_EQ(w.Nests[0].Colour, Colour(150, 100, 70));
}

TEST_F(OptionsFormTest, OkTakesTheRestAndTheEditedGridWaitsForTheNextNew) {
  window.View.CurrentTool = NestTool;
  {
    OptionsForm form(w, window);
    form.ColourTyped(ColourBox::Blue, "200");
    form.AntSizeTyped("2");
    form.LifeSpanMoved(50);
    form.FoodRateMoved(0);
    form.GridSizeTyped("21");
    EXPECT_EQ(form.GridDimYText(), "21");
    form.ApplyOptions();
  }
  EXPECT_EQ(s.LifeSpan, 50);
  EXPECT_EQ(s.FoodRate, 0);
  EXPECT_EQ(window.View.ToolColour, Colour(150, 100, 200));
  EXPECT_EQ(s.GridX, 30);
  EXPECT_EQ(OptionsForm(w, window).GridDimXText(), "21");
  NewFromOptions(t.simulation, window);
  EXPECT_EQ(s.GridY, 21);
  EXPECT_EQ(w.Nests[0].CellX, 10);
  EXPECT_EQ(w.Nests[0].LifeSpan, 50);
  EXPECT_EQ(w.AntSizeTwips, CInt(2 * 56.7));
  EXPECT_EQ(window.PendingGridSize, 0);
  NewFromOptions(t.simulation, window);  // the next New keeps the size
  EXPECT_EQ(s.GridX, 21);
}

}  // namespace
}  // namespace keldor
