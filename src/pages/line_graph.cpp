#include "pages/line_graph.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "axes/curve_smoothing.h"
#include "axes/polar_coordinates.h"
#include "pages/colours.h"
#include "pages/curve_legend.h"
#include "pages/curve_path.h"
#include "pages/frame.h"
#include "pages/scale.h"
#include "record/number_text.h"

namespace lumivex {

namespace {

constexpr double notComputed = std::numeric_limits<double>::quiet_NaN();
constexpr int stopRequested = 4;
constexpr int heiligenschein = 16;

bool IsAutomatic(const SelectionList& list) {
  return SameName(Trim(list.Text), "Automatic");
}

/// Graphs against angle have the rows of the solver, the others a point for each step of the axis.
bool HasSolverRows(const Session& session) {
  return session.state.GraphType < 10 && session.form1.mnuPlaneWave.Checked;
}

bool HasLogSteps(const Session& session) {
  const int type = session.state.GraphType;
  return session.form1.mnuXStepLog.Checked && (type == 10 || type == 11 || (type >= 14 && type <= 18));
}

RowSpan RowsOfRun(const Session& session, std::size_t size) {
  const auto& s = session.state;
  const std::size_t last = size > 0 ? size - 1 : 0;
  const auto row = [last](double r) { return static_cast<std::size_t>(std::clamp(r, 0.0, static_cast<double>(last))); };
  if (HasSolverRows(session)) {
    const auto lastRow = std::min(s.AngleHigh, 2 * s.NANG - 1);
    return {std::max<std::size_t>(1, row(s.AngleLow)), row(lastRow)};
  }
  if (s.GraphType >= 30) return {1, row(s.PlotXmax - s.PlotXmin + 1.0001)};
  // A zoom changes the limits, not the points that are stored.
  if (s.GraphType >= 10 && s.XValues.size() == size) return {1, last};
  if (HasLogSteps(session)) return {1, row(s.Xstep + 1)};
  return {1, row(s.Xstep > 0 ? (s.PlotXmax - s.PlotXmin) / s.Xstep + 1.0001 : 0)};
}

/// x of a row where the run left no XValues.
double RuledPosition(const Session& session, std::size_t row) {
  const auto& s = session.state;
  const double i = static_cast<double>(row) - 1;
  if (HasSolverRows(session)) return s.NANG > 1 ? i * 180 / (2 * (s.NANG - 1)) : 0;
  if (s.GraphType >= 30) return s.PlotXmin + i;
  if (HasLogSteps(session)) return std::min(s.PlotXmin * std::pow(s.LogStepRatio, i), s.PlotXmax);
  return s.PlotXmin + i * s.Xstep;
}

bool AreStored(const std::vector<double>& x, RowSpan rows) {
  if (rows.Empty() || rows.last >= x.size()) return false;
  return x[rows.last] > x[rows.first] || (rows.first == rows.last && x[rows.first] != 0);
}

void ChooseXLimits(Session& session, double& xmin, double& xmax) {
  auto& form = session.form1;
  const auto& s = session.state;
  const bool impulse = s.GraphType == 15 && s.GraphSubType == 13;
  if (impulse) form.OptXLinear.Select();
  xmin = Val(impulse ? form.txtF9_min.Text : form.txtXmin.Text);
  xmax = Val(impulse ? form.txtF9_max.Text : form.txtXmax.Text);
}

/// The second array says nothing about the scale of these graphs.
bool FirstArrayCounts(const RunState& s) {
  const int sub = s.GraphSubType;
  return s.GraphType == 17 || (s.GraphType == 14 && sub >= 7 && sub <= 9) ||
         (s.GraphType == 15 && (sub == 9 || sub == 12));
}

/// Amplitudes of the complex plane: the phase is the polar angle, the modulus the radius.
void TakeComplexAmplitude(const MainFormState& s, KeptCurve& curve) {
  curve.angle = curve.x;
  const int rows = std::min(s.S1.Rows(), s.S2.Rows());
  for (std::size_t i = 1; i < curve.y.size(); ++i) {
    const int row = static_cast<int>(i);
    curve.y[i] = notComputed;
    if (row > rows || !std::isfinite(curve.x[i])) continue;
    ComplexD S = s.CurveKind == 2 ? s.S2.Value(row) : s.S1.Value(row);
    if (s.CurveKind == 3) S = {(s.S1.Re(row) + s.S2.Re(row)) / 2, (s.S1.Im(row) + s.S2.Im(row)) / 2};
    double modulus = 0, phase = 0;
    RectangularPolar(S.re, S.im, modulus, phase);
    curve.y[i] = modulus;
    curve.x[i] = phase * 180 / 3.14159265358979;
  }
}

/// Colour of a curve: of the wavelength where there are several, otherwise that of the menu.
void TakeLineColour(Session& session) {
  const auto& s = session.state;
  LineColour(session);
  const auto index = static_cast<std::size_t>(std::max(s.WavelengthIndex, 0));
  if (s.NumberWavelengths > 1 && !session.form1.mnuIntPol.Checked && index < s.WavelengthColours.size())
    session.surface->ForeColour = s.WavelengthColours[index];
}

void DrawCurves(Session& session, const CurveSet& curves) {
  auto& s = session.state;
  auto& surface = *session.surface;
  const std::string_view pol = session.form1.cboPol.Text;
  const bool all = pol == "All 3", both = pol == "Both";
  const bool ratio = s.YAxisMode == 2;
  const bool oneCurve = s.GraphType == 17 || (s.RefRelImag == 0 && s.GraphType >= 14 && s.GraphType <= 16);
  const bool shaded = (all || both) && (s.NumberWavelengths == 1 || session.form1.mnuIntPol.Checked);
  if (!oneCurve && (all || both || ratio || pol.starts_with("Parallel"))) {
    s.CurveKind = 2;
    TakeLineColour(session);
    if (shaded) surface.ForeColour = s.SecondLineColour;
    Plot(session, curves.parallel);
  }
  if (!oneCurve && (all || ratio || pol == "Unpolarised")) {
    s.CurveKind = 3;
    TakeLineColour(session);
    // Black cannot be seen on black.
    if (shaded) surface.ForeColour = s.PlotBackColourMono == colours::Black ? colours::White : colours::Black;
    Plot(session, curves.unpolarised);
  }
  if (all || both || pol.starts_with("Perpendicular") || (oneCurve && !pol.empty())) {
    s.CurveKind = 1;
    TakeLineColour(session);
    Plot(session, curves.perpendicular);
  }
}

}  // namespace

bool DrawsOver(const Session& session) {
  const auto& s = session.state;
  const bool asked = s.PlotMode == 2 || s.OverplotFromFile == 1;
  return asked && !s.Drawn.panels.empty() && s.Drawn.kind.SharesAxesWith(KindNow(session));
}

void Display(Session& session, std::span<const double> y1, std::span<const double> y2, std::span<const double> y3) {
  DisplayInBox(session, WholeBox(session.state), {y1, y2, y3});
}

void DisplayInBox(Session& session, const GraphBox& box, const CurveSet& curves) {
  if (session.state.PlotMode == stopRequested) return;
  FrameInBox(session, box, curves);
  DrawCurves(session, curves);
}

void FrameInBox(Session& session, const GraphBox& box, const CurveSet& curves) {
  auto& s = session.state;
  if (s.GraphType == 13) s.YAxisMode = 1;
  if (DrawsOver(session)) return;
  double xmin = 0, xmax = 0;
  ChooseXLimits(session, xmin, xmax);
  if (s.PlotMode == 0 && s.SecondPanel == 0) {
    s.Ymin = IsAutomatic(session.form1.cboYmin) ? s.YAutoMin : Val(session.form1.cboYmin.Text);
    s.Ymax = IsAutomatic(session.form1.cboYmax) ? s.YAutoMax : Val(session.form1.cboYmax.Text);
  } else {
    s.PlotMode = 1;
    ChooseYLimits(session, curves, {xmin, xmax});
  }
  Grid(session, box.left, box.right, box.top, box.bottom, xmin, xmax, s.Ymin, s.Ymax);
  s.PlotMode = 2;
}

void Plot(Session& session, std::span<const double> y, std::size_t panel) {
  session.platform.Yield();
  if (session.state.PlotMode == stopRequested || panel >= session.state.Drawn.panels.size()) return;
  PlotCurve(session, CapturedCurve(session, y, panel));
}

KeptCurve CapturedCurve(Session& session, std::span<const double> y, std::size_t panel) {
  const auto& s = session.state;
  const auto& form = session.form1;
  KeptCurve curve;
  curve.panel = panel;
  curve.kind = s.CurveKind;
  const bool second = s.Drawn.panels[panel].second;
  curve.name = CurveName(s.Drawn.kind, s.CurveKind, second);
  curve.y.assign(y.begin(), y.end());
  curve.x = RowPositions(session, y.size());
  for (std::size_t i = 1; i < curve.y.size(); ++i)
    if (!std::isfinite(curve.x[i])) curve.y[i] = notComputed;
  const bool phases = second && s.Drawn.kind.ampPhase;
  if (form.optSun.Checked && s.GraphType < 10 && !phases && s.SunDiscWeight.size() > 1) {
    const DiscWeights disc{s.SunDiscWeight, s.SunDiscRows, s.SunDiscTotal};
    const bool mirrored = s.CalcMethod != heiligenschein && HasSolverRows(session);
    curve.y = FoldedWithDisc(curve.y, disc, mirrored ? static_cast<std::size_t>(2 * s.NANG - 1) : 0);
  }
  if (s.Drawn.kind.polar && s.Drawn.kind.ampPhase) TakeComplexAmplitude(s, curve);
  if (form.mnuAverage.Checked && s.Xstep > 0)
    curve.averageRows = Val(session.forms.dlogAverage.txtAverage.Text) / s.Xstep;
  curve.wraps = phases;
  curve.interpolate = form.mnuInterpolate.Checked;
  curve.markers = form.mnuDrawWidth0.Checked;
  curve.colour = session.surface->ForeColour;
  curve.drawStyle = form.mnuDash.Checked ? 1 : form.mnuDot.Checked ? 2 : 0;
  curve.drawWidth = form.mnuDrawWidth2.Checked ? 2 : 1;
  return curve;
}

void PlotCurve(Session& session, KeptCurve curve) {
  auto& graph = session.state.Drawn;
  if (curve.panel >= graph.panels.size()) return;
  const KeptPanel& panel = graph.panels[curve.panel];
  const Colour before = session.surface->ForeColour;
  DrawCurve(session, panel, curve);
  if (!graph.kind.polar) PaintBoxSides(*session.surface, graph.kind, panel.box);
  session.surface->ForeColour = before;
  graph.curves.push_back(std::move(curve));
}

std::vector<double> RowPositions(Session& session, std::size_t size) {
  auto& s = session.state;
  const RowSpan rows = RowsOfRun(session, size);
  if (HasLogSteps(session) && s.Xstep > 0 && s.PlotXmin > 0)
    s.LogStepRatio = std::pow(s.PlotXmax / s.PlotXmin, 1 / s.Xstep);
  const bool stored = AreStored(s.XValues, rows);
  std::vector<double> x(size, notComputed);
  for (std::size_t i = rows.first; i <= rows.last && i < size; ++i)
    x[i] = stored ? s.XValues[i] : RuledPosition(session, i);
  return x;
}

void ChooseYLimits(Session& session, const CurveSet& curves, XRange range) {
  auto& s = session.state;
  const bool automaticTop = IsAutomatic(session.form1.cboYmax);
  const bool automaticBottom = IsAutomatic(session.form1.cboYmin);
  const std::size_t size = std::min(curves.perpendicular.size(), curves.parallel.size());
  const RowSpan rows = RowsWithin(RowPositions(session, size), range);
  constexpr double noBottom = 1e30;
  double max1 = 0, max2 = 0, min1 = noBottom, min2 = 10 * noBottom;
  for (std::size_t i = rows.first; i <= rows.last; ++i) {
    const double a = curves.perpendicular[i], b = curves.parallel[i];
    if (automaticTop && std::isfinite(a)) max1 = AMAX(max1, a);
    if (automaticTop && std::isfinite(b)) max2 = AMAX(max2, b);
    if (automaticBottom && std::isfinite(a)) min1 = AMIN(min1, a);
    if (automaticBottom && std::isfinite(b)) min2 = AMIN(min2, b);
  }
  if (FirstArrayCounts(s)) {
    max2 = max1;
    min2 = min1;
  }
  s.YAutoMax = AMAX(max1, max2);
  GridYmax(session, s.YAutoMax, s.Ymax);
  s.YAutoMin = AMIN(min1, min2);
  // Where nothing was computed the last scale serves.
  if (s.YAutoMin >= noBottom) s.YAutoMin = std::min(s.StoredBottom, s.Ymax / 10);
  GridYmin(session, s.YAutoMin, s.Ymin);
}

}  // namespace lumivex
