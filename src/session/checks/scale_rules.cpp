/// Rules on the vertical scale, the polar plot, interpolation and the sun.

#include "record/number_text.h"
#include "session/checks/check.h"

namespace lumivex {

namespace {

Verdict Untick(Check& check, MenuEntry& entry, std::string_view text, std::string_view title) {
  Warn(check, text, title);
  entry.Checked = false;
  return Verdict::GoOn;
}

constexpr std::string_view notAvailable = "Option not available";

}  // namespace

Verdict PolarPlot(Check& check) {
  auto& form = check.form;
  auto& entry = form.mnuPolarPlot;
  if (!entry.Checked) return Verdict::GoOn;
  if (form.mnuIntPol.Checked)
    return Untick(check, entry, "Polar plots are not available for graphs of Intensity and Polarisation", notAvailable);
  if (check.state.NumberWavelengths > 1)
    return Untick(check, entry, "Polar plots are available only for\n single wavelength calculations", notAvailable);
  const double low = Val(form.txtXmin.Text), high = Val(form.txtXmax.Text);
  if (form.mnuPlaneWave.Checked && (low != 0 || high != 180))
    return Untick(check, entry,
                  "Polar plots are available only when scattering angles\ncover entire range from 0 to 180 degrees",
                  notAvailable);
  if (!form.mnuPlaneWave.Checked && high - low != 360)
    return Untick(
        check, entry,
        "Polar plots for Gaussian beams are available\nonly when scattering angles cover entire\nrange of 360 "
        "degrees",
        notAvailable);
  return Verdict::GoOn;
}

Verdict CubicInterpolation(Check& check) {
  auto& form = check.form;
  const int wavelengths = check.state.NumberWavelengths;
  if (!form.mnuInterpolate.Checked || wavelengths == 1 || wavelengths > 7) return Verdict::GoOn;
  return Untick(check, form.mnuInterpolate,
                "Cubic interpolation is implemented only for 1 wavelength or for more than 7 wavelengths", inputError);
}

Verdict SunOnlyAgainstAngle(Check& check) {
  const Graph& graph = ChosenGraph(check.state);
  if (!check.form.optSun.Checked || graph.OfAngles() || graph.ColumnsOfAngles()) return Verdict::GoOn;
  check.form.optPoint.Select();
  return Warn(check, "Point source only for these calculations", "Input parameters");
}

Verdict SunResolution(Check& check) {
  constexpr double halfDisc = 0.25;  // degrees
  auto& step = check.form.cboStep;
  if (!check.form.optSun.Checked || !step.Visible) return Verdict::GoOn;
  if (Val(step.Text) <= 0) {
    Refuse(check, {&step}, "Value must be > 0");
    step.BackColour = colours::White;
    return Verdict::End;
  }
  if (Val(step.Text) < halfDisc) return Verdict::GoOn;
  check.form.optPoint.Select();
  return Warn(check, "Sun requires angular resolution < 0.25 degrees", "Warning . . .");
}

Verdict AmplitudeScale(Check& check) {
  auto& form = check.form;
  // Pictures have colours in place of a vertical scale.
  if (ChosenGraph(check.state).InColour()) return Verdict::GoOn;
  const bool minGiven = form.cboYmin.Text != automaticLimit, maxGiven = form.cboYmax.Text != automaticLimit;
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

}  // namespace lumivex
