#include "solvers/layers/layered_sphere.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

#include "solvers/functions/complex_algebra.h"
#include "solvers/functions/logarithmic_derivative.h"
#include "solvers/functions/reciprocal_pair.h"

namespace lumivex {

namespace {

/// Layers times terms between two looks at the monitor: about a millisecond.
constexpr std::size_t WorkPerLook = 20'000;
constexpr ComplexD one(1.0, 0.0);

ComplexD RatioOf(const ReciprocalPair& inverse, int n) {
  return {n * inverse.re + n * inverse.reLow, n * inverse.im + n * inverse.imLow};
}
double RealRatioOf(const ReciprocalPair& inverse, int n) {
  return n * inverse.re + n * inverse.reLow;
}

/// D_n(z) of z = m x downward into D[0..terms].
void DownwardDerivative(const SphereLayer& at, int terms, std::vector<ComplexD>& D) {
  const ReciprocalPair inverse = ReciprocalOfProduct(at.x, at.m.re, at.m.im);
  const double modulus = at.x * std::hypot(at.m.re, at.m.im);
  ComplexD d;
  for (int n = LogarithmicDerivativeStart(terms, modulus); n > 0; --n) {
    const ComplexD ratio = RatioOf(inverse, n);
    d = ratio - Reciprocal(d + ratio);
    if (n - 1 <= terms) D[static_cast<std::size_t>(n - 1)] = d;
  }
}

/// D_n and xi_n'/xi_n of the argument at one side of a layer, n one after the other, and the quotient of psi and xi.
class Side {
 public:
  Side(const SphereLayer& at, const std::vector<ComplexD>& D)
      : inverse_(ReciprocalOfProduct(at.x, at.m.re, at.m.im)), D_(D) {}

  /// Goes from n - 1 to n and tells psi_n xi_(n-1) / (psi_(n-1) xi_n).
  ComplexD Advance(int n) {
    const ComplexD ratio = RatioOf(inverse_, n);
    const ComplexD before = ratio - D3;  // xi_n / xi_(n-1)
    D3 = Reciprocal(before) - ratio;
    D1 = D_[static_cast<std::size_t>(n)];
    return Reciprocal(before * (D1 + ratio));
  }

  ComplexD D1;
  ComplexD D3{0.0, 1.0};

 private:
  ReciprocalPair inverse_;
  const std::vector<ComplexD>& D_;
};

/// exp(2 i (z2 - z1)) (1 - exp(2 i z1)) / (1 - exp(2 i z2)): the quotient of psi_0/xi_0 at the two sides.
ComplexD FirstQuotient(const SphereLayer& inner, const SphereLayer& outer) {
  const auto wave = [](double re, double im) {
    const double size = std::exp(-2.0 * im);
    return ComplexD(size * std::cos(2.0 * re), size * std::sin(2.0 * re));
  };
  const ComplexD m = outer.m;
  const double step = outer.x - inner.x;
  const ComplexD across = wave(step * m.re, step * m.im);
  return across * (one - wave(inner.x * m.re, inner.x * m.im)) / (one - wave(outer.x * m.re, outer.x * m.im));
}

/// psi_n and chi_n of the real argument y and the coefficients that fit the H of the surface to them.
class Surface {
 public:
  Surface(double y, int terms)
      : inverse_(ReciprocalOfProduct(y, 1.0, 0.0)),
        firstDown_(y < terms ? static_cast<int>(y) + 1 : terms + 1),
        psi_(std::sin(y)),
        psiBefore_(std::cos(y)),
        chi_(psiBefore_),
        chiBefore_(-psi_) {
    if (firstDown_ <= terms)
      down_ = ComputeLogarithmicDerivative(y, 1.0, 0.0, LogarithmicDerivativeStart(terms, y), firstDown_, terms).re;
  }

  /// From n - 1 to n; false where chi has left the range in which coefficients matter.
  bool Advance(int n) {
    const double factor = RealRatioOf(inverse_, 2 * n - 1);
    ratio_ = RealRatioOf(inverse_, n);
    const double chi = factor * chi_ - chiBefore_;
    chiBefore_ = chi_;
    chi_ = chi;
    down = n >= firstDown_;
    slope_ = down ? down_[static_cast<std::size_t>(n)] : 0.0;
    const double psi = down ? psi_ / (slope_ + ratio_) : factor * psi_ - psiBefore_;
    psiBefore_ = psi_;
    psi_ = psi;
    return std::fabs(chi_) <= 1e100;
  }

  /// ((h + n/y) psi_n - psi_(n-1)) / ((h + n/y) xi_n - xi_(n-1)).
  ComplexD Coefficient(const ComplexD& h) const {
    const ComplexD numerator =
        down ? psi_ * ComplexD(h.re - slope_, h.im) : ComplexD((h.re + ratio_) * psi_ - psiBefore_, h.im * psi_);
    const ComplexD companion((h.re + ratio_) * chi_ - chiBefore_, h.im * chi_);
    return numerator / (numerator - TimesI(companion));
  }

