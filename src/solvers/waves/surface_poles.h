#pragma once

#include <complex>
#include <vector>

#include "solvers/run_monitor.h"

namespace lumivex {

/// Whether a sphere is large and dense enough for surface waves to be told apart: m > 1, x >= 10, x (Re m^2 - 1)^(3/2)
/// >= 10 and Re m <= 1.4 (x/2)^(1/3). There the wave of one short cut is right to 3 %, where the third is 20 to 0.2 %.
bool SurfaceWavesApply(double x, double mRe);

/// The functions of one point on a small circle round a pole.
struct PolePoint {
  std::complex<double> lambda;
  std::complex<double> offset;  ///< from the pole
  std::complex<double> chi;
  std::complex<double> first;  ///< of one short cut: -4 mu sa/(s2 Den)^2
  std::complex<double> inner;  ///< of one inner reflection: -(s1/s2) Num/Den
};

struct SurfacePole {
  bool tm = false;  ///< a pole of a_n, else of b_n
  int number = 1;   ///< J, from the least damped
  std::complex<double> lambda;
  std::vector<PolePoint> circle;
};

/// Poles of the scattering amplitude in the plane of complex order lambda = n + 1/2, near lambda = x: surface waves of
/// TE and of TM that are damped the more the higher their number (Nussenzveig 1969). They do not depend on the number
/// of short cuts; the residue of any is a mean over the circle, with points enough for p up to `lastTerm`.
///
/// Poles farther than 1.2 x from x, or not found, are left out.
///
/// @param last     highest pole number wanted, 1..25.
/// @param monitor  asked for each pole; after a Stop there are no poles.
std::vector<SurfacePole> FindSurfacePoles(double x, const std::complex<double>& m, int last, int lastTerm,
                                          RunMonitor& monitor);

}  // namespace lumivex
