#include "scripts/script_commands.h"

#include <algorithm>
#include <span>
#include <type_traits>

#include "pages/build_page.h"
#include "pages/curves/curve_rows.h"
#include "pages/page_table.h"
#include "record/number_text.h"
#include "record/recording_surface.h"
#include "runs/curves.h"
#include "runs/results.h"
#include "session/inputs/graph_types.h"
#include "session/inputs/methods.h"

namespace lumivex {

namespace {

std::string YesNo(bool value) {
  return value ? "true" : "false";
}

std::string Row(const std::vector<double>& values) {
  std::string line;
  for (const double value : values) line += (line.empty() ? "" : ",") + Exact(value);
  return line + "\n";
}

/// The value of a control as a user sees it.
std::string ShownValue(const Control& control) {
  switch (control.Kind()) {
    case ControlKind::TextInput:
    case ControlKind::SelectionList:
      return control.Value().text;
    case ControlKind::OptionButton:
    case ControlKind::CheckBox:
    case ControlKind::MenuEntry:
      return YesNo(control.Value().checked);
    case ControlKind::Frame:
      return static_cast<const Frame&>(control).Body;
    default:
      return std::string(control.ShownCaption());
  }
}

std::optional<std::string> LookOf(const Control& control, std::string_view look) {
  if (SameName(look, "Visible")) return YesNo(control.Visible);
  if (SameName(look, "Enabled")) return YesNo(control.Enabled);
  if (SameName(look, "BackColour")) return std::to_string(control.BackColour.value);
  if (SameName(look, "ForeColour")) return std::to_string(control.ForeColour.value);
  if (SameName(look, "Caption")) return std::string(control.ShownCaption());
  if (SameName(look, "Items") && control.Kind() == ControlKind::SelectionList) {
    std::string items;
    for (const auto& item : static_cast<const SelectionList&>(control).Items)
      items += (items.empty() ? "" : "|") + item;
    return items;
  }
  return std::nullopt;
}

struct ScalarReader {
  std::string_view wanted;
  std::optional<std::string> found;

  template <class Field>
  void operator()(std::string_view name, const Field& field) {
    if (!SameName(name, wanted)) return;
    if constexpr (std::is_same_v<Field, int>) {
      found = std::to_string(field);
    } else if constexpr (std::is_enum_v<Field>) {
      found = std::to_string(static_cast<int>(field));
    } else if constexpr (std::is_arithmetic_v<Field>) {
      found = Exact(field);
    } else if constexpr (std::is_same_v<Field, std::string>) {
      found = field;
    } else if constexpr (std::is_same_v<Field, Colour>) {
      found = std::to_string(field.value);
    }
  }
};

struct ArrayReader {
  std::string_view wanted;
  std::optional<std::string> found;

  template <class Field>
  void operator()(std::string_view name, const Field& field) {
    if (SameName(name, wanted)) Print(field);
  }

