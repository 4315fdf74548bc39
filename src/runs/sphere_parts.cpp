/// One sphere divided among threads.

#include <algorithm>
#include <chrono>
#include <utility>

#include "runs/beam_methods.h"
#include "runs/further_methods.h"
#include "runs/settings.h"
#include "solvers/series/folded_series.h"

namespace lumivex {

namespace {

/// Parts of rows, from the lowest.
std::vector<RowWindow> PartsOf(RowWindow rows, int rowsPerPart) {
  std::vector<RowWindow> parts;
  for (int low = rows.low; low <= rows.high; low += rowsPerPart)
    parts.push_back({low, std::min(low + rowsPerPart - 1, rows.high)});
  return parts;
}

RowWindow Joined(const RowWindow& a, const RowWindow& b) {
  if (a.Empty()) return b;
  return b.Empty() ? a : RowWindow{std::min(a.low, b.low), std::max(a.high, b.high)};
}

RowsDone Joined(const RowsDone& a, const RowsDone& b) {
  return {Joined(a.forward, b.forward), Joined(a.mirrored, b.mirrored)};
}

/// The share of the work that is done before any angle: coefficients of a series are little beside the sums over the
/// angles, but for a sphere of many layers.
double ShareOfCoefficients(const MethodOptions& options, const SphereAsked& asked) {
  if (options.method != Method::InhomogeneousSphere) return 0;
  constexpr double rowsOfALayer = 250;  // take as long as a layer (measured)
  const double layers = options.layers.layers * rowsOfALayer;
  return layers / (layers + std::max(1, asked.window.high - asked.window.low + 1));
}

/// A single task, so that its arithmetic is watched and a Stop is seen.
SphereSolution SolveWhole(const MethodOptions& options, const SphereAsked& asked, TaskPool& pool,
                          double shareOfRun = 1) {
  SphereSolution solution;
  TaskList one;
  one.count = 1;
  one.shareOfRun = shareOfRun;
  one.work = [&](std::size_t, std::size_t, RunMonitor& monitor) {
    solution = SolveSphere(options, asked, monitor);
    return true;
  };
  one.take = [](std::size_t, std::size_t) { return true; };
  if (pool.Do(one) == 0) solution.finished = false;
  return solution;
}

/// The sum of a series over the rows, part by part.
void SumInParts(const MethodOptions& options, const SphereAsked& asked, SphereSolution& solution, TaskPool& pool,
                double shareBefore) {
  const AngleCosines cosines(asked.grid, asked.window);
  // Whole blocks of the inner loop in every part, so that rows come out the same however they are divided.
  constexpr std::size_t mostBlocks = 1U << 16U;
  const auto terms = static_cast<std::size_t>(std::max(solution.waves.Terms(), 1));
  const std::size_t blocks = std::clamp<std::size_t>(MaxPairTermsPerLook / (PairBlock * terms), 1, mostBlocks);
  const auto parts = PartsOf(AngleCosines::Folded(asked.grid, asked.window), static_cast<int>(PairBlock * blocks));
  std::vector<RowsDone> done(parts.size());
  TaskList tasks;
  tasks.count = parts.size();
  tasks.shareBefore = shareBefore;
  tasks.shareOfRun = 1 - shareBefore;
  tasks.work = [&](std::size_t task, std::size_t, RunMonitor& monitor) {
    done[task] = SumFoldedRows(solution.waves, asked.grid, cosines, asked.window, parts[task], solution.S1, solution.S2,
                               monitor);
    return !done[task].Empty();
  };
  tasks.take = [&](std::size_t task, std::size_t) {
    solution.rows = Joined(solution.rows, done[task]);
    return true;
  };
  solution.rows = {};
  solution.finished = pool.Do(tasks) == tasks.count;
  if (!options.divideBySize) return;
  solution.S1.Scale(1 / asked.x);
  solution.S2.Scale(1 / asked.x);
}

/// The coefficients once, the rows of the double series part by part.
SphereSolution SolveBeamInParts(const MethodOptions& options, const SphereAsked& asked, TaskPool& pool) {
  BeamScattering beam;
  TaskList one;
  one.count = 1;
  one.shareOfRun = 0;
  one.work = [&](std::size_t, std::size_t, RunMonitor& monitor) {
    beam = ScatterBeam(options, asked, monitor);
    return true;
  };
  one.take = [](std::size_t, std::size_t) { return true; };
  if (pool.Do(one) == 0) beam.series.reset();
  SphereSolution solution = SolutionOf(beam, asked);
  if (!beam.series) return solution;
  const auto start = std::chrono::steady_clock::now();
  // Some ms of work in each part, and whole blocks of the inner loop.
  constexpr double termsPerPart = 2e6;
  constexpr int rowsOfBlock = 8, mostBlocks = 64;
  const BeamLimits limits = beam.numbers.limits;
  const double terms = static_cast<double>(limits.Lmax) * (limits.Mmax + 1) * rowsOfBlock;
  const int blocks = static_cast<int>(std::clamp(termsPerPart / terms, 1.0, double{mostBlocks}));
  const auto parts = PartsOf(WindowOf(asked), rowsOfBlock * blocks);
  std::vector<RowsDone> done(parts.size());
  TaskList tasks;
  tasks.count = parts.size();
  tasks.work = [&](std::size_t task, std::size_t, RunMonitor& monitor) {
    done[task] = SumBeamRows(*beam.series, options, asked, parts[task], solution, monitor);
    return done[task].Contains(parts[task].high);
  };
  tasks.take = [&](std::size_t task, std::size_t) {
    solution.rows = Joined(solution.rows, done[task]);
    return true;
  };
  solution.finished = pool.Do(tasks) == tasks.count;
  solution.beam->angles = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
  return solution;
}

/// Rays of one row know nothing of those of another.
SphereSolution SolveRaysInParts(const MethodOptions& options, const SphereAsked& asked, TaskPool& pool) {
  constexpr int leastRows = 64, mostParts = 16;
  const RowWindow window{std::max(asked.window.low, 1), std::min(asked.window.high, asked.grid.RowCount())};
  const auto parts = PartsOf(window, std::max(leastRows, (window.high - window.low) / mostParts + 1));
  std::vector<SphereSolution> slots(pool.Slots());
  SphereSolution whole;
  const auto copy = [](const AmplitudeTable& from, AmplitudeTable& to, RowWindow rows) {
    for (int row = rows.low; row <= rows.high; ++row) to.Set(row, from.Re(row), from.Im(row));
  };
  SphereAsked withPieces = asked;
  withPieces.pieces = PiecesInPool(options, asked.mRe, asked.mIm, pool);
  TaskList tasks;
  tasks.count = parts.size();
  tasks.work = [&](std::size_t task, std::size_t slot, RunMonitor& monitor) {
    SphereAsked part = withPieces;
    part.window = parts[task];
    slots[slot] = SolveSphere(options, part, monitor);
    return slots[slot].finished;
  };
  tasks.take = [&](std::size_t task, std::size_t slot) {
    if (task == 0) {
      whole = std::move(slots[slot]);
      return !whole.Refused();
    }
    copy(slots[slot].S1, whole.S1, parts[task]);
    copy(slots[slot].S2, whole.S2, parts[task]);
    whole.rows = Joined(whole.rows, slots[slot].rows);
    whole.rayAngle = slots[slot].rayAngle;
    return true;
  };
  whole.finished = false;
  const std::size_t taken = pool.Do(tasks);
  whole.finished = taken == tasks.count;
  return whole;
}

}  // namespace

std::shared_ptr<const RayPieces> PiecesInPool(const MethodOptions& options, double mRe, double mIm, TaskPool& pool) {
  std::shared_ptr<const RayPieces> pieces;
  if (!TracesRays(options)) return pieces;
  TaskList one;
  one.count = 1;
  one.shareOfRun = 0;
  one.work = [&](std::size_t, std::size_t, RunMonitor& monitor) {
    pieces = PiecesOf(options, mRe, mIm, monitor);
    return true;
  };
  one.take = [](std::size_t, std::size_t) { return true; };
  pool.Do(one);
  return pieces;
}

SphereSolution SolveInParts(const MethodOptions& options, const SphereAsked& asked, TaskPool& pool) {
  if (options.method == Method::SurfaceWave) return SurfaceWavesInParts(options, asked, pool);
  if (options.method == Method::Burgeroid) return NonSphericalInParts(options, asked, pool);
  if (options.method == Method::Heiligenschein) return DewInParts(options, asked, pool);
  const bool series = options.method == Method::Mie || TraitsOf(options.method).layered ||
                      (options.method == Method::Debye && options.difference == Difference::None);
  if (series && !options.beam.Plane()) return SolveBeamInParts(options, asked, pool);
  if (series) {
    SphereAsked noRows = asked;
    noRows.window = {};
    const double share = ShareOfCoefficients(options, asked);
    SphereSolution solution = SolveWhole(options, noRows, pool, share);
    if (!solution.Refused() && solution.finished) SumInParts(options, asked, solution, pool, share);
    return solution;
  }
  const bool rays = TraitsOf(options.method).needsP && options.method != Method::Debye;
  constexpr int mostRows = 40001;  // more would take too much room beside each other
  return rays && asked.grid.RowCount() <= mostRows ? SolveRaysInParts(options, asked, pool)
                                                   : SolveWhole(options, asked, pool);
}

}  // namespace lumivex
