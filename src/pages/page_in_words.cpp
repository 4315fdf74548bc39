#include "pages/page_in_words.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "pages/curves/curve_names.h"
#include "record/catalogue/graph_texts.h"
#include "record/number_text.h"

namespace lumivex {

namespace {

constexpr std::size_t mostCurves = 6, mostMaxima = 4;
constexpr int digits = 4;

std::string Range(double from, double to) {
  return "from " + Significant(from, digits) + " to " + Significant(to, digits);
}

/// Rows of local maxima in view, the highest first; an end of the view counts where the curve falls from it.
std::vector<std::size_t> MaximaOf(const PageCurve& curve, const XRange& view) {
  std::vector<std::size_t> rows, maxima;
  for (std::size_t row = 1; row < std::min(curve.x.size(), curve.y.size()); ++row)
    if (curve.x[row] >= view.xmin && curve.x[row] <= view.xmax && std::isfinite(curve.y[row])) rows.push_back(row);
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const double y = curve.y[rows[i]];
    const bool above = i == 0 || y > curve.y[rows[i - 1]];
    if (above && (i + 1 == rows.size() || y >= curve.y[rows[i + 1]])) maxima.push_back(rows[i]);
  }
  std::ranges::stable_sort(maxima, [&](std::size_t a, std::size_t b) { return curve.y[a] > curve.y[b]; });
  return maxima;
}

std::string CurveInWords(const PageCurve& curve, const std::string& name, const XRange& view) {
  const auto maxima = MaximaOf(curve, view);
  if (maxima.empty()) return " " + name + ": nothing in view.";
  const auto at = [&](std::size_t row) { return Significant(curve.x[row], digits + 1); };
  std::string words = " " + name + ": greatest " + Significant(curve.y[maxima[0]], digits) + " at " + at(maxima[0]);
  for (std::size_t i = 1; i < std::min(maxima.size(), mostMaxima); ++i)
    words += (i == 1 ? ", further maxima at " : ", ") + at(maxima[i]);
  return words + ".";
}

}  // namespace

std::string PageInWords(const Page& page) {
  if (page.Empty() || page.photograph) return "";
  std::string words = page.runs.empty() ? "" : page.runs.front().title + page.runs.front().methodLabel + ".";
  if (page.phasors) return words + " Phasor diagram of " + std::to_string(page.phasors->count) + " terms.";
  const PageKind& kind = page.kind;
  const PagePanel& panel = page.panels.front();
  const std::string x =
      kind.xTitle.empty() ? std::string(XTitleOf(kind.graph, {kind.fourier, kind.invWavelength})) : kind.xTitle;
  const std::string y = kind.yTitle.empty() ? std::string(YTitleOf(kind.graph, kind.amplitude)) : kind.yTitle;
  words += " " + x + " " + Range(panel.limits.xmin, panel.limits.xmax) + (kind.logX ? ", logarithmic." : ".");
  words += " " + y + " " + Range(panel.limits.ymin, panel.limits.ymax) + (panel.logY ? ", logarithmic." : ".");
  if (page.map) return words + " A map of " + std::to_string(page.panels.size()) + " pictures.";
  const CurveNames names(page);
  std::size_t told = 0;
  for (const PageCurve& curve : page.curves)
    if (curve.panel == 0 && told++ < mostCurves)
      words += CurveInWords(curve, names.Of(curve), {panel.limits.xmin, panel.limits.xmax});
  if (told > mostCurves) words += " And " + std::to_string(told - mostCurves) + " more curves.";
  if (page.panels.back().below != BelowGraph::Nothing)
    words += page.panels.back().below == BelowGraph::Ratio ? " Below it ratios." : " Below it differences.";
  for (const PageNote& note : page.notes) words += " " + note.text + ".";
  return words;
}

}  // namespace lumivex
