/// The methods that follow rays.

#include <algorithm>
#include <numbers>
#include <utility>

#include "runs/beam_methods.h"
#include "runs/sphere_solver.h"
#include "solvers/rays/rainbow.h"
#include "solvers/rays/ray_series.h"
#include "solvers/rays/ray_table.h"

namespace lumivex {

namespace {

constexpr double degree = std::numbers::pi / 180;

RayMethod MethodOf(Method method) {
  switch (method) {
    case Method::Descartes:
      return RayMethod::Intensities;
    case Method::Young:
      return RayMethod::Young;
    case Method::YoungAiry:
      return RayMethod::YoungAiry;
    default:
      return RayMethod::YoungMod;
  }
}

bool NoneSelected(const MethodOptions& options) {
  return std::ranges::none_of(options.rays, [](int p) { return p != 0; });
}

SphereSolution Refused(Refusal refusal) {
  SphereSolution solution;
  solution.refusal = std::move(refusal);
  return solution;
}

/// What rays of the highest p leave behind.
void TellRainbow(const MethodOptions& options, const SphereAsked& asked, SphereSolution& solution) {
  const int highest = static_cast<int>(options.rays.size()) - 1;
  solution.rainbowImpact = RainbowImpactOf(asked.mRe, highest);
  const auto rainbow = MakeRainbow(asked.mRe, highest);
  solution.rainbowAngle = rainbow ? rainbow->RainbowAngle : 0;
  solution.rayAngle = asked.grid.Angle(WindowOf(asked).high) / degree;
}

/// Whether all rows wanted are done.
bool IsWhole(const RowsDone& rows, RowWindow window) {
  return rows.Contains(window.low) && rows.Contains(window.high);
}

void AddRays(const MethodOptions& options, const SphereAsked& asked, RayMethod method, bool parallelReversed,
             SphereSolution& solution, RunMonitor& monitor) {
  RayRequest request;
  request.x = asked.x;
  request.mRe = asked.mRe;
  request.mIm = asked.mIm;
  request.selected = options.rays;
  request.pieces = asked.pieces.get();
  request.method = method;
  request.beam = BeamOfRays(options.beam, asked.radius);
  request.grid = asked.grid;
  request.window = WindowOf(asked);
  request.parallelReversed = parallelReversed;
  solution.rows = SumRays(request, solution.S1, solution.S2, monitor);
  solution.finished = IsWhole(solution.rows, request.window);
  TellRainbow(options, asked, solution);
}

}  // namespace

bool TracesRays(const MethodOptions& options) {
  const bool taken = options.difference == Difference::RaysLessDebye || options.difference == Difference::DebyeLessRays;
  return TraitsOf(options.method).takesDiffraction || taken;
}

std::shared_ptr<const RayPieces> PiecesOf(const MethodOptions& options, double mRe, double mIm, RunMonitor& monitor) {
  auto pieces = MakeRayPieces({mRe, mIm}, options.rays, monitor);
  return pieces ? std::make_shared<const RayPieces>(std::move(*pieces)) : nullptr;
}

SphereSolution GO(const MethodOptions& options, const SphereAsked& asked, RunMonitor& monitor) {
  if (NoneSelected(options) && !options.addDiffraction) return Refused(NoRays());
  SphereSolution solution = EmptySolution(asked);
  if (options.addDiffraction) {
    SumDiffraction(asked.x, DiffractionForm::Disc, asked.grid, WindowOf(asked), solution.S1, solution.S2, monitor);
    solution.efficiencies.Qext = solution.efficiencies.Qsca = 4 / (asked.x * asked.x) * ForwardDiffraction(asked.x);
  }
  const bool alone = !options.addDiffraction && options.difference == Difference::None;
  AddRays(options, asked, MethodOf(options.method), alone, solution, monitor);
  return solution;
}

SphereSolution GO2(const MethodOptions& options, const SphereAsked& asked, RunMonitor& monitor) {
  SphereSolution solution = EmptySolution(asked);
  AddRays(options, asked, RayMethod::YoungMod, false, solution, monitor);
  return solution;
}

SphereSolution Airy(const MethodOptions& options, const SphereAsked& asked, RunMonitor& monitor) {
  if (NoneSelected(options)) return Refused(NoRays());
  SphereSolution solution = EmptySolution(asked);
  AiryRequest request;
  request.x = asked.x;
  request.m = asked.mRe;
  request.grid = asked.grid;
  request.window = WindowOf(asked);
  request.selected = options.rays;
  solution.rows = SolveAiry(request, solution.S1, solution.S2, monitor);
  solution.finished = IsWhole(solution.rows, request.window);
  TellRainbow(options, asked, solution);
  return solution;
}

SphereSolution Huygens(const MethodOptions& options, const SphereAsked& asked, RunMonitor& monitor) {
  if (NoneSelected(options)) return Refused(NoRays());
  SphereSolution solution = EmptySolution(asked);
  for (std::size_t p = 0; p < options.rays.size(); ++p) {
    if (options.rays[p] == 0) continue;
    solution.wavefronts.push_back(TraceHuygens(asked.x, asked.mRe, static_cast<int>(p), options.counted));
    if (monitor.Report(0, 1)) continue;
    solution.finished = false;
    return solution;
  }
  const HuygensRequest request{asked.x, asked.mRe, options.rays, options.counted, asked.grid, WindowOf(asked)};
  solution.rows = SumHuygens(request, solution.S1, solution.S2, monitor);
  solution.finished = IsWhole(solution.rows, request.window);
  TellRainbow(options, asked, solution);
  return solution;
}

}  // namespace lumivex
