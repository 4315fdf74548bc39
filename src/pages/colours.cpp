#include "pages/colours.h"

#include <array>

#include "record/number_text.h"

namespace lumivex {

namespace {

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

constexpr int darkestOfKey = -7;
constexpr int stepsOfKey = 100;  ///< lines of the key to a unit

/// Whether the graph's false colours show a ratio rather than a logarithm.
bool ShowsRatio(const RunState& run) {
  return (run.GraphType == 26 && run.GraphSubType < 4) || run.GraphType == 27 ||
         (run.GraphType == 28 && run.GraphSubType == 1);
}

}  // namespace

SaturationRule SaturationTicked(const Form1& form) {
  if (form.mnuPeakWhite.Checked) return SaturationRule::PeakWhite;
  return form.mnuFreeze.Checked ? SaturationRule::Freeze : SaturationRule::Photo;
}

GammaRule GammaTicked(const Form1& form) {
  if (form.mnuGammaNone.Checked) return GammaRule::None;
  return form.mnuGammaB.Checked ? GammaRule::GroupRGB : GammaRule::IndividualRGB;
}

Colour ToColour(ColourTriple channels) {
  return RGB(channels.r, channels.g, channels.b);
}

void LineColour(Session& session) {
  auto& state = session.state;
  auto& surface = *session.surface;
  for (const auto& row : lineColours) {
    if (!(session.form1.*row.entry).Checked) continue;
    surface.ForeColour = row.first;
    state.SecondLineColour = row.second;
    return;
  }
  if (session.form1.mnuMoreColours.Checked) {
    const Colour c = state.PickedLineColour;
    surface.ForeColour = c;
    state.SecondLineColour = RGB(0.5 * c.Red(), 0.5 * c.Green(), 0.5 * c.Blue());
    return;
  }
  const ColourTriple c = colRGB2(state.Lambda);
  surface.ForeColour = ToColour(c);
  state.SecondLineColour = RGB(0.5 * c.r, 0.5 * c.g, 0.5 * c.b);
}

void ColourScale(Session& session) {
  const double x = session.state.ColourValue;
  ColourTriple c;
  if (Val(session.form1.cboBright.Text) <= 0)
    c = {255 * x, 255 * x, 255 * x};
  else if (ShowsRatio(session.state))
    c = RatioColour(x);
  else
    c = LogarithmColour(x, session.form1.mnuGrey.Checked);
  session.surface->ForeColour = ToColour(c);
}

void ColourSet(Session& session, double r, double g, double b) {
  session.surface->ForeColour = RGB(r, g, b);
}

void cmdColourTest_Click(Session& session) {
  auto& state = session.state;
  auto& surface = *session.surface;
  const double slope = (double{state.LeePanelWidth} - double{state.GraphLeft}) / 7;
  const double top = state.GraphTop - 700, bottom = state.GraphTop - 400;
  const auto place = [&](double x) { return 2 * double{state.LeePanelWidth} + state.GraphLeft - slope * x; };
  for (int i = 0; i >= darkestOfKey * stepsOfKey; --i) {
    state.ColourValue = static_cast<double>(i) / stepsOfKey;
    ColourScale(session);
    surface.Line(place(state.ColourValue), bottom, place(state.ColourValue), top);
  }
  surface.ForeColour = colours::Black;
  surface.Line(place(0), top, place(darkestOfKey), bottom, LineKind::Box);
}

}  // namespace lumivex
