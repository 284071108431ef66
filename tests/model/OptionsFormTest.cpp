#include "model/OptionsForm.h"

#include <gtest/gtest.h>

#include "model/Numeric.h"
#include "support/TestWorld.h"

namespace keldor {
namespace {

class OptionsFormTest : public ::testing::Test {
 protected:
  testing::TestWorld t;
  World& w = t.world;
  WorldSettings& s = t.world.Settings;
};

TEST_F(OptionsFormTest, TextBoxesAreCorrectedAsTyped) {
  OptionsForm form(w);
  const std::pair<const char*, const char*> ants[] = {
      {"-7.9", "8"}, {"abc", "30"}, {"", "30"}, {"12.99", "12"}, {"99999999999", "32767"}};
  for (const auto& [typed, shown] : ants) {
    form.txtNumAnts_Change(typed);
    EXPECT_EQ(form.NumAntsText(), shown) << typed;
  }
  EXPECT_EQ(s.AntsPerNest, 32767);
  // 30 x 30 grid: the nest radius is 2000/30/2*10 twips, 5.88 mm.
  form.txtAntSize_Change("9");
  EXPECT_EQ(form.AntSizeText(), "5.9");
  EXPECT_DOUBLE_EQ(s.AntSizeMm, 5.9);
  form.txtAntSize_Change("x");
  EXPECT_EQ(form.AntSizeText(), "x");
  EXPECT_DOUBLE_EQ(s.AntSizeMm, 3.0);

  const std::tuple<ColourBox, const char*, const char*> colours[] = {{ColourBox::Red, "300", "255"},
                                                                     {ColourBox::Green, "-4", "0"},
                                                                     {ColourBox::Blue, "12.7", "12"}};
  for (const auto& [box, typed, shown] : colours) {
    form.txtAntsColour_Change(box, typed);
    EXPECT_EQ(form.ColourText(box), shown) << typed;
  }
  EXPECT_EQ(s.AntColour, Rgb(255, 0, 12));
  form.txtAntsColour_Change(ColourBox::Green, "g");  // unreadable: the settings colour falls back
  EXPECT_EQ(s.AntColour, Rgb(150, 100, 70));
  EXPECT_EQ(form.PreviewColour(), Rgb(255, 0, 12));
  form.txtGridDimX_Change("500");
  EXPECT_EQ(form.GridDimXText(), "181");
  form.txtGridDimX_Change("0");
  EXPECT_EQ(form.GridDimXText(), "20");
  form.txtGridDimX_Change("-3");
  EXPECT_EQ(form.GridDimYText(), "1");
  form.txtGridDimX_Change("");  // no number: OK leaves the grid alone
  form.ApplyOptions();  // the colour components change only on OK; the unreadable one stays
  EXPECT_EQ(s.AntColour, Rgb(255, 100, 12));
  EXPECT_EQ(w.PendingGridSize, 0);
  // Typed while Green holds no number, so never corrected on change: OK clamps them.
  form.txtAntsColour_Change(ColourBox::Red, "-50");
  form.txtAntsColour_Change(ColourBox::Blue, "300.5");
  form.ApplyOptions();
  EXPECT_EQ(s.AntColour, Rgb(0, 100, 255));
  EXPECT_TRUE(s.AntRed == 0 && s.AntBlue == 255);
}

TEST_F(OptionsFormTest, CancelKeepsOnlyWhatWasTakenOverOnChange) {
  {
    OptionsForm form(w);
    EXPECT_EQ(form.PreviewColour(), Rgb(150, 100, 70));
    form.sliNestTrace_Change(40);
    EXPECT_EQ(w.NestTraceValue(), 40);  // the tick reads the slider while the form is open
    form.txtNumAnts_Change("12");
    form.txtAntSize_Change("2");
    form.txtAntsColour_Change(ColourBox::Red, "10");
    form.sliLifeSpan_Change(20);
    form.sliFoodRate_Change(50);
    form.sliFoodTrace_Change(77);
    form.txtGridDimX_Change("40");
  }  // closed without OK
  EXPECT_EQ(s.NestTraceSetting, 40);
  EXPECT_EQ(w.NestTraceValue(), 250);
  EXPECT_EQ(s.AntsPerNest, 12);
  EXPECT_DOUBLE_EQ(s.AntSizeMm, 2);
  EXPECT_EQ(s.AntColour, Rgb(10, 100, 70));
  EXPECT_EQ(s.FoodTraceSetting, 77);
  EXPECT_EQ(s.AntRed, 150);
  EXPECT_EQ(s.LifeSpan, 100);
  EXPECT_EQ(s.FoodRate, 2);
  EXPECT_EQ(w.PendingGridSize, 0);
}

TEST_F(OptionsFormTest, OkTakesTheRestAndTheEditedGridWaitsForTheNextNew) {
  s.CurrentTool = NestTool;
  {
    OptionsForm form(w);
    form.txtAntsColour_Change(ColourBox::Blue, "200");
    form.txtAntSize_Change("2");
    form.sliLifeSpan_Change(50);
    form.sliFoodRate_Change(0);
    form.txtGridDimX_Change("21");
    EXPECT_EQ(form.GridDimYText(), "21");
    form.ApplyOptions();
  }
  EXPECT_EQ(s.LifeSpan, 50);
  EXPECT_EQ(s.FoodRate, 0);
  EXPECT_EQ(s.ToolColour, Rgb(150, 100, 200));
  EXPECT_EQ(s.GridX, 30);
  EXPECT_EQ(OptionsForm(w).GridDimXText(), "21");
  NewFromOptions(w, t.random);
  EXPECT_EQ(s.GridY, 21);
  EXPECT_EQ(w.Nests[0].CellX, 10);
  EXPECT_EQ(w.Nests[0].LifeSpan, 50);
  EXPECT_EQ(w.AntSizeTwips, CInt(2 * 56.7));
  EXPECT_EQ(w.PendingGridSize, 0);
  NewFromOptions(w, t.random);  // the next New keeps the size
  EXPECT_EQ(s.GridX, 21);
}

}  // namespace
}  // namespace keldor
