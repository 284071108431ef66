#include "model/ShortestText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

namespace keldor {
namespace {

std::string Text(double v) {
  char buffer[ShortestTextCapacity];
  return std::string(ShortestText(v, buffer));
}

TEST(ShortestTextTest, FewestDigitsThatReadBack) {
  EXPECT_EQ(Text(0.1), "0.1");
  EXPECT_EQ(Text(-123.456), "-123.456");
  EXPECT_EQ(Text(0.1 + 0.2), "0.30000000000000004");  // 0.3 reads back as another double
  EXPECT_EQ(Text(1.0 / 3), "0.3333333333333333");
  EXPECT_EQ(Text(0.0), "0");
  EXPECT_EQ(Text(-0.0), "-0");
  EXPECT_EQ(Text(-INFINITY), "-inf");
  EXPECT_EQ(Text(std::numeric_limits<double>::quiet_NaN()), "nan");
}

// Plain or scientific, whichever is shorter; plain on a tie.
TEST(ShortestTextTest, ShorterNotationWins) {
  EXPECT_EQ(Text(1000), "1000");      // 4 characters against 1e+03's 5
  EXPECT_EQ(Text(10000), "10000");    // 5 against 5: plain
  EXPECT_EQ(Text(100000), "1e+05");   // 6 against 5
  EXPECT_EQ(Text(0.015), "0.015");    // 5 against 1.5e-02's 7
  EXPECT_EQ(Text(0.001), "0.001");    // 5 against 5
  EXPECT_EQ(Text(0.0001), "1e-04");   // 6 against 5
  EXPECT_EQ(Text(5e-324), "5e-324");
  EXPECT_EQ(Text(1.7976931348623157e308), "1.7976931348623157e+308");
}

// A whole number in plain notation is written exactly, not as its shortest
// digits padded with zeros.
TEST(ShortestTextTest, PlainWholeNumbersAreExact) {
  EXPECT_EQ(Text(std::ldexp(1.0, 60)), "1152921504606846976");      // 19 against 21
  EXPECT_EQ(Text(std::ldexp(1.0, 70)), "1180591620717411303424");   // 22 against 22
  EXPECT_EQ(Text(-std::ldexp(3.0, 60)), "-3458764513820540928");
}

}  // namespace
}  // namespace keldor
