#include "model/Numeric.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

#include "model/Queries.h"
#include "model/World.h"

namespace keldor {
namespace {

constexpr double NaN = std::numeric_limits<double>::quiet_NaN();

TEST(NumericTest, CIntRoundsHalfToEvenAndSaturates) {
  const std::pair<double, int32_t> cases[] = {{0.5, 0},   {1.5, 2},   {2.5, 2}, {-2.5, -2},
                                              {-7.9, -8}, {2.5000001, 3}, {NaN, 0}, {1e300, INT32_MAX}};
  for (const auto& [in, out] : cases) EXPECT_EQ(CInt(in), out) << in;
}

// The inline fast paths must agree with the library's rounding everywhere:
// halves, negatives, signed zeros, the fast-range borders and beyond.
TEST(NumericTest, CIntAndIntAgreeWithNearbyintAndFloor) {
  std::vector<double> values = {0.0, 0x1p30, 0x1p30 - 0.5, 2147483646.5, 2147483647.5, 0x1p52 + 1,
                                4503599627370495.5, 1e300, std::numeric_limits<double>::infinity(),
                                0.49999999999999994, std::numeric_limits<double>::denorm_min()};
  for (int k = -2000; k <= 2000; ++k) {
    for (double v : {k + 0.5, k * 1048575.75 + 0.5, std::nextafter(k + 0.5, 0.0), std::nextafter(k + 0.5, k + 1.0),
                     k / 7.0}) {
      values.push_back(v);
    }
  }
  for (double v : values) {
    for (double x : {v, -v}) {
      const double r = std::nearbyint(x);
      const int32_t expected = r >= 2147483647.0 ? INT32_MAX : r <= -2147483648.0 ? INT32_MIN : static_cast<int32_t>(r);
      EXPECT_EQ(CInt(x), expected) << x;
      EXPECT_EQ(Int(x), std::floor(x)) << x;
      EXPECT_EQ(std::signbit(Int(x)), std::signbit(std::floor(x))) << x;
    }
  }
}

TEST(NumericTest, SixteenBitCountsStopAt32767) {
  int16_t count = 32766;
  EXPECT_TRUE(TryAddInt16(count, 1));
  EXPECT_FALSE(TryAddInt16(count, 1));
  EXPECT_EQ(count, 32767);
  int16_t low = -32768;
  EXPECT_FALSE(TryAddInt16(low, -1));
  EXPECT_EQ(low, -32768);
  EXPECT_EQ(ClampToInt16(40000), 32767);
  EXPECT_EQ(ClampToInt16(-40000), -32768);
}

TEST(NumericTest, TextRules) {
  for (const char* yes : {"30", "-7.9", "+3", " 3.5 ", ".5", "5."}) EXPECT_TRUE(IsNumeric(yes)) << yes;
  for (const char* no : {"", " ", "3a", "1.2.3", "-", ".", "1e3", "--1"}) EXPECT_FALSE(IsNumeric(no)) << no;
  EXPECT_DOUBLE_EQ(ToNumber(" -7.9 "), -7.9);
  EXPECT_EQ(CStr(3.0), "3");
  EXPECT_EQ(CStr(-1.25), "-1.25");
  EXPECT_EQ(CStr(-0.0), "0");
  const std::tuple<double, const char*, const char*> formats[] = {
      {0.7, "#.0", ".7"}, {2, "#.0", "2.0"},     {5.8767, "#.0", "5.9"}, {2, "#.##", "2."},
      {1.234, "#.##", "1.23"}, {-0.5, "#.##", "-.5"}, {-0.001, "#.##", "."}};
  for (const auto& [value, pattern, text] : formats) EXPECT_EQ(Format(value, pattern), text) << value << pattern;
}

TEST(QueriesTest, BrickFlagNestCellAndMinMax) {
  World w;
  w.Cells.Reset(5, 5);
  CellObjects& objects = w.Cells(2, 3).Objects;
  const auto object = [](const char* type) {
    WallObject o;
    o.TypeName = type;
    return o;
  };
  objects.Add(object("plaster_brick"));  // the type name is exact
  EXPECT_FALSE(objects.HasBrick());
  objects.Add(object("PLASTER_BRICK"));
  objects.Add(object("PLASTER_BRICK"));
  objects.RemoveBrick();
  EXPECT_TRUE(objects.HasBrick());  // one of the two is left
  objects.RemoveBrick();
  EXPECT_FALSE(objects.HasBrick());
  EXPECT_EQ(objects.Count(), 1);
  EXPECT_FALSE(w.Cells(3, 2).Objects.HasBrick());
  EXPECT_FALSE(IsNestCell(w, 0, 0));  // no nests: nothing is a nest cell
  w.Nests.resize(3);
  w.NestCount = 3;
  w.Nests[2].CellX = 4;
  w.Nests[2].CellY = 1;
  EXPECT_TRUE(IsNestCell(w, 4, 1));
  EXPECT_FALSE(IsNestCell(w, 1, 4));
  w.NestCount = 2;  // slots beyond the count mean nothing
  EXPECT_FALSE(IsNestCell(w, 4, 1));
  EXPECT_TRUE(Min(NaN, 2) == 2 && Max(NaN, 2) == 2 && Min(-1, 2) == -1 && Max(-1, 2) == 2);
}

TEST(QueriesTest, PointToSegmentDistance) {
  Ant b;  // rear (0, 0), head (10, 0)
  b.HeadX = 10;
  Ant point;  // a segment of length zero measures to its rear
  point.RearX = point.HeadX = 1;
  const std::tuple<double, double, const Ant*, double> cases[] = {
      {5, 3, &b, 3},       // over the segment
      {-4, 3, &b, 5},      // nearest point: the rear
      {13, 4, &b, 5},      // nearest point: the head
      {4, 4, &point, 5}};
  for (const auto& [x, y, segment, distance] : cases) {
    Ant a;
    a.HeadX = x;
    a.HeadY = y;
    EXPECT_DOUBLE_EQ(PointToSegmentDistance(a, *segment), distance) << x << "," << y;
  }
}


TEST(QueriesTest, CellFinderMatchesTheDivisionOnAndNearCellBorders) {
  const struct {
    double cellSize, v;
    int cell;
  } cases[] = {{100, 0, 1},      {100, 99.99999999999999, 1}, {100, 100, 2}, {100, -1e-300, 0},
               {100, -100, 0},   {100, -100.00000000000001, -1},  // floor(-1.0000000000000002) = -2
               {0.3, 0.6, 3},    // 0.6 / 0.3 is exactly 2, though 0.6 * (1 / 0.3) is not
               {100, 1e12, 32767}};
  for (const auto& c : cases) EXPECT_EQ(CellFinder(c.cellSize)(c.v), c.cell) << c.cellSize << " " << c.v;
  // Coordinates a few units in the last place either side of every border.
  for (const double size : {10.0, 100.0, 0.3, 7.0 / 3}) {
    const CellFinder cellOf(size);
    for (int k = -300; k <= 300; ++k) {
      double v = k * size;
      for (int step = 0; step < 4; ++step) v = std::nextafter(v, -1e9);
      for (int step = 0; step < 8; ++step, v = std::nextafter(v, 1e9)) {
        ASSERT_EQ(cellOf(v), CellOfCoordinate(v, size)) << size << " " << k << " " << step;
      }
    }
  }
}

}  // namespace
}  // namespace keldor
