#pragma once

#include <complex>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "solvers/drops/drop_shape.h"
#include "solvers/run_monitor.h"

namespace lumivex {

/// Sunlight on a drop: it travels along e0; e1 points upward across it, e2 = e0 x e1.
struct DropLight {
  SpaceVector e0, e1, e2;
  /// @param elevation  of the sun, radians.
  explicit DropLight(double elevation);
};

/// What a drop is made of.
struct DropMaterial {
  double m = 1.333;         ///< relative index, > 0
  double absorption = 0.0;  ///< 2 x k: by a path of one radius the power falls to exp(-2 x k)
};

/// Where a ray has gone, and its power for incident light of unit intensity in each of both polarisations.
struct DropExit {
  SpaceVector direction;
  double perpendicular = 0.0, parallel = 0.0;  ///< to the plane of incident and leaving light, summed over both
};

/// The way of one ray through a drop: exits[p] of p = 0 (reflected outside), 1 (straight through), 2 (one inner
/// reflection)...; nothing for orders that are totally reflected or not reached.
///
/// Fields are carried along with Fresnel's amplitudes in the bases of each surface, the phases of total reflection
/// included.
///
/// @param b, X   where the ray meets the wave front: distance from the axis of the light, in radii of the equal sphere,
/// and
///               angle from e1 towards e2.
/// @return whether the ray meets the drop.
bool TraceDropRay(const DropShape& shape, const DropMaterial& material, const DropLight& light, double b, double X,
                  std::span<std::optional<DropExit>> exits);

/// The points where the ray of order p >= 1 meets the surface: entry, inner reflections, exit; empty where it does not
/// leave there.
struct DropPath {
  std::vector<SpaceVector> points;
  SpaceVector direction;  ///< of the light that leaves
};
DropPath PathOfDropRay(const DropShape& shape, double m, const DropLight& light, double b, double X, int p);

/// The scattering angle of a direction, radians.
double ScatteringAngleOf(const DropLight& light, const SpaceVector& direction);
/// Where an observer sees it: 0 at the highest point of the bow, pi/2 at its side, pi below the antisolar point.
double ClockAngleOf(const DropLight& light, const SpaceVector& direction);

/// Which directions are counted in which rows.
struct DropRows {
  double first = 0.0;  ///< radians, angle of row 1
  double step = 0.0;   ///< radians; a row counts half a step to both sides, within 0..pi
  int count = 0;
  double clock = 0.0;           ///< radians
  double clockHalfWidth = 0.0;  ///< radians; 0 or less: all round
  int sectors = 0;              ///< that the clock is divided into besides, from 0 to pi; the other side mirrors them
  /// Steradians of a row, from 1.
  double SolidAngle(int row) const;
  /// The row of a direction, from 1; 0 where it is not counted.
  int RowOf(double theta, double phi) const;
  /// The row of a scattering angle, whatever the clock angle; the sector, from 0, of a clock angle.
  int RowOf(double theta) const;
  int SectorOf(double phi) const;
};

/// Power that leaves into each row for unit intensity in each polarisation and a = 1: index row - 1.
struct DropPower {
  std::vector<double> perpendicular, parallel;
  /// Of all directions.
  double allPerpendicular = 0.0, allParallel = 0.0;
  /// Mean of both by sector of the clock and row: element sector * count + row - 1; both sides together.
  std::vector<double> sky;
};

/// The rays of one block of the wave front, which is a square net of gridSide x gridSide cells with a ray at a random
/// place in each; the same rays whatever the number of threads and the order of the blocks.
///
/// @param selected  selected[p] is not 0 for the orders that count.
/// @param lines     first and one past the last line of the net, 0..gridSide.
/// @param monitor   asked once a line; after a Stop the power of the lines done stands.
/// @return the number of lines done.
int AddDropRays(const DropShape& shape, const DropMaterial& material, const DropLight& light,
                std::span<const int> selected, int gridSide, int firstLine, int endLine, const DropRows& rows,
                DropPower& power, RunMonitor& monitor);

}  // namespace lumivex
