#include "solvers/functions/factorials.h"

#include <cmath>

namespace lumivex {

double Factorial(int n) {
  if (n == 0) return 1.0;
  double r = n;
  for (int i = n - 1; i >= 2; --i) r *= i;
  return r;
}

void LogFactorial(int n, double& frac, double& whole) {
  double sum = 0.0;
  if (n > 0) {
    sum = std::log(static_cast<double>(n));
    for (int i = n - 1; i >= 2; --i) sum += std::log(static_cast<double>(i));
  }
  whole = std::floor(sum);
  frac = sum - whole;
}

}  // namespace lumivex
