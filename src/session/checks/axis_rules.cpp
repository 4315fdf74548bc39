/// Rules on numbers, axes and their steps.

#include <algorithm>
#include <array>
#include <cmath>
#include <initializer_list>

#include "record/number_text.h"
#include "runs/run.h"
#include "session/checks/check.h"
#include "session/checks/number_input.h"
#include "session/driver/array_size.h"
#include "session/inputs/beams/read_beam.h"
#include "session/inputs/drops/dew_inputs.h"
#include "session/inputs/impulse_inputs.h"
#include "session/inputs/map_inputs.h"
#include "session/inputs/methods/rays_check.h"
#include "session/inputs/sizes/read_sizes.h"

namespace lumivex {

namespace {

constexpr double largestInput = 1e9, largestIndex = 1000;
constexpr double mostSteps = 18000, largestShareOfRange = 0.45;

struct AxisWords {
  std::string_view order, positive;
  std::string_view tooFine = "Select a larger step size";  ///< of equal steps
};

/// Whether steps of so many degrees come to 90 degrees, where rows of angles are mirrored.
bool ComeTo90(double step) {
  constexpr double tolerance = 0.001;
  const double steps = 90 / step;
  return steps - Int(steps) <= tolerance;
}

/// Whether the axis has steps that the user gives; terms of a series have none.
bool HasSteps(const Graph& graph) {
  return graph.family == Family::Axis;
}

/// Minimum below maximum, above 0, and a number of steps that can be drawn.
Verdict CheckAxis(Check& check, const AxisWords& words) {
  auto& form = check.form;
  const double low = Val(form.txtXmin.Text), high = Val(form.txtXmax.Text), step = Val(form.cboStep.Text);
  if (low >= high) return Refuse(check, {&form.txtXmin, &form.txtXmax}, words.order);
  if (low <= 0) return Refuse(check, {&form.txtXmin}, words.positive);
  if (form.mnuXStepLog.Checked) {
    if (step <= 0) return Refuse(check, {&form.cboStep}, "Number of steps must be >=1");
    if (step > mostSteps) return Refuse(check, {&form.cboStep}, "Select a larger step size");
    return Verdict::GoOn;
  }
  if (step <= 0) return Refuse(check, {&form.cboStep}, "Step size must be greater than zero");
  if ((high - low) / step > mostSteps) return Refuse(check, {&form.cboStep}, words.tooFine);
  if (step > largestShareOfRange * (high - low)) return Refuse(check, {&form.cboStep}, "Select a smaller step size");
  return Verdict::GoOn;
}

/// Clock angles go once round at most, and begin below 0 as well.
Verdict CheckClock(Check& check) {
  auto& form = check.form;
  const double low = Val(form.txtXmin.Text), high = Val(form.txtXmax.Text), step = Val(form.cboStep.Text);
  if (low >= high)
    return Refuse(check, {&form.txtXmin, &form.txtXmax}, "Minimum value must be less than maximum value");
  if (low < -180) return Refuse(check, {&form.txtXmin}, "Minimum angle < -180 degrees");
  if (high > 360) return Refuse(check, {&form.txtXmax}, "Maximum angle > 360 degrees");
  if (form.mnuXStepLog.Checked) {
    form.mnuXStepLog.Checked = false;
    return Refuse(check, {&form.cboStep}, "Clock angles have no logarithmic steps");
  }
  if (step <= 0) return Refuse(check, {&form.cboStep}, "Step size must be greater than zero");
  if (step > largestShareOfRange * (high - low)) return Refuse(check, {&form.cboStep}, "Select a smaller step size");
  constexpr double mostClocks = 3600;
  return (high - low) / step > mostClocks ? Refuse(check, {&form.cboStep}, "Select a larger step size") : Verdict::GoOn;
}

}  // namespace

Verdict LogarithmicSteps(Check& check) {
  auto& list = check.form.cboStep;
  const bool steps = check.form.mnuXStepLog.Checked && HasSteps(ChosenGraph(check.state));
  if (!steps || Val(list.Text) > 1) return Verdict::GoOn;
  return Refuse(check, {&list}, "Number of steps must be 1 or more");
}

namespace {

/// The times of a pulse lie within its window, and a picture of them has steps.
Verdict TimeRange(Check& check) {
  auto& form = check.form;
  constexpr double tolerance = 0.01;  // of limits that are shown rounded
  constexpr int decimals = 2;
  const TimeLimits window = TimesOfWindow(check.session);
  const double limit = window.high;
  if (Val(form.txtF9_max.Text) > limit + tolerance)
    return Refuse(check, {&form.txtF9_max},
                  "Value must not be greater than " + Shortest(RoundDecimals(limit, decimals)) + " fs");
  if (Val(form.txtF9_min.Text) < window.low - tolerance)
    return Refuse(check, {&form.txtF9_min},
                  "Value must not be less than " + Shortest(RoundDecimals(window.low, decimals)) + " fs");
  const bool steps = ChosenGraph(check.state).family == Family::Impulse;
  if (steps && !(Val(form.txtF9_step.Text) > 0))
    return Refuse(check, {&form.txtF9_step}, "Step size must be greater than zero");
  return Verdict::GoOn;
}

}  // namespace

Verdict FurtherAxisRange(Check& check) {
  auto& form = check.form;
  const Graph& graph = ChosenGraph(check.state);
  const bool impulse = graph.OfPulse();
  if (!impulse && !graph.IsMap()) return Verdict::GoOn;
  const double low = Val(form.txtF9_min.Text), high = Val(form.txtF9_max.Text);
  if (low >= high)
    return Refuse(check, {&form.txtF9_min, &form.txtF9_max}, "Minimum value must be less than maximum value");
  if (low < 0 && !impulse) return Refuse(check, {&form.txtF9_min}, "Value must be positive or zero");
  if (high <= 0) return Refuse(check, {&form.txtF9_max}, "Value must be positive");
  if (form.txtF9_fixed.Visible && Val(form.txtF9_fixed.Text) < 0)
    return Refuse(check, {&form.txtF9_fixed}, "Value must be positive or zero");
  if (impulse) return TimeRange(check);
  if (graph.MapsIndexAndSize() && Val(form.txtF9_step.Text) <= 1)
    return Refuse(check, {&form.txtF9_step}, "Number of steps must be greater than 1");
  return Verdict::GoOn;
}

Verdict MapRange(Check& check) {
  auto& form = check.form;
  const Family family = ChosenGraph(check.state).family;
  if (family != Family::AngleMap && family != Family::EfficiencyMap) return Verdict::GoOn;
  const double low = Val(form.txtXmin.Text), high = Val(form.txtXmax.Text);
  if (low >= high)
    return Refuse(check, {&form.txtXmin, &form.txtXmax}, "Minimum value must be less than maximum value");
  if (low < 0 && !form.optXLog.Checked) return Refuse(check, {&form.txtXmin}, "Value must be positive or zero");
  return Verdict::GoOn;
}

namespace {

constexpr std::string_view incorrect = "    The red highlighted data entry is incorrect.    ";

/// The width of a distribution and its number of samples, as far as it has them.
bool DistributionNumbers(Check& check) {
  auto& form = check.form;
  if (!form.optDisp.Checked) return true;
  const std::string& kind = form.cboDistrib.Text;
  const bool hasWidth = kind == "Normal" || kind == "Log-normal" || kind == "Gamma";
  if (hasWidth && !getval(check.session, form.cboSD, largestInput, NumberSign::PositiveOrZero)) return false;
  if (!form.cboN.Visible) return true;
  if (!getval(check.session, form.cboN, MostSamples, NumberSign::Positive)) return false;
  const double samples = Val(form.cboN.Text);
  if (samples == Int(samples)) return true;
  Refuse(check, {&form.cboN}, incorrect);
  return false;
}

/// The number p of the methods that have one, how many rays or strips there are, and the numbers of a distribution.
bool MethodNumbers(Check& check) {
  auto& form = check.form;
  auto& session = check.session;
  const MethodTraits& method = TraitsOf(check.state.CalcMethod);
  // An empty field has a message of its own.
  if (method.needsP && form.cboRays.Text != "Multiple" && !Trim(form.cboRays.Text).empty()) {
    if (!getval(session, form.cboRays, HighestRay, NumberSign::Any)) return false;
    const double p = Val(form.cboRays.Text);
    if (p != Int(p) || p < -HighestRay) {
      Refuse(check, {&form.cboRays}, incorrect);
      return false;
    }
  }
  const bool counts = method.counts != Counted::Nothing && ChosenGraph(check.state).OfAngles();
  constexpr double mostRaysOrStrips = 100000;
  if (counts && !getval(session, form.txtAngle, mostRaysOrStrips, NumberSign::Positive)) return false;
  return DistributionNumbers(check);
}

/// The angle of graphs at one angle.
Verdict AngleOfPoint(Check& check) {
  auto& form = check.form;
  auto& session = check.session;
  const MapInputs* map = FindMapInputs(ChosenGraph(check.state));
  const bool asked = map != nullptr ? map->angle : IsAxisGraph(check.state) && form.txtAngle.Visible;
  if (!asked) return Verdict::GoOn;
  if (!getval(session, form.txtAngle, largestInput, NumberSign::Any)) return Verdict::End;
  const double angle = Val(form.txtAngle.Text);
  if (angle < 0) return Refuse(check, {&form.txtAngle}, "Scattering angle < 0");
  if (angle > 180) return Refuse(check, {&form.txtAngle}, "Scattering angle > 180");
  return Verdict::GoOn;
}

/// What a map sweeps and what it holds still. Indices and sizes that are held are those of a sphere; a radius is one.
bool MapNumbers(Check& check) {
  auto& form = check.form;
  auto& session = check.session;
  const MapInputs* map = FindMapInputs(ChosenGraph(check.state));
  if (map == nullptr) return true;
  if (map->size == SizeField::Angle && !getval(session, form.txtAngle, largestInput, NumberSign::Positive))
    return false;
  const auto limitOf = [](Swept quantity) {
    const bool sizes = quantity == Swept::Radius || quantity == Swept::SizeParameter || quantity == Swept::Wavelength ||
                       quantity == Swept::Time;
    return sizes ? largestInput : largestIndex;
  };
  const bool clear = map->held == Swept::SphereAbsorption;
  if (map->held && !getval(session, form.txtF9_fixed, limitOf(*map->held),
                           clear ? NumberSign::PositiveOrZero : NumberSign::Positive))
    return false;
  const SweptQuantities& swept = *FindSwept(ChosenGraph(check.state));
  TextInput& highest = map->further ? form.txtF9_max : form.txtRmax;
  return getval(session, highest, limitOf(swept.columns), NumberSign::Positive) &&
         (!swept.rows || getval(session, form.txtXmax, limitOf(*swept.rows), NumberSign::Positive));
}

}  // namespace

Verdict DecimalCommas(Check& check) {
  for (Control* control : check.form.Controls())
    if (control->Visible && !SettleComma(check.session, *control)) return Verdict::End;
  return Verdict::GoOn;
}

Verdict NumericInputs(Check& check) {
  auto& form = check.form;
  auto& session = check.session;
  for (SelectionList* limit : {&form.cboYmax, &form.cboYmin})
    if (limit->Text != automaticLimit && !getval(session, *limit, 1e300, NumberSign::Any)) return Verdict::End;
  struct Number {
    Control* control;
    double upperLimit;
    NumberSign sign;
  };
  // The limits of a beam's angles may be negative.
  const NumberSign ofLimits = form.mnuPlaneWave.Checked ? NumberSign::PositiveOrZero : NumberSign::Any;
  for (const auto& number :
       {Number{&form.txtXmin, largestInput, ofLimits}, Number{&form.txtXmax, largestInput, ofLimits},
        Number{&form.cboStep, largestInput, NumberSign::PositiveOrZero},
        Number{&form.txtRadius, largestInput, NumberSign::Positive},
        Number{&form.txtLambda, largestInput, NumberSign::Positive},
        Number{&form.txtRefractReal, largestIndex, NumberSign::Positive},
        Number{&form.txtRefractImag, largestIndex, NumberSign::PositiveOrZero},
        Number{&form.txtRefractMedium, largestIndex, NumberSign::PositiveOrZero},
        Number{&form.txtF9_min, largestInput, NumberSign::Any}, Number{&form.txtF9_max, largestInput, NumberSign::Any},
        Number{&form.txtF9_step, largestInput, NumberSign::Any},
        Number{&form.cboBright, largestInput, NumberSign::Any}})
    if (number.control->Visible && !getval(session, *number.control, number.upperLimit, number.sign))
      return Verdict::End;
  if (!MethodNumbers(check)) return Verdict::End;
  check.Xmin = Val(form.txtXmin.Text);
  check.Xmax = Val(form.txtXmax.Text);
  return MapNumbers(check) ? AngleOfPoint(check) : Verdict::End;
}

Verdict LeeDiagramAxis(Check& check) {
  auto& form = check.form;
  if (!form.cboGraph.Text.starts_with("Lee diagram")) return Verdict::GoOn;
  if (!getval(check.session, form.txtRmax, largestInput, NumberSign::Positive)) return Verdict::End;
  if (!getval(check.session, form.txtRstep, largestInput, NumberSign::Any)) return Verdict::End;
  const double steps = Val(form.txtRstep.Text);
  if (steps < 1) form.txtRstep.BackColour = colours::BadInput;
  if (Val(form.txtRadius.Text) >= Val(form.txtRmax.Text))
    return Refuse(check, {&form.txtRadius, &form.txtRmax}, "Minimum value >= Maximum value");
  // How many whole steps there may be is told with their upper limit.
  if (steps != Int(steps)) return Refuse(check, {&form.txtRstep}, "Number of steps not valid");
  return Verdict::GoOn;
}

Verdict ColourCount(Check& check) {
  auto& list = check.form.cboWave;
  constexpr double mostColours = 2000;
  constexpr std::array<std::string_view, 4> words = {"RGB", "High", "Med.", "Low"};
  const bool word = std::ranges::find(words, list.Text) != words.end();
  if (!word && !getval(check.session, list, 1e300, NumberSign::Positive)) return Verdict::End;
  if (Val(list.Text) <= mostColours) return Verdict::GoOn;
  return Refuse(check, {&list}, "Maximum number of colors = 2000");
}

Verdict SizeAxis(Check& check) {
  const Graph& graph = ChosenGraph(check.state);
  if (!graph.IntensityBySize()) return Verdict::GoOn;
  if (graph.axis == AxisVariable::SizeParameter)
    return CheckAxis(
        check, {"Minimum value of size parameter x must be less than maximum value", "Size parameter x must be > 0"});
  return CheckAxis(check, {"Minimum value of radius must be less than maximum value", "Radius must be > 0"});
}

Verdict WavelengthAxis(Check& check) {
  const Graph& graph = ChosenGraph(check.state);
  if (!graph.WavelengthAxis() || !graph.AtOneAngle()) return Verdict::GoOn;
  return CheckAxis(check, {"Minimum value of wavelength must be less than maximum value", "Wavelength must be > 0"});
}

Verdict MapSize(Check& check) {
  auto& form = check.form;
  const Graph& graph = ChosenGraph(check.state);
  const MapInputs* inputs = FindMapInputs(graph);
  if (inputs == nullptr) return Verdict::GoOn;
  TextInput& steps = StepsField(form, *inputs);
  const auto countable = [](double count) { return count >= 1 && count == Int(count); };
  const double columns = ColumnSteps(check.session, *inputs), step = Val(form.cboStep.Text);
  if (!countable(columns)) return Refuse(check, {&steps}, "Number of steps must be 1 or more");
  const bool cells = graph.family == Family::EfficiencyMap;
  if (cells && !countable(step)) return Refuse(check, {&form.cboStep}, "Number of steps must be 1 or more");
  const double finest = 180.0 / (mostSpectrumRows - 1);
  const double rows = cells ? step + 1 : (check.Xmax - check.Xmin + 0.5) / std::max(step, finest) + 1;
  const double most = graph.family == Family::Impulse ? mostTimeCells : mostMapCells;
  if (rows * (columns + 1) <= most) return Verdict::GoOn;
  // The side that has more is the one to make coarser.
  Control& greater = columns + 1 >= rows ? static_cast<Control&>(steps) : form.cboStep;
  return Refuse(check, {&greater}, "Increase the step size or reduce the maximum/minimum range");
}

Verdict LeeSteps(Check& check) {
  auto& form = check.form;
  if (ChosenGraph(check.state).family != Family::Lee) return Verdict::GoOn;
  const double columns = Val(form.txtRstep.Text);
  if (columns > 400) return Refuse(check, {&form.txtRstep}, "Maximum number of steps = 400");
  if (columns <= 0) return Refuse(check, {&form.txtRstep}, "Number of steps must be 1 or more");
  return Verdict::GoOn;
}

Verdict AxisStepCount(Check& check) {
  auto& form = check.form;
  const Graph& graph = ChosenGraph(check.state);
  if (!HasSteps(graph)) return Verdict::GoOn;
  if (graph.axis == AxisVariable::Clock) return CheckClock(check);
  constexpr std::string_view tooMany = "Increase the step size or reduce the maximum/minimum range";
  const Verdict axis =
      CheckAxis(check, {"Minimum value must be less than maximum value", "Value must be positive", tooMany});
  if (axis != Verdict::GoOn) return axis;
  if (graph.quantity != Quantity::Power) return Verdict::GoOn;
  const double low = Val(form.txtF9_min.Text), high = Val(form.txtF9_max.Text), step = Val(form.txtF9_step.Text);
  if (low >= high)
    return Refuse(check, {&form.txtF9_min, &form.txtF9_max}, "Minimum value must be less than maximum value");
  if (low < 0) return Refuse(check, {&form.txtF9_min}, "Minimum angle < 0 degrees");
  if (high > 180) return Refuse(check, {&form.txtF9_max}, "Maximum angle > 180 degrees");
  if (!(step > 0)) return Refuse(check, {&form.txtF9_step}, "Step size must be greater than zero");
  if ((high - low) / step > mostSteps) return Refuse(check, {&form.txtF9_step}, tooMany);
  // The sum goes over rows of angles that are mirrored at 90 degrees: other steps would quietly become other ones.
  if (!ComeTo90(step)) return Refuse(check, {&form.txtF9_step}, "Must be a sub-multiple of 90 degrees");
  return Verdict::GoOn;
}

Verdict AngularStep(Check& check) {
  const Graph& graph = ChosenGraph(check.state);
  if (!graph.AgainstAngle() && !graph.ColumnsOfAngles()) return Verdict::GoOn;
  auto& list = check.form.cboStep;
  const double step = Val(list.Text);
  if (!(step > 0)) return Refuse(check, {&list}, "Step size must be greater than zero");
  if (!ComeTo90(step)) return Refuse(check, {&list}, "Must be a sub-multiple of 90 degrees");
  const double range = InBeam(check.form) ? check.Xmax - check.Xmin : GoesRound(check.session, graph) ? 360 : 180;
  if (range / step + 1 > mostAngleRows) return Refuse(check, {&list}, "Select a larger step size");
  if (!graph.AgainstAngle()) return Verdict::GoOn;
  // What is stored of several wavelengths must fit into the memory of any computer in use.
  const double rows = (check.Xmax - check.Xmin) / std::max(step, 180.0 / (mostSpectrumRows - 1)) + 1;
  if (check.state.NumberWavelengths > 1 && rows * check.state.NumberWavelengths > mostSpectrumValues)
    return Refuse(check, {&list, &check.form.cboWave}, "Increase the step size or reduce the maximum/minimum range");
  return Verdict::GoOn;
}

Verdict AngleScale(Check& check) {
  const Graph& graph = ChosenGraph(check.state);
  if (!graph.AgainstAngle() && !graph.ColumnsOfAngles()) return Verdict::GoOn;
  auto& form = check.form;
  const auto refuse = [&](std::string_view text) { return Refuse(check, {&form.txtXmin, &form.txtXmax}, text); };
  if (form.mnuPlaneWave.Checked) {
    const bool beyond = !GoesRound(check.session, graph);
    if (check.Xmin < 0) return refuse("Minimum angle < 0 degrees");
    if (beyond && check.Xmin > 180) return refuse("Minimum angle > 180 degrees");
    if (check.Xmax < 0) return refuse("Maximum angle < 0 degrees");
    if (beyond && check.Xmax > 180) return refuse("Maximum angle > 180 degrees");
    if (check.Xmax > 360) return refuse("Maximum angle > 360 degrees");
  }
  if (InBeam(form)) {
    // Further round there is nothing new.
    if (check.Xmin < -360) return refuse("Minimum angle < -360 degrees");
    if (check.Xmax > 360) return refuse("Maximum angle > 360 degrees");
    if (check.Xmax - check.Xmin > 360) return refuse("Scattering angles cover 360 degrees at most");
  }
  if (check.Xmin > check.Xmax) return refuse("Minimum angle > Maximum angle");
  if (check.Xmin == check.Xmax) return refuse("Minimum angle = Maximum angle");
  return Verdict::GoOn;
}

Verdict LastLogarithmicStep(Check& check) {
  auto& list = check.form.cboStep;
  const bool steps = check.form.mnuXStepLog.Checked && HasSteps(ChosenGraph(check.state));
  if (!steps || Val(list.Text) > 1) return Verdict::GoOn;
  return Refuse(check, {&list}, "Number of steps must be >=1");
}

}  // namespace lumivex
