#include "model/Trigonometry.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace keldor {
namespace {

// True when got is expected or one of its two neighbouring doubles.
bool WithinOneUlp(double got, double expected) {
  return got >= std::nextafter(expected, -INFINITY) && got <= std::nextafter(expected, INFINITY);
}

TEST(TrigonometryTest, ZeroGivesExactValuesAndKeepsItsSign) {
  EXPECT_TRUE(SinCos(0.0).Sin == 0.0 && SinCos(0.0).Cos == 1.0);
  EXPECT_TRUE(std::signbit(SinCos(-0.0).Sin) && SinCos(-0.0).Cos == 1.0);
  // sin x = x - x^3/6 + ...: below 2^-27 the cube is under half an ulp of x.
  EXPECT_TRUE(SinCos(1e-9).Sin == 1e-9 && SinCos(1e-9).Cos == 1.0);
}

// References: the sine and cosine of each double argument worked out in
// 80-digit decimal arithmetic (Taylor series, pi from Machin's formula), then
// rounded to the nearest double. pi/2 and pi are the doubles nearest them, so
// cos(pi/2) is pi/2 minus that double, and sin(pi) is pi minus its double.
TEST(TrigonometryTest, KnownAnglesWithinOneUlp) {
  struct Case { double X, Sin, Cos; };
  const Case cases[] = {
      {0.5235987755982988, 0.49999999999999994, 0.8660254037844387},  // pi/6
      {1.0471975511965976, 0.8660254037844386, 0.5000000000000001},   // pi/3
      {1.5707963267948966, 1.0, 6.123233995736766e-17},               // pi/2
      {3.141592653589793, 1.2246467991473532e-16, -1.0},              // pi
      {100.0, -0.5063656411097588, 0.8623188722876839},
      {1e6, -0.34999350217129294, 0.9367521275331447},
  };
  for (const Case& c : cases) {
    const SineCosine t = SinCos(c.X);
    EXPECT_TRUE(WithinOneUlp(t.Sin, c.Sin)) << c.X << ": " << t.Sin;
    EXPECT_TRUE(WithinOneUlp(t.Cos, c.Cos)) << c.X << ": " << t.Cos;
  }
}

// Sine is odd and cosine even, bit for bit; sin^2 + cos^2 stays 1 within a
// few ulps in every quadrant, across the ant's turns and well beyond them.
TEST(TrigonometryTest, SymmetricAndOnTheUnitCircle) {
  for (double x = -40; x <= 40; x += 0.0137) {
    const SineCosine t = SinCos(x);
    const SineCosine mirrored = SinCos(-x);
    EXPECT_EQ(mirrored.Sin, -t.Sin) << x;
    EXPECT_EQ(mirrored.Cos, t.Cos) << x;
    EXPECT_NEAR(t.Sin * t.Sin + t.Cos * t.Cos, 1.0, 4e-16) << x;
  }
}

TEST(TrigonometryTest, LargeAndNonFiniteArguments) {
  // Beyond the three-part reduction the values stay on the unit circle.
  for (double x : {2e6, 1e9, -3.5e15, 1e300}) {
    const SineCosine t = SinCos(x);
    EXPECT_NEAR(t.Sin * t.Sin + t.Cos * t.Cos, 1.0, 4e-16) << x;
  }
  constexpr double infinity = std::numeric_limits<double>::infinity();
  for (double x : {infinity, -infinity, std::numeric_limits<double>::quiet_NaN()}) {
    EXPECT_TRUE(std::isnan(SinCos(x).Sin) && std::isnan(SinCos(x).Cos)) << x;
  }
}

}  // namespace
}  // namespace keldor
