/// Surface waves.

#include <algorithm>
#include <numbers>
#include <string>
#include <vector>

#include "runs/further_methods.h"
#include "runs/watched.h"
#include "solvers/rays/rainbow.h"

namespace lumivex {

namespace {

/// Orders p that a sphere of any size takes, and how much of x each further one needs.
constexpr double leastOfMostCuts = 5, sizePerCut = 5;

/// The waves of each selected term; empty after a Stop.
std::vector<SurfaceWave> WavesOf(const MethodOptions& options, const SphereAsked& asked, RunMonitor& monitor) {
  const SurfaceWaveOptions& wanted = options.surface;
  const int lastTerm = static_cast<int>(options.rays.size()) - 1;
  const auto poles = FindSurfacePoles(asked.x, {asked.mRe, asked.mIm}, wanted.lastPole, lastTerm, monitor);
  std::vector<SurfaceWave> waves;
  if (poles.empty()) return waves;
  for (int p = 1; p <= lastTerm; ++p)
    if (options.rays[static_cast<std::size_t>(p)] != 0)
      waves.emplace_back(poles, asked.x, asked.mRe, p, wanted.path, wanted.firstPole, wanted.lastPole);
  return waves;
}

/// Adds all waves to the rows of a part.
/// @return the rows done, from the first.
int SumRows(const std::vector<SurfaceWave>& waves, double amplitude, const AngleGrid& grid, RowWindow part,
            SphereSolution& solution, RunMonitor& monitor) {
  std::vector<double> angles;
  for (int row = part.low; row <= part.high; ++row)
    angles.push_back(std::clamp(grid.Angle(row), 0.0, std::numbers::pi));
  std::size_t done = angles.size();
  for (const SurfaceWave& wave : waves)
    done = std::min(done, wave.Sum(angles, amplitude, solution.S1, solution.S2, part.low, monitor));
  return static_cast<int>(done);
}

}  // namespace

Refusal BeyondSurfaceWaves(const MethodOptions& options, double x, double mRe) {
  if (std::ranges::none_of(options.rays.begin() + std::min<std::ptrdiff_t>(1, std::ssize(options.rays)),
                           options.rays.end(), [](int p) { return p != 0; }))
    return NoRays();
  if (!SurfaceWavesApply(x, mRe))
    return {"Surface wave", "Surface waves need a larger sphere or a higher refractive index",
            mRe > 1 ? InputAtFault::Size : InputAtFault::None};
  // Poles of order p + 1 are too near each other for their circles where the sphere is small.
  const int most = static_cast<int>(std::max(leastOfMostCuts, std::min(x / sizePerCut, 1e6)));
  const auto wanted = std::ranges::find_if(options.rays.rbegin(), options.rays.rend(), [](int p) { return p != 0; });
  if (options.rays.rend() - wanted - 1 <= most) return {};
  return {"Surface wave", "Surface waves of more than " + std::to_string(most) + " short cuts need a larger sphere",
          InputAtFault::Size};
}

SphereSolution SurfaceWaves(const MethodOptions& options, const SphereAsked& asked, RunMonitor& monitor) {
  SphereSolution solution = EmptySolution(asked);
  solution.refusal = BeyondSurfaceWaves(options, asked.x, asked.mRe);
  if (solution.Refused()) return solution;
  Watched watched(monitor);
  const auto waves = WavesOf(options, asked, watched);
  const RowWindow rows = WindowOf(asked);
  const int done = watched.goesOn ? SumRows(waves, options.surface.amplitude, asked.grid, rows, solution, watched) : 0;
  solution.finished = watched.goesOn;
  if (done > 0) solution.rows = RowsUpTo(asked.grid, rows, rows.low + done - 1);
  return solution;
}

SphereSolution SurfaceWavesInParts(const MethodOptions& options, const SphereAsked& asked, TaskPool& pool) {
  SphereSolution solution = EmptySolution(asked);
  solution.refusal = BeyondSurfaceWaves(options, asked.x, asked.mRe);
  if (solution.Refused()) return solution;
  std::vector<SurfaceWave> waves;
  solution.finished = DoOnce(pool, [&](RunMonitor& monitor) {
    Watched watched(monitor);
    waves = WavesOf(options, asked, watched);
    return watched.goesOn;
  });
  if (!solution.finished) return solution;
  constexpr int rowsPerPart = 64;
  const RowWindow rows = WindowOf(asked);
  solution.finished = SumRowsInParts(
      rows, rowsPerPart, pool,
      [&](RowWindow part, RunMonitor& monitor) {
        return SumRows(waves, options.surface.amplitude, asked.grid, part, solution, monitor);
      },
      [&](int last) { solution.rows = RowsUpTo(asked.grid, rows, last); });
  return solution;
}

}  // namespace lumivex
