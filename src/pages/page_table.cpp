#include "pages/page_table.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <optional>
#include <utility>

#include "pages/bars/bar_place.h"
#include "pages/curves/curve_names.h"
#include "pages/curves/curve_path.h"
#include "pages/items/phasor_diagram.h"
#include "pages/maps/map_table.h"
#include "record/catalogue/graph_texts.h"
#include "record/csv_cell.h"
#include "record/number_text.h"

namespace lumivex {

namespace {

using Column = TableColumn;

std::string Cell(double value) {
  return std::isfinite(value) ? Shortest(value) : "";
}

/// x of a curve as the table shows it: the scattering angle, also where the curve is drawn by its phase.
const SharedValues& TableX(const PageCurve& curve) {
  return curve.angle.empty() ? curve.x : curve.angle;
}

bool SameValues(const SharedValues& a, const SharedValues& b) {
  if (a.SharesWith(b)) return true;
  return a.size() == b.size() && std::equal(a.begin() + 1, a.end(), b.begin() + 1, [](double p, double q) {
           return p == q || (std::isnan(p) && std::isnan(q));
         });
}

/// Two curves stand under one x where their points do; rows that were not computed count as the same.
bool SharesX(const PageCurve& a, const PageCurve& b) {
  const auto& xa = TableX(a);
  const auto& xb = TableX(b);
  return SameValues(xa, xb);
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
std::vector<Column> TwoAngleColumns(const Page& page) {
  std::vector<Column> columns;
  const CurveNames names(page);
  std::optional<std::size_t> drawn;
  for (const auto& curve : page.curves) {
    const auto add = [&](const std::string& name, const SharedValues& values) {
      Column column{Unused(columns, name), {}};
      for (std::size_t i = 1; i < values.size(); ++i) column.cells.push_back(Cell(values[i]));
      columns.push_back(std::move(column));
    };
    if (curve.run != drawn) add("Radius (\u00B5m)", curve.angle);
    drawn = curve.run;
    add(names.Of(curve) + ": " + page.kind.xTitle, curve.x);
    add(names.Of(curve) + ": Cross-section, " + page.kind.yTitle, curve.y);
  }
  return columns;
}

/// What is left of an amplitude after each term.
std::vector<Column> PhasorColumns(const PagePhasors& dots) {
  std::vector<Column> columns = {
      {"Terms taken away", {}}, {"Perpendicular", {}}, {"phase (deg)", {}}, {"Parallel", {}}, {"phase (deg) (2)", {}}};
  constexpr double degreesPerRadian = 180 / 3.14159265358979;
  for (int j = 1; j <= dots.count; ++j) {
    const ComplexD a = dots.first.Value(j), b = dots.second.Value(j);
    const double row[] = {j - 1.0, std::hypot(a.re, a.im), degreesPerRadian * PhasorPhase(a.re, a.im),
                          std::hypot(b.re, b.im), degreesPerRadian * PhasorPhase(b.re, b.im)};
    for (std::size_t c = 0; c < columns.size(); ++c) columns[c].cells.push_back(Cell(row[c]));
  }
  return columns;
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
  line([&](const Column& column) { return CsvCell(column.name, separator); });
  for (std::size_t row = 0; row < rows; ++row)
    line([&](const Column& column) { return row < column.cells.size() ? column.cells[row] : std::string(); });
  return text;
}

/// The tables of a map under each other, each below its name and parted by a line.
std::string MapTables(const PageMap& map, char separator, std::string_view beforeName) {
  std::string text;
  for (std::size_t number = 0; number < MapTableCount(map); ++number) {
    const MapTable table = MapTableOf(map, number);
    if (number > 0) text += '\n';
    text += std::string(beforeName) + table.name + "\n" + Table(table.columns, separator);
  }
  return text;
}

/// The sums that bars are coloured from. Those of one wavelength are its intensities once more.
bool HasBarColumns(const Page& page) {
  return page.bars && page.kind.wavelengths > 1;
}

/// Three columns a bar, for rows that have an angle.
void AddBarColumns(const PageBars& bars, RowSpan rows, std::vector<Column>& columns) {
  static constexpr std::array channels = {"red", "green", "blue"};
  for (std::size_t k = 0; k < bars.light.size(); ++k)
    for (std::size_t c = 0; c < channels.size(); ++c) {
      Column column{Unused(columns, std::string(BarTitle(k)) + " bar: " + channels[c]), {}};
      for (std::size_t j = rows.first; j <= rows.last; ++j)
        if (std::isfinite(bars.angle[j])) column.cells.push_back(Cell(bars.light[k].channels[c][j]));
      columns.push_back(std::move(column));
    }
}

/// Errors of measured data, for rows that have a place.
Column ErrorColumn(const std::vector<Column>& columns, const PageCurve& points, const std::string& name, RowSpan rows) {
  Column errors{Unused(columns, name + ": error"), {}};
  for (std::size_t i = rows.first; i <= rows.last; ++i)
    if (std::isfinite(points.x[i])) errors.cells.push_back(Cell(points.error[i]));
  return errors;
}

}  // namespace

std::vector<TableColumn> TableOf(const Page& page) {
  if (page.phasors) return PhasorColumns(*page.phasors);
  if (page.kind.IsTwoAngle()) return TwoAngleColumns(page);
  if (page.map) return MapTableCount(*page.map) > 0 ? MapTableOf(*page.map, 0).columns : std::vector<Column>();
  std::vector<Column> columns;
  const CurveNames names(page);
  const std::string xName(XTitleOf(page.kind.graph, {page.kind.fourier, page.kind.invWavelength}));
  std::vector<std::pair<const PageCurve*, RowSpan>> groups;
  bool barsStand = !HasBarColumns(page);
  for (const auto& first : page.curves) {
    const auto known = [&](const auto& group) { return SharesX(*group.first, first); };
    if (first.y.size() < 2 || std::ranges::any_of(groups, known)) continue;
    const AxisLimits& limits = page.panels[first.panel].limits;
    const auto& x = TableX(first);
    const RowSpan rows = page.kind.polar ? RowSpan{1, x.size() - 1} : RowsWithin(x, {limits.xmin, limits.xmax});
    groups.emplace_back(&first, rows);
    Column xs{Unused(columns, xName.empty() ? "x" : xName), {}};
    for (std::size_t i = rows.first; i <= rows.last; ++i)
      if (std::isfinite(x[i])) xs.cells.push_back(Cell(x[i]));
    columns.push_back(std::move(xs));
    for (const auto& curve : page.curves) {
      if (!SharesX(first, curve)) continue;
      Column ys{Unused(columns, names.InKey(curve)), {}};
      const SharedValues values = DrawnValues(curve, rows);
      for (std::size_t i = rows.first; i <= rows.last; ++i)
        if (std::isfinite(x[i])) ys.cells.push_back(Cell(values[i]));
      columns.push_back(std::move(ys));
      if (!curve.error.empty()) columns.push_back(ErrorColumn(columns, curve, names.InKey(curve), rows));
    }
    if (barsStand || !SameValues(x, page.bars->angle)) continue;
    AddBarColumns(*page.bars, rows, columns);
    barsStand = true;
  }
  return columns;
}

namespace {

/// What is compared, and how measured data fit.
void AddNotes(const Page& page, std::vector<std::string>& lines) {
  for (const PageNote& note : page.notes) lines.push_back("Compared: " + note.text);
}

}  // namespace

std::vector<std::string> HeaderOf(const Page& page) {
  std::vector<std::string> lines;
  for (std::size_t i = 0; i < page.runs.size(); ++i) {
    if (page.runs.size() > 1) lines.push_back("Run " + std::to_string(i + 1));
    lines.insert(lines.end(), page.runs[i].parameters.begin(), page.runs[i].parameters.end());
  }
  AddNotes(page, lines);
  return lines;
}

std::vector<std::string> HeaderInShort(const Page& page) {
  if (page.runs.empty()) return {};
  const auto& first = page.runs.front().parameters;
  if (page.runs.size() == 1) {
    std::vector<std::string> all = first;
    AddNotes(page, all);
    return all;
  }
  const auto isIn = [](const std::vector<std::string>& lines, const std::string& line) {
    return std::ranges::find(lines, line) != lines.end();
  };
  const auto inAll = [&](const std::string& line) {
    return std::ranges::all_of(page.runs, [&](const PageRun& run) { return isIn(run.parameters, line); });
  };
  std::vector<std::string> lines;
  std::ranges::copy_if(first, std::back_inserter(lines), inAll);
  for (std::size_t i = 0; i < page.runs.size(); ++i) {
    std::string own;
    for (const std::string& line : page.runs[i].parameters)
      if (!inAll(line)) own += (own.empty() ? "" : "; ") + std::string(Trim(line));
    lines.push_back("Run " + std::to_string(i + 1) + (own.empty() ? "" : ": " + own));
  }
  AddNotes(page, lines);
  return lines;
}

std::string TableAsText(const Page& page) {
  return page.map ? MapTables(*page.map, '\t', "") : Table(TableOf(page), '\t');
}

std::string TableAsCsv(const Page& page) {
  return page.map ? MapTables(*page.map, ',', "# ") : Table(TableOf(page), ',');
}

std::string TableWithHeader(const Page& page) {
  std::string text;
  for (const auto& line : HeaderOf(page)) text += "# " + line + "\n";
  return text + TableAsCsv(page);
}

}  // namespace lumivex
