#include "session/driver/point_solver.h"

#include <algorithm>

#include "session/driver/progress.h"
#include "session/driver/solver_chain.h"
#include "session/record/number_text.h"
#include "solvers/arithmetic_guard.h"
#include "solvers/kernel/angle_grid.h"
#include "solvers/kernel/mie_point.h"

namespace lumivex {

namespace {

constexpr int mieMethod = 1;
constexpr int fineRowsTo90 = 9001;  // 0.01 degrees

std::optional<PointResult> SolveMieAt(Session& session, double angle) {
  auto& s = session.state;
  if (RefuseBeyondMie(session, s.SizeParameter, s.RefRelReal, s.RefRelImag)) return std::nullopt;
  SilentMonitor silent;
  const ArithmeticGuard guard;
  const MiePoint point = SolveMiePoint({s.SizeParameter, s.RefRelReal, s.RefRelImag, angle,
                                        session.form1.mnuSize.Checked, session.form1.mnuClassicStart.Checked},
                                       silent);
  if (!guard.Passed(session)) return std::nullopt;
  s.NSTOP = point.NSTOP;
  s.NMX = point.NMX;
  return PointResult{point.S1, point.S2, point.efficiencies};
}

/// By the method's table, of which one row is asked for.
std::optional<PointResult> SolveByTable(Session& session, double angle) {
  auto& s = session.state;
  s.NANG = fineRowsTo90;
  s.NN = 2 * s.NANG - 1;
  const AngleGrid grid(s.NANG);
  s.SelectedAngleIndex = std::clamp(ToWhole(angle / grid.DANG) + 1, 1, grid.RowCount());
  CallSolver(session, s.SelectedAngleIndex, s.SelectedAngleIndex);
  if (s.PlotMode == 4) return std::nullopt;
  return PointResult{
      s.S1.Value(s.SelectedAngleIndex), s.S2.Value(s.SelectedAngleIndex), {s.Qext, s.Qsca, s.Qback, s.Gsca}};
}

}  // namespace

bool RefuseBeyondMie(Session& session, double x, double mRe, double mIm) {
  if (CheckMieLimits(x, mRe, mIm) == MieRefusal::None) return false;
  session.platform.Message("Error in BHMIE sub-routine", "Reduce radius or increase wavelength");
  session.state.PlotMode = 4;
  return true;
}

std::optional<PointResult> SolvePoint(Session& session, double angle) {
  return session.state.CalcMethod == mieMethod ? SolveMieAt(session, angle) : SolveByTable(session, angle);
}

}  // namespace lumivex
