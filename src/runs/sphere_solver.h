#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "runs/request.h"
#include "runs/results.h"
#include "solvers/angles/angle_cosines.h"
#include "solvers/functions/complex_pairs.h"
#include "solvers/rays/ray_pieces.h"
#include "solvers/run_monitor.h"

namespace lumivex {

/// One sphere, as a solver is asked for it.
struct SphereAsked {
  double x = 1;                                  ///< size parameter
  double mRe = 1, mIm = 0;                       ///< relative refractive index, absorption positive
  AngleGrid grid;                                ///< rows of scattering angle, or one angle exactly
  RowWindow window{1, 1};                        ///< rows wanted
  std::shared_ptr<const AngleCosines> cosines;   ///< of the window, from a call before; may be empty
  std::shared_ptr<const RayPieces> pieces = {};  ///< of the rays selected, for this index; may be empty
  double coreRatio = 0;                          ///< of a coated sphere: the radius of its core over its own
  ComplexD core{1, 0};                           ///< relative index of the core; mRe, mIm are the coating's
  double medium = 1;                             ///< index of the medium, which a profile is taken relative to
  double radius = 1;                             ///< um, which the lengths of a beam are measured with
};

/// What a solver finds of one sphere.
struct SphereSolution {
  Refusal refusal;          ///< its text is empty where the sphere was not refused
  bool finished = true;     ///< false after a Stop; `rows` then tells what is whole
  AmplitudeTable S1, S2;    ///< rows of the grid; rows not asked for are 0
  AmplitudeTable S1b, S2b;  ///< of a difference, the field that the other was taken from
  RowsDone rows;
  Efficiencies efficiencies;
  PartialWaves waves;  ///< of a method that sums them
  int NSTOP = 0, NMX = 0;
  int partialWaveFirst = 0, partialWaveLast = 0;
  double rainbowImpact = 1, rainbowAngle = 0, rayAngle = 0;  ///< of the highest p: sin i, radians; degrees
  std::vector<HuygensWave> wavefronts;
  std::vector<double> apertureCentre, apertureWeight, besselOrders;
  std::optional<BeamNumbers> beam;
  std::optional<DropNumbers> drop;
  std::vector<float> sky;  ///< of flattened drops |S|^2 by sector and row of the window; see DropSky

