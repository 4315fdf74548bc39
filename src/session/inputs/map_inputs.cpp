#include "session/inputs/map_inputs.h"

#include <algorithm>
#include <array>
#include <initializer_list>
#include <variant>

#include "record/number_text.h"
#include "session/inputs/impulse_inputs.h"
#include "session/inputs/materials/read_material.h"

namespace lumivex {

namespace {

constexpr double leastSwept = 1e-12;  // in place of 0

void Write(Control& control, std::string_view text) {
  switch (control.Kind()) {
    case ControlKind::TextInput:
      static_cast<TextInput&>(control).Text = text;
      break;
    case ControlKind::SelectionList:
      static_cast<SelectionList&>(control).Text = text;
      break;
    case ControlKind::Label:
      static_cast<Label&>(control).Caption = text;
      break;
    case ControlKind::Frame:
      static_cast<Frame&>(control).Caption = text;
      break;
    default:
      break;
  }
}

void WriteTexts(Form1& form, const Graph& graph, std::span<const ControlText> rows) {
  for (const ControlText& row : rows) {
    if (!row.IsOf(graph)) continue;
    if (Control* control = form.Find(row.control)) {
      Write(*control, row.text);
      control->BackColour = control->BackColour == colours::BadInput ? colours::White : control->BackColour;
    }
  }
}

void Show(std::initializer_list<Control*> controls, bool visible) {
  for (Control* control : controls) control->Visible = visible;
}

Sweep SweepFrom(Swept quantity, const TextInput& low, const TextInput& high, double steps, bool geometric) {
  const double lowest = Val(low.Text);
  const bool fromZero = lowest == 0;
  return {quantity, fromZero ? leastSwept : lowest, Val(high.Text), ToWhole(std::clamp(steps, 0.0, 1e9)), geometric,
          fromZero};
}

/// The value at which a sphere stands before a sweep moves it: held still, or the start of the sweep.
double StartOf(const Session& session, const Graph& graph, Swept quantity, double otherwise) {
  if (const auto held = HeldValue(session, quantity)) return *held;
  const SweptQuantities& swept = *FindSwept(graph);
  if (swept.columns == quantity) return ReadColumns(session, graph).low;
  return swept.rows == quantity ? ReadRows(session, graph).low : otherwise;
}

}  // namespace

void ShowMapInputs(Session& session) {
  auto& form = session.form1;
  const Graph& graph = ChosenGraph(session.state);
  const MapInputs* inputs = FindMapInputs(graph);
  const bool map = inputs != nullptr;
  form.mnuRadiusDiameter.Enabled = !map || graph.family == Family::Impulse;
  // Panels and colours of their own take the place of curves and their scale.
  Show({&form.Frame8, &form.Label1, &form.cboYmax, &form.Label12, &form.cboYmin, &form.OptLog, &form.optLinear,
        &form.OptXLinear, &form.optXLog},
       !map);
  if (!map) return;
  Show({&form.Label8, &form.cboPol}, false);
  const bool typed = inputs->size == SizeField::Angle;
  Show({&form.Label7, &form.txtRadius}, !inputs->further || inputs->size == SizeField::Radius);
  Show({&form.Label24, &form.txtRmax, &form.lblRstep, &form.txtRstep}, !inputs->further);
  Show({&form.Label19, &form.txtAngle}, typed || inputs->angle);
  Show({&form.Label30, &form.txtF9_fixed}, inputs->held.has_value());
  Show({&form.Label32, &form.txtF9_min, &form.txtF9_max, &form.Label35, &form.txtF9_step}, inputs->further);
  form.Frame9.Visible = inputs->further || typed || inputs->angle;
  if (graph.SweepsWavelength()) Show({&form.Label6, &form.txtLambda}, false);
  WriteTexts(form, graph, MapCaptions());
}

void WriteMapStarts(Session& session, bool sweepAlone) {
  auto& form = session.form1;
  const Graph& graph = ChosenGraph(session.state);
  WriteTexts(form, graph, SweepStarts());
  if (sweepAlone) return;
  form.cboYmin.Text = form.cboYmax.Text = "Automatic";
  form.cboPol.Text = "Both";
  WriteTexts(form, graph, MapStarts());
  session.state.FalseColoursFollow = 1;
  StartMapColours(session);
}

void StartMapColours(Session& session) {
  auto& form = session.form1;
  auto& s = session.state;
  const Graph& graph = ChosenGraph(s);
  const bool one = Trim(form.cboWave.Text) == "1";
  form.cboLee.Text = MapScaleAtStart(graph, one);
  if (s.FalseColoursFollow == 1) form.mnuFalseColours.Checked = one && graph.IsMap();
}

void FollowMapColours(Session& session) {
  const auto& form = session.form1;
  if (!ChosenGraph(session.state).IsMap()) return;
  session.state.FalseColoursFollow = form.mnuFalseColours.Checked == (Trim(form.cboWave.Text) == "1") ? 1 : 0;
}

void KeepTypedSize(Session& session, const Graph& before) {
  auto& form = session.form1;
  auto& s = session.state;
  const auto isSize = [](const Graph& graph) {
    const MapInputs* inputs = FindMapInputs(graph);
    return inputs != nullptr && inputs->size == SizeField::Angle;
  };
  const auto isIndex = [&](const Graph& graph) { return isSize(graph) && !FindMapInputs(graph)->further; };
  const Graph& chosen = ChosenGraph(s);
  const auto exchange = [](bool was, bool is, TextInput& input, std::string& kept) {
    if (!was && is) kept = input.Text;
    if (was && !is && !kept.empty()) input.Text = kept;
  };
  exchange(isSize(before), isSize(chosen), form.txtAngle, s.KeptAngle);
  exchange(isIndex(before), isIndex(chosen), form.txtRadius, s.KeptRadius);
}

TextInput& StepsField(Form1& form, const MapInputs& inputs) {
  return inputs.further ? form.txtF9_step : form.txtRstep;
}

double ColumnSteps(const Session& session, const MapInputs& inputs) {
  const Form1& form = session.form1;
  if (ChosenGraph(session.state).family == Family::Impulse) return ReadTimes(session).steps;
  return Val((inputs.further ? form.txtF9_step : form.txtRstep).Text);
}

Sweep ReadColumns(const Session& session, const Graph& graph) {
  if (graph.family == Family::Impulse) return ReadTimes(session);
  const Form1& form = session.form1;
  const MapInputs& inputs = *FindMapInputs(graph);
  const SweptQuantities& swept = *FindSwept(graph);
  return SweepFrom(swept.columns, inputs.further ? form.txtF9_min : form.txtRadius,
                   inputs.further ? form.txtF9_max : form.txtRmax, ColumnSteps(session, inputs), swept.geometric);
}

Sweep ReadRows(const Session& session, const Graph& graph) {
  const Form1& form = session.form1;
  return SweepFrom(*FindSwept(graph)->rows, form.txtXmin, form.txtXmax, Val(form.cboStep.Text), false);
}

std::optional<double> HeldValue(const Session& session, Swept quantity) {
  const MapInputs* inputs = FindMapInputs(ChosenGraph(session.state));
  if (inputs == nullptr || inputs->held != quantity) return std::nullopt;
  return Val(session.form1.txtF9_fixed.Text);
}

Material SphereOfGraph(const Session& session) {
  const Graph& graph = ChosenGraph(session.state);
  const MapInputs* inputs = FindMapInputs(graph);
  if (inputs == nullptr || !graph.VariesIndex()) return SphereMaterial(session);
  const double k = inputs->absorption ? Val(session.form1.txtRefractImag.Text) : 0;
  return FixedIndex{StartOf(session, graph, Swept::SphereIndex, 1),
                    StartOf(session, graph, Swept::SphereAbsorption, k)};
}

Material MediumOfGraph(const Session& session) {
  const Graph& graph = ChosenGraph(session.state);
  if (!graph.VariesMedium()) return MediumMaterial(session);
  return FixedIndex{StartOf(session, graph, Swept::MediumIndex, 1), 0};
}

std::optional<double> RadiusOfMap(const Session& session) {
  const Graph& graph = ChosenGraph(session.state);
  const MapInputs* inputs = FindMapInputs(graph);
  // The sphere of a picture over time is typed as that of a graph is.
  if (inputs == nullptr || graph.family == Family::Impulse) return std::nullopt;
  if (inputs->size == SizeField::Angle) return Val(session.form1.txtAngle.Text);
  if (inputs->size == SizeField::Radius) return Val(session.form1.txtRadius.Text);
  if (FindSwept(graph)->columns == Swept::Radius) return ReadColumns(session, graph).low;
  return std::nullopt;
}

}  // namespace lumivex
