/// Rules on size distributions.

#include <cmath>
#include <string>

#include "record/number_text.h"
#include "session/checks/check.h"
#include "session/checks/range_check.h"

namespace lumivex {

namespace {

/// Most and fewest steps of an axis that three standard deviations may span.
std::string TroubleWithWidth(double relativeSD, double ratio, double steps) {
  constexpr double deviations = 3;
  // Without a ratio no deviation would do; the rules on the axis say what is wrong with it.
  if (!(ratio > 1) || !std::isfinite(ratio)) return "";
  const double stepsWide = deviations * relativeSD / (ratio - 1);
  if (stepsWide > steps) return "Reduce the Standard Deviation";
  if (stepsWide >= deviations) return "";
  const double least = ((ratio - 1) + 0.001) * 100;
  return "Increase the Standard Deviation to at least " + Significant(RoundDecimals(least, 1), 15) + "%";
}

}  // namespace

bool SizesFitColumns(Session& session) {
  auto& form = session.form1;
  const auto& results = session.state.LastResults;
  if (!form.optDisp.Checked || !results || results->asked.graph.family != Family::Lee) return true;
  const Sweep& columns = std::get<AngleMapRun>(results->asked.run).columns;
  if (!columns.geometric) return true;
  const double ratio = std::pow(columns.high / columns.low, 1.0 / columns.steps);
  const std::string trouble = TroubleWithWidth(Val(form.cboSD.Text) / 100, ratio, columns.steps);
  if (!trouble.empty()) session.platform.Message(std::string(inputError), trouble);
  return trouble.empty();
}

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
  const std::string trouble = TroubleWithWidth(s.RelativeSD, ratio, steps);
  if (!trouble.empty()) return refuse(trouble);
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
