#include "solvers/series/debye_coefficients.h"

#include <algorithm>
#include <cmath>

#include "solvers/functions/complex_algebra.h"
#include "solvers/functions/logarithmic_derivative.h"
#include "solvers/functions/reciprocal_pair.h"
#include "solvers/functions/spherical_bessel.h"
#include "solvers/functions/wide_complex.h"

namespace lumivex {

namespace {

constexpr int TermsPerLook = 4096;
constexpr std::size_t ProductsPerLook = 1'000'000;
constexpr double LargestChi = 1e120;
/// The signed test of R212TE: parts of the numerator against parts of its sum with the denominator.
constexpr double GrazingRatio = 1e8;

/// psi_n and chi_n of a real argument by upward recurrence from n = 0, with derivatives.
class RealFunctions {
 public:
  explicit RealFunctions(double x, double m = 1.0) : inverse_(ReciprocalOfProduct(x, m, 0.0)) {
    const double z = x * m;
    // psi_-1 = cos, chi_-1 = sin.
    psi_ = std::sin(z);
    psiBefore_ = std::cos(z);
    chi_ = -psiBefore_;
    chiBefore_ = psi_;
  }

  void Advance(int n) {
    const double factor = (2 * n - 1) * inverse_.re + (2 * n - 1) * inverse_.reLow;
    const double psi = factor * psi_ - psiBefore_;
    const double chi = factor * chi_ - chiBefore_;
    psiBefore_ = psi_;
    chiBefore_ = chi_;
    psi_ = psi;
    chi_ = chi;
    const double ratio = n * inverse_.re;
    slope_ = {psiBefore_ - ratio * psi_, chiBefore_ - ratio * chi_};
  }

  ComplexD Xi1() const { return {psi_, chi_}; }
  ComplexD Xi1Slope() const { return slope_; }
  double Chi() const { return chi_; }

 private:
  ReciprocalPair inverse_;
  double psi_, psiBefore_, chi_, chiBefore_;
  ComplexD slope_;
};

/// The functions inside the sphere as the coefficients need them, up to one common factor F of positive modulus:
/// xi1, xi1', xi2, xi2' over F and tau = -4/F^2.
struct Inside {
  ComplexD Xi1Z, DXi1Z, Xi2Z, DXi2Z, tau;
};

/// The functions of a complex argument z = m x (or of a real one below x), n one after the other.
class ComplexFunctions {
 public:
  ComplexFunctions(double x, double mRe, double mIm, int terms, bool byRatio)
      : inverse_(ReciprocalOfProduct(x, mRe, mIm)), z_(x * mRe, x * mIm), byRatio_(byRatio) {
    if (!byRatio_) {
      const int start = LogarithmicDerivativeStart(terms, std::hypot(z_.re, z_.im));
      D_ = ComputeLogarithmicDerivative(x, mRe, mIm, start, 0, terms);
    }
    // psi_0 = sin z over e^(Im z): its phase is all that matters. xi1_0/psi_0 = 2/(1 - e^(-2iz)) e^(..) by parts:
    const double y = z_.im;
    const double decay = std::exp(-2.0 * y);
    const ComplexD sine(std::sin(z_.re) * (1.0 + decay) / 2.0, std::cos(z_.re) * (1.0 - decay) / 2.0);
    psi_ = sine;
    // xi1_0 = -i e^(iz), of modulus e^(-y): relative to sin z it carries e^(-2y).
    const ComplexD wave(std::sin(z_.re), -std::cos(z_.re));
    V_.mantissa = wave / sine;
    const double log2 = -2.0 * y * 1.44269504088896341;
    V_.exponent = static_cast<int>(std::floor(log2 / 512.0));
    V_.mantissa = std::exp2(log2 - 512.0 * V_.exponent) * V_.mantissa;
    V_.Renew();
    slope1_ = {0.0, 1.0};
  }

