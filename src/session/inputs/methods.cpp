#include "session/inputs/methods.h"

#include "record/number_text.h"
#include "session/inputs/beams/beam_menus.h"
#include "session/inputs/beams/read_beam.h"
#include "session/inputs/dialog_use.h"
#include "session/inputs/drops/dew_inputs.h"
#include "session/inputs/drops/drop_inputs.h"
#include "session/inputs/graph_types.h"
#include "session/inputs/layers/coated_inputs.h"
#include "session/inputs/layers/inhom_inputs.h"
#include "session/inputs/layers/layer_labels.h"
#include "session/inputs/light/wavelength_list.h"
#include "session/inputs/map_inputs.h"
#include "session/inputs/methods/debye_label.h"
#include "session/inputs/methods/rays_check.h"
#include "session/inputs/methods/sphere_size.h"
#include "session/inputs/sizes/size_distribution.h"

namespace lumivex {

namespace {

bool StartsWithStrips(const Session& session) {
  const auto& s = session.state;
  const Graph& graph = ChosenGraph(s);
  const bool counts = TraitsOf(s.CalcMethod).counts != Counted::Nothing;
  return counts && (graph.OfAngles() || graph.family == Family::Impulse) && s.RestoringSettings == 0;
}

/// Wavefronts and strips are counted by the angle's input. Small spheres around the rainbow show wavefronts best.
void StripStartValues(Session& session) {
  auto& form = session.form1;
  if (!StartsWithStrips(session)) return;
  form.txtRadius.Text = "100";
  form.cboRays.Text = "2";
  form.txtXmin.Text = "120";
  form.txtXmax.Text = "150";
  form.cboStep.Text = "0.1";
}

/// Ten poles are enough for surface waves; the glory of a ring has its two amplitudes in the same lists.
void PoleStartValues(Session& session, std::string_view before) {
  auto& form = session.form1;
  const std::string_view waves = TextOfMethod(Method::SurfaceWave, 0);
  const bool is = session.state.CalcMethod == Method::SurfaceWave;
  if (session.state.RestoringSettings != 0 || is == (before == waves)) return;
  form.cboQmin.Text = "1";
  form.cboQmax.Text = is ? "10" : "1";
}

/// Which illumination a method can have.
void IlluminationOf(Session& session) {
  auto& form = session.form1;
  const MethodTraits& method = TraitsOf(session.state.CalcMethod);
  form.mnuIllumination.Enabled = method.beams;
  if (!method.beams && InBeam(form)) mnuPlaneWave_Click(session);
  const bool rays = method.beams && method.takesDiffraction;
  form.mnuTopHat.Visible = rays;
  if (!rays) return;
  form.mnuTopHat.Caption = "Top hat beam";
  form.mnuGaussian.Caption = "Gaussian beam";
  if (session.state.RestoringSettings == 0) form.txtAngle.Text = "90";
}

/// The dialog of a method that has one; true without one.
bool AskForMethod(Session& session) {
  switch (session.state.CalcMethod) {
    case Method::CoatedSphere:
      return AskCoatedSphere(session);
    case Method::InhomogeneousSphere:
      return AskInhomSphere(session);
    case Method::Burgeroid:
      return AskNonSpherical(session);
    case Method::Heiligenschein:
      return AskHeiligenschein(session);
    default:
      return true;
  }
}

}  // namespace

void TypeCalc(Session& session) {
  auto& list = session.form1.cboType;
  auto& s = session.state;
  list.BackColour = colours::White;
  s.CalcMethod = Method::None;
  if (const MethodRow* row = FindMethod(list.Text)) {
    s.CalcMethod = row->method;
    if (row->method == Method::Diffraction) s.DiffractionVariant = row->diffractionVariant;
  }
  if (s.CalcMethod != Method::None) return;
  list.BackColour = colours::BadInput;
  session.platform.Message("Error", "Unknown calculation method");
}

void cboType_click(Session& session) {
  auto& form = session.form1;
  const auto& s = session.state;
  const std::string before(TextOfMethod(s.CalcMethod, s.DiffractionVariant));
  form.lblDebyeRays.Caption.clear();
  TypeCalc(session);
  const bool asked = AskForMethod(session);
  if (!asked && !before.empty()) {
    form.cboType.Text = before;
    TypeCalc(session);
  }
  const MethodTraits& method = TraitsOf(s.CalcMethod);
  form.cboRays.Visible = form.Label9.Visible = method.showsP;
  if (s.CalcMethod == Method::Airy && (form.cboRays.Text == "0" || form.cboRays.Text == "1")) form.cboRays.Text = "2";
  if (method.showsP) cborays_Click(session);
  form.chkDiffraction.Visible = OffersDiffraction(session);
  StripStartValues(session);
  IlluminationOf(session);
  const bool surfaceWave = s.CalcMethod == Method::SurfaceWave;
  form.cboQmin.Visible = form.cboQmax.Visible = form.lblQminQmax.Visible = surfaceWave;
  form.lblSWAmp.Visible = form.txtSWAmp.Visible = surfaceWave;
  form.mnuSurfaceWave.Visible = surfaceWave;
  if (surfaceWave) form.txtSWAmp.Text = "1";
  PoleStartValues(session, before);
  DewStartValues(session, before == TextOfMethod(Method::Heiligenschein, 0));
  ShowFamilyInputs(session);
  ShowLayers(session);
  form.cmdNewPlot.Enabled = true;
  DebyeLabel(session);
  if (asked && s.CalcMethod == Method::InhomogeneousSphere) RunProfile(session);
  if (asked && s.CalcMethod == Method::Burgeroid) RunDrop(session);
}

void ChooseMethod(Session& session, std::string_view text) {
  auto& list = session.form1.cboType;
  if (!list.Holds(text)) list.Items.emplace_back(text);
  list.Text = text;
  cboType_click(session);
}

void mnuDiffractionNew_Click(Session& session) {
  ChooseMethod(session, "Diffraction new");
}

void mnuHuygens_Click(Session& session) {
  ChooseMethod(session, "Huygens");
}

void mnuAperture_Click(Session& session) {
  ChooseMethod(session, "Aperture");
  if (!StartsWithStrips(session)) return;
  // An aperture sends its light forward, and none behind itself.
  session.form1.txtXmin.Text = "0";
  session.form1.txtXmax.Text = "90";
}

void mnuvdh_Click(Session& session) {
  ChooseMethod(session, "van de Hulst");
}

void mnuCoatedSphere_Click(Session& session) {
  ChooseMethod(session, "Coated sphere");
}

void mnuInhomSphere_Click(Session& session) {
  ChooseMethod(session, "Inhomogeneous sphere");
}

void mnuDebyeSequence_Click(Session& session) {
  if (!AskIn(session, session.forms.dlogDebyeSeq)) return;
  ChooseMethod(session, "Debye");
  ChooseGraph(session, "Debye analysis");
}

void AskDebyeSequence(Session& session) {
  auto& dialog = session.forms.dlogDebyeSeq;
  const std::string limit = dialog.txtLimit.Text;
  if (!AskIn(session, dialog)) return;
  // Which points are numbered is a matter of the drawing; further terms have to be calculated.
  session.events.Raise("cmdReplot_Click");
  if (dialog.txtLimit.Text != limit) session.events.Raise("Inputs_Changed");
}

bool TakesWavelengths(const Graph& graph) {
  // Only intensity against angle is a matter of several wavelengths.
  return (graph.AgainstAngle() && graph.quantity == Quantity::Intensity) || graph.InColour();
}

void NumberWavelengths(Session& session) {
  TakeSpecialRadius(session);
  session.state.NumberWavelengths = WavelengthCount(session.form1.cboWave.Text, RadiusInUse(session));
}

void ShowIndexInputs(Session& session) {
  auto& form = session.form1;
  const Graph& graph = ChosenGraph(session.state);
  const MapInputs* map = FindMapInputs(graph);
  const bool one = Trim(form.cboWave.Text) == "1";
  const bool swept = map != nullptr && graph.VariesIndex();
  // Layers have indices of their own, and those of a coating a medium too.
  const Method method = session.state.CalcMethod;
  const bool layered = TraitsOf(method).layered;
  form.txtRefractReal.Visible = (one || form.mnuRI_Fixed1.Checked) && !swept && !layered;
  form.txtRefractImag.Visible = form.txtRefractReal.Visible || (swept && map->absorption && !layered);
  form.Label10.Visible = form.txtRefractImag.Visible;
  form.txtRefractMedium.Visible =
      (one || form.mnuRI_Fixed2.Checked) && !graph.VariesMedium() && method != Method::CoatedSphere;
  form.mnuSphere.Enabled = !layered;
  form.mnuSurround.Enabled = method != Method::CoatedSphere;
}

void ShowWavelengthInputs(Session& session) {
  auto& form = session.form1;
  const Graph& graph = ChosenGraph(session.state);
  const bool one = Trim(form.cboWave.Text) == "1";
  form.Label6.Visible = form.txtLambda.Visible = one && !graph.WavelengthAxis();
  ShowIndexInputs(session);
  form.lblSpectrum.Visible = form.mnuSpectrum.Visible = !one;
  // Red, green and blue stand where they stand, whatever the band.
  form.lblSpectrumBand.Visible = !one && form.cboWave.Text != "RGB";
  // One that was ticked can be taken away whatever the wavelengths.
  form.mnuAverage.Visible = !one || form.mnuAverage.Checked;
  form.Label18.Visible = form.cboBright.Visible = IsAvailable(Feature::ColourBars) && (!one || graph.InColour());
  // A run of one wavelength leaves it locked.
  form.cboBright.Enabled = form.cboBright.Visible;
  form.chkComponents.Visible = form.cboWave.Text == "RGB";
  // A size parameter belongs to one wavelength.
  form.mnuRadiusX.Enabled = one && graph.OfAngles();
  if (form.mnuRadiusX.Checked && !form.mnuRadiusX.Enabled) session.events.Raise("mnuRadius_Click");
}

void cboWave_Click(Session& session) {
  auto& form = session.form1;
  form.cmdReplot.Enabled = form.cmdOverPlot.Enabled = false;
  form.cboGraph.BackColour = colours::White;
  form.cmdNewPlot.Enabled = true;
  ShowWavelengthInputs(session);
  const auto& s = session.state;
  const bool chosen = s.LoadingFlag == 0 && s.RestoringSettings == 0 && !form.mnuKeepParameters.Checked;
  if (chosen && ChosenGraph(s).IsMap()) StartMapColours(session);
  if (Trim(form.cboWave.Text) == "1") session.events.Raise("txtLambda_change");
}

}  // namespace lumivex
