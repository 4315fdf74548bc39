#include "session/inputs/look/look_menus.h"

#include <algorithm>
#include <array>
#include <vector>

#include "record/number_text.h"
#include "session/inputs/dialog_use.h"
#include "session/inputs/look/colour_test.h"
#include "session/page.h"

namespace lumivex {

namespace {

using Entry = MenuEntry Form1Menus::*;
using M = Form1Menus;

void Replot(Session& session) {
  session.events.Raise("cmdReplot_Click");
}

void EnableReplot(Session& session) {
  session.form1.cmdReplot.Enabled = true;
}

void Toggle(Session& session, Entry entry) {
  auto& menu = session.form1.*entry;
  menu.Checked = !menu.Checked;
}

// Groups of which one entry is ticked.

constexpr std::array backgrounds = {&M::mnuWhite, &M::mnuGrey, &M::mnuBlack, &M::mnuDefault};
constexpr std::array lineColours = {&M::mnuTrueColour, &M::mnuBlackLine,  &M::mnuRedLine,  &M::mnuGreenLine,
                                    &M::mnuBlueLine,   &M::mnuGreyLine,   &M::mnuCyanLine, &M::mnuMagentaLine,
                                    &M::mnuYellowLine, &M::mnuMoreColours};
constexpr std::array lineStyles = {&M::mnuSolid, &M::mnuDash, &M::mnuDot};
constexpr std::array lineWidths = {&M::mnuDrawWidth0, &M::mnuDrawWidth1, &M::mnuDrawWidth2};
constexpr std::array logoPlaces = {&M::mnuLogoPositionTR, &M::mnuLogoPositionTL, &M::mnuLogoPositionBR,
                                   &M::mnuLogoPositionBL};
constexpr std::array saturations = {&M::mnuPhoto, &M::mnuFreeze, &M::mnuPeakWhite};
constexpr std::array gammas = {&M::mnuGammaNone, &M::mnuGammaA, &M::mnuGammaB};

template <std::size_t N>
void TickOnly(Session& session, const std::array<Entry, N>& group, Entry ticked) {
  for (const Entry entry : group) (session.form1.*entry).Checked = entry == ticked;
}

template <std::size_t N>
void Untick(Session& session, const std::array<Entry, N>& group) {
  TickOnly(session, group, nullptr);
}

// Backgrounds.

struct Background {
  Entry entry;
  Colour spectrum, mono, logo;
};

constexpr Colour palePaper{0xE0FFFF}, lightGrey{0xC8C8C8}, darkGrey{0x646464}, middleGrey{0x808080};
constexpr Background defaultBackground{&M::mnuDefault, colours::Black, palePaper, lightGrey};
constexpr Background whiteBackground{&M::mnuWhite, colours::White, colours::White, lightGrey};
constexpr Background greyBackground{&M::mnuGrey, middleGrey, middleGrey, darkGrey};
constexpr Background blackBackground{&M::mnuBlack, colours::Black, colours::Black, darkGrey};

void SetSidePictures(Session& session, Colour colour) {
  auto& form = session.form1;
  for (Picture* picture : {&form.Picture1, &form.Picture2, &form.Picture3}) {
    picture->BackColour = colour;
    if (picture->Surface == nullptr) continue;
    picture->Surface->BackColour = colour;
    picture->Surface->Cls();
  }
}

void TakeColours(MainFormState& s, const Background& background) {
  s.PlotBackColourSpectrum = background.spectrum;
  s.PlotBackColourMono = background.mono;
  s.LogoColour = background.logo;
}

void SetBackground(Session& session, const Background& background) {
  BackgroundColour(session);
  (session.form1.*background.entry).Checked = true;
  TakeColours(session.state, background);
  Replot(session);
}

// Lines.

template <Entry entry>
void PickLineColour(Session& session) {
  PlotLineColour(session);
  (session.form1.*entry).Checked = true;
}

template <Entry entry>
void PickLineStyle(Session& session) {
  PlotLineStyle(session);
  (session.form1.*entry).Checked = true;
}

template <Entry entry>
void PickLineWidth(Session& session) {
  PlotDrawWidth(session);
  (session.form1.*entry).Checked = true;
}

struct Paint {
  std::string_view name;
  Colour colour;
};

constexpr std::array palette = {Paint{"Grey", {0x808080}},   Paint{"Orange", {0x0080FF}}, Paint{"Brown", {0x2A5AA5}},
                                Paint{"Violet", {0xD30094}}, Paint{"Pink", {0xB469FF}},   Paint{"Olive", {0x008080}},
                                Paint{"Navy", {0x800000}},   Paint{"Teal", {0x808000}}};

void WriteChannels(DlogPlotColour& dialog, Colour colour) {
  dialog.txtRed.Text = std::to_string(colour.Red());
  dialog.txtGreen.Text = std::to_string(colour.Green());
  dialog.txtBlue.Text = std::to_string(colour.Blue());
}

void dlogPlotColour_cboPalette_Click(Session& session) {
  auto& dialog = session.forms.dlogPlotColour;
  for (const auto& paint : palette)
    if (paint.name == dialog.cboPalette.Text) WriteChannels(dialog, paint.colour);
}

// Grid lines: a minor grid without the major one would have gaps, so that each brings or takes the other along.

template <Entry major, Entry minor>
void ToggleMajor(Session& session) {
  Toggle(session, major);
  if (!(session.form1.*major).Checked) (session.form1.*minor).Checked = false;
  Replot(session);
}

template <Entry major, Entry minor>
void ToggleMinor(Session& session) {
  Toggle(session, minor);
  if ((session.form1.*minor).Checked) (session.form1.*major).Checked = true;
  Replot(session);
}

// The logo.

template <Entry entry>
void PlaceLogo(Session& session) {
  TickOnly(session, logoPlaces, entry);
  Replot(session);
}

void mnuHideLogo_Click(Session& session) {
  Toggle(session, &M::mnuHideLogo);
  Replot(session);
}

// Saturation and gamma.

template <Entry entry>
void PickSaturation(Session& session) {
  TickOnly(session, saturations, entry);
  if (session.state.Busy == 0) EnableReplot(session);
  RecolourPage(session);
}

/// Gamma changes colours, and the curves of one wavelength have none to change.
void mnuGamma_Click(Session& session) {
  if (session.form1.cboWave.Text != "1") EnableReplot(session);
  RecolourPage(session);
}

template <Entry entry>
void PickGamma(Session& session) {
  TickOnly(session, gammas, entry);
  mnuGamma_Click(session);
}

void mnuFalseColours_Click(Session& session) {
  Toggle(session, &M::mnuFalseColours);
  session.state.FalseColoursFollow = 0;
  session.form1.cboLee.Enabled = ChosenGraph(session.state).InColour();
  EnableReplot(session);
  RecolourPage(session);
}

/// Two second panels cannot share one place.
void ToggleSecondPanel(Session& session, Entry wanted, Entry other) {
  Toggle(session, wanted);
  if ((session.form1.*wanted).Checked) (session.form1.*other).Checked = false;
  Replot(session);
}

void Refuse(Session& session, std::string_view text) {
  session.platform.Message("Option not available", text);
}

/// Of a beam, whose sides differ, once round.
bool RangeIsWhole(const Form1& form) {
  const double low = Val(form.txtXmin.Text), high = Val(form.txtXmax.Text);
  return (low == 0 && high == 180) || (!form.mnuPlaneWave.Checked && high - low == 360);
}

}  // namespace

void mnuPolarPlot_Click(Session& session) {
  auto& form = session.form1;
  if (form.mnuPolarPlot.Checked) {
    form.mnuPolarPlot.Checked = false;
  } else if (form.mnuIntPol.Checked) {
    Refuse(session, "Polar plots are not available for graphs of Intensity and Polarisation");
    return;
  } else if (!form.mnuAmpPhase.Checked && !form.mnuPlaneWave.Checked && !RangeIsWhole(form)) {
    Refuse(session, "Polar plots are available only when scattering angles\ncover entire range from 0 to 180 degrees");
    return;
  } else if (session.state.NumberWavelengths != 1) {
    Refuse(session, "Polar plots are available only for single wavelength calculations");
    return;
  } else {
    form.mnuPolarPlot.Checked = true;
  }
  session.events.Raise("cmdReplot_Click");
}

int AngleDelta(const Session& session) {
  const int rows = 2 * session.state.NANG - 1;
  if (rows < 2) return 1;
  const double row = Val(session.form1.txtAngle.Text) * (rows - 1) / 180 + 1;
  return ToWhole(std::clamp(row, 1.0, static_cast<double>(rows)));
}

void BackgroundColour(Session& session) {
  Untick(session, backgrounds);
  EnableReplot(session);
}

void TakeTickedLook(Session& session) {
  for (const Background& background : {defaultBackground, whiteBackground, greyBackground, blackBackground})
    if ((session.form1.*background.entry).Checked) TakeColours(session.state, background);
  const bool white = session.form1.mnuWhite.Checked;
  SetSidePictures(session, white ? colours::White : colours::ButtonFace);
  SetTickedGeometry(session);
}

void mnuDefault_Click(Session& session) {
  SetSidePictures(session, colours::ButtonFace);
  SetBackground(session, defaultBackground);
}

void mnuWhite_Click(Session& session) {
  SetSidePictures(session, colours::White);
  session.surface->BackColour = colours::White;
  SetBackground(session, whiteBackground);
}

void mnuGrey_Click(Session& session) {
  SetBackground(session, greyBackground);
}

void mnuBlack_Click(Session& session) {
  SetBackground(session, blackBackground);
}

void PlotLineColour(Session& session) {
  Untick(session, lineColours);
  EnableReplot(session);
  if (ChosenGraph(session.state).IsMap()) session.form1.cboLee.Enabled = true;
}

void PlotLineStyle(Session& session) {
  Untick(session, lineStyles);
  EnableReplot(session);
}

void PlotDrawWidth(Session& session) {
  Untick(session, lineWidths);
  EnableReplot(session);
}

void mnuTrueColour_Click(Session& session) {
  PickLineColour<&M::mnuTrueColour>(session);
}

void mnuMoreColours_Click(Session& session) {
  auto& dialog = session.forms.dlogPlotColour;
  if (session.state.RestoringSettings == 0) {
    dialog.cboPalette.Items.clear();
    for (const auto& paint : palette) dialog.cboPalette.Items.emplace_back(paint.name);
    WriteChannels(dialog, session.state.PickedLineColour);
    if (!session.platform.ShowModal(dialog)) return;
  }
  session.state.PickedLineColour = RGB(Val(dialog.txtRed.Text), Val(dialog.txtGreen.Text), Val(dialog.txtBlue.Text));
  PickLineColour<&M::mnuMoreColours>(session);
}

void mnuAmpPhase_Click(Session& session) {
  ToggleSecondPanel(session, &M::mnuAmpPhase, &M::mnuIntPol);
}

void mnuIntPol_Click(Session& session) {
  // The degree of polarisation has no polar form.
  if (!session.form1.mnuIntPol.Checked) session.form1.mnuPolarPlot.Checked = false;
  ToggleSecondPanel(session, &M::mnuIntPol, &M::mnuAmpPhase);
}

void mnuAmplitude_Click(Session& session) {
  Toggle(session, &M::mnuAmplitude);
  Replot(session);
}

void mnuInterpolate_Click(Session& session) {
  Toggle(session, &M::mnuInterpolate);
  Replot(session);
}

void mnuInvWavelength_Click(Session& session) {
  Toggle(session, &M::mnuInvWavelength);
  // The cells of a map are sums of intensities that were freed of it before.
  if (ChosenGraph(session.state).InColour())
    session.events.Raise("Inputs_Changed");
  else
    Replot(session);
}

void mnuSun_Click(Session& session) {
  Toggle(session, &M::mnuSun);
  Replot(session);
}

void dlogAverage_OKButton_Click(Session& session) {
  auto& width = session.forms.dlogAverage.txtAverage;
  width.BackColour = colours::White;
  if (!IsNumber(width.Text) || !(Val(width.Text) > 0)) RefuseInput(session, width, "Value must be positive");
}

void mnuAverage_Click(Session& session) {
  auto& menu = session.form1.mnuAverage;
  auto& dialog = session.forms.dlogAverage;
  if (!menu.Checked && !AskIn(session, dialog)) return;
  menu.Checked = !menu.Checked;
  session.form1.lblAverage.Caption = "Average  " + (menu.Checked ? std::string(Trim(dialog.txtAverage.Text)) : "");
  Replot(session);
}

void mnuPhoto_Click(Session& session) {
  PickSaturation<&M::mnuPhoto>(session);
}

void mnuSaturated_Click(Session& session) {
  auto& form = session.form1;
  Toggle(session, &M::mnuSaturated);
  if (form.mnuSaturated.Checked && form.cboBright.Text != "1") form.cboBright.Text = "1";
  form.cboBright.BackColour = IsNumber(form.cboBright.Text) ? colours::White : colours::BadInput;
  EnableReplot(session);
  RecolourPage(session);
}

void mnuNormalised_Click(Session& session) {
  Toggle(session, &M::mnuNormalised);
  RecolourPage(session);
}

void mnuSetNormal_Click(Session& session) {
  Toggle(session, &M::mnuSetNormal);
  if (session.form1.mnuSetNormal.Checked) TakeBarReference(session);
  RecolourPage(session);
}

void cboBright_Change(Session& session) {
  auto& list = session.form1.cboBright;
  if (session.state.LoadingFlag != 0) return;
  const bool good = IsNumber(list.Text);
  list.BackColour = good ? colours::White : colours::BadInput;
  if (good) RecolourPage(session);
}

void mnuMapNormalise_Click(Session& session) {
  Toggle(session, &M::mnuMapNormalise);
  if (session.form1.mnuMapNormalise.Checked)
    TakeMapReference(session);
  else
    EndMapSeries(session.state);
  EnableReplot(session);
  RecolourPage(session);
}

std::span<const GraphEvent> LookEvents() {
  static constexpr std::array events = {
      GraphEvent{"mnuVLarge_Click", mnuVLarge_Click},
      GraphEvent{"mnuLarge_Click", mnuLarge_Click},
      GraphEvent{"mnuMedium_Click", mnuMedium_Click},
      GraphEvent{"mnuSmall_Click", mnuSmall_Click},
      GraphEvent{"mnuSizeSpecial_Click", mnuSizeSpecial_Click},
      GraphEvent{"mnuSizeVariable_Click", mnuSizeVariable_Click},
      GraphEvent{"mnuDefault_Click", mnuDefault_Click},
      GraphEvent{"mnuWhite_Click", mnuWhite_Click},
      GraphEvent{"mnuGrey_Click", mnuGrey_Click},
      GraphEvent{"mnuBlack_Click", mnuBlack_Click},
      GraphEvent{"mnuTrueColour_Click", mnuTrueColour_Click},
      GraphEvent{"mnuBlackLine_Click", PickLineColour<&M::mnuBlackLine>},
      GraphEvent{"mnuRedLine_Click", PickLineColour<&M::mnuRedLine>},
      GraphEvent{"mnuGreenLine_Click", PickLineColour<&M::mnuGreenLine>},
      GraphEvent{"mnuBlueLine_Click", PickLineColour<&M::mnuBlueLine>},
      GraphEvent{"mnuGreyLine_Click", PickLineColour<&M::mnuGreyLine>},
      GraphEvent{"mnuCyanLine_Click", PickLineColour<&M::mnuCyanLine>},
      GraphEvent{"mnuMagentaLine_Click", PickLineColour<&M::mnuMagentaLine>},
      GraphEvent{"mnuYellowLine_Click", PickLineColour<&M::mnuYellowLine>},
      GraphEvent{"mnuMoreColours_Click", mnuMoreColours_Click},
      GraphEvent{"dlogPlotColour.cboPalette_Click", dlogPlotColour_cboPalette_Click},
      GraphEvent{"mnuSolid_Click", PickLineStyle<&M::mnuSolid>},
      GraphEvent{"mnuDash_Click", PickLineStyle<&M::mnuDash>},
      GraphEvent{"mnuDot_Click", PickLineStyle<&M::mnuDot>},
      GraphEvent{"mnuDrawWidth0_Click", PickLineWidth<&M::mnuDrawWidth0>},
      GraphEvent{"mnuDrawWidth1_Click", PickLineWidth<&M::mnuDrawWidth1>},
      GraphEvent{"mnuDrawWidth2_Click", PickLineWidth<&M::mnuDrawWidth2>},
      GraphEvent{"mnuMajorGridX_Click", ToggleMajor<&M::mnuMajorGridX, &M::mnuMinorGridX>},
      GraphEvent{"mnuMinorGridX_Click", ToggleMinor<&M::mnuMajorGridX, &M::mnuMinorGridX>},
      GraphEvent{"mnuMajorGridY_Click", ToggleMajor<&M::mnuMajorGridY, &M::mnuMinorGridY>},
      GraphEvent{"mnuMinorGridY_Click", ToggleMinor<&M::mnuMajorGridY, &M::mnuMinorGridY>},
      GraphEvent{"mnuLogoPositionTR_Click", PlaceLogo<&M::mnuLogoPositionTR>},
      GraphEvent{"mnuLogoPositionTL_Click", PlaceLogo<&M::mnuLogoPositionTL>},
      GraphEvent{"mnuLogoPositionBR_Click", PlaceLogo<&M::mnuLogoPositionBR>},
      GraphEvent{"mnuLogoPositionBL_Click", PlaceLogo<&M::mnuLogoPositionBL>},
      GraphEvent{"mnuHideLogo_Click", mnuHideLogo_Click},
      GraphEvent{"mnuAmplitude_Click", mnuAmplitude_Click},
      GraphEvent{"mnuInvWavelength_Click", mnuInvWavelength_Click},
      GraphEvent{"mnuAmpPhase_Click", mnuAmpPhase_Click},
      GraphEvent{"mnuIntPol_Click", mnuIntPol_Click},
      GraphEvent{"mnuPolarPlot_Click", mnuPolarPlot_Click},
      GraphEvent{"mnuAverage_Click", mnuAverage_Click},
      GraphEvent{"dlogAverage.OKButton_Click", dlogAverage_OKButton_Click},
      GraphEvent{"mnuInterpolate_Click", mnuInterpolate_Click},
      GraphEvent{"mnuSun_Click", mnuSun_Click},
      GraphEvent{"mnuPhoto_Click", mnuPhoto_Click},
      GraphEvent{"mnuFreeze_Click", PickSaturation<&M::mnuFreeze>},
      GraphEvent{"mnuPeakWhite_Click", PickSaturation<&M::mnuPeakWhite>},
      GraphEvent{"mnuGamma_Click", mnuGamma_Click},
      GraphEvent{"mnuGammaNone_Click", PickGamma<&M::mnuGammaNone>},
      GraphEvent{"mnuGammaA_Click", PickGamma<&M::mnuGammaA>},
      GraphEvent{"mnuGammaB_Click", PickGamma<&M::mnuGammaB>},
      GraphEvent{"mnuSaturated_Click", mnuSaturated_Click},
      GraphEvent{"mnuNormalised_Click", mnuNormalised_Click},
      GraphEvent{"mnuSetNormal_Click", mnuSetNormal_Click},
      GraphEvent{"cboBright_Change", cboBright_Change},
      GraphEvent{"mnuMapNormalise_Click", mnuMapNormalise_Click},
      GraphEvent{"mnuFalseColours_Click", mnuFalseColours_Click},
      GraphEvent{"cmdColourTest_Click", cmdColourTest_Click},
  };
  return events;
}

}  // namespace lumivex
