#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace lumivex {

/// From this largest order upward the tables are kept in scaled form: (2M - 1)!! would overflow further on.
inline constexpr int AngularScaleSwitch = 70;

/// The double factorial n!! = n (n - 2) ... down to 2 or 1; 0 for n = 0.
double Factorial2(int n);

/// ln n!!, natural; n >= 1.
double LogFactorial2(int n);

/// Angular functions pi(L, M) = P_L^M / sin(theta) and tau(L, M) = d P_L^M / d(theta) of one angle, for beams; M = 0
/// has tau alone. The associated Legendre functions are taken without the factor (-1)^M.
///
/// Rows L = 0..Lmax + 1, columns M = 0..Mmax + 1; entries with L < M, and those of the extra row and column that no
/// recurrence reaches, are 0. In scaled form a value is mantissa times e^exponent, which may lie beyond a double.
class AngularFunctionTable {
 public:
  int Lmax() const { return Lmax_; }
  int Mmax() const { return Mmax_; }
  /// Whether exponents are in use: Mmax >= AngularScaleSwitch.
  bool Scaled() const { return scaled_; }

  /// Mantissas; the values themselves where not Scaled().
  double Pi(int L, int M) const { return pi_[Index(L, M)]; }
  double Tau(int L, int M) const { return tau_[Index(L, M)]; }
  /// Exponents of e, 0 where not Scaled().
  int PiExponent(int L, int M) const { return scaled_ ? piExponent_[Index(L, M)] : 0; }
  int TauExponent(int L, int M) const { return scaled_ ? tauExponent_[Index(L, M)] : 0; }

 private:
  friend void AngularFunctions(double theta, int Lmax, int Mmax, AngularFunctionTable& table);

  std::size_t Index(int L, int M) const {
    return static_cast<std::size_t>(M) * (static_cast<std::size_t>(Lmax_) + 2) + static_cast<std::size_t>(L);
  }
  void Resize(int Lmax, int Mmax);
  void FillOrderZero(double sine, double cosine);
  void FillDirect(double sine, double cosine, int M);
  void FillScaled(double sine, double cosine, int M);

  int Lmax_ = 0;
  int Mmax_ = 0;
  bool scaled_ = false;
  std::vector<double> pi_;
  std::vector<double> tau_;
  std::vector<std::int16_t> piExponent_;
  std::vector<std::int16_t> tauExponent_;
};

/// Fills the tables of one angle by upward recurrence in L from pi(M, M) = (2M - 1)!! sin^(M - 1)(theta)
/// (Abramowitz and Stegun 1964, section 8.5).
///
/// @param theta  radians, of either sign.
/// @param Lmax   last L, >= 1.
/// @param Mmax   last order, >= 0; from AngularScaleSwitch upward all orders are in scaled form.
/// @param table  keeps its memory from call to call.
///
/// An exponent below the 16-bit range makes the value 0; above it the exponent stays at the limit.
void AngularFunctions(double theta, int Lmax, int Mmax, AngularFunctionTable& table);

}  // namespace lumivex
