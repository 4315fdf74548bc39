#include "solvers/functions/complex_pairs.h"

#include <cmath>

#include "axes/polar_coordinates.h"

namespace lumivex {

void ComplexAbs(double a, double b, double& r) {
  r = std::sqrt(a * a + b * b);
}

void ComplexAdd(double a, double b, double c, double d, double& re, double& im) {
  re = a + c;
  im = b + d;
}

void ComplexSub(double a, double b, double c, double d, double& re, double& im) {
  re = a - c;
  im = b - d;
}

void ComplexMul(double a, double b, double c, double d, double& re, double& im) {
  re = a * c - b * d;
  im = b * c + a * d;
}

void ComplexDiv(double a, double b, double c, double d, double& re, double& im) {
  const double s = c * c + d * d;
  ComplexMul(a, b, c / s, -d / s, re, im);
}

void ComplexExp(double a, double b, double& re, double& im) {
  const double r = std::exp(a);
  re = r * std::cos(b);
  im = r * std::sin(b);
}

void ComplexPowReal(double a, double b, double p, double& re, double& im) {
  double r = 0.0;
  double theta = 0.0;
  RectangularPolar(a, b, r, theta);
  PolarRectangular(std::pow(r, p), theta * p, re, im);
}

void ComplexLogPow(double a, double b, double p, double& re, double& im, int& k) {
  double r = 0.0;
  double theta = 0.0;
  RectangularPolar(a, b, r, theta);
  if (r == 0.0) {
    re = 0.0;
    im = 0.0;
    k = 0;
    return;
  }
  const double logarithm = std::log(r) * p;
  k = static_cast<int>(logarithm);
  PolarRectangular(std::exp(logarithm - k), theta * p, re, im);
}

void ComplexSin(double a, double b, double& re, double& im) {
  const double up = std::exp(b);
  const double down = std::exp(-b);
  re = std::sin(a) * (up + down) / 2.0;
  im = std::cos(a) * (up - down) / 2.0;
}

void ComplexCos(double a, double b, double& re, double& im) {
  const double up = std::exp(b);
  const double down = std::exp(-b);
  re = std::cos(a) * (up + down) / 2.0;
  im = -std::sin(a) * (up - down) / 2.0;
}

}  // namespace lumivex
