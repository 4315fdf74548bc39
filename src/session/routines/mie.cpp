#include "session/routines/mie.h"

#include <algorithm>
#include <initializer_list>
#include <memory>
#include <utility>

#include "record/number_text.h"
#include "session/routines/arithmetic_guard.h"
#include "solvers/series/mie_point.h"
#include "solvers/series/mie_series.h"

namespace lumivex {

namespace {

constexpr int convergenceGraph = 13;

/// The cosines of the rows asked for: those of the call before where they will do.
std::shared_ptr<const AngleCosines> CosinesFor(SeriesState& s, int NANG, RowWindow window) {
  const AngleGrid grid(NANG);
  if (!s.Cosines || !s.Cosines->Covers(grid, window)) s.Cosines = std::make_shared<const AngleCosines>(grid, window);
  return s.Cosines;
}

MieRequest ReadRequest(Session& session, const SolverCall& call) {
  MieRequest request;
  request.x = call.x;
  request.mRe = call.mRe;
  request.mIm = call.mIm;
  request.NANG = std::max(call.NANG, 2);
  request.window = {call.RowLow, call.RowHigh};
  request.cosines = CosinesFor(session.state, request.NANG, request.window);
  request.divideBySize = session.form1.mnuSize.Checked;
  request.classicStart = session.form1.mnuClassicStart.Checked;
  request.convergence = session.state.GraphType == convergenceGraph;
  request.selectedAngleIndex = session.state.SelectedAngleIndex;
  return request;
}

/// One angle in place of a table.
void SolveAtAngle(Session& session, const MieRequest& request, double angle, AmplitudeTable& S1, AmplitudeTable& S2,
                  Efficiencies& efficiencies) {
  auto& s = session.state;
  SilentMonitor silent;
  const MiePoint point =
      SolveMiePoint({request.x, request.mRe, request.mIm, angle, request.divideBySize, request.classicStart}, silent);
  S1.Set(1, point.S1.re, point.S1.im);
  S2.Set(1, point.S2.re, point.S2.im);
  s.NSTOP = point.NSTOP;
  s.NMX = point.NMX;
  efficiencies = point.efficiencies;
}

void RefuseSize(Session& session) {
  session.platform.Message("Error in BHMIE sub-routine", "Reduce radius or increase wavelength");
  session.state.PlotMode = 4;
}

void StoreConvergence(Session& session, MieResult& result) {
  auto& s = session.state;
  s.Iperp = std::move(result.convergence.perpendicular);
  s.Ipar = std::move(result.convergence.parallel);
  s.Iunpol = std::move(result.convergence.unpolarised);
  session.form1.txtXmax.Text = std::to_string(result.truncation.NSTOP);
}

}  // namespace

void WriteMieTitle(Session& session) {
  auto& s = session.state;
  const auto& form = session.form1;
  const std::initializer_list<int> variesMaterial = {12, 22, 23, 26, 27, 28};
  const std::string materials = std::string(Trim(s.SphereName)) + " in " + std::string(Trim(s.MediumName));
  const bool named = std::ranges::find(variesMaterial, s.GraphType) == variesMaterial.end() && s.RIUserEdited == 0;
  if (form.cboType.Text == "Mie") s.RunTitle = named ? "Mie scattering:  " + materials : "Mie scattering";
  if (form.cboType.Text == "Debye" && form.cboRays.Text == "0") s.RunTitle = "Debye series (p = 0):  " + materials;
}

void BHMIE(Session& session, const SolverCall& call, AmplitudeTable& S1, AmplitudeTable& S2, double& Qext, double& Qsca,
           double& Qback, double& g, RunMonitor& monitor) {
  auto& s = session.state;
  session.form1.lblDebyeRays.Caption = "Mie (plane wave)";
  if (s.PlotMode == 4) return;
  WriteMieTitle(session);

  MieRequest request = ReadRequest(session, call);
  // Tables keep rows beyond the grid, which averaging reads; those stay 0.
  request.tableRows = std::max(S1.Rows(), S2.Rows());
  const ArithmeticGuard guard;
  if (call.angle) {
    if (CheckMieLimits(call.x, call.mRe, call.mIm) != MieRefusal::None) return RefuseSize(session);
    Efficiencies efficiencies;
    SolveAtAngle(session, request, *call.angle, S1, S2, efficiencies);
    if (!guard.Passed(session)) return;
    Qext = efficiencies.Qext;
    Qsca = efficiencies.Qsca;
    Qback = efficiencies.Qback;
    g = efficiencies.g;
    return;
  }
  MieResult result = SolveMie(request, monitor);
  if (result.refusal != MieRefusal::None) return RefuseSize(session);
  if (!guard.Passed(session)) return;

  const AngleGrid grid(request.NANG);
  s.NANG = grid.NANG;
  s.NN = grid.RowCount();
  s.DANG = grid.DANG;
  s.NSTOP = result.truncation.NSTOP;
  s.NMX = result.truncation.NMX;
  s.SummedRows = result.rows;
  S1 = std::move(result.S1);
  S2 = std::move(result.S2);
  if (request.convergence) StoreConvergence(session, result);
  s.Waves = std::move(result.waves);
  Qext = result.efficiencies.Qext;
  Qsca = result.efficiencies.Qsca;
  Qback = result.efficiencies.Qback;
  g = result.efficiencies.g;
}

}  // namespace lumivex
