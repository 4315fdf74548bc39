#include "solvers/waves/surface_poles.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <optional>

#include "solvers/waves/complex_order.h"

namespace lumivex {

namespace {

using Complex = std::complex<double>;
constexpr double pi = std::numbers::pi;

/// The zeros of Ai(-a) (Abramowitz and Stegun 1964, table 10.13; from the eleventh on by their series 10.4.94).
double AiryZero(int number) {
  constexpr std::array table = {2.33810741, 4.08794944,  5.52055983,  6.78670809,  7.94413359,
                                9.02265085, 10.04017434, 11.00852430, 11.93601556, 12.82877675};
  if (number <= static_cast<int>(table.size())) return table[static_cast<std::size_t>(number - 1)];
  const double t = 3 * pi * (4.0 * number - 1) / 8;
  return std::pow(t, 2.0 / 3) * (1 + 5.0 / 48 / (t * t) - 5.0 / 36 / (t * t * t * t));
}

/// What a pole of one polarisation is a zero of.
struct Surface {
  double x;
  Complex m;
  bool tm;

  Complex Contrast() const { return tm ? 1.0 / m : m; }

  Complex Denominator(const Complex& lambda) const {
    const OuterWave outer = OuterWaveOfOrder(lambda, x);
    const InnerWaves inner = InnerWavesOfOrder(lambda, m * x);
    return outer.derivative - Contrast() * inner.b2 * outer.value;
  }

  PolePoint At(const Complex& lambda, const Complex& offset) const {
    const OuterWave outer = OuterWaveOfOrder(lambda, x);
    const InnerWaves inner = InnerWavesOfOrder(lambda, m * x);
    const Complex mu = Contrast();
    const Complex den = outer.derivative - mu * inner.b2 * outer.value;
    const Complex num = outer.derivative - mu * inner.b1 * outer.value;
    const Complex root = inner.s2 * den;
    return {lambda, offset, inner.chi, -4.0 * mu * inner.sa / (root * root), -(inner.s1 / inner.s2) * num / den};
  }
};

/// Secant steps, none longer than half the distance in which Airy functions change.
std::optional<Complex> FindZero(const Surface& surface, Complex lambda) {
  const double unit = std::cbrt(surface.x / 2);
  Complex before = lambda + 0.05 * unit;
  Complex valueBefore = surface.Denominator(before), value = surface.Denominator(lambda);
  for (int i = 0; i < 60; ++i) {
    const Complex difference = value - valueBefore;
    if (std::abs(difference) == 0) return lambda;
    Complex step = -value * (lambda - before) / difference;
    if (std::abs(step) > 0.5 * unit) step *= 0.5 * unit / std::abs(step);
    before = lambda;
    valueBefore = value;
    lambda += step;
    if (std::abs(step) < 1e-11 * unit) return lambda;
    value = surface.Denominator(lambda);
    if (!std::isfinite(std::abs(value))) return std::nullopt;
  }
  return std::nullopt;
}

Complex FirstGuess(const Surface& surface, int number, const std::vector<Complex>& found) {
  const double unit = std::cbrt(surface.x / 2);
  if (number <= 2) {
    const Complex root = std::sqrt(surface.m * surface.m - 1.0);
    const Complex q = (surface.tm ? surface.m * surface.m : Complex(1)) / root;
    return surface.x + std::polar(1.0, pi / 3) * AiryZero(number) * unit - Complex(0, 1) * q;
  }
  const Complex last = found[found.size() - 1], before = found[found.size() - 2];
  return last +
         (last - before) * (AiryZero(number) - AiryZero(number - 1)) / (AiryZero(number - 1) - AiryZero(number - 2));
}

/// Poles 1, 2, ... as far as they are found and near; one more than `last`, for the distance of the last to its
/// neighbour.
std::vector<Complex> PolesOf(const Surface& surface, int last, RunMonitor& monitor) {
  std::vector<Complex> found;
  for (int number = 1; number <= last + 1; ++number) {
    if (!monitor.Report(static_cast<std::size_t>(number), static_cast<std::size_t>(last) + 2)) return {};
    const auto lambda = FindZero(surface, FirstGuess(surface, number, found));
    if (!lambda || std::abs(*lambda - surface.x) > 1.2 * surface.x) break;
    const auto same = [&](const Complex& other) { return std::abs(*lambda - other) < 1e-6 * surface.x; };
    if (std::any_of(found.begin(), found.end(), same)) break;
    found.push_back(*lambda);
  }
  return found;
}

double Gap(const std::vector<Complex>& poles, std::size_t i) {
  double gap = 1e300;
  if (i > 0) gap = std::min(gap, std::abs(poles[i] - poles[i - 1]));
  if (i + 1 < poles.size()) gap = std::min(gap, std::abs(poles[i + 1] - poles[i]));
  return gap;
}

}  // namespace

bool SurfaceWavesApply(double x, double mRe) {
  if (!(mRe > 1) || !(x >= 10)) return false;
  return x * std::pow(mRe * mRe - 1, 1.5) >= 10 && mRe <= 1.4 * std::cbrt(x / 2);
}

std::vector<SurfacePole> FindSurfacePoles(double x, const Complex& m, int last, int lastTerm, RunMonitor& monitor) {
  const int points = std::max(16, lastTerm + 8);
  std::vector<SurfacePole> poles;
  for (const bool tm : {false, true}) {
    const Surface surface{x, m, tm};
    const std::vector<Complex> found = PolesOf(surface, last, monitor);
    for (std::size_t i = 0; i < found.size() && static_cast<int>(i) < last; ++i) {
      if (!monitor.Report(i, found.size())) return {};
      SurfacePole pole{tm, static_cast<int>(i) + 1, found[i], {}};
      const double radius = 0.3 * std::min(Gap(found, i), std::cbrt(x / 2));
      for (int j = 0; j < points; ++j) {
        const Complex offset = std::polar(radius, 2 * pi * (j + 0.5) / points);
        pole.circle.push_back(surface.At(found[i] + offset, offset));
      }
      poles.push_back(std::move(pole));
    }
  }
  return poles;
}

}  // namespace lumivex
