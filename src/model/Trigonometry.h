// The sine and cosine every build shares. C libraries round sines and cosines
// differently in the last bit, and an ant's turn feeds every later step, so
// the simulation uses this implementation instead of std::sin and std::cos.
// It uses only IEEE-754 additions, multiplications and integer bit reads, in
// a fixed order; with -ffp-contract=off every build gives the same bits.
#pragma once

namespace keldor {

struct SineCosine {
  double Sin = 0;
  double Cos = 1;
};

// Sine and cosine of x radians, within 1 ulp of the true values for
// |x| <= 2^20 * pi/2 (the turns of the simulation stay within +-pi/3).
// Beyond that the angle is first reduced modulo the double nearest 2*pi,
// exactly: the same on every build, but no longer close to the true values.
// An infinite or NaN angle gives NaN for both.
SineCosine SinCos(double x);

}  // namespace keldor
