#include "materials/index/index_formulas.h"

#include <algorithm>
#include <cmath>

namespace lumivex {

double SellmeierIndex(const SellmeierTerms& c, double lambda) {
  const double x = lambda * lambda;
  return std::sqrt(1 + x * c.B1 / (x - c.C1) + x * c.B2 / (x - c.C2) + x * c.B3 / (x - c.C3));
}

double WaterIndexKayeLaby(double lambda) {
  const double w = static_cast<float>(1000 * lambda);
  return 1.4933565 - 0.0008604994 * w + 1.8281655e-6 * w * w - 1.8160727e-9 * w * w * w + 6.9245792e-13 * w * w * w * w;
}

double AirIndex(double lambda, double temperature) {
  const double t = temperature;
  const double s = 1 / lambda / lambda;
  const double a = (0.0278 * t - 10.366) * t + 2875.7;
  const double b = (0.0024 * t - 0.1114) * t + 13.412;
  const double c = (-0.000164 * t + 0.0009) * t + 0.3777;
  return 1 + (a + s * (b + s * c)) / 10000000;
}

double IndexOfDielectric(double e1, double e2) {
  return std::sqrt((std::hypot(e1, e2) + e1) / 2);
}

double AbsorptionOfDielectric(double e1, double e2) {
  // e1 of a clear material cancels all digits of r - e1; e2/(2 n) is the same number.
  if (e1 > 0) return std::abs(e2) / (2 * IndexOfDielectric(e1, e2));
  return std::sqrt(std::max(0.0, (std::hypot(e1, e2) - e1) / 2));
}

}  // namespace lumivex
