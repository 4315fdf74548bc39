#include "pages/frame.h"

#include <algorithm>

#include "pages/polar_plot.h"
#include "pages/scale.h"
#include "pages/two_angle_chart.h"

namespace lumivex {

namespace {

/// Between two panels: numbers of the upper one, title of the lower one, and air.
constexpr double gapBetweenPanels = 800;

constexpr double slideFont = 14;

/// Small, medium, large and very large logos.
double LogoFontSize(GraphSize size) {
  switch (size) {
    case GraphSize::Small:
      return 8;
    case GraphSize::Medium:
      return 10;
    case GraphSize::Large:
      return 16;
    case GraphSize::VeryLarge:
      break;
  }
  return 18;
}

void PlaceLogo(Session& session, const FramePaint& paint) {
  auto& form = session.form1;
  auto& logo = form.lblLogo;
  const GraphBox& box = paint.Box();
  const bool right = form.mnuLogoPositionTR.Checked || form.mnuLogoPositionBR.Checked;
  const bool above = form.mnuLogoPositionTR.Checked || form.mnuLogoPositionTL.Checked;
  logo.Left = right ? box.right - 3000 : 1080;
  logo.Top = above ? box.top + 80 : box.bottom - 500;
  logo.FontSize = LogoFontSize(paint.size);
  if (paint.kind.polar) {
    // The corner above the circle is free, the foot of the page is not.
    logo.Top = 3200;
    if (paint.special) logo.FontSize = 24;
  }
  const bool mono = paint.kind.numberWavelengths == 1;
  const bool onPale = form.mnuDefault.Checked || form.mnuWhite.Checked;
  session.state.LogoColour = mono && onPale ? RGB(200, 200, 200) : RGB(100, 100, 100);
  logo.ForeColour = session.state.LogoColour;
  logo.Visible = paint.kind.graphType < 19 && !form.mnuHideLogo.Checked && paint.place != PanelPlace::Upper;
}

void PaintLogo(FramePaint& paint) {
  auto& logo = paint.session.form1.lblLogo;
  if (!logo.Visible) return;
  auto& surface = paint.surface;
  const SurfacePen pen = surface;
  surface.FontSize = logo.FontSize;
  surface.FontBold = paint.kind.polar && paint.special;
  surface.ForeColour = logo.ForeColour;
  if (paint.kind.polar &&
      !paint.labels.HasRoom(logo.Left, logo.Top, surface.TextWidth(logo.Caption), surface.TextHeight(logo.Caption))) {
    // A number of the rim stands there: beside the circle there is room.
    const auto& graph = paint.session.state;
    logo.Left = graph.PolarCentreX + 1.25 * graph.PolarRadius;
  }
  surface.CurrentX = std::max(0.0, std::min(logo.Left, surface.ScaleWidth() - surface.TextWidth(logo.Caption)));
  surface.CurrentY = logo.Top;
  surface.Print(logo.Caption, false);
  static_cast<SurfacePen&>(surface) = pen;
}

/// The surface as every frame starts on it.
void PrepareSurface(Session& session) {
  auto& surface = *session.surface;
  surface.ForeColour = colours::Black;
  surface.BackColour = session.form1.mnuWhite.Checked ? colours::White : colours::ButtonFace;
  surface.FillStyle = 1;
  surface.DrawStyle = 0;
  surface.DrawWidth = 1;
  surface.FontName = "MS Sans Serif";
  const bool special = session.form1.mnuSizeSpecial.Checked;
  surface.FontSize = special ? slideFont : 8;
  surface.FontBold = special;
}

PanelPlace PlaceOf(const AxisState& axis, const GraphBox& box) {
  if (box == WholeBox(axis)) return PanelPlace::Whole;
  if (box == UpperPanel(axis)) return PanelPlace::Upper;
  return box == LowerPanel(axis) ? PanelPlace::Lower : PanelPlace::Fixed;
}

}  // namespace

GraphBox WholeBox(const AxisState& axis) {
  return {axis.GraphLeft, axis.GraphRight, axis.GraphTop, axis.GraphBottom};
}

GraphBox UpperPanel(const AxisState& axis) {
  GraphBox box = WholeBox(axis);
  box.bottom = 0.5 * (box.top + box.bottom - gapBetweenPanels);
  return box;
}

GraphBox LowerPanel(const AxisState& axis) {
  GraphBox box = WholeBox(axis);
  box.top = 0.5 * (box.top + box.bottom + gapBetweenPanels);
  return box;
}

GraphKind KindNow(const Session& session) {
  const auto& form = session.form1;
  GraphKind kind;
  kind.graphType = session.state.GraphType;
  kind.graphSubType = session.state.GraphSubType;
  kind.numberWavelengths = session.state.NumberWavelengths;
  kind.logX = form.optXLog.Checked && form.Frame8.Visible;
  kind.logY = form.OptLog.Checked;
  if (IsTwoAngleContour(session.state)) {
    kind.xTitle = TwoAngleXTitle(session.state);
    kind.yTitle = TwoAngleYTitle(session.state);
  }
  kind.polar = form.mnuPolarPlot.Checked && !kind.IsMatrix() && !kind.IsTwoAngle();
  kind.ampPhase = form.mnuAmpPhase.Checked && !kind.IsMatrix();
  kind.intPol = form.mnuIntPol.Checked && !kind.IsMatrix();
  kind.amplitude = form.mnuAmplitude.Checked;
  kind.fourier = form.mnuFFT.Checked;
  return kind;
}

void Grid(Session& session, double left, double right, double top, double bottom, double& xmin, double& xmax,
          double ymin, double ymax) {
  auto& state = session.state;
  if (!session.form1.Frame8.Visible) session.form1.OptXLinear.Select();
  const GraphKind kind = KindNow(session);
  if (!kind.logX && kind.graphType != 16 && xmin != 0 && xmax / xmin > 10 && xmin < 0.1) xmin = 0;

  KeptPanel panel;
  panel.box = {left, right, top, bottom};
  panel.place = PlaceOf(state, panel.box);
  panel.second = state.SecondPanel == 1;
  panel.logY = kind.logY && !panel.second;
  panel.limits = RepairedLimits({xmin, xmax, ymin, ymax}, kind.logX, panel.logY);
  xmin = panel.limits.xmin;
  xmax = panel.limits.xmax;
  if (panel.logY && state.YAutoMin == 0) state.YAutoMin = 0.0001;

  if (!panel.second) {
    state.Drawn = KeptGraph{};
    state.Drawn.kind = kind;
    state.Drawn.home = {xmin, xmax};
  }
  state.Drawn.panels.push_back(panel);
  PrepareSurface(session);
  // The second panel joins the first; every other frame begins a page.
  if (!panel.second) session.surface->Cls();
  PaintFrame(session, kind, panel);
}

void PaintFrame(Session& session, const GraphKind& kind, const KeptPanel& panel) {
  PrepareSurface(session);
  FramePaint paint(session, kind, panel);
  auto& surface = paint.surface;
  PlaceLogo(session, paint);
  if (kind.polar) {
    PaintPolarFrame(paint);
    PaintLogo(paint);
  } else {
    const GraphBox& box = paint.Box();
    surface.ForeColour =
        kind.numberWavelengths == 1 ? session.state.PlotBackColourMono : session.state.PlotBackColourSpectrum;
    surface.Line(box.left, box.top, box.right, box.bottom, LineKind::FilledBox);
    surface.ForeColour = colours::Black;
    PaintXAxis(paint);
    PaintYAxis(paint);
    PaintLogo(paint);
    surface.ForeColour = colours::Black;
    surface.Line(box.left, box.top, box.right, box.bottom, LineKind::Box);
    PaintAxisTitles(paint);
  }
  // A curve's first print goes into the box.
  surface.CurrentX = paint.Box().left + 100;
  surface.CurrentY = paint.Box().top + 200;
}

void PaintBoxSides(DrawingSurface& surface, const GraphKind& kind, const GraphBox& box) {
  surface.ForeColour = colours::Black;
  surface.Line(box.left, box.top, box.right, box.top);
  surface.Line(box.left, box.bottom, box.right, box.bottom);
  surface.Line(box.left, box.top, box.left, box.bottom);
  if (kind.graphType != 17) surface.Line(box.right, box.top, box.right, box.bottom);
}

}  // namespace lumivex