 private:
  ReciprocalPair inverse_;
  int firstDown_;
  bool down = false;
  double psi_, psiBefore_, chi_, chiBefore_;
  double ratio_ = 0.0, slope_ = 0.0;
  std::vector<double> down_;
};

/// The logarithmic derivatives at a surface, n = 0..terms (0 unused), for a_n and b_n.
struct SurfaceField {
  std::vector<ComplexD> a, b;
};

PartialWaves WavesOf(const SphereLayer& outermost, const SurfaceField& H, int terms) {
  PartialWaves waves(terms);
  Surface surface(outermost.x, terms);
  const ComplexD inverse = Reciprocal(outermost.m);
  for (int n = 1; n <= terms && surface.Advance(n); ++n) {
    const auto i = static_cast<std::size_t>(n);
    const ComplexD a = surface.Coefficient(H.a[i] * inverse);
    const ComplexD b = surface.Coefficient(H.b[i] * outermost.m);
    waves.aRe[i] = a.re;
    waves.aIm[i] = a.im;
    waves.bRe[i] = b.re;
    waves.bIm[i] = b.im;
  }
  return waves;
}

/// Walks from the first layer to the last; `cross` brings H from one surface to the next.
template <class Cross>
PartialWaves Walk(std::span<const SphereLayer> layers, int terms, SurfaceField H, RunMonitor& monitor, Cross cross) {
  const std::size_t perLook = std::max<std::size_t>(1, WorkPerLook / static_cast<std::size_t>(std::max(terms, 1)));
  for (std::size_t layer = 1; layer < layers.size(); ++layer) {
    if (layer % perLook == 0 && !monitor.Report(layer, layers.size())) return PartialWaves(0);
    const ComplexD before = layers[layer - 1].m;
    // The inner side of the layer lies at the surface of the one before and has the index of the layer.
    cross(SphereLayer{layers[layer - 1].x, layers[layer].m}, layers[layer], before, H);
  }
  return WavesOf(layers.back(), H, terms);
}

}  // namespace

int LayeredSphereTerms(double y) {
  return static_cast<int>(y + 4.0 * std::pow(y, 0.3333) + 2.0);
}

PartialWaves LayeredSphereCoefficients(std::span<const SphereLayer> layers, int terms, RunMonitor& monitor) {
  const auto size = static_cast<std::size_t>(terms) + 1;
  std::vector<ComplexD> inner(size), outer(size);
  DownwardDerivative(layers.front(), terms, outer);
  const auto cross = [&](const SphereLayer& z1, const SphereLayer& z2, const ComplexD& before, SurfaceField& H) {
    const ComplexD m = z2.m;
    DownwardDerivative(z1, terms, inner);
    DownwardDerivative(z2, terms, outer);
    Side in(z1, inner), out(z2, outer);
    ComplexD Q = FirstQuotient(z1, z2);
    for (std::size_t n = 1; n < size; ++n) {
      const ComplexD rising = in.Advance(static_cast<int>(n));
      Q = Q * rising / out.Advance(static_cast<int>(n));
      const auto next = [&](const ComplexD& field, const ComplexD& own) {
        const ComplexD G1 = field - own * in.D1;
        const ComplexD G2 = field - own * in.D3;
        return (G2 * out.D1 - Q * G1 * out.D3) / (G2 - Q * G1);
      };
      H.a[n] = next(m * H.a[n], before);
      H.b[n] = next(before * H.b[n], m);
    }
  };
  return Walk(layers, terms, {outer, outer}, monitor, cross);
}

namespace {

/// psi_n'/psi_n of a real z into P[1..terms], chi_n'/chi_n into C, and psi_n/psi_(n-1) over chi_n/chi_(n-1) into R.
void StandingWaves(const SphereLayer& at, std::vector<double>& P, std::vector<double>& C, std::vector<double>& R) {
  const ReciprocalPair inverse = ReciprocalOfProduct(at.x, at.m.re, 0.0);
  const double z = at.x * at.m.re;
  const int terms = static_cast<int>(P.size()) - 1;
  const int turn = std::min(static_cast<int>(z), terms);
  P[0] = 1.0 / std::tan(z);
  C[0] = -std::tan(z);
  if (turn < terms) {
    double d = 0.0;
    for (int n = LogarithmicDerivativeStart(terms, z); n > turn; --n) {
      const double ratio = RealRatioOf(inverse, n);
      if (n <= terms) P[static_cast<std::size_t>(n)] = d;
      d = ratio - 1.0 / (d + ratio);
    }
  }
  for (int n = 1; n <= terms; ++n) {
    const auto i = static_cast<std::size_t>(n);
    const double ratio = RealRatioOf(inverse, n);
    const double chiRises = ratio - C[i - 1];
    if (n <= turn) P[i] = 1.0 / (ratio - P[i - 1]) - ratio;
    C[i] = 1.0 / chiRises - ratio;
    R[i] = 1.0 / ((P[i] + ratio) * chiRises);
  }
}

}  // namespace

PartialWaves LayeredSphereByTangents(std::span<const SphereLayer> layers, int terms, RunMonitor& monitor) {
  const auto size = static_cast<std::size_t>(terms) + 1;
  std::vector<double> P1(size), C1(size), R1(size), P2(size), C2(size), R2(size);
  StandingWaves(layers.front(), P1, C1, R1);
  SurfaceField H{std::vector<ComplexD>(size), std::vector<ComplexD>(size)};
  for (std::size_t n = 1; n < size; ++n) H.a[n] = H.b[n] = {P1[n], 0.0};
  const auto cross = [&](const SphereLayer& z1, const SphereLayer& z2, const ComplexD& before, SurfaceField& field) {
    const double m = z2.m.re;
    StandingWaves(z1, P1, C1, R1);
    StandingWaves(z2, P2, C2, R2);
    double Q = std::tan(z1.x * m) / std::tan(z2.x * m);
    for (std::size_t n = 1; n < size; ++n) {
      Q *= R1[n] / R2[n];
      const auto next = [&](double h, double own) {
        const double G1 = h - own * P1[n];
        const double G2 = h - own * C1[n];
        return (G2 * P2[n] - Q * G1 * C2[n]) / (G2 - Q * G1);
      };
      field.a[n].re = next(m * field.a[n].re, before.re);
      field.b[n].re = next(before.re * field.b[n].re, m);
    }
  };
  return Walk(layers, terms, std::move(H), monitor, cross);
}

}  // namespace lumivex