  bool Refused() const { return !refusal.text.empty(); }
};

/// A sphere by the method of the options.
///
/// In a beam the series are those of beam_methods.h, and rays are weighed with it. Efficiencies of methods that have
/// none, and those in a beam, are 0. A refusal, or a method without a solver, leaves the tables empty.
SphereSolution SolveSphere(const MethodOptions& options, const SphereAsked& asked, RunMonitor& monitor);

/// Why a sphere lies beyond the limits of the method; an empty text where it does not. A run of many asks for all of
/// them first, so that nobody waits for a refusal.
Refusal BeyondLimits(const MethodOptions& options, double x, double mRe, double mIm);
/// The same for spheres in layers too.
Refusal BeyondLimits(const MethodOptions& options, const SphereAsked& asked);

// The methods.

/// The Mie series of a homogeneous sphere in a plane wave. With divideBySize the amplitudes are divided by x before
/// Qext and Qback are formed. A sphere beyond the limits (|m x| or NMX of 200000 and more) is refused with "Error in
/// BHMIE sub-routine".
SphereSolution BHMIE(const MethodOptions& options, const SphereAsked& asked, RunMonitor& monitor);

/// The Debye series: the terms p that are selected, in the form of the Mie series, less what a difference asks for.
///
/// Of a sphere that does not absorb Qext = 4 Re S(0)/x^2 of the selected terms and Qsca = Qext; of one that does, those
/// of the selected terms' own field. Qback and g are those of the selected terms. With p = 0 alone and x mIm above 700
/// the Mie series takes over, for it is that term then. Without a selection, or beyond the limits, refused.
SphereSolution DebyeSeries(const MethodOptions& options, const SphereAsked& asked, RunMonitor& monitor);

/// Ray optics of the selected p: Descartes (intensities are added), Young, Young mod and Young + Airy. Diffraction is
/// added where it is asked for, and then Qext and Qsca are those of the disc. Without a selection and without
/// diffraction refused with "No rays selected".
///
/// In an absorbing sphere the parallel amplitude of rays alone has its sign changed; a sum with diffraction, or a
/// difference, has the physical sign. See docs/physics_rays.md.
SphereSolution GO(const MethodOptions& options, const SphereAsked& asked, RunMonitor& monitor);

/// The series becomes the difference that is asked for: what it leaves of another field.
void TakeDifference(const MethodOptions& options, const SphereAsked& asked, SphereSolution& series,
                    RunMonitor& monitor);

/// Whether Debye terms are those of a sphere that lets nothing out: p = 0 alone with x mIm above 700.
bool IsOpaque(const MethodOptions& options, const SphereAsked& asked);

/// Whether a method traces rays at angles: one of its own, or a difference with them.
bool TracesRays(const MethodOptions& options);

/// The pieces that the rays of such a method have in common at that index; empty after a Stop.
std::shared_ptr<const RayPieces> PiecesOf(const MethodOptions& options, double mRe, double mIm, RunMonitor& monitor);

/// The rays of "Young mod" for the differences from a series: no diffraction, the physical sign.
SphereSolution GO2(const MethodOptions& options, const SphereAsked& asked, RunMonitor& monitor);

/// Airy's theory of the rainbows of the selected p >= 2 at every angle; others add nothing.
SphereSolution Airy(const MethodOptions& options, const SphereAsked& asked, RunMonitor& monitor);

/// The wavefronts of the selected p and the field that they send far away.
SphereSolution Huygens(const MethodOptions& options, const SphereAsked& asked, RunMonitor& monitor);

/// Diffraction of the sphere's disc; g where the rows cover all angles.
SphereSolution Diffraction(const MethodOptions& options, const SphereAsked& asked, RunMonitor& monitor);

/// A sphere much smaller than the wavelength, without absorption. Qsca comes from the integral over the angles where
/// the rows cover all of them, otherwise from its closed form; Qext = Qsca, but |4 S1(0)/x^2| with forwardEfficiency.
SphereSolution Rayleigh(const MethodOptions& options, const SphereAsked& asked, RunMonitor& monitor);

/// The field of coherent strips across an aperture as wide as the sphere.
SphereSolution Aperture(const MethodOptions& options, const SphereAsked& asked, RunMonitor& monitor);

/// The glory of a ring with the amplitudes Qmin and Qmax, near 180 degrees.
SphereSolution vdh(const MethodOptions& options, const SphereAsked& asked, RunMonitor& monitor);

/// A sphere with a core and one coating: the sum of both surfaces' partial waves or, where paths are selected, its
/// Debye terms along those.
SphereSolution Coated(const MethodOptions& options, const SphereAsked& asked, RunMonitor& monitor);

/// The whole coated sphere. Qext = 2/y^2 times the sum of (2n+1)(|a_n| + |b_n|) goes by the moduli of the coefficients:
/// a bound of the extinction, not an efficiency. Qback = 4 |S1(180 degrees)|^2/y^2 is 4 pi times that of other
/// spheres. With divideBySize the amplitudes are divided by y, and no efficiency is.
SphereSolution CoatedSphereMie(const MethodOptions& options, const SphereAsked& asked, RunMonitor& monitor);

/// The selected ways through a coated sphere, each times its weight. Qext = 4 Re S(0)/y^2 and Qsca are those of the
/// field of the selected terms, and mean something of whole sums only; Qback as above.
SphereSolution CoatedSphereDebye(const MethodOptions& options, const SphereAsked& asked, RunMonitor& monitor);

/// The surface waves of the selected terms p >= 1 of the Debye series. There are no efficiencies. Spheres that are too
/// small or not dense enough are refused with "Surface waves need a larger sphere or a higher refractive index".
SphereSolution SurfaceWaves(const MethodOptions& options, const SphereAsked& asked, RunMonitor& monitor);

/// Rays of the selected p through a flattened drop, counted by rows: |S|^2 of unpolarised light, without phases. A row
/// counts half a step to both sides; a grid of one angle half a degree. After a Stop no rows are done.
SphereSolution NonSpherical(const MethodOptions& options, const SphereAsked& asked, RunMonitor& monitor);

/// Light that comes back from a sphere before a white surface; S1 = S2, real. Rows farther than 90 degrees from 180 are
/// 0. There are no efficiencies.
SphereSolution Dew(const MethodOptions& options, const SphereAsked& asked, RunMonitor& monitor);

/// A sphere whose index is a profile, in layers of equal depth.
SphereSolution Inhomogeneous(const MethodOptions& options, const SphereAsked& asked, RunMonitor& monitor);

/// The coefficients of a coated sphere, or of its selected terms, for the running sums of a series: a fifth more terms
/// than the amplitudes are summed of. None after a Stop.
PartialWaves CoatedWavesBeyond(const MethodOptions& options, const SphereAsked& asked, RunMonitor& monitor);

/// Qsca and g by integration of the amplitudes over all angles, for methods that have no series for them:
/// Qsca = 2/x^2 times the integral of (|S1|^2 + |S2|^2)/2 sin(theta).
void CrossSection(const AngleGrid& grid, double x, SphereSolution& solution);

/// The rows that are asked for, within the grid.
RowWindow WindowOf(const SphereAsked& asked);
/// Amplitudes of 0 at every row of the grid.
SphereSolution EmptySolution(const SphereAsked& asked);

/// Refusals that more than one place tells.
Refusal BeyondMie();
Refusal NoRays();

}  // namespace lumivex
