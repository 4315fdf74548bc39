#include "session/inputs/graph_types.h"

#include <algorithm>
#include <array>
#include <initializer_list>
#include <iterator>

#include "record/number_text.h"
#include "session/inputs/axis_graphs.h"
#include "session/inputs/methods.h"
#include "session/inputs/sizes/size_menus.h"

namespace lumivex {

namespace {

using enum Feature;

constexpr std::array graphRows = {
    GraphRow{1, 1, "Intensity v. scattering angle", 1, AngleIntensity},
    GraphRow{1, 2, "Phase function", 3, AngleFamily},
    GraphRow{1, 3, "Watts/sq. m. v. scattering angle", 2, AngleFamily},
    GraphRow{1, 4, "Differential cross-section v. angle", 0, AngleFamily},
    GraphRow{1, 5, "Contour 2-angle", 0, AngleFamily},
    GraphRow{1, 6, "Scattering matrix", 4, AngleFamily},
    GraphRow{1, 7, "CPDF", 6, AngleFamily},
    GraphRow{10, 1, "Intensity v. wavelength", 10, AxisFamilies},
    GraphRow{10, 2, "Scattering matrix: wavelength", 5, AxisFamilies},
    GraphRow{10, 10, "Debye analysis", 0, DebyeSeries},
    GraphRow{11, 1, "Intensity v. radius", 11, AxisFamilies},
    GraphRow{11, 2, "Intensity v. size parameter x", 13, AxisFamilies},
    GraphRow{11, 3, "Intensity v. diameter", 12, AxisFamilies},
    GraphRow{12, 0, "Intensity v. refractive index", 14, AxisFamilies},
    GraphRow{13, 0, "Convergence", 0, AxisFamilies},
    GraphRow{14, 1, "Qext/Qsca/Qabs v. radius", 17, AxisFamilies},
    GraphRow{14, 2, "Cext/Csca/Cabs v. radius", 18, AxisFamilies},
    GraphRow{14, 3, "Qext/Qsca/Qabs v. size x", 21, AxisFamilies},
    GraphRow{14, 4, "Cext/Csca/Cabs v. size x", 22, AxisFamilies},
    GraphRow{14, 5, "Qext/Qsca/Qabs v. diameter", 19, AxisFamilies},
    GraphRow{14, 6, "Cext/Csca/Cabs v. diameter", 20, AxisFamilies},
    GraphRow{14, 7, "Qback v. radius", 25, AxisFamilies},
    GraphRow{14, 8, "Qback v. diameter", 26, AxisFamilies},
    GraphRow{14, 9, "Qback v. size x", 27, AxisFamilies},
    GraphRow{14, 10, "Qradar v. radius", 29, AxisFamilies},
    GraphRow{14, 11, "Qradar v. diameter", 30, AxisFamilies},
    GraphRow{14, 12, "Qradar v. size x", 31, AxisFamilies},
    GraphRow{15, 1, "Qext/Qsca/Qabs v. wavelength", 23, AxisFamilies},
    GraphRow{15, 2, "Cext/Csca/Cabs v. wavelength", 24, AxisFamilies},
    GraphRow{15, 9, "Qback v. wavelength", 28, AxisFamilies},
    GraphRow{15, 12, "Qradar v. wavelength", 32, AxisFamilies},
    GraphRow{15, 13, "Qext/Qsca/Qabs impulse response", 0, Feature::ImpulseResponse},
    GraphRow{16, 1, "Asymmetry g v. radius", 33, AxisFamilies},
    GraphRow{16, 2, "Asymmetry g v. size x", 34, AxisFamilies},
    GraphRow{16, 3, "Asymmetry g v. wavelength", 35, AxisFamilies},
    GraphRow{17, 1, "Albedo v. radius", 36, AxisFamilies},
    GraphRow{17, 2, "Albedo v. size x", 37, AxisFamilies},
    GraphRow{17, 3, "Albedo v. wavelength", 38, AxisFamilies},
    GraphRow{18, 1, "Scattered power v. radius", 7, AxisFamilies},
    GraphRow{18, 2, "Scattered power v. diameter", 8, AxisFamilies},
    GraphRow{18, 3, "Scattered power v. wavelength", 9, AxisFamilies},
    GraphRow{19, 1, "Impulse response", 49, Feature::ImpulseResponse},
    GraphRow{20, 1, "Lee diagram: radius", 15, LeeDiagrams},
    GraphRow{20, 2, "Lee diagram: refractive index", 16, LeeDiagrams},
    GraphRow{22, 1, "Map: angle v. RI of sphere", 39, Maps},
    GraphRow{22, 2, "Map: angle v. RI of medium", 40, Maps},
    GraphRow{23, 1, "Map: angle v. imaginary RI", 41, Maps},
    GraphRow{24, 1, "Map: angle v. radius", 42, Maps},
    GraphRow{25, 1, "Map: angle v. wavelength", 43, Maps},
    GraphRow{26, 1, "Map: Q v. RI & size x", 46, Maps},
    GraphRow{26, 2, "Map: Q1 v. RI and size x", 0, Maps},
    GraphRow{26, 4, "Map: RI v. size x", 45, Maps},
    GraphRow{27, 1, "Map: Q v. Imag RI & size x", 47, Maps},
    GraphRow{28, 1, "Map: Q v. Real RI & Imag RI", 48, Maps},
    GraphRow{28, 3, "Map: real RI v. imag RI", 44, Maps},
    GraphRow{30, 0, "Vol: Int v. xPart", 0, VolumeGraphs},
    GraphRow{31, 0, "Vol: Int v. N", 0, VolumeGraphs},
    GraphRow{32, 0, "Vol: Int v. time", 0, VolumeGraphs},
    GraphRow{33, 0, "Vol: Int v. radius", 0, VolumeGraphs},
};

constexpr std::string_view variableIndex = "Sphere: Variable refractive index";
constexpr std::string_view setByUser[] = {"Sphere: Refractive index set by user", "Sphere: Fixed refractive index",
                                          variableIndex};

std::string WithUnit(std::string_view caption, std::string_view unit) {
  return unit.empty() ? std::string(caption) : std::string(caption) + " (" + std::string(unit) + ")";
}

void AngleCaptions(Form1& form) {
  form.Frame2.Caption = "Angle scale";
  form.Label5.Caption = "Angular resolution";
  form.Label2.Caption = "Maximum angle";
  form.Label3.Caption = "Minimum angle";
}

void AxisCaptionsOf(Form1& form, const AxisGraph& graph) {
  const AxisCaptions captions = CaptionsOf(graph);
  form.Frame2.Caption = captions.frame;
  form.Label2.Caption = WithUnit("Maximum", captions.unit);
  form.Label3.Caption = WithUnit("Minimum", captions.unit);
  form.Label5.Caption = form.mnuXStepLog.Checked ? "No. of steps" : WithUnit("Step", captions.unit);
}

bool IsDebyeAnalysis(const RunState& s) {
  return s.GraphType == 10 && s.GraphSubType == 10;
}

/// The further axis is for Lee diagrams, maps, impulse and power graphs, and for the angle of x-axis graphs.
void ShowFurtherAxis(Session& session, const AxisGraph* graph) {
  auto& form = session.form1;
  const int type = session.state.GraphType;
  const bool power = graph != nullptr && graph->quantity == AxisQuantity::Power;
  const int method = session.state.CalcMethod;
  const bool strips = (type == 1 || type == 19) && (method == 9 || method == 10);
  const bool onePoint = IsDebyeAnalysis(session.state);
  const bool angle = (graph != nullptr && !NeedsNoAngle(*graph) && !power) || strips || onePoint;
  const bool axis = power || (type >= 19 && type < 30 && type != 20);
  form.Frame9.Visible = angle || axis;
  form.Label19.Visible = form.txtAngle.Visible = angle;
  for (Control* control : std::initializer_list<Control*>{&form.Label32, &form.txtF9_min, &form.txtF9_max,
                                                          &form.Label35, &form.txtF9_step})
    control->Visible = axis;
  form.Label30.Visible = form.txtF9_fixed.Visible = axis && !power;
  form.Label19.Caption = !strips ? "Scattering angle" : method == 9 ? "Number of rays" : "Number of strips";
  if (strips) form.Frame9.Caption = method == 9 ? "Wavefront" : "Aperture";
  if (onePoint) form.Frame9.Caption = "Angle";
  if (graph == nullptr) return;
  form.Frame9.Caption = power ? "Scattering angle" : "Angle";
  if (!power) return;
  form.Label32.Caption = "Minimum, maximum";
  form.Label35.Caption = "Step size";
}

const GraphRow* FindGraph(std::string_view text) {
  const auto row =
      std::ranges::find_if(graphRows, [text](const GraphRow& r) { return r.text == text && IsAvailable(r.feature); });
  return row == graphRows.end() ? nullptr : &*row;
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

void AxisStartValues(Session& session, const AxisGraph& graph) {
  auto& form = session.form1;
  const bool efficiencies = graph.type >= 14;
  form.cboYmin.Text = form.cboYmax.Text = "Automatic";
  form.cboWave.Text = "1";
  form.cboPol.Text = efficiencies ? "All 3" : "Both";
  form.txtXmin.Text = graph.xmin;
  form.txtXmax.Text = graph.xmax;
  form.cboStep.Text = graph.step;
  if (graph.variable != AxisVariable::Wavelength && efficiencies) form.txtLambda.Text = "0.65";
  if (graph.type == 16 || graph.type == 17) {
    form.txtRadius.Text = graph.variable == AxisVariable::Wavelength ? "1" : "10";
    form.txtAngle.Text = "0";
  }
  if (graph.type >= 12 && graph.type != 15) form.cboDistrib.Text = "Log-normal";
  if (graph.quantity == AxisQuantity::Power) {
    form.txtF9_min.Text = "0";
    form.txtF9_max.Text = "180";
    form.txtF9_step.Text = "0.1";
  }
}

/// Start values of a new family, unless the user keeps the parameters; the sphere of a family that varied its index is
/// water again.
void ChangeFamily(Session& session, int oldType, bool fromPoint) {
  auto& s = session.state;
  auto& form = session.form1;
  // The graph of one point has no axis, and so no range to keep.
  if (oldType == s.GraphType && !fromPoint) return;
  const AxisGraph* graph = FindAxisGraph(s.GraphType, s.GraphSubType);
  if (oldType == 12) {
    form.lblSphere.Caption = s.KeptSphereLabel;
    s.SphereName = s.KeptSphereName;
  }
  if (graph != nullptr && graph->variable == AxisVariable::RefractiveIndex) form.lblSphere.Caption = variableIndex;
  form.mnuXStepLog.Checked = graph != nullptr && graph->logSteps && !form.mnuKeepParameters.Checked;
  if (form.mnuKeepParameters.Checked) return;
  if (graph != nullptr) {
    AxisStartValues(session, *graph);
  } else if (s.GraphType == 1) {
    AngleStartValues(session);
  }
  session.events.Raise("txtLambda_change");
}

/// The chart of two angles varies the index of the sphere, and has like scales for its two like axes.
void EnterOrLeaveTwoAngle(Session& session, bool was) {
  auto& s = session.state;
  auto& form = session.form1;
  const bool is = IsTwoAngleContour(s);
  if (is) {
    form.lblSphere.Caption = variableIndex;
    if (form.OptLog.Checked) form.optXLog.Select();
  } else if (was && form.lblSphere.Caption == variableIndex) {
    form.lblSphere.Caption = s.KeptSphereLabel;
    s.SphereName = s.KeptSphereName;
  }
}

/// Its ranges and radii stand in its dialog, not in the panel.
void ShowTwoAngleInputs(Session& session) {
  auto& form = session.form1;
  const bool chart = IsTwoAngleContour(session.state);
  for (Control* control : std::initializer_list<Control*>{&form.Label8, &form.cboPol, &form.Label3, &form.txtXmin,
                                                          &form.Label2, &form.txtXmax, &form.Label5, &form.cboStep})
    control->Visible = !chart;
  if (!chart) return;
  form.Frame2.Caption = "Horizontal scale";
  form.Label7.Visible = form.txtRadius.Visible = false;
}

/// Graphs in absolute units of light ask how far the observer is and how strong the light.
void AskForDistance(Session& session) {
  const auto& s = session.state;
  const bool absolute = s.GraphType == 1 && s.GraphSubType >= 3 && s.GraphSubType <= 5;
  if (absolute || s.GraphType == 18) {
    session.events.Raise("dlogIncident.Show");
    if (IsTwoAngleContour(s)) session.events.Raise("dlogTwoAngle.Show");
  } else {
    session.form1.lblWatts.Visible = session.form1.lblDistance.Visible = false;
  }
}

}  // namespace

std::span<const GraphRow> GraphTable() {
  return graphRows;
}

std::vector<std::string> OfferedGraphs() {
  std::vector<const GraphRow*> rows;
  for (const auto& row : graphRows)
    if (row.place > 0 && IsAvailable(row.feature)) rows.push_back(&row);
  std::ranges::sort(rows, {}, &GraphRow::place);
  std::vector<std::string> texts;
  texts.reserve(rows.size());
  for (const auto* row : rows) texts.emplace_back(row->text);
  return texts;
}

void ShowFamilyInputs(Session& session) {
  auto& form = session.form1;
  const int type = session.state.GraphType;
  const AxisGraph* graph = FindAxisGraph(type, session.state.GraphSubType);
  if (graph != nullptr) {
    AxisCaptionsOf(form, *graph);
  } else {
    AngleCaptions(form);
  }
  form.Frame2.Visible = !IsDebyeAnalysis(session.state);
  form.Frame8.Caption = type == 18 ? "Calculation of Watts/sq m" : "Intensity scale";
  form.Label18.Caption = "Brightness";
  form.Label26.Caption = "Lee diagram";
  ShowWavelengthInputs(session);
  form.Label26.Visible = form.cboLee.Visible = type >= 20 && type < 30;
  form.Label24.Visible = form.txtRmax.Visible = form.txtRstep.Visible = type == 20;
  const bool sizeOnAxis =
      graph != nullptr && (graph->variable == AxisVariable::Radius || graph->variable == AxisVariable::Diameter ||
                           graph->variable == AxisVariable::SizeParameter);
  form.cboWave.Enabled = true;
  ShowSizeInputs(session);
  ShowTwoAngleInputs(session);
  if (sizeOnAxis) form.Label7.Visible = form.txtRadius.Visible = false;
  const bool wavelengthOnAxis = graph != nullptr && graph->variable == AxisVariable::Wavelength;
  if (wavelengthOnAxis) form.Label6.Visible = form.txtLambda.Visible = false;
  form.Frame3.Visible = form.txtRadius.Visible || form.optMono.Visible;
  form.Frame4.Visible = form.txtLambda.Visible || form.cboWave.Visible || form.optPoint.Visible;
  ShowFurtherAxis(session, graph);
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
  if (std::ranges::find(setByUser, form.lblSphere.Caption) == std::end(setByUser)) {
    s.KeptSphereLabel = form.lblSphere.Caption;
    s.KeptSphereName = s.SphereName;
  }
  form.mnuRadiusDiameter.Enabled = form.mnuDiameter.Enabled = form.mnuRadius.Enabled = true;
  form.mnuRadiusX.Enabled = false;
  for (Picture* picture : {&form.Picture1, &form.Picture2, &form.Picture3, &form.Picture1a, &form.Picture2a,
                           &form.Picture3a, &form.Picture1b, &form.Picture2b, &form.Picture3b})
    picture->Visible = false;
  for (MenuEntry* entry : {&form.mnuConstantVolume, &form.mnuInvWavelength, &form.mnuAmpPhase, &form.mnuIntPol})
    entry->Checked = false;
  form.mnuAmpPhase.Enabled = form.mnuIntPol.Enabled = false;
  form.OptXLinear.Select();

  const int oldType = s.GraphType;
  const bool fromPoint = IsDebyeAnalysis(s);
  const bool wasTwoAngle = IsTwoAngleContour(s);
  s.GraphType = row->type;
  if (row->subType != 0) s.GraphSubType = row->subType;
  ChangeFamily(session, oldType, fromPoint && !IsDebyeAnalysis(s));
  EnterOrLeaveTwoAngle(session, wasTwoAngle);
  if (s.GraphType == 1) {
    form.mnuInvWavelength.Checked = Trim(form.cboWave.Text) != "1";
    form.mnuAmpPhase.Enabled = form.mnuIntPol.Enabled = s.GraphSubType == 1;
    form.mnuRadiusX.Enabled = Trim(form.cboWave.Text) == "1";
  }
  if (form.mnuRadiusX.Checked && !form.mnuRadiusX.Enabled) session.events.Raise("mnuRadius_Click");
  ShowFamilyInputs(session);
  form.cmdReplot.Enabled = form.cmdOverPlot.Enabled = false;
  form.cmdNewPlot.Enabled = true;
  AskForDistance(session);
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
