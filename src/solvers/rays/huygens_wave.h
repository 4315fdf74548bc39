#pragma once

#include <span>
#include <vector>

#include "solvers/angles/amplitude_table.h"
#include "solvers/angles/angle_grid.h"
#include "solvers/functions/complex_pairs.h"
#include "solvers/run_monitor.h"
#include "solvers/series/angular_sum.h"

namespace lumivex {

/// The wave that R rays of one p, evenly spaced in impact, carry out of the sphere. Lengths are in radii of the sphere;
/// light travels in the direction of +X, the rays enter above the axis (Y > 0). Arrays have R + 1 entries, ray k has
/// sin i = k/R.
struct HuygensWave {
  int p = 2;
  std::vector<double> impact;                  ///< sin i
  std::vector<double> deviation;               ///< D, radians
  std::vector<double> amplitudePerpendicular;  ///< moduli, dimensionless like S
  std::vector<double> amplitudeParallel;
  std::vector<double> phasePerpendicular;  ///< radians; pi is added where the amplitude was negative
  std::vector<double> phaseParallel;
  std::vector<double> exitX, exitY;  ///< where the rays leave the sphere
  std::vector<double> waveX,
      waveY;  ///< the wavefront, set back by half a radius of path: virtual where within the sphere
};

/// Traces R >= 1 rays. Rays that do not enter (sin i > m, p >= 1) are left out: the arrays then end before R + 1.
///
/// The modulus is x sqrt(|sin 2i/G|) as for rays; where G vanishes on the axis it is 2x for p = 1, x/128 for p = 3 and
/// x/2 otherwise: fixed values that stand for the ray of the axis in the drawing (those of its neighbours for p = 0 and
/// for p = 1 in water); they enter no pattern.
HuygensWave TraceHuygens(double x, double m, int p, int R);

struct HuygensRequest {
  double x = 0.0;  ///< size parameter, > 0
  double m = 1.0;  ///< real index
  std::span<const int> selected;
  int R = 90;  ///< rays at least; more are used where the phase asks for them
  AngleGrid grid;
  RowWindow window;
};

/// Adds the field far away of the wavefronts of the selected p, each point of which sends out a wavelet:
///
/// S = -i sum over turns of the integral over L = 0..x of sqrt(L/(2 pi sin theta)) eps(L) exp(-i psi(L)) dL, L = x sin
/// i, psi = 2x(cos i - p m cos r) + L (D - D_t) + (pi/2)(p - 2 kk - q/2), D_t the unfolded deviations of the angle
/// theta.
///
/// sin theta is held at 1/x, the width of the caustic on the axis.
///
/// Its stationary points are the rays, with all their phases; at a rainbow it goes over into Airy's field by itself.
/// The sharp edge at grazing incidence leaves a wave of its own of the order of sqrt(x). Diffraction is not in it.
///
/// @param S1, S2   amplitudes are added to the rows of the window.
/// @param monitor  asked after a bounded number of wavelets; after a Stop the other rows keep their values.
/// @return the rows done.
RowsDone SumHuygens(const HuygensRequest& request, AmplitudeTable& S1, AmplitudeTable& S2, RunMonitor& monitor);

}  // namespace lumivex
