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
constexpr std::size_t PiecesPerLook = 4096;

/// What is added at one angle.
struct RowSum {
  ComplexD S1, S2;
  double perpendicular = 0.0, parallel = 0.0;  // intensities

  /// The weaker of both polarisations, as an intensity.
  double Weaker(RayMethod method) const {
    return method == RayMethod::Intensities ? std::min(perpendicular, parallel)
                                            : std::min(SquaredModulus(S1), SquaredModulus(S2));
  }
};

/// A row of scattering angle.
struct RowAngle {
  double theta = 0.0;  ///< 0..pi, clamped
  double sine = 1.0;
  int side = 1;  ///< sign of the angle
};

/// The ray that a piece had at the row before, and how its parameter went on.
struct Neighbour {
  double t = 0.0, target = 0.0;
  double rate = 0.0, bend = 0.0;  ///< dt/dD and its derivative
  bool known = false;

  double Guess(double wanted) const {
    const double step = wanted - target;
    return t + step * (rate + step / 2 * bend);
  }
  void Learn(const RayFamily& family, double wanted, const RayRoot& root) {
    const double slope = family.Slope(root.ray);
    const double now = slope != 0.0 ? 1.0 / slope : 0.0;
    const double step = wanted - target;
    bend = known && step != 0.0 ? (now - rate) / step : 0.0;
    rate = now;
    t = root.t;
    target = wanted;
    known = true;
  }
};

double BeamWeight(const RayBeam& beam, double impact) {
  if (beam.profile == RayBeam::Profile::PlaneWave) return 1.0;
  const double s = (impact - beam.BeamCentreOffset) / beam.BeamWaist;
  if (beam.profile == RayBeam::Profile::TopHat) return std::fabs(s) > 1.0 ? 0.0 : 1.0;
  return std::exp(-s * s);
}

/// All rays of one p, row after row.
class OrderOfRows {
 public:
  OrderOfRows(const RayRequest& request, const RayOrder& order)
      : request_(request), order_(order), neighbours_(order.pieces.size()) {
    // Some hundred rays of this share of a sum do not reach its last digit.
    constexpr double rounding = 1e-17;
    lost_ = request.method == RayMethod::Intensities ? rounding : rounding * rounding;
  }

  std::size_t Pieces() const { return neighbours_.size() + 1; }

  void Add(const RowAngle& row, RowSum& sum) {
    const auto& rainbow = order_.rainbow;
    const bool byAiry = request_.method == RayMethod::YoungAiry && rainbow &&
                        rainbow->AiryArgument(request_.x, row.theta) > order_.airyLimit;
    if (byAiry) {
      const double weight = Absorption(request_.x, request_.mIm, rainbow->p, rainbow->ray) *
                            BeamWeight(request_.beam, Side(rainbow->fold, row.side) * rainbow->ray.sinI);
      AddAiry(*rainbow, request_.x, row.theta, weight, AiryDerivative::ParallelOnly, sum.S1, sum.S2);
    }
    const double least = lost_ * sum.Weaker(request_.method) * row.sine / (request_.x * request_.x);
    for (std::size_t k = order_.pieces.size(); k-- > 0;) {
      const RayPiece& piece = order_.pieces[k];
      if (piece.largest < least) break;
      if (!(byAiry && piece.atRainbow)) AddPiece(piece, neighbours_[k], row, sum);
    }
  }

 private:
  /// On which side a ray enters that leaves at an angle of this sign: a reflected one leaves on its own side, while one
  /// that goes straight through crosses over.
  int Side(const RayFold& fold, int side) const { return order_.family.P() == 0 ? -side : -fold.q * side; }

  void AddPiece(const RayPiece& piece, Neighbour& neighbour, const RowAngle& row, RowSum& sum) const {
    const double target = DeviationAt(piece.fold, row.theta);
    if (target < piece.low || target > piece.high) return;
    const RayFamily& family = order_.family;
    const int p = family.P();
    const double guess = neighbour.known ? neighbour.Guess(target) : 0.5 * (piece.begin + piece.end);
    const RayRoot root = FindRay(family, target, piece.begin, piece.end, piece.rising, guess);
    neighbour.Learn(family, target, root);
    const Ray& ray = root.ray;
    double V = Divergence(request_.x, row.sine, family, ray) *
               BeamWeight(request_.beam, Side(piece.fold, row.side) * ray.sinI);
    if (request_.mIm != 0.0) V *= Absorption(request_.x, request_.mIm, p, ray);
    if (V == 0.0) return;
    const ComplexD m(request_.mRe, request_.mIm);
    const RayAmplitude eps = FresnelFactors(ray, m, p);
    if (request_.method == RayMethod::Intensities) {
      sum.perpendicular += V * V * SquaredModulus(eps.FresnelPerp);
      sum.parallel += V * V * SquaredModulus(eps.FresnelPar);
      return;
    }
    const int sign = request_.method == RayMethod::Young ? 0 : (family.Focus(ray) >= 0.0 ? 1 : -1);
    // The last term makes the phase stationary in what is left of the search for the ray.
    const double phase =
        RayPhase(request_.x, m.re, p, ray, piece.fold, sign) + request_.x * ray.sinI * (ray.deviation - target);
    const ComplexD wave(-V * std::sin(phase), -V * std::cos(phase));
    SecondOrder Q;
    if (p == 0 && request_.method == RayMethod::YoungMod) Q = ReflectionCorrection(request_.x, m, ray);
    const ComplexD one(1.0, 0.0);
    sum.S1 = sum.S1 + eps.FresnelPerp * wave * (one + TimesI(Q.perpendicular));
    sum.S2 = sum.S2 + eps.FresnelPar * wave * (one + TimesI(Q.parallel));
  }

  const RayRequest& request_;
  const RayOrder& order_;
  std::vector<Neighbour> neighbours_;
  double lost_;
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
  std::optional<RayPieces> made;
  if (request.pieces == nullptr) {
    made = MakeRayPieces({request.mRe, request.mIm}, request.selected, monitor);
    if (!made) return {};
  }
  std::vector<OrderOfRows> orders;
  for (const RayOrder& order : (made ? *made : *request.pieces).orders) orders.emplace_back(request, order);
  const auto count = static_cast<std::size_t>(window.high - window.low) + 1;
  std::size_t work = PiecesPerLook;
  for (int row = window.low; row <= window.high; ++row) {
    const double angle = std::remainder(request.firstAngle + request.grid.Angle(row), 2.0 * pi);
    RowAngle at;
    at.theta = ClampRayAngle(std::fabs(angle));
    at.sine = std::sin(at.theta);
    at.side = angle < 0.0 ? -1 : 1;
    RowSum sum;
    for (OrderOfRows& order : orders) {
      work += order.Pieces();
      if (work >= PiecesPerLook) {
        work = 0;
        if (!monitor.Report(static_cast<std::size_t>(row - window.low), count)) {
          return RowsUpTo(request.grid, window, row - 1);
        }
      }
      order.Add(at, sum);
    }
    Store(request, row, sum, S1, S2);
  }
  return RowsUpTo(request.grid, window, window.high);
}

}  // namespace lumivex
