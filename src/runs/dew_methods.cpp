/// Dew on a white surface.

#include <algorithm>
#include <cmath>
#include <numbers>
#include <optional>

#include "runs/further_methods.h"
#include "runs/watched.h"
#include "solvers/dew/heiligenschein.h"
#include "solvers/rays/rainbow.h"

namespace lumivex {

namespace {

constexpr double pi = std::numbers::pi;

/// A source is taken for as wide as a row, and never for sharper than diffraction lets it be: a disc of that width has
/// the area of an Airy disc's first ring.
Heiligenschein DewOf(const MethodOptions& options, const SphereAsked& asked) {
  constexpr double airyWidth = 3.545, rowOfOneAngle = pi / 1800;
  DewDrop drop;
  drop.m = asked.mRe;
  drop.absorption = 2 * asked.x * asked.mIm;
  drop.distance = options.dew.distance;
  drop.slope = options.dew.slope;
  drop.resolution = std::max(asked.grid.NANG > 1 ? asked.grid.DANG : rowOfOneAngle, airyWidth / asked.x);
  return Heiligenschein(drop);
}

/// Which rows are calculated, and what they stand for: about the normal to a surface that faces the sun both sides are
/// alike, so that one of them is copied.
class DewRows {
 public:
  DewRows(const MethodOptions& options, const SphereAsked& asked) : grid_(asked.grid), window_(WindowOf(asked)) {
    const double middle = std::nearbyint((pi - grid_.first) / grid_.DANG) + 1;
    constexpr double nearly = 1e-9;
    if (options.dew.slope != 0 || grid_.NANG == 1 || !(middle >= 1 && middle <= grid_.RowCount())) return;
    if (std::fabs(grid_.Angle(static_cast<int>(middle)) - pi) < nearly) middle_ = static_cast<int>(middle);
  }

  RowWindow Calculated() const {
    if (middle_ == 0) return window_;
    const int high = window_.low > middle_ ? 2 * middle_ - window_.low : std::min(window_.high, middle_);
    return {std::max(std::min(window_.low, 2 * middle_ - window_.high), 1), high};
  }
  /// @return the rows done, from the first of the part.
  int Sum(const Heiligenschein& dew, double x, RowWindow part, SphereSolution& solution, RunMonitor& monitor) const {
    for (int row = part.low; row <= part.high; ++row) {
      if (!monitor.Report(static_cast<std::size_t>(row - part.low), static_cast<std::size_t>(part.high - part.low + 1)))
        return row - part.low;
      const double S = x * std::sqrt(dew.At(grid_.Angle(row) - pi).Sum());
      for (const int each : {row, middle_ == 0 ? row : 2 * middle_ - row})
        if (window_.Contains(each)) {
          solution.S1.Set(each, S, 0);
          solution.S2.Set(each, S, 0);
        }
    }
    return part.high - part.low + 1;
  }
  RowsDone DoneUpTo(int last) const {
    if (middle_ == 0) return RowsUpTo(grid_, window_, last);
    return {{window_.low, std::min(last, window_.high)}, {std::max(2 * middle_ - last, window_.low), window_.high}};
  }

 private:
  AngleGrid grid_;
  RowWindow window_;
  int middle_ = 0;  // the row of 180 degrees, where its sides are alike
};

}  // namespace

Refusal BeyondDew(double x) {
  if (x >= leastSizeOfRays) return {};
  return {"Heiligenschein", "Heiligenschein needs a larger sphere: its size parameter x must be at least 10",
          InputAtFault::Size};
}

SphereSolution Dew(const MethodOptions& options, const SphereAsked& asked, RunMonitor& monitor) {
  SphereSolution solution = EmptySolution(asked);
  solution.refusal = BeyondDew(asked.x);
  if (solution.Refused()) return solution;
  Watched watched(monitor);
  const DewRows rows(options, asked);
  const RowWindow all = rows.Calculated();
  const int done = rows.Sum(DewOf(options, asked), asked.x, all, solution, watched);
  solution.finished = watched.goesOn;
  if (done > 0) solution.rows = rows.DoneUpTo(all.low + done - 1);
  return solution;
}

SphereSolution DewInParts(const MethodOptions& options, const SphereAsked& asked, TaskPool& pool) {
  SphereSolution solution = EmptySolution(asked);
  solution.refusal = BeyondDew(asked.x);
  if (solution.Refused()) return solution;
  std::optional<Heiligenschein> dew;
  solution.finished = DoOnce(pool, [&](RunMonitor&) {
    dew.emplace(DewOf(options, asked));
    return true;
  });
  if (!dew) return solution;
  constexpr int rowsPerPart = 8;
  const DewRows rows(options, asked);
  solution.finished = SumRowsInParts(
      rows.Calculated(), rowsPerPart, pool,
      [&](RowWindow part, RunMonitor& monitor) { return rows.Sum(*dew, asked.x, part, solution, monitor); },
      [&](int last) { solution.rows = rows.DoneUpTo(last); });
  return solution;
}

}  // namespace lumivex
