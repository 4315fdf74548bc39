#include "session/routines/debye.h"

#include <algorithm>

#include "record/number_text.h"
#include "session/inputs/methods/debye_label.h"
#include "session/inputs/methods/rays_check.h"
#include "session/routines/arithmetic_guard.h"
#include "session/routines/mie.h"
#include "session/routines/rays.h"
#include "session/routines/run_store.h"
#include "solvers/series/debye_series.h"
#include "solvers/series/mie_efficiencies.h"

namespace lumivex {

namespace {

constexpr int mieMethod = 1, debyeMethod = 2, youngModMethod = 8;
constexpr int convergenceGraph = 13;
constexpr int stopRequested = 4;
/// Beyond this absorption nothing comes out of the sphere any more.
constexpr double opaque = 700;

DebyeRequest ReadRequest(const Session& session, const SolverCall& call) {
  const auto& dialog = session.forms.dlogPartial;
  DebyeRequest request;
  request.x = call.x;
  request.mRe = call.mRe;
  request.mIm = call.mIm;
  request.NANG = std::max(call.NANG, 2);
  request.window = {call.RowLow, call.RowHigh};
  request.angle = call.angle;
  request.selected = session.state.RayEnabled;
  request.byRatio = session.form1.mnuDebyeRecursion.Checked;
  request.convergence = session.state.GraphType == convergenceGraph;
  request.partial = dialog.optPartial.Checked;
  request.firstRatio = Val(dialog.txtMin.Text);
  request.lastRatio = Val(dialog.txtMax.Text);
  return request;
}

void Store(Session& session, const SolverCall& call, DebyeResult& result, AmplitudeTable& S1, AmplitudeTable& S2) {
  auto& s = session.state;
  StoreGrid(session, call);
  s.NSTOP = result.NSTOP;
  s.NMX = result.NMX;
  s.PartialWaveFirst = result.PartialWaveFirst;
  s.PartialWaveLast = result.PartialWaveLast;
  s.SummedRows = result.rows;
  ClearAmplitudes(GridOf(call), S1, S2);
  CopyRows(result.S1, S1);
  CopyRows(result.S2, S2);
  if (s.GraphType == convergenceGraph) {
    s.Iperp = std::move(result.convergence.perpendicular);
    s.Ipar = std::move(result.convergence.parallel);
    s.Iunpol = std::move(result.convergence.unpolarised);
    session.form1.txtXmax.Text = std::to_string(result.NSTOP);
  }
  s.Waves = std::move(result.waves);
}

/// S1 and S2 become the second set less themselves.
void SubtractFrom(const SolverCall& call, const AmplitudeTable& S1b, const AmplitudeTable& S2b, AmplitudeTable& S1,
                  AmplitudeTable& S2) {
  const RowWindow window = WindowOf(call);
  for (int row = window.low; row <= window.high; ++row) {
    S1.Set(row, S1b.Re(row) - S1.Re(row), S1b.Im(row) - S1.Im(row));
    S2.Set(row, S2b.Re(row) - S2.Re(row), S2b.Im(row) - S2.Im(row));
  }
}

RowWindow Both(const RowWindow& a, const RowWindow& b) {
  return {std::max(a.low, b.low), std::min(a.high, b.high)};
}

/// What two runs have both done.
RowsDone Both(const RowsDone& a, const RowsDone& b) {
  return {Both(a.forward, b.forward), Both(a.mirrored, b.mirrored)};
}

/// A solver as `CalcMethod` method, into the second set of amplitudes; its efficiencies are dropped.
template <class Solver>
void RunSecond(Session& session, int method, Solver solver, const SolverCall& call, RunMonitor& monitor) {
  auto& s = session.state;
  const PartialWaves waves = s.Waves;
  const std::string title = s.RunTitle;
  const RowsDone rows = s.SummedRows;
  double Qext = 0, Qsca = 0, Qback = 0, g = 0;
  s.S1b.Resize(GridOf(call).RowCount());
  s.S2b.Resize(GridOf(call).RowCount());
  s.CalcMethod = method;
  solver(session, call, s.S1b, s.S2b, Qext, Qsca, Qback, g, monitor);
  s.CalcMethod = debyeMethod;
  s.Waves = waves;
  s.RunTitle = title;
  s.SummedRows = Both(rows, s.SummedRows);
}

/// The opposite of SubtractFrom.
void Negate(const SolverCall& call, AmplitudeTable& S) {
  const RowWindow window = WindowOf(call);
  for (int row = window.low; row <= window.high; ++row) S.Set(row, -S.Re(row), -S.Im(row));
}

}  // namespace

void DebyeSeries(Session& session, const SolverCall& call, AmplitudeTable& S1, AmplitudeTable& S2, double& Qext,
                 double& Qsca, double& Qback, double& g, RunMonitor& monitor) {
  auto& s = session.state;
  const auto& form = session.form1;
  if (s.PlotMode == stopRequested) return;
  if (form.cboRays.Text == "0" && call.x * call.mIm > opaque) {
    s.CalcMethod = mieMethod;
    BHMIE(session, call, S1, S2, Qext, Qsca, Qback, g, monitor);
    s.CalcMethod = debyeMethod;
    DebyeLabel(session);
    return;
  }
  DebyeLabel(session);
  RaysCheck(session);
  if (NoRaysSelected(session)) return RefuseNoRays(session);
  WriteRunTitle(session, form.cboRays.Text == "0" ? "Debye series (p = 0):  " : "");

  const DebyeRequest request = ReadRequest(session, call);
  const ArithmeticGuard guard;
  DebyeResult result = SolveDebye(request, monitor);
  if (result.refusal != MieRefusal::None) {
    session.platform.Message("Error", "Reduce radius or increase wavelength");
    s.PlotMode = stopRequested;
    return;
  }
  if (!guard.Passed(session)) return;
  Store(session, call, result, S1, S2);
  const Efficiencies efficiencies = EfficienciesOf(s.Waves, call.x);
  if (Val(form.txtRefractImag.Text) == 0) Qext = Qsca = efficiencies.Qext;
  Qback = efficiencies.Qback;
  g = efficiencies.g;
  if (!form.mnuSWsub.Checked || s.PlotMode == stopRequested) return;
  RunSecond(session, youngModMethod, GO2, call, monitor);
  SubtractFrom(call, s.S1b, s.S2b, S1, S2);
  Negate(call, S1);
  Negate(call, S2);
}

void DebyeDifference(Session& session, const SolverCall& call, AmplitudeTable& S1, AmplitudeTable& S2, double& Qext,
                     double& Qsca, double& Qback, double& g, RunMonitor& monitor) {
  auto& s = session.state;
  const auto& form = session.form1;
  DebyeSeries(session, call, S1, S2, Qext, Qsca, Qback, g, monitor);
  if (s.PlotMode == stopRequested) return;
  if (form.mnuMieDebye.Checked) {
    RunSecond(session, mieMethod, BHMIE, call, monitor);
  } else if (form.mnuGODebye.Checked) {
    RunSecond(session, youngModMethod, GO2, call, monitor);
  } else {
    return;
  }
  SubtractFrom(call, s.S1b, s.S2b, S1, S2);
  DebyeLabel(session);
}

}  // namespace lumivex
