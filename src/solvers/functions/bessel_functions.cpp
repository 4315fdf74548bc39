#include "solvers/functions/bessel_functions.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "solvers/functions/bessel_start.h"

namespace lumivex {

namespace {

constexpr double EulerGamma = 0.577215664901532861;
constexpr double TwoOverPi = 0.636619772367581343;
constexpr double VanishingArgument = 1e-100;
constexpr double LargestY = 1e300;
/// From here the asymptotic expansion of the orders 0 and 1 has terms below 1e-17.
constexpr double AsymptoticFrom = 30.0;
constexpr double SweepStart = 1e-100;

/// J_n and Y_n of order 0 or 1 by the expansion of Hankel (Abramowitz and Stegun 1964, 9.2.5 to 9.2.10).
void Hankel(double x, int order, double& J, double& Y) {
  const double mu = 4.0 * order * order;
  double P = 1.0;
  double Q = 0.0;
  double term = 1.0;
  for (int k = 1; k <= 60; ++k) {
    const double odd = 2.0 * k - 1.0;
    const double next = term * (mu - odd * odd) / (8.0 * x * k);
    if (std::fabs(next) >= std::fabs(term) && k > 2) break;
    term = next;
    // The signs run + + - - over P_0, Q_1, P_2, Q_3.
    const double sign = (k / 2) % 2 == 0 ? 1.0 : -1.0;
    (k % 2 == 0 ? P : Q) += sign * term;
    if (std::fabs(term) < 1e-18) break;
  }
  // cos and sin of x - pi/4 (order 0) and x - 3 pi/4 (order 1), without rounding x - pi/4.
  const double s = std::sin(x);
  const double c = std::cos(x);
  const double half = std::sqrt(0.5);
  const double cosine = order == 0 ? (c + s) * half : (s - c) * half;
  const double sine = order == 0 ? (s - c) * half : -(s + c) * half;
  const double scale = std::sqrt(TwoOverPi / x);
  J = scale * (P * cosine - Q * sine);
  Y = scale * (P * sine + Q * cosine);
}

/// One backward sweep from `start`: J_k for k <= last, and the series of Y_0 and Y_1.
void Sweep(double x, int start, int last, std::vector<double>& J, double& Y0, double& Y1) {
  double above = 0.0;
  double value = SweepStart;
  double norm = 0.0;
  double evenSum = 0.0;
  double oddSum = 0.0;
  for (int k = start; k >= 0; --k) {
    const double below = 2.0 * (k + 1.0) / x * value - above;
    above = value;
    value = below;
    if (k <= last) J[static_cast<std::size_t>(k)] = value;
    if (k % 2 == 0) {
      norm += k == 0 ? value : 2.0 * value;
      if (k > 0) evenSum += ((k / 2) % 2 == 0 ? value : -value) / (k / 2);
    } else if (k > 1) {
      const double i = (k - 1) / 2;
      oddSum += ((k - 1) / 2 % 2 == 0 ? value : -value) * k / (i * (i + 1.0));
    }
  }
  const double scale = 1.0 / norm;
  for (int k = 0; k <= last; ++k) J[static_cast<std::size_t>(k)] *= scale;
  const double J0 = value * scale;
  const double J1 = above * scale;
  const double logarithm = std::log(0.5 * x) + EulerGamma;
  Y0 = TwoOverPi * (logarithm * J0 - 2.0 * evenSum * scale);
  Y1 = TwoOverPi * (-J0 / x + (logarithm - 1.0) * J1 - oddSum * scale);
}

void Vanishing(int n, RealBessel& r) {
  const auto size = static_cast<std::size_t>(n) + 1;
  r.RealBesselJ.assign(size, 0.0);
  r.RealBesselY.assign(size, -LargestY);
  r.derivativeJ.assign(size, 0.0);
  r.derivativeY.assign(size, LargestY);
  r.RealBesselJ[0] = 1.0;
  r.derivativeJ[1] = 0.5;
}

void FillY(double x, RealBessel& r) {
  for (std::size_t k = 2; k < r.RealBesselY.size(); ++k) {
    const double factor = 2.0 * (static_cast<double>(k) - 1.0) / x;
    const double before = r.RealBesselY[k - 1];
    const bool beyond = std::fabs(before) > LargestY / std::max(4.0, 2.0 * factor);
    r.RealBesselY[k] = beyond ? -LargestY : factor * before - r.RealBesselY[k - 2];
  }
}

void FillDerivatives(double x, RealBessel& r) {
  const std::size_t size = r.RealBesselJ.size();
  r.derivativeJ.resize(size);
  r.derivativeY.resize(size);
  r.derivativeJ[0] = -r.RealBesselJ[1];
  r.derivativeY[0] = -r.RealBesselY[1];
  for (std::size_t k = 1; k < size; ++k) {
    const double order = static_cast<double>(k) / x;
    r.derivativeJ[k] = r.RealBesselJ[k - 1] - order * r.RealBesselJ[k];
    const double Y = r.RealBesselY[k];
    const bool beyond = std::fabs(Y) > LargestY / std::max(4.0, 2.0 * order);
    r.derivativeY[k] = beyond ? LargestY : r.RealBesselY[k - 1] - order * Y;
  }
}

}  // namespace

int BesselI(int n, ComplexD z, std::vector<ComplexD>& BesselIValues) {
  n = std::max(n, 1);
  BesselIValues.assign(static_cast<std::size_t>(n) + 1, ComplexD());
  double modulus = 0.0;
  ComplexAbs(z.re, z.im, modulus);
  if (modulus < VanishingArgument) {
    BesselIValues[0] = {1.0, 0.0};
    return n;
  }
  const bool left = z.re < 0.0;
  const ComplexD z1 = left ? ComplexD(-z.re, -z.im) : z;
  int start = MSTA1(modulus, 200);
  int last = n;
  if (start < n) {
    last = start;
  } else {
    start = MSTA2(modulus, n, 15);
  }
  ComplexD above;
  ComplexD value(SweepStart, 0.0);
  ComplexD sum;
  for (int k = start; k >= 0; --k) {
    ComplexD factor;
    ComplexDiv(2.0 * (k + 1.0), 0.0, z1.re, z1.im, factor.re, factor.im);
    ComplexD below;
    ComplexMul(factor.re, factor.im, value.re, value.im, below.re, below.im);
    below.re += above.re;
    below.im += above.im;
    above = value;
    value = below;
    if (k <= last) BesselIValues[static_cast<std::size_t>(k)] = value;
    // Every order counts: the sum over even orders alone is cosh z, not exp z.
    const double weight = k == 0 ? 1.0 : 2.0;
    sum.re += weight * value.re;
    sum.im += weight * value.im;
  }
  ComplexD scale;
  ComplexExp(z1.re, z1.im, scale.re, scale.im);
  ComplexDiv(scale.re, scale.im, sum.re, sum.im, scale.re, scale.im);
  for (int k = 0; k <= last; ++k) {
    ComplexD& I = BesselIValues[static_cast<std::size_t>(k)];
    ComplexMul(I.re, I.im, scale.re, scale.im, I.re, I.im);
    if (left && k % 2 != 0) I = {-I.re, -I.im};
  }
  return last;
}

void BesselJY(double x, int n, RealBessel& result) {
  n = std::max(n, 1);
  if (x < VanishingArgument) return Vanishing(n, result);
  const bool upward = x >= AsymptoticFrom && n < x;
  int start = 0;
  int last = n;
  if (!upward) {
    start = MSTA1(x, 200);
    if (start < n) {
      last = std::max(start, 1);
    } else {
      start = MSTA2(x, n, 15);
    }
  }
  result.RealBesselJ.assign(static_cast<std::size_t>(last) + 1, 0.0);
  result.RealBesselY.assign(static_cast<std::size_t>(last) + 1, 0.0);
  auto& J = result.RealBesselJ;
  auto& Y = result.RealBesselY;
  if (upward) {
    Hankel(x, 0, J[0], Y[0]);
    Hankel(x, 1, J[1], Y[1]);
    for (std::size_t k = 2; k < J.size(); ++k) J[k] = 2.0 * (static_cast<double>(k) - 1.0) / x * J[k - 1] - J[k - 2];
  } else {
    Sweep(x, start, last, J, Y[0], Y[1]);
    if (x >= AsymptoticFrom) {
      double unused = 0.0;
      Hankel(x, 0, unused, Y[0]);
      Hankel(x, 1, unused, Y[1]);
    }
  }
  FillY(x, result);
  FillDerivatives(x, result);
}

double BesselJ1(double x) {
  if (x < VanishingArgument) return 0.0;
  if (x >= AsymptoticFrom) {
    double J = 0.0;
    double Y = 0.0;
    Hankel(x, 1, J, Y);
    return J;
  }
  if (x < 8.0) {
    const double square = -0.25 * x * x;
    double term = 0.5 * x;
    double sum = term;
    for (int k = 1; k < 60 && std::fabs(term) > 1e-18 * std::fabs(sum); ++k) {
      term *= square / (k * (k + 1.0));
      sum += term;
    }
    return sum;
  }
  std::vector<double> J(2);
  double Y0 = 0.0;
  double Y1 = 0.0;
  Sweep(x, MSTA2(x, 1, 15), 1, J, Y0, Y1);
  return J[1];
}

BesselPair BesselSeries(double x, int n) {
  BesselPair pair;
  if (x < VanishingArgument) return pair;
  const double D = -std::log(1e-12);
  const double pairs = std::max(1.0, std::floor(D / 15.0 + (2.0 + n) / 6.0 * x + std::cbrt(D * D / 7.0 * x)));
  const int start = std::max(2 * static_cast<int>(pairs), MSTA2(x, 1, 9));
  std::vector<double> J(2);
  Sweep(x, start, 1, J, pair.Y0, pair.Y1);
  pair.J0 = J[0];
  pair.J1 = J[1];
  return pair;
}

}  // namespace lumivex
