#include "solvers/functions/spherical_bessel.h"

#include <algorithm>
#include <cmath>
#include <complex>
#include <cstddef>

namespace lumivex {

namespace {

using Complex = std::complex<double>;

constexpr double LargestY = 1e300;
constexpr double Vanishing = 1e-280;
constexpr int ConvergentsPerLook = 65536;
/// Below this modulus sin z (over e^|Im z|) is taken for small, and j_1 normalises in place of j_0.
constexpr double SmallSine = 0.1;

}  // namespace

SphericalJY Besh(double x, int NSTOP, int SeriesStartIndex) {
  const auto size = static_cast<std::size_t>(std::max(NSTOP, 1)) + 1;
  SphericalJY f{std::vector<double>(size), std::vector<double>(size)};
  const double sine = std::sin(x);
  const double cosine = std::cos(x);
  const double j0 = sine / x;
  f.y[0] = -cosine / x;
  f.y[1] = f.y[0] / x - j0;
  for (std::size_t n = 2; n < size; ++n) {
    const double factor = (2.0 * static_cast<double>(n) - 1.0) / x;
    const bool beyond = std::fabs(f.y[n - 1]) > LargestY / std::max(4.0, 2.0 * factor);
    f.y[n] = beyond ? -LargestY : factor * f.y[n - 1] - f.y[n - 2];
  }
  const int last = static_cast<int>(size) - 1;
  double above = 0.0;
  double value = 1e-60;
  // Orders k = start - 1 down to NSTOP, renewed when they grow: |x| far below NSTOP makes them grow without bound.
  for (int k = std::max(SeriesStartIndex, last + 1) - 1; k >= last; --k) {
    const double below = (2.0 * k + 3.0) / x * value - above;
    above = value;
    value = below;
    if (std::fabs(value) > 1e200) {
      above *= 1e-250;
      value *= 1e-250;
    }
  }
  f.j[size - 1] = value;
  for (std::size_t n = size - 1; n >= 1; --n) {
    const double below = (2.0 * static_cast<double>(n) + 1.0) / x * f.j[n] - above;
    above = f.j[n];
    f.j[n - 1] = below;
    if (std::fabs(below) > 1e200) {
      above *= 1e-250;
      for (std::size_t i = n - 1; i < size; ++i) f.j[i] *= 1e-250;
    }
  }
  const double j1 = x < 0.01 ? x / 3.0 * (1.0 - x * x / 10.0) : (j0 - cosine) / x;
  const bool byFirst = std::fabs(j1) > std::fabs(j0);
  const double scale = byFirst ? j1 / f.j[1] : j0 / f.j[0];
  for (double& j : f.j) j *= scale;
  return f;
}

ComplexD SphericalBesselRatio(int n, ComplexD argument, RunMonitor& monitor) {
  const Complex z = argument;
  const Complex inverse = 1.0 / z;
  // a_k = (-1)^(k-1) (2n + 2k - 1)/z; the ratio is [a_1][a_2, a_1][a_3, a_2, a_1]../([a_2][a_3, a_2]..).
  double order = 2.0 * n + 1.0;
  double sign = 1.0;
  const auto advance = [&] {
    order += 2.0;
    sign = -sign;
    return sign * order * inverse;
  };
  Complex product = order * inverse;
  Complex a = advance();
  Complex denominator = a;
  Complex numerator = a + 1.0 / product;
  for (int steps = 1;; ++steps) {
    if (std::abs(numerator) < Vanishing || std::abs(denominator) < Vanishing) {
      // The vanishing convergent and its successor go in as one factor, which is finite.
      a = advance();
      product *= (1.0 + a * numerator) / (1.0 + a * denominator);
      numerator = a + 1.0 / (std::abs(numerator) < Vanishing ? Complex(Vanishing) : numerator);
      denominator = a + 1.0 / (std::abs(denominator) < Vanishing ? Complex(Vanishing) : denominator);
    } else {
      product *= numerator / denominator;
      const double change = std::abs(numerator - denominator);
      if (steps >= 5 && change <= 1e-16 * std::abs(denominator)) break;
    }
    if (steps % ConvergentsPerLook == 0 && !monitor.Report(0, 1)) break;
    a = advance();
    numerator = a + 1.0 / numerator;
    denominator = a + 1.0 / denominator;
  }
  return product;
}

void SphericalBesselLentz(int n, ComplexD argument, double (&result)[2], RunMonitor& monitor) {
  const Complex z = argument;
  // sin z and cos z over e^|Im z|, so that neither overflows.
  const double growth = std::fabs(z.imag());
  const double decay = std::exp(-2.0 * growth);
  const double sign = z.imag() < 0.0 ? -1.0 : 1.0;
  const Complex sine(std::sin(z.real()) * (1.0 + decay) / 2.0, sign * std::cos(z.real()) * (1.0 - decay) / 2.0);
  const Complex cosine(std::cos(z.real()) * (1.0 + decay) / 2.0, -sign * std::sin(z.real()) * (1.0 - decay) / 2.0);
  Complex start = sine / z;
  int exponent = 0;
  Complex P = 1.0;
  if (n > 0) {
    Complex ratio = SphericalBesselRatio(n, argument, monitor);
    const bool byFirst = std::abs(sine) < SmallSine && std::abs(z) > 1.0;
    if (byFirst) start = (sine / z - cosine) / z;
    // A ratio that vanishes is followed by one that is infinite; their product goes in as one factor.
    for (int k = n; k >= (byFirst ? 2 : 1); --k) {
      P *= ratio;
      if (k > 1) ratio = (2.0 * k - 1.0) / z - 1.0 / (std::abs(ratio) < Vanishing ? Complex(Vanishing) : ratio);
      if (std::fabs(P.real()) >= 1e150 || std::fabs(P.imag()) >= 1e150) {
        P *= 1e-150;
        exponent -= 150;
      } else if (std::fabs(P.real()) < 1e-150 && std::fabs(P.imag()) < 1e-150) {
        P *= 1e150;
        exponent += 150;
      }
    }
  }
  const Complex value = start / P;
  const double scale = growth + exponent * 2.30258509299404568;
  const double factor = std::exp(scale);
  result[0] = value.real() * factor;
  result[1] = value.imag() * factor;
}

}  // namespace lumivex
