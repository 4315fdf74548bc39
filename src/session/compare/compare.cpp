#include "session/compare/compare.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "pages/compare/curve_id.h"
#include "pages/curves/curve_names.h"
#include "pages/read_out.h"
#include "record/catalogue/graph_texts.h"
#include "record/csv_cell.h"
#include "record/number_text.h"
#include "session/page.h"
#include "session/undo.h"

namespace lumivex {

namespace {

/// Colours that the colour-blind tell apart, for curves that are kept and, from the other end, for data.
constexpr std::array palette = {Colour{0x739E00}, Colour{0xA779CC}, Colour{0x009FE6},
                                Colour{0xE9B456}, Colour{0x005ED5}, Colour{0xB27200}};

/// A step of undo that changes the comparison and draws the page.
/// @param sameAs  what merges with the step before, where that has the same name; empty for a step of its own.
template <class Change>
void Step(Session& session, std::string_view sameAs, Change&& change) {
  // Within an action of the user, as the opening of a file, it belongs to that one's step.
  if (session.undo.acting == 0) RememberInputs(session, sameAs);
  {
    const ActionScope acting(session.undo);
    change(session.comparison);
    ShowPage(session, session.page);
  }
  OfferHistory(session);
}

MeasuredData* DataOf(Comparison& comparison, int number) {
  const auto found = std::ranges::find(comparison.data, number, &MeasuredData::number);
  return found == comparison.data.end() ? nullptr : &*found;
}

bool IsKept(const Comparison& comparison, const CurveId& id) {
  return std::ranges::any_of(comparison.kept, [&](const auto& kept) { return kept->id == id; });
}

/// The curve with the look that its run gives it.
std::shared_ptr<const KeptCurve> Taken(const Page& shown, const CurveId& id) {
  const Page page = PlainPage(shown);
  const PageCurve* curve = FindCurve(page, id);
  if (curve == nullptr) return nullptr;
  return std::make_shared<const KeptCurve>(KeptCurve{id, page.kind, page.runs[curve->run], *curve});
}

/// A curve of the last run by its place in it: data that are held against one go on to that of the next run.
CurveId OfLastRun(const Page& page, CurveId id) {
  if (!page.runs.empty() && page.runs.back().number == id.run) id.run = 0;
  return id;
}

std::string_view UnitOfX(const PageKind& kind) {
  return XUnitOf(kind.graph, {kind.fourier, kind.invWavelength});
}

std::string Cell(double value) {
  return std::string(Trim(Significant(value, 8)));
}

}  // namespace

std::vector<ListedCurve> CurvesOnPage(const Session& session) {
  return ListCurves(session.page, session.comparison);
}

void NameCurve(Session& session, const CurveId& id, const std::string& name) {
  Step(session, "", [&](Comparison& comparison) {
    if (MeasuredData* data = DataOf(comparison, id.data))
      data->name = name.empty() ? data->name : name;
    else
      ChangeOf(comparison, id).name = name;
  });
}

void ShowCurve(Session& session, const CurveId& id, bool shown) {
  Step(session, "", [&](Comparison& comparison) {
    if (MeasuredData* data = DataOf(comparison, id.data))
      data->hidden = !shown;
    else
      ChangeOf(comparison, id).hidden = !shown;
  });
}

void ColourCurve(Session& session, const CurveId& id, std::optional<Colour> colour) {
  Step(session, "", [&](Comparison& comparison) {
    if (MeasuredData* data = DataOf(comparison, id.data))
      data->colour = colour.value_or(data->colour);
    else
      ChangeOf(comparison, id).colour = colour;
  });
}

void KeepCurve(Session& session, const CurveId& id, bool kept) {
  if (id.data != 0 || kept == IsKept(session.comparison, id)) return;
  Step(session, "", [&](Comparison& comparison) {
    if (!kept) {
      std::erase_if(comparison.kept, [&](const auto& each) { return each->id == id; });
      return;
    }
    auto taken = Taken(session.page, id);
    if (!taken) return;
    comparison.kept.push_back(std::move(taken));
    CurveChange& change = ChangeOf(comparison, id);
    if (!change.colour) change.colour = palette[(comparison.kept.size() - 1) % palette.size()];
  });
}

void RemoveCurve(Session& session, const CurveId& id) {
  Step(session, "", [&](Comparison& comparison) {
    std::erase_if(comparison.kept, [&](const auto& kept) { return kept->id == id; });
    std::erase_if(comparison.pairs, [&](const CurvePair& pair) { return pair.first == id || pair.second == id; });
    if (id.data != 0)
      std::erase_if(comparison.data, [&](const MeasuredData& data) { return data.number == id.data; });
    else
      ChangeOf(comparison, id).removed = true;
  });
}

void ComparePair(Session& session, const CurveId& first, const CurveId& second, BelowGraph how) {
  if (first == second) return;
  Step(session, "", [&](Comparison& comparison) {
    comparison.below = how;
    MeasuredData* data = DataOf(comparison, first.data);
    if (data == nullptr) data = DataOf(comparison, second.data);
    if (data != nullptr) {
      data->against = OfLastRun(session.page, data->number == first.data ? second : first);
      return;
    }
    const CurvePair pair{first, second};
    if (std::ranges::find(comparison.pairs, pair) == comparison.pairs.end()) comparison.pairs.push_back(pair);
  });
}

void ShowBelow(Session& session, BelowGraph how) {
  if (session.comparison.below == how) return;
  Step(session, "", [&](Comparison& comparison) {
    comparison.below = how;
    if (how == BelowGraph::Nothing) comparison.pairs.clear();
  });
}

int AddMeasured(Session& session, std::shared_ptr<const MeasuredPoints> points, const std::string& name) {
  Step(session, "", [&](Comparison& comparison) {
    MeasuredData data;
    data.number = ++comparison.lastData;
    data.name = name;
    data.points = std::move(points);
    data.axis = AxisTitleOf(session.page.kind);
    data.colour = palette[palette.size() - 1 - comparison.data.size() % palette.size()];
    if (const PageCurve* curve = ReferenceOf(session.page, data))
      data.against = OfLastRun(session.page, IdOf(session.page, *curve));
    comparison.data.push_back(std::move(data));
    if (comparison.below == BelowGraph::Nothing) comparison.below = BelowGraph::Ratio;
  });
  return session.comparison.lastData;
}

void ScaleData(Session& session, int number, std::optional<double> factor) {
  Step(session, "", [&](Comparison& comparison) {
    MeasuredData* data = DataOf(comparison, number);
    if (data == nullptr) return;
    data->fitted = !factor;
    data->factor = factor.value_or(1);
  });
}

void HoldAgainst(Session& session, int number, const CurveId& id) {
  if (id.data != 0) return;
  Step(session, "", [&](Comparison& comparison) {
    if (MeasuredData* data = DataOf(comparison, number)) data->against = OfLastRun(session.page, id);
  });
}

const MeasuredData* FindData(const Session& session, int number) {
  const auto found = std::ranges::find(session.comparison.data, number, &MeasuredData::number);
  return found == session.comparison.data.end() ? nullptr : &*found;
}

void MoveKey(Session& session, std::optional<KeyPlace> place) {
  if (place == session.comparison.keyAt) return;
  Step(session, place ? "key" : "", [&](Comparison& comparison) { comparison.keyAt = place; });
}

bool MarkPoint(Session& session, double surfaceX, double surfaceY) {
  const Page& page = session.page;
  if (!TakesComparison(page)) return false;
  const auto reading = ReadAt(page, surfaceX, surfaceY);
  if (!reading || !reading->onCurve || reading->curve >= page.curves.size()) return false;
  const PageCurve& curve = page.curves[reading->curve];
  const PagePanel& panel = page.panels[curve.panel];
  Marker marker;
  marker.id = panel.below == BelowGraph::Nothing ? IdOf(page, curve) : CurveId{};
  marker.curve = CurveNames(page).InKey(curve);
  marker.x = reading->curveX;
  marker.y = reading->curveY;
  marker.xUnit = UnitOfX(page.kind);
  marker.yUnit = UnitOfY(page, panel);
  Step(session, "", [&](Comparison& comparison) {
    marker.number = ++comparison.lastMarker;
    comparison.markers.push_back(marker);
  });
  return true;
}

void DeleteMarker(Session& session, int number) {
  Step(session, "", [&](Comparison& comparison) {
    std::erase_if(comparison.markers, [&](const Marker& marker) { return marker.number == number; });
    if (comparison.markers.empty()) comparison.lastMarker = 0;
  });
}

void ClearMarkers(Session& session) {
  if (session.comparison.markers.empty()) return;
  Step(session, "", [](Comparison& comparison) {
    comparison.markers.clear();
    comparison.lastMarker = 0;
  });
}

std::string MarkersAsText(const Comparison& comparison, char separator) {
  std::string text;
  const auto row = [&](std::initializer_list<std::string> cells) {
    std::string line;
    for (const std::string& cell : cells)
      line += (line.empty() ? std::string() : std::string(1, separator)) + CsvCell(cell, separator);
    text += line + "\n";
  };
  row({"number", "x", "unit of x", "value", "unit of value", "curve"});
  for (const Marker& marker : comparison.markers)
    row({std::to_string(marker.number), Cell(marker.x), marker.xUnit, Cell(marker.y), marker.yUnit, marker.curve});
  return text;
}

void BeginNewPlot(Session& session, const Page& page) {
  session.comparison = AfterNewPlot(session.comparison, page);
}

void mnuCurves_Click(Session& session) {
  Form& form = session.forms.curves;
  if (std::ranges::find(session.windows, &form, &Window::form) == session.windows.end())
    session.windows.push_back({&form, nullptr, {}});
  form.Visible = true;
  session.platform.Show(form);
}

void mnuMarkPoints_Click(Session& session) {
  auto& entry = session.form1.mnuMarkPoints;
  entry.Checked = !entry.Checked;
}

}  // namespace lumivex