  Inside Advance(int n, RunMonitor& monitor) {
    const ComplexD ratio(n * inverse_.re + n * inverse_.reLow, n * inverse_.im + n * inverse_.imLow);
    ComplexD D;
    if (byRatio_) {
      D = SphericalBesselRatio(n, z_, monitor) - ratio;
    } else {
      D = {D_.re[static_cast<std::size_t>(n)], D_.im[static_cast<std::size_t>(n)]};
    }
    const ComplexD psiRatio = D + ratio;  // psi_(n-1)/psi_n
    const ComplexD xiRatio = Reciprocal(ratio - slope1_);
    slope1_ = xiRatio - ratio;  // xi1_n'/xi1_n; xiRatio = xi1_(n-1)/xi1_n
    V_.mantissa = V_.mantissa * psiRatio * Reciprocal(xiRatio);
    V_.Renew();
    psi_ = psi_ * Reciprocal(psiRatio);
    psi_ = (1.0 / (std::fabs(psi_.re) + std::fabs(psi_.im))) * psi_;
    return Normalised(D);
  }

 private:
  /// Over psi while xi1 is smaller, over xi1 beyond; the phase of the divisor is put back for the test of signs.
  Inside Normalised(const ComplexD& D) const {
    Inside f;
    ComplexD F = psi_;
    const bool bySmaller = V_.exponent < 0 || (V_.exponent == 0 && SquaredModulus(V_.mantissa) <= 1.0);
    if (bySmaller) {
      const ComplexD V = V_.exponent < 0 ? ComplexD() : V_.mantissa;
      f.Xi1Z = V;
      f.DXi1Z = V * slope1_;
      f.Xi2Z = ComplexD(2.0, 0.0) - V;
      f.DXi2Z = 2.0 * D - f.DXi1Z;
      f.tau = 4.0 * TimesI(V * (slope1_ - D));
    } else {
      // V may carry an exponent; only its phase goes into F.
      F = F * ((1.0 / std::sqrt(SquaredModulus(V_.mantissa))) * V_.mantissa);
      const ComplexD U = V_.exponent > 0 ? ComplexD() : Reciprocal(V_.mantissa);
      f.Xi1Z = {1.0, 0.0};
      f.DXi1Z = slope1_;
      f.Xi2Z = 2.0 * U - ComplexD(1.0, 0.0);
      f.DXi2Z = 2.0 * (U * D) - slope1_;
      f.tau = 4.0 * TimesI(U * (slope1_ - D));
    }
    f.Xi1Z = F * f.Xi1Z;
    f.DXi1Z = F * f.DXi1Z;
    f.Xi2Z = F * f.Xi2Z;
    f.DXi2Z = F * f.DXi2Z;
    f.tau = F * F * f.tau;
    return f;
  }

