#pragma once

#include <vector>

#include "solvers/angles/amplitude_table.h"
#include "solvers/angles/angle_grid.h"
#include "solvers/run_monitor.h"
#include "solvers/series/angular_sum.h"

namespace lumivex {

/// Closed forms: diffraction of a disc, the smallest spheres, an array of slits and the glory of a ring. All fill rows
/// of a grid like the Mie series does; rows outside the window keep their values, and after a Stop so do those not
/// done.

/// The two forms of the diffraction of a disc.
enum class DiffractionForm {
  /// S = (x^2/4) (2 J1(u)/u) (1 + cos theta), u = x sin theta (Fraunhofer; van de Hulst 1957, section 8.31).
  Disc,
  /// S = sum sqrt(2 n/(pi sin theta)) cos((n + 1/2) theta - pi/4) over the partial waves that meet the sphere,
  /// n + 1/2 <= x, each with half its amplitude taken away: the asymptotic form of the Legendre functions. The sharp
  /// end of
  /// the sum leaves a noise of the order of the last term at large angles. (Summed further, it would be the diffraction
  /// of
  /// a larger disc.)
  PartialWaves,
};

/// S1 = S2, real. Rows with x sin theta below 0.001 (up to 3 rad) take the forward value x^2/2; at 180 degrees S is 0.
RowsDone SumDiffraction(double x, DiffractionForm form, const AngleGrid& grid, RowWindow window, AmplitudeTable& S1,
                        AmplitudeTable& S2, RunMonitor& monitor);

/// The amplitude straight forward, x^2/2.
double ForwardDiffraction(double x);

/// Sphere much smaller than the wavelength, m real (Bohren and Huffman 1983, section 5.2):
/// S1 = -i x^3 (m^2 - 1)/(m^2 + 2), S2 = S1 cos theta. Fills every row.
/// @return the imaginary part of S1.
double FillRayleigh(double x, double m, const AngleGrid& grid, AmplitudeTable& S1, AmplitudeTable& S2);

/// Scattering efficiency of such a sphere, (8/3) x^4 ((m^2 - 1)/(m^2 + 2))^2.
double RayleighEfficiency(double x, double m);

/// Strips of an aperture: centres across its width of 1, and weights.
struct ApertureStrips {
  std::vector<double> ApertureCentre;
  std::vector<double> ApertureWeight;
};

/// Q >= 1 strips of equal width and weight 1, centres (k + 1/2)/Q, k = 0..Q - 1.
ApertureStrips MakeAperture(int Q);

/// The field of Q coherent strips over their number, S1 = S2 = mean of exp(i 2 x (c_k - c_(Q/2)) sin theta), in rows 1
/// to NANG; rows beyond 90 degrees stay. Q/2 is rounded to the nearest whole number, ties to even.
RowsDone SumAperture(double x, const ApertureStrips& strips, const AngleGrid& grid, RowWindow window,
                     AmplitudeTable& S1, AmplitudeTable& S2, RunMonitor& monitor);

/// The glory of a ring: S1 = x^2 ((J0 + J2) Qmax + (J0 - J2) Qmin), S2 with Qmin and Qmax exchanged, J of x sin theta
/// (van de Hulst 1957, section 13.33). Holds near 180 degrees; rows 1 to NANG stay.
RowsDone SumGloryRing(double x, double Qmin, double Qmax, const AngleGrid& grid, RowWindow window, AmplitudeTable& S1,
                      AmplitudeTable& S2, RunMonitor& monitor);

}  // namespace lumivex
