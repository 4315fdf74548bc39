#include "session/driver/progress.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>

#include "record/number_text.h"
#include "runs/map_sums.h"
#include "runs/run.h"
#include "session/driver/display_run.h"

namespace lumivex {

namespace {

// The strip beside the inputs where the bar runs (surface units).
constexpr double barLeft = 12000, barTop = 1900, barBottom = 2000, barUnitsPerPercent = 30;

constexpr int stopRequested = 4;

constexpr const char* progressTip = "Progress of the calculation";

void DrawBar(Session& session, Colour colour, double percent) {
  auto& surface = *session.surface;
  const Colour before = surface.ForeColour;
  surface.ForeColour = colour;
  surface.Line(barLeft, barTop, barLeft + barUnitsPerPercent * percent, barBottom, LineKind::FilledBox);
  surface.ForeColour = before;
}

/// A line of the side strip, over the readings of the run before.
void PrintStripLine(DrawingSurface& surface, double top, const std::string& text) {
  constexpr double left = 12000, right = 15600, height = 300;
  const Colour before = surface.ForeColour;
  surface.ForeColour = surface.BackColour;
  surface.Line(left, top, right, top + height, LineKind::FilledBox);
  surface.ForeColour = colours::Black;
  surface.CurrentX = left;
  surface.CurrentY = top;
  surface.Print(text);
  surface.ForeColour = before;
}

/// Where a map stands: its column, and the sphere of it.
std::array<std::string, 4> ColumnLines(const RunProgress& progress, const Graph& graph, bool several) {
  const auto number = [](double value) { return Format(value, "#,##0.####"); };
  const auto fine = [](double value) { return Format(value, "#,##0.######"); };
  const std::string wavelength = number(1000 * progress.lambda) + " nm";
  const std::string step = "Step: " + std::to_string(progress.column);
  const bool angles = graph.ColumnsOfAngles();
  return {angles ? step + "   Radius = " + number(progress.radius) : step,
          several ? "Wavelength #" + std::to_string(progress.wavelength) + " = " + wavelength
                  : "   Wavelength = " + wavelength,
          "   Ref Index = " + fine(progress.sphereN) + "   Relative RI = " + fine(progress.relative),
          "   Imaginary RI = " + fine(progress.sphereK)};
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

void Progress(Session& session, double share) {
  auto& s = session.state;
  const double percent = std::trunc(100 * std::clamp(share, 0.0, 1.0));
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
  s.SecondsLeft = -1;
  s.EstimatedSeconds = s.EstimateTime = 0;
  s.StartTime = session.platform.Timer();
  session.form1.txtProgress.Tip = progressTip;
  session.form1.txtProgress.Text = "% complete 0";
  session.form1.txtProgress.Visible = s.CalcMethod != Method::Rayleigh && s.CalcMethod != Method::Diffraction;
}

void EndProgress(Session& session) {
  session.state.SecondsLeft = -1;
  session.form1.txtProgress.Tip = progressTip;
  session.form1.txtProgress.Visible = false;
  session.form1.txtProgress.Text = "% complete 0";
  DrawBar(session, session.surface->BackColour, 100);
}

SessionWatch::SessionWatch(Session& session, const RunRequest& request)
    : session_(session),
      request_(request),
      before_(session.state),
      wavelengthBefore_(session.state.WavelengthIndex),
      sampleBefore_(session.state.SampleIndex),
      dispSampleBefore_(session.state.DispSample),
      percentBefore_(session.state.ProgressPercent),
      fractionBefore_(session.state.ProgressFraction) {
  auto& s = session.state;
  s.AngleLoopIndex = s.SeriesLoopIndex = 0;
  s.DispSample = 0;
}

bool SessionWatch::Look(const RunProgress& progress) {
  auto& s = session_.state;
  s.WavelengthIndex = progress.wavelength;
  s.SampleIndex = std::max(progress.sample, 1);
  s.DispSample = progress.sample;
  s.PointIndex = progress.point;
  s.ColumnIndex = progress.column;
  s.RowIndex = progress.row;
  s.ProgressFraction = static_cast<float>(progress.share);
  s.AngleLoopIndex = static_cast<int>(progress.share * s.NN);
  s.SeriesLoopIndex = static_cast<int>(progress.share * s.NSTOP);
  if (progress.map != nullptr) DrawColumns(progress);
  PrintStrip(progress);
  Progress(session_, progress.share);
  return s.PlotMode != stopRequested;
}

void SessionWatch::PrintStrip(const RunProgress& progress) {
  const auto& s = session_.state;
  const bool several = s.NumberWavelengths > 1;
  if (!several && progress.sample == 0 && progress.map == nullptr) return;
  // Small spheres come by faster than they can be read, and printing would take longer than solving.
  constexpr double readable = 0.05;  // seconds
  const double now = session_.platform.Timer();
  if (now - printed_ < readable) return;
  printed_ = now;
  constexpr double wavelengthTop = 2100, radiusTop = 2400;
  auto& surface = *session_.surface;
  if (progress.map != nullptr) {
    double top = wavelengthTop;
    for (const std::string& line : ColumnLines(progress, ChosenGraph(s), several)) {
      PrintStripLine(surface, top, line);
      top += radiusTop - wavelengthTop;
    }
    return;
  }
  if (several)
    PrintStripLine(surface, wavelengthTop,
                   "Wavelength #" + std::to_string(progress.wavelength) + " = " + Significant(progress.lambda, 5));
  PrintStripLine(surface, radiusTop, "Radius = " + Format(progress.radius, "#0.##"));
}

void SessionWatch::DrawColumns(const RunProgress& progress) {
  // A short run is drawn once, at its end; a long one spends a tenth of its time on drawing at most.
  constexpr double firstDrawing = 0.5, leastPause = 0.3, pausePerDrawing = 9;
  const double now = session_.platform.Timer();
  if (nextDrawing_ == 0) nextDrawing_ = now + firstDrawing;
  // A picture of very many cells is not worth the memory of a second one.
  const bool byRows = progress.rowsDone > 0;
  const int done = byRows ? progress.rowsDone : progress.columnsDone;
  if (done <= columnsDrawn_ || now < nextDrawing_) return;
  if (byRows && MapCells(request_.run) > mostMapCells) return;
  columnsDrawn_ = done;
  const auto part = std::make_shared<Results>();
  part->asked = request_;
  part->found = byRows ? FirstRows(*progress.map, done) : FirstColumns(*progress.map, done);
  // A series of maps begins with a map that has ended.
  const ColourState colours = session_.state;
  DrawResults(session_, *part);
  session_.state.MapReference = colours.MapReference;
  session_.state.MapReferenceThird = colours.MapReferenceThird;
  session_.state.MapReferenceKind = colours.MapReferenceKind;
  const double taken = session_.platform.Timer() - now;
  nextDrawing_ = now + taken + std::max(leastPause, pausePerDrawing * taken);
  printed_ = 0;
  if (session_.form1.txtProgress.Visible) DrawBar(session_, RGB(0, 255, 192), session_.state.ProgressPercent);
}

void SessionWatch::Forget() {
  auto& s = session_.state;
  static_cast<SeriesState&>(s) = before_;
  s.WavelengthIndex = wavelengthBefore_;
  s.SampleIndex = sampleBefore_;
  s.DispSample = dispSampleBefore_;
  s.ProgressFraction = fractionBefore_;
  s.ProgressPercent = percentBefore_;
}

}  // namespace lumivex
