#include "solvers/drops/drop_shape.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>

namespace lumivex {

namespace {

constexpr int order = 10;
using Row = std::array<double, order + 1>;

constexpr double firstSize = 2.0, sizeStep = 0.5;
/// c_0..c_10 in 1e-4 of drops of 2, 2.5 ... 6 mm (Chuang and Beard 1990).
constexpr std::array<Row, 9> table = {{{-131, -120, -376, -96, -4, 15, 5, 0, -2, 0, 1},
                                       {-201, -172, -567, -137, 3, 29, 8, -2, -4, 0, 1},
                                       {-282, -230, -779, -175, 21, 46, 11, -6, -7, 0, 3},
                                       {-369, -285, -998, -207, 48, 68, 13, -13, -10, 0, 5},
                                       {-458, -335, -1211, -227, 83, 89, 12, -21, -13, 1, 8},
                                       {-549, -377, -1421, -240, 126, 110, 9, -31, -16, 4, 11},
                                       {-644, -416, -1629, -246, 176, 131, 2, -44, -18, 9, 14},
                                       {-742, -454, -1837, -244, 234, 150, -7, -58, -19, 15, 19},
                                       {-840, -480, -2034, -237, 297, 166, -21, -72, -19, 24, 23}}};

Row CoefficientsOf(double mm) {
  Row c{};
  if (mm <= firstSize) {
    const double share = mm / firstSize;
    for (std::size_t n = 0; n < c.size(); ++n) c[n] = 1e-4 * share * share * table[0][n];
    return c;
  }
  // Lagrange's cubic through four rows, the outer ones at the ends of the table.
  const double place = (mm - firstSize) / sizeStep;
  const int last = static_cast<int>(table.size()) - 4;
  const auto first = static_cast<std::size_t>(std::clamp(static_cast<int>(std::floor(place)) - 1, 0, last));
  for (std::size_t i = 0; i < 4; ++i) {
    double weight = 1e-4;
    for (std::size_t j = 0; j < 4; ++j)
      if (j != i)
        weight *= (place - static_cast<double>(first + j)) / (static_cast<double>(i) - static_cast<double>(j));
    for (std::size_t n = 0; n < c.size(); ++n) c[n] += weight * table[first + i][n];
  }
  return c;
}

/// Coefficients of powers of 1 + sum c_n T_n.
Row PowersOf(const Row& c) {
  Row before{}, now{}, sum{};
  before[0] = 1;
  now[1] = 1;
  sum[0] = 1 + c[0];
  sum[1] = c[1];
  for (std::size_t n = 2; n < c.size(); ++n) {
    Row next{};
    for (std::size_t i = 0; i < n; ++i) next[i + 1] = 2 * now[i];
    for (std::size_t i = 0; i < n; ++i) next[i] -= before[i];
    for (std::size_t i = 0; i < c.size(); ++i) sum[i] += c[n] * next[i];
    before = now;
    now = next;
  }
  return sum;
}

/// 1/2 int R^3 du over -1..1 by Simpson's rule, exact to 1e-12 for these smooth forms.
template <class Function>
double HalfIntegral(const Function& function) {
  constexpr int steps = 400;
  double sum = 0;
  for (int i = 0; i <= steps; ++i) sum += function(-1 + 2.0 * i / steps) * (i == 0 || i == steps ? 1 : 2 + 2 * (i % 2));
  return sum / (3 * steps);
}

}  // namespace

double AxisRatioOfSize(double mm) {
  if (mm <= 2) return 1 - 0.0726 * (mm / 2) * (mm / 2);
  const double D = mm / 10;
  return 1.0048 + D * (0.0057 + D * (-2.628 + D * (3.682 - 1.677 * D)));
}

DropShape DropShape::Spheroid(double axisRatio) {
  DropShape shape;
  shape.alpha_ = axisRatio;
  shape.across_ = 1 / std::cbrt(axisRatio);
  shape.up_ = shape.across_ * axisRatio;
  shape.bound_ = std::max(shape.across_, shape.up_);
  return shape;
}

DropShape DropShape::Burgeroid(double mm) {
  DropShape shape;
  shape.form_ = DropForm::Burgeroid;
  shape.SetCoefficients(CoefficientsOf(mm));
  return shape;
}

void DropShape::SetCoefficients(const Row& c) {
  chebyshev_ = c;
  power_ = PowersOf(c);
  const double volume = HalfIntegral([this](double u) { return std::pow(Radius(u), 3); });
  for (double& power : power_) power /= std::cbrt(volume);
  bound_ = 0;
  for (int i = 0; i <= 1000; ++i) bound_ = std::max(bound_, Radius(-1 + i / 500.0));
  bound_ *= 1.0001;
}

DropShape DropShape::Weakened(double share) const {
  if (form_ == DropForm::Spheroid) return Spheroid(1 - share * (1 - alpha_));
  DropShape shape = *this;
  Row c = chebyshev_;
  for (double& value : c) value *= share;
  shape.SetCoefficients(c);
  return shape;
}

DropShape::Slope DropShape::RadiusAndSlope(double u) const {
  double value = 0, slope = 0;
  for (std::size_t n = power_.size(); n-- > 0;) {
    slope = slope * u + value;
    value = value * u + power_[n];
  }
  return {value, slope};
}

double DropShape::Radius(double u) const {
  if (form_ == DropForm::Burgeroid) return RadiusAndSlope(u).value;
  return 1 / std::sqrt((1 - u * u) / (across_ * across_) + u * u / (up_ * up_));
}

double DropShape::HalfWidth() const {
  if (form_ == DropForm::Spheroid) return across_;
  double widest = 0;
  for (int i = 0; i <= 4000; ++i) {
    const double u = -1 + i / 2000.0;
    widest = std::max(widest, Radius(u) * std::sqrt(1 - u * u));
  }
  return widest;
}

double DropShape::AxisRatio() const {
  return form_ == DropForm::Spheroid ? alpha_ : (Radius(1) + Radius(-1)) / (2 * HalfWidth());
}

bool DropShape::IsConcave() const {
  if (form_ == DropForm::Spheroid) return false;
  // Turning of the section's tangent from point to point.
  constexpr int points = 720;
  const auto at = [this](int i) {
    const double angle = std::numbers::pi * i / points, r = Radius(std::cos(angle));
    return SpaceVector{r * std::sin(angle), 0, -r * std::cos(angle)};
  };
  for (int i = 0; i < points; ++i)
    if (Cross(at(i) - at(i - 1), at(i + 1) - at(i)).y > 1e-12) return true;
  return false;
}

DropShape::Slope DropShape::Height(const SpaceVector& P, const SpaceVector& e) const {
  const double r = Length(P), u = -P.z / r;
  const Slope radius = RadiusAndSlope(u);
  const double along = Dot(P, e) / r;
  return {r - radius.value, along + radius.slope / r * (e.z + u * along)};
}

double DropShape::RootBetween(const SpaceVector& P, const SpaceVector& e, double inside, double outside) const {
  double t = outside;
  for (int i = 0; i < 100; ++i) {
    const Slope g = Height(P + t * e, e);
    (g.value > 0 ? outside : inside) = t;
    double next = g.slope != 0 ? t - g.value / g.slope : inside;
    if (!(next > std::min(inside, outside) && next < std::max(inside, outside))) next = (inside + outside) / 2;
    if (std::fabs(next - t) < 1e-15 * (1 + std::fabs(t))) return next;
    t = next;
  }
  return t;
}

std::optional<double> DropShape::Entry(const SpaceVector& P, const SpaceVector& e) const {
  if (form_ == DropForm::Spheroid) {
    const double a2 = 1 / (across_ * across_), b2 = 1 / (up_ * up_);
    const double a = a2 * (e.x * e.x + e.y * e.y) + b2 * e.z * e.z;
    const double b = a2 * (e.x * P.x + e.y * P.y) + b2 * e.z * P.z;
    const double c = a2 * (P.x * P.x + P.y * P.y) + b2 * P.z * P.z - 1;
    const double root = b * b - a * c;
    if (!(root > 0)) return std::nullopt;
    return (-b - std::sqrt(root)) / a;
  }
  const double middle = -Dot(P, e);
  const SpaceVector closest = P + middle * e;
  const double reach = bound_ * bound_ - Dot(closest, closest);
  if (!(reach > 0)) return std::nullopt;
  // The lowest height along the line, by golden section: heights have one minimum along it.
  double low = middle - std::sqrt(reach), high = middle + std::sqrt(reach);
  const double outside = low;
  double lowest = middle;
  if (Height(closest, e).value >= 0) {
    constexpr double golden = 0.6180339887498949;
    double left = high - golden * (high - low), right = low + golden * (high - low);
    double gLeft = Height(P + left * e, e).value, gRight = Height(P + right * e, e).value;
    for (int i = 0; i < 60 && gLeft >= 0 && gRight >= 0; ++i) {
      if (gLeft < gRight) {
        high = right;
        right = left;
        gRight = gLeft;
        left = high - golden * (high - low);
        gLeft = Height(P + left * e, e).value;
      } else {
        low = left;
        left = right;
        gLeft = gRight;
        right = low + golden * (high - low);
        gRight = Height(P + right * e, e).value;
      }
    }
    lowest = gLeft < gRight ? left : right;
    if (std::min(gLeft, gRight) >= 0) return std::nullopt;
  }
  return RootBetween(P, e, lowest, outside);
}

double DropShape::Chord(const SpaceVector& P, const SpaceVector& e) const {
  if (form_ == DropForm::Spheroid) {
    const double a2 = 1 / (across_ * across_), b2 = 1 / (up_ * up_);
    const double a = a2 * (e.x * e.x + e.y * e.y) + b2 * e.z * e.z;
    const double b = a2 * (e.x * P.x + e.y * P.y) + b2 * e.z * P.z;
    return std::max(0.0, -2 * b / a);
  }
  constexpr double justInside = 1e-7;
  const double middle = -Dot(P, e);
  const SpaceVector closest = P + middle * e;
  const double outside = middle + std::sqrt(std::max(0.0, bound_ * bound_ - Dot(closest, closest)));
  if (outside <= justInside || Height(P + justInside * e, e).value >= 0) return 0;
  return RootBetween(P, e, justInside, outside);
}

SpaceVector DropShape::Normal(const SpaceVector& P) const {
  SpaceVector normal;
  if (form_ == DropForm::Spheroid) {
    normal = {P.x / (across_ * across_), P.y / (across_ * across_), P.z / (up_ * up_)};
  } else {
    const double r = Length(P), u = -P.z / r;
    const SpaceVector away = 1 / r * P;
    normal = away + RadiusAndSlope(u).slope / r * (SpaceVector{0, 0, 1} + u * away);
  }
  return 1 / Length(normal) * normal;
}

}  // namespace lumivex
