#include "graphs/curve_text.h"

#include <cmath>

#include "session/record/number_text.h"

namespace lumivex {

namespace {

std::string Field(double value) {
  return std::isfinite(value) ? Exact(value) : "";
}

/// One block: the curves from `first` on that share its x values.
std::string Block(const std::vector<KeptCurve>& curves, std::size_t first, std::size_t last,
                  const std::string& separator) {
  std::string text = "x";
  for (std::size_t c = first; c < last; ++c) text += separator + curves[c].name;
  text += "\n";
  const auto& x = curves[first].x;
  for (std::size_t i = 1; i < x.size(); ++i) {
    if (!std::isfinite(x[i])) continue;
    text += Field(x[i]);
    for (std::size_t c = first; c < last; ++c)
      text += separator + (i < curves[c].y.size() ? Field(curves[c].y[i]) : "");
    text += "\n";
  }
  return text;
}

bool SameX(const std::vector<double>& a, const std::vector<double>& b) {
  if (a.size() != b.size()) return false;
  for (std::size_t i = 1; i < a.size(); ++i)
    if (a[i] != b[i] && !(std::isnan(a[i]) && std::isnan(b[i]))) return false;
  return true;
}

std::string Blocks(const std::vector<KeptCurve>& curves, const std::string& separator) {
  std::string text;
  for (std::size_t first = 0, last = 0; first < curves.size(); first = last) {
    for (last = first + 1; last < curves.size() && SameX(curves[first].x, curves[last].x);) ++last;
    text += (text.empty() ? "" : "\n") + Block(curves, first, last, separator);
  }
  return text;
}

}  // namespace

std::string CurvesAsText(const Session& session) {
  return Blocks(session.state.Drawn.curves, "\t");
}

std::string CurvesAsCsv(const Session& session, const std::vector<std::string>& header) {
  std::string text;
  for (const auto& line : header) text += "# " + line + "\n";
  return text + Blocks(session.state.Drawn.curves, ",");
}

}  // namespace lumivex
