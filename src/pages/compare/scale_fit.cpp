#include "pages/compare/scale_fit.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

#include "pages/curves/curve_rows.h"
#include "record/number_text.h"

namespace lumivex {

namespace {

constexpr double nothing = std::numeric_limits<double>::quiet_NaN();

std::string Number(double value, int digits) {
  return std::string(Trim(Significant(value, digits)));
}

}  // namespace

CurveValues::CurveValues(const PageCurve& curve) {
  const std::size_t size = std::min(curve.x.size(), curve.y.size());
  const SharedValues values = DrawnValues(curve, {1, size > 0 ? size - 1 : 0});
  for (std::size_t i = 1; i < size; ++i) {
    if (!std::isfinite(curve.x[i])) continue;
    x_.push_back(curve.x[i]);
    y_.push_back(values[i]);
  }
  if (std::ranges::is_sorted(x_)) return;
  std::vector<std::size_t> order(x_.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::ranges::stable_sort(order, {}, [this](std::size_t i) { return x_[i]; });
  std::vector<double> x, y;
  for (const std::size_t i : order) x.push_back(x_[i]), y.push_back(y_[i]);
  x_ = std::move(x);
  y_ = std::move(y);
}

double CurveValues::At(double x) const {
  const auto after = std::ranges::lower_bound(x_, x);
  if (after == x_.end()) return nothing;
  const auto i = static_cast<std::size_t>(after - x_.begin());
  if (*after == x) return y_[i];
  if (i == 0) return nothing;
  const double part = (x - x_[i - 1]) / (x_[i] - x_[i - 1]);
  return y_[i - 1] + part * (y_[i] - y_[i - 1]);
}

std::vector<double> ComparedValues(const PageCurve& first, const PageCurve& second, BelowGraph how) {
  const std::size_t size = std::min(first.x.size(), first.y.size());
  const SharedValues values = DrawnValues(first, {1, size > 0 ? size - 1 : 0});
  const CurveValues other(second);
  std::vector<double> compared(size, nothing);
  for (std::size_t i = 1; i < size; ++i) {
    const double below = other.At(first.x[i]);
    compared[i] = how == BelowGraph::Ratio ? values[i] / below : values[i] - below;
    if (!std::isfinite(compared[i])) compared[i] = nothing;
  }
  return compared;
}

ScaleFit FitOf(const MeasuredData& data, const PageCurve& reference) {
  ScaleFit fit;
  const MeasuredPoints& points = *data.points;
  const CurveValues values(reference);
  const bool errors = !points.error.empty();
  const auto weight = [&](std::size_t i) { return errors ? 1 / (points.error[i] * points.error[i]) : 1.0; };
  double product = 0, square = 0;
  for (std::size_t i = 0; i < points.x.size(); ++i) {
    const double c = fit.curve.emplace_back(values.At(points.x[i]));
    if (!std::isfinite(c)) continue;
    ++fit.points;
    product += weight(i) * points.y[i] * c;
    square += weight(i) * c * c;
  }
  fit.without = static_cast<int>(points.x.size()) - fit.points;
  fit.factor = data.fitted ? product / square : data.factor;
  fit.good = std::isfinite(fit.factor) && fit.factor != 0;
  if (!fit.good) fit.factor = 1;
  if (!fit.good || fit.points == 0) return fit;
  if (data.fitted && errors) fit.factorError = 1 / std::sqrt(square);
  double chi = 0, squares = 0;
  for (std::size_t i = 0; i < points.x.size(); ++i) {
    if (!std::isfinite(fit.curve[i])) continue;
    const double residual = points.y[i] - fit.factor * fit.curve[i];
    chi += weight(i) * residual * residual;
    squares += residual * residual / (fit.factor * fit.factor);
  }
  const int freedom = fit.points - (data.fitted ? 1 : 0);
  if (errors && freedom > 0) fit.chi = chi / freedom;
  fit.rms = std::sqrt(squares / fit.points);
  return fit;
}

std::string WordsOf(const ScaleFit& fit, bool fitted) {
  if (fit.points == 0) return "no point has a value of the curve beside it";
  if (!fit.good) return "no factor fits: the points are drawn as they were read";
  std::string words = "f = " + Number(fit.factor, 5);
  if (fit.factorError > 0) words += " \u00B1 " + Number(fit.factorError, 2);
  if (fitted) words += " (fitted)";
  if (fit.chi) words += ", \u03C7\u00B2 per degree of freedom " + Number(*fit.chi, 4);
  words += ", rms of residuals " + Number(fit.rms, 4) + ", " + CountOf(fit.points, "point");
  if (fit.without > 0) words += ", " + std::to_string(fit.without) + " without a value of the curve";
  return words;
}

}  // namespace lumivex
