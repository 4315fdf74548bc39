#include "solvers/rays/huygens_wave.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "solvers/functions/complex_algebra.h"
#include "solvers/rays/rainbow.h"
#include "solvers/rays/ray_amplitude.h"
#include "solvers/rays/ray_geometry.h"

namespace lumivex {

namespace {

constexpr double pi = std::numbers::pi;
constexpr std::size_t WaveletsPerLook = 200'000;
/// Largest step of phase from wavelet to wavelet, radians.
constexpr double PhaseStep = 0.4;
/// Wavefronts are drawn this much of a radius behind the path of the central ray.
constexpr double SetBack = 0.5;

double AxisAmplitude(double x, int p) {
  if (p == 1) return 2.0 * x;
  return p == 3 ? x / 128.0 : x / 2.0;
}

/// One wavelet: everything that does not depend on the angle.
struct Wavelet {
  double L;                          // x sin i
  double path;                       // 2x(cos i - p m cos r) + L D
  ComplexD perpendicular, parallel;  // sqrt(L/(2 pi)) eps dL
};

/// Asks the monitor after each bounded number of wavelets.
class Watch {
 public:
  Watch(RunMonitor& monitor, std::size_t rows) : monitor_(monitor), rows_(rows) {}

  void AtRow(std::size_t row) { row_ = row; }
  /// False when it is time to stop.
  bool Count(std::size_t wavelets) {
    work_ += wavelets;
    if (work_ < WaveletsPerLook) return true;
    work_ = 0;
    return monitor_.Report(row_, rows_);
  }

 private:
  RunMonitor& monitor_;
  std::size_t rows_;
  std::size_t row_ = 0;
  std::size_t work_ = 0;
};

/// The wavelets of one p, by the middle rule in the angle of incidence, whose ends are smooth.
class WaveletSet {
 public:
  WaveletSet(const HuygensRequest& request, int p, Watch& watch) : p_(p) {
    const RayFamily family(request.m, p);
    const double span = DeviationRange(family);
    const double x = request.x;
    // Between 0 and pi beyond the range of D; the phase runs x times that over the impact.
    const double wanted = std::max<double>(request.R, x * (span + pi) / PhaseStep);
    const int count = static_cast<int>(std::min(wanted, 5e6));
    const double step = family.Last() / count;
    wavelets_.reserve(static_cast<std::size_t>(count));
    for (int k = 0; k < count; ++k) {
      // Tracing a ray takes about as long as ten wavelets.
      if (!watch.Count(10)) return;
      const Ray ray = family.At((k + 0.5) * step);
      // dL = x cos i di, or x m cos r dr where r runs.
      const double width = request.m < 1.0 && p >= 1 ? x * request.m * ray.cosR * step : x * ray.cosI * step;
      const double L = x * ray.sinI;
      const RayAmplitude eps = FresnelFactors(ray, {request.m, 0.0}, p);
      const double weight = std::sqrt(L / (2.0 * pi)) * width;
      wavelets_.push_back({L, -x * OpticalPath(request.m, p, ray) + L * ray.deviation, weight * eps.FresnelPerp,
                           weight * eps.FresnelPar});
    }
  }

  /// False when it stopped on the way; S1 and S2 are then of no use.
  bool Add(double x, double theta, Watch& watch, ComplexD& S1, ComplexD& S2) const {
    constexpr std::size_t chunk = 4096;
    const double scale = 1.0 / std::sqrt(LeastAxisDistance(x, std::sin(theta)));
    for (int halfTurn = lowest_; halfTurn <= highest_; ++halfTurn) {
      const RayFold fold = FoldHalfTurn(halfTurn);
      const double target = DeviationAt(fold, theta);
      const double constant = pi / 2 * (p_ - 2 * fold.kk - 0.5 * fold.q);
      ComplexD sum1;
      ComplexD sum2;
      for (std::size_t k = 0; k < wavelets_.size(); ++k) {
        if (k % chunk == 0 && !watch.Count(std::min(chunk, wavelets_.size() - k))) return false;
        const Wavelet& w = wavelets_[k];
        const double phase = w.path - w.L * target + constant;
        const ComplexD wave(-std::sin(phase), -std::cos(phase));
        sum1 = sum1 + w.perpendicular * wave;
        sum2 = sum2 + w.parallel * wave;
      }
      S1 = S1 + scale * sum1;
      S2 = S2 + scale * sum2;
    }
    return true;
  }

