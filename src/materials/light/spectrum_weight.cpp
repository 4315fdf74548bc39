#include "materials/light/spectrum_weight.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "materials/tables/sun_spectra.h"

namespace lumivex {

namespace {

constexpr double pi = 3.14159265358979324;

/// Value(t) of a table whose entries stand at 0, 1, ... last; 0 outside.
template <class Entry>
double Straight(double t, int last, Entry entry) {
  if (!(t >= 0 && t <= last)) return 0;
  const int k = std::min(static_cast<int>(t), last - 1);
  const double low = entry(static_cast<std::size_t>(k)), high = entry(static_cast<std::size_t>(k) + 1);
  return low + (high - low) * (t - k);
}

double PlaceOnSunGrid(double lambda) {
  return (lambda - 0.35) * 130 / 0.65;
}

/// exp(x) - 1 as a power of e times a number near 1, so that a cold body's never overflows.
struct ScaledPlanck {
  double exponent, factor;
};
ScaledPlanck PlanckDenominator(double x) {
  return {x, -std::expm1(-x)};
}

}  // namespace

double LeeWeight(double lambda) {
  // The width of the band as the difference of its ends comes out in double precision: a hair below 0.32.
  constexpr double width = 0.7 - 0.38;
  constexpr double hair = 1e-9;  // 0.70 um itself lies that little beyond the last entry
  const double t = (lambda - 0.38) * 64 / width;
  constexpr int last = sunLeeRows - 1;
  return Straight(t > last && t < last + hair ? last : t, last, [](std::size_t i) { return SunLee[i]; });
}

double WernandWeight(double lambda) {
  return Straight(PlaceOnSunGrid(lambda), sunRows - 1, [](std::size_t i) { return SunWernand[i]; });
}

double AirMass(double elevationDegrees) {
  const double s = std::sin(elevationDegrees * pi / 180);
  return 1 / (s + 0.025 * std::exp(-11 * s));
}

double ElevationWeight(double lambda, double elevationDegrees) {
  const double mass = AirMass(elevationDegrees);
  return Straight(PlaceOnSunGrid(lambda), sunRows - 1,
                  [mass](std::size_t i) { return SunSpaceIrradiance[i] * std::pow(SunTransmittance[i], mass); });
}

double BlackBodyWeight(double lambda, double kelvin) {
  if (!(lambda > 0 && kelvin > 0)) return 0;
  const double peak = 2898 / kelvin;
  const ScaledPlanck here = PlanckDenominator(14398.261 / (kelvin * lambda));
  const ScaledPlanck there = PlanckDenominator(14398.261 / (kelvin * peak));
  return std::pow(peak / lambda, 5) * std::exp(there.exponent - here.exponent) * there.factor / here.factor;
}

double MeasuredWeight(const MeasuredSpectrum& spectrum, double lambda) {
  const auto n = static_cast<std::size_t>(spectrum.points);
  if (n < 1) return 0;
  const auto& x = spectrum.wavelength;
  const auto& y = spectrum.value;
  const double wanted = 1000 * lambda;
  if (n == 1 || wanted <= x[1]) return y[1];
  if (wanted >= x[n]) return y[n];
  if (!spectrum.nonUniform) {
    const double t = (wanted - x[1]) * static_cast<double>(n - 1) / (x[n] - x[1]);
    return Straight(t, static_cast<int>(n) - 1, [&](std::size_t k) { return y[k + 1]; });
  }
  const auto first = x.begin() + 1;
  const auto above = std::upper_bound(first, first + static_cast<std::ptrdiff_t>(n), wanted) - x.begin();
  const auto i = static_cast<std::size_t>(std::clamp<std::ptrdiff_t>(above, 2, static_cast<std::ptrdiff_t>(n)));
  const double t = (wanted - x[i - 1]) / (x[i] - x[i - 1]);
  return y[i - 1] + t * (y[i] - y[i - 1]);
}

}  // namespace lumivex
