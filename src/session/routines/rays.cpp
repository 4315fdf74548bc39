#include "session/routines/rays.h"

#include <algorithm>

#include "pages/huygens_drawing.h"
#include "record/number_text.h"
#include "session/inputs/methods/debye_label.h"
#include "session/inputs/methods/rays_check.h"
#include "session/routines/arithmetic_guard.h"
#include "session/routines/run_store.h"
#include "solvers/patterns/simple_scattering.h"
#include "solvers/rays/huygens_wave.h"
#include "solvers/rays/rainbow.h"
#include "solvers/rays/ray_series.h"
#include "solvers/rays/ray_table.h"

namespace lumivex {

namespace {

constexpr int stopRequested = 4;
constexpr double degree = 0.017453292519943295;
constexpr int mostHuygensRays = 100000;

RayMethod MethodOf(int method) {
  if (method == 6) return RayMethod::Intensities;
  if (method == 7) return RayMethod::Young;
  return method == 14 ? RayMethod::YoungAiry : RayMethod::YoungMod;
}

RayBeam BeamOf(const Session& session) {
  const auto& form = session.form1;
  const auto& s = session.state;
  if (form.mnuPlaneWave.Checked || form.mnuCentralBeam.Checked) return {};
  return {form.mnuTopHat.Checked ? RayBeam::Profile::TopHat : RayBeam::Profile::Gaussian, s.BeamCentreOffset,
          s.BeamWaist};
}

/// What the record keeps of the rays of the highest p.
void StoreRainbow(RayState& rays, double m, double lastAngle) {
  rays.RayIndex = rays.RayMax;
  rays.RainbowImpact = RainbowImpactOf(m, rays.RayMax);
  const auto rainbow = MakeRainbow(m, rays.RayMax);
  rays.RainbowAngle = rainbow ? rainbow->RainbowAngle : 0;
  rays.RayAngleDegrees = lastAngle / degree;
}

RayRequest MakeRequest(const Session& session, const SolverCall& call, RayMethod method) {
  RayRequest request;
  request.x = call.x;
  request.mRe = call.mRe;
  request.mIm = call.mIm;
  request.selected = session.state.RayEnabled;
  request.method = method;
  request.beam = BeamOf(session);
  request.grid = GridOf(call);
  request.window = WindowOf(call);
  return request;
}

void SumInto(Session& session, const RayRequest& request, const SolverCall& call, AmplitudeTable& S1,
             AmplitudeTable& S2, RunMonitor& monitor) {
  auto& s = session.state;
  s.PlaneWaveFlag = session.form1.mnuPlaneWave.Checked ? 0 : 1;
  s.SummedRows = SumRays(request, S1, S2, monitor);
  StoreGrid(session, call);
  StoreRainbow(s, call.mRe, request.grid.Angle(request.window.high));
}

}  // namespace

void GO(Session& session, const SolverCall& call, AmplitudeTable& S1, AmplitudeTable& S2, double& Qext, double& Qsca,
        double&, double&, RunMonitor& monitor) {
  auto& s = session.state;
  if (s.PlotMode == stopRequested) return;
  DebyeLabel(session);
  RaysCheck(session);
  const bool diffraction = WithDiffraction(session);
  if (NoRaysSelected(session) && !diffraction) return RefuseNoRays(session);
  WriteRunTitle(session, "");
  const ArithmeticGuard guard;
  RayRequest request = MakeRequest(session, call, MethodOf(s.CalcMethod));
  request.parallelReversed = !diffraction;
  AmplitudeTable sum1, sum2;
  ClearAmplitudes(request.grid, sum1, sum2);
  if (diffraction) {
    SumDiffraction(call.x, DiffractionForm::Disc, request.grid, request.window, sum1, sum2, monitor);
    Qext = Qsca = 4 / (call.x * call.x) * ForwardDiffraction(call.x);
  }
  SumInto(session, request, call, sum1, sum2, monitor);
  if (!guard.Passed(session)) return;
  ClearAmplitudes(request.grid, S1, S2);
  CopyRows(sum1, S1);
  CopyRows(sum2, S2);
}

void GO2(Session& session, const SolverCall& call, AmplitudeTable& S1, AmplitudeTable& S2, double&, double&, double&,
         double&, RunMonitor& monitor) {
  if (session.state.PlotMode == stopRequested) return;
  RaysCheck(session);
  const RayRequest request = MakeRequest(session, call, RayMethod::YoungMod);
  ClearAmplitudes(request.grid, S1, S2);
  const ArithmeticGuard guard;
  SumInto(session, request, call, S1, S2, monitor);
  guard.Passed(session);
}

void Airy(Session& session, const SolverCall& call, AmplitudeTable& S1, AmplitudeTable& S2, double&, double&, double&,
          double&, RunMonitor& monitor) {
  auto& s = session.state;
  if (s.PlotMode == stopRequested) return;
  DebyeLabel(session);
  RaysCheck(session);
  if (NoRaysSelected(session)) return RefuseNoRays(session);
  WriteRunTitle(session, "");
  AiryRequest request;
  request.x = call.x;
  request.m = call.mRe;
  request.grid = GridOf(call);
  request.window = WindowOf(call);
  request.selected = s.RayEnabled;
  ClearAmplitudes(request.grid, S1, S2);
  const ArithmeticGuard guard;
  s.SummedRows = SolveAiry(request, S1, S2, monitor);
  StoreGrid(session, call);
  StoreRainbow(s, call.mRe, request.grid.Angle(request.window.high));
  guard.Passed(session);
}

void Huygens(Session& session, const SolverCall& call, AmplitudeTable& S1, AmplitudeTable& S2, double&, double&,
             double&, double&, RunMonitor& monitor) {
  auto& s = session.state;
  if (s.PlotMode == stopRequested) return;
  DebyeLabel(session);
  RaysCheck(session);
  if (NoRaysSelected(session)) return RefuseNoRays(session);
  WriteRunTitle(session, "Ray tracing: Huygens (p =" + SelectedRaysText(s.RayEnabled) + ") ");
  const int rays = std::clamp(ToWhole(std::min(Val(session.form1.txtAngle.Text), 1e6)), 1, mostHuygensRays);
  const ArithmeticGuard guard;
  s.HuygensWaves.clear();
  for (int p = 0; p <= s.RayMax && s.PlotMode != stopRequested; ++p) {
    if (s.RayEnabled[static_cast<std::size_t>(p)] == 0) continue;
    s.HuygensWaves.push_back(TraceHuygens(call.x, call.mRe, p, rays));
    if (!monitor.Report(0, 1)) break;
  }
  const HuygensRequest request{call.x, call.mRe, s.RayEnabled, rays, GridOf(call), WindowOf(call)};
  ClearAmplitudes(request.grid, S1, S2);
  s.SummedRows = SumHuygens(request, S1, S2, monitor);
  StoreGrid(session, call);
  StoreRainbow(s, call.mRe, request.grid.Angle(request.window.high));
  if (!guard.Passed(session)) return;
  DrawHuygens(session);
}

}  // namespace lumivex
