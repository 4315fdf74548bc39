#include "session/driver/calibration.h"

#include <algorithm>
#include <string>

#include "pages/run_words.h"
#include "record/number_text.h"
#include "session/checks/number_input.h"
#include "session/inputs/dialog_use.h"
#include "solvers/series/angular_sum.h"

namespace lumivex {

namespace {

constexpr int calibrated = 1, calibratedFast = 3;
constexpr double million = 1e6;

/// Of a drop of 1 mm in red light, 18001 angles: some 10000 terms at 9001 pairs of angles.
constexpr double pairTermsOfLargeDrop = 10e3 * 9001;

bool IsSpeed(const TextInput& field) {
  return IsNumber(field.Text) && Val(field.Text) >= slowestMachine && Val(field.Text) <= fastestMachine;
}

std::string SpeedText(double secondsPerPairTerm) {
  return Significant(1 / (million * secondsPerPairTerm), 3);
}

void ShowMeasured(Session& session, double secondsPerPairTerm) {
  session.forms.dlogCalibration.lblMeasured.Caption =
      "Measured now: " + SpeedText(secondsPerPairTerm) + " million terms a second";
}

}  // namespace

double MeasurePairTerm(Platform& platform) {
  constexpr int terms = 2000, rows = 400;
  // A clock that stands still measures nothing.
  constexpr double leastSeconds = 1e-7;
  const PartialWaves waves(terms);
  const AngleGrid grid(rows);
  AmplitudeTable S1(grid.RowCount()), S2(grid.RowCount());
  double best = 1e300;
  for (int i = 0; i < 3; ++i) {
    SilentMonitor silent;
    const double start = platform.Timer();
    SumAngularSeries(waves, grid, {1, grid.RowCount()}, S1, S2, silent);
    best = std::min(best, platform.Timer() - start);
  }
  return std::max(best, leastSeconds) / (static_cast<double>(terms) * rows);
}

void mnuCalibration_Click(Session& session) {
  auto& s = session.state;
  auto& dialog = session.forms.dlogCalibration;
  const FormSnapshot before = dialog.Snapshot();
  const double measured = MeasurePairTerm(session.platform);
  ShowMeasured(session, measured);
  dialog.chkFast.Checked = s.CalibrationState == calibratedFast;
  dialog.txtCalibration.Text = SpeedText(s.CalibrationState != 0 ? s.SecondsPerPairTerm : measured);
  dlogCalibration_txtCalibration_Change(session);
  const bool accepted = AskIn(session, dialog) && IsSpeed(dialog.txtCalibration);
  if (accepted) {
    s.SecondsPerPairTerm = 1 / (million * Val(dialog.txtCalibration.Text));
    s.CalibrationState = dialog.chkFast.Checked ? calibratedFast : calibrated;
    session.settings.unsaved.calibration = true;
  }
  // What stands in the dialog is no input of a run, and nothing to take back.
  dialog.Restore(before);
  if (accepted) session.events.Raise("Settings_Changed");
}

void dlogCalibration_cmdMeasure_Click(Session& session) {
  const double measured = MeasurePairTerm(session.platform);
  ShowMeasured(session, measured);
  session.forms.dlogCalibration.txtCalibration.Text = SpeedText(measured);
  dlogCalibration_txtCalibration_Change(session);
}

void dlogCalibration_txtCalibration_Change(Session& session) {
  auto& dialog = session.forms.dlogCalibration;
  dialog.txtCalibration.BackColour = colours::White;
  dialog.lblExample.Caption = "A drop of 1 mm radius at 18001 angles takes ";
  dialog.lblExample.Caption +=
      IsSpeed(dialog.txtCalibration)
          ? "about " + TimeWords(pairTermsOfLargeDrop / (million * Val(dialog.txtCalibration.Text))) + " on one thread."
          : "a time that cannot be told.";
}

void dlogCalibration_OKButton_Click(Session& session) {
  auto& field = session.forms.dlogCalibration.txtCalibration;
  if (!SettleComma(session, field)) return;
  if (!IsSpeed(field)) RefuseInput(session, field, "    The red highlighted data entry is incorrect.    ");
}

}  // namespace lumivex
