#include "session/checks/range_check.h"

#include <array>
#include <cmath>
#include <initializer_list>
#include <string>
#include <string_view>

#include "session/checks/number_input.h"
#include "session/driver/array_size.h"
#include "session/record/features.h"
#include "session/record/number_text.h"

namespace lumivex {

namespace {

constexpr std::string_view inputError = "Input error";
constexpr std::string_view automatic = "Automatic";
constexpr double largestInput = 1e9;
constexpr double largestIndex = 1000;

/// The limits as numbers, and what the rules look at.
struct Check {
  Session& session;
  Form1& form;
  MainFormState& state;
  double Xmin = 0, Xmax = 0, Ymin = 0, Ymax = 0;
};

enum class Verdict { GoOn, End };

Verdict Refuse(Check& check, std::initializer_list<Control*> marked, std::string_view text,
               std::string_view title = inputError) {
  for (Control* control : marked) control->BackColour = colours::BadInput;
  check.session.platform.Message(title, text);
  return Verdict::End;
}

Verdict NegativeAbsorption(Check& check) {
  auto& field = check.form.txtRefractImag;
  if (Val(field.Text) >= 0) return Verdict::GoOn;
  Refuse(check, {&field}, "Imaginary value of RI must NOT be negative");
  field.Text = "0";
  field.BackColour = colours::White;
  return Verdict::GoOn;
}

Verdict MethodKnown(Check& check) {
  if (check.state.CalcMethod != 0) return Verdict::GoOn;
  return Refuse(check, {&check.form.cboType}, "Unknown calculation method");
}

Verdict OneWavelengthOnly(Check& check) {
  if (IsAvailable(Feature::SeveralWavelengths) || check.state.NumberWavelengths <= 1) return Verdict::GoOn;
  return Refuse(check, {&check.form.cboWave}, "This graph type is available only for single wavelength calculations");
}

Verdict NumericInputs(Check& check) {
  auto& form = check.form;
  auto& session = check.session;
  for (SelectionList* limit : {&form.cboYmax, &form.cboYmin})
    if (limit->Text != automatic && !getval(session, *limit, 1e300, NumberSign::Any)) return Verdict::End;
  if (form.mnuPlaneWave.Checked) {
    for (TextInput* limit : {&form.txtXmin, &form.txtXmax})
      if (!getval(session, *limit, largestInput, NumberSign::PositiveOrZero)) return Verdict::End;
  }
  struct Number {
    Control* control;
    double upperLimit;
    NumberSign sign;
  };
  for (const auto& number : {Number{&form.cboStep, largestInput, NumberSign::PositiveOrZero},
                             Number{&form.txtRadius, largestInput, NumberSign::Positive},
                             Number{&form.txtLambda, largestInput, NumberSign::Positive},
                             Number{&form.txtRefractReal, largestIndex, NumberSign::Positive},
                             Number{&form.txtRefractImag, largestIndex, NumberSign::PositiveOrZero}})
    if (!getval(session, *number.control, number.upperLimit, number.sign)) return Verdict::End;
  if (!getval(session, form.txtRefractMedium, largestIndex, NumberSign::PositiveOrZero)) return Verdict::End;
  check.Xmin = Val(form.txtXmin.Text);
  check.Xmax = Val(form.txtXmax.Text);
  return Verdict::GoOn;
}

Verdict AngularStep(Check& check) {
  if (check.state.GraphType != 1) return Verdict::GoOn;
  auto& list = check.form.cboStep;
  const double step = Val(list.Text);
  if (!(step > 0)) return Refuse(check, {&list}, "Step size must be greater than zero");
  constexpr double submultipleTolerance = 0.001;
  const double steps = 90 / step;
  if (steps - Int(steps) > submultipleTolerance) return Refuse(check, {&list}, "Must be a sub-multiple of 90 degrees");
  if (2 * steps + 1 > mostAngleRows) return Refuse(check, {&list}, "Select a larger step size");
  return Verdict::GoOn;
}

Verdict AngleScale(Check& check) {
  if (check.state.GraphType != 1) return Verdict::GoOn;
  auto& form = check.form;
  constexpr int heiligenschein = 16;
  const auto refuse = [&](std::string_view text) { return Refuse(check, {&form.txtXmin, &form.txtXmax}, text); };
  if (form.mnuPlaneWave.Checked) {
    const bool beyond = check.state.CalcMethod != heiligenschein;
    if (check.Xmin < 0) return refuse("Minimum angle < 0 degrees");
    if (beyond && check.Xmin > 180) return refuse("Minimum angle > 180 degrees");
    if (check.Xmax < 0) return refuse("Maximum angle < 0 degrees");
    if (beyond && check.Xmax > 180) return refuse("Maximum angle > 180 degrees");
  }
  if (check.Xmin > check.Xmax) return refuse("Minimum angle > Maximum angle");
  if (check.Xmin == check.Xmax) return refuse("Minimum angle = Maximum angle");
  return Verdict::GoOn;
}

Verdict AmplitudeScale(Check& check) {
  auto& form = check.form;
  const bool minGiven = form.cboYmin.Text != automatic, maxGiven = form.cboYmax.Text != automatic;
  if (!minGiven && !maxGiven) return Verdict::GoOn;
  if (minGiven) check.Ymin = Val(form.cboYmin.Text);
  if (maxGiven) check.Ymax = Val(form.cboYmax.Text);
  if (form.OptLog.Checked) {
    if (minGiven && check.Ymin <= 0) {
      form.optLinear.Select();
      return Refuse(check, {&form.cboYmin}, "Minimum amplitude <= 0 not valid for logarithmic scale");
    }
    if (maxGiven && check.Ymax <= 0) {
      form.optLinear.Select();
      return Refuse(check, {&form.cboYmax}, "Maximum amplitude <= 0 not valid for logarithmic scale");
    }
  }
  if (!minGiven || !maxGiven) return Verdict::GoOn;
  if (check.Ymin == check.Ymax)
    return Refuse(check, {&form.cboYmin, &form.cboYmax}, "Minimum amplitude = Maximum amplitude");
  if (check.Ymin > check.Ymax)
    return Refuse(check, {&form.cboYmin, &form.cboYmax}, "Minimum amplitude > Maximum amplitude");
  return Verdict::GoOn;
}

// The order is part of the design: the first rule that ends the check decides the message.
constexpr std::array rules = {
    NegativeAbsorption, MethodKnown, OneWavelengthOnly, NumericInputs, AngularStep, AngleScale, AmplitudeScale,
};

/// A mark that an earlier check left goes, so that mending one of two marked inputs is enough.
void ClearMarks(Form1& form) {
  for (Control* control : form.Controls())
    if (control->BackColour == colours::BadInput) control->BackColour = colours::White;
}

}  // namespace

void RangeCheck(Session& session, double& Xmin, double& Xmax, double& Ymin, double& Ymax, int& abort) {
  ClearMarks(session.form1);
  Check check{session, session.form1, session.state, Xmin, Xmax, Ymin, Ymax};
  for (const auto& rule : rules) {
    if (rule(check) == Verdict::GoOn) continue;
    abort = 1;
    return;
  }
  Xmin = check.Xmin;
  Xmax = check.Xmax;
  Ymin = check.Ymin;
  Ymax = check.Ymax;
}

}  // namespace lumivex
