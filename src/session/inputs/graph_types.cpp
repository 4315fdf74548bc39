#include "session/inputs/graph_types.h"
#include "session/inputs/beams/beam_menus.h"
#include "session/inputs/drops/dew_inputs.h"

#include <algorithm>
#include <array>
#include <initializer_list>

#include "record/number_text.h"
#include "session/inputs/fourier_inputs.h"
#include "session/inputs/input_events.h"
#include "session/inputs/input_tips.h"
#include "session/inputs/map_inputs.h"
#include "session/inputs/methods.h"
#include "session/inputs/sizes/size_menus.h"

namespace lumivex {

namespace {

constexpr std::string_view variableIndex = "Sphere: Variable refractive index";

/// The sphere's name is that of a graph that varies its index.
void NameVariableSphere(Session& session) {
  session.form1.lblSphere.Caption = variableIndex;
  session.state.SphereIndexVaries = 1;
  session.state.SphereIndexTyped = 0;
}

/// Label and name of the sphere from before; a sphere of a fixed index has no other name than that.
void NameKeptSphere(Session& session) {
  auto& s = session.state;
  const bool fixed = session.form1.mnuRI_Fixed1.Checked;
  session.form1.lblSphere.Caption = fixed ? "Sphere: Fixed refractive index" : s.KeptSphereLabel;
  s.SphereName = fixed ? "Sphere of fixed RI" : s.KeptSphereName;
  s.SphereIndexVaries = s.SphereIndexTyped = 0;
}

/// The same of the medium.
void NameVariableMedium(Session& session) {
  auto& label = session.form1.lblRI_Medium;
  session.state.KeptMediumLabel = label.Caption;
  label.Caption = "Medium: Variable refractive index";
}

void NameKeptMedium(Session& session) {
  auto& form = session.form1;
  form.lblRI_Medium.Caption =
      form.mnuRI_Fixed2.Checked ? "Medium: Fixed refractive index" : session.state.KeptMediumLabel;
}

/// Whether the sphere is named after a material, and not after an index.
bool NamedByMaterial(const Session& session) {
  const auto& s = session.state;
  return s.SphereIndexTyped == 0 && s.SphereIndexVaries == 0 && !session.form1.mnuRI_Fixed1.Checked;
}

/// The graph whose axis the panel asks for; null where it is one of angles or has none. Of the answer to a pulse it is
/// its wavelengths.
const Graph* AxisInputsOf(const RunState& s) {
  const Graph& graph = ChosenGraph(s);
  return graph.family == Family::PulseAnswer ? &graph : ChosenAxisGraph(s);
}

std::string WithUnit(std::string_view caption, std::string_view unit) {
  return unit.empty() ? std::string(caption) : std::string(caption) + " (" + std::string(unit) + ")";
}

void AngleCaptions(Form1& form) {
  form.Frame2.Caption = "Angle scale";
  form.Label5.Caption = "Angular resolution";
  form.Label2.Caption = "Maximum angle";
  form.Label3.Caption = "Minimum angle";
}

void AxisCaptionsOf(Form1& form, const Graph& graph) {
  const AxisCaptions captions = CaptionsOf(graph);
  form.Frame2.Caption = captions.frame;
  form.Label2.Caption = WithUnit("Maximum", captions.unit);
  form.Label3.Caption = WithUnit("Minimum", captions.unit);
  form.Label5.Caption = form.mnuXStepLog.Checked ? "No. of steps" : WithUnit("Step", captions.unit);
}

/// The further axis is for Lee diagrams, maps, impulse and power graphs, and for the angle of x-axis graphs.
void ShowFurtherAxis(Session& session, const Graph* graph) {
  auto& form = session.form1;
  const Graph& chosen = ChosenGraph(session.state);
  const bool power = graph != nullptr && graph->quantity == Quantity::Power;
  const Counted counted = TraitsOf(session.state.CalcMethod).counts;
  const bool impulse = chosen.family == Family::Impulse;
  const bool strips = (chosen.OfAngles() || impulse) && counted != Counted::Nothing;
  const bool onePoint = chosen.family == Family::DebyeAnalysis;
  const bool angle =
      (graph != nullptr && !graph->OfEfficiencies() && !power && graph->quantity != Quantity::BowAngle) || strips ||
      onePoint;
  const bool answer = chosen.family == Family::PulseAnswer;
  const bool axis =
      power || impulse || answer || chosen.family == Family::AngleMap || chosen.family == Family::EfficiencyMap;
  form.Frame9.Visible = angle || axis;
  form.Label19.Visible = form.txtAngle.Visible = angle;
  for (Control* control : std::initializer_list<Control*>{&form.Label32, &form.txtF9_min, &form.txtF9_max,
                                                          &form.Label35, &form.txtF9_step})
    control->Visible = axis;
  form.Label30.Visible = form.txtF9_fixed.Visible = axis && !power && !answer;
  form.Label19.Caption = !strips                    ? "Scattering angle"
                         : counted == Counted::Rays ? "Number of rays"
                                                    : "Number of strips";
  if (strips) form.Frame9.Caption = counted == Counted::Rays ? "Wavefront" : "Aperture";
  if (onePoint) form.Frame9.Caption = "Angle";
  if (graph == nullptr) return;
  if (answer) {
    form.Frame9.Caption = "Time axis";
    form.Label32.Caption = "Time (femtoseconds)";
    form.Label35.Visible = form.txtF9_step.Visible = false;
    return;
  }
  form.Frame9.Caption = power ? "Scattering angle" : "Angle";
  if (!power) return;
  form.Label32.Caption = "Minimum, maximum";
  form.Label35.Caption = "Step size";
}

/// Values that a change of family brings; a change of sub-type leaves the user's ranges.
void AngleStartValues(Session& session) {
  auto& form = session.form1;
  form.cboYmin.Text = "Automatic";
  form.cboWave.Text = "1";
  form.cboPol.Text = "Both";
  form.txtXmin.Text = "0";
  form.txtXmax.Text = "180";
  form.cboStep.Text = "0.1";
}

void AxisStartValues(Session& session, const Graph& graph, const AxisStart& start) {
  auto& form = session.form1;
  const bool power = graph.quantity == Quantity::Power;
  const bool efficiencies = graph.OfEfficiencies() || power;
  form.cboYmin.Text = form.cboYmax.Text = "Automatic";
  form.cboWave.Text = "1";
  const bool bows = graph.quantity == Quantity::BowAngle;
  form.cboPol.Text = efficiencies || bows ? "All 3" : "Both";
  // Degrees of a bow are no matter of decades.
  if (bows) form.optLinear.Select();
  form.txtXmin.Text = start.xmin;
  form.txtXmax.Text = start.xmax;
  form.cboStep.Text = start.step;
  if (graph.axis != AxisVariable::Wavelength && efficiencies) form.txtLambda.Text = "0.65";
  if (graph.family == Family::PulseAnswer) form.txtRadius.Text = "10";
  if (graph.quantity == Quantity::Asymmetry || graph.quantity == Quantity::Albedo) {
    form.txtRadius.Text = graph.axis == AxisVariable::Wavelength ? "1" : "10";
    form.txtAngle.Text = "0";
  }
  const bool ofTerms = graph.family == Family::Convergence;
  if (graph.VariesIndex() || ofTerms || (efficiencies && !graph.SpectrumOfEfficiencies()))
    form.cboDistrib.Text = "Log-normal";
  if (power) {
    form.txtF9_min.Text = "0";
    form.txtF9_max.Text = "180";
    form.txtF9_step.Text = "0.1";
  }
}

/// The sphere and the medium of the start, and a size that is typed as a radius. Some maps start in a medium that is
/// typed.
void StartMaterials(Session& session) {
  auto& s = session.state;
  const MapInputs* map = FindMapInputs(ChosenGraph(s));
  const int restoring = s.RestoringSettings;
  s.RestoringSettings = 1;
  for (const std::string_view event : {"mnuRI_IAPWS_Click", "mnuRI_Vacuum2_Click"}) session.events.Raise(event);
  if (map != nullptr && map->fixedMedium) session.events.Raise("mnuRI_Fixed2_Click");
  s.RestoringSettings = restoring;
  if (!session.form1.mnuRadius.Checked) session.events.Raise("mnuRadius_Click");
}

/// Names of the materials: an index that a graph varies is no material's.
void NameMaterials(Session& session, const Graph& before, const Graph& chosen) {
  if (before.VariesIndex()) NameKeptSphere(session);
  if (before.VariesMedium()) NameKeptMedium(session);
  if (chosen.VariesIndex()) NameVariableSphere(session);
  if (chosen.VariesMedium()) NameVariableMedium(session);
}

/// Another graph of the same family: its ranges are the user's, as far as they are ranges of the same quantity.
void ChangeWithinFamily(Session& session, const Graph& before, const Graph& chosen) {
  const SweptQuantities *was = FindSwept(before), *is = FindSwept(chosen);
  if (was == nullptr || is == nullptr || was->columns == is->columns) return;
  NameMaterials(session, before, chosen);
  if (session.form1.mnuKeepParameters.Checked) return;
  KeepTypedSize(session, before);
  WriteMapStarts(session, true);
}

/// Start values of a new family, unless the user keeps the parameters; the sphere of a family that varied its index has
/// its name again.
void ChangeFamily(Session& session, const Graph& before) {
  auto& s = session.state;
  auto& form = session.form1;
  // The graph of one point has no axis, and so no range to keep.
  const Graph& chosen = ChosenGraph(s);
  const bool fromPoint = before.family == Family::DebyeAnalysis && chosen.family != Family::DebyeAnalysis;
  if (chosen.SharesRangesWith(before) && !fromPoint) return ChangeWithinFamily(session, before, chosen);
  const Graph* graph = AxisInputsOf(s);
  const AxisStart* start = graph != nullptr ? FindAxisStart(*graph) : nullptr;
  const bool keeps = form.mnuKeepParameters.Checked;
  NameMaterials(session, before, GraphOf({1, 1}));
  if (before.quantity == Quantity::BowAngle && !keeps) form.OptLog.Select();
  if (!keeps) StartMaterials(session);
  NameMaterials(session, GraphOf({1, 1}), chosen);
  form.mnuXStepLog.Checked = start != nullptr && start->logSteps && !keeps;
  if (keeps) return;
  KeepTypedSize(session, before);
  // Pictures of time begin with more decades than others have.
  if (before.family == Family::Impulse) form.cboBright.Text = "1";
  if (start != nullptr) {
    AxisStartValues(session, *graph, *start);
  } else if (FindMapInputs(chosen) != nullptr) {
    WriteMapStarts(session, false);
  } else if (chosen.OfAngles()) {
    AngleStartValues(session);
  }
  for (Control* input : std::initializer_list<Control*>{&form.txtXmin, &form.txtXmax, &form.cboStep, &form.cboYmin,
                                                        &form.cboYmax, &form.cboWave})
    input->BackColour = colours::White;
  session.events.Raise("txtLambda_change");
}

/// The chart of two angles varies the index of the sphere, and has like scales for its two like axes.
void EnterOrLeaveTwoAngle(Session& session, bool was) {
  auto& s = session.state;
  auto& form = session.form1;
  const bool is = IsTwoAngleContour(s);
  if (is) {
    NameVariableSphere(session);
    if (form.OptLog.Checked) form.optXLog.Select();
  } else if (was && s.SphereIndexVaries != 0) {
    NameKeptSphere(session);
  }
}

/// The ranges and radii of the chart of two angles stand in its dialog, not in the panel; a graph of one point has
/// none.
void ShowAxisInputs(Session& session) {
  auto& form = session.form1;
  const bool chart = IsTwoAngleContour(session.state);
  const bool axis = !chart && ChosenGraph(session.state).family != Family::DebyeAnalysis;
  form.Frame2.Visible = axis || chart;
  form.Label8.Visible = form.cboPol.Visible = !chart;
  for (Control* control : std::initializer_list<Control*>{&form.Label3, &form.txtXmin, &form.Label2, &form.txtXmax,
                                                          &form.Label5, &form.cboStep})
    control->Visible = axis;
  if (chart) form.Frame2.Caption = "Horizontal scale";
  // The wavelengths of a pulse follow from it.
  const bool answer = ChosenGraph(session.state).family == Family::PulseAnswer;
  form.txtXmin.Enabled = form.txtXmax.Enabled = !answer;
  if (answer) form.Label5.Visible = form.cboStep.Visible = false;
}

/// Graphs in absolute units of light ask how far the observer is and how strong the light.
void AskForDistance(Session& session) {
  const auto& s = session.state;
  if (ChosenGraph(s).InUnitsOfLight()) {
    session.events.Raise("dlogIncident.Show");
    if (IsTwoAngleContour(s)) session.events.Raise("dlogTwoAngle.Show");
  } else {
    session.form1.lblWatts.Visible = session.form1.lblDistance.Visible = false;
  }
}

}  // namespace

void ShowFamilyInputs(Session& session) {
  auto& form = session.form1;
  const Graph& chosen = ChosenGraph(session.state);
  const Graph* graph = AxisInputsOf(session.state);
  if (graph != nullptr) {
    AxisCaptionsOf(form, *graph);
  } else {
    AngleCaptions(form);
  }
  form.Frame8.Caption = chosen.quantity == Quantity::Power ? "Calculation of Watts/sq m" : "Intensity scale";
  form.Label18.Caption = "Brightness";
  form.Label26.Caption = "Lee diagram";
  ShowWavelengthInputs(session);
  form.Label26.Visible = form.cboLee.Visible = form.cboLee.Enabled = chosen.InColour();
  form.Label24.Visible = form.txtRmax.Visible = form.lblRstep.Visible = form.txtRstep.Visible =
      chosen.family == Family::Lee;
  form.cboWave.Enabled = true;
  form.mnuConstantVolume.Enabled = chosen.TakesVolume();
  ShowSizeInputs(session);
  ShowAxisInputs(session);
  form.Frame3.Caption = "Drop size";
  form.Label7.Caption = SizeCaption(form);
  ShowFurtherAxis(session, graph);
  ShowMapInputs(session);
  // Times lie on both sides of a pulse.
  if (chosen.family == Family::PulseAnswer) form.OptXLinear.Visible = form.optXLog.Visible = false;
  form.Frame3.Visible = form.txtRadius.Visible || form.optMono.Visible;
  form.Frame4.Visible = form.txtLambda.Visible || form.cboWave.Visible || form.optPoint.Visible;
  ShowBeamEntries(session);
  WriteTips(session);
}

void cboGraph_Click(Session& session) {
  auto& s = session.state;
  auto& form = session.form1;
  const GraphRow* row = FindGraph(form.cboGraph.Text);
  if (row == nullptr) {
    form.cboGraph.BackColour = colours::BadInput;
    return;
  }
  form.cboGraph.BackColour = colours::White;
  if (NamedByMaterial(session)) {
    s.KeptSphereLabel = form.lblSphere.Caption;
    s.KeptSphereName = s.SphereName;
  }
  form.mnuRadiusDiameter.Enabled = form.mnuDiameter.Enabled = form.mnuRadius.Enabled = true;
  form.mnuRadiusX.Enabled = false;
  const Graph& wanted = GraphOf(row->code);
  const bool ofRadii = FindMapInputs(wanted) != nullptr && wanted.family != Family::Impulse;
  if (ofRadii && !form.mnuRadius.Checked) session.events.Raise("mnuRadius_Click");
  for (Picture* picture : {&form.Picture1, &form.Picture2, &form.Picture3, &form.Picture1a, &form.Picture2a,
                           &form.Picture3a, &form.Picture1b, &form.Picture2b, &form.Picture3b})
    picture->Visible = false;
  for (MenuEntry* entry : {&form.mnuConstantVolume, &form.mnuInvWavelength, &form.mnuAmpPhase, &form.mnuIntPol})
    entry->Checked = false;
  form.mnuAmpPhase.Enabled = form.mnuIntPol.Enabled = false;
  form.OptXLinear.Select();

  const Graph& before = ChosenGraph(s);
  SetGraph(s, row->code);
  const Graph& chosen = ChosenGraph(s);
  ChangeFamily(session, before);
  // What is told of a pulse says nothing of another light, and the times of one graph are none of another's.
  if (before.OfPulse() && !chosen.OfPulse()) {
    form.lblWatts.Caption.clear();
    form.lblDistance.Caption.clear();
  }
  if (before.OfPulse() && before.family != chosen.family) form.txtF9_step.Text.clear();
  EnterOrLeaveTwoAngle(session, before.family == Family::TwoAngle);
  if (chosen.OfAngles()) {
    form.mnuInvWavelength.Checked = Trim(form.cboWave.Text) != "1";
    form.mnuAmpPhase.Enabled = form.mnuIntPol.Enabled = chosen.AgainstAngle() && chosen.quantity == Quantity::Intensity;
    form.mnuRadiusX.Enabled = Trim(form.cboWave.Text) == "1";
  }
  if (form.mnuRadiusX.Checked && !form.mnuRadiusX.Enabled) session.events.Raise("mnuRadius_Click");
  ShowFamilyInputs(session);
  form.cmdReplot.Enabled = form.cmdOverPlot.Enabled = false;
  s.ReplotOfSizes = 0;
  form.cmdNewPlot.Enabled = true;
  DewAnglesOfGraph(session);
  OfferTransform(session);
  AskForDistance(session);
  if (chosen.family == Family::Volume) session.events.Raise("dlogVolume.Show");
  if (chosen.OfPulse()) session.events.Raise("dlogImpulse.Show");
}

void ChooseGraph(Session& session, std::string_view text) {
  auto& list = session.form1.cboGraph;
  if (!list.Holds(text)) list.Items.emplace_back(text);
  list.Text = text;
  session.events.Raise("cboGraph_Click");
}

void mnuDiffCrossSection_Click(Session& session) {
  ChooseGraph(session, "Differential cross-section v. angle");
}

void mnuConvergence_Click(Session& session) {
  ChooseGraph(session, "Convergence");
}

}  // namespace lumivex
