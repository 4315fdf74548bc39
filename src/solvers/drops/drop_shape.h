#pragma once

#include <array>
#include <optional>

#include "solvers/drops/space_vector.h"

namespace lumivex {

enum class DropForm { Spheroid, Burgeroid };

/// The largest drop that the tables of forms know, mm across; larger ones break up.
inline constexpr double largestDropMm = 6.0;

/// Height over width of a falling drop of a size d (mm, of the sphere of its volume): 1 - 0.0726 (d/2)^2 up to 2 mm,
/// then the fourth-degree fit of Beard and Chuang (1987). 0 < d <= 6.
double AxisRatioOfSize(double mm);

/// The form of a drop with a vertical axis of symmetry, in units of the radius of the sphere of equal volume, its
/// centre at the origin.
///
/// A spheroid has the semi-axes alpha^(-1/3) across and alpha^(2/3) up. A Burgeroid, round above and flat below, is r =
/// N (1 + sum c_n T_n(u)), u the cosine of the angle from straight down, c_n by the size (Chuang and Beard 1990), N by
/// its volume; below 2 mm c_n go with the square of the size, as weight and drag do.
class DropShape {
 public:
  /// @param axisRatio  alpha > 0.
  static DropShape Spheroid(double axisRatio);
  /// @param mm  0 <= size <= 6.
  static DropShape Burgeroid(double mm);

  DropForm Form() const { return form_; }
  /// The same form with its departure from the sphere multiplied, 0..1.
  DropShape Weakened(double share) const;

  /// Height over width.
  double AxisRatio() const;
  /// The radius of the horizontal section that is the largest.
  double HalfWidth() const;
  /// Whether the section by a vertical plane bends inwards anywhere.
  bool IsConcave() const;
  /// The distance of the surface from the centre in the direction whose cosine from straight down is u.
  double Radius(double u) const;

  /// Where the line P + t e first meets the drop from outside; nothing where it misses it. |e| = 1.
  std::optional<double> Entry(const SpaceVector& P, const SpaceVector& e) const;
  /// Where the line leaves the drop again, from a point of the surface; 0 where it does not enter it.
  double Chord(const SpaceVector& P, const SpaceVector& e) const;
  /// The outward normal at a point of the surface, of length 1.
  SpaceVector Normal(const SpaceVector& P) const;

 private:
  static constexpr int Order = 10;
  struct Slope {
    double value, slope;
  };
  Slope RadiusAndSlope(double u) const;
  /// g = |P| - R and its derivative along e.
  Slope Height(const SpaceVector& P, const SpaceVector& e) const;
  double RootBetween(const SpaceVector& P, const SpaceVector& e, double inside, double outside) const;
  void SetCoefficients(const std::array<double, Order + 1>& c);

  DropForm form_ = DropForm::Spheroid;
  double alpha_ = 1.0, across_ = 1.0, up_ = 1.0;  // of a spheroid
  std::array<double, Order + 1> chebyshev_{};     // c_n
  std::array<double, Order + 1> power_{};         // R(u) = sum power_[n] u^n
  double bound_ = 1.0;                            // no point is farther from the centre
};

}  // namespace lumivex
