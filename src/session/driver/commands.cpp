#include "session/driver/commands.h"

#include "pages/spectrum_sums.h"
#include "pages/sun_disc.h"
#include "record/number_text.h"
#include "session/checks/range_check.h"
#include "session/driver/angle_family.h"
#include "session/driver/axis_family.h"
#include "session/driver/display_run.h"
#include "session/driver/duration.h"
#include "session/driver/lock.h"
#include "session/driver/overplot.h"
#include "session/inputs/methods.h"
#include "session/inputs/two_angle_inputs.h"
#include "session/page.h"

namespace lumivex {

namespace {

bool HasRun(const MainFormState& s) {
  return s.PrevGraphType != 0;
}

/// Reads the wavelength list and the method and holds the inputs against the rules.
bool InputsHold(Session& session) {
  auto& s = session.state;
  s.CommandAborted = 0;
  NumberWavelengths(session);
  TypeCalc(session);
  if (s.CalcMethod == 0) {
    s.CommandAborted = 1;
    return false;
  }
  double Ymin = s.Ymin, Ymax = s.Ymax;
  RangeCheck(session, s.Xmin, s.Xmax, Ymin, Ymax, s.CommandAborted);
  if (session.form1.txtLambda.BackColour == colours::BadInput) s.CommandAborted = 1;
  // The chart of two angles has inputs of its own, which are held against their limits before anybody is asked for
  // time.
  if (s.CommandAborted == 0 && IsTwoAngleContour(s) && !ReadTwoAngleInputs(session)) s.CommandAborted = 1;
  return s.CommandAborted == 0;
}

/// A series can take long; what needs no series never does.
bool LeaveGiven(Session& session) {
  auto& s = session.state;
  constexpr int firstWithoutSeries = 3;
  if (s.CalcMethod < firstWithoutSeries) Duration(session);
  return s.CommandAborted == 0;
}

/// Whether the stored curves are those of the graph and step that the inputs name.
bool ResultsFitInputs(const Session& session) {
  const auto& s = session.state;
  return HasRun(s) && s.PrevGraphType == s.GraphType && s.PrevGraphSubType == s.GraphSubType &&
         Val(session.form1.cboStep.Text) == s.Xstep;
}

void OfferCommands(Session& session) {
  auto& form = session.form1;
  const auto& s = session.state;
  // A curve of one wavelength over the colours of several would have no scale in common with them.
  const bool single = s.NumberWavelengths == 1 && s.ResultWavelengths == 1;
  // Only intensity against angle is a matter of several wavelengths.
  form.cboWave.Enabled = (s.GraphType == 1 && s.GraphSubType == 1) || s.GraphType >= 20 || s.NumberWavelengths > 1;
  form.cmdReplot.Visible = HasRun(s);
  form.cmdReplot.Enabled = HasRun(s);
  form.cmdOverPlot.Visible = HasRun(s);
  form.cmdOverPlot.Enabled = HasRun(s) && single;
}

void EndCommand(Session& session) {
  LockOFF(session);
  OfferCommands(session);
  session.platform.Beep();
}

}  // namespace

void cmdNewPlot_Click(Session& session) {
  auto& s = session.state;
  const int wasBusy = s.Busy;
  s.Busy = 1;
  s.OverplotFromFile = 0;
  s.StopAnswer = 0;
  s.PlotMode = 1;
  if (InputsHold(session) && LeaveGiven(session)) {
    s.PlotXmin = s.Xmin;
    s.PlotXmax = s.Xmax;
    LockON(session);
    s.WavelengthIndex = 1;
    Overplot(session);
  }
  s.PlotMode = 1;
  EndCommand(session);
  s.Busy = wasBusy;
}

void cmdOverPlot_Click(Session& session) {
  auto& s = session.state;
  if (!HasRun(s)) {
    cmdNewPlot_Click(session);
    return;
  }
  s.Busy = 1;
  s.StopAnswer = 0;
  s.PlotMode = 2;
  if (InputsHold(session) && LeaveGiven(session)) {
    LockON(session);
    Overplot(session);
  }
  s.PlotMode = 1;
  EndCommand(session);
  s.Busy = 0;
}

void cmdReplot_Click(Session& session) {
  auto& s = session.state;
  if (!ResultsFitInputs(session)) {
    DrawPage(session);
    return;
  }
  s.CommandAborted = 0;
  s.StopAnswer = 0;
  // What was calculated counts, whatever the list says by now.
  s.NumberWavelengths = s.ResultWavelengths;
  double Ymin = s.Ymin, Ymax = s.Ymax;
  RangeCheck(session, s.Xmin, s.Xmax, Ymin, Ymax, s.CommandAborted);
  if (s.CommandAborted != 0) return;
  s.PlotXmin = s.Xmin;
  s.PlotXmax = s.Xmax;
  s.PlotMode = 1;
  SunCorrection(session);
  if (s.ResultWavelengths > 1) {
    FoldSpectrum(session);
  } else if (s.GraphType == 1 && !IsTwoAngleContour(s)) {
    SetIntensityNorm(session);
    FillAngleCurves(session);
  } else if (s.GraphType == 10 && s.GraphSubType == 10) {
    // The terms stand; only their picture is new.
  } else if (s.GraphType == 10 || s.GraphType == 11 || s.GraphType == 12) {
    FillAxisCurves(session);
  }
  DisplayRun(session);
  s.PlotMode = 1;
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
