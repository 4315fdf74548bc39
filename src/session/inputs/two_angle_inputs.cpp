#include "session/inputs/two_angle_inputs.h"

#include <algorithm>
#include <initializer_list>
#include <string_view>

#include "record/number_text.h"
#include "session/checks/number_input.h"
#include "session/inputs/dialog_use.h"
#include "session/inputs/graph_types.h"

namespace lumivex {

namespace {

constexpr double largestIndex = 1000, largestRadius = 1e9;

bool RefuseAll(Session& session, std::initializer_list<Control*> marked, std::string_view text) {
  for (Control* control : marked) control->BackColour = colours::BadInput;
  session.platform.Message("Input error", text);
  return false;
}

bool AngleHolds(Session& session, TextInput& low, TextInput& high) {
  for (TextInput* field : {&low, &high})
    if (!getval(session, *field, largestRadius, NumberSign::Any)) return false;
  const double from = Val(low.Text), to = Val(high.Text);
  if (from < 0) return RefuseAll(session, {&low}, "Minimum angle < 0 degrees");
  if (to > 180) return RefuseAll(session, {&high}, "Maximum angle > 180 degrees");
  if (from > to) return RefuseAll(session, {&low, &high}, "Minimum angle > Maximum angle");
  if (from == to) return RefuseAll(session, {&low, &high}, "Minimum angle = Maximum angle");
  return true;
}

struct StepFields {
  TextInput &low, &high, &step;

  double Steps() const { return (Val(high.Text) - Val(low.Text)) / Val(step.Text); }
};

/// Minimum to maximum by steps; both may be the same, which is one value.
bool StepsHold(Session& session, const StepFields& fields, double upperLimit, double mostSteps) {
  for (TextInput* field : {&fields.low, &fields.high})
    if (!getval(session, *field, upperLimit, NumberSign::Positive)) return false;
  if (!getval(session, fields.step, upperLimit, NumberSign::Any)) return false;
  if (Val(fields.low.Text) > Val(fields.high.Text))
    return RefuseAll(session, {&fields.low, &fields.high}, "Minimum value must be less than maximum value");
  if (Val(fields.step.Text) <= 0) return RefuseAll(session, {&fields.step}, "Step size must be greater than zero");
  if (!(fields.Steps() < mostSteps)) return RefuseAll(session, {&fields.step}, "Select a larger step size");
  return true;
}

/// The values from minimum to maximum; a last step that is short by no more than rounding counts.
std::vector<double> ValuesOf(const StepFields& fields) {
  const double low = Val(fields.low.Text), step = Val(fields.step.Text);
  const int last = static_cast<int>(Int(fields.Steps() + 1e-4));
  std::vector<double> values;
  for (int i = 0; i <= last; ++i) values.push_back(RoundDecimals(low + i * step, 12));
  return values;
}

StepFields IndexFields(DlogTwoAngle& dialog) {
  return {dialog.txtRImin, dialog.txtRImax, dialog.txtRIstep};
}

StepFields RadiusFields(DlogTwoAngle& dialog) {
  return {dialog.txtRmin, dialog.txtRmax, dialog.txtRstep};
}

}  // namespace

std::optional<TwoAngleInputs> ReadTwoAngleInputs(Session& session) {
  auto& dialog = session.forms.dlogTwoAngle;
  for (Control* control : dialog.Controls()) control->BackColour = colours::White;
  const StepFields index = IndexFields(dialog), radius = RadiusFields(dialog);
  if (!AngleHolds(session, dialog.txtAngle1min, dialog.txtAngle1max)) return std::nullopt;
  if (!AngleHolds(session, dialog.txtAngle2min, dialog.txtAngle2max)) return std::nullopt;
  if (!StepsHold(session, index, largestIndex, mostTwoAngleCurves)) return std::nullopt;
  if (!StepsHold(session, radius, largestRadius, mostTwoAngleSpheres)) return std::nullopt;
  if ((index.Steps() + 1) * (radius.Steps() + 1) > mostTwoAngleSpheres) {
    RefuseAll(session, {&index.step, &radius.step}, "Increase the step size or reduce the maximum/minimum range");
    return std::nullopt;
  }
  return TwoAngleInputs{Val(dialog.txtAngle1min.Text),
                        Val(dialog.txtAngle1max.Text),
                        Val(dialog.txtAngle2min.Text),
                        Val(dialog.txtAngle2max.Text),
                        ValuesOf(index),
                        ValuesOf(radius)};
}

void AskTwoAngle(Session& session) {
  auto& dialog = session.forms.dlogTwoAngle;
  if (AskIn(session, dialog)) RaiseInputsChanged(session);
}

void mnuTwoAngle_Click(Session& session) {
  constexpr std::string_view graph = "Contour 2-angle";
  if (IsTwoAngleContour(session.state) && session.form1.cboGraph.Text == graph) return AskTwoAngle(session);
  ChooseGraph(session, graph);
}

void dlogTwoAngle_OKButton_Click(Session& session) {
  ReadTwoAngleInputs(session);
}

}  // namespace lumivex
