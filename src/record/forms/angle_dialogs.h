#pragma once

#include <vector>

#include "record/form.h"

namespace lumivex {

/// Two ranges of scattering angle, and the spheres whose light into both is calculated.
struct DlogTwoAngle final : Form {
  DlogTwoAngle() : Form("dlogTwoAngle", "Two angle calculation") {}

  static constexpr const char* angleTip = "Scattering angle in degrees, 0 to 180";
  static constexpr const char* indexTip = "Refractive index (real part) of the sphere in vacuo";
  static constexpr const char* radiusTip = "Radius of the sphere in micrometres";

  Label lblAngle1{*this, "lblAngle1", "First range (deg.)"};
  TextInput txtAngle1min{*this, "txtAngle1min", "0.5", angleTip};
  TextInput txtAngle1max{*this, "txtAngle1max", "5.5", angleTip};
  Label lblAngle2{*this, "lblAngle2", "Second range (deg.)"};
  TextInput txtAngle2min{*this, "txtAngle2min", "5.5", angleTip};
  TextInput txtAngle2max{*this, "txtAngle2max", "10.5", angleTip};
  Label lblMin{*this, "lblMin", "Minimum"};
  Label lblMax{*this, "lblMax", "Maximum"};
  Label lblStep{*this, "lblStep", "Step"};
  Label lblRI{*this, "lblRI", "Refractive index"};
  TextInput txtRImin{*this, "txtRImin", "1.3", indexTip};
  TextInput txtRImax{*this, "txtRImax", "1.4", indexTip};
  TextInput txtRIstep{*this, "txtRIstep", "0.025", "Step from one curve to the next"};
  Label lblRadius{*this, "lblRadius", "Radius (\u00B5m)"};
  TextInput txtRmin{*this, "txtRmin", "0.5", radiusTip};
  TextInput txtRmax{*this, "txtRmax", "3", radiusTip};
  TextInput txtRstep{*this, "txtRstep", "0.5", "Step from one point of a curve to the next, in micrometres"};
};

/// The dialogs of graphs against angle.
struct AngleDialogs {
  DlogTwoAngle dlogTwoAngle;

  std::vector<Form*> AngleForms() { return {&dlogTwoAngle}; }
};

}  // namespace lumivex
