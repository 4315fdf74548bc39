#pragma once

#include <span>

#include "solvers/angles/amplitude_table.h"
#include "solvers/angles/angle_grid.h"
#include "solvers/rays/ray_pieces.h"
#include "solvers/run_monitor.h"
#include "solvers/series/angular_sum.h"

namespace lumivex {

/// How rays at one angle are added.
enum class RayMethod {
  Intensities,  ///< |amplitude|^2 are added; the root of the sum is a real amplitude (Descartes)
  Young,        ///< amplitudes, without the quarter wave that a ray gains at a caustic
  YoungMod,     ///< amplitudes with it, and the correction of order 1/x to the reflected ray
  YoungAiry,    ///< amplitudes with it; Airy's field in place of the rays beside a rainbow
};

/// The illumination across the sphere, by signed impact sin i.
struct RayBeam {
  enum class Profile { PlaneWave, Gaussian, TopHat };
  Profile profile = Profile::PlaneWave;
  double BeamCentreOffset = 0.0;  ///< centre, in radii of the sphere
  double BeamWaist = 1.0;         ///< waist w0, in radii of the sphere; > 0
};

struct RayRequest {
  double x = 0.0;                 ///< size parameter, > 0
  double mRe = 1.0;               ///< relative index, mRe > 0;
  double mIm = 0.0;               ///< absorption for mIm > 0
  std::span<const int> selected;  ///< selected[p] is not 0 for the rays wanted
  RayMethod method = RayMethod::YoungMod;
  RayBeam beam;
  AngleGrid grid;    ///< rows from 0 to 180 degrees, for a plane wave
  RowWindow window;  ///< rows wanted
  /// Those of this index and selection, from a call before; without them they are made.
  const RayPieces* pieces = nullptr;
  double firstAngle =
      0.0;  ///< angle of row 1 (radians); a beam that is not on the axis is seen at angles of both signs
  /// For complex m the parallel amplitude with its sign changed, as Fresnel's formulas give it where the parallel field
  /// is counted along the ray's own normal; |S2| of rays alone is the same, but a sum with another field is not.
  bool parallelReversed = false;
};

/// Adds the rays of a sphere to S1 and S2: S = -i eps V exp(-i phi) with Fresnel's factors eps, the divergence V and
/// the phase phi (van de Hulst 1957, chapter 12; see ray_geometry, ray_amplitude and ray_table). In the convention of
/// the Mie series: each p tends to its Debye term with an error of order 1/x away from rainbows, critical and grazing
/// rays.
///
/// Angles are kept 1e-6 rad away from 0 and 180 degrees. With YoungAiry, Airy's field is taken where its argument
/// exceeds -1.5 (p = 2, 3), -0.9 (p = 4), -0.7 (p >= 8); p = 5 to 7 have the value of the p before, or -0.9.
///
/// Rays so weak that they are lost in the rounding of those of lower p at the same angle are not traced: of 51 orders
/// in water most are, after many weak reflections.
///
/// In a beam the side of the sphere counts: at positive angles rays p >= 1 with an unfolded deviation of the angle
/// enter on the positive side, and all rays p = 0 on the negative one, for they leave on the side where they are
/// reflected.
///
/// @param S1, S2   rows 1..window.high at least; what they hold is part of the sum.
/// @param monitor  asked after a bounded number of rays; after a Stop the rows not done keep their values.
/// @return the rows done.
RowsDone SumRays(const RayRequest& request, AmplitudeTable& S1, AmplitudeTable& S2, RunMonitor& monitor);

}  // namespace lumivex