 private:
  template <class Field>
  void Print(const Field&) {}
  void Print(const std::vector<double>& values) {
    found.emplace();
    for (std::size_t i = 1; i < values.size(); ++i) *found += Row({values[i]});
  }
  void Print(const std::vector<float>& values) {
    found.emplace();
    for (std::size_t i = 1; i < values.size(); ++i) *found += Row({static_cast<double>(values[i])});
  }
  void Print(const AmplitudeTable& table) {
    found.emplace();
    for (int row = 1; row <= table.Rows(); ++row) *found += Row({table.Re(row), table.Im(row)});
  }
  void Print(const PartialWaves& w) {
    found.emplace();
    for (std::size_t n = 1; n < w.aRe.size(); ++n) *found += Row({w.aRe[n], w.aIm[n], w.bRe[n], w.bIm[n]});
  }
  void Print(const Table2D& table) {
    found.emplace();
    for (std::size_t row = 0; row < table.rows; ++row)
      for (std::size_t column = 0; column < table.columns; ++column)
        *found += Exact(table.At(row, column)) + (column + 1 < table.columns ? "," : "\n");
  }
  void Print(const CellView& view) {
    found.emplace();
    const auto rows = static_cast<std::size_t>(view.rows), columns = rows == 0 ? 0 : view.cells.size() / rows;
    for (std::size_t row = 0; row < rows; ++row)
      for (std::size_t column = 0; column < columns; ++column)
        *found += Exact(double{view.cells[column * rows + row]}) + (column + 1 < columns ? "," : "\n");
  }
  void Print(const std::vector<Colour>& values) {
    found.emplace();
    for (std::size_t i = 1; i < values.size(); ++i) *found += std::to_string(values[i].value) + "\n";
  }
};

struct RowRange {
  int first = 1, last = 0;
};

/// Rows of the curve arrays that the graph shows.
RowRange DisplayedRows(const MainFormState& s) {
  if (!HasResults(s)) return {};
  const int stored = static_cast<int>(s.XValues.size()) - 1;
  if (!ResultGraph(s).OfAngles()) {
    const RowRange all{1, std::min(ToWhole(s.LastPoint), stored)};
    const auto* axis = s.LastResults->Find<AxisFound>();
    if (axis == nullptr) return all;
    // By the places of the points, which the look may show as their inverse.
    const RowSpan shown = RowsWithin(std::span<const double>(axis->x), {s.PlotXmin, s.PlotXmax});
    return {std::max(all.first, static_cast<int>(shown.first)), std::min(all.last, static_cast<int>(shown.last))};
  }
  const AngleRows* rows = RowsOf(s.LastResults->asked.run);
  const double origin = rows != nullptr ? rows->Origin() : 0;
  const int first = ToWhole((s.PlotXmin - origin) / s.Xstep) + 1;
  const int last = ToWhole((s.PlotXmax - origin) / s.Xstep) + 1;
  return {std::max(first, s.AngleLow), std::min({last, s.AngleHigh, stored})};
}

}  // namespace

Control* FindControl(Session& session, std::string_view name) {
  const auto point = name.find('.');
  if (point == std::string_view::npos) return session.form1.Find(name);
  Form* form = session.forms.Find(name.substr(0, point));
  return form == nullptr ? nullptr : form->Find(name.substr(point + 1));
}

std::optional<std::string> ReadValue(Session& session, std::string_view name) {
  if (const Control* control = FindControl(session, name)) return ShownValue(*control);
  if (const auto point = name.rfind('.'); point != std::string_view::npos) {
    const Control* control = FindControl(session, name.substr(0, point));
    return control == nullptr ? std::nullopt : LookOf(*control, name.substr(point + 1));
  }
  ScalarReader reader{name, std::nullopt};
  ForEachStateField(session.state, reader);
  return reader.found;
}

std::string CurveTable(const Session& session) {
  const auto& s = session.state;
  // A chart of two signals has as many curves as indices, a map tables of cells.
  const Drawing drawing = s.LastResults ? s.LastResults->asked.graph.drawing : Drawing::Curves;
  if (drawing == Drawing::TwoAngleChart || drawing == Drawing::ColourImage) return TableAsCsv(session.page);
  // What was changed, kept or compared stands on the page alone.
  if (session.page.plain) return TableAsCsv(session.page);
  const RowRange rows = DisplayedRows(s);
  const bool volume = s.LastResults && s.LastResults->asked.graph.family == Family::Volume;
  const PageKind& kind = session.page.kind;
  const Curves curves = volume ? CurvesOf(*s.LastResults, {kind.amplitude, kind.invWavelength}) : Curves();
  std::string text = "x,perpendicular,parallel,unpolarised,extra1,extra2,extra3";
  if (volume) text += ",alone perpendicular,alone parallel,alone unpolarised";
  text += "\n";
  for (int row = rows.first; row <= rows.last; ++row) {
    const auto j = static_cast<std::size_t>(row);
    std::vector<double> values = {s.XValues[j], s.Iperp[j],  s.Ipar[j],  s.Iunpol[j],
                                  s.Extra1[j],  s.Extra2[j], s.Extra3[j]};
    if (volume)
      values.insert(values.end(), {curves.alonePerpendicular[j], curves.aloneParallel[j], curves.aloneUnpolarised[j]});
    text += Row(values);
  }
  return text;
}

std::string AmplitudeRows(const Session& session) {
  const auto& s = session.state;
  const bool byPoint = !ResultGraph(s).OfAngles();
  const AmplitudeTable& S1 = byPoint ? s.S1ofPoint : s.S1;
  const AmplitudeTable& S2 = byPoint ? s.S2ofPoint : s.S2;
  std::string text = byPoint ? "x,S1re,S1im,S2re,S2im\n" : "angle,S1re,S1im,S2re,S2im\n";
  const RowRange rows = DisplayedRows(s);
  for (int row = rows.first; row <= std::min(rows.last, S1.Rows()); ++row)
    text += Row({s.XValues[static_cast<std::size_t>(row)], S1.Re(row), S1.Im(row), S2.Re(row), S2.Im(row)});
  return text;
}

std::optional<std::string> ArrayRows(Session& session, std::string_view name) {
  ArrayReader reader{name, std::nullopt};
  ForEachStateField(session.state, reader);
  return reader.found;
}

Window* FindWindow(Session& session, std::string_view form) {
  const auto found =
      std::ranges::find_if(session.windows, [form](const Window& w) { return SameName(w.form->Name(), form); });
  return found == session.windows.end() ? nullptr : &*found;
}

std::string DrawingLines(const Window& window) {
  double dialogWidth = 6300, dialogHeight = 3300;
  const bool dialog = window.surface == nullptr;
  for (const Control* control : window.form->Controls()) {
    if (!dialog || control->Kind() != ControlKind::Picture) continue;
    const auto& picture = static_cast<const lumivex::Picture&>(*control);
    if (picture.Width > 0) dialogWidth = picture.Width, dialogHeight = picture.Height;
  }
  RecordingSurface recording(dialog ? dialogWidth : window.surface->ScaleWidth(),
                             dialog ? dialogHeight : window.surface->ScaleHeight());
  Paint(window.page, recording);
  std::string text;
  for (const auto& operation : recording.Operations()) text += operation.Describe() + "\n";
  return text;
}

bool ListTakes(const SelectionList& list, std::string_view text) {
  if (list.Holds(text)) return true;
  const auto known = [text](const auto& row) { return row.text == text && IsAvailable(row.feature); };
  if (list.Name() == "cboType") return std::ranges::any_of(MethodTable(), known);
  if (list.Name() == "cboGraph") return std::ranges::any_of(GraphTable(), known);
  return false;
}

}  // namespace lumivex
