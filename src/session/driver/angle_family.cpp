#include "session/driver/angle_family.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "pages/spectrum_sums.h"
#include "pages/sun_disc.h"
#include "record/number_text.h"
#include "session/driver/angle_quantities.h"
#include "session/driver/progress.h"
#include "session/driver/solver_chain.h"
#include "session/inputs/sizes/size_distribution.h"
#include "solvers/functions/phase_degrees.h"

namespace lumivex {

namespace {

constexpr int spareRows = 100;  // averaging and interpolation look past the last row
constexpr double notComputed = std::numeric_limits<double>::quiet_NaN();

double Contrast(double perpendicular, double parallel) {
  const double sum = perpendicular + parallel;
  return sum == 0 ? 0 : (perpendicular - parallel) / sum;
}

}  // namespace

void FillCurvePoint(MainFormState& s, std::size_t i, const AmplitudePair& pair, bool amplitude) {
  const double intensity1 = pair.S1.re * pair.S1.re + pair.S1.im * pair.S1.im;
  const double intensity2 = pair.S2.re * pair.S2.re + pair.S2.im * pair.S2.im;
  s.Iperp[i] = amplitude ? std::sqrt(intensity1) : intensity1 / s.IntensityNorm;
  s.Ipar[i] = amplitude ? std::sqrt(intensity2) : intensity2 / s.IntensityNorm;
  s.Iunpol[i] = (s.Iperp[i] + s.Ipar[i]) / 2;
  s.Extra1[i] = Contrast(s.Iperp[i], s.Ipar[i]);
  s.Extra2[i] = PhaseDegrees(pair.S1.re, pair.S1.im);
  s.Extra3[i] = PhaseDegrees(pair.S2.re, pair.S2.im);
}

void SetIntensityNorm(Session& session) {
  auto& s = session.state;
  constexpr double twoPi = 6.28318530717958648;
  s.WaveNumber = twoPi * s.MediumRIReal / (s.Lambda * 1e-6);
  s.IntensityNorm = 1;
  if (session.form1.mnuInvWavelength.Checked)
    s.IntensityNorm = session.form1.mnuAmplitude.Checked ? s.WaveNumber : s.WaveNumber * s.WaveNumber;
}

void FillAngleCurves(Session& session) {
  auto& s = session.state;
  const int last = std::min(s.AngleHigh, s.S1.Rows());
  const bool amplitude = s.GraphSubType == 1 && session.form1.mnuAmplitude.Checked;
  for (int row = s.AngleLow; row <= last; ++row) {
    s.XValues[static_cast<std::size_t>(row)] = (row - 1) * s.Xstep;
    FillCurvePoint(s, static_cast<std::size_t>(row), {s.S1.Value(row), s.S2.Value(row)}, amplitude);
    if (s.SummedRows.Contains(row)) continue;
    for (auto* curve : {&s.Iperp, &s.Ipar, &s.Iunpol, &s.Extra1, &s.Extra2, &s.Extra3})
      (*curve)[static_cast<std::size_t>(row)] = notComputed;
  }
  ApplyAngleQuantity(session);
}

void PrepareAngleRows(Session& session) {
  auto& s = session.state;
  const auto& form = session.form1;
  s.Xmin = Val(form.txtXmin.Text);
  s.Xmax = Val(form.txtXmax.Text);
  s.Xstep = Val(form.cboStep.Text);
  s.NANG = ToWhole(90 / s.Xstep) + 1;
  s.NN = 2 * s.NANG - 1;
  s.FirstPoint = form.mnuPlaneWave.Checked ? s.Xmin / s.Xstep + 1 : 1;
  s.LastPoint = form.mnuPlaneWave.Checked ? s.Xmax / s.Xstep + 1 : (s.Xmax - s.Xmin) / s.Xstep + 1;
  s.ArrayRows = s.NN + spareRows;
  SunCorrection(session);
  const double margin = Int(0.25 / s.Xstep);
  s.AngleLow = std::max(1, ToWhole(s.FirstPoint - margin));
  s.AngleHigh = std::min(s.NN, ToWhole(s.LastPoint + margin));
  if (NeedsAllRows(s)) {
    s.AngleLow = 1;
    s.AngleHigh = s.NN;
  }
}

void SolveAngles(Session& session) {
  const auto& s = session.state;
  if (session.form1.optDisp.Checked)
    DispCalc(session, s.AngleLow, s.AngleHigh, {CallSolver, Progress});
  else
    CallSolver(session, s.AngleLow, s.AngleHigh);
}

void SizeAngleCurves(MainFormState& s) {
  for (auto* curve : {&s.XValues, &s.Iperp, &s.Ipar, &s.Iunpol, &s.Extra1, &s.Extra2, &s.Extra3})
    curve->assign(static_cast<std::size_t>(s.ArrayRows) + 1, 0.0);
}

void CalculateAngles(Session& session) {
  auto& s = session.state;
  PrepareAngleRows(session);
  SetIntensityNorm(session);

  AmplitudeTable S1(s.ArrayRows), S2(s.ArrayRows);
  std::swap(S1, s.S1);
  std::swap(S2, s.S2);
  auto crossRe = std::exchange(s.CloudCrossRe, {}), crossIm = std::exchange(s.CloudCrossIm, {});
  SolveAngles(session);
  const bool refused = s.PlotMode == 4 && s.StopAnswer == 0;
  if (refused) {
    std::swap(S1, s.S1);
    std::swap(S2, s.S2);
    s.CloudCrossRe = std::move(crossRe);
    s.CloudCrossIm = std::move(crossIm);
    return;
  }
  SizeAngleCurves(s);
  ForgetSpectrum(s);
  FillAngleCurves(session);
}

}  // namespace lumivex
