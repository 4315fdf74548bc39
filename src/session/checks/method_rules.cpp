/// Rules that hold the calculation method against the graph, the beam and the sphere.

#include <algorithm>
#include <initializer_list>
#include <string>

#include "record/number_text.h"
#include "session/checks/check.h"
#include "session/inputs/methods.h"
#include "session/inputs/methods/rays_check.h"
#include "session/inputs/methods/sphere_size.h"

namespace lumivex {

namespace {

bool OneOf(int code, std::initializer_list<int> codes) {
  return std::ranges::find(codes, code) != codes.end();
}

constexpr std::string_view onlyMieAndDebye = "Selected graph type is available only for Mie and Debye calculations";
constexpr std::string_view onlyMie = "Selected graph type is available only for Mie calculations";

/// The chart of two angles has sizes of its own; the terms of a point are those of one sphere.
bool NeedsOneSphere(const RunState& s) {
  return IsTwoAngleContour(s) || (s.GraphType == 10 && s.GraphSubType == 10);
}

/// Graphs against angle other than plain intensity, and the impulse response.
bool NeedsOneWavelength(const RunState& s) {
  return (s.GraphType == 1 && s.GraphSubType != 1) || s.GraphType == 19 || IsAxisGraph(s);
}

}  // namespace

Verdict CoatedSphereGraphs(Check& check) {
  const auto& s = check.state;
  if (s.CalcMethod != 13) return Verdict::GoOn;
  if (OneOf(s.GraphType, {1, 13, 19})) {
    auto& dialog = check.session.forms.dlogCoatedSphere;
    if (Val(dialog.txtCoreRadius.Text) < Val(dialog.txtMantleRadius.Text)) return Verdict::GoOn;
    Refuse(check, {&dialog.txtMantleRadius},
           "The radius of the core must be less than the radius of the overall particle");
    dialog.txtMantleRadius.BackColour = colours::White;
    return Verdict::End;
  }
  return Refuse(check, {}, "Coated sphere calculations are not available for graph type " + check.form.cboGraph.Text,
                "Error");
}

Verdict BeamMethods(Check& check) {
  const int method = check.state.CalcMethod;
  if (check.form.mnuGaussian.Checked && method > 2 && method != 8) {
    Refuse(check, {},
           "Gaussian beam calculations are available only for Mie, Debye, Descartes, Young and Young mod calculation "
           "methods",
           "Error: Gaussian beam");
    check.session.events.Raise("mnuPlaneWave_Click");
    return Verdict::End;
  }
  if (check.form.mnuTopHat.Checked && method != 8) {
    Refuse(check, {},
           "Top hat beam calculations are available only for Descartes, Young and Young mod calculation methods",
           "Error: Top hat beam");
    check.session.events.Raise("mnuPlaneWave_Click");
    return Verdict::End;
  }
  return Verdict::GoOn;
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

Verdict MethodAgainstGraph(Check& check) {
  auto& form = check.form;
  auto& s = check.state;
  if (s.NumberWavelengths > 1 && (NeedsOneWavelength(s) || !IsAvailable(Feature::SeveralWavelengths)))
    return Refuse(check, {&form.cboGraph}, "This graph type is available only for single wavelength calculations");
  if (s.NumberWavelengths > 1 && form.mnuAmpPhase.Checked) {
    // Phases of different wavelengths have no sum.
    form.mnuAmpPhase.Checked = false;
    return Refuse(check, {&form.cboGraph}, "This graph type is available only for single wavelength calculations");
  }
  if (form.optDisp.Checked && NeedsOneSphere(s))
    return Refuse(check, {&form.cboGraph}, "This graph type is available only for monodisperse calculations");
  if (IsTwoAngleContour(s) && s.CalcMethod != 1) return Refuse(check, {&form.cboGraph}, onlyMie);
  const bool matrix = (s.GraphType == 1 && s.GraphSubType == 6) || (s.GraphType == 10 && s.GraphSubType == 2);
  if (matrix && s.CalcMethod != 1) {
    Warn(check, "This graph type is available only for Mie calculations");
    form.cboType.Text = "Mie";
    TypeCalc(check.session);
  }
  if (s.GraphType == 10 && s.GraphSubType == 10 && s.CalcMethod != 2)
    return Refuse(check, {&form.cboGraph}, onlyMieAndDebye);
  const bool onlyAgainstAngle = OneOf(s.CalcMethod, {10, 12, 17}) && IsAxisGraph(s);
  if (onlyAgainstAngle) return Refuse(check, {&form.cboGraph}, onlyMieAndDebye);
  if (s.CalcMethod <= 2 || s.CalcMethod == 13) return Verdict::GoOn;
  // Of the other methods only the closed forms have efficiencies to plot against size.
  if (s.GraphType == 14 && !OneOf(s.CalcMethod, {3, 4})) return Refuse(check, {&form.cboGraph}, onlyMieAndDebye);
  if (s.GraphType == 13) return Refuse(check, {&form.cboGraph}, onlyMie);
  if (OneOf(s.GraphType, {15, 16, 17})) return Refuse(check, {&form.cboGraph}, onlyMieAndDebye);
  return Verdict::GoOn;
}

Verdict ComplexIndex(Check& check) {
  auto& form = check.form;
  if (!OneOf(check.state.CalcMethod, {3, 5}) || Val(form.txtRefractImag.Text) == 0) return Verdict::GoOn;
  form.txtRefractImag.BackColour = colours::BadInput;
  Warn(check, "Complex values of refractive index are not valid for this calculation method");
  form.txtRefractImag.Text = "0";
  form.txtRefractImag.BackColour = colours::White;
  // Water goes on without its absorption.
  check.session.forms.dlogTemp.chkRI_Complex.Checked = false;
  if (form.mnuRI_IAPWS.Checked) RaiseQuietly(check.session, "mnuRI_IAPWS_Click");
  if (form.mnuRI_Segelstein.Checked) RaiseQuietly(check.session, "mnuRI_Segelstein_Click");
  return Verdict::GoOn;
}

Verdict DebyeInputs(Check& check) {
  auto& form = check.form;
  auto& s = check.state;
  if (s.CalcMethod != 2) return Verdict::GoOn;
  const double imaginary = Val(form.txtRefractImag.Text);
  if (imaginary < 0)
    return Refuse(check, {&form.txtRefractImag}, "The imaginary part of the refractive index must be positive");
  if (Trim(form.cboRays.Text).empty()) return Refuse(check, {&form.cboRays}, "Specify a value for p");
  // The medium is left out here: the limit is a round number anyway.
  constexpr double twoPi = 6.28318530717958, largestAbsorption = 100;
  const double x = Val(form.txtRadius.Text) * twoPi / Val(form.txtLambda.Text);
  if (form.cboRays.Text == "0" || !(imaginary * x > largestAbsorption)) return Verdict::GoOn;
  return Refuse(check, {&form.txtRefractImag},
                "Debye rays for p > 0 are suppressed by high absorption in the sphere due to the large imaginary value "
                "of the refractive index",
                "Debye series");
}

Verdict AiryInputs(Check& check) {
  auto& form = check.form;
  if (check.state.CalcMethod != 5) return Verdict::GoOn;
  bool below2 = Val(form.cboRays.Text) < 2;
  if (form.cboRays.Text == "Multiple") {
    RaysCheck(check.session);
    const auto& enabled = check.state.RayEnabled;
    below2 = (!enabled.empty() && enabled[0] != 0) || (enabled.size() > 1 && enabled[1] != 0);
  }
  if (below2) return Refuse(check, {&form.cboRays}, "Airy theory is valid only for p > 1");
  if (Val(form.txtRefractImag.Text) == 0) return Verdict::GoOn;
  Refuse(check, {&form.txtRefractImag}, "Airy theory is not valid for complex values of refractive index");
  form.txtRefractImag.Text = "0";
  return Verdict::End;
}

Verdict DiffractionIndex(Check& check) {
  auto& field = check.form.txtRefractReal;
  if (check.state.CalcMethod != 4 || Val(field.Text) > 1) return Verdict::GoOn;
  return Refuse(check, {&field}, "Refractive index must be greater than 1 for this calculation method");
}

Verdict SurfaceWaveInputs(Check& check) {
  auto& form = check.form;
  if (check.state.CalcMethod != 11) return Verdict::GoOn;
  constexpr double lowest = 1, highest = 25;
  const double low = Val(form.cboQmin.Text), high = Val(form.cboQmax.Text);
  if (low < lowest) return Refuse(check, {&form.cboQmin}, "Jmin must be >=1");
  if (high < lowest) return Refuse(check, {&form.cboQmax}, "Jmax must be >=1");
  if (low > high) return Refuse(check, {&form.cboQmin, &form.cboQmax}, "Jmin > Jmax");
  if (low > highest) return Refuse(check, {&form.cboQmin}, "Jmin must be <=25");
  if (high > highest) return Refuse(check, {&form.cboQmax}, "Jmax must be <=25");
  if (Val(form.cboRays.Text) == 0)
    return Refuse(check, {&form.cboRays}, "Surface wave calculations are valid only for p > 0");
  return Verdict::GoOn;
}

Verdict RayleighSize(Check& check) {
  const auto& form = check.form;
  if (check.state.CalcMethod != 3 || IsAxisGraph(check.state)) return Verdict::GoOn;
  constexpr double wavelengthsPerRadius = 13;
  if (Val(form.txtLambda.Text) / SphereRadius(check.session) >= wavelengthsPerRadius) return Verdict::GoOn;
  return Warn(check, "Rayleigh approximation is valid only when r << wavelength");
}

}  // namespace lumivex
