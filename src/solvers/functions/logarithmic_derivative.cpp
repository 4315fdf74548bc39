#include "solvers/functions/logarithmic_derivative.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "solvers/functions/reciprocal_pair.h"

namespace lumivex {
namespace {

void RunReal(const ReciprocalPair& inverse, int start, int first, int last, std::vector<double>& D) {
  double derivative = 0.0;
  for (int n = start; n > first; --n) {
    const double ratio = n * inverse.re + n * inverse.reLow;
    derivative = ratio - 1.0 / (derivative + ratio);
    if (n - 1 <= last) D[static_cast<std::size_t>(n - 1)] = derivative;
  }
}

void RunComplex(const ReciprocalPair& inverse, int start, int first, int last, LogarithmicDerivative& D) {
  double re = 0.0;
  double im = 0.0;
  for (int n = start; n > first; --n) {
    const double ratioRe = n * inverse.re + n * inverse.reLow;
    const double ratioIm = n * inverse.im + n * inverse.imLow;
    const double sumRe = re + ratioRe;
    const double sumIm = im + ratioIm;
    const double inverseSum = 1.0 / (sumRe * sumRe + sumIm * sumIm);
    re = ratioRe - sumRe * inverseSum;
    im = ratioIm + sumIm * inverseSum;
    if (n - 1 <= last) {
      D.re[static_cast<std::size_t>(n - 1)] = re;
      D.im[static_cast<std::size_t>(n - 1)] = im;
    }
  }
}

}  // namespace

int LogarithmicDerivativeStart(int last, double modulus) {
  const double top = std::max(static_cast<double>(last), modulus);
  return static_cast<int>(std::ceil(top + 16.0 + 8.0 * std::cbrt(modulus)));
}

LogarithmicDerivative ComputeLogarithmicDerivative(double x, double mRe, double mIm, int start, int first, int last) {
  LogarithmicDerivative D;
  D.re.assign(static_cast<std::size_t>(last) + 1, 0.0);
  D.im.assign(static_cast<std::size_t>(last) + 1, 0.0);
  const ReciprocalPair inverse = ReciprocalOfProduct(x, mRe, mIm);
  if (mIm == 0.0) {
    RunReal(inverse, start, first, last, D.re);
  } else {
    RunComplex(inverse, start, first, last, D);
  }
  return D;
}

}  // namespace lumivex
