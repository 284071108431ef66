#include "model/OptionsForm.h"

#include <gtest/gtest.h>

#include "model/Numeric.h"
#include "support/TestWorld.h"

namespace keldor {
namespace {

TEST(OptionsFormTest, OpeningShowsTheSettingsAndLetsTheTickReadTheNestSlider) {
  testing::TestWorld t;
  World& w = t.world;
  {
    OptionsForm form(w);
    EXPECT_EQ(form.NumAntsText(), "30");
    EXPECT_EQ(form.AntSizeText(), "3");
    EXPECT_EQ(form.GridDimXText(), "30");
    EXPECT_EQ(form.GridDimYText(), "30");
    EXPECT_EQ(form.ColourText(ColourBox::Blue), "70");
    EXPECT_EQ(form.PreviewColour(), Rgb(150, 100, 70));
    EXPECT_EQ(form.FoodTrace(), 500);
    EXPECT_TRUE(w.OptionsOpen);
    EXPECT_EQ(w.NestTraceValue(), 250);
    form.sliNestTrace_Change(40);
    EXPECT_EQ(w.NestTraceValue(), 40);
    EXPECT_EQ(w.Settings.NestTraceSetting, 40);
  }
  EXPECT_FALSE(w.OptionsOpen);
  EXPECT_EQ(w.NestTraceValue(), 250);
}

TEST(OptionsFormTest, PopulationTextIsCorrectedAsTyped) {
  testing::TestWorld t;
  OptionsForm form(t.world);
  form.txtNumAnts_Change("-7.9");
  EXPECT_EQ(form.NumAntsText(), "8");
  EXPECT_EQ(t.world.Settings.AntsPerNest, 8);
  form.txtNumAnts_Change("abc");
  EXPECT_EQ(form.NumAntsText(), "30");
  form.txtNumAnts_Change("");
  EXPECT_EQ(form.NumAntsText(), "30");
  form.txtNumAnts_Change("12.99");
  EXPECT_EQ(form.NumAntsText(), "12");
  // A 16-bit count cannot hold more.
  form.txtNumAnts_Change("99999999999");
  EXPECT_EQ(form.NumAntsText(), "32767");
  EXPECT_EQ(t.world.Settings.AntsPerNest, 32767);
}

TEST(OptionsFormTest, AntLengthIsCutToTheNestRadius) {
  testing::TestWorld t;
  OptionsForm form(t.world);
  form.txtAntSize_Change("4.5");
  EXPECT_EQ(form.AntSizeText(), "4.5");
  EXPECT_DOUBLE_EQ(t.world.Settings.AntSizeMm, 4.5);
  // 30 x 30 grid: radius 2000/30/2*10 = 333.3 twips = 5.88 mm.
  form.txtAntSize_Change("9");
  EXPECT_EQ(form.AntSizeText(), "5.9");
  EXPECT_DOUBLE_EQ(t.world.Settings.AntSizeMm, 5.9);
  form.txtAntSize_Change("x");
  EXPECT_EQ(form.AntSizeText(), "x");
  EXPECT_DOUBLE_EQ(t.world.Settings.AntSizeMm, 3.0);
}

TEST(OptionsFormTest, ColourBoxesClampAndFallBack) {
  testing::TestWorld t;
  WorldSettings& s = t.world.Settings;
  OptionsForm form(t.world);
  form.txtAntsColour_Change(ColourBox::Red, "300");
  EXPECT_EQ(form.ColourText(ColourBox::Red), "255");
  EXPECT_EQ(s.AntColour, Rgb(255, 100, 70));
  EXPECT_EQ(form.PreviewColour(), Rgb(255, 100, 70));
  form.txtAntsColour_Change(ColourBox::Green, "-4");
  EXPECT_EQ(form.ColourText(ColourBox::Green), "0");
  form.txtAntsColour_Change(ColourBox::Blue, "12.7");
  EXPECT_EQ(form.ColourText(ColourBox::Blue), "12");
  EXPECT_EQ(s.AntColour, Rgb(255, 0, 12));
  form.txtAntsColour_Change(ColourBox::Green, "g");
  EXPECT_EQ(form.ColourText(ColourBox::Green), "g");
  EXPECT_EQ(s.AntColour, Rgb(150, 100, 70));
  EXPECT_EQ(form.PreviewColour(), Rgb(255, 0, 12));
  // The components themselves change only on OK, and the unreadable one stays.
  EXPECT_EQ(s.AntRed, 150);
  form.ApplyOptions();
  EXPECT_EQ(s.AntRed, 255);
  EXPECT_EQ(s.AntGreen, 100);
  EXPECT_EQ(s.AntBlue, 12);
  EXPECT_EQ(s.AntColour, Rgb(255, 100, 12));
}

TEST(OptionsFormTest, CancelKeepsOnlyWhatWasTakenOverOnChange) {
  testing::TestWorld t;
  WorldSettings& s = t.world.Settings;
  {
    OptionsForm form(t.world);
    form.txtNumAnts_Change("12");
    form.txtAntSize_Change("2");
    form.txtAntsColour_Change(ColourBox::Red, "10");
    form.sliLifeSpan_Change(20);
    form.sliFoodRate_Change(50);
    form.sliFoodTrace_Change(77);
    form.txtGridDimX_Change("40");
  }  // closed without OK
  EXPECT_EQ(s.AntsPerNest, 12);
  EXPECT_DOUBLE_EQ(s.AntSizeMm, 2);
  EXPECT_EQ(s.AntColour, Rgb(10, 100, 70));
  EXPECT_EQ(s.FoodTraceSetting, 77);
  EXPECT_EQ(s.AntRed, 150);
  EXPECT_EQ(s.LifeSpan, 100);
  EXPECT_EQ(s.FoodRate, 2);
  EXPECT_EQ(t.world.PendingGridSize, 0);
}

TEST(OptionsFormTest, OkTakesOverTheRestAndGivesTheNestToolTheNewColour) {
  testing::TestWorld t;
  WorldSettings& s = t.world.Settings;
  s.CurrentTool = NestTool;
  OptionsForm form(t.world);
  form.txtAntsColour_Change(ColourBox::Blue, "200");
  form.sliLifeSpan_Change(20);
  form.sliFoodRate_Change(0);
  form.ApplyOptions();
  EXPECT_EQ(s.LifeSpan, 20);
  EXPECT_EQ(s.FoodRate, 0);
  EXPECT_EQ(s.ToolColour, Rgb(150, 100, 200));
}

TEST(OptionsFormTest, EditedGridSizeWaitsForTheNextNew) {
  testing::TestWorld t;
  World& w = t.world;
  {
    OptionsForm form(w);
    form.txtGridDimX_Change("21");
    EXPECT_EQ(form.GridDimYText(), "21");
    form.ApplyOptions();
  }
  EXPECT_EQ(w.Settings.GridX, 30);
  {
    OptionsForm reopened(w);
    EXPECT_EQ(reopened.GridDimXText(), "21");
  }
  NewFromOptions(w, t.random);
  EXPECT_EQ(w.Settings.GridX, 21);
  EXPECT_EQ(w.Settings.GridY, 21);
  EXPECT_EQ(w.Nests[0].CellX, 10);
  EXPECT_EQ(w.PendingGridSize, 0);
  // The next New keeps the size.
  NewFromOptions(w, t.random);
  EXPECT_EQ(w.Settings.GridX, 21);
}

TEST(OptionsFormTest, GridBoxHoldsOnlySizesTheProgramCanBuild) {
  testing::TestWorld t;
  OptionsForm form(t.world);
  form.txtGridDimX_Change("500");
  EXPECT_EQ(form.GridDimXText(), "181");
  form.txtGridDimX_Change("0");
  EXPECT_EQ(form.GridDimXText(), "20");  // as New reads a 0
  form.txtGridDimX_Change("-3");
  EXPECT_EQ(form.GridDimYText(), "1");
  // A box left without a number changes nothing on OK.
  form.txtGridDimX_Change("");
  form.ApplyOptions();
  EXPECT_EQ(t.world.PendingGridSize, 0);
}

TEST(OptionsFormTest, NewReadsTheLifeSpanAndAntSizeTheDialogWouldShow) {
  testing::TestWorld t;
  World& w = t.world;
  {
    OptionsForm form(w);
    form.txtAntSize_Change("2");
    form.sliLifeSpan_Change(50);
    form.ApplyOptions();
  }
  NewFromOptions(w, t.random);
  EXPECT_EQ(w.AntSizeTwips, CInt(2 * 56.7));
  EXPECT_EQ(w.Nests[0].LifeSpan, 50);
}

}  // namespace
}  // namespace keldor
