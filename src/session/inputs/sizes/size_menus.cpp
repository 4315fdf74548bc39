#include "session/inputs/sizes/size_menus.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "record/number_text.h"
#include "session/inputs/dialog_use.h"
#include "session/inputs/sizes/read_size_dist.h"
#include "session/inputs/sizes/size_distribution.h"
#include "session/inputs/sizes/size_distribution_display.h"
#include "session/page.h"

namespace lumivex {

namespace {

bool IsLeeDiagram(const RunState& s) {
  return ChosenGraph(s).family == Family::Lee;
}

/// Which inputs a distribution has.
struct DistributionInputs {
  std::string_view name;
  bool radius, deviation, samples;
  std::string_view deviationLabel;
};
constexpr std::array distributionInputs = {
    DistributionInputs{"Normal", true, true, true, "Std Dev %"},
    DistributionInputs{"Log-normal", true, true, true, "Std Dev %"},
    DistributionInputs{"Gamma", true, true, true, "Gamma"},
    DistributionInputs{"Special", false, false, false, ""},
};
/// Models that know their own sizes.
constexpr DistributionInputs ownSizes = {"", false, false, true, ""};

const DistributionInputs& InputsOf(std::string_view name) {
  const auto found = std::ranges::find(distributionInputs, name, &DistributionInputs::name);
  return found == distributionInputs.end() ? ownSizes : *found;
}

void GoBack(Session& session) {
  session.form1.cboDistrib.Text = session.state.DistribInUse;
}

/// A number of samples that the lists offer; the start value "1" is none of them.
void SettleSamples(Form1& form) {
  if (!form.cboN.Holds(form.cboN.Text) && form.cboN.Text == "1") form.cboN.Text = "20";
}

/// What a distribution asks the user when it is chosen.
bool AskForParameters(Session& session, const std::string& name) {
  auto& s = session.state;
  if (s.RestoringSettings != 0) return true;
  if (name == "Special") return ReadSizeDist(session);
  if (name == "Multimodal") return AskIn(session, session.forms.dlogMultiModal);
  return true;
}

/// Whether the results are those of the inputs, sizes apart.
bool CanReplot(const Session& session) {
  return session.form1.cmdReplot.Enabled || session.state.ReplotOfSizes == 1;
}

/// A field that is being emptied to be typed anew is not told of.
void DrawnAnew(Session& session, bool aloud = true) {
  if (session.state.LoadingFlag != 0) return;
  DistDisplay(session, aloud);
  auto& replot = session.form1.cmdReplot.Enabled;
  // Replot folds another distribution into the columns that are there.
  const bool folds = replot && IsLeeDiagram(session.state);
  RaiseInputsChanged(session);
  replot = replot || folds;
}

}  // namespace

void ShowSizeInputs(Session& session) {
  auto& form = session.form1;
  const bool disperse = form.optDisp.Checked;
  const DistributionInputs& inputs = InputsOf(form.cboDistrib.Text);
  const Graph& graph = ChosenGraph(session.state);
  // Sizes along an axis, or in a dialog of the graph's own, leave none to be typed.
  const bool sizesElsewhere = (graph.AgainstAxis() && graph.SizeAxis()) || graph.family == Family::TwoAngle;
  const bool radius = (!disperse || inputs.radius) && !sizesElsewhere;
  form.cboDistrib.Visible = disperse;
  form.Label7.Visible = form.txtRadius.Visible = radius;
  form.Label11.Visible = form.cboSD.Visible = disperse && inputs.deviation;
  form.Label13.Visible = form.cboN.Visible = disperse && inputs.samples;
  if (inputs.deviation) form.Label11.Caption = inputs.deviationLabel;
}

void optMono_Click(Session& session) {
  auto& form = session.form1;
  const bool replot = CanReplot(session);
  form.optMono.Select();
  ShowSizeInputs(session);
  RaiseInputsChanged(session);
  if (!IsLeeDiagram(session.state)) return;
  // Sizes that were folded into the columns are taken out at once, which leaves nothing to be drawn again.
  form.cmdReplot.Enabled = false;
  session.state.ReplotOfSizes = replot ? 1 : 0;
  RecolourPage(session);
}

void optDisp_Click(Session& session) {
  auto& form = session.form1;
  const auto& s = session.state;
  // A distribution can be folded into the results, but only into those of the inputs.
  const bool replot = HasResults(s) && CanReplot(session);
  form.optDisp.Select();
  SettleSamples(form);
  ShowSizeInputs(session);
  RaiseInputsChanged(session);
  form.cmdNewPlot.Enabled = true;
  if (HasResults(s)) form.cmdReplot.Visible = true;
  form.cmdReplot.Enabled = replot;
  DistDisplay(session);
}

void cboDistrib_Change(Session& session) {
  auto& form = session.form1;
  auto& s = session.state;
  const std::string name = form.cboDistrib.Text;
  form.cboDistrib.BackColour = colours::White;
  if (name == "Special" && IsLeeDiagram(s)) {
    session.platform.Message("Input error", "Special distributions are not available for Lee diagrams");
    GoBack(session);
    return;
  }
  if (!AskForParameters(session, name)) {
    // A cancelled file dialog has chosen another distribution by itself.
    if (form.cboDistrib.Text == name) GoBack(session);
  } else if (name == "Gamma" && s.DistribInUse != name) {
    form.cboSD.Text = "2";
  } else if (form.cboSD.BackColour == colours::BadInput && InputsOf(name).deviation) {
    form.cboSD.Text = "5";
  }
  form.cboSD.BackColour = colours::White;
  s.DistribInUse = form.cboDistrib.Text;
  ShowSizeInputs(session);
  DrawnAnew(session);
}

void RefuseDisperseLeeDiagram(Session& session) {
  auto& form = session.form1;
  const bool lee = IsLeeDiagram(session.state) || form.cboGraph.Text.starts_with("Lee diagram");
  if (!lee || !form.optDisp.Checked) return;
  session.platform.Message("Disperse calculations",
                           "Lee diagrams are calculated for monodisperse droplets\nAfter this calculation, select "
                           "\"Disperse\" and use the \"Replot\" command");
  form.optMono.Select();
}

void cboSD_Change(Session& session) {
  session.form1.cboSD.BackColour = colours::White;
  DrawnAnew(session, !Trim(session.form1.cboSD.Text).empty());
}

void cboN_Change(Session& session) {
  session.form1.cboN.BackColour = colours::White;
  session.forms.dlogMultiModal.cboN.Text = session.form1.cboN.Text;
  DrawnAnew(session);
}

void UseSizeFile(Session& session) {
  session.form1.cboDistrib.Text = session.state.DistribInUse = "Special";
  session.form1.cboDistrib.BackColour = colours::White;
  ShowSizeInputs(session);
  DrawnAnew(session);
}

void mnuSizeDist_Click(Session& session) {
  if (session.state.RestoringSettings != 0 || ReadSizeDist(session)) return UseSizeFile(session);
  session.state.DistribInUse = session.form1.cboDistrib.Text;
  ShowSizeInputs(session);
}

void dlogDistDisplay_Click(Session& session) {
  DistDisplay(session);
}

void dlogMultiModal_Change(Session& session) {
  session.form1.cboDistrib.BackColour = colours::White;
  if (session.form1.cboDistrib.Text == "Multimodal") DrawnAnew(session, false);
}

void dlogMultiModal_cboN_Change(Session& session) {
  session.form1.cboN.Text = session.forms.dlogMultiModal.cboN.Text;
  cboN_Change(session);
}

}  // namespace lumivex
