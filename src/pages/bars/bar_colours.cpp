#include "pages/bars/bar_colours.h"

#include <algorithm>
#include <cmath>

namespace lumivex {

namespace {

constexpr std::size_t unpolarised = 2;

/// A picture on a logarithmic axis has so many columns: more than any surface has dots side by side.
constexpr std::size_t logColumns = 4096;

/// Ends of an axis, typed as decimals, against ends of columns (in steps).
constexpr double rounding = 1e-6;

void TakeRowsInView(PageBars& bars, XRange shown) {
  const double origin = AngleOfFirstRow(bars);
  const double lowest = std::floor((shown.xmin - origin) / bars.step + 0.5 + rounding) + 1;
  const double highest = std::ceil((shown.xmax - origin) / bars.step - 0.5 - rounding) + 1;
  const auto first = static_cast<double>(bars.first), last = static_cast<double>(bars.last);
  bars.firstShown = 1;
  bars.lastShown = 0;
  bars.covered = {};
  if (std::max(first, lowest) > std::min(last, highest)) return;
  bars.firstShown = static_cast<std::size_t>(std::max(first, lowest));
  bars.lastShown = static_cast<std::size_t>(std::min(last, highest));
  const double left = origin + (static_cast<double>(bars.firstShown) - 1.5) * bars.step;
  const double right = origin + (static_cast<double>(bars.lastShown) - 0.5) * bars.step;
  bars.covered = {std::max(shown.xmin, left), std::min(shown.xmax, right)};
  bars.part = {(bars.covered.xmin - left) / bars.step, 0, (bars.covered.xmax - left) / bars.step, 1};
}

void FindGreatest(PageBars& bars) {
  for (std::size_t k = 0; k < bars.light.size(); ++k) {
    bars.greatest[k] = 0;
    for (const SharedValues& channel : bars.light[k].channels)
      for (std::size_t j = bars.firstShown; j <= bars.lastShown; ++j)
        if (channel[j] > bars.greatest[k]) bars.greatest[k] = channel[j];
    bars.greatest[k] /= bars.channelOfUnit;
  }
}

void PaintRows(PageBars& bars, const ColourRules& rules, const std::array<double, 3>& references) {
  for (std::size_t k = 0; k < bars.light.size(); ++k) {
    const CellColours colours(rules, references[k]);
    const auto& [red, green, blue] = bars.light[k].channels;
    bars.painted[k].clear();
    for (std::size_t j = bars.firstShown; j <= bars.lastShown; ++j)
      bars.painted[k].push_back(std::isfinite(red[j]) ? colours.Of(red[j], green[j], blue[j]) : colours::Black);
  }
}

/// The row on which an angle lies, counted from the first in view.
std::size_t PlaceOf(const PageBars& bars, double angle) {
  const double row = std::floor((angle - AngleOfFirstRow(bars)) / bars.step + 0.5) + 1;
  const auto first = static_cast<double>(bars.firstShown), last = static_cast<double>(bars.lastShown);
  return static_cast<std::size_t>(std::clamp(row, first, last) - first);
}

void MakeColumns(PageBars& bars, bool logarithmic) {
  bars.columns = bars.painted;
  if (!logarithmic || bars.lastShown < bars.firstShown) return;
  const double ratio = std::log(bars.covered.xmax / bars.covered.xmin) / double{logColumns};
  for (auto& columns : bars.columns) columns.assign(logColumns, colours::Black);
  for (std::size_t i = 0; i < logColumns; ++i) {
    const double angle = bars.covered.xmin * std::exp(ratio * (static_cast<double>(i) + 0.5));
    const std::size_t place = PlaceOf(bars, angle);
    for (std::size_t k = 0; k < bars.columns.size(); ++k) bars.columns[k][i] = bars.painted[k][place];
  }
  bars.part = {0, 0, double{logColumns}, 1};
}

}  // namespace

double AngleOfFirstRow(const PageBars& bars) {
  if (bars.last < bars.first || bars.first >= bars.angle.size()) return 0;
  const double angle = bars.angle[bars.first] - (static_cast<double>(bars.first) - 1) * bars.step;
  return std::fabs(angle) < rounding * bars.step ? 0 : angle;
}

void PlotBow(PageBars& bars, const ColourRules& rules) {
  bars.reference = std::max(bars.greatest[0], bars.greatest[1]);
  bars.referenceIsSet = bars.otherUnit = bars.ownUnpolarised = false;
  PaintRows(bars, rules, {bars.reference, bars.reference, bars.reference});
}

void PlotBow2(PageBars& bars, const ColourLook& look, const BarScale& unit) {
  const auto& set = look.barScale;
  bars.otherUnit = set && (set->invWavelength != unit.invWavelength || set->weighted != unit.weighted);
  bars.referenceIsSet = set && !bars.otherUnit;
  bars.ownUnpolarised = look.normaliseUnpolarised;
  bars.reference = bars.referenceIsSet ? set->reference : std::max(bars.greatest[0], bars.greatest[1]);
  const double third = bars.ownUnpolarised ? bars.greatest[unpolarised] : bars.reference;
  PaintRows(bars, look.rules, {bars.reference, bars.reference, third});
}

void ColourBars(Page& page, const ColourLook& look) {
  if (!page.bars || page.panels.empty()) return;
  PageBars& bars = *page.bars;
  const AxisLimits& limits = page.panels.front().limits;
  TakeRowsInView(bars, {limits.xmin, limits.xmax});
  FindGreatest(bars);
  ColourLook wanted = look;
  // The brightness is not offered with one wavelength: what is left in its box from before counts for nothing.
  if (page.kind.wavelengths == 1) wanted.rules.brightness = 1;
  if (wanted.barScale || wanted.normaliseUnpolarised)
    PlotBow2(bars, wanted, {0, page.kind.invWavelength, page.kind.wavelengths > 1});
  else
    PlotBow(bars, wanted.rules);
  MakeColumns(bars, page.kind.logX);
}

}  // namespace lumivex
