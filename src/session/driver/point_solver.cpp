#include "session/driver/point_solver.h"

#include <algorithm>

#include "record/number_text.h"
#include "session/driver/solver_chain.h"
#include "solvers/angles/angle_grid.h"
#include "solvers/series/mie_coefficients.h"

namespace lumivex {

namespace {

constexpr double pi = 3.14159265358979324;
constexpr int fineRowsTo90 = 9001;  // 0.01 degrees

}  // namespace

bool RefuseBeyondMie(Session& session, double x, double mRe, double mIm) {
  if (CheckMieLimits(x, mRe, mIm) == MieRefusal::None) return false;
  session.platform.Message("Error in BHMIE sub-routine", "Reduce radius or increase wavelength");
  session.state.PlotMode = 4;
  return true;
}

std::optional<PointResult> SolvePoint(Session& session, double angle) {
  auto& s = session.state;
  s.NANG = fineRowsTo90;
  s.NN = 2 * s.NANG - 1;
  s.SelectedAngleIndex = std::clamp(ToWhole(angle / AngleGrid(s.NANG).DANG) + 1, 1, s.NN);
  AmplitudeTable S1(1), S2(1);
  CallSolverAt(session, angle, S1, S2);
  if (s.PlotMode == 4) return std::nullopt;
  const double area = pi * s.Radius * s.Radius;
  return PointResult{S1.Value(1), S2.Value(1), {s.Qext, s.Qsca, s.Qback, s.Gsca}, {}, s.Qext * area, s.Qsca * area};
}

}  // namespace lumivex
