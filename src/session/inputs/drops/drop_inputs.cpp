#include "session/inputs/drops/drop_inputs.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <string_view>
#include <vector>

#include "materials/index/material.h"
#include "pages/items/drop_drawing.h"
#include "record/number_text.h"
#include "runs/further_methods.h"
#include "session/checks/number_input.h"
#include "session/inputs/dialog_use.h"
#include "session/inputs/drops/read_drops.h"
#include "session/inputs/graph_types.h"
#include "session/inputs/map_inputs.h"
#include "session/inputs/methods.h"
#include "session/inputs/methods/sphere_size.h"

namespace lumivex {

namespace {

using Dialog = DlogNonSpherical;

constexpr double leastRatio = 0.3, largestRatio = 3;
constexpr double leastRays = 1e3, mostRays = 1e9;

void EnableFields(Dialog& d) {
  d.optRatioSize.Enabled = d.optRatioTyped.Enabled = d.optSpheroid.Checked;
  d.txtAxisRatio.Enabled = d.optSpheroid.Checked && d.optRatioTyped.Checked;
  d.txtClock.Enabled = d.txtClockWidth.Enabled = !d.chkAllRound.Checked;
}

bool Within(Session& session, Control& field, double low, double high, std::string_view text) {
  const std::string* typed = TextOf(field);
  if (typed != nullptr && IsNumber(*typed) && Val(*typed) >= low && Val(*typed) <= high)
    return getval(session, field, high, NumberSign::Any);
  RefuseInput(session, field, std::string(text));
  return false;
}

/// The relative index that the drop has in the light of the panel; water's where it has none.
double IndexInUse(const Session& session) {
  constexpr double water = 1.333;
  const double lambda = Val(session.form1.txtLambda.Text);
  const IndicesFound found = IndicesAt(SphereOfGraph(session), MediumOfGraph(session), lambda);
  const double m = found.failure == IndexFailure::None ? found.indices.RelativeRe() : water;
  return std::isfinite(m) && m > 1 ? m : water;
}

/// Whether the fields that the drawing needs hold numbers of a drop.
bool MakesDrop(const Dialog& d) {
  const auto number = [](const TextInput& field, double low, double high) {
    return IsNumber(field.Text) && Val(field.Text) >= low && Val(field.Text) <= high;
  };
  const bool ratio = !d.txtAxisRatio.Enabled || number(d.txtAxisRatio, leastRatio, largestRatio);
  return ratio && number(d.txtElevation, -90, 90);
}

/// The drop that the fields make, in words and as a drawing; nothing is drawn of one that there is not.
void ShowDrop(Session& session) {
  auto& d = session.forms.dlogNonSpherical;
  EnableFields(d);
  const auto window = std::ranges::find(session.windows, static_cast<Form*>(&d), &Window::form);
  if (window == session.windows.end()) return;
  window->page = {};
  d.lblDrop.Caption.clear();
  if (!MakesDrop(d)) return;
  constexpr int digits = 4;
  constexpr double mmPerRadius = 2e-3;
  const DropOptions options = ReadDrop(session);
  const double radius = RadiusInUse(session);
  d.lblDrop.Caption = "Drop of " + Significant(mmPerRadius * radius, digits) + " mm";
  const auto shape = ShapeOfDrop(options, radius);
  if (!shape) {
    d.lblDrop.Caption += ": drops are not larger than 6 mm";
    return;
  }
  d.lblDrop.Caption += ", axis ratio " + Significant(shape->AxisRatio(), digits);
  if (shape->IsConcave()) {
    d.lblDrop.Caption += ": it is hollow below, and its rays are not traced";
    return;
  }
  DropToDraw drop{*shape, IndexInUse(session), options.elevation, {}, 0, 180};
  const auto rays = RaysOfDrop(session);
  for (std::size_t p = 2; p < rays.size(); ++p)
    if (rays[p] != 0) drop.orders.push_back(static_cast<int>(p));
  if (!d.chkAllRound.Checked) {
    const double clock = std::fabs(std::remainder(Val(d.txtClock.Text), 360)), half = Val(d.txtClockWidth.Text);
    drop.clockFrom = std::clamp(clock - half, 0.0, 180.0);
    drop.clockTo = std::clamp(clock + half, 0.0, 180.0);
  }
  window->page.drop = DropDrawing(drop);
}

void OKButton_Click(Session& session) {
  DropHolds(session);
}

void mnuNonSpherical_Click(Session& session) {
  ChooseMethod(session, "Burgeroid");
}

void mnuBowClock_Click(Session& session) {
  if (!AskNonSpherical(session)) return;
  // The dialog has been answered: the method does not ask again, nor run before its graph is chosen.
  const int restoring = session.state.RestoringSettings;
  session.state.RestoringSettings = 1;
  ChooseMethod(session, "Burgeroid");
  session.state.RestoringSettings = restoring;
  ChooseGraph(session, "Rainbow v. clock angle");
  RaiseInputsChanged(session);
}

}  // namespace

bool AskNonSpherical(Session& session) {
  // Nobody sits before a batch, which types into the fields by itself.
  if (session.state.BatchActive != 0) return DropHolds(session);
  if (session.state.RestoringSettings == 0) ShowDrop(session);
  return AskIn(session, session.forms.dlogNonSpherical);
}

bool DropHolds(Session& session) {
  auto& d = session.forms.dlogNonSpherical;
  for (Control* control : d.Controls()) control->BackColour = colours::White;
  const bool typed = d.optSpheroid.Checked && d.optRatioTyped.Checked;
  if (typed && !Within(session, d.txtAxisRatio, leastRatio, largestRatio, "The axis ratio must lie between 0.3 and 3"))
    return false;
  if (!Within(session, d.txtElevation, -90, 90, "The elevation of the sun must lie between -90 and 90 degrees"))
    return false;
  if (!d.chkAllRound.Checked) {
    constexpr double leastWidth = 0.01;
    if (!Within(session, d.txtClock, -180, 180, "The clock angle must lie between -180 and 180 degrees")) return false;
    if (!Within(session, d.txtClockWidth, leastWidth, 180, "The half-width must lie between 0.01 and 180 degrees"))
      return false;
  }
  if (RaysOfDrop(session).empty()) {
    RefuseInput(session, d.chkP2, "No rays selected");
    return false;
  }
  return Within(session, d.cboRayCount, leastRays, mostRays, "The number of rays must lie between 1E3 and 1E9");
}

void RunDrop(Session& session) {
  const auto& s = session.state;
  if (s.RestoringSettings != 0 || s.Busy != 0 || s.BatchActive != 0) return;
  const Graph& graph = ChosenGraph(s);
  if (graph.family == Family::Angle || graph.quantity == Quantity::BowAngle) session.events.Raise("cmdNewPlot_Click");
}

std::span<const LayerEvent> DropEvents() {
  static const std::vector<LayerEvent> events = [] {
    std::vector<LayerEvent> all = {
        {"mnuNonSpherical_Click", mnuNonSpherical_Click},
        {"mnuBowClock_Click", mnuBowClock_Click},
        {"dlogNonSpherical.OKButton_Click", OKButton_Click},
    };
    for (const std::string_view change :
         {"dlogNonSpherical.optSpheroid_Click", "dlogNonSpherical.optBurgeroid_Click",
          "dlogNonSpherical.optRatioSize_Click", "dlogNonSpherical.optRatioTyped_Click",
          "dlogNonSpherical.txtAxisRatio_Change", "dlogNonSpherical.txtElevation_Change",
          "dlogNonSpherical.txtClock_Change", "dlogNonSpherical.txtClockWidth_Change",
          "dlogNonSpherical.chkAllRound_Click", "dlogNonSpherical.chkP2_Click", "dlogNonSpherical.chkP3_Click",
          "dlogNonSpherical.chkP4_Click"})
      all.push_back({change, ShowDrop});
    return all;
  }();
  return events;
}

}  // namespace lumivex
