#include "session/driver/debye_analysis.h"

#include <algorithm>
#include <cmath>

#include "record/number_text.h"
#include "session/driver/progress.h"
#include "session/driver/solver_chain.h"
#include "session/inputs/methods/rays_check.h"
#include "solvers/series/mie_efficiencies.h"

namespace lumivex {

namespace {

constexpr int mieMethod = 1, debyeMethod = 2, stopRequested = 4;
constexpr double degree = 0.017453292519943295;

/// The curves of an export: moduli against the number of terms taken away.
void StoreCurves(MainFormState& s) {
  const auto size = static_cast<std::size_t>(s.DebyeDotCount) + 1;
  for (auto* curve : {&s.XValues, &s.Iperp, &s.Ipar, &s.Iunpol, &s.Extra1, &s.Extra2, &s.Extra3})
    curve->assign(size, 0.0);
  for (int j = 1; j <= s.DebyeDotCount; ++j) {
    const auto i = static_cast<std::size_t>(j);
    s.XValues[i] = j - 1;
    s.Iperp[i] = std::sqrt(s.DebyeDots1.Intensity(j));
    s.Ipar[i] = std::sqrt(s.DebyeDots2.Intensity(j));
    s.Iunpol[i] = (s.Iperp[i] + s.Ipar[i]) / 2;
  }
  s.PointsDone = s.DebyeDotCount;
}

}  // namespace

void CalculateDebyeAnalysis(Session& session) {
  auto& s = session.state;
  auto& form = session.form1;
  const int limit = ToWhole(std::clamp(Val(session.forms.dlogDebyeSeq.txtLimit.Text), 0.0, double{HighestRay}));
  const double angle = Val(form.txtAngle.Text) * degree;
  const std::string chosen = form.cboRays.Text;
  s.Xmin = 0;
  s.Xmax = limit + 1;
  s.Xstep = 1;
  s.FirstPoint = 1;
  s.LastPoint = limit + 2;
  AmplitudeTable dots1(limit + 2), dots2(limit + 2);
  s.S1b.Resize(1);
  s.S2b.Resize(1);
  s.CalcMethod = mieMethod;
  CallSolverAt(session, angle, s.S1b, s.S2b);
  s.CalcMethod = debyeMethod;
  const Efficiencies ofSphere{s.Qext, s.Qsca, s.Qback, s.Gsca};
  int done = 0;
  if (s.PlotMode != stopRequested) {
    dots1.Set(++done, s.S1b.Re(1), s.S1b.Im(1));
    dots2.Set(done, s.S2b.Re(1), s.S2b.Im(1));
  }
  AmplitudeTable S1(1), S2(1);
  for (int p = 0; p <= limit && s.PlotMode != stopRequested; ++p) {
    form.cboRays.Text = std::to_string(p);
    CallSolverAt(session, angle, S1, S2);
    if (s.PlotMode == stopRequested) break;
    ++done;
    dots1.Set(done, dots1.Re(done - 1) - S1.Re(1), dots1.Im(done - 1) - S1.Im(1));
    dots2.Set(done, dots2.Re(done - 1) - S2.Re(1), dots2.Im(done - 1) - S2.Im(1));
    s.ProgressFraction = static_cast<float>(p + 1) / static_cast<float>(limit + 1);
    Progress(session);
  }
  form.cboRays.Text = chosen;
  // The readings are those of the sphere.
  s.Qext = ofSphere.Qext;
  s.Qsca = ofSphere.Qsca;
  s.Qback = ofSphere.Qback;
  s.Gsca = ofSphere.g;
  if (s.PlotMode == stopRequested && s.StopAnswer == 0) return;
  form.lblDebyeRays.Caption = "Debye series (p = 0 to " + std::to_string(std::max(done - 2, 0)) + ")";
  s.DebyeDots1 = dots1;
  s.DebyeDots2 = dots2;
  s.DebyeDotCount = done;
  StoreCurves(s);
}

}  // namespace lumivex
