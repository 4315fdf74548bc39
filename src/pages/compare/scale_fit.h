#pragma once

#include <optional>
#include <string>
#include <vector>

#include "record/comparison.h"

namespace lumivex {

/// Values of a curve between its points.
///
/// Between two neighbouring rows that were computed it is a straight line; a row that was not computed leaves a gap to
/// both of its neighbours, and beyond the first and last there is nothing. Rows are taken by rising x.
class CurveValues {
 public:
  /// @param curve  as it is drawn: with its running mean, where it has one.
  explicit CurveValues(const PageCurve& curve);
  /// The value at x; not a number in a gap and beyond the ends.
  double At(double x) const;

 private:
  std::vector<double> x_, y_;
};

/// A curve minus another, or over it, at the points of the first. Not a number where the other has no value, and where
/// a divisor is 0. First index 1.
std::vector<double> ComparedValues(const PageCurve& first, const PageCurve& second, BelowGraph how);

/// How measured data fit a curve.
///
/// With a typed factor f it is what the data come to with that f; otherwise f makes sum w (y - f c)^2 smallest, where c
/// is the curve at the points: f = sum w y c / sum w c^2. The weights w are 1 / error^2, and 1 for data without errors.
struct ScaleFit {
  double factor = 1;       ///< measured = factor times curve
  double factorError = 0;  ///< of a fitted one with errors 1 / sqrt(sum w c^2); otherwise 0
  int points = 0;          ///< that have a value of the curve beside them
  int without = 0;         ///< that have none: beyond the curve, or in a gap
  std::optional<double>
      chi;         ///< chi^2 per degree of freedom (points, less one for a fitted factor); of data with errors
  double rms = 0;  ///< root of the mean square of y / f - c, in the unit of the graph
  /// Whether the factor can be divided by: a fit needs a point where the curve is not 0, and no factor is 0.
  bool good = false;
  std::vector<double> curve;  ///< the curve at each point, first index 0; not a number where it has no value
};
ScaleFit FitOf(const MeasuredData& data, const PageCurve& reference);

/// "f = 2.013 ± 0.004 (fitted), chi² per degree of freedom 1.08, rms of residuals 0.013, 37 points, 2 without a value
/// of the curve"; what is not known is left out.
std::string WordsOf(const ScaleFit& fit, bool fitted);

}  // namespace lumivex
