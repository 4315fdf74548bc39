#include "session/driver/lock.h"

#include "record/number_text.h"

namespace lumivex {

namespace {

void EnableInputs(Form1& form, bool enabled) {
  for (SelectionList* list : {&form.cboType, &form.cboGraph, &form.cboWave, &form.cboYmax, &form.cboYmin})
    list->Enabled = enabled;
  form.OptXLinear.Enabled = form.optXLog.Enabled = enabled;
  for (CommandButton* command : {&form.cmdNewPlot, &form.cmdOverPlot, &form.cmdReplot, &form.cmdExit})
    command->Enabled = enabled;
}

}  // namespace

void LockON(Session& session) {
  EnableInputs(session.form1, false);
  session.form1.cboLee.Enabled = session.form1.cboBright.Enabled = session.form1.cmdSimulation.Enabled = false;
}

void LockOFF(Session& session) {
  auto& form = session.form1;
  const auto& s = session.state;
  EnableInputs(form, true);
  const Graph& graph = ChosenGraph(s);
  const bool coloured = s.NumberWavelengths > 1 || graph.InColour();
  form.cboLee.Enabled = graph.InColour();
  form.cboBright.Enabled = coloured;
  form.cmdSimulation.Enabled = form.cmdSimulation.Visible;
}

}  // namespace lumivex
