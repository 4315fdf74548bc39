#pragma once

#include <algorithm>
#include <cmath>
#include <complex>
#include <cstddef>
#include <numbers>
#include <vector>

/// The Mie series as a textbook has it (Bohren and Huffman 1983, appendix A): the measure for the benchmarks.
///
/// Terms outside, angles inside, `std::complex` throughout; psi and chi upward, D downward.
namespace textbook {

struct Result {
  std::vector<std::complex<double>> S1;  ///< Index 0..2 rows - 2: from 0 to 180 degrees.
  std::vector<std::complex<double>> S2;
  double Qext = 0.0;
  double Qsca = 0.0;
  double Qback = 0.0;
  double g = 0.0;
};

/// @param rows  angles from 0 to 90 degrees; 0 for efficiencies alone, which come from the coefficients.
inline Result Mie(double x, std::complex<double> m, std::size_t rows) {
  using Complex = std::complex<double>;
  const Complex y = x * m;
  const int terms = static_cast<int>(std::lround(x + 4.0 * std::pow(x, 1.0 / 3.0) + 20.0));
  const int start = static_cast<int>(std::max<double>(terms, std::abs(y)) + 16.0 + 8.0 * std::cbrt(std::abs(y)));
  std::vector<Complex> D(static_cast<std::size_t>(start) + 1);
  for (int n = start; n > 0; --n) {
    const Complex ratio = static_cast<double>(n) / y;
    D[static_cast<std::size_t>(n) - 1] = ratio - 1.0 / (D[static_cast<std::size_t>(n)] + ratio);
  }

  const std::size_t all = rows > 0 ? 2 * rows - 1 : 0;
  Result result;
  result.S1.resize(all);
  result.S2.resize(all);
  std::vector<double> cosine(rows), pi(rows), piBefore(rows, 0.0), piNow(rows, 1.0), tau(rows);
  for (std::size_t j = 0; j < rows; ++j) {
    cosine[j] = std::cos(static_cast<double>(j) * std::numbers::pi / 2.0 / static_cast<double>(rows - 1));
  }

  double psi0 = std::cos(x);
  double psi1 = std::sin(x);
  double chi0 = -psi1;
  double chi1 = psi0;
  Complex xi1(psi1, -chi1), aBefore, bBefore, back;
  double sign = -1.0;
  for (int n = 1; n <= terms; ++n) {
    const double weight = (2.0 * n + 1.0) / (n * (n + 1.0));
    const double psi = (2.0 * n - 1.0) * psi1 / x - psi0;
    const double chi = (2.0 * n - 1.0) * chi1 / x - chi0;
    const Complex xi(psi, -chi);
    const Complex d = D[static_cast<std::size_t>(n)];
    const Complex a = ((d / m + n / x) * psi - psi1) / ((d / m + n / x) * xi - xi1);
    const Complex b = ((d * m + n / x) * psi - psi1) / ((d * m + n / x) * xi - xi1);
    result.Qext += (2.0 * n + 1.0) * (a + b).real();
    result.Qsca += (2.0 * n + 1.0) * (std::norm(a) + std::norm(b));
    result.g += weight * (a * std::conj(b)).real();
    if (n > 1) result.g += (n - 1.0) * (n + 1.0) / n * (aBefore * std::conj(a) + bBefore * std::conj(b)).real();
    back += sign * (n + 0.5) * (b - a);
    for (std::size_t j = 0; j < rows; ++j) {
      pi[j] = piNow[j];
      tau[j] = n * cosine[j] * pi[j] - (n + 1.0) * piBefore[j];
      result.S1[j] += weight * (a * pi[j] + b * tau[j]);
      result.S2[j] += weight * (a * tau[j] + b * pi[j]);
    }
    sign = -sign;
    for (std::size_t j = 0; j + 1 < rows; ++j) {
      result.S1[all - 1 - j] += weight * sign * (a * pi[j] - b * tau[j]);
      result.S2[all - 1 - j] += weight * sign * (b * pi[j] - a * tau[j]);
    }
    for (std::size_t j = 0; j < rows; ++j) {
      piNow[j] = ((2.0 * n + 1.0) * cosine[j] * pi[j] - (n + 1.0) * piBefore[j]) / n;
      piBefore[j] = pi[j];
    }
    aBefore = a;
    bBefore = b;
    psi0 = psi1;
    psi1 = psi;
    chi0 = chi1;
    chi1 = chi;
    xi1 = xi;
  }
  result.g = 2.0 * result.g / result.Qsca;
  result.Qext *= 2.0 / (x * x);
  result.Qsca *= 2.0 / (x * x);
  result.Qback = std::norm(back) / (std::numbers::pi * x * x);
  return result;
}

}  // namespace textbook
