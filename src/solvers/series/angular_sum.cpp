#include "solvers/series/angular_sum.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include "solvers/series/folded_series.h"

namespace lumivex {
namespace {

/// An angle folded to 0..90 degrees.
struct FoldedAngle {
  double theta;   ///< Radians.
  double cosine;  ///< >= 0. Kept beside theta: folding an angle beyond 90 degrees rounds it.
};

/// Sums blocks of folded angles.
class PairSummer {
 public:
  PairSummer(const PartialWaves& waves, InstructionSet set) : series_(waves), set_(set) {}

  /// Blocks between two looks at the monitor.
  std::size_t BlocksPerLook() const {
    return std::max<std::size_t>(1, MaxPairTermsPerLook / (PairBlock * series_.Terms()));
  }

  /// Sums `count` <= PairBlock angles, of which angle(i) is the i-th.
  ///
  /// A block astride the end zone is summed in both ways: rare, and no block then depends on its neighbours.
  template <class Angle>
  void Sum(std::size_t count, const Angle& angle) {
    alignas(64) double cosines[PairBlock];
    alignas(64) double versines[PairBlock];
    bool near[PairBlock];
    bool anyNear = false;
    bool anyFar = false;
    for (std::size_t i = 0; i < PairBlock; ++i) {
      const FoldedAngle folded = angle(std::min(i, count - 1));
      near[i] = folded.theta < AngularEndZone;
      anyNear |= near[i];
      anyFar |= !near[i];
      cosines[i] = folded.cosine;
      if (near[i]) {
        const double sine = std::sin(0.5 * folded.theta);
        versines[i] = 2.0 * sine * sine;
      } else {
        versines[i] = 1.0 - cosines[i];
      }
    }
    if (anyFar) SumPairBlock(series_, cosines, false, count, set_, sums_);
    if (!anyNear) return;
    if (!anyFar) return SumPairBlock(series_, versines, true, count, set_, sums_);
    MendEnds(versines, count, [&near](std::size_t i) { return near[i]; });
  }

  /// The same for `count` rows of a grid from row `low` on.
  void Sum(const AngleCosines& rows, int low, std::size_t count) {
    const int high = low + static_cast<int>(count) - 1;
    if (high <= rows.LastNear()) return SumPairBlock(series_, rows.Versines(low), true, count, set_, sums_);
    SumPairBlock(series_, rows.Cosines(low), false, count, set_, sums_);
    if (low > rows.LastNear()) return;
    const auto nearRows = static_cast<std::size_t>(rows.LastNear() - low) + 1;
    MendEnds(rows.Versines(low), count, [nearRows](std::size_t i) { return i < nearRows; });
  }

  const PairSums& Sums() const { return sums_; }

  void StoreDirect(std::size_t i, int row, AmplitudeTable& S1, AmplitudeTable& S2) const {
    Store(sums_.direct, i, row, S1, S2);
  }
  void StoreMirrored(std::size_t i, int row, AmplitudeTable& S1, AmplitudeTable& S2) const {
    Store(sums_.mirrored, i, row, S1, S2);
  }

 private:
  /// Puts the sums by differences in the place of those angles that are near the ends.
  template <class IsNear>
  void MendEnds(const double* versines, std::size_t count, const IsNear& isNear) {
    PairSums ends;
    SumPairBlock(series_, versines, true, count, set_, ends);
    for (std::size_t c = 0; c < 4; ++c) {
      for (std::size_t i = 0; i < count; ++i) {
        if (!isNear(i)) continue;
        sums_.direct[c][i] = ends.direct[c][i];
        sums_.mirrored[c][i] = ends.mirrored[c][i];
      }
    }
  }

  static void Store(const double (&sums)[4][PairBlock], std::size_t i, int row, AmplitudeTable& S1,
                    AmplitudeTable& S2) {
    S1.Set(row, sums[0][i], sums[1][i]);
    S2.Set(row, sums[2][i], sums[3][i]);
  }

