#include "session/driver/angle_family.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "graphs/sun_disc.h"
#include "session/driver/solver_chain.h"
#include "session/record/number_text.h"
#include "solvers/kernel/phase_degrees.h"

namespace lumivex {

namespace {

constexpr int spareRows = 100;  // averaging and interpolation look past the last row
constexpr double notComputed = std::numeric_limits<double>::quiet_NaN();

double Contrast(double perpendicular, double parallel) {
  const double sum = perpendicular + parallel;
  return sum == 0 ? 0 : (perpendicular - parallel) / sum;
}

void FillRow(MainFormState& s, int row, bool amplitude) {
  const auto j = static_cast<std::size_t>(row);
  double perpendicular = std::sqrt(s.S1.Intensity(row)), parallel = std::sqrt(s.S2.Intensity(row));
  if (!amplitude) {
    perpendicular = s.S1.Intensity(row) / s.IntensityNorm;
    parallel = s.S2.Intensity(row) / s.IntensityNorm;
  }
  s.Iperp[j] = perpendicular;
  s.Ipar[j] = parallel;
  s.Iunpol[j] = (perpendicular + parallel) / 2;
  s.Extra1[j] = Contrast(perpendicular, parallel);
  s.Extra2[j] = PhaseDegrees(s.S1.Re(row), s.S1.Im(row));
  s.Extra3[j] = PhaseDegrees(s.S2.Re(row), s.S2.Im(row));
}

}  // namespace

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
  for (int row = s.AngleLow; row <= last; ++row) {
    s.XValues[static_cast<std::size_t>(row)] = (row - 1) * s.Xstep;
    FillRow(s, row, session.form1.mnuAmplitude.Checked);
    if (s.SummedRows.Contains(row)) continue;
    for (auto* curve : {&s.Iperp, &s.Ipar, &s.Iunpol, &s.Extra1, &s.Extra2, &s.Extra3})
      (*curve)[static_cast<std::size_t>(row)] = notComputed;
  }
}

void CalculateAngles(Session& session) {
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
  SetIntensityNorm(session);

  AmplitudeTable S1(s.ArrayRows), S2(s.ArrayRows);
  std::swap(S1, s.S1);
  std::swap(S2, s.S2);
  CallSolver(session, s.AngleLow, s.AngleHigh);
  const bool refused = s.PlotMode == 4 && s.StopAnswer == 0;
  if (refused) {
    std::swap(S1, s.S1);
    std::swap(S2, s.S2);
    return;
  }
  for (auto* curve : {&s.XValues, &s.Iperp, &s.Ipar, &s.Iunpol, &s.Extra1, &s.Extra2, &s.Extra3})
    curve->assign(static_cast<std::size_t>(s.ArrayRows) + 1, 0.0);
  FillAngleCurves(session);
}

}  // namespace lumivex
