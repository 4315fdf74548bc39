#pragma once

#include <optional>
#include <vector>

#include "runs/sphere_solver.h"
#include "solvers/beams/beam_series.h"
#include "solvers/rays/ray_series.h"

namespace lumivex {

// Spheres in focused beams: the series of beam shape coefficients with those of the whole sphere, or of Debye terms.

/// Most pairs (L, M) of a double series: those of a drop of 1 mm in a beam at its edge; 200 MB.
inline constexpr double mostBeamTerms = 2e6;

/// The single beams of an illumination, lengths in um: the beam itself, its image on the other side of the axis where a
/// pair is asked for, and one on the axis. Beams at the same place count once.
/// @param k  wave number in the medium (1/um).
std::vector<FocusedBeam> BeamsOf(const Illumination& light, double k);

/// s, Q and spreading length of the beam at (x0, y0, z0), and where its series ends for a sphere of a size parameter
/// and radius (um). The highest order of a disc, whose edge needs all of them, is at least 60.
BeamNumbers NumbersOfBeam(const Illumination& light, double x, double radius);

/// The coefficients a_n, b_n of the whole sphere for n = 1..Lmax.
PartialWaves ChenAnBn(double x, double mRe, double mIm, int Lmax);

/// The shape coefficients of beams that shine together.
/// @return false after a Stop.
bool BeamShapeCoeff1(const std::vector<FocusedBeam>& beams, const BeamSumRule& rule, BeamShape& shape,
                     RunMonitor& monitor);

/// What a sphere scatters out of its beams, before any angle.
struct BeamScattering {
  Refusal refusal;                   ///< its text is empty where the sphere was not refused
  std::optional<BeamSeries> series;  ///< nothing after a refusal or a Stop
  BeamNumbers numbers;
};
BeamScattering ScatterBeam(const MethodOptions& options, const SphereAsked& asked, RunMonitor& monitor);

/// The solution that its rows go into, all 0.
SphereSolution SolutionOf(const BeamScattering& beam, const SphereAsked& asked);

/// Fills rows of a solution. With divideBySize the amplitudes are divided by x.
/// @return the rows done.
RowsDone SumBeamRows(const BeamSeries& series, const MethodOptions& options, const SphereAsked& asked, RowWindow rows,
                     SphereSolution& solution, RunMonitor& monitor);

/// A homogeneous sphere in a beam, by the localised approximation of its shape (see docs/physics_beams.md). There are
/// no efficiencies. Beyond |m x| of 200000 refused with "Error in MIE_Gaussian sub-routine".
SphereSolution MIE_Gaussian(const MethodOptions& options, const SphereAsked& asked, RunMonitor& monitor);

/// The Debye terms that are selected in place of the whole sphere, less what a difference asks for.
SphereSolution DebyeGaussian(const MethodOptions& options, const SphereAsked& asked, RunMonitor& monitor);

/// Why a sphere lies beyond the limits of the series, or its double series is too long; an empty text where neither is.
Refusal BeyondBeam(const MethodOptions& options, const SphereAsked& asked);
Refusal BeyondMieInBeam();

/// The beam as rays see it, by impact in radii. Of a pair there is one of twice the radius on the axis, and a central
/// beam is a plane wave.
RayBeam BeamOfRays(const Illumination& light, double radius);

}  // namespace lumivex
