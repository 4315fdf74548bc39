#pragma once

#include <limits>
#include <optional>
#include <span>
#include <vector>

#include "solvers/functions/complex_pairs.h"
#include "solvers/rays/rainbow.h"
#include "solvers/rays/ray_table.h"
#include "solvers/run_monitor.h"

namespace lumivex {

/// A monotonic piece of the deviation curve on one half turn: at most one ray at an angle.
struct RayPiece {
  double begin = 0.0, end = 0.0;  ///< parameter t of RayFamily, from the centre outward
  double low = 0.0, high = 0.0;   ///< deviations that it covers (radians)
  RayFold fold;
  bool rising = false;     ///< the deviation grows outward
  bool atRainbow = false;  ///< one of its ends is the rainbow
  /// No ray of this piece, or of one further in, is stronger than x sqrt(largest/sin(theta)). Infinite where nothing
  /// is known: beside the rainbow, outside it, and for m <= 1.
  double largest = std::numeric_limits<double>::infinity();
};

/// The rays of one p.
struct RayOrder {
  RayFamily family;
  std::vector<RayPiece> pieces;  ///< from the centre outward
  std::optional<Rainbow> rainbow;
  double airyLimit = -0.9;  ///< Airy's argument from which Airy's field takes over from the rays
};

/// The pieces of all rays that are selected. They depend on the index alone, so that rows, sizes and threads share
/// them.
struct RayPieces {
  ComplexD m;
  std::vector<RayOrder> orders;
};

/// @param m         relative index, m.re > 0.
/// @param selected  selected[p] is not 0 for the rays wanted.
/// @param monitor   asked before each order; after a Stop there is nothing.
std::optional<RayPieces> MakeRayPieces(const ComplexD& m, std::span<const int> selected, RunMonitor& monitor);

}  // namespace lumivex
