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

/// Which part of the last curves is transformed, and which frequencies are shown.
struct DlogFFT final : Form {
  DlogFFT();

  Label lblFFT{*this, "lblFFT", "N-point FFT"};
  SelectionList cboFFT{*this, "cboFFT", SelectionList::Style::Editable, "2048",
                       "Points that are transformed: a power of two, 64 at least"};
  Label lblThetaMin{*this, "lblThetaMin", "Minimum x-value"};
  TextInput txtThetaMin{*this, "txtThetaMin", "0", "Where the points begin, in the unit of the horizontal axis"};
  Label lblThetaMax{*this, "lblThetaMax", "Maximum x-value"};
  TextInput txtThetaMax{*this, "txtThetaMax", "180", "Where the points end; follows from their number"};
  Label lblFmin{*this, "lblFmin", "Minimum frequency"};
  TextInput txtFmin{*this, "txtFmin", "0", "Lowest frequency shown, in cycles a unit of the horizontal axis"};
  Label lblFmax{*this, "lblFmax", "Maximum frequency"};
  TextInput txtFmax{*this, "txtFmax", "5", "Highest frequency shown, in cycles a unit of the horizontal axis"};
  OptionButton optFFTreal{*this,         "optFFTreal", "inputs",
                          "Real inputs", false,        "Transform the curves: frequencies are differences of rays"};
  OptionButton optFFTcomplex{
      *this,    "optFFTcomplex",
      "inputs", "Complex inputs",
      true,     "Transform the complex amplitudes: each ray has a frequency of its own, with its sign"};
  CheckBox chkSqrt{*this, "chkSqrt", "Square root", false, "Transform the square root of the curves"};
  CommandButton OKButton{*this, "OKButton", "Display spectrum"};
};

/// The dialogs of graphs against angle.
struct AngleDialogs {
  DlogTwoAngle dlogTwoAngle;
  DlogFFT dlogFFT;

  std::vector<Form*> AngleForms() { return {&dlogTwoAngle, &dlogFFT}; }
};

}  // namespace lumivex
