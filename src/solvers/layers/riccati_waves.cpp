#include "solvers/layers/riccati_waves.h"

#include <cmath>
#include <cstddef>

#include "solvers/functions/logarithmic_derivative.h"
#include "solvers/functions/reciprocal_pair.h"

namespace lumivex {

namespace {

constexpr ComplexD one(1.0, 0.0);

/// d and Y from psi'/psi = G and g = xi1/psi, by whichever of the two functions is the larger.
void FromStanding(const ComplexD& L, const ComplexD& G, const WideComplex& g, ComplexD& d, WideComplex& Y) {
  const bool small = g.exponent < 0 || (g.exponent == 0 && SquaredModulus(g.mantissa) <= 1.0);
  if (small) {
    const ComplexD rest = ComplexD(2.0, 0.0) - g.Value();
    d = 2.0 * (L - G) / rest;
    Y = {g.mantissa / rest, g.exponent};
  } else {
    const ComplexD h = g.exponent > 0 ? ComplexD() : Reciprocal(g.mantissa);
    const ComplexD rest = 2.0 * h - one;
    d = 2.0 * h * (L - G) / rest;
    Y = {Reciprocal(rest), 0};
  }
}

}  // namespace

RiccatiWaves::RiccatiWaves(double x, const ComplexD& m, int terms, WaveRecursion recursion) {
  const auto size = static_cast<std::size_t>(terms) + 1;
  L.resize(size);
  d.resize(size);
  Y.resize(size);
  const ReciprocalPair inverse = ReciprocalOfProduct(x, m.re, m.im);
  const ComplexD z(x * m.re, x * m.im);
  const bool real = m.im == 0.0;
  const bool down =
      !real && (recursion == WaveRecursion::Downwards || (recursion == WaveRecursion::Automatic && z.im >= 1.0));
  LogarithmicDerivative G;
  WideComplex g;
  const WideComplex wave = WaveThere(z);
  if (down) {
    G = ComputeLogarithmicDerivative(x, m.re, m.im, LogarithmicDerivativeStart(terms, std::hypot(z.re, z.im)), 0,
                                     terms);
    g = {-2.0 * wave.mantissa / (one - wave.Value()), wave.exponent};
  }
  L[0] = {0.0, 1.0};
  d[0] = {0.0, 2.0};
  Y[0] = {-wave.mantissa, wave.exponent};
  for (std::size_t n = 1; n < size; ++n) {
    const auto k = static_cast<double>(n);
    const ComplexD ratio(k * inverse.re + k * inverse.reLow, k * inverse.im + k * inverse.imLow);
    const ComplexD a = ratio - L[n - 1];
    L[n] = Reciprocal(a) - ratio;
    if (real) {
      d[n] = {0.0, 2.0 * L[n].im};
      Y[n] = {Y[n - 1].mantissa * a / Conjugate(a), 0};
    } else if (down) {
      const ComplexD psiDerivative(G.re[n - 1], G.im[n - 1]);
      g.mantissa = g.mantissa * a / (ratio - psiDerivative);
      g.Renew();
      FromStanding(L[n], {G.re[n], G.im[n]}, g, d[n], Y[n]);
    } else {
      const ComplexD b = a + d[n - 1];
      d[n] = d[n - 1] / (a * b);
      Y[n] = {Y[n - 1].mantissa * a / b, Y[n - 1].exponent};
    }
    Y[n].Renew();
  }
}

}  // namespace lumivex
