#include "sky/arc_fit.h"

#include <algorithm>
#include <cmath>

namespace lumivex {

namespace {

/// The sine of the angle at the middle one of three directions; less is a line. One pixel of sagitta in a thousand.
constexpr double straight = 2e-4;
constexpr int newtonSteps = 5;

Direction Difference(const Direction& a, const Direction& b) {
  return {a.right - b.right, a.up - b.up, a.forward - b.forward};
}

double LengthOf(const Direction& a) {
  return std::sqrt(Dot(a, a));
}

/// One step of Gauss and Newton along two directions across the centre.
Direction Improved(const Direction& centre, const std::array<Direction, 3>& marked, double radius) {
  const Direction aside = std::abs(centre.up) < 0.9 ? Direction{0, 1, 0} : Direction{1, 0, 0};
  const Direction a = Normalised(Cross(aside, centre)), b = Cross(centre, a);
  double aa = 0, ab = 0, bb = 0, ra = 0, rb = 0;
  for (const Direction& u : marked) {
    const double angle = AngleBetween(centre, u), sine = std::sin(angle);
    if (!(sine > 1e-12)) continue;
    // The angle shrinks as the centre goes towards the mark.
    const double da = -Dot(a, u) / sine, db = -Dot(b, u) / sine, r = angle - radius;
    aa += da * da, ab += da * db, bb += db * db, ra += da * r, rb += db * r;
  }
  const double determinant = aa * bb - ab * ab;
  if (!(std::abs(determinant) > 1e-18)) return centre;
  const double alongA = (ab * rb - bb * ra) / determinant, alongB = (ab * ra - aa * rb) / determinant;
  return Normalised({centre.right + alongA * a.right + alongB * b.right, centre.up + alongA * a.up + alongB * b.up,
                     centre.forward + alongA * a.forward + alongB * b.forward});
}

}  // namespace

std::optional<FittedArc> FitArc(const std::array<Direction, 3>& marked, double radius) {
  const Direction first = Difference(marked[1], marked[0]), second = Difference(marked[2], marked[1]);
  const Direction third = Difference(marked[2], marked[0]), normal = Cross(first, second);
  const double size = LengthOf(normal), longest = std::max({LengthOf(first), LengthOf(second), LengthOf(third)});
  if (!(longest > 0) || size <= straight * longest * std::min({LengthOf(first), LengthOf(second), LengthOf(third)}))
    return std::nullopt;
  Direction centre = Normalised(normal);
  const double along = Dot(centre, marked[0]);
  // A great circle has no side on which its centre lies.
  if (std::abs(along) < straight) return std::nullopt;
  FittedArc arc;
  if ((along < 0) != (std::cos(radius) < 0)) centre = Opposite(centre);
  arc.freeRadius = AngleBetween(centre, marked[0]);
  for (int step = 0; step < newtonSteps; ++step) centre = Improved(centre, marked, radius);
  double squares = 0;
  for (const Direction& u : marked) {
    const double miss = AngleBetween(centre, u) - radius;
    squares += miss * miss;
  }
  arc.centre = centre;
  arc.residual = std::sqrt(squares / static_cast<double>(marked.size()));
  return arc;
}

}  // namespace lumivex