  FoldedSeries series_;
  InstructionSet set_;
  PairSums sums_;
};

/// Runs the blocks of `count` things, PairBlock in each, with a look at the monitor in between; returns how many
/// things were done.
template <class Work>
std::size_t RunBlocks(std::size_t count, std::size_t blocksPerLook, RunMonitor& monitor, const Work& work) {
  const std::size_t blocks = (count + PairBlock - 1) / PairBlock;
  if (!monitor.Report(0, blocks)) return 0;
  for (std::size_t block = 0; block < blocks; ++block) {
    const std::size_t first = block * PairBlock;
    const std::size_t size = std::min(PairBlock, count - first);
    work(first, size);
    const std::size_t done = block + 1;
    if ((done == blocks || done % blocksPerLook == 0) && !monitor.Report(done, blocks)) return first + size;
  }
  return count;
}

RowWindow Cut(RowWindow window, int low, int high) {
  return {std::max(window.low, low), std::min(window.high, high)};
}

/// Re S1, Im S1, Re S2, Im S2 by row.
using TableParts = std::array<std::span<double>, 4>;

/// Rows of a block whose first angle is row `low`.
void StoreForward(const PairSums& sums, int low, RowWindow rows, const TableParts& parts) {
  for (std::size_t c = 0; c < 4; ++c) {
    const double* from = sums.direct[c];
    double* to = parts[c].data();
    for (int row = rows.low; row <= rows.high; ++row) to[row] = from[row - low];
  }
}

/// Rows mirrored at 90 degrees: that of the first angle is row `high`, the others come before it.
void StoreBackward(const PairSums& sums, int high, RowWindow rows, const TableParts& parts) {
  for (std::size_t c = 0; c < 4; ++c) {
    const double* from = sums.mirrored[c];
    double* to = parts[c].data();
    for (int row = rows.low; row <= std::min(rows.high, high); ++row) to[row] = from[high - row];
  }
}

}  // namespace

RowsDone SumAngularSeries(const PartialWaves& waves, const AngleGrid& grid, RowWindow window, AmplitudeTable& S1,
                          AmplitudeTable& S2, RunMonitor& monitor, InstructionSet set) {
  return SumAngularSeries(waves, grid, AngleCosines(grid, window), window, S1, S2, monitor, set);
}

RowsDone SumAngularSeries(const PartialWaves& waves, const AngleGrid& grid, const AngleCosines& cosines,
                          RowWindow window, AmplitudeTable& S1, AmplitudeTable& S2, RunMonitor& monitor,
                          InstructionSet set) {
  return SumFoldedRows(waves, grid, cosines, window, AngleCosines::Folded(grid, window), S1, S2, monitor, set);
}

RowsDone SumFoldedRows(const PartialWaves& waves, const AngleGrid& grid, const AngleCosines& cosines, RowWindow window,
                       RowWindow part, AmplitudeTable& S1, AmplitudeTable& S2, RunMonitor& monitor,
                       InstructionSet set) {
  const int last = grid.RowCount();
  const RowWindow wanted = Cut(window, 1, last);
  const RowWindow folded = part;
  if (wanted.Empty() || folded.Empty()) return {};
  PairSummer summer(waves, set);
  const std::size_t count = static_cast<std::size_t>(folded.high - folded.low) + 1;
  const TableParts parts{S1.RealParts(), S1.ImaginaryParts(), S2.RealParts(), S2.ImaginaryParts()};
  const auto work = [&](std::size_t first, std::size_t size) {
    const int low = folded.low + static_cast<int>(first);
    const int high = low + static_cast<int>(size) - 1;
    summer.Sum(cosines, low, size);
    StoreForward(summer.Sums(), low, Cut(wanted, low, high), parts);
    // Row NANG is its own mirror.
    StoreBackward(summer.Sums(), grid.Mirror(low),
                  Cut(wanted, std::max(grid.Mirror(high), grid.NANG + 1), grid.Mirror(low)), parts);
  };
  const std::size_t done = RunBlocks(count, summer.BlocksPerLook(), monitor, work);
  if (done == 0) return {};
  const int doneHigh = folded.low + static_cast<int>(done) - 1;
  const RowsDone rows{Cut(wanted, folded.low, doneHigh), Cut(wanted, std::max(grid.Mirror(doneHigh), grid.NANG + 1),
                                                             std::min(last, grid.Mirror(folded.low)))};
  if (rows.Contains(1)) {
    const ComplexD forward = ForwardAmplitude(waves);
    S1.Set(1, forward.re, forward.im);
    S2.Set(1, forward.re, forward.im);
  }
  if (rows.Contains(last)) {
    const ComplexD backward = BackwardAmplitude(waves);
    S1.Set(last, backward.re, backward.im);
    S2.Set(last, -backward.re, -backward.im);
  }
  return rows;
}

std::size_t SumAngularSeries(const PartialWaves& waves, std::span<const double> angles, AmplitudeTable& S1,
                             AmplitudeTable& S2, RunMonitor& monitor, InstructionSet set) {
  if (angles.empty()) return 0;
  PairSummer summer(waves, set);
  const ComplexD forward = ForwardAmplitude(waves);
  const ComplexD backward = BackwardAmplitude(waves);
  const auto work = [&](std::size_t first, std::size_t size) {
    FoldedAngle folded[PairBlock];
    bool behind[PairBlock];
    for (std::size_t i = 0; i < size; ++i) {
      const double theta = std::fabs(std::remainder(angles[first + i], 2.0 * std::numbers::pi));
      const double cosine = std::cos(theta);
      behind[i] = cosine < 0.0;
      folded[i] = {behind[i] ? std::max(0.0, std::numbers::pi - theta) : theta, std::fabs(cosine)};
    }
    summer.Sum(size, [&](std::size_t i) { return folded[i]; });
    for (std::size_t i = 0; i < size; ++i) {
      const int row = static_cast<int>(first + i) + 1;
      if (folded[i].theta == 0.0) {
        const ComplexD& end = behind[i] ? backward : forward;
        const double sign = behind[i] ? -1.0 : 1.0;
        S1.Set(row, end.re, end.im);
        S2.Set(row, sign * end.re, sign * end.im);
      } else if (behind[i]) {
        summer.StoreMirrored(i, row, S1, S2);
      } else {
        summer.StoreDirect(i, row, S1, S2);
      }
    }
  };
  return RunBlocks(angles.size(), summer.BlocksPerLook(), monitor, work);
}

ComplexD ForwardAmplitude(const PartialWaves& waves) {
  ComplexD sum;
  for (std::size_t n = 1; n < waves.aRe.size(); ++n) {
    const double weight = static_cast<double>(n) + 0.5;
    sum.re += weight * (waves.aRe[n] + waves.bRe[n]);
    sum.im += weight * (waves.aIm[n] + waves.bIm[n]);
  }
  return sum;
}

ComplexD BackwardAmplitude(const PartialWaves& waves) {
  ComplexD sum;
  for (std::size_t n = 1; n < waves.aRe.size(); ++n) {
    const double weight = n % 2 == 0 ? static_cast<double>(n) + 0.5 : -(static_cast<double>(n) + 0.5);
    sum.re += weight * (waves.bRe[n] - waves.aRe[n]);
    sum.im += weight * (waves.bIm[n] - waves.aIm[n]);
  }
  return sum;
}

}  // namespace lumivex
