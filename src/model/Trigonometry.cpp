#include "model/Trigonometry.h"

#include <cmath>
#include <cstdint>
#include <cstring>

namespace keldor {

// The algorithm and coefficients of FreeBSD's msun (k_sin.c, k_cos.c,
// e_rem_pio2.c): Cody-Waite reduction by pi/2 split in three parts, then
// minimax polynomials on [-pi/4, pi/4].

namespace {

// Polynomial coefficients of sin(x) = x + S1 x^3 + ... + S6 x^13.
constexpr double S1 = -1.66666666666666324348e-01;
constexpr double S2 = 8.33333333332248946124e-03;
constexpr double S3 = -1.98412698298579493134e-04;
constexpr double S4 = 2.75573137070700676789e-06;
constexpr double S5 = -2.50507602534068634195e-08;
constexpr double S6 = 1.58969099521155010221e-10;

// Polynomial coefficients of cos(x) = 1 - x^2/2 + C1 x^4 + ... + C6 x^14.
constexpr double C1 = 4.16666666666666019037e-02;
constexpr double C2 = -1.38888888888741095749e-03;
constexpr double C3 = 2.48015872894767294178e-05;
constexpr double C4 = -2.75573143513906633035e-07;
constexpr double C5 = 2.08757232129817482790e-09;
constexpr double C6 = -1.13596475577881948265e-11;

// 2/pi, and pi/2 split in three parts of 33 bits (each product with a
// quotient below 2^20 is exact), each with the tail of what follows.
constexpr double TwoOverPi = 6.36619772367581382433e-01;
constexpr double HalfPi1 = 1.57079632673412561417e+00;
constexpr double HalfPi1Tail = 6.07710050650619224932e-11;
constexpr double HalfPi2 = 6.07710050630396597660e-11;
constexpr double HalfPi2Tail = 2.02226624879595063154e-21;
constexpr double HalfPi3 = 2.02226624871116645580e-21;
constexpr double HalfPi3Tail = 8.47842766036889956997e-32;

// Largest |x| the three-part reduction serves: 2^20 * pi/2.
constexpr double ReductionLimit = 1647099.3291652855;
// The double nearest 2*pi, for the exact remainder beyond that.
constexpr double TwoPi = 6.283185307179586;

// sin(x + y) for |x + y| <= pi/4, y a tail much smaller than x (or zero:
// then the shorter form, whose rounding the tail would not change).
double KernelSin(double x, double y) {
  const double z = x * x;
  const double w = z * z;
  const double r = S2 + z * (S3 + z * S4) + z * w * (S5 + z * S6);
  const double v = z * x;
  if (y == 0) return x + v * (S1 + z * r);
  return x - ((z * (0.5 * y - v * r) - y) - v * S1);
}

// cos(x + y) for |x + y| <= pi/4.
double KernelCos(double x, double y) {
  const double z = x * x;
  double w = z * z;
  const double r = z * (C1 + z * (C2 + z * C3)) + w * w * (C4 + z * (C5 + z * C6));
  const double hz = 0.5 * z;
  w = 1.0 - hz;
  return w + (((1.0 - w) - hz) + (z * r - x * y));
}

// (std::memcpy: Emscripten's libc++ has no std::bit_cast yet.)
int BiasedExponent(double v) {
  uint64_t bits = 0;
  std::memcpy(&bits, &v, sizeof bits);
  return static_cast<int>((bits >> 52) & 0x7ff);
}

// x - n * pi/2 as head + tail, with n the nearest integer to x * 2/pi; returns n.
struct Reduced {
  int Quadrant;
  double Head;
  double Tail;
};

Reduced ReduceByHalfPi(double x) {
  // Adding and subtracting 1.5 * 2^52 rounds to the nearest integer.
  constexpr double shift = 0x1.8p52;
  const double n = (x * TwoOverPi + shift) - shift;
  double r = x - n * HalfPi1;
  double w = n * HalfPi1Tail;
  double head = r - w;
  // Each further part is needed only when the difference cancelled many bits.
  const int exponent = BiasedExponent(x);
  if (exponent - BiasedExponent(head) > 16) {
    double t = r;
    w = n * HalfPi2;
    r = t - w;
    w = n * HalfPi2Tail - ((t - r) - w);
    head = r - w;
    if (exponent - BiasedExponent(head) > 49) {
      t = r;
      w = n * HalfPi3;
      r = t - w;
      w = n * HalfPi3Tail - ((t - r) - w);
      head = r - w;
    }
  }
  return {static_cast<int>(static_cast<int64_t>(n) & 3), head, (r - head) - w};
}

}  // namespace

SineCosine SinCos(double x) {
  if (!std::isfinite(x)) return {x - x, x - x};
  // Below 2^-27, x^3/6 and x^2/2 are under half an ulp of x and of 1; this
  // also keeps the sign of -0.
  if (std::fabs(x) < 0x1p-27) return {x, 1.0};
  if (std::fabs(x) <= 0.7853981633974483) return {KernelSin(x, 0), KernelCos(x, 0)};
  // fmod is exact, so every build agrees on the remainder.
  if (std::fabs(x) > ReductionLimit) x = std::fmod(x, TwoPi);
  const Reduced a = ReduceByHalfPi(x);
  const double s = KernelSin(a.Head, a.Tail);
  const double c = KernelCos(a.Head, a.Tail);
  switch (a.Quadrant) {
    case 0: return {s, c};
    case 1: return {c, -s};
    case 2: return {-s, -c};
    default: return {-c, s};
  }
}

}  // namespace keldor
