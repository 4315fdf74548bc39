#include "session/driver/solver_chain.h"

#include <algorithm>
#include <array>

#include "record/number_text.h"
#include "session/driver/progress.h"
#include "session/routines/debye.h"
#include "session/routines/mie.h"
#include "session/routines/rays.h"
#include "session/routines/simple_methods.h"
#include "solvers/patterns/simple_scattering.h"
#include "solvers/series/mie_efficiencies.h"

namespace lumivex {

namespace {

constexpr int debyeMethod = 2, diffractionMethod = 4, stopRequested = 4;

struct SolverRow {
  int method;
  void (*solver)(Session&, const SolverCall&, AmplitudeTable&, AmplitudeTable&, double&, double&, double&, double&,
                 RunMonitor&);
};

// One row a method, in the order of their codes. The differences of the Debye series stand in the row of the series.
constexpr std::array solverRows = {
    SolverRow{1, BHMIE},    SolverRow{2, DebyeDifference},
    SolverRow{3, Rayleigh}, SolverRow{4, Diffraction},
    SolverRow{5, Airy},     SolverRow{6, GO},
    SolverRow{7, GO},       SolverRow{8, GO},
    SolverRow{9, Huygens},  SolverRow{10, Aperture},
    SolverRow{12, vdh},     SolverRow{14, GO},
};

void Call(Session& session, const SolverCall& call, AmplitudeTable& S1, AmplitudeTable& S2) {
  auto& s = session.state;
  SessionMonitor monitor(session);
  const auto row = std::ranges::find(solverRows, s.CalcMethod, &SolverRow::method);
  if (row == solverRows.end()) return;
  // What a run by another method left is no result of this one.
  if (s.CalcMethod > debyeMethod) s.Qext = s.Qsca = s.Qback = s.Gsca = 0;
  row->solver(session, call, S1, S2, s.Qext, s.Qsca, s.Qback, s.Gsca, monitor);
  if (s.CalcMethod == diffractionMethod && s.Qext == 0)
    s.Qext = s.Qsca = 4 / (call.x * call.x) * ForwardDiffraction(call.x);
  if (s.CalcMethod != debyeMethod || s.PlotMode == stopRequested || Val(session.form1.txtRefractImag.Text) == 0) return;
  // The series tells no efficiencies of an absorbing sphere: those of the selected terms' own field stand, not what a
  // run before has left.
  const Efficiencies efficiencies = EfficienciesOf(s.Waves, call.x);
  s.Qext = efficiencies.Qext;
  s.Qsca = efficiencies.Qsca;
}

}  // namespace

void CallSolver(Session& session, int rowLow, int rowHigh) {
  auto& s = session.state;
  Call(session, {s.SizeParameter, s.RefRelReal, s.RefRelImag, s.NANG, rowLow, rowHigh}, s.S1, s.S2);
}

void CallSolverAt(Session& session, double angle, AmplitudeTable& S1, AmplitudeTable& S2) {
  const auto& s = session.state;
  Call(session, {s.SizeParameter, s.RefRelReal, s.RefRelImag, s.NANG, 1, 1, angle}, S1, S2);
}

}  // namespace lumivex
