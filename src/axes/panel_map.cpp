#include "axes/panel_map.h"

#include <algorithm>
#include <cmath>

#include "axes/scale_rules.h"

namespace lumivex {

namespace {

/// Smallest zoomed range as a part of all there is: below it, tick labels run out of digits.
constexpr double smallestPart = 1e-6;

/// Smallest range as a part of the larger end, for the same reason.
constexpr double smallestRelative = 1e-12;

/// Beyond it a range could overflow.
constexpr double largestEnd = 1e300;

void Order(double& low, double& high) {
  if (!std::isfinite(low)) low = 0;
  if (!std::isfinite(high)) high = low + 1;
  if (low > high) std::swap(low, high);
  low = std::clamp(low, -largestEnd, largestEnd);
  high = std::clamp(high, -largestEnd, largestEnd);
  const double size = std::max(std::abs(low), std::abs(high));
  if (high - low <= smallestRelative * size || high - low < 1e-250) {
    high = low + (std::abs(low) > 1e-250 ? 0.1 * std::abs(low) : 1);
  }
}

double Scaled(double value, double low, double high, bool logarithmic) {
  if (!logarithmic) return (value - low) / (high - low);
  return value > 0 ? LogOfRatio(value, low) / LogOfRatio(high, low) : std::nan("");
}

double Unscaled(double part, double low, double high, bool logarithmic) {
  if (!logarithmic) return low + part * (high - low);
  const double ratio = high / low;
  return std::isfinite(ratio) ? low * std::pow(ratio, part) : std::exp(std::log(low) + part * LogOfRatio(high, low));
}

/// Ranges are moved on a line: the logarithm of a logarithmic axis.
XRange OnLine(XRange range, bool logarithmic) {
  return logarithmic ? XRange{std::log(range.xmin), std::log(range.xmax)} : range;
}

XRange OffLine(XRange range, XRange bounds, bool logarithmic) {
  if (!logarithmic) return range;
  // The ends of the whole come back exactly, not as the exponential of a logarithm.
  const auto exact = [](double value, double bound) {
    return std::abs(value / bound - 1) < smallestRelative ? bound : value;
  };
  return {exact(std::exp(range.xmin), bounds.xmin), exact(std::exp(range.xmax), bounds.xmax)};
}

}  // namespace

AxisLimits RepairedLimits(AxisLimits limits, bool logX, bool logY) {
  Order(limits.xmin, limits.xmax);
  Order(limits.ymin, limits.ymax);
  if (logX && limits.xmin < 1 / largestEnd) {
    if (limits.xmax <= 1000 / largestEnd) limits.xmax = 1;
    limits.xmin = limits.xmax / 1000;
  }
  if (logY && limits.ymin < 1 / largestEnd) {
    if (limits.ymax <= 1000 / largestEnd) limits.ymax = 1;
    limits.ymin = std::min(0.0001, limits.ymax / 1000);
  }
  return limits;
}

double PanelMap::X(double x) const {
  return box.left + box.Width() * Scaled(x, limits.xmin, limits.xmax, logX);
}

double PanelMap::Y(double y) const {
  return box.bottom - box.Height() * Scaled(y, limits.ymin, limits.ymax, logY);
}

double PanelMap::XAt(double surfaceX) const {
  return Unscaled((surfaceX - box.left) / box.Width(), limits.xmin, limits.xmax, logX);
}

double PanelMap::YAt(double surfaceY) const {
  return Unscaled((box.bottom - surfaceY) / box.Height(), limits.ymin, limits.ymax, logY);
}

XRange ZoomedRange(XRange range, double factor, double centre, XRange bounds, bool logarithmic) {
  if (!(factor > 0) || !std::isfinite(factor)) return range;
  const XRange all = OnLine(bounds, logarithmic);
  const XRange now = OnLine(range, logarithmic);
  const double at = std::clamp(logarithmic ? std::log(centre) : centre, now.xmin, now.xmax);
  const double width = now.xmax - now.xmin;
  const double wanted =
      std::clamp(width * factor, smallestPart * (all.xmax - all.xmin), std::max(all.xmax - all.xmin, 0.0));
  const double low = at - (at - now.xmin) * wanted / width;
  const double start = std::clamp(low, all.xmin, std::max(all.xmin, all.xmax - wanted));
  return OffLine({start, start + wanted}, bounds, logarithmic);
}

XRange PannedRange(XRange range, double part, XRange bounds, bool logarithmic) {
  if (!std::isfinite(part)) return range;
  const XRange all = OnLine(bounds, logarithmic);
  const XRange now = OnLine(range, logarithmic);
  const double width = now.xmax - now.xmin;
  const double start = std::clamp(now.xmin + part * width, all.xmin, std::max(all.xmin, all.xmax - width));
  return OffLine({start, start + width}, bounds, logarithmic);
}

}  // namespace lumivex
