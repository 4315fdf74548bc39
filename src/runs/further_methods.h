#pragma once

#include <array>
#include <functional>
#include <optional>
#include <vector>

#include "runs/results.h"
#include "runs/sphere_solver.h"
#include "runs/task_pool.h"
#include "solvers/drops/drop_rainbow.h"
#include "solvers/drops/drop_rays.h"

namespace lumivex {

// Surface waves, flattened drops and dew: what they refuse, and the same solvers with the rows, or the rays, of one
// sphere divided among the threads of a pool. Their results are the same bits on any number of threads.

/// Ray optics is not asked about spheres below this size parameter.
inline constexpr double leastSizeOfRays = 10;

Refusal BeyondSurfaceWaves(const MethodOptions& options, double x, double mRe);
SphereSolution SurfaceWavesInParts(const MethodOptions& options, const SphereAsked& asked, TaskPool& pool);

/// Fits a drop of a radius (um); nothing where no drop is so large.
std::optional<DropShape> ShapeOfDrop(const DropOptions& options, double radius);
/// Where the secondary and the primary bow of a sphere's drops stand in the middle of each of so many equal sectors of
/// the clock, from the top of the bow to its foot: scattering angles (degrees), not a number where one is not counted
/// or has ended.
std::vector<std::array<double, 2>> BowsOfSectors(const Results& results, int sectors);
/// No rays, no index above 1, too small, larger than drops get, or concave.
Refusal BeyondDrops(const MethodOptions& options, const SphereAsked& asked);
/// After a Stop all rows are there, counted from the rays that were traced.
SphereSolution NonSphericalInParts(const MethodOptions& options, const SphereAsked& asked, TaskPool& pool);

Refusal BeyondDew(double x);
SphereSolution DewInParts(const MethodOptions& options, const SphereAsked& asked, TaskPool& pool);

/// Has rows summed in parts that know nothing of each other.
/// @param sum    fills rows and returns how many of them, from the first.
/// @param taken  is told the last row that is there, in their order.
/// @return whether all were summed.
bool SumRowsInParts(RowWindow rows, int rowsPerPart, TaskPool& pool,
                    const std::function<int(RowWindow part, RunMonitor& monitor)>& sum,
                    const std::function<void(int last)>& taken);

/// Does one thing as a task of the pool, so that its arithmetic is watched and a Stop is seen.
/// @return whether it came to its end.
bool DoOnce(TaskPool& pool, const std::function<bool(RunMonitor& monitor)>& work, double shareOfRun = 0);

}  // namespace lumivex
