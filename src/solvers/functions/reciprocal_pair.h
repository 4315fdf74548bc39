#pragma once

namespace lumivex {

/// 1/(m x), each part as the sum of a double and a small correction.
///
/// A recurrence that multiplies by a rounded 1/y in every step is the exact recurrence of a slightly different y:
/// its phase is off by |y| eps, which sharp resonances magnify. The correction takes that away for one operation a
/// step. Where long double is no longer than double, the correction is 0.
struct ReciprocalPair {
  double re = 0.0;
  double im = 0.0;
  double reLow = 0.0;
  double imLow = 0.0;
};

/// 1/(m x) for m = mRe + i mIm, not (0, 0); x not 0.
inline ReciprocalPair ReciprocalOfProduct(double x, double mRe, double mIm) {
  using Long = long double;
  ReciprocalPair result;
  const Long yRe = static_cast<Long>(x) * static_cast<Long>(mRe);
  Long re = 0.0L;
  Long im = 0.0L;
  if (mIm == 0.0) {
    re = 1.0L / yRe;
  } else {
    const Long yIm = static_cast<Long>(x) * static_cast<Long>(mIm);
    const Long inverse = 1.0L / (yRe * yRe + yIm * yIm);
    re = yRe * inverse;
    im = -yIm * inverse;
  }
  result.re = static_cast<double>(re);
  result.im = static_cast<double>(im);
  result.reLow = static_cast<double>(re - static_cast<Long>(result.re));
  result.imLow = static_cast<double>(im - static_cast<Long>(result.im));
  return result;
}

}  // namespace lumivex
