#include "session/inputs/look/read_look.h"

#include <algorithm>
#include <array>

#include "pages/frame/colours.h"
#include "record/number_text.h"
#include "session/inputs/look/look_menus.h"
#include "session/inputs/methods/rays_check.h"

namespace lumivex {

namespace {

constexpr int narrowScreenPx = 800;  // on which readings have no room
constexpr int narrowForLogosPx = 1025;

/// A line colour of the menu with the shade of its second curve.
struct LineColourRow {
  const MenuEntry Form1Menus::*entry;
  Colour first, second;
};

constexpr std::array lineColours = {
    LineColourRow{&Form1Menus::mnuBlackLine, {0x000000}, {0x646464}},
    LineColourRow{&Form1Menus::mnuRedLine, {0x0000FF}, {0x000080}},
    LineColourRow{&Form1Menus::mnuGreenLine, {0x00FF00}, {0x008000}},
    LineColourRow{&Form1Menus::mnuBlueLine, {0xFF0000}, {0x800000}},
    LineColourRow{&Form1Menus::mnuGreyLine, {0x808080}, {0x282828}},
    LineColourRow{&Form1Menus::mnuCyanLine, {0xFFFF00}, {0x808000}},
    LineColourRow{&Form1Menus::mnuMagentaLine, {0xFF00FF}, {0x800080}},
    LineColourRow{&Form1Menus::mnuYellowLine, {0x00FFFF}, {0x008080}},
};

BackgroundLook ReadBackground(const Session& session) {
  const Form1& form = session.form1;
  BackgroundLook background;
  background.white = form.mnuWhite.Checked;
  background.pale = form.mnuDefault.Checked || background.white;
  background.paper = background.white ? colours::White : colours::ButtonFace;
  background.ground = session.state.PlotBackColourMono;
  background.spectrumGround = session.state.PlotBackColourSpectrum;
  if (background.white)
    background.grid = RGB(192, 192, 192);
  else if (form.mnuBlack.Checked)
    background.grid = RGB(64, 128, 128);
  else if (form.mnuGrey.Checked)
    background.grid = RGB(64, 64, 64);
  return background;
}

PenLook ReadPen(const Session& session) {
  const Form1& form = session.form1;
  PenLook pen;
  const auto row = std::ranges::find_if(lineColours, [&](const LineColourRow& r) { return (form.*r.entry).Checked; });
  if (row != lineColours.end()) {
    pen.first = row->first;
    pen.second = row->second;
    pen.trueColour = false;
  } else if (form.mnuMoreColours.Checked) {
    pen.first = session.state.PickedLineColour;
    pen.second = HalfOf(pen.first);
    pen.trueColour = false;
  }
  pen.style = form.mnuDash.Checked ? 1 : form.mnuDot.Checked ? 2 : 0;
  pen.width = form.mnuDrawWidth2.Checked ? 2 : 1;
  pen.markers = form.mnuDrawWidth0.Checked;
  return pen;
}

std::optional<double> LimitOf(const SelectionList& list) {
  if (SameName(Trim(list.Text), "Automatic")) return std::nullopt;
  return Val(list.Text);
}

ScaleLook ReadScale(const Form1& form) {
  ScaleLook scale;
  scale.logX = form.optXLog.Checked && form.Frame8.Visible;
  scale.logY = form.OptLog.Checked;
  scale.polar = form.mnuPolarPlot.Checked;
  scale.x = {Val(form.txtXmin.Text), Val(form.txtXmax.Text)};
  scale.ymin = LimitOf(form.cboYmin);
  scale.ymax = LimitOf(form.cboYmax);
  return scale;
}

/// The size ticked in the menu; "Large" where none is.
GraphSize SizeTicked(const Form1& form) {
  if (form.mnuSmall.Checked) return GraphSize::Small;
  if (form.mnuMedium.Checked) return GraphSize::Medium;
  return form.mnuVLarge.Checked ? GraphSize::VeryLarge : GraphSize::Large;
}

LogoPlace LogoPlaceTicked(const Form1& form) {
  if (form.mnuLogoPositionTR.Checked) return LogoPlace::TopRight;
  if (form.mnuLogoPositionTL.Checked) return LogoPlace::TopLeft;
  return form.mnuLogoPositionBR.Checked ? LogoPlace::BottomRight : LogoPlace::BottomLeft;
}

SaturationRule SaturationTicked(const Form1& form) {
  if (form.mnuFreeze.Checked) return SaturationRule::Freeze;
  return form.mnuPeakWhite.Checked ? SaturationRule::PeakWhite : SaturationRule::Photo;
}

GammaRule GammaTicked(const Form1& form) {
  if (form.mnuGammaNone.Checked) return GammaRule::None;
  return form.mnuGammaB.Checked ? GammaRule::GroupRGB : GammaRule::IndividualRGB;
}

ColourLook ReadColours(const Session& session) {
  const Form1& form = session.form1;
  const MainFormState& s = session.state;
  ColourLook colours;
  // A text that is no number is marked, and counts for nothing until it is mended.
  const double brightness = IsNumber(form.cboBright.Text) ? Val(form.cboBright.Text) : 1;
  colours.rules = {brightness, form.mnuSaturated.Checked, SaturationTicked(form), GammaTicked(form)};
  colours.absolute = form.cboLee.Text == "Absolute";
  colours.falseColours = form.mnuFalseColours.Checked;
  colours.greyScale = brightness <= 0;
  colours.paleEnd = form.mnuGrey.Checked;
  colours.normaliseUnpolarised = form.mnuNormalised.Checked;
  if (form.mnuSetNormal.Checked && s.BarReference > 0)
    colours.barScale = BarScale{s.BarReference, s.BarReferencePerWaveNumber == 1, s.BarReferenceWeighted == 1};
  if (form.mnuMapNormalise.Checked) colours.series = MapSeries{s.MapReference, s.MapReferenceThird, s.MapReferenceKind};
  return colours;
}

DotLabels LabelsAsked(const DlogDebyeSeq& dialog) {
  if (!dialog.chkLabels.Checked) return {};
  const int number = ToWhole(std::clamp(Val(dialog.txtTerms.Text), 0.0, 1e6));
  return {dialog.optTerms.Checked ? DotLabels::Rule::UpToTerm : DotLabels::Rule::AboveSize, number};
}

FourierLook ReadFourier(const DlogFFT& dialog) {
  FourierLook fourier;
  fourier.length = ToWhole(Val(dialog.cboFFT.Text));
  fourier.first = Val(dialog.txtThetaMin.Text);
  fourier.frequencies = {Val(dialog.txtFmin.Text), Val(dialog.txtFmax.Text)};
  fourier.complex = dialog.optFFTcomplex.Checked;
  fourier.root = dialog.chkSqrt.Checked && !fourier.complex;
  return fourier;
}

TimePlotLook ReadTimePlot(const Session& session) {
  const auto& dialog = session.forms.dlogTimePlot;
  const auto whole = [](const TextInput& field, double most) {
    return ToWhole(std::clamp(Val(field.Text), 0.0, most));
  };
  TimePlotLook plot;
  plot.rays = session.state.TimePlotRays != 0 || session.forms.dlogImpulse.chkTimeDelay.Checked;
  plot.waves = session.state.TimePlotWaves != 0;
  plot.highestRay = whole(dialog.txtRaysGO, HighestRay);
  plot.step = std::clamp(Val(dialog.cboStep.Text), 0.001, 1.0);
  plot.values = dialog.chkValues.Checked;
  plot.sides = dialog.chkNS.Checked;
  plot.surfaceIndex = Val(dialog.txtRI_Surface.Text);
  plot.highestWave = whole(dialog.txtB, HighestRay);
  plot.halfTurns = whole(dialog.txtQ, HighestRay);
  return plot;
}

}  // namespace

Polarisations PolarisationsChosen(std::string_view text) {
  if (text == "All 3") return Polarisations::All;
  if (text == "Both") return Polarisations::Both;
  if (text == "Unpolarised") return Polarisations::Unpolarised;
  if (text.starts_with("Parallel")) return Polarisations::Parallel;
  return text.starts_with("Perpendicular") ? Polarisations::Perpendicular : Polarisations::None;
}

Look ReadLook(const Session& session) {
  const Form1& form = session.form1;
  const Forms& forms = session.forms;
  Look look;
  look.background = ReadBackground(session);
  look.pen = ReadPen(session);
  look.gridLines = {form.mnuMajorGridX.Checked, form.mnuMinorGridX.Checked, form.mnuMajorGridY.Checked,
                    form.mnuMinorGridY.Checked};
  look.size = SizeTicked(form);
  look.special = form.mnuSizeSpecial.Checked;
  if (form.mnuAverage.Checked) look.averageWidth = Val(forms.dlogAverage.txtAverage.Text);
  look.interpolate = form.mnuInterpolate.Checked;
  look.polarisations = PolarisationsChosen(form.cboPol.Text);
  look.scale = ReadScale(form);
  if (ChosenGraph(session.state).family == Family::PulseAnswer) {
    look.scale.x = {Val(form.txtF9_min.Text), Val(form.txtF9_max.Text)};
    look.scale.logX = false;
  }
  if (form.mnuAmpPhase.Checked) look.second = SecondPanel::Phases;
  if (form.mnuIntPol.Checked) look.second = SecondPanel::Polarisation;
  look.amplitude = form.mnuAmplitude.Checked;
  look.invWavelength = form.mnuInvWavelength.Checked;
  if (form.mnuFFT.Checked) look.fourier = ReadFourier(forms.dlogFFT);
  look.timePlot = ReadTimePlot(session);
  look.sun = {form.optSun.Checked, form.mnuSun.Checked};
  look.colours = ReadColours(session);
  look.components = form.chkComponents.Checked;
  look.logo = form.mnuHideLogo.Checked ? "" : form.lblLogo.Caption;
  look.logoPlace = LogoPlaceTicked(form);
  look.narrowScreen = session.state.ScreenWidthPx < narrowForLogosPx;
  look.readingsVisible = form.mnuDataVisible.Checked && session.state.ScreenWidthPx > narrowScreenPx;
  look.dotLabels = LabelsAsked(forms.dlogDebyeSeq);
  look.histogramLog = forms.dlogDistDisplay.optLogX.Checked;
  return look;
}

PageGeometry GeometryOf(const Session& session) {
  const auto& s = session.state;
  PageGeometry geometry;
  geometry.box = {s.GraphLeft, s.GraphRight, s.GraphTop, s.GraphBottom};
  geometry.polarX = s.PolarCentreX;
  geometry.polarY = s.PolarCentreY;
  geometry.polarRadius = s.PolarRadius;
  geometry.panelWidth = TickedPanelWidth(session);
  // Titles of times stand in two lines over the panels of this size.
  constexpr double topOfTimes = 3900;
  if (session.form1.mnuLarge.Checked && ChosenGraph(s).family == Family::Impulse) geometry.box.top = topOfTimes;
  geometry.surfaceWidth = session.surface->ScaleWidth();
  geometry.surfaceHeight = session.surface->ScaleHeight();
  return geometry;
}

}  // namespace lumivex
