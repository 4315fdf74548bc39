#include "session/inputs/drops/dew_inputs.h"

#include <array>
#include <string>

#include "record/number_text.h"
#include "session/checks/number_input.h"
#include "session/inputs/dialog_use.h"
#include "session/inputs/methods.h"

namespace lumivex {

namespace {

void OKButton_Click(Session& session) {
  DewHolds(session);
}

void mnuHeiligenschein_Click(Session& session) {
  ChooseMethod(session, "Heiligenschein");
}

void WriteAngles(Session& session, const char* low, const char* high) {
  session.form1.txtXmin.Text = low;
  session.form1.txtXmax.Text = high;
  session.events.Raise("txtXmin_Change");
}

}  // namespace

bool AskHeiligenschein(Session& session) {
  // Nobody sits before a batch, which types into the fields by itself.
  if (session.state.BatchActive != 0) return DewHolds(session);
  return AskIn(session, session.forms.dlogHeiligenschein);
}

bool DewHolds(Session& session) {
  auto& d = session.forms.dlogHeiligenschein;
  constexpr double farthest = 1e6, steepest = 89;
  if (!getval(session, d.txtDistance, farthest, NumberSign::Positive)) return false;
  if (Val(d.txtDistance.Text) < 1) {
    RefuseInput(session, d.txtDistance, "The surface must not be nearer than the radius: L must be at least 1");
    return false;
  }
  if (!IsNumber(d.txtSlope.Text) || Val(d.txtSlope.Text) <= steepest)
    return getval(session, d.txtSlope, steepest, NumberSign::PositiveOrZero);
  RefuseInput(session, d.txtSlope, "The slope must not be greater than 89 degrees");
  return false;
}

bool GoesRound(const Session& session, const Graph& graph) {
  if (session.state.CalcMethod != Method::Heiligenschein || !graph.AgainstAngle()) return false;
  // What is summed over all directions counts each of them once.
  return graph.quantity == Quantity::Intensity || graph.quantity == Quantity::Irradiance ||
         graph.quantity == Quantity::DifferentialCrossSection;
}

void DewAnglesOfGraph(Session& session) {
  if (session.state.CalcMethod != Method::Heiligenschein || session.state.RestoringSettings != 0) return;
  const Graph& graph = ChosenGraph(session.state);
  if (graph.AgainstAngle() && !GoesRound(session, graph) && Val(session.form1.txtXmax.Text) > 180)
    WriteAngles(session, "0", "180");
}

void DewStartValues(Session& session, bool wasDew) {
  const auto& form = session.form1;
  const bool isDew = session.state.CalcMethod == Method::Heiligenschein;
  if (session.state.RestoringSettings != 0 || isDew == wasDew || !ChosenGraph(session.state).AgainstAngle()) return;
  const double low = Val(form.txtXmin.Text), high = Val(form.txtXmax.Text);
  if (GoesRound(session, ChosenGraph(session.state)) && low == 0 && high == 180)
    WriteAngles(session, "150", "210");
  else if (wasDew && high > 180)
    WriteAngles(session, "0", "180");
}

std::span<const LayerEvent> DewEvents() {
  static constexpr std::array events = {
      LayerEvent{"mnuHeiligenschein_Click", mnuHeiligenschein_Click},
      LayerEvent{"dlogHeiligenschein.OKButton_Click", OKButton_Click},
  };
  return events;
}

}  // namespace lumivex
