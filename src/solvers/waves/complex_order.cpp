#include "solvers/waves/complex_order.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <numbers>

namespace lumivex {

namespace {

using Complex = std::complex<double>;
constexpr double pi = std::numbers::pi;
constexpr Complex I(0, 1);

constexpr int expansionTerms = 12;
/// A polynomial in t: coefficient of t^i at i.
using Polynomial = std::array<double, 3 * expansionTerms + 1>;

struct DebyePolynomials {
  std::array<Polynomial, expansionTerms + 1> U, V;
};

/// U_(k+1) = t^2 (1 - t^2)/2 U_k' + 1/8 int_0^t (1 - 5 s^2) U_k ds, V_(k+1) = U_(k+1) + t (t^2 - 1) (U_k/2 + t U_k').
DebyePolynomials MakePolynomials() {
  DebyePolynomials made{};
  made.U[0][0] = made.V[0][0] = 1;
  for (std::size_t k = 0; k < expansionTerms; ++k) {
    const Polynomial& u = made.U[k];
    Polynomial& nextU = made.U[k + 1];
    Polynomial& nextV = made.V[k + 1];
    for (std::size_t i = 0; i <= 3 * k; ++i) {
      const auto power = static_cast<double>(i);
      nextU[i + 1] += 0.5 * power * u[i] + 0.125 * u[i] / (power + 1);
      nextU[i + 3] -= 0.5 * power * u[i] + 0.625 * u[i] / (power + 3);
    }
    nextV = nextU;
    for (std::size_t i = 0; i <= 3 * k; ++i) {
      const double slope = (0.5 + static_cast<double>(i)) * u[i];
      nextV[i + 3] += slope;
      nextV[i + 1] -= slope;
    }
  }
  return made;
}

/// The polynomial number k has the powers k, k + 2, ... 3 k.
Complex Evaluate(const Polynomial& polynomial, std::size_t k, const Complex& t, const Complex& tk) {
  Complex sum = 0;
  const Complex square = t * t;
  for (std::size_t i = 0; i <= k; ++i) sum = sum * square + polynomial[3 * k - 2 * i];
  return sum * tk;
}

/// sinh w - w without the loss of a difference where w is small.
Complex SinhBeyond(const Complex& w) {
  if (std::norm(w) > 0.25) return std::sinh(w) - w;
  const Complex square = w * w;
  Complex sum = 1;
  for (int k = 8; k >= 1; --k) sum = 1.0 + square / ((2.0 * k + 2) * (2.0 * k + 3)) * sum;
  return w * square / 6.0 * sum;
}

}  // namespace

OuterWave OuterWaveOfOrder(const Complex& lambda, double x) {
  const double unit = std::cbrt(2 / x);
  const double distance = std::abs(lambda - x) * unit;
  const Complex shift = -0.5 * I * std::sqrt(distance);
  const double end = 6 + 1.5 * std::sqrt(distance);
  const int steps = static_cast<int>(std::ceil(2 * end / 0.15));
  const double dt = 2 * end / steps;
  const Complex valley = std::polar(1.0, pi / 3);
  Complex value = 0, derivative = 0;
  for (int i = 0; i <= steps; ++i) {
    const double t = -end + i * dt;
    const double q = std::sqrt(t * t + 0.49);
    const Complex w = unit * (shift + valley * ((q + t) / 2) - (q - t) / 2);
    const Complex beyond = SinhBeyond(w);
    const Complex term = std::exp(x * beyond + (x - lambda) * w) * (valley * ((t / q + 1) / 2) + (1 - t / q) / 2);
    value += term;
    derivative += term * (beyond + w);
  }
  const Complex scale = std::sqrt(pi * x / 2) * unit * dt / (I * pi);
  value *= scale;
  derivative *= scale;
  return {value, derivative + value / (2 * x)};
}

InnerWaves InnerWavesOfOrder(const Complex& lambda, const Complex& z) {
  static const DebyePolynomials polynomials = MakePolynomials();
  InnerWaves waves;
  const Complex c = lambda / z;
  waves.sa = std::sqrt(1.0 - c * c);
  const Complex t = I * c / waves.sa;
  waves.chi = z * waves.sa - lambda * std::acos(c) - pi / 4;
  Complex s1 = 1, s2 = 1, d1 = 1, d2 = 1, tk = 1, share = 1;
  double before = 1;
  for (std::size_t k = 1; k <= expansionTerms; ++k) {
    tk *= t;
    share /= lambda;
    const Complex u = Evaluate(polynomials.U[k], k, t, tk) * share;
    const Complex v = Evaluate(polynomials.V[k], k, t, tk) * share;
    const double size = std::abs(u) + std::abs(v);
    if (size >= before) break;  // an asymptotic series is at its best before its smallest term
    before = size;
    const double sign = k % 2 == 0 ? 1 : -1;
    s2 += u;
    d2 += v;
    s1 += sign * u;
    d1 += sign * v;
  }
  waves.s1 = s1;
  waves.s2 = s2;
  waves.b1 = I * waves.sa * d1 / s1 + 1.0 / (2.0 * z);
  waves.b2 = -I * waves.sa * d2 / s2 + 1.0 / (2.0 * z);
  return waves;
}

}  // namespace lumivex
