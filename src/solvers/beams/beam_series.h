#pragma once

#include <span>
#include <vector>

#include "solvers/angles/amplitude_table.h"
#include "solvers/beams/beam_shape.h"
#include "solvers/run_monitor.h"
#include "solvers/series/partial_waves.h"

namespace lumivex {

/// The amplitudes that a sphere of coefficients a_L, b_L scatters out of a beam, in the plane at the azimuth phi to the
/// beam's polarisation.
///
/// S1 = sum_L c_L sum_M (-i M a_L pi(L,|M|) g_TM + b_L tau(L,|M|) g_TE) exp(i M phi) is the field across the plane, c_L
/// = (2L+1)/(2L(L+1)). S2 is that within it of a beam polarised along y, sum (a_L tau g_TE - i M b_L pi g_TM) exp(i M
/// phi); or, with `oneBeam`, of the same beam: sum (a_L tau g_TM + i M b_L pi g_TE) exp(i M phi) (Barton, Alexander and
/// Schaub 1988; Lock 1995). On the axis of a beam much wider than the sphere both tend to those of the plane wave.
///
/// Associated Legendre functions are taken with sqrt((L-M)!/(L+M)!), so that none leaves the range of a double.
class BeamSeries {
 public:
  BeamSeries(const PartialWaves& waves, const BeamShape& shape, double phi, bool oneBeam);

  /// What one L, or one |M|, adds to the amplitudes: with pi and with tau.
  struct Part {
    ComplexD pi1, tau1, pi2, tau2;
    ComplexD S1() const { return {pi1.re + tau1.re, pi1.im + tau1.im}; }
    ComplexD S2() const { return {pi2.re + tau2.re, pi2.im + tau2.im}; }
  };
  /// The same sums taken apart: by L = 1..Lmax, index 0 unused, and by |M| = 0..Mmax.
  struct Parts {
    std::vector<Part> ofL, ofM;
  };
  /// At one angle (radians); both lists are empty after a Stop.
  Parts SumInParts(double angle, RunMonitor& monitor) const;

  /// S1 and S2 at angles; row i of the tables is angles[i - 1].
  ///
  /// @param angles   radians, of any size: beyond 0..pi the direction lies on the other side of the axis, in the
  ///                 azimuth phi + pi, and the amplitudes go on without a step.
  /// @param monitor  asked after a bounded number of terms.
  /// @return the number of angles done, counted from the first; the others keep their values.
  std::size_t Sum(std::span<const double> angles, AmplitudeTable& S1, AmplitudeTable& S2, RunMonitor& monitor) const;

 private:
  static constexpr std::size_t Block = 8;
  /// For one (L, M): what multiplies pi and tau in S1 and S2.
  struct Weights {
    ComplexD pi1, tau1, pi2, tau2;
  };
  struct Lanes;
  /// Calls take(L, M, pi, tau) with the angular functions of all lanes, M = 0 among M = 1. False after a Stop.
  template <class Take>
  bool Walk(Lanes& lanes, RunMonitor& monitor, const Take& take) const;

  int Lmax_, Mmax_;
  std::vector<Weights> weights_;  // by M, then L; index L - 1
  const Weights& At(int L, int M) const {
    return weights_[static_cast<std::size_t>(M) * static_cast<std::size_t>(Lmax_) + static_cast<std::size_t>(L - 1)];
  }
};

}  // namespace lumivex
