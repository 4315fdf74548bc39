#include "solvers/functions/bessel_start.h"

#include <cmath>
#include <cstdlib>

namespace lumivex {

namespace {

constexpr int MostSteps = 20;

/// The order where the envelope has lost `digits`.
int Secant(double x, double digits, int n0) {
  double f0 = envj(n0, x) - digits;
  int n1 = n0 + 5;
  double f1 = envj(n1, x) - digits;
  int nn = n1;
  for (int step = 0; step < MostSteps; ++step) {
    if (f1 == 0.0 || f0 == f1) break;
    nn = static_cast<int>(std::nearbyint(n1 - (n1 - n0) / (1.0 - f0 / f1)));
    // A step below order 1 has left the envelope's range.
    if (nn < 1) nn = 1;
    const double f = envj(nn, x) - digits;
    if (std::abs(nn - n1) < 1) break;
    n0 = n1;
    f0 = f1;
    n1 = nn;
    f1 = f;
  }
  return nn;
}

}  // namespace

double envj(double n, double x) {
  return 0.5 * std::log10(6.28 * n) - n * std::log10(1.36 * x / n);
}

int MSTA1(double x, int mp) {
  const double a0 = std::fabs(x);
  return Secant(a0, mp, static_cast<int>(1.1 * a0) + 1);
}

int MSTA2(double x, int n, int mp) {
  const double a0 = std::fabs(x);
  const double half = 0.5 * mp;
  const double lost = n > 0 ? envj(n, a0) : -300.0;
  double digits = half + lost;
  int n0 = n;
  if (lost <= half) {
    digits = mp;
    n0 = static_cast<int>(1.1 * a0);
  }
  return Secant(a0, digits, n0 == 0 ? 1 : n0) + 10;
}

}  // namespace lumivex
