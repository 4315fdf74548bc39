#include "solvers/waves/surface_wave.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "solvers/functions/complex_algebra.h"

namespace lumivex {

namespace {

using Complex = std::complex<double>;
constexpr double pi = std::numbers::pi;
/// A pole whose field is smaller than that of the strongest by this power of e is lost in its rounding.
constexpr double lostExponent = 40;
constexpr double onAxis = 1e-6;
/// Largest argument of a Bessel function that its power series is summed for.
constexpr double seriesReach = 14;

ComplexD Exp(const ComplexD& z) {
  const double size = std::exp(z.re);
  return {size * std::cos(z.im), size * std::sin(z.im)};
}

ComplexD Root(const ComplexD& z) {
  const Complex root = std::sqrt(Complex(z));
  return root;
}

/// J0, J1, Y0, Y1 by their power series (Abramowitz and Stegun 1964, 9.1.10 and 9.1.11).
HankelPair HankelBySeries(const ComplexD& z, bool second) {
  const Complex q = -Complex(z) * Complex(z) / 4.0;
  Complex term0 = 1, term1 = Complex(z) / 2.0;
  Complex J0 = 1, J1 = term1;
  // Sums of psi(k+1) and psi(k+1) + psi(k+2), psi(1) = -gamma.
  double psi = -std::numbers::egamma;
  Complex harmonic0 = psi, harmonic1 = term1 * (2 * psi + 1);
  for (int k = 1; k < 80; ++k) {
    psi += 1.0 / k;
    term0 *= q / static_cast<double>(k * k);
    term1 *= q / (static_cast<double>(k) * (k + 1));
    J0 += term0;
    J1 += term1;
    harmonic0 += psi * term0;
    harmonic1 += (2 * psi + 1.0 / (k + 1)) * term1;
    if (std::norm(term0) < 1e-36 * std::norm(J0) && k > 4) break;
  }
  const Complex logarithm = std::log(Complex(z) / 2.0);
  const Complex Y0 = 2 / pi * (logarithm * J0 - harmonic0);
  const Complex Y1 = -2.0 / (pi * Complex(z)) + 2 / pi * logarithm * J1 - harmonic1 / pi;
  const Complex i(0, second ? -1 : 1);
  const Complex unwound = std::exp(-i * Complex(z));
  return {(J0 + i * Y0) * unwound, (J1 + i * Y1) * unwound};
}

/// Hankel's expansion (Abramowitz and Stegun 1964, 9.2.7): sqrt(2/(pi z)) exp(-+ i (n pi/2 + pi/4)) times the sum of
/// a_k (+- i/z)^k, as far as its terms count.
HankelPair HankelByExpansion(const ComplexD& z, bool second) {
  const ComplexD step = second ? ComplexD(0, -1) / z : ComplexD(0, 1) / z;
  ComplexD sum0(1, 0), sum1(1, 0), power0(1, 0), power1(1, 0);
  for (int k = 1; k <= 24; ++k) {
    const double odd = 2.0 * k - 1;
    power0 = -odd * odd / (8.0 * k) * (power0 * step);
    const ComplexD next = (4 - odd * odd) / (8.0 * k) * (power1 * step);
    if (k > 2 && SquaredModulus(next) > SquaredModulus(power1)) break;
    power1 = next;
    sum0 = sum0 + power0;
    sum1 = sum1 + power1;
    if (SquaredModulus(power0) + SquaredModulus(power1) < 1e-28) break;
  }
  const double quarter = std::sqrt(0.5);
  const ComplexD phase(quarter, second ? quarter : -quarter);
  const ComplexD root = Root(2 / pi * Reciprocal(z)) * phase;
  const ComplexD turn(0, second ? 1 : -1);
  return {root * sum0, root * turn * sum1};
}

/// J0 and J1 by their power series (Abramowitz and Stegun 1964, 9.1.10).
HankelPair BesselBySeries(const ComplexD& z) {
  const ComplexD q = -0.25 * (z * z);
  ComplexD term0(1, 0), term1 = 0.5 * z, J0 = term0, J1 = term1;
  for (int k = 1; k < 80; ++k) {
    term0 = 1.0 / (k * k) * (term0 * q);
    term1 = 1.0 / (k * (k + 1)) * (term1 * q);
    J0 = J0 + term0;
    J1 = J1 + term1;
    if (SquaredModulus(term0) < 1e-36 * SquaredModulus(J0) && k > 4) break;
  }
  return {J0, J1};
}

}  // namespace

HankelPair ScaledHankel(const ComplexD& z, bool second) {
  return SquaredModulus(z) < seriesReach * seriesReach ? HankelBySeries(z, second) : HankelByExpansion(z, second);
}

/// Amplitudes of one angle, as far as they are summed: times exp(scale).
struct SurfaceWave::Fields {
  ComplexD S1{0, 0}, S2{0, 0};
};

SurfaceWave::SurfaceWave(const std::vector<SurfacePole>& poles, double x, double mRe, int p, SurfacePath path,
                         int first, int last)
    : x_(x), path_(path) {
  const double turned = p * (pi - 2 * std::asin(1 / mRe));
  const double halfTurns = std::ceil(turned / pi - 1e-12);
  edge_ = halfTurns * pi - turned;
  odd_ = std::fmod(halfTurns, 2.0) != 0;
  const Complex I(0, 1);
  double largest = 1;
  for (const SurfacePole& pole : poles) {
    if (pole.number < first || pole.number > last) continue;
    const auto count = static_cast<double>(pole.circle.size());
    for (const PolePoint& point : pole.circle) {
      const Complex& lambda = point.lambda;
      largest = std::max(largest, std::abs(lambda));
      const Complex weight = std::log(point.first * point.offset / count) +
                             static_cast<double>(p - 1) * std::log(point.inner) + 2.0 * p * I * point.chi +
                             I * pi * halfTurns * (lambda - 0.5) +
                             std::log(-2.0 * pi * I * lambda / (lambda * lambda - 0.25));
      points_.push_back({lambda, weight, pole.tm});
    }
  }
  nearAxis_ = std::min(edge_, seriesReach / largest);
}

void SurfaceWave::AddPath(double psi, SurfacePath path, Fields& fields) const {
  const double sine = std::sin(psi), cosine = std::cos(psi);
  const double spread = std::sqrt(psi / sine) * (path == SurfacePath::Both ? 1 : 0.5);
  const double bend = psi < 1e-3 ? psi / 24 * (1 + psi * psi / 15) : (1 / psi - cosine / sine) / 8;
  const double sign = odd_ ? -1 : 1;
  double highest = -1e300;
  const auto exponentOf = [&](const Point& point) {
    const ComplexD z = TimesI(psi * point.lambda);
    return path == SurfacePath::Both   ? point.logWeight
           : path == SurfacePath::Long ? point.logWeight + z
                                       : point.logWeight - z;
  };
  for (const Point& point : points_) highest = std::max(highest, exponentOf(point).re);
  for (const Point& point : points_) {
    const ComplexD exponent = exponentOf(point);
    if (exponent.re < highest - lostExponent) continue;
    const ComplexD z = psi * point.lambda;
    const HankelPair hankel =
        path == SurfacePath::Both ? BesselBySeries(z) : ScaledHankel(z, path == SurfacePath::Short);
    const ComplexD weight = spread * Exp(exponent);
    const ComplexD c = bend * Reciprocal(point.lambda);
    const ComplexD P = hankel.zero - c * hankel.one;
    const ComplexD across = 1 / sine * (point.lambda * (hankel.one - 3 * (c * hankel.zero)));
    const ComplexD along = (point.lambda * point.lambda - ComplexD(0.25, 0)) * P - cosine * across;
    ComplexD& tau = point.tm ? fields.S2 : fields.S1;
    ComplexD& other = point.tm ? fields.S1 : fields.S2;
    tau = tau + weight * along;
    other = other + sign * (weight * across);
  }
}

std::size_t SurfaceWave::Sum(std::span<const double> angles, double amplitude, AmplitudeTable& S1, AmplitudeTable& S2,
                             int firstRow, RunMonitor& monitor) const {
  for (std::size_t i = 0; i < angles.size(); ++i) {
    if (!monitor.Report(i, angles.size())) return i;
    const double psi = std::clamp(odd_ ? pi - angles[i] : angles[i], onAxis, pi - 1 / x_);
    Fields fields;
    if (path_ == SurfacePath::Both && psi < nearAxis_) {
      // Each path alone has a focal line there; their sum has none, and would be lost in its parts.
      AddPath(psi, SurfacePath::Both, fields);
    } else {
      if (path_ != SurfacePath::Long && psi < edge_) AddPath(psi, SurfacePath::Short, fields);
      if (path_ != SurfacePath::Short) AddPath(psi, SurfacePath::Long, fields);
    }
    const int row = firstRow + static_cast<int>(i);
    S1.At(row, 0) += amplitude * fields.S1.re;
    S1.At(row, 1) += amplitude * fields.S1.im;
    S2.At(row, 0) += amplitude * fields.S2.re;
    S2.At(row, 1) += amplitude * fields.S2.im;
  }
  return angles.size();
}

}  // namespace lumivex
