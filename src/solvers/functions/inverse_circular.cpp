#include "solvers/functions/inverse_circular.h"

#include <cmath>

namespace lumivex {

namespace {
constexpr double pi = 3.14159265358979324;
}

double ArcSin(double x) {
  if (x >= 1.0) return pi / 2;
  if (x <= -1.0) return -pi / 2;
  // (1 - x)(1 + x) keeps its digits near +-1, where 1 - x x would not.
  return std::atan(x / std::sqrt((1.0 - x) * (1.0 + x)));
}

double ArcCos(double x) {
  if (x >= 1.0) return 0.0;
  if (x <= -1.0) return pi;
  if (x == 0.0) return pi / 2;
  const double angle = std::atan(std::sqrt((1.0 - x) * (1.0 + x)) / x);
  return x < 0.0 ? angle + pi : angle;
}

}  // namespace lumivex
