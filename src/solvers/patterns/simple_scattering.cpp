#include "solvers/patterns/simple_scattering.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "solvers/functions/bessel_functions.h"
#include "solvers/functions/complex_algebra.h"
#include "solvers/rays/rainbow.h"

namespace lumivex {

namespace {

constexpr double pi = std::numbers::pi;
constexpr std::size_t TermsPerLook = 1'000'000;
/// Where the row at 180 degrees ends: its sine is a rounding error.
constexpr double VanishingSine = 1e-12;

/// Runs work(row) over a window with a look at the monitor after each million terms.
template <class Work>
RowsDone RunRows(const AngleGrid& grid, RowWindow window, std::size_t termsPerRow, RunMonitor& monitor,
                 const Work& work) {
  if (window.Empty()) return {};
  const auto count = static_cast<std::size_t>(window.high - window.low) + 1;
  std::size_t terms = TermsPerLook;
  for (int row = window.low; row <= window.high; ++row) {
    if (terms >= TermsPerLook) {
      terms = 0;
      if (!monitor.Report(static_cast<std::size_t>(row - window.low), count)) return RowsUpTo(grid, window, row - 1);
    }
    work(row);
    terms += termsPerRow;
  }
  return RowsUpTo(grid, window, window.high);
}

RowWindow Cut(RowWindow window, int low, int high) {
  return {std::max(window.low, low), std::min(window.high, high)};
}

int LastWave(double x) {
  return static_cast<int>(std::clamp(std::floor(x - 0.5), 0.0, 1e9));
}

/// sum of sqrt(n) cos((n + 1/2) theta - pi/4) by turning a unit vector, whose rounding errors grow with n only.
double LegendreSum(const std::vector<double>& roots, double theta) {
  const ComplexD step(std::cos(theta), std::sin(theta));
  ComplexD wave(std::cos(0.5 * theta - 0.25 * pi), std::sin(0.5 * theta - 0.25 * pi));
  double sum = 0.0;
  for (const double root : roots) {
    wave = wave * step;
    sum += root * wave.re;
  }
  return sum;
}

}  // namespace

double ForwardDiffraction(double x) {
  return 0.5 * x * x;
}

RowsDone SumDiffraction(double x, DiffractionForm form, const AngleGrid& grid, RowWindow window, AmplitudeTable& S1,
                        AmplitudeTable& S2, RunMonitor& monitor) {
  std::vector<double> roots;
  if (form == DiffractionForm::PartialWaves) {
    for (int n = 1; n <= LastWave(x); ++n) roots.push_back(std::sqrt(static_cast<double>(n)));
  }
  const auto work = [&](int row) {
    const double theta = grid.Angle(row);
    const double s = std::sin(theta);
    const double u = x * s;
    double S = ForwardDiffraction(x);
    if (!(u < 0.001 && theta <= 3.0)) {
      if (s < VanishingSine) {
        S = 0.0;
      } else if (form == DiffractionForm::Disc) {
        S = x / 4.0 * (2.0 * BesselJ1(u) / s) * (1.0 + std::cos(theta));
      } else {
        S = std::sqrt(2.0 / (pi * s)) * LegendreSum(roots, theta);
      }
    }
    S1.Set(row, S, 0.0);
    S2.Set(row, S, 0.0);
  };
  return RunRows(grid, Cut(window, 1, grid.RowCount()), std::max<std::size_t>(100, roots.size()), monitor, work);
}

double FillRayleigh(double x, double m, const AngleGrid& grid, AmplitudeTable& S1, AmplitudeTable& S2) {
  const double b = -2.0 / 3.0 * x * x * x * (m * m - 1.0) / (m * m + 2.0);
  const double c = 1.5 * b;
  for (int j = 1; j <= grid.NANG; ++j) {
    const double parallel = std::cos(grid.Angle(j)) * c;
    S1.Set(j, 0.0, c);
    S2.Set(j, 0.0, parallel);
    const int mirror = grid.Mirror(j);
    if (mirror == j) continue;
    S1.Set(mirror, 0.0, c);
    S2.Set(mirror, 0.0, -parallel);
  }
  return c;
}

double RayleighEfficiency(double x, double m) {
  const double polarisability = (m * m - 1.0) / (m * m + 2.0);
  return 8.0 / 3.0 * x * x * x * x * polarisability * polarisability;
}

ApertureStrips MakeAperture(int Q) {
  const int count = std::max(Q, 1);
  const double h = 1.0 / (2.0 * count);
  ApertureStrips strips;
  for (int k = 0; k < count; ++k) strips.ApertureCentre.push_back(2.0 * h * k + h);
  strips.ApertureWeight.assign(static_cast<std::size_t>(count), 1.0);
  return strips;
}

RowsDone SumAperture(double x, const ApertureStrips& strips, const AngleGrid& grid, RowWindow window,
                     AmplitudeTable& S1, AmplitudeTable& S2, RunMonitor& monitor) {
  const std::size_t count = strips.ApertureCentre.size();
  const auto middle = std::min(static_cast<std::size_t>(std::nearbyint(0.5 * static_cast<double>(count))), count - 1);
  const auto work = [&](int row) {
    const double scale = 2.0 * x * std::sin(grid.Angle(row));
    ComplexD sum;
    for (std::size_t k = 0; k < count; ++k) {
      const double phase = scale * (strips.ApertureCentre[k] - strips.ApertureCentre[middle]);
      sum = sum + strips.ApertureWeight[k] * ComplexD(std::cos(phase), std::sin(phase));
    }
    const double mean = 1.0 / static_cast<double>(count);
    S1.Set(row, mean * sum.re, mean * sum.im);
    S2.Set(row, mean * sum.re, mean * sum.im);
  };
  return RunRows(grid, Cut(window, 1, grid.NANG), 20 * count, monitor, work);
}

RowsDone SumGloryRing(double x, double Qmin, double Qmax, const AngleGrid& grid, RowWindow window, AmplitudeTable& S1,
                      AmplitudeTable& S2, RunMonitor& monitor) {
  RealBessel bessel;
  const double square = x * x;
  const auto work = [&](int row) {
    const double theta = grid.Angle(grid.Mirror(row));
    BesselJY(x * std::sin(theta), 4, bessel);
    const double J0 = bessel.RealBesselJ[0];
    const double J2 = bessel.Last() >= 2 ? bessel.RealBesselJ[2] : 0.0;
    S1.Set(row, square * ((J2 + J0) * Qmax + (J0 - J2) * Qmin), 0.0);
    S2.Set(row, square * ((J0 + J2) * Qmin + (J0 - J2) * Qmax), 0.0);
  };
  return RunRows(grid, Cut(window, grid.NANG + 1, grid.RowCount()), 1000, monitor, work);
}

}  // namespace lumivex
