#include "solvers/rays/ray_pieces.h"

#include <algorithm>
#include <cmath>

#include "solvers/functions/complex_algebra.h"
#include "solvers/rays/ray_amplitude.h"

namespace lumivex {

namespace {

/// Where Airy's field takes over from the rays. Orders 5 to 7 keep the limit of the order before.
double AiryLimit(int p, double before) {
  if (p == 2 || p == 3) return -1.5;
  if (p == 4) return -0.9;
  return p >= 8 ? -0.7 : before;
}

/// The square of the strongest ray of a piece inside the rainbow, for x = 1 and sin(theta) = 1.
///
/// Outward the reflection of the perpendicular component grows and that of the parallel one is never larger, the focus
/// changes one way, and sin i cos i is at most a half.
double LargestIntensity(const RayFamily& family, const ComplexD& m, const Ray& inner, const Ray& outer) {
  const double focus = std::min(std::fabs(family.Focus(inner)), std::fabs(family.Focus(outer)));
  constexpr double leastFocus = 1e-6;
  if (!(m.re > 1.0) || family.P() < 2 || focus < leastFocus) return std::numeric_limits<double>::infinity();
  const double r2 = SquaredModulus(ReflectionFactors(outer, m).FresnelPerp);
  return 4.0 * std::pow(r2, family.P() - 1) * m.re / (4.0 * focus);
}

RayOrder MakeOrder(const ComplexD& m, int p) {
  const RayTable table = MakeRayTable(m.re, p);
  RayOrder order{table.family, {}, MakeRainbow(m.re, p)};
  double largest = 0.0;
  for (int k = 0; k <= table.SegmentLast; ++k) {
    const auto i = static_cast<std::size_t>(k);
    RayPiece piece;
    piece.begin = table.parameter[i];
    piece.end = table.parameter[i + 1];
    const double first = table.RayDeviation[i], last = table.RayDeviation[i + 1];
    piece.low = std::min(first, last);
    piece.high = std::max(first, last);
    piece.fold = table.folds[i];
    piece.rising = last > first;
    piece.atRainbow = table.AtRainbow(k);
    const double here = LargestIntensity(table.family, m, table.family.At(piece.begin), table.family.At(piece.end));
    largest = piece.atRainbow ? std::numeric_limits<double>::infinity() : std::max(largest, here);
    piece.largest = largest;
    order.pieces.push_back(piece);
  }
  return order;
}

}  // namespace

std::optional<RayPieces> MakeRayPieces(const ComplexD& m, std::span<const int> selected, RunMonitor& monitor) {
  RayPieces pieces{m, {}};
  double airyLimit = -0.9;
  for (std::size_t i = 0; i < selected.size(); ++i) {
    if (selected[i] == 0) continue;
    if (!monitor.Report(0, 1)) return std::nullopt;
    const int p = static_cast<int>(i);
    pieces.orders.push_back(MakeOrder(m, p));
    pieces.orders.back().airyLimit = airyLimit = AiryLimit(p, airyLimit);
  }
  return pieces;
}

}  // namespace lumivex
