#include "session/inputs/look/colour_test.h"

#include "pages/frame/colours.h"
#include "record/number_text.h"

namespace lumivex {

namespace {

constexpr int darkestOfKey = -7;
constexpr int stepsOfKey = 100;  ///< lines of the key to a unit

/// The maps of Q show a ratio rather than a logarithm.
bool ShowsRatio(const Graph& graph) {
  return graph.family == Family::EfficiencyMap && graph.quantity == Quantity::Efficiencies;
}

}  // namespace

Colour FalseColourOf(const Session& session, double value) {
  const Form1& form = session.form1;
  if (Val(form.cboBright.Text) <= 0) return ColourScale(value, FalseColours::Greys);
  if (ShowsRatio(ChosenGraph(session.state))) return ColourScale(value, FalseColours::Ratio);
  return ColourScale(value, form.mnuGrey.Checked ? FalseColours::RainbowPale : FalseColours::Rainbow);
}

void cmdColourTest_Click(Session& session) {
  auto& state = session.state;
  auto& surface = *session.surface;
  const double slope = (double{state.LeePanelWidth} - double{state.GraphLeft}) / 7;
  const double top = state.GraphTop - 700, bottom = state.GraphTop - 400;
  const auto place = [&](double x) { return 2 * double{state.LeePanelWidth} + state.GraphLeft - slope * x; };
  for (int i = 0; i >= darkestOfKey * stepsOfKey; --i) {
    state.ColourValue = static_cast<double>(i) / stepsOfKey;
    surface.ForeColour = FalseColourOf(session, state.ColourValue);
    surface.Line(place(state.ColourValue), bottom, place(state.ColourValue), top);
  }
  surface.ForeColour = colours::Black;
  surface.Line(place(0), top, place(darkestOfKey), bottom, LineKind::Box);
}

}  // namespace lumivex
