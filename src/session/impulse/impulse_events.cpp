#include "session/impulse/impulse_events.h"

#include <array>

#include "pages/read_out.h"
#include "record/number_text.h"
#include "session/driver/commands.h"
#include "session/impulse/impulse_plot.h"
#include "session/inputs/dialog_use.h"
#include "session/inputs/impulse_inputs.h"
#include "session/page.h"
#include "session/undo.h"

namespace lumivex {

namespace {

bool HasPicture(const Session& session) {
  const auto& last = session.state.LastResults;
  return last && last->asked.graph.family == Family::Impulse;
}

/// Fields that are no numbers are marked, and mark nothing on the picture.
bool TimePlotHolds(Session& session) {
  auto& d = session.forms.dlogTimePlot;
  constexpr double mostOrders = 1000, leastStep = 0.001, largestIndex = 1000;
  const auto mark = [](Control& control, bool good) {
    control.BackColour = good ? colours::White : colours::BadInput;
    return good;
  };
  const auto within = [](const std::string& text, double low, double high) {
    return IsNumber(text) && Val(text) >= low && Val(text) <= high;
  };
  bool holds = true;
  for (TextInput* field : {&d.txtRaysGO, &d.txtB, &d.txtQ})
    holds = mark(*field, within(field->Text, 0, mostOrders) && Val(field->Text) == Int(Val(field->Text))) && holds;
  holds = mark(d.cboStep, within(d.cboStep.Text, leastStep, 1)) && holds;
  return mark(d.txtRI_Surface, within(d.txtRI_Surface.Text, leastStep, largestIndex)) && holds;
}

void Plot(Session& session, int ImpulseState::*shown) {
  if (!HasPicture(session)) {
    session.platform.Message("Option not available",
                             "Times of rays are drawn over an impulse response of angle and time");
    return;
  }
  if (!TimePlotHolds(session)) return;
  // Marks are a look of the picture, which its buttons change like any input.
  RememberInputs(session, "");
  session.state.*shown = 1;
  RenewLook(session);
}

/// What stands in the dialog is shown at once where marks are.
void dlogTimePlot_Change(Session& session) {
  const auto& s = session.state;
  if (TimePlotHolds(session) && HasPicture(session) && (s.TimePlotRays != 0 || s.TimePlotWaves != 0))
    RenewLook(session);
}

void dlogTimePlot_cmdClear_Click(Session& session) {
  RememberInputs(session, "");
  session.state.TimePlotRays = session.state.TimePlotWaves = 0;
  session.forms.dlogImpulse.chkTimeDelay.Checked = false;
  if (HasPicture(session)) RenewLook(session);
}

void mnuTimePlot_Click(Session& session) {
  auto& dialog = session.forms.dlogTimePlot;
  // A surface wave creeps through the medium, of each picture its own, unless another index is typed.
  if (!dialog.Visible) dialog.txtRI_Surface.Text = session.form1.txtRefractMedium.Text;
  session.platform.Show(dialog);
}

void mnuImpulsePlot_Click(Session& session) {
  OpenImpulsePlot(session, Val(session.forms.impulsePlot.cboTheta.Text));
}

constexpr std::array eventRows = {
    ImpulseEvent{"mnuImpulse_Click", mnuImpulse_Click},
    ImpulseEvent{"mnuImpulseQ_Click", mnuImpulseQ_Click},
    ImpulseEvent{"mnuImpulsePlot_Click", mnuImpulsePlot_Click},
    ImpulseEvent{"mnuTimePlot_Click", mnuTimePlot_Click},
    ImpulseEvent{"mnuCCF_Click", CCF},

    ImpulseEvent{"dlogImpulse.Show", AskImpulse},
    ImpulseEvent{"dlogImpulse.txtWavelength_Change", dlogImpulse_Wavelength_Change},
    ImpulseEvent{"dlogImpulse.cboPulseShape_Change", dlogImpulse_Change},
    ImpulseEvent{"dlogImpulse.cboPulseDuration_Change", dlogImpulse_Change},
    ImpulseEvent{"dlogImpulse.cboFFT_Change", dlogImpulse_Change},
    ImpulseEvent{"dlogImpulse.cboN_Change", dlogImpulse_Change},
    ImpulseEvent{"dlogImpulse.cbodB_Change", dlogImpulse_Change},
    ImpulseEvent{"dlogImpulse.txtFC_Change", dlogImpulse_Change},
    ImpulseEvent{"dlogImpulse.txtFM_Change", dlogImpulse_Change},
    ImpulseEvent{"dlogImpulse.txtFD_Change", dlogImpulse_Change},
    ImpulseEvent{"dlogImpulse.txtFS_Change", dlogImpulse_Change},
    ImpulseEvent{"dlogImpulse.chkTimeRef_Click", dlogImpulse_Spectrum_Click},
    ImpulseEvent{"dlogImpulse.optLinear_Click", dlogImpulse_Spectrum_Click},
    ImpulseEvent{"dlogImpulse.optLog_Click", dlogImpulse_Spectrum_Click},
    ImpulseEvent{"dlogImpulse.cmdPrint_Click", dlogImpulse_cmdPrint_Click},
    ImpulseEvent{"dlogImpulse.OKButton_Click", dlogImpulse_OKButton_Click},

    ImpulseEvent{"dlogTimePlot.cmdGO_Click", TimePlot},
    ImpulseEvent{"dlogTimePlot.cmdSW_Click", TimePlotSW},
    ImpulseEvent{"dlogTimePlot.cmdClear_Click", dlogTimePlot_cmdClear_Click},
    ImpulseEvent{"dlogTimePlot.txtRaysGO_Change", dlogTimePlot_Change},
    ImpulseEvent{"dlogTimePlot.cboStep_Change", dlogTimePlot_Change},
    ImpulseEvent{"dlogTimePlot.chkNS_Click", dlogTimePlot_Change},
    ImpulseEvent{"dlogTimePlot.chkValues_Click", dlogTimePlot_Change},
    ImpulseEvent{"dlogTimePlot.txtRI_Surface_Change", dlogTimePlot_Change},
    ImpulseEvent{"dlogTimePlot.txtB_Change", dlogTimePlot_Change},
    ImpulseEvent{"dlogTimePlot.txtQ_Change", dlogTimePlot_Change},

    ImpulseEvent{"ImpulsePlot.cboTheta_Change", ImpulsePlot_Change},
    ImpulseEvent{"ImpulsePlot.cboPol_Click", ImpulsePlot_Change},
    ImpulseEvent{"ImpulsePlot.cboYmax_Change", ImpulsePlot_Change},
    ImpulseEvent{"ImpulsePlot.cboYmin_Change", ImpulsePlot_Change},
    ImpulseEvent{"ImpulsePlot.OptLog_Click", ImpulsePlot_Change},
    ImpulseEvent{"ImpulsePlot.OptLinear_Click", ImpulsePlot_Change},
    ImpulseEvent{"ImpulsePlot.txtXmin_Change", ImpulsePlot_Change},
    ImpulseEvent{"ImpulsePlot.txtXmax_Change", ImpulsePlot_Change},
    ImpulseEvent{"ImpulsePlot.cmdReplot_Click", ImpulsePlot_cmdReplot_Click},
    ImpulseEvent{"ImpulsePlot.cmdClose_Click", ImpulsePlot_cmdClose_Click},
    ImpulseEvent{"ImpulsePlot.mnuPicture_Click", ImpulsePlot_mnuPicture_Click},
};

}  // namespace

std::span<const ImpulseEvent> ImpulseEvents() {
  return eventRows;
}

void CCF(Session& session) {
  auto& entry = session.form1.mnuCCF;
  entry.Checked = !entry.Checked;
  RaiseInputsChanged(session);
  if (!HasPicture(session) || ChosenGraph(session.state).family != Family::Impulse) return;
  const auto before = session.state.LastResults;
  RunRequest request = before->asked;
  std::get<AngleMapRun>(request.run).pulse->correlated = entry.Checked;
  if (!PulseIsThere(session)) return;
  RunAgain(session, request);
  // One that is stopped before it has anything leaves the picture, and what the menu says of it.
  if (session.state.LastResults == before) entry.Checked = !entry.Checked;
}

void TimePlot(Session& session) {
  Plot(session, &ImpulseState::TimePlotRays);
}

void TimePlotSW(Session& session) {
  Plot(session, &ImpulseState::TimePlotWaves);
}

bool ClickOnPicture(Session& session, double x, double y) {
  if (!HasPicture(session) || !session.page.map || session.state.Busy != 0) return false;
  const auto reading = ReadAt(session.page, x, y);
  if (!reading) return false;
  OpenImpulsePlot(session, reading->onCurve ? reading->curveY : reading->y);
  return true;
}

}  // namespace lumivex
