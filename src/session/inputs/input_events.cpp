#include "session/inputs/input_events.h"
#include "session/page.h"

#include <string>

#include "record/number_text.h"
#include "session/inputs/fourier_inputs.h"
#include "session/inputs/graph_types.h"
#include "session/inputs/impulse_inputs.h"
#include "session/inputs/input_tips.h"
#include "session/inputs/layers/layer_labels.h"
#include "session/inputs/materials/refractive_index.h"
#include "session/inputs/methods.h"

namespace lumivex {

namespace {

void ChooseSizeKind(Session& session, MenuEntry& chosen) {
  auto& form = session.form1;
  for (MenuEntry* entry : {&form.mnuRadius, &form.mnuDiameter, &form.mnuRadiusX}) entry->Checked = entry == &chosen;
  form.Label7.Caption = SizeCaption(form);
  WriteTips(session);
  ShowLayers(session);
  Inputs_Changed(session);
}

void Toggle(Session& session, MenuEntry& entry) {
  entry.Checked = !entry.Checked;
  Inputs_Changed(session);
}

}  // namespace

void Inputs_Changed(Session& session) {
  auto& form = session.form1;
  if (session.state.LoadingFlag != 0) return;
  form.cmdNewPlot.Enabled = true;
  form.cmdReplot.Enabled = false;
  session.state.ReplotOfSizes = 0;
  OfferTransform(session);
}

void Picture_Changed(Session& session) {
  auto& form = session.form1;
  if (session.state.LoadingFlag != 0) return;
  for (Control* input : {static_cast<Control*>(&form.txtXmin), static_cast<Control*>(&form.txtXmax),
                         static_cast<Control*>(&form.cboYmax), static_cast<Control*>(&form.cboYmin)})
    input->BackColour = colours::White;
  form.cmdNewPlot.Enabled = true;
  // Of a map without angles the limits are those of its rows.
  if (ChosenGraph(session.state).family == Family::EfficiencyMap) form.cmdReplot.Enabled = false;
}

void Scale_Click(Session& session) {
  if (session.state.LoadingFlag != 0 || session.state.Busy != 0) return;
  session.events.Raise("cmdReplot_Click");
}

void Step_Changed(Session& session) {
  session.form1.cboStep.BackColour = colours::White;
  Inputs_Changed(session);
}

void Limit_Click(Session& session) {
  Picture_Changed(session);
  Scale_Click(session);
}

void mnuDataVisible_Click(Session& session) {
  auto& entry = session.form1.mnuDataVisible;
  entry.Checked = !entry.Checked;
  RenewLook(session);
}

void mnuKeepParameters_Click(Session& session) {
  auto& entry = session.form1.mnuKeepParameters;
  entry.Checked = !entry.Checked;
}

void txtLambda_change(Session& session) {
  auto& form = session.form1;
  if (session.state.LoadingFlag != 0) return;
  form.txtLambda.BackColour = colours::White;
  ShowIndexInputs(session);
  const bool one = Trim(form.cboWave.Text) == "1" && !TraitsOf(session.state.CalcMethod).layered;
  ShowLayers(session);
  if (one && IsNumber(form.txtLambda.Text) && !RefRel(session, Val(form.txtLambda.Text), LookupVoice::Quiet))
    form.txtLambda.BackColour = colours::Warning;
  FollowWavelength(session);
  Inputs_Changed(session);
}

void FurtherAxis_Changed(Session& session) {
  auto& form = session.form1;
  for (TextInput* input : {&form.txtRadius, &form.txtRmax, &form.txtRstep, &form.txtAngle, &form.txtF9_fixed,
                           &form.txtF9_min, &form.txtF9_max, &form.txtF9_step})
    if (input->BackColour == colours::BadInput) input->BackColour = colours::White;
  Inputs_Changed(session);
}

void Times_Changed(Session& session) {
  const bool replot = session.form1.cmdReplot.Enabled;
  FurtherAxis_Changed(session);
  // Of efficiencies all times are there, whichever are on show.
  if (ChosenGraph(session.state).family == Family::PulseAnswer) session.form1.cmdReplot.Enabled = replot;
}

std::string SizeCaption(const Form1& form) {
  if (form.mnuDiameter.Checked) return "Diameter (\u00B5m)";
  return form.mnuRadiusX.Checked ? "Size parameter x" : "Radius (\u00B5m)";
}

void txtRadius_Change(Session& session) {
  session.form1.txtRadius.BackColour = colours::White;
  if (session.state.CalcMethod == Method::CoatedSphere) TakeOuterRadius(session);
  Inputs_Changed(session);
}

void mnuRadius_Click(Session& session) {
  ChooseSizeKind(session, session.form1.mnuRadius);
}

void mnuDiameter_Click(Session& session) {
  ChooseSizeKind(session, session.form1.mnuDiameter);
}

void mnuRadiusX_Click(Session& session) {
  ChooseSizeKind(session, session.form1.mnuRadiusX);
}

void mnuSize_Click(Session& session) {
  Toggle(session, session.form1.mnuSize);
}

void mnuClassicStart_Click(Session& session) {
  Toggle(session, session.form1.mnuClassicStart);
}

void mnuConstantVolume_Click(Session& session) {
  Toggle(session, session.form1.mnuConstantVolume);
}

void mnuXStepLog_Click(Session& session) {
  Toggle(session, session.form1.mnuXStepLog);
  ShowFamilyInputs(session);
}

}  // namespace lumivex
