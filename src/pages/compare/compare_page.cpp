#include "pages/compare/compare_page.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <tuple>
#include <utility>

#include "pages/build_page.h"
#include "pages/compare/below_panel.h"
#include "pages/compare/curve_id.h"
#include "pages/curves/curve_limits.h"
#include "pages/curves/curve_names.h"
#include "pages/curves/curve_rows.h"
#include "record/number_text.h"

namespace lumivex {

namespace {

bool IsEmpty(const Comparison& c) {
  return c.changes.empty() && c.kept.empty() && c.data.empty() && c.pairs.empty() && c.markers.empty();
}

const CurveChange* FindChange(const Comparison& comparison, const CurveId& id) {
  const auto found = std::ranges::find(comparison.changes, id, &CurveChange::id);
  return found == comparison.changes.end() ? nullptr : &*found;
}

void RememberPlain(Page& page) {
  const AxisLimits& limits = page.panels.front().limits;
  PlainCurves plain;
  plain.curves = page.curves;
  plain.runs = page.runs;
  plain.runOfBars = page.bars ? page.bars->run : 0;
  plain.x = {limits.xmin, limits.xmax};
  plain.y = {limits.ymin, limits.ymax};
  plain.autoBottom = page.autoBottom;
  plain.autoTop = page.autoTop;
  plain.scale = page.scale;
  page.plain = std::make_shared<const PlainCurves>(std::move(plain));
}

/// The place of a run on the page; one that has gone comes back before the others, so that the last run stays the last.
std::size_t PlaceOfRun(Page& page, const PageRun& run) {
  const auto found = std::ranges::find(page.runs, run.number, &PageRun::number);
  if (found != page.runs.end()) return static_cast<std::size_t>(found - page.runs.begin());
  page.runs.insert(page.runs.begin(), run);
  for (PageCurve& curve : page.curves) ++curve.run;
  if (page.bars) ++page.bars->run;
  return 0;
}

void AddKept(Page& page, const Comparison& comparison) {
  for (const auto& kept : comparison.kept) {
    const bool fits = SharesAxes(page.kind, kept->kind) && page.kind.polar == kept->kind.polar &&
                      kept->curve.panel < page.panels.size();
    if (!fits || FindCurve(page, kept->id) != nullptr) continue;
    const std::size_t run = PlaceOfRun(page, kept->run);
    page.curves.push_back(kept->curve);
    page.curves.back().run = run;
  }
}

void ApplyNamesAndColours(Page& page, const Comparison& comparison) {
  for (PageCurve& curve : page.curves) {
    const CurveChange* change = FindChange(comparison, IdOf(page, curve));
    if (change == nullptr) continue;
    if (!change->name.empty()) curve.givenName = change->name;
    if (!change->colour) continue;
    curve.colour = *change->colour;
    curve.colours.clear();
  }
}

/// First index 1, as curves have it.
std::vector<double> FromOne(const std::vector<double>& values, double divisor) {
  std::vector<double> all(values.size() + 1, std::numeric_limits<double>::quiet_NaN());
  for (std::size_t i = 0; i < values.size(); ++i) all[i + 1] = values[i] / divisor;
  return all;
}

PageCurve PointsOf(const Page& page, const MeasuredData& data, const ScaleFit& fit, std::size_t panel) {
  PageCurve curve;
  curve.panel = panel;
  curve.run = page.runs.empty() ? 0 : page.runs.size() - 1;
  curve.name = curve.givenName = data.name;
  curve.x = FromOne(data.points->x, 1);
  curve.y = FromOne(data.points->y, fit.factor);
  if (!data.points->error.empty()) curve.error = FromOne(data.points->error, std::abs(fit.factor));
  curve.markers = true;
  curve.colour = data.colour;
  curve.data = data.number;
  return curve;
}

bool BelongsTo(const Page& page, const MeasuredData& data) {
  return data.axis == AxisTitleOf(page.kind);
}

struct FittedData {
  const MeasuredData* data;
  ScaleFit fit;
  std::size_t panel = 0;
};

/// Measured data that lie along the axis, held against their curves.
std::vector<FittedData> FitsOn(const Page& page, const Comparison& comparison) {
  std::vector<FittedData> fits;
  if (!TakesData(page)) return fits;
  for (const MeasuredData& data : comparison.data) {
    if (!BelongsTo(page, data)) continue;
    const PageCurve* reference = ReferenceOf(page, data);
    ScaleFit fit;
    if (reference != nullptr) fit = FitOf(data, *reference);
    if (reference == nullptr && !data.fitted && data.factor != 0) fit.factor = data.factor;
    fits.push_back({&data, std::move(fit), reference != nullptr ? reference->panel : 0});
  }
  return fits;
}

/// How many points lie beyond the ends of the axis, and on a logarithmic one have no place.
std::string NotDrawn(const Page& page, const PageCurve& points) {
  const PagePanel& panel = page.panels[points.panel];
  int beyond = 0, nothing = 0;
  for (std::size_t i = 1; i < points.x.size(); ++i) {
    const bool outside = points.x[i] < panel.limits.xmin || points.x[i] > panel.limits.xmax;
    beyond += outside ? 1 : 0;
    nothing += !outside && panel.logY && !(points.y[i] > 0) ? 1 : 0;
  }
  std::string words;
  if (beyond > 0) words += ", " + std::to_string(beyond) + " beyond the ends of the axis not drawn";
  if (nothing > 0) words += ", " + std::to_string(nothing) + " not above 0 not drawn";
  return words;
}

/// Curves and data with their names and colours, hidden ones too. @return the data's fits.
std::vector<FittedData> LayOut(Page& page, const Comparison& comparison) {
  AddKept(page, comparison);
  ApplyNamesAndColours(page, comparison);
  std::vector<FittedData> fits = FitsOn(page, comparison);
  for (const FittedData& fitted : fits) page.curves.push_back(PointsOf(page, *fitted.data, fitted.fit, fitted.panel));
  return fits;
}

std::string NoteOf(const Page& page, const PageCurve& points, const FittedData& fitted) {
  return points.givenName + ": " + WordsOf(fitted.fit, fitted.data->fitted) + NotDrawn(page, points);
}

const PageCurve* FindPoints(const Page& page, int number) {
  const auto found = std::ranges::find(page.curves, number, &PageCurve::data);
  return found == page.curves.end() ? nullptr : &*found;
}

/// The panel below with its curves: pairs of curves, and data less their curve.
void AddBelow(Page& page, const Comparison& comparison, const std::vector<FittedData>& fits) {
  if (!TakesData(page)) return;
  if (comparison.below == BelowGraph::Nothing) {
    for (const FittedData& fitted : fits)
      if (const PageCurve* points = FindPoints(page, fitted.data->number); points != nullptr && !fitted.data->hidden)
        page.notes.push_back({NoteOf(page, *points, fitted), points->colour});
    return;
  }
  BelowPanel below(page, comparison.below);
  for (const CurvePair& pair : comparison.pairs) {
    const PageCurve *first = StandIn(page, pair.first), *second = StandIn(page, pair.second);
    if (first != nullptr && second != nullptr && first != second) below.AddPair(*first, *second);
  }
  for (const FittedData& fitted : fits) {
    const PageCurve* reference = ReferenceOf(page, *fitted.data);
    const PageCurve* points = FindPoints(page, fitted.data->number);
    if (!fitted.data->hidden && reference != nullptr && points != nullptr)
      below.AddData(*points, *reference, fitted.fit, NoteOf(page, *points, fitted));
  }
  below.Finish();
}

void LeaveOutHidden(Page& page, const Comparison& comparison) {
  std::erase_if(page.curves, [&](const PageCurve& curve) {
    if (page.panels[curve.panel].below != BelowGraph::Nothing) return false;
    if (curve.data != 0) return std::ranges::find(comparison.data, curve.data, &MeasuredData::number)->hidden;
    const CurveChange* change = FindChange(comparison, IdOf(page, curve));
    return change != nullptr && (change->hidden || change->removed);
  });
}

/// Makes the vertical axis so long that kept curves and data are on it.
void TakeIn(Page& page, const Look& look) {
  const bool typed = look.scale.ymin || look.scale.ymax;
  if (typed || page.zoomedY || page.kind.polar) return;
  PagePanel& panel = page.panels.front();
  const auto isNew = [&](const PageCurve& curve) {
    const auto& runs = page.plain->runs;
    return curve.data != 0 || std::ranges::find(runs, page.runs[curve.run].number, &PageRun::number) == runs.end();
  };
  double top = 0, bottom = std::numeric_limits<double>::infinity();
  for (const PageCurve& curve : page.curves) {
    if (curve.panel != 0 || !isNew(curve)) continue;
    const RowSpan rows = RowsWithin(curve.x, {panel.limits.xmin, panel.limits.xmax});
    for (std::size_t i = rows.first; i <= rows.last; ++i) {
      if (!std::isfinite(curve.y[i]) || (panel.logY && !(curve.y[i] > 0))) continue;
      top = std::max(top, curve.y[i]);
      bottom = std::min(bottom, curve.y[i]);
    }
  }
  // Noise about nothing comes as near to 0 as it likes.
  constexpr double farthestBelow = 1e-3;
  if (panel.logY) bottom = std::max(bottom, farthestBelow * panel.limits.ymin);
  if (!(top > panel.limits.ymax) && !(bottom < panel.limits.ymin)) return;
  ChooseLimitsFor(page, 0, {std::min(bottom, page.autoBottom), std::max(top, page.autoTop)}, look);
}

void AddMarkers(Page& page, const Comparison& comparison) {
  for (const Marker& marker : comparison.markers)
    if (const PageCurve* curve = FindCurve(page, marker.id); curve != nullptr && curve->angle.empty())
      page.markers.push_back({marker.number, curve->panel, marker.x, marker.y});
}

}  // namespace

bool TakesComparison(const Page& page) {
  return !page.panels.empty() && !page.map && !page.phasors && !page.photograph && !page.kind.IsTwoAngle() &&
         !page.runs.empty();
}

bool TakesData(const Page& page) {
  return TakesComparison(page) && !page.kind.polar && !page.kind.fourier;
}

Page PlainPage(Page page) {
  page.keyAt.reset();
  page.markers.clear();
  page.notes.clear();
  const auto plain = std::exchange(page.plain, nullptr);
  if (!plain) return page;
  page.curves = plain->curves;
  page.runs = plain->runs;
  if (page.bars) page.bars->run = plain->runOfBars;
  if (!page.panels.empty() && page.panels.back().below != BelowGraph::Nothing) page.panels.pop_back();
  AxisLimits& limits = page.panels.front().limits;
  const bool sameView = limits.xmin == plain->x.xmin && limits.xmax == plain->x.xmax && !page.zoomedY;
  if (!sameView) return page;
  limits.ymin = plain->y.xmin;
  limits.ymax = plain->y.xmax;
  page.autoBottom = plain->autoBottom;
  page.autoTop = plain->autoTop;
  page.scale = plain->scale;
  return page;
}

Page WithComparison(Page compared, const Comparison& comparison, const Look& look) {
  Page page = PlainPage(std::move(compared));
  if (!TakesComparison(page)) return page;
  page.keyAt = comparison.keyAt;
  if (IsEmpty(comparison)) return page;
  RememberPlain(page);
  const auto fits = LayOut(page, comparison);
  AddBelow(page, comparison, fits);
  LeaveOutHidden(page, comparison);
  TakeIn(page, look);
  AddMarkers(page, comparison);
  return page;
}

std::vector<ListedCurve> ListCurves(const Page& shown, const Comparison& comparison) {
  std::vector<ListedCurve> list;
  Page page = PlainPage(shown);
  if (!TakesComparison(page)) return list;
  const auto fits = LayOut(page, comparison);
  const CurveNames names(page);
  // As the key has them: polarisations of a run in their order, whichever was drawn first.
  const auto place = [](const PageCurve& curve) {
    return std::tuple(curve.data, curve.run, curve.panel, curve.alone, curve.kind);
  };
  std::ranges::stable_sort(page.curves, {}, place);
  for (const PageCurve& curve : page.curves) {
    ListedCurve listed{IdOf(page, curve), names.InKey(curve), curve.colour, true, false, {}, 1, {}};
    if (const CurveChange* change = FindChange(comparison, listed.id)) {
      if (change->removed) continue;
      listed.shown = !change->hidden;
    }
    listed.kept = std::ranges::any_of(comparison.kept, [&](const auto& kept) { return kept->id == listed.id; });
    for (const FittedData& fitted : fits) {
      if (curve.data != fitted.data->number) continue;
      listed.shown = !fitted.data->hidden;
      if (const PageCurve* reference = ReferenceOf(page, *fitted.data)) listed.against = IdOf(page, *reference);
      listed.factor = fitted.fit.factor;
      listed.words = WordsOf(fitted.fit, fitted.data->fitted) + NotDrawn(page, curve);
    }
    list.push_back(std::move(listed));
  }
  return list;
}

CurveChange& ChangeOf(Comparison& comparison, const CurveId& id) {
  const auto found = std::ranges::find(comparison.changes, id, &CurveChange::id);
  if (found != comparison.changes.end()) return *found;
  comparison.changes.push_back({id, {}, {}, false, false});
  return comparison.changes.back();
}

Comparison AfterNewPlot(const Comparison& comparison, const Page& page) {
  Comparison left = comparison;
  const auto isKept = [&](const CurveId& id) {
    return std::ranges::any_of(comparison.kept, [&](const auto& kept) { return kept->id == id; });
  };
  std::erase_if(left.changes, [&](const CurveChange& change) { return !isKept(change.id); });
  Page laid = PlainPage(page);
  if (!TakesComparison(laid)) return left;
  LayOut(laid, left);
  std::erase_if(left.pairs, [&](const CurvePair& pair) {
    const PageCurve *first = StandIn(laid, pair.first), *second = StandIn(laid, pair.second);
    return first == nullptr || second == nullptr || first == second;
  });
  return left;
}

}  // namespace lumivex
