/// Rules on many spheres in a volume.

#include <string>

#include "record/number_text.h"
#include "session/checks/check.h"
#include "session/checks/number_input.h"
#include "session/inputs/volume_inputs.h"

namespace lumivex {

namespace {

constexpr double mostSteps = 18000, largestShareOfRange = 0.45;
constexpr std::string_view tooMany = "Increase the step size or reduce the maximum/minimum range";
constexpr std::string_view notWhole = "    The red highlighted data entry is incorrect.    ";

bool IsVolume(const Check& check) {
  return ChosenGraph(check.state).family == Family::Volume;
}

/// Positions and times begin at 0, but in equal ratios.
bool BeginsAtZero(const Check& check) {
  const AxisVariable axis = ChosenGraph(check.state).axis;
  return (axis == AxisVariable::Place || axis == AxisVariable::Time) && !check.form.mnuXStepLog.Checked;
}

Verdict Steps(Check& check, double range) {
  auto& list = check.form.cboStep;
  const double step = Val(list.Text);
  if (check.form.mnuXStepLog.Checked) {
    if (step < 1) return Refuse(check, {&list}, "Number of steps must be 1 or more");
    return step > mostSteps ? Refuse(check, {&list}, "Select a larger step size") : Verdict::GoOn;
  }
  if (step <= 0) return Refuse(check, {&list}, "Step size must be greater than zero");
  if (range / step > mostSteps) return Refuse(check, {&list}, tooMany);
  const bool whole = ChosenGraph(check.state).axis == AxisVariable::Number;
  if (whole && step != Int(step)) return Refuse(check, {&list}, notWhole);
  // Numbers from 1 to 2 are an axis, and steps that pass its end leave one point of it.
  if (step > (whole ? 1 : largestShareOfRange) * range) return Refuse(check, {&list}, "Select a smaller step size");
  return Verdict::GoOn;
}

/// Limits of numbers of spheres are whole.
Verdict Numbers(Check& check) {
  auto& form = check.form;
  for (TextInput* end : {&form.txtXmin, &form.txtXmax}) {
    if (!getval(check.session, *end, mostVolumeSpheres, NumberSign::Positive)) return Verdict::End;
    if (Val(end->Text) != Int(Val(end->Text))) return Refuse(check, {end}, notWhole);
  }
  return Verdict::GoOn;
}

}  // namespace

Verdict VolumeSpheres(Check& check) {
  return !IsVolume(check) || VolumeHolds(check.session) ? Verdict::GoOn : Verdict::End;
}

Verdict VolumeAxis(Check& check) {
  if (!IsVolume(check)) return Verdict::GoOn;
  auto& form = check.form;
  auto& dialog = check.session.forms.dlogVolume;
  const AxisVariable axis = ChosenGraph(check.state).axis;
  const double low = Val(form.txtXmin.Text), high = Val(form.txtXmax.Text);
  if (low >= high)
    return Refuse(check, {&form.txtXmin, &form.txtXmax}, "Minimum value must be less than maximum value");
  if (low <= 0 && !(low == 0 && BeginsAtZero(check))) return Refuse(check, {&form.txtXmin}, "Value must be positive");
  if (axis == AxisVariable::Number)
    if (const Verdict numbers = Numbers(check); numbers != Verdict::GoOn) return numbers;
  if (axis == AxisVariable::Place && high > Val(dialog.txtSide.Text))
    return Refuse(check, {&form.txtXmax}, "Value must not be greater than " + dialog.txtSide.Text);
  if (const Verdict steps = Steps(check, high - low); steps != Verdict::GoOn) return steps;
  const double step = Val(form.cboStep.Text);
  const double points = (form.mnuXStepLog.Checked ? step : (high - low) / step) + 1;
  if (axis == AxisVariable::Time && points * Val(dialog.txtCount.Text) > mostVolumeSteps)
    return Refuse(check, {&form.cboStep, &dialog.txtCount}, tooMany);
  return Verdict::GoOn;
}

}  // namespace lumivex
