#include "pages/curve_text.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "pages/curve_path.h"
#include "pages/frame_paint.h"
#include "record/number_text.h"

namespace lumivex {

namespace {

struct Column {
  std::string name;
  std::vector<std::string> cells;
};

std::string Cell(double value) {
  return std::isfinite(value) ? Shortest(value) : "";
}

/// x of a curve as the table shows it: the scattering angle, also where the curve is drawn by its phase.
const std::vector<double>& TableX(const KeptCurve& curve) {
  return curve.angle.empty() ? curve.x : curve.angle;
}

/// Two curves stand under one x where their points do; rows that were not computed count as the same.
bool SharesX(const KeptCurve& a, const KeptCurve& b) {
  const auto& xa = TableX(a);
  const auto& xb = TableX(b);
  return xa.size() == xb.size() && std::equal(xa.begin() + 1, xa.end(), xb.begin() + 1, [](double p, double q) {
           return p == q || (std::isnan(p) && std::isnan(q));
         });
}

/// A name that no column has yet.
std::string Unused(const std::vector<Column>& columns, const std::string& name) {
  const auto taken = [&](const std::string& candidate) {
    return std::ranges::any_of(columns, [&](const Column& column) { return column.name == candidate; });
  };
  std::string unused = name;
  for (int i = 2; taken(unused); ++i) unused = name + " (" + std::to_string(i) + ")";
  return unused;
}

/// A two-angle chart as a table: the radii of a run, then both cross-sections of each index.
std::vector<Column> TwoAngleColumns(const KeptGraph& graph) {
  std::vector<Column> columns;
  int group = 0;
  for (const auto& curve : graph.curves) {
    const auto add = [&](const std::string& name, const std::vector<double>& values) {
      Column column{Unused(columns, name), {}};
      for (std::size_t i = 1; i < values.size(); ++i) column.cells.push_back(Cell(values[i]));
      columns.push_back(std::move(column));
    };
    if (curve.group != group) add("Radius (\u00B5m)", curve.angle);
    group = curve.group;
    add(curve.name + ": " + graph.kind.xTitle, curve.x);
    add(curve.name + ": Cross-section, " + graph.kind.yTitle, curve.y);
  }
  return columns;
}

std::vector<Column> Columns(const KeptGraph& graph) {
  if (graph.kind.IsTwoAngle()) return TwoAngleColumns(graph);
  std::vector<Column> columns;
  const std::string xName(XAxisTitle(graph.kind));
  std::vector<std::pair<const KeptCurve*, RowSpan>> groups;
  for (const auto& first : graph.curves) {
    const auto known = [&](const auto& group) { return SharesX(*group.first, first); };
    if (first.y.size() < 2 || std::ranges::any_of(groups, known)) continue;
    const AxisLimits& limits = graph.panels[first.panel].limits;
    const auto& x = TableX(first);
    const RowSpan rows = graph.kind.polar ? RowSpan{1, x.size() - 1} : RowsWithin(x, {limits.xmin, limits.xmax});
    groups.emplace_back(&first, rows);
    Column xs{Unused(columns, xName.empty() ? "x" : xName), {}};
    for (std::size_t i = rows.first; i <= rows.last; ++i)
      if (std::isfinite(x[i])) xs.cells.push_back(Cell(x[i]));
    columns.push_back(std::move(xs));
    for (const auto& curve : graph.curves) {
      if (!SharesX(first, curve)) continue;
      Column ys{Unused(columns, curve.name), {}};
      for (std::size_t i = rows.first; i <= rows.last; ++i)
        if (std::isfinite(x[i])) ys.cells.push_back(Cell(DrawnValue(curve, i, rows)));
      columns.push_back(std::move(ys));
    }
  }
  return columns;
}

/// A cell of a table whose cells are parted by `separator`.
std::string Quoted(const std::string& text, char separator) {
  return text.find(separator) == std::string::npos ? text : '"' + text + '"';
}

std::string Table(const std::vector<Column>& columns, char separator) {
  if (columns.empty()) return {};
  std::size_t rows = 0;
  for (const auto& column : columns) rows = std::max(rows, column.cells.size());
  std::string text;
  const auto line = [&](auto&& cell) {
    for (std::size_t c = 0; c < columns.size(); ++c) {
      if (c > 0) text += separator;
      text += cell(columns[c]);
    }
    text += '\n';
  };
  line([&](const Column& column) { return Quoted(column.name, separator); });
  for (std::size_t row = 0; row < rows; ++row)
    line([&](const Column& column) { return row < column.cells.size() ? column.cells[row] : std::string(); });
  return text;
}

}  // namespace

std::string CurvesAsText(const Session& session) {
  return Table(Columns(session.state.Drawn), '\t');
}

std::string CurvesAsCsv(const Session& session, std::span<const std::string> headerLines) {
  std::string text;
  for (const auto& line : headerLines) text += "# " + line + "\n";
  return text + Table(Columns(session.state.Drawn), ',');
}

}  // namespace lumivex
