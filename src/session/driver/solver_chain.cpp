#include "session/driver/solver_chain.h"

#include <array>

#include "session/driver/progress.h"
#include "solvers/mie.h"

namespace lumivex {

namespace {

struct SolverRow {
  int method;
  void (*solver)(Session&, const SolverCall&, AmplitudeTable&, AmplitudeTable&, double&, double&, double&, double&,
                 RunMonitor&);
};

// One row a method, in the order of their codes.
constexpr std::array solverRows = {
    SolverRow{1, BHMIE},
};

}  // namespace

void CallSolver(Session& session, int rowLow, int rowHigh) {
  auto& s = session.state;
  SessionMonitor monitor(session);
  const SolverCall call{s.SizeParameter, s.RefRelReal, s.RefRelImag, s.NANG, rowLow, rowHigh};
  for (const auto& row : solverRows)
    if (row.method == s.CalcMethod) row.solver(session, call, s.S1, s.S2, s.Qext, s.Qsca, s.Qback, s.Gsca, monitor);
}

}  // namespace lumivex
