#include "solvers/drops/drop_rainbow.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <vector>

namespace lumivex {

namespace {

constexpr double pi = std::numbers::pi;
constexpr double spacing = 0.004;
constexpr int distortions = 20;

class BowSearch {
 public:
  BowSearch(double m, const DropLight& light, int p, double clock)
      : material_{m, 0}, light_(light), clock_(clock), exits_(static_cast<std::size_t>(p) + 1) {}

  /// The scattering angle of the ray at b that is seen at the clock angle; X is where the search for it begins, and it.
  std::optional<double> AngleAt(const DropShape& shape, double b, double& X) {
    double before = X + 1e-3;
    auto offBefore = Off(shape, b, before);
    auto off = Off(shape, b, X);
    for (int i = 0; i < 60; ++i) {
      if (!off || !offBefore) return std::nullopt;
      if (std::fabs(*off) < 1e-13) break;
      const double difference = *off - *offBefore;
      if (difference == 0) break;
      const double step = std::clamp(-*off * (X - before) / difference, -0.1, 0.1);
      before = X;
      offBefore = off;
      X += step;
      off = Off(shape, b, X);
      if (std::fabs(step) < 1e-15) break;
    }
    if (!off || std::fabs(*off) > 1e-9) return std::nullopt;
    return ScatteringAngleOf(light_, exits_.back()->direction);
  }

 private:
  /// How far from the clock angle the ray is seen.
  std::optional<double> Off(const DropShape& shape, double b, double X) {
    if (!TraceDropRay(shape, material_, light_, b, X, exits_) || !exits_.back()) return std::nullopt;
    return std::remainder(ClockAngleOf(light_, exits_.back()->direction) - clock_, 2 * pi);
  }

  DropMaterial material_;
  DropLight light_;
  double clock_;
  std::vector<std::optional<DropExit>> exits_;
};

/// A quartic through five values at -2..2, its slopes and where it is stationary.
class Quartic {
 public:
  explicit Quartic(const std::array<double, 5>& f) {
    // From central differences.
    c1_ = (f[0] - 8 * f[1] + 8 * f[3] - f[4]) / 12;
    c2_ = (-f[0] + 16 * f[1] - 30 * f[2] + 16 * f[3] - f[4]) / 24;
    c3_ = (-f[0] + 2 * f[1] - 2 * f[3] + f[4]) / 12;
    c4_ = (f[0] - 4 * f[1] + 6 * f[2] - 4 * f[3] + f[4]) / 24;
    c0_ = f[2];
  }
  double At(double t) const { return c0_ + t * (c1_ + t * (c2_ + t * (c3_ + t * c4_))); }
  double Slope(double t) const { return c1_ + t * (2 * c2_ + t * (3 * c3_ + t * 4 * c4_)); }

  /// Nearest to 0; where no slope changes its sign within 2, the end towards which the slope falls off.
  double Stationary() const {
    constexpr int steps = 200;
    double best = 1e9;
    for (int i = 0; i < 2 * steps; ++i) {
      const double left = -2 + 2.0 * i / steps, right = left + 2.0 / steps;
      if (Slope(left) * Slope(right) > 0) continue;
      double low = left, high = right;
      for (int k = 0; k < 50; ++k) {
        const double middle = (low + high) / 2;
        (Slope(low) * Slope(middle) <= 0 ? high : low) = middle;
      }
      if (std::fabs(low) < std::fabs(best)) best = low;
    }
    if (best < 1e9) return best;
    return std::fabs(Slope(2)) < std::fabs(Slope(-2)) ? 2 : -2;
  }

 private:
  double c0_, c1_, c2_, c3_, c4_;
};

/// Moves b to where the angle is stationary.
std::optional<double> Settle(BowSearch& search, const DropShape& shape, double& b, double& X) {
  for (int round = 0; round < 40; ++round) {
    std::array<double, 5> angles;
    for (int i = 0; i < 5; ++i) {
      double start = X;
      const auto angle = search.AngleAt(shape, b + spacing * (i - 2), start);
      if (!angle) return std::nullopt;
      angles[static_cast<std::size_t>(i)] = *angle;
    }
    const Quartic quartic(angles);
    const double move = std::clamp(quartic.Stationary(), -2.0, 2.0);
    if (std::fabs(move) < 0.05) {
      b += spacing * move;
      return search.AngleAt(shape, b, X) ? std::optional(quartic.At(move)) : std::nullopt;
    }
    b += spacing * move;
    if (!search.AngleAt(shape, b, X)) return std::nullopt;
  }
  return std::nullopt;
}

}  // namespace

std::optional<DropBow> FindDropBow(const DropShape& shape, double m, const DropLight& light, int p, double clock) {
  const double square = (static_cast<double>(p) * p - m * m) / (static_cast<double>(p) * p - 1);
  if (p < 2 || !(square > 0 && square < 1)) return std::nullopt;
  BowSearch search(m, light, p, clock);
  DropBow bow{0, std::sqrt(square), p % 2 == 0 ? clock : clock + pi};
  for (int k = 1; k <= distortions; ++k) {
    const auto angle = Settle(search, shape.Weakened(static_cast<double>(k) / distortions), bow.b, bow.X);
    if (!angle) return std::nullopt;
    bow.angle = *angle;
  }
  return bow;
}

}  // namespace lumivex
