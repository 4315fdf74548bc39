#pragma once

#include <cstddef>
#include <span>

#include "solvers/angles/amplitude_table.h"
#include "solvers/angles/angle_cosines.h"
#include "solvers/angles/angle_grid.h"
#include "solvers/functions/complex_pairs.h"
#include "solvers/functions/vector_lanes.h"
#include "solvers/run_monitor.h"
#include "solvers/series/partial_waves.h"

namespace lumivex {

/// Most terms times angle pairs between two looks at the monitor: below a millisecond or two, for a quick Stop.
inline constexpr std::size_t MaxPairTermsPerLook = 4'000'000;

/// Rows of a window that were summed, with all terms: all of it, or what was done before a Stop. Rows from 0 to 90
/// degrees and rows mirrored beyond are done together, so a stopped sum leaves two runs of rows.
struct RowsDone {
  RowWindow forward;   ///< Within 1..NANG.
  RowWindow mirrored;  ///< Within NANG + 1..2 NANG - 1.

  bool Contains(int row) const { return forward.Contains(row) || mirrored.Contains(row); }
  bool Empty() const { return forward.Empty() && mirrored.Empty(); }
};

/// Sums S1 and S2 of a partial-wave series over a window of angle rows.
///
/// S1(theta) = sum_n (2n+1)/(n(n+1)) (a_n pi_n + b_n tau_n), S2 with a_n and b_n exchanged (Bohren and Huffman
/// 1983, section 4.4). Departures from the textbook sum:
/// - tau_n = (n^2 pi_(n+1) - (n+1)^2 pi_(n-1)) / (2n+1) folds the series into one in pi_n alone, with the
///   coefficients (2n+1)/(n(n+1)) a_n + (n-1)/n b_(n-1) - (n+2)/(n+1) b_(n+1) for S1.
/// - pi_n(-cos) = (-1)^(n-1) pi_n(cos): odd and even terms summed apart give the mirrored row too. A term and pair
///   of rows costs six operations: four multiply-adds of the sums, two of the recurrence.
/// - pi_n goes up in a scale in which its recurrence has the coefficient 1, p_(n+1) = alpha_n cos p_n - p_(n-1). Near 0
///   and 180 degrees, where rounding of the cosine would cost N^2 eps, the recurrence goes by differences and
///   1 - cos = 2 sin^2(theta/2) instead.
/// - 0 and 180 degrees come from the closed forms, ForwardAmplitude and BackwardAmplitude.
/// The error is about N eps of the modulus at 0 degrees; see docs/physics.md for measured figures.
///
/// @param waves    a_n, b_n for n = 1..N (dimensionless); index 0 unused.
/// @param grid     rows 1..2 NANG - 1 over 0..180 degrees; row j is the angle (j - 1) DANG (radians).
/// @param window   first and last row wanted, inclusive, cut to the grid; other rows keep their values. Rows are
///                 only summed where wanted: a window of one row costs one row.
/// @param S1, S2   amplitudes by row (dimensionless), with at least the rows of the grid; row 0 is not touched.
/// @param monitor  asked before the first row and again after at most MaxPairTermsPerLook terms times angle pairs;
///                 when it asks to stop, the rows not done keep their values.
/// @param set      for tests and benchmarks: an instruction set this machine runs.
/// @return the rows done.
RowsDone SumAngularSeries(const PartialWaves& waves, const AngleGrid& grid, RowWindow window, AmplitudeTable& S1,
                          AmplitudeTable& S2, RunMonitor& monitor, InstructionSet set = BestInstructionSet());

/// The same with cosines that were computed before.
///
/// @param cosines  must cover the window.
RowsDone SumAngularSeries(const PartialWaves& waves, const AngleGrid& grid, const AngleCosines& cosines,
                          RowWindow window, AmplitudeTable& S1, AmplitudeTable& S2, RunMonitor& monitor,
                          InstructionSet set = BestInstructionSet());

/// A part of such a sum, so that a large one can be divided among threads: the rows of the window that fold onto
/// `part`.
///
/// @param part  folded rows, within AngleCosines::Folded(grid, window). Parts that begin whole multiples of PairBlock
/// rows
///              after its first give the rows the very values that the undivided sum gives them.
/// @return the rows done; none after a Stop before the first.
RowsDone SumFoldedRows(const PartialWaves& waves, const AngleGrid& grid, const AngleCosines& cosines, RowWindow window,
                       RowWindow part, AmplitudeTable& S1, AmplitudeTable& S2, RunMonitor& monitor,
                       InstructionSet set = BestInstructionSet());

/// The same sums at any angles.
///
/// @param angles  in radians; row i of S1 and S2 is angles[i - 1], not the nearest row of a grid. pi as a double is
///                180 degrees.
/// @param S1, S2  with at least as many rows as there are angles.
/// @return the number of angles done, counted from the first; the others keep their values.
std::size_t SumAngularSeries(const PartialWaves& waves, std::span<const double> angles, AmplitudeTable& S1,
                             AmplitudeTable& S2, RunMonitor& monitor, InstructionSet set = BestInstructionSet());

/// S1(0) = S2(0) = 1/2 sum_n (2n+1) (a_n + b_n).
ComplexD ForwardAmplitude(const PartialWaves& waves);

/// S1(180 degrees) = -S2(180 degrees) = 1/2 sum_n (-1)^n (2n+1) (b_n - a_n).
ComplexD BackwardAmplitude(const PartialWaves& waves);

}  // namespace lumivex
