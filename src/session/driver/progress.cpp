#include "session/driver/progress.h"

#include <algorithm>
#include <cmath>

#include "session/record/number_text.h"

namespace lumivex {

namespace {

// The strip beside the inputs where the bar runs (surface units).
constexpr double barLeft = 12000, barTop = 1900, barBottom = 2000, barUnitsPerPercent = 30;

/// Share of the run done, 0 to 1, folded over the wavelengths where there are several.
double ShareDone(const Session& session) {
  const auto& s = session.state;
  const auto& form = session.form1;
  const bool slowBySamples = form.optDisp.Checked && s.NumberSamples > 0;
  double share = 0;
  if (slowBySamples) {
    share = s.DispSample / s.NumberSamples;
  } else if (s.CalcMethod == 1 && form.mnuGaussian.Checked) {
    share = s.NSTOP > 0 ? static_cast<double>(s.SeriesLoopIndex) / s.NSTOP : 0;
  } else {
    share = s.NN > 0 ? static_cast<double>(s.AngleLoopIndex) / s.NN : 0;
  }
  if (s.NumberWavelengths > 1) share = (share + s.WavelengthIndex - 1) / s.NumberWavelengths;
  return std::clamp(share, 0.0, 1.0);
}

void DrawBar(Session& session, Colour colour, double percent) {
  auto& surface = *session.surface;
  const Colour before = surface.ForeColour;
  surface.ForeColour = colour;
  surface.Line(barLeft, barTop, barLeft + barUnitsPerPercent * percent, barBottom, LineKind::FilledBox);
  surface.ForeColour = before;
}

}  // namespace

void Progress(Session& session) {
  auto& s = session.state;
  const bool byPoints = s.GraphType >= 10 && s.GraphType <= 19;
  const double percent = std::trunc(100 * (byPoints ? static_cast<double>(s.ProgressFraction) : ShareDone(session)));
  if (percent >= s.ProgressPercent + 1) {
    s.ProgressPercent = percent;
    session.form1.txtProgress.Text = "% complete" + Str(percent);
    if (session.form1.txtProgress.Visible) DrawBar(session, RGB(0, 255, 192), percent);
  }
  session.platform.Yield();
}

void BeginProgress(Session& session) {
  auto& s = session.state;
  s.ProgressPercent = 0;
  s.ProgressFraction = 0;
  s.AngleLoopIndex = s.SeriesLoopIndex = 0;
  session.form1.txtProgress.Text = "% complete 0";
  constexpr int rayleigh = 3, diffraction = 4;
  session.form1.txtProgress.Visible = s.CalcMethod != rayleigh && s.CalcMethod != diffraction;
}

void EndProgress(Session& session) {
  session.form1.txtProgress.Visible = false;
  session.form1.txtProgress.Text = "% complete 0";
  DrawBar(session, session.surface->BackColour, 100);
}

bool SessionMonitor::Report(std::size_t index, std::size_t count) {
  auto& s = session_.state;
  const double share = count > 0 ? static_cast<double>(index) / static_cast<double>(count) : 1;
  if (share_ == Share::Points) s.ProgressFraction = static_cast<float>(share);
  s.AngleLoopIndex = static_cast<int>(share * s.NN);
  s.SeriesLoopIndex = static_cast<int>(share * s.NSTOP);
  Progress(session_);
  return s.PlotMode != 4;
}

}  // namespace lumivex
