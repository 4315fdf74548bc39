#include "solvers/series/mie_coefficients.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "solvers/functions/logarithmic_derivative.h"
#include "solvers/functions/reciprocal_pair.h"

namespace lumivex {
namespace {

constexpr int UnboundedTerms = 1000000000;
constexpr double ConvergenceStretch = 1.2;
constexpr double LargestChi = 1e100;

double Modulus(double x, double mRe, double mIm) {
  const double yRe = x * mRe;
  const double yIm = x * mIm;
  return std::sqrt(yRe * yRe + yIm * yIm);
}

/// psi_n and chi_n of the real argument x, with their neighbours n - 1, one n after the other.
class RiccatiBessel {
 public:
  RiccatiBessel(double x, int last)
      : inverse_(ReciprocalOfProduct(x, 1.0, 0.0)),
        firstDown_(x < last ? static_cast<int>(x) + 1 : last + 1),
        psi_(std::sin(x)),
        psiBefore_(std::cos(x)),
        chi_(psiBefore_),
        chiBefore_(-psi_) {
    if (firstDown_ <= last) {
      down_ = ComputeLogarithmicDerivative(x, 1.0, 0.0, LogarithmicDerivativeStart(last, x), firstDown_, last).re;
    }
  }

  /// Goes from n - 1 to n; false where chi has left the range in which a_n matters.
  bool Advance(int n) {
    const double factor = (2 * n - 1) * inverse_.re + (2 * n - 1) * inverse_.reLow;
    const double chiNext = factor * chi_ - chiBefore_;
    chiBefore_ = chi_;
    chi_ = chiNext;
    downward_ = n >= firstDown_;
    const double ratio = n * inverse_.re + n * inverse_.reLow;
    double psiNext = 0.0;
    if (downward_) {
      psiNext = psi_ / (down_[static_cast<std::size_t>(n)] + ratio);
      logarithmic_ = down_[static_cast<std::size_t>(n)];
    } else {
      psiNext = factor * psi_ - psiBefore_;
    }
    psiBefore_ = psi_;
    psi_ = psiNext;
    ratio_ = ratio;
    return std::fabs(chi_) <= LargestChi;
  }

  /// (d + n/x) psi_n - psi_(n-1), real part, for the real part d of D_n(mx)/m or m D_n(mx).
  double Numerator(double d) const { return downward_ ? psi_ * (d - logarithmic_) : (d + ratio_) * psi_ - psiBefore_; }
  /// The same with chi in place of psi.
  double Companion(double d) const { return (d + ratio_) * chi_ - chiBefore_; }

  double Psi() const { return psi_; }
  double Chi() const { return chi_; }

 private:
  ReciprocalPair inverse_;
  int firstDown_;
  double psi_;
  double psiBefore_;
  double chi_;
  double chiBefore_;
  double ratio_ = 0.0;
  double logarithmic_ = 0.0;
  bool downward_ = false;
  std::vector<double> down_;
};

void SumReal(double x, double m, const MieTruncation& truncation, PartialWaves& waves) {
  const int terms = truncation.NSTOP;
  const LogarithmicDerivative D = ComputeLogarithmicDerivative(x, m, 0.0, truncation.start, 0, terms);
  RiccatiBessel functions(x, terms);
  const double inverse = 1.0 / m;
  for (int n = 1; n <= terms && functions.Advance(n); ++n) {
    const auto i = static_cast<std::size_t>(n);
    const auto store = [&](double d, double& re, double& im) {
      // With numerator and D real the quotient num / (num - i q) needs no complex division.
      const double numerator = functions.Numerator(d);
      const double q = functions.Companion(d);
      const double scale = numerator / (numerator * numerator + q * q);
      re = scale * numerator;
      im = scale * q;
    };
    store(D.re[i] * inverse, waves.aRe[i], waves.aIm[i]);
    store(D.re[i] * m, waves.bRe[i], waves.bIm[i]);
  }
}

void SumComplex(double x, double mRe, double mIm, const MieTruncation& truncation, PartialWaves& waves) {
  const int terms = truncation.NSTOP;
  const LogarithmicDerivative D = ComputeLogarithmicDerivative(x, mRe, mIm, truncation.start, 0, terms);
  RiccatiBessel functions(x, terms);
  const double square = mRe * mRe + mIm * mIm;
  const double inverseRe = mRe / square;
  const double inverseIm = -mIm / square;
  for (int n = 1; n <= terms && functions.Advance(n); ++n) {
    const auto i = static_cast<std::size_t>(n);
    const auto store = [&](double dRe, double dIm, double& re, double& im) {
      const double numRe = functions.Numerator(dRe);
      const double numIm = dIm * functions.Psi();
      const double denRe = numRe + dIm * functions.Chi();
      const double denIm = numIm - functions.Companion(dRe);
      const double inverse = 1.0 / (denRe * denRe + denIm * denIm);
      re = (numRe * denRe + numIm * denIm) * inverse;
      im = (numIm * denRe - numRe * denIm) * inverse;
    };
    store(D.re[i] * inverseRe - D.im[i] * inverseIm, D.re[i] * inverseIm + D.im[i] * inverseRe, waves.aRe[i],
          waves.aIm[i]);
    store(D.re[i] * mRe - D.im[i] * mIm, D.re[i] * mIm + D.im[i] * mRe, waves.bRe[i], waves.bIm[i]);
  }
}

}  // namespace

int NStopEstimate(double x, int margin) {
  const double estimate = std::nearbyint(x + 4.0 * std::pow(x, 0.3333) + margin);
  return estimate < UnboundedTerms ? static_cast<int>(estimate) : UnboundedTerms;
}

MieTruncation ComputeMieTruncation(double x, double mRe, double mIm, bool convergence, bool classicStart) {
  const double modulus = Modulus(x, mRe, mIm);
  const int estimate = NStopEstimate(x);
  MieTruncation truncation;
  truncation.NSTOP = estimate;
  truncation.NMX = static_cast<int>(std::min<double>(std::max<double>(estimate, modulus), UnboundedTerms)) + 20;
  if (convergence) {
    truncation.NSTOP = static_cast<int>(std::nearbyint(ConvergenceStretch * estimate));
    truncation.NMX = truncation.NSTOP;
  }
  truncation.start = truncation.NMX;
  if (!classicStart && modulus < MaxSeriesTerms) {
    truncation.start = LogarithmicDerivativeStart(truncation.NSTOP, modulus);
  }
  return truncation;
}

MieRefusal CheckMieLimits(double x, double mRe, double mIm, bool convergence) {
  if (!(Modulus(x, mRe, mIm) < MaxSeriesTerms)) return MieRefusal::SizeTooLarge;
  const MieTruncation truncation = ComputeMieTruncation(x, mRe, mIm, convergence, true);
  return truncation.NMX > MaxSeriesTerms ? MieRefusal::SeriesTooLong : MieRefusal::None;
}

PartialWaves MieCoefficients(double x, double mRe, double mIm, const MieTruncation& truncation) {
  PartialWaves waves(truncation.NSTOP);
  if (mIm == 0.0) {
    SumReal(x, mRe, truncation, waves);
  } else {
    SumComplex(x, mRe, mIm, truncation, waves);
  }
  return waves;
}

}  // namespace lumivex