  ReciprocalPair inverse_;
  ComplexD z_;
  bool byRatio_;
  LogarithmicDerivative D_;
  ComplexD psi_;     // Up to a positive factor.
  WideComplex V_;    // xi1/psi
  ComplexD slope1_;  // xi1'/xi1
};

/// Parts of the numerator that both outweigh the sum with the denominator: the wave passes by.
bool PassesBy(const ComplexD& numerator, const ComplexD& denominator) {
  return numerator.re / GrazingRatio > std::fabs(denominator.re + numerator.re) &&
         numerator.im / GrazingRatio > std::fabs(denominator.im + numerator.im);
}

DebyeSurface Couple(const RealFunctions& outside, const Inside& inside, const ComplexD& m, const ComplexD& inverseM) {
  const ComplexD Xi1X = outside.Xi1();
  const ComplexD DXi1X = outside.Xi1Slope();
  const ComplexD Xi2X = Conjugate(Xi1X);
  const ComplexD DXi2X = Conjugate(DXi1X);
  DebyeSurface s;
  const ComplexD DTE = DXi1X * inside.Xi2Z - m * (Xi1X * inside.DXi2Z);
  const ComplexD inverseTE = Reciprocal(DTE);
  const ComplexD NTE1 = DXi1X * inside.Xi1Z - m * (Xi1X * inside.DXi1Z);
  const ComplexD NTE2 = DXi2X * inside.Xi2Z - m * (Xi2X * inside.DXi2Z);
  s.R121TE = -(NTE1 * inverseTE);
  s.R212TE = PassesBy(NTE2, DTE) ? ComplexD(1.0, 0.0) : -(NTE2 * inverseTE);
  s.TTE = m * inside.tau * inverseTE * inverseTE;
  const ComplexD DTM = DXi1X * inside.Xi2Z - inverseM * (Xi1X * inside.DXi2Z);
  const ComplexD inverseTM = Reciprocal(DTM);
  const ComplexD NTM1 = DXi1X * inside.Xi1Z - inverseM * (Xi1X * inside.DXi1Z);
  const ComplexD NTM2 = DXi2X * inside.Xi2Z - inverseM * (Xi2X * inside.DXi2Z);
  s.R121TM = -(NTM1 * inverseTM);
  s.R212TM = -(NTM2 * inverseTM);
  s.TTM = inverseM * inside.tau * inverseTM * inverseTM;
  return s;
}

/// A partial wave that misses the sphere.
DebyeSurface Missing() {
  DebyeSurface s;
  s.R212TE = s.R212TM = {1.0, 0.0};
  return s;
}

}  // namespace

DebyeSurfaces::DebyeSurfaces(double x, double mRe, double mIm, int terms, bool byRatio, RunMonitor& monitor) {
  const ComplexD m(mRe, mIm);
  const ComplexD inverseM = Reciprocal(m);
  const bool real = mIm == 0.0 && mRe >= 1.0;
  const auto count = static_cast<std::size_t>(terms);
  const int termsPerLook = byRatio ? 1 : TermsPerLook;
  surfaces_.reserve(count + 1);
  surfaces_.emplace_back();

  RealFunctions outside(x);
  const auto run = [&](const auto& inside, const auto& magnitude) {
    int n = 1;
    for (; n <= terms; ++n) {
      if (n % termsPerLook == 0 && !monitor.Report(static_cast<std::size_t>(n) - 1, count)) return;
      outside.Advance(n);
      const Inside f = inside(n);
      if (!(std::fabs(outside.Chi()) * magnitude() < LargestChi)) break;
      surfaces_.push_back(Couple(outside, f, m, inverseM));
    }
    surfaces_.resize(count + 1, Missing());
  };
  if (real) {
    RealFunctions functions(x, mRe);
    run(
        [&](int n) {
          functions.Advance(n);
          const ComplexD xi1 = functions.Xi1();
          const ComplexD slope = functions.Xi1Slope();
          return Inside{xi1, slope, Conjugate(xi1), Conjugate(slope), {-4.0, 0.0}};
        },
        [&] { return std::max(1.0, std::fabs(functions.Chi())); });
  } else {
    ComplexFunctions functions(x, mRe, mIm, terms, byRatio);
    run([&](int n) { return functions.Advance(n, monitor); }, [] { return 1.0; });
  }
}

PartialWaves SumDebyeTerms(const DebyeSurfaces& surfaces, std::span<const int> selected, int first, int last,
                           RunMonitor& monitor) {
  PartialWaves waves(surfaces.Terms());
  std::size_t top = selected.size();
  while (top > 0 && selected[top - 1] == 0) --top;
  if (top == 0) return waves;
  const bool reflection = selected[0] != 0;
  first = std::max(first, 1);
  last = std::min(last, surfaces.Terms());
  std::size_t products = 0;
  for (int n = first; n <= last; ++n) {
    const DebyeSurface& s = surfaces[n];
    // sum over p >= 1 of R121^(p-1), both types side by side.
    ComplexD sumA;
    ComplexD sumB;
    for (std::size_t p = top; p-- > 1;) {
      const double one = selected[p] != 0 ? 1.0 : 0.0;
      sumA = sumA * s.R121TM + ComplexD(one, 0.0);
      sumB = sumB * s.R121TE + ComplexD(one, 0.0);
    }
    ComplexD DebyeA = s.TTM * sumA;
    ComplexD DebyeB = s.TTE * sumB;
    if (reflection) {
      DebyeA = DebyeA + s.R212TM - ComplexD(1.0, 0.0);
      DebyeB = DebyeB + s.R212TE - ComplexD(1.0, 0.0);
    }
    const auto i = static_cast<std::size_t>(n);
    waves.aRe[i] = -0.5 * DebyeA.re;
    waves.aIm[i] = -0.5 * DebyeA.im;
    waves.bRe[i] = -0.5 * DebyeB.re;
    waves.bIm[i] = -0.5 * DebyeB.im;
    products += top + 8;
    if (products >= ProductsPerLook) {
      products = 0;
      if (!monitor.Report(i, waves.aRe.size())) break;
    }
  }
  return waves;
}

}  // namespace lumivex