 private:
  /// Half turns that the rays reach, and the width of their deviations.
  double DeviationRange(const RayFamily& family) {
    double low = family.At(0.0).deviation;
    double high = low;
    constexpr int samples = 2000;
    for (int k = 1; k <= samples; ++k) {
      const double D = family.At(family.Last() * k / samples).deviation;
      low = std::min(low, D);
      high = std::max(high, D);
    }
    // A half turn that is only touched at its end carries no ray.
    constexpr double margin = 1e-9;
    lowest_ = static_cast<int>(std::floor((low + margin) / pi));
    highest_ = std::max(lowest_, static_cast<int>(std::floor((high - margin) / pi)));
    return high - low;
  }

  int p_;
  int lowest_ = 0;
  int highest_ = 0;
  std::vector<Wavelet> wavelets_;
};

}  // namespace

HuygensWave TraceHuygens(double x, double m, int p, int R) {
  HuygensWave wave;
  wave.p = p;
  const RayFamily family(m, p);
  const int rays = std::max(R, 1);
  double firstPath = 0.0;
  for (int k = 0; k <= rays; ++k) {
    const double impact = static_cast<double>(k) / rays;
    if (p >= 1 && impact > m) break;
    const Ray ray = family.At(family.Parameter(impact));
    const RayFold fold = FoldDeviation(ray.deviation - 1e-9);
    const double theta = ScatteringAngle(fold, ray.deviation);
    const RayAmplitude eps = FresnelFactors(ray, {m, 0.0}, p);
    const double sinTheta = std::sin(theta);
    const bool onAxis = sinTheta < 1e-9;
    const double V = onAxis ? AxisAmplitude(x, p) : Divergence(x, sinTheta, family, ray);
    const int sign = family.Focus(ray) >= 0.0 ? 1 : -1;
    const double phase = RayPhase(x, m, p, ray, fold, sign);
    const double i = std::atan2(ray.sinI, ray.cosI);
    const double E = (pi - 2.0 * std::atan2(ray.sinR, ray.cosR)) * p + i;
    // Path from the plane that touches the sphere, through the sphere, to the exit.
    const double path = -x * ((1.0 - ray.cosI) + 2.0 * p * m * ray.cosR);
    if (k == 0) firstPath = path;
    const double length = (path - firstPath - SetBack * x) / x;
    const auto store = [phase](double value, std::vector<double>& amplitudes, std::vector<double>& phases) {
      amplitudes.push_back(std::fabs(value));
      phases.push_back(value < 0.0 ? phase + pi : phase);
    };
    // Both factors turn their sign inside the sphere.
    const double turned = p >= 1 ? -V : V;
    store(turned * eps.FresnelPerp.re, wave.amplitudePerpendicular, wave.phasePerpendicular);
    store(turned * eps.FresnelPar.re, wave.amplitudeParallel, wave.phaseParallel);
    wave.impact.push_back(impact);
    wave.deviation.push_back(ray.deviation);
    wave.exitX.push_back(-std::cos(E));
    wave.exitY.push_back(std::sin(E));
    wave.waveX.push_back(wave.exitX.back() + length * std::cos(ray.deviation));
    wave.waveY.push_back(wave.exitY.back() - length * std::sin(ray.deviation));
  }
  return wave;
}

RowsDone SumHuygens(const HuygensRequest& request, AmplitudeTable& S1, AmplitudeTable& S2, RunMonitor& monitor) {
  const RowWindow window{std::max(request.window.low, 1), std::min(request.window.high, request.grid.RowCount())};
  if (window.Empty()) return {};
  const auto count = static_cast<std::size_t>(window.high - window.low) + 1;
  Watch watch(monitor, count);
  std::vector<WaveletSet> sets;
  for (std::size_t p = 0; p < request.selected.size(); ++p) {
    if (request.selected[p] == 0) continue;
    if (!monitor.Report(0, count)) return {};
    sets.emplace_back(request, static_cast<int>(p), watch);
  }
  if (!monitor.Report(0, count)) return {};
  for (int row = window.low; row <= window.high; ++row) {
    watch.AtRow(static_cast<std::size_t>(row - window.low));
    const double theta = ClampRayAngle(request.grid.Angle(row));
    ComplexD sum1 = S1.Value(row);
    ComplexD sum2 = S2.Value(row);
    for (const WaveletSet& set : sets)
      if (!set.Add(request.x, theta, watch, sum1, sum2)) return RowsUpTo(request.grid, window, row - 1);
    S1.Set(row, sum1.re, sum1.im);
    S2.Set(row, sum2.re, sum2.im);
  }
  return RowsUpTo(request.grid, window, window.high);
}

}  // namespace lumivex
