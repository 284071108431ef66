#include "model/Numeric.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

namespace keldor {
namespace {

TEST(NumericTest, CIntRoundsHalfToEven) {
  EXPECT_EQ(CInt(0.5), 0);
  EXPECT_EQ(CInt(1.5), 2);
  EXPECT_EQ(CInt(2.5), 2);
  EXPECT_EQ(CInt(-2.5), -2);
  EXPECT_EQ(CInt(-0.5), 0);
  EXPECT_EQ(CInt(2.5000001), 3);
  EXPECT_EQ(CInt(-7.9), -8);
  EXPECT_EQ(CInt(std::nan("")), 0);
  EXPECT_EQ(CInt(1e300), std::numeric_limits<int32_t>::max());
}

// The inline fast paths must agree with the library's rounding everywhere:
// halves, negatives, signed zeros, the fast-range borders and beyond.
TEST(NumericTest, CIntAndIntAgreeWithTheLibrary) {
  std::vector<double> values = {0.0, -0.0, 0x1p30, -0x1p30, 0x1p30 - 0.5, -0x1p30 + 0.5, 2147483646.5,
                                -2147483647.5, 0x1p52, -0x1p52, 0x1p52 + 1, 4503599627370495.5, 1e300,
                                -1e300, std::numeric_limits<double>::infinity(), 0.49999999999999994,
                                -0.49999999999999994, std::numeric_limits<double>::denorm_min()};
  for (int k = -2000; k <= 2000; ++k) {
    values.push_back(k + 0.5);
    values.push_back(k * 1048575.75 + 0.5);
    values.push_back(std::nextafter(k + 0.5, 0.0));
    values.push_back(std::nextafter(k + 0.5, k + 1.0));
    values.push_back(k / 7.0);
  }
  for (double v : values) {
    for (double x : {v, -v}) {
      const double rounded = std::nearbyint(x);
      const int32_t expected = rounded >= 2147483647.0    ? std::numeric_limits<int32_t>::max()
                               : rounded <= -2147483648.0 ? std::numeric_limits<int32_t>::min()
                                                          : static_cast<int32_t>(rounded);
      EXPECT_EQ(CInt(x), expected) << x;
      const double floored = Int(x);
      EXPECT_EQ(floored, std::floor(x)) << x;
      EXPECT_EQ(std::signbit(floored), std::signbit(std::floor(x))) << x;
    }
  }
}

TEST(NumericTest, IntIsTheFloor) {
  EXPECT_EQ(Int(2.9), 2);
  EXPECT_EQ(Int(-0.1), -1);
  EXPECT_EQ(Int(-7.9), -8);
  EXPECT_EQ(Int(3), 3);
}

TEST(NumericTest, SixteenBitCountsNeverWrap) {
  int16_t count = 32766;
  EXPECT_TRUE(TryAddInt16(count, 1));
  EXPECT_EQ(count, 32767);
  EXPECT_FALSE(TryAddInt16(count, 1));
  EXPECT_EQ(count, 32767);
  int16_t low = -32768;
  EXPECT_FALSE(TryAddInt16(low, -1));
  EXPECT_EQ(low, -32768);
  EXPECT_EQ(ClampToInt16(40000), 32767);
  EXPECT_EQ(ClampToInt16(-40000), -32768);
  EXPECT_EQ(ClampToInt16(-5), -5);
}

TEST(NumericTest, NumericTextIsASignedDecimal) {
  for (const char* yes : {"30", "-7.9", "+3", " 3.5 ", ".5", "5.", "0"}) EXPECT_TRUE(IsNumeric(yes)) << yes;
  for (const char* no : {"", " ", "abc", "3a", "1.2.3", "-", ".", "1e3", "--1"}) EXPECT_FALSE(IsNumeric(no)) << no;
  EXPECT_DOUBLE_EQ(ToNumber(" -7.9 "), -7.9);
  EXPECT_DOUBLE_EQ(ToNumber("abc"), 0);
}

TEST(NumericTest, TextConversions) {
  EXPECT_EQ(CStr(30), "30");
  EXPECT_EQ(CStr(3.0), "3");
  EXPECT_EQ(CStr(0.5), "0.5");
  EXPECT_EQ(CStr(-1.25), "-1.25");
  EXPECT_EQ(CStr(-0.0), "0");

  EXPECT_EQ(Format(0.7, "#.0"), ".7");
  EXPECT_EQ(Format(2, "#.0"), "2.0");
  EXPECT_EQ(Format(5.8767, "#.0"), "5.9");
  EXPECT_EQ(Format(1.1, "#.##"), "1.1");
  EXPECT_EQ(Format(2, "#.##"), "2.");
  EXPECT_EQ(Format(0.5, "#.##"), ".5");
  EXPECT_EQ(Format(1.234, "#.##"), "1.23");
  EXPECT_EQ(Format(-0.5, "#.##"), "-.5");
  EXPECT_EQ(Format(-0.001, "#.##"), ".");
}

TEST(NumericTest, RgbPacksRedGreenBlue) {
  EXPECT_EQ(Rgb(255, 0, 0), 255);
  EXPECT_EQ(Rgb(0, 0, 255), 16711680);
  EXPECT_EQ(Rgb(150, 100, 70), 150 + 256 * 100 + 65536 * 70);
}

}  // namespace
}  // namespace keldor
