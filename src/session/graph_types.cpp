#include "session/graph_types.h"

#include <algorithm>
#include <array>

#include "session/record/number_text.h"

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

/// Captions of the inputs that a family of graphs renames. An empty caption leaves what stands.
struct FamilyCaptions {
  int firstType, lastType;
  std::string_view frame2, label5, label2, label3;
};
constexpr std::array familyCaptions = {
    FamilyCaptions{1, 1, "Angle scale", "Angular resolution", "Maximum angle", "Minimum angle"},
};

/// The further axis is for Lee diagrams, maps, impulse and power graphs, and for the angle of x-axis graphs.
void ShowFurtherAxis(Session& session) {
  auto& form = session.form1;
  const int type = session.state.GraphType;
  const bool angleOnly = type >= 10 && type <= 18;
  const bool axis = type >= 19 && type < 30 && type != 20;
  form.Frame9.Visible = angleOnly || axis;
  form.Label19.Visible = form.txtAngle.Visible = angleOnly;
  for (Control* control : {static_cast<Control*>(&form.Label30), static_cast<Control*>(&form.txtF9_fixed),
                           static_cast<Control*>(&form.Label32), static_cast<Control*>(&form.txtF9_min),
                           static_cast<Control*>(&form.txtF9_max), static_cast<Control*>(&form.Label35),
                           static_cast<Control*>(&form.txtF9_step)})
    control->Visible = axis;
}

const GraphRow* FindGraph(std::string_view text) {
  const auto row =
      std::ranges::find_if(graphRows, [text](const GraphRow& r) { return r.text == text && IsAvailable(r.feature); });
  return row == graphRows.end() ? nullptr : &*row;
}

void AngleStartValues(Session& session, bool familyChanged) {
  auto& form = session.form1;
  form.cboYmin.Text = "Automatic";
  form.cboWave.Text = "1";
  if (familyChanged) form.cboPol.Text = "Both";
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
  for (const auto& row : familyCaptions) {
    if (type < row.firstType || type > row.lastType) continue;
    form.Frame2.Caption = row.frame2;
    form.Label5.Caption = row.label5;
    form.Label2.Caption = row.label2;
    form.Label3.Caption = row.label3;
  }
  form.Label18.Caption = "Brightness";
  form.Label26.Caption = "Lee diagram";
  const bool coloured = Trim(form.cboWave.Text) != "1" || type >= 20;
  form.Label18.Visible = form.cboBright.Visible = coloured;
  form.Label26.Visible = form.cboLee.Visible = type >= 20 && type < 30;
  form.Label24.Visible = form.txtRmax.Visible = form.txtRstep.Visible = type == 20;
  ShowFurtherAxis(session);
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
  form.mnuRadiusDiameter.Enabled = form.mnuDiameter.Enabled = form.mnuRadius.Enabled = true;
  form.mnuRadiusX.Enabled = false;
  for (Picture* picture : {&form.Picture1, &form.Picture2, &form.Picture3, &form.Picture1a, &form.Picture2a,
                           &form.Picture3a, &form.Picture1b, &form.Picture2b, &form.Picture3b})
    picture->Visible = false;
  for (MenuEntry* entry : {&form.mnuConstantVolume, &form.mnuInvWavelength, &form.mnuAmpPhase, &form.mnuIntPol})
    entry->Checked = false;
  form.mnuAmpPhase.Enabled = form.mnuIntPol.Enabled = false;
  form.OptXLinear.Select();

  const bool familyChanged = row->type != s.GraphType;
  s.GraphType = row->type;
  if (row->subType != 0) s.GraphSubType = row->subType;
  if (familyChanged && !form.mnuKeepParameters.Checked && s.GraphType == 1) AngleStartValues(session, familyChanged);
  if (s.GraphType == 1) {
    form.mnuInvWavelength.Checked = Trim(form.cboWave.Text) != "1";
    form.mnuAmpPhase.Enabled = form.mnuIntPol.Enabled = true;
    form.mnuRadiusX.Enabled = Trim(form.cboWave.Text) == "1";
  }
  ShowFamilyInputs(session);
  form.cmdReplot.Enabled = form.cmdOverPlot.Enabled = false;
  form.cmdNewPlot.Enabled = true;
}

}  // namespace lumivex
