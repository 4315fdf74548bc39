#include "session/driver/overplot.h"

#include <utility>

#include "runs/run.h"
#include "session/driver/keep_results.h"
#include "session/driver/lock.h"
#include "session/driver/progress.h"
#include "session/info.h"
#include "session/inputs/impulse_inputs.h"
#include "session/inputs/layers/layer_labels.h"
#include "session/page.h"

namespace lumivex {

namespace {

void ShowRunning(Session& session) {
  auto& form = session.form1;
  if (form.Frame6.Visible) cmdInfo_Click(session);
  BeginProgress(session);
  form.cmdStop.Visible = form.cmdStop.Enabled = true;
  for (TextInput* input :
       {&form.txtLambda, &form.txtRadius, &form.txtRefractReal, &form.txtRefractImag, &form.txtRefractMedium})
    input->BackColour = colours::White;
  form.cboStep.BackColour = colours::White;
}

void ShowEnded(Session& session) {
  session.form1.cmdStop.Visible = session.form1.cmdStop.Enabled = false;
}

/// Tells why a run was refused, and marks the input that is to blame.
void Tell(Session& session, const Refusal& refusal) {
  auto& form = session.form1;
  if (refusal.at == InputAtFault::StandardDeviation) form.cboSD.BackColour = colours::BadInput;
  if (refusal.at == InputAtFault::Distribution) form.cboDistrib.BackColour = colours::BadInput;
  if (refusal.at == InputAtFault::Size && form.txtRadius.Visible) form.txtRadius.BackColour = colours::BadInput;
  session.platform.Message(refusal.title, refusal.text);
}

}  // namespace

void ShowResults(Session& session, Results&& results, Onto onto) {
  KeepResults(session, std::move(results));
  DisplayRun(session, onto);
}

RunEnd RunBeside(Session& session, const RunRequest& request) {
  auto& s = session.state;
  auto& form = session.form1;
  const int wasBusy = s.Busy;
  const bool replot = form.cmdReplot.Enabled, overPlot = form.cmdOverPlot.Enabled;
  s.Busy = 1;
  s.StopAnswer = 0;
  s.PlotMode = 1;
  LockON(session);
  SessionWatch watch(session, request);
  BeginProgress(session);
  form.cmdStop.Visible = form.cmdStop.Enabled = true;
  RunEnd end = Run(request, watch, session.platform.Threads());
  s.PlotMode = 1;
  EndProgress(session);
  watch.Forget();
  ShowEnded(session);
  LockOFF(session);
  form.cmdReplot.Enabled = replot;
  form.cmdOverPlot.Enabled = overPlot;
  s.Busy = wasBusy;
  // The bar of the run went over the page.
  DrawPage(session);
  return end;
}

void Overplot(Session& session, const RunRequest& request, Onto onto) {
  auto& s = session.state;
  ShowLayersOfRun(session);
  SessionWatch watch(session, request);
  const Page before = session.page;
  ShowRunning(session);
  RunEnd end = Run(request, watch, session.platform.Threads());
  s.PlotMode = onto == Onto::PageOnScreen ? 2 : 1;
  EndProgress(session);
  if (end.hasResults) {
    KeepResults(session, std::move(end.results));
    RemarkOnWindow(session);
  } else {
    watch.Forget();
  }
  if (end.hasResults) {
    // What was done before a Stop is on the page at once: page, tables and record tell of the same run.
    if (end.outcome == Outcome::Done)
      DisplayRun(session, onto);
    else
      ShowLastResults(session, onto);
  } else if (watch.HasDrawn()) {
    // Those of a run that failed give way to what was there.
    ShowPage(session, before);
  } else {
    // The bar and the lines of the run went over the page.
    DrawPage(session);
  }
  ShowEnded(session);
  if (end.outcome == Outcome::Refused || end.outcome == Outcome::Overflow) Tell(session, end.refusal);
  s.PlotMode = 1;
}

}  // namespace lumivex
