#pragma once

#include <vector>

namespace lumivex {

/// D_n(y) = psi_n'(y) / psi_n(y), the logarithmic derivative of the Riccati-Bessel function psi_n(y) = y j_n(y).
/// Rows n = 0..last; the imaginary column is 0 for a real argument.
struct LogarithmicDerivative {
  std::vector<double> re;
  std::vector<double> im;
};

/// First row of the downward recurrence from which D_n has forgotten its start, for every n <= last.
///
/// Below its start at row s the recurrence damps an error by the square of psi_s / psi_n, which falls fast only
/// for rows above |y|. 16 + 8 |y|^(1/3) rows above max(last, |y|) damp it below 1e-18, whatever |y|.
/// @param last     last row wanted.
/// @param modulus  |y|, finite.
int LogarithmicDerivativeStart(int last, double modulus);

/// D_n(y) for y = m x by downward recurrence, D_(n-1) = n/y - 1 / (D_n + n/y), from D_start = 0; stable for every y
/// (Bohren and Huffman 1983, section 4.8). The product m x is not rounded to a double on the way.
///
/// @param x         size parameter, not 0.
/// @param mRe, mIm  refractive index, not (0, 0); mIm of exactly 0 takes the real path.
/// @param start     row of the start from zero, >= last.
/// @param first     rows below it are not computed and stay 0 (>= 0).
/// @param last      last row kept.
LogarithmicDerivative ComputeLogarithmicDerivative(double x, double mRe, double mIm, int start, int first, int last);

}  // namespace lumivex
