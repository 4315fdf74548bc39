#include "session/driver/duration.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "record/number_text.h"
#include "session/inputs/methods/rays_check.h"
#include "session/inputs/methods/sphere_size.h"
#include "session/inputs/two_angle_inputs.h"
#include "solvers/functions/logarithmic_derivative.h"
#include "solvers/series/angular_sum.h"
#include "solvers/series/mie_coefficients.h"

namespace lumivex {

namespace {

constexpr Method debyeMethod = Method::Debye;

/// Below this many terms times angle pairs no machine in use needs the time that is asked about, so none is measured.
constexpr double pairTermsNeverSlow = 2e8;

/// Seconds for one term of one pair of angles on this machine: a small series, the best of three.
double MeasurePairTerm(Platform& platform) {
  constexpr int terms = 2000, rows = 400;
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
  return best / (static_cast<double>(terms) * rows);
}

/// Calculations of one sphere that the run takes: its wavelengths times its sizes.
double SpheresOf(const Session& session) {
  const double sizes = session.form1.optDisp.Checked ? std::max(1.0, Val(session.form1.cboN.Text)) : 1;
  return std::max(1, session.state.NumberWavelengths) * sizes;
}

/// Debye terms of the run.
int RaysToSum(const Session& session) {
  return std::max(1, session.state.RayCount);
}

/// One wavelength (um) that stands for those of the run.
double TypicalWavelength(const Session& session) {
  constexpr double middleOfSpectrum = 0.515;
  return session.state.NumberWavelengths > 1 ? middleOfSpectrum : Val(session.form1.txtLambda.Text);
}

double SecondsHere(Session& session) {
  auto& s = session.state;
  const double x = 2 * 3.14159265358979 * SphereRadius(session) / TypicalWavelength(session);
  const double terms = x + 4 * std::cbrt(std::max(x, 0.0)) + 20;
  double pairTerms = IsTwoAngleContour(s) ? TwoAnglePairTerms(session)
                                          : terms * 90 / Val(session.form1.cboStep.Text) * SpheresOf(session);
  if (!(pairTerms > pairTermsNeverSlow)) return 0;
  // Debye terms share one sum over the angles; their coefficients cost about a tenth of it each at most.
  if (s.CalcMethod == debyeMethod) pairTerms *= 1 + 0.1 * RaysToSum(session);
  if (s.SecondsPerPairTerm == 0) s.SecondsPerPairTerm = MeasurePairTerm(session.platform);
  return pairTerms * s.SecondsPerPairTerm;
}

}  // namespace

double ReferenceSeconds(const Session& session) {
  const auto& form = session.form1;
  // What the fit below gives for a term of a pair of angles of the first plot's sphere.
  constexpr double secondsPerPairTerm = 2e-5;
  if (IsTwoAngleContour(session.state)) return secondsPerPairTerm * TwoAnglePairTerms(session);
  const double r = SphereRadius(session);
  const double step = Val(form.cboStep.Text);
  const double S = (Val(form.txtXmax.Text) - Val(form.txtXmin.Text)) / step;
  if (session.state.CalcMethod == debyeMethod) {
    const double t = 7.76814 + 1.81405 * r + 1.369248e-5 * r * r;
    return t * S / 18000 * 0.65 / TypicalWavelength(session) * SpheresOf(session) * RaysToSum(session);
  }
  const double t = 5.3394821 + 0.9759082 * r - 8.895773e-5 * r * r + 6.0300197e-8 * r * r * r;
  // The parabola was fitted to few points; beyond its top it is held.
  const double fitted = std::min(S, 0.0061566 / (2 * 9.773e-6));
  double q = (0.2077 + 0.0061566 * fitted - 9.773e-6 * fitted * fitted) * t;
  q = q * 0.01 / step;
  q = q * 0.65 / TypicalWavelength(session) * SpheresOf(session);
  return q * 0.1 * (4.2380146 + 1.2130768 * std::log(S));
}

void Duration(Session& session) {
  auto& s = session.state;
  constexpr int calibratedFast = 3;
  if (s.CalcMethod == debyeMethod) RaysCheck(session);
  if (s.CalibrationState == calibratedFast || SecondsHere(session) <= secondsWithoutAsking) return;
  const double seconds = std::clamp(ReferenceSeconds(session), 0.0, 1e9);
  const double hours = Int(seconds / 3600);
  const std::string minutes = Shortest(Int((seconds - 3600 * hours) / 60)) + " minutes";
  std::string text = "Expected duration is ";
  if (hours == 1) text += "1 hour ";
  if (hours > 1) text += Shortest(hours) + " hours ";
  text += minutes + "\nwith 600 MHz Pentium\n\nDo you want to continue ?";
  if (!session.platform.Question("Long calculation !", text)) s.CommandAborted = 1;
}

}  // namespace lumivex
