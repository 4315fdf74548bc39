#include "session/inputs/fourier_inputs.h"

#include <algorithm>
#include <cmath>

#include "pages/curves/fourier_graph.h"
#include "record/number_text.h"
#include "session/checks/number_input.h"
#include "session/inputs/dialog_use.h"
#include "timedomain/fourier_transform.h"

namespace lumivex {

namespace {

constexpr int fewestPoints = 64;
/// Limits of an axis are sums of steps and carry their rounding.
constexpr double rounding = 1e-6;
constexpr int digitsShown = 10;

/// The curves that there are, in the unit of their axis.
struct Available {
  double low = 0, high = 0, step = 1;
};

Available CurvesThere(const Session& session) {
  const RunRequest& asked = session.state.LastResults->asked;
  if (const AngleRows* rows = RowsOf(asked.run)) return {rows->xmin, rows->xmax, rows->step};
  const AxisRun* axis = AxisOf(asked.run);
  return {axis->xmin, axis->xmax, axis->step};
}

bool CanTransform(const Session& session) {
  return session.state.LastResults != nullptr && HasSpectrum(*session.state.LastResults);
}

/// The largest number of points from `first` on, 64 at least whether they are there or not.
int PointsWithin(const Available& there, double first) {
  int points = fewestPoints;
  while (points < mostFourierPoints && (2 * points - 1) * there.step <= there.high - first + rounding * there.step)
    points *= 2;
  return points;
}

void Mark(Control& control, bool bad) {
  control.BackColour = bad ? colours::BadInput : colours::White;
}

void PutFrequencies(DlogFFT& dialog, const Available& there) {
  const double highest = 0.5 / there.step;
  dialog.txtFmax.Text = Significant(highest, digitsShown);
  dialog.txtFmin.Text = dialog.optFFTcomplex.Checked ? Significant(-highest, digitsShown) : "0";
}

/// A number beyond its limits goes back to them.
void HoldWithin(TextInput& field, double low, double high) {
  if (!IsNumber(field.Text)) return;
  const double value = Val(field.Text), slack = rounding * std::max(std::fabs(low), std::fabs(high));
  if (value < low - slack) field.Text = Significant(low, digitsShown);
  if (value > high + slack) field.Text = Significant(high, digitsShown);
}

/// The square root of a negative real part is no number: it goes with the curves only.
void OfferInputs(Session& session) {
  auto& dialog = session.forms.dlogFFT;
  const bool amplitudes = CanTransform(session) && HasAmplitudes(*session.state.LastResults);
  dialog.optFFTcomplex.Enabled = amplitudes;
  if (!amplitudes) dialog.optFFTreal.Select();
  dialog.chkSqrt.Enabled = dialog.optFFTreal.Checked;
}

}  // namespace

void dlogFFT_Change(Session& session) {
  if (!CanTransform(session)) return;
  auto& dialog = session.forms.dlogFFT;
  const Available there = CurvesThere(session);
  const double points = Val(dialog.cboFFT.Text), first = Val(dialog.txtThetaMin.Text);
  const bool power = IsNumber(dialog.cboFFT.Text) && points >= fewestPoints && points <= mostFourierPoints &&
                     points == std::floor(points) && IsPowerOfTwo(ToWhole(points));
  Mark(dialog.cboFFT, !power);
  const double slack = rounding * there.step;
  Mark(dialog.txtThetaMin, !IsNumber(dialog.txtThetaMin.Text) || first < there.low - slack);
  const double last = first + (points - 1) * there.step;
  dialog.txtThetaMax.Text = Significant(last, digitsShown);
  Mark(dialog.txtThetaMax, power && last > there.high + slack);
  const double highest = 0.5 / there.step, lowest = dialog.optFFTcomplex.Checked ? -highest : 0;
  HoldWithin(dialog.txtFmin, lowest, highest);
  HoldWithin(dialog.txtFmax, lowest, highest);
  const bool numbers = IsNumber(dialog.txtFmin.Text) && IsNumber(dialog.txtFmax.Text);
  Mark(dialog.txtFmin, !numbers || Val(dialog.txtFmin.Text) >= Val(dialog.txtFmax.Text));
  Mark(dialog.txtFmax, !numbers);
  dialog.OKButton.Enabled = !HasBadInput(dialog);
}

void dlogFFT_Inputs_Click(Session& session) {
  auto& dialog = session.forms.dlogFFT;
  OfferInputs(session);
  // The other side of the spectrum comes and goes with the phases.
  const double lowest = Val(dialog.txtFmin.Text);
  if (dialog.optFFTcomplex.Checked && lowest == 0)
    dialog.txtFmin.Text = Significant(-Val(dialog.txtFmax.Text), digitsShown);
  dlogFFT_Change(session);
}

void AskFourier(Session& session) {
  auto& dialog = session.forms.dlogFFT;
  const Available there = CurvesThere(session);
  const double first = std::max(there.low, Val(session.form1.txtXmin.Text));
  dialog.cboFFT.Text = std::to_string(PointsWithin(there, first));
  dialog.txtThetaMin.Text = Significant(first, digitsShown);
  // Against angle phases turn both ways.
  const bool angles = session.state.LastResults->asked.graph.AgainstAngle();
  (angles ? dialog.optFFTcomplex : dialog.optFFTreal).Select();
  OfferInputs(session);
  PutFrequencies(dialog, there);
  dlogFFT_Change(session);
  if (!AskIn(session, dialog)) return;
  session.form1.mnuFFT.Checked = true;
  session.events.Raise("cmdReplot_Click");
}

bool LengthHolds(Session& session) {
  const std::string& length = session.forms.dlogFFT.cboFFT.Text;
  if (!session.form1.mnuFFT.Checked || IsPowerOfTwo(ToWhole(Val(length)))) return true;
  session.platform.Message("Error!", " NumSamples is \n" + length + ", which is not a positive integer power of two.");
  return false;
}

void OfferTransform(Session& session) {
  auto& form = session.form1;
  form.mnuFFT.Enabled = form.mnuFFT.Checked || !form.mnuXStepLog.Checked;
}

void mnuFFT_Click(Session& session) {
  auto& form = session.form1;
  if (form.mnuFFT.Checked) {
    form.mnuFFT.Checked = false;
    form.cmdReplot.Enabled = session.state.LastResults != nullptr;
    return;
  }
  if (!CanTransform(session)) {
    session.platform.Message("Option not available",
                             "A Fourier transform needs a graph of curves of one wavelength, in equal steps");
    return;
  }
  AskFourier(session);
}

}  // namespace lumivex
