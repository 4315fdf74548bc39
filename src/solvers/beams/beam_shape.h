#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "solvers/functions/complex_pairs.h"
#include "solvers/run_monitor.h"

namespace lumivex {

/// A beam along z that is polarised along x, its focus at (x0, y0, z0) from the centre of the sphere.
struct FocusedBeam {
  enum class Profile { Gaussian, TopHat };
  Profile profile = Profile::Gaussian;
  double k = 1.0;  ///< wave number in the medium, 1/length; the lengths below are in the same unit
  double x0 = 0.0, y0 = 0.0, z0 = 0.0;
  double w0 = 1.0;  ///< half-width at the focus, > 0: of the Gaussian to 1/e of the field, of the disc its radius

  /// s = 1/(k w0), the ratio of half-width to spreading length.
  double Confinement() const { return 1.0 / (k * w0); }
  bool operator==(const FocusedBeam&) const = default;
};

/// Where the double series in L and M ends.
struct BeamLimits {
  int Lmax = 1;
  int Mmax = 1;
  bool operator==(const BeamLimits&) const = default;
};

/// Q = 1/(1 - 2 i s z0/w0), what the beam has spread at the centre of the sphere: 1 for a focus there.
ComplexD BeamSpread(const FocusedBeam& beam);

/// Lmax = x + 4.05 x^(1/3) + 2 to the nearest whole number.
int BeamLmax(double x);

/// The highest order |M| that a displaced beam needs: with W = (Lmax + 1/2) 2 s rho Q = Wr + i Wi it is 7 where Wr
/// < 6.5, else sqrt(Wr) (6.5 + 2 |Wi| / Wr) to the nearest whole number; at most Lmax.
int BeamMmax(const FocusedBeam& beam, int Lmax);

/// How the sums over j are formed, by which the coefficients are defined.
struct BeamSumRule {
  int Jmax = 1000;       ///< last j
  double error = 1e-20;  ///< a sum ends where all parts of its terms are below
  bool closed = true;    ///< the whole sum as a modified Bessel function instead, whatever the others are
  /// Terms begin with logarithms; otherwise with powers and factorials, of which there are none above 98!, so that
  /// further terms are 0.
  bool logarithms = true;
  bool operator==(const BeamSumRule&) const = default;
};

/// Beam shape coefficients g_TM and g_TE of L = 1..Lmax, M = -Mmax..Mmax in the localised approximation (Gouesbet,
/// Grehan and Maheu 1990; Lock 1995), twice the usual normalisation:
///
/// g_TM = F(L) (-i/(L+1/2))^(|M|-1) (T(M-1) + T(M+1)), g_TE = -i F(L) (-i/(L+1/2))^(|M|-1) (T(M-1) - T(M+1)),
/// T(q) = I_|q|(2 (L+1/2) s rho Q) exp(-i q phi0), F = Q exp(-Q rho^2 - Q ((L+1/2) s)^2) exp(-i z0/(s w0)),
/// Q = 1/(1 - 2 i s z0/w0), rho^2 = (x0^2 + y0^2)/w0^2, phi0 = atan2(y0, x0). Kept without the real factor
/// (L+1/2)^(1-|M|), which leaves the range of a double: the sums over angles carry it with the angular functions.
///
/// A disc has T(q) F = (1/2 pi) of its arc at the radius (L+1/2)/k: sin(q beta)/(q pi) exp(-i q phi0), with 2 beta the
/// angle of the arc.
class BeamShape {
 public:
  /// All coefficients 0.
  explicit BeamShape(BeamLimits limits);

  int Lmax() const { return limits_.Lmax; }
  int Mmax() const { return limits_.Mmax; }
  /// g_TM(L, M) (L+1/2)^(|M|-1).
  const ComplexD& TM(int L, int M) const { return tm_[Index(L, M)]; }
  const ComplexD& TE(int L, int M) const { return te_[Index(L, M)]; }
  /// Highest j that a sum came to; 0 where none was formed.
  int HighestJ() const { return highestJ_; }
  /// What of the time went into the functions T(q).
  double SecondsOfFunctions() const { return seconds_; }

  /// Adds the field of a beam.
  ///
  /// @param monitor  asked after a bounded number of terms.
  /// @return false after a Stop: the coefficients are then of no use.
  bool Add(const FocusedBeam& beam, const BeamSumRule& rule, RunMonitor& monitor);

 private:
  std::size_t Index(int L, int M) const {
    return static_cast<std::size_t>(L) * (2 * static_cast<std::size_t>(limits_.Mmax) + 1) +
           static_cast<std::size_t>(M + limits_.Mmax);
  }

  BeamLimits limits_;
  std::vector<ComplexD> tm_, te_;
  int highestJ_ = 0;
  double seconds_ = 0.0;
};

/// exp(-z) I_q(z) of q = 0..last for Re z >= 0, by downward recurrence normalised with I_0 + 2 (I_1 + I_2 + ...) =
/// exp(z) (Abramowitz and Stegun 1964, 9.6.37). Above |z| = 1e6, where that would take very many steps, by the uniform
/// expansion for large orders (9.7.7) with its first two terms: an error of 1e-13.
void ScaledModifiedBessel(const ComplexD& z, int last, std::vector<ComplexD>& values);

}  // namespace lumivex
