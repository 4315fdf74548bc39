/// Rules on size distributions.

#include <cmath>
#include <string>

#include "record/number_text.h"
#include "session/checks/check.h"

namespace lumivex {

Verdict DistributionWidth(Check& check) {
  auto& form = check.form;
  auto& s = check.state;
  const std::string& kind = form.cboDistrib.Text;
  if (!form.optDisp.Checked) return Verdict::GoOn;
  if (kind == "Normal" || kind == "Log-normal" || kind == "Special") s.RelativeSD = Val(form.cboSD.Text) / 100;
  const auto refuse = [&](const std::string& text) {
    const Verdict verdict = Refuse(check, {&form.cboSD}, text);
    form.cboSD.BackColour = colours::White;
    return verdict;
  };
  if (kind == "Normal" && !(s.RelativeSD > 0)) return refuse("Modify the standard deviation");
  // Three standard deviations below the mean the radius must still be positive.
  constexpr double deviations = 3;
  if (kind == "Normal" && deviations * s.RelativeSD >= 1) return refuse("Reduce the standard deviation");
  const bool wide = (kind == "Log-normal" || kind == "Special") && form.cboSD.Visible;
  const bool volume = ChosenGraph(s).family == Family::Volume;
  if (!wide || !form.mnuXStepLog.Checked || !IsAxisGraph(s) || volume) return Verdict::GoOn;
  const double steps = Val(form.cboStep.Text);
  const double ratio = std::pow(Val(form.txtXmax.Text) / Val(form.txtXmin.Text), 1 / steps);
  // Without a ratio no deviation would do; the rules on the axis say what is wrong with it.
  if (!(ratio > 1) || !std::isfinite(ratio)) return Verdict::GoOn;
  const double stepsWide = deviations * s.RelativeSD / (ratio - 1);
  if (stepsWide > steps) return refuse("Reduce the Standard Deviation");
  if (stepsWide < deviations) {
    const double least = ((ratio - 1) + 0.001) * 100;
    return refuse("Increase the Standard Deviation to at least " + Significant(RoundDecimals(least, 1), 15) + "%");
  }
  return Verdict::GoOn;
}

Verdict LeeDistribution(Check& check) {
  auto& form = check.form;
  if (!form.optDisp.Checked || ChosenGraph(check.state).family != Family::Lee || form.cboDistrib.Text == "Log-normal")
    return Verdict::GoOn;
  return Refuse(check, {&form.cboDistrib}, "Log-normal distribution must be used for Lee diagrams");
}

Verdict LeeSpecialDistribution(Check& check) {
  auto& form = check.form;
  if (!form.optDisp.Checked || ChosenGraph(check.state).family != Family::Lee || form.cboDistrib.Text != "Special")
    return Verdict::GoOn;
  return Refuse(check, {&form.cboDistrib}, "Special distributions are not available for Lee diagrams");
}

}  // namespace lumivex
