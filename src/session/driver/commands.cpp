#include "session/driver/commands.h"

#include <memory>
#include <utility>

#include "record/number_text.h"
#include "runs/run.h"
#include "session/checks/range_check.h"
#include "session/driver/display_run.h"
#include "session/driver/duration.h"
#include "session/driver/keep_curves.h"
#include "session/driver/lock.h"
#include "session/driver/overplot.h"
#include "session/driver/read_run.h"
#include "session/driver/settle_beam.h"
#include "session/impulse/impulse_plot.h"
#include "session/inputs/fourier_inputs.h"
#include "session/inputs/impulse_inputs.h"
#include "session/inputs/look/read_look.h"
#include "session/inputs/methods.h"
#include "session/inputs/two_angle_inputs.h"
#include "session/page.h"

namespace lumivex {

namespace {

bool HasRun(const MainFormState& s) {
  return s.LastResults != nullptr;
}

}  // namespace

bool InputsHold(Session& session) {
  auto& s = session.state;
  s.CommandAborted = 0;
  NumberWavelengths(session);
  TypeCalc(session);
  if (s.CalcMethod == Method::None) {
    s.CommandAborted = 1;
    return false;
  }
  if (ChosenGraph(s).OfPulse() && !PulseIsThere(session)) {
    s.CommandAborted = 1;
    return false;
  }
  double Xmin = s.Xmin, Xmax = s.Xmax, Ymin = s.Ymin, Ymax = s.Ymax;
  RangeCheck(session, Xmin, Xmax, Ymin, Ymax, s.CommandAborted);
  if (session.form1.txtLambda.BackColour == colours::BadInput) s.CommandAborted = 1;
  // The chart of two angles has inputs of its own, which are held against their limits before anybody is asked for
  // time.
  if (s.CommandAborted == 0 && IsTwoAngleContour(s) && !ReadTwoAngleInputs(session)) s.CommandAborted = 1;
  return s.CommandAborted == 0;
}

namespace {

/// A series can take long, and so can very many spheres; nothing else does. Nobody is asked for time that no run takes.
bool LeaveGiven(Session& session, const RunRequest& request) {
  auto& s = session.state;
  if (const Refusal beyond = BeyondVolume(request); !beyond.text.empty()) {
    session.platform.Message(beyond.title, beyond.text);
    s.CommandAborted = 1;
    return false;
  }
  const MethodTraits& method = TraitsOf(s.CalcMethod);
  if (method.series || method.layered || method.takesLong || request.graph.family == Family::Volume)
    Duration(session, request);
  return s.CommandAborted == 0;
}

/// Reads the inputs into a request, once, and runs it where they hold and nobody minds the time.
void RunInputs(Session& session, Onto onto) {
  if (!InputsHold(session)) return;
  if (!SettleBeam(session)) {
    session.state.CommandAborted = 1;
    return;
  }
  const auto request = ReadRun(session);
  if (!request || !LeaveGiven(session, *request)) return;
  LockON(session);
  Overplot(session, *request, onto);
}

/// Whether the stored curves are those of the graph and step that the inputs name. Terms have no step.
bool ResultsFitInputs(const Session& session) {
  const auto& s = session.state;
  const Graph& graph = ChosenGraph(s);
  return s.LastResults && s.LastResults->asked.graph == graph &&
         (graph.family == Family::DebyeAnalysis || graph.family == Family::PulseAnswer ||
          Val(session.form1.cboStep.Text) == s.Xstep);
}

void OfferCommands(Session& session) {
  auto& form = session.form1;
  const auto& s = session.state;
  // A curve of one wavelength over the colours of several would have no scale in common with them.
  const bool single = s.NumberWavelengths == 1 && s.ResultWavelengths == 1;
  form.cboWave.Enabled = TakesWavelengths(ChosenGraph(s)) || Trim(form.cboWave.Text) != "1";
  form.cmdReplot.Visible = HasRun(s);
  form.cmdReplot.Enabled = HasRun(s);
  form.cmdOverPlot.Visible = HasRun(s);
  // Pictures lie over nothing.
  const bool picture = HasRun(s) && s.LastResults->asked.graph.InColour();
  form.cmdOverPlot.Enabled = HasRun(s) && single && !picture && !ChosenGraph(s).InColour();
}

/// Which commands were offered for the results of before.
struct Offered {
  explicit Offered(const Session& session)
      : results(session.state.LastResults),
        replot(session.form1.cmdReplot.Enabled),
        overPlot(session.form1.cmdOverPlot.Enabled) {}
  std::shared_ptr<const Results> results;
  bool replot, overPlot;
};

/// What was calculated counts, whatever the list says by now. A run that was refused, or stopped with nothing found,
/// has made the results of before no better: they are offered again as they were.
void EndCommand(Session& session, const Offered& before) {
  auto& form = session.form1;
  if (HasRun(session.state)) session.state.NumberWavelengths = session.state.ResultWavelengths;
  LockOFF(session);
  OfferCommands(session);
  OfferImpulsePlot(session);
  // What is typed from now on is a step of its own, into the same field too: before it are the inputs of this run.
  session.undo.typedInto.clear();
  if (session.state.LastResults == before.results) {
    form.cmdReplot.Enabled = before.replot;
    form.cmdOverPlot.Enabled = before.overPlot;
  }
  // A batch tells of its end once, and not of each of its runs.
  if (session.state.BatchActive != 0) return;
  session.platform.Beep();
  session.events.Raise("Run_Ended");
}

}  // namespace

void cmdNewPlot_Click(Session& session) {
  auto& s = session.state;
  const int wasBusy = s.Busy;
  const Offered before(session);
  s.Busy = 1;
  s.OverplotFromFile = 0;
  s.StopAnswer = 0;
  s.PlotMode = 1;
  // A new run is seen as it is before it is transformed.
  if (session.form1.mnuFFT.Checked) session.events.Raise("mnuFFT_Click");
  RunInputs(session, Onto::FreshPage);
  s.PlotMode = 1;
  EndCommand(session, before);
  s.Busy = wasBusy;
}

void RunAgain(Session& session, const RunRequest& request) {
  auto& s = session.state;
  const int wasBusy = s.Busy;
  const Offered before(session);
  s.Busy = 1;
  s.OverplotFromFile = 0;
  s.StopAnswer = s.CommandAborted = 0;
  s.PlotMode = 1;
  if (LeaveGiven(session, request)) {
    LockON(session);
    Overplot(session, request, Onto::FreshPage);
  }
  s.PlotMode = 1;
  EndCommand(session, before);
  s.Busy = wasBusy;
}

void cmdOverPlot_Click(Session& session) {
  auto& s = session.state;
  if (!HasRun(s)) {
    cmdNewPlot_Click(session);
    return;
  }
  const Offered before(session);
  s.Busy = 1;
  s.StopAnswer = 0;
  s.PlotMode = 2;
  RunInputs(session, Onto::PageOnScreen);
  s.PlotMode = 1;
  EndCommand(session, before);
  s.Busy = 0;
}

void cmdReplot_Click(Session& session) {
  auto& s = session.state;
  if (!ResultsFitInputs(session)) {
    RenewLook(session);
    return;
  }
  if (!LengthHolds(session)) return;
  s.CommandAborted = 0;
  s.StopAnswer = 0;
  // What was calculated counts, whatever the list says by now.
  s.NumberWavelengths = s.ResultWavelengths;
  double Xmin = s.Xmin, Xmax = s.Xmax, Ymin = s.Ymin, Ymax = s.Ymax;
  RangeCheck(session, Xmin, Xmax, Ymin, Ymax, s.CommandAborted);
  if (s.CommandAborted == 0 && !SizesFitColumns(session)) s.CommandAborted = 1;
  if (s.CommandAborted != 0) {
    // Colours and sizes are no matter of the inputs.
    RenewLook(session);
    return;
  }
  s.Xmin = s.PlotXmin = Xmin;
  s.Xmax = s.PlotXmax = Xmax;
  const Look look = ReadLook(session);
  FillCurveArrays(s, *s.LastResults, CurvesOf(*s.LastResults, {look.amplitude, look.invWavelength}),
                  look.sun.rectangular);
  s.PlotMode = 1;
  DisplayRun(session, Onto::FreshPage);
  s.PlotMode = 1;
}

void TakeResults(Session& session, Results&& results, Onto onto) {
  auto& s = session.state;
  const int wasBusy = s.Busy;
  s.Busy = 1;
  s.StopAnswer = s.CommandAborted = 0;
  s.OverplotFromFile = onto == Onto::PageOnScreen ? 1 : 0;
  s.PlotMode = onto == Onto::PageOnScreen ? 2 : 1;
  ShowResults(session, std::move(results), onto);
  s.PlotMode = 1;
  s.OverplotFromFile = 0;
  s.NumberWavelengths = s.ResultWavelengths;
  OfferCommands(session);
  s.Busy = wasBusy;
}

void cmdStop_Click(Session& session) {
  auto& s = session.state;
  if (!session.platform.Question("Calculation in progress!", "Do you want to stop the calculation?")) return;
  s.PlotMode = 4;
  s.StopAnswer = 1;
  s.SeriesLoopIndex = s.NSTOP;
  s.AngleLoopIndex = s.NANG;
}

}  // namespace lumivex
