#include "session/inputs/look/colour_test.h"

#include "pages/maps/map_colours.h"
#include "session/inputs/look/read_look.h"

namespace lumivex {

namespace {

constexpr int darkestOfKey = -7;
constexpr int stepsOfKey = 100;  ///< lines of the key to a unit

}  // namespace

Colour FalseColourOf(const Session& session, double value) {
  return ColourScale(value, FalseColoursFor(ReadLook(session).colours, ChosenGraph(session.state)).ramp);
}

void cmdColourTest_Click(Session& session) {
  auto& state = session.state;
  auto& surface = *session.surface;
  const double slope = (double{state.LeePanelWidth} - double{state.GraphLeft}) / 7;
  const double top = state.GraphTop - 700, bottom = state.GraphTop - 400;
  const FalseColours ramp = FalseColoursFor(ReadLook(session).colours, ChosenGraph(state)).ramp;
  const auto place = [&](double x) { return 2 * double{state.LeePanelWidth} + state.GraphLeft - slope * x; };
  for (int i = 0; i >= darkestOfKey * stepsOfKey; --i) {
    state.ColourValue = static_cast<double>(i) / stepsOfKey;
    surface.ForeColour = ColourScale(state.ColourValue, ramp);
    surface.Line(place(state.ColourValue), bottom, place(state.ColourValue), top);
  }
  surface.ForeColour = colours::Black;
  surface.Line(place(0), top, place(darkestOfKey), bottom, LineKind::Box);
}

}  // namespace lumivex
