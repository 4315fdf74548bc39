#include "solvers/rays/ray_series.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <optional>
#include <vector>

#include "solvers/functions/complex_algebra.h"
#include "solvers/rays/rainbow.h"
#include "solvers/rays/ray_amplitude.h"
#include "solvers/rays/ray_table.h"

namespace lumivex {

namespace {

constexpr double pi = std::numbers::pi;
constexpr std::size_t SegmentsPerLook = 4096;

/// Where Airy's field takes over from the rays. Orders 5 to 7 keep the limit of the order before.
double AiryLimit(int p, double before) {
  if (p == 2 || p == 3) return -1.5;
  if (p == 4) return -0.9;
  return p >= 8 ? -0.7 : before;
}

/// What is added at one angle.
struct RowSum {
  ComplexD S1, S2;
  double perpendicular = 0.0, parallel = 0.0;  // intensities
};

/// All rays of one p.
class RayOrder {
 public:
  RayOrder(const RayRequest& request, int p, double airyLimit)
      : table_(MakeRayTable(request.mRe, p)), airyLimit_(airyLimit) {
    for (int k = 0; k <= table_.SegmentLast; ++k) {
      const auto i = static_cast<std::size_t>(k);
      starts_.push_back(0.5 * (table_.parameter[i] + table_.parameter[i + 1]));
    }
    if (request.method == RayMethod::YoungAiry) rainbow_ = MakeRainbow(request.mRe, p);
  }

  std::size_t Segments() const { return starts_.size() + 1; }

  /// @param theta  0..pi, clamped.
  /// @param side   sign of the angle.
  void Add(const RayRequest& request, double theta, int side, RowSum& sum) {
    const bool byAiry = rainbow_ && rainbow_->AiryArgument(request.x, theta) > airyLimit_;
    if (byAiry) {
      const double weight = Absorption(request.x, request.mIm, rainbow_->p, rainbow_->ray) *
                            BeamWeight(request.beam, Side(rainbow_->fold, side) * rainbow_->ray.sinI);
      AddAiry(*rainbow_, request.x, theta, weight, AiryDerivative::ParallelOnly, sum.S1, sum.S2);
    }
    for (int k = 0; k <= table_.SegmentLast; ++k) {
      if (byAiry && table_.AtRainbow(k)) continue;
      AddSegment(request, static_cast<std::size_t>(k), theta, side, sum);
    }
  }

 private:
  int Side(const RayFold& fold, int side) const { return table_.family.P() == 0 ? side : -fold.q * side; }

  static double BeamWeight(const RayBeam& beam, double impact) {
    if (beam.profile == RayBeam::Profile::PlaneWave) return 1.0;
    const double s = (impact - beam.BeamCentreOffset) / beam.BeamWaist;
    if (beam.profile == RayBeam::Profile::TopHat) return std::fabs(s) > 1.0 ? 0.0 : 1.0;
    return std::exp(-s * s);
  }

  void AddSegment(const RayRequest& request, std::size_t k, double theta, int side, RowSum& sum) {
    const RayFold& fold = table_.folds[k];
    const double target = DeviationAt(fold, theta);
    const double a = table_.RayDeviation[k];
    const double b = table_.RayDeviation[k + 1];
    if (target < std::min(a, b) || target > std::max(a, b)) return;
    const RayFamily& family = table_.family;
    const int p = family.P();
    const double t = GOAngleCalc(family, target, table_.parameter[k], table_.parameter[k + 1], starts_[k]);
    starts_[k] = t;
    const Ray ray = family.At(t);
    double V = Divergence(request.x, theta, family, ray) * BeamWeight(request.beam, Side(fold, side) * ray.sinI);
    if (request.mIm != 0.0) V *= Absorption(request.x, request.mIm, p, ray);
    if (V == 0.0) return;
    const RayAmplitude eps = FresnelFactors(ray, {request.mRe, request.mIm}, p);
    if (request.method == RayMethod::Intensities) {
      sum.perpendicular += V * V * SquaredModulus(eps.FresnelPerp);
      sum.parallel += V * V * SquaredModulus(eps.FresnelPar);
      return;
    }
    const int sign = request.method == RayMethod::Young ? 0 : (family.Focus(ray) >= 0.0 ? 1 : -1);
    // The last term makes the phase stationary in what is left of the search for the ray.
    const double phase =
        RayPhase(request.x, request.mRe, p, ray, fold, sign) + request.x * ray.sinI * (ray.deviation - target);
    const ComplexD wave(-V * std::sin(phase), -V * std::cos(phase));
    SecondOrder Q;
    if (p == 0 && request.method == RayMethod::YoungMod) Q = ReflectionCorrection(request.x, request.mRe, ray);
    sum.S1 = sum.S1 + eps.FresnelPerp * wave * ComplexD(1.0, Q.perpendicular);
    sum.S2 = sum.S2 + eps.FresnelPar * wave * ComplexD(1.0, Q.parallel);
  }

  RayTable table_;
  double airyLimit_;
  std::vector<double> starts_;  // The root of the row before, by segment.
  std::optional<Rainbow> rainbow_;
};

void Store(const RayRequest& request, int row, const RowSum& sum, AmplitudeTable& S1, AmplitudeTable& S2) {
  if (request.method == RayMethod::Intensities) {
    S1.Set(row, std::sqrt(S1.Intensity(row) + sum.perpendicular), 0.0);
    S2.Set(row, std::sqrt(S2.Intensity(row) + sum.parallel), 0.0);
    return;
  }
  const double sign = request.parallelReversed && request.mIm != 0.0 ? -1.0 : 1.0;
  S1.Set(row, S1.Re(row) + sum.S1.re, S1.Im(row) + sum.S1.im);
  S2.Set(row, S2.Re(row) + sign * sum.S2.re, S2.Im(row) + sign * sum.S2.im);
}

}  // namespace

RowsDone SumRays(const RayRequest& request, AmplitudeTable& S1, AmplitudeTable& S2, RunMonitor& monitor) {
  const RowWindow window{std::max(request.window.low, 1), request.window.high};
  if (window.Empty()) return {};
  std::vector<RayOrder> orders;
  double airyLimit = -0.9;
  for (std::size_t p = 0; p < request.selected.size(); ++p) {
    if (request.selected[p] == 0) continue;
    if (!monitor.Report(0, 1)) return {};
    airyLimit = AiryLimit(static_cast<int>(p), airyLimit);
    orders.emplace_back(request, static_cast<int>(p), airyLimit);
  }
  const auto count = static_cast<std::size_t>(window.high - window.low) + 1;
  std::size_t work = SegmentsPerLook;
  for (int row = window.low; row <= window.high; ++row) {
    const double angle = std::remainder(request.firstAngle + request.grid.Angle(row), 2.0 * pi);
    const double theta = ClampRayAngle(std::fabs(angle));
    RowSum sum;
    for (RayOrder& order : orders) {
      work += order.Segments();
      if (work >= SegmentsPerLook) {
        work = 0;
        if (!monitor.Report(static_cast<std::size_t>(row - window.low), count)) {
          return RowsUpTo(request.grid, window, row - 1);
        }
      }
      order.Add(request, theta, angle < 0.0 ? -1 : 1, sum);
    }
    Store(request, row, sum, S1, S2);
  }
  return RowsUpTo(request.grid, window, window.high);
}

}  // namespace lumivex
