#include "session/driver/progress.h"

#include <algorithm>
#include <cmath>

#include "record/number_text.h"

namespace lumivex {

namespace {

// The strip beside the inputs where the bar runs (surface units).
constexpr double barLeft = 12000, barTop = 1900, barBottom = 2000, barUnitsPerPercent = 30;

constexpr const char* progressTip = "Progress of the calculation";

/// Share of the run done, 0 to 1, folded over the wavelengths where there are several.
double ShareDone(const Session& session) {
  const auto& s = session.state;
  const auto& form = session.form1;
  double share = 0;
  if (s.CalcMethod == 1 && form.mnuGaussian.Checked) {
    share = s.NSTOP > 0 ? static_cast<double>(s.SeriesLoopIndex) / s.NSTOP : 0;
  } else {
    share = s.NN > 0 ? static_cast<double>(s.AngleLoopIndex) / s.NN : 0;
  }
  // The running sample counts as far as its angles are done.
  if (form.optDisp.Checked && s.NumberSamples > 0)
    share = (std::max(s.DispSample - 1, 0.0) + std::min(share, 1.0)) / s.NumberSamples;
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

/// Looks at the clock once a second.
void EstimateTimeLeft(Session& session, double share) {
  auto& s = session.state;
  constexpr double betweenLooks = 1, leastShare = 0.001, weightOfNew = 0.3;
  const double now = session.platform.Timer();
  if (now - s.StartTime < secondsUntilEstimate || now - s.EstimateTime < betweenLooks || share < leastShare) return;
  s.EstimateTime = now;
  const double total = (now - s.StartTime) / share;
  s.EstimatedSeconds =
      s.EstimatedSeconds == 0 ? total : s.EstimatedSeconds + weightOfNew * (total - s.EstimatedSeconds);
  s.SecondsLeft = std::max(0.0, s.EstimatedSeconds - (now - s.StartTime));
  session.form1.txtProgress.Tip = TimeLeftWords(s.SecondsLeft);
}

}  // namespace

std::string TimeLeftWords(double seconds) {
  if (seconds < 0) return "";
  constexpr double minute = 60, hour = 3600;
  if (seconds < 20) return Shortest(std::ceil(seconds)) + " s left";
  if (seconds < 2 * minute) return Shortest(5 * std::ceil(seconds / 5)) + " s left";
  if (seconds < 2 * hour) return Shortest(std::ceil(seconds / minute)) + " min left";
  return Shortest(std::ceil(seconds / hour)) + " h left";
}

void Progress(Session& session) {
  auto& s = session.state;
  const bool byPoints = s.GraphType >= 10 && s.GraphType <= 19;
  const double share = byPoints ? static_cast<double>(s.ProgressFraction) : ShareDone(session);
  const double percent = std::trunc(100 * share);
  EstimateTimeLeft(session, share);
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
  s.DispSample = 0;
  s.SecondsLeft = -1;
  s.EstimatedSeconds = s.EstimateTime = 0;
  s.StartTime = session.platform.Timer();
  session.form1.txtProgress.Tip = progressTip;
  session.form1.txtProgress.Text = "% complete 0";
  constexpr int rayleigh = 3, diffraction = 4;
  session.form1.txtProgress.Visible = s.CalcMethod != rayleigh && s.CalcMethod != diffraction;
}

void EndProgress(Session& session) {
  session.state.SecondsLeft = -1;
  session.form1.txtProgress.Tip = progressTip;
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
