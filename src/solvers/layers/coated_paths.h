#pragma once

#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "solvers/layers/coated_surfaces.h"
#include "solvers/run_monitor.h"
#include "solvers/series/partial_waves.h"

namespace lumivex {

/// The ways through a coated sphere that have their numbers of reflections and chords in common, N-A-B: N internal
/// reflections, A chords in the coating, B in the core. 0-0-0 is the light that does not enter.
struct PathLabel {
  int N = 0, A = 0, B = 0;
  auto operator<=>(const PathLabel&) const = default;
};

/// Numbers of reflections: r at the outer surface, p at the outside of the core, q within the core.
struct PathCounts {
  int r = 0, p = 0, q = 0;
  bool enters = true;  ///< false: the light that does not enter, and the others are 0
  int Visits() const { return r + 1 - p; }
  PathLabel Label() const;
  bool operator==(const PathCounts&) const = default;
};

/// The counts of a label; empty where no way has these numbers.
///
/// A is even (in and out), B has the parity of N + 1; r = A/2 - 1, p = (N + 1 - B)/2, q the rest.
std::optional<PathCounts> CountsOf(const PathLabel& label);

/// How many ways in different order have these counts: C(r + 1, p) C(q + r - p, q), which of the r + 1 passages through
/// the coating the core turns back times the ways to share q reflections among the visits; 1 where it is never entered.
double Degeneracy(const PathCounts& counts);

/// Every label of N internal reflections from first to last, in rising order of N, A, B: 259 from 0 to 12.
std::vector<PathLabel> PathLabels(int first, int last);

/// A word of reflections in their order, letter and number ("p1r1q2"; "p0r0" for none), with its factor: 1, or 2 for a
/// word that differs from its reverse, which has the same amplitude.
struct PathWord {
  PathCounts counts;
  int factor = 1;
};
/// Empty where the word names no way: p is followed by r alone, q by q or r.
std::optional<PathWord> WordOf(std::string_view word);

/// The way of order P at the outer surface on whose every passage the core shows its order Q: P = 0 does not enter, Q =
/// 0 is turned back by the core, Q >= 1 has Q - 1 reflections within it each time.
PathCounts PathOfOrders(int P, int Q);

struct WeightedPath {
  PathCounts counts;
  double weight = 1.0;
  bool operator==(const WeightedPath&) const = default;
};

/// a_n, b_n of the sum of these ways, each times its weight.
///
/// @param monitor  asked after a bounded number of products; after a Stop the remaining waves are 0.
PartialWaves SumCoatedPaths(std::span<const CoatedWaves> surfaces, std::span<const WeightedPath> paths,
                            RunMonitor& monitor);

}  // namespace lumivex
