#include "solvers/angles/scattering_pattern.h"

#include <cmath>

namespace lumivex {

namespace {

constexpr double pi = 3.14159265358979324;

double Weight(std::size_t row, std::size_t rows) {
  return std::sin(pi * static_cast<double>(row) / static_cast<double>(rows - 1));
}

}  // namespace

ScatteringMatrix MatrixOf(const ComplexD& S1, const ComplexD& S2) {
  const double i1 = S1.re * S1.re + S1.im * S1.im, i2 = S2.re * S2.re + S2.im * S2.im;
  return {(i1 + i2) / 2, (i2 - i1) / 2, S2.re * S1.re + S2.im * S1.im, S2.im * S1.re - S2.re * S1.im};
}

std::vector<double> CumulativeProbability(std::span<const double> intensity) {
  std::vector<double> cumulative(intensity.size(), 0.0);
  for (std::size_t row = 1; row < intensity.size(); ++row) {
    const double before = intensity[row - 1] * Weight(row - 1, intensity.size());
    cumulative[row] = cumulative[row - 1] + (before + intensity[row] * Weight(row, intensity.size())) / 2;
  }
  const double total = cumulative.empty() ? 0 : cumulative.back();
  if (total > 0)
    for (double& value : cumulative) value /= total;
  return cumulative;
}

double SphereMean(std::span<const double> intensity) {
  if (intensity.size() < 2) return 0;
  double sum = 0;
  for (std::size_t row = 0; row < intensity.size(); ++row) sum += intensity[row] * Weight(row, intensity.size());
  return sum * pi / static_cast<double>(intensity.size() - 1) / 2;
}

}  // namespace lumivex
