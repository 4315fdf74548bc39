#include "materials/index/water.h"

#include <cmath>

namespace lumivex {

double WaterIndexIapws(double lambda, double density, double tempRatio) {
  const double u = (lambda / 0.589) * (lambda / 0.589);
  const double a = 0.244257733 + 0.00974634476 * density - 0.00373234996 * tempRatio + 0.000268678472 * u * tempRatio +
                   0.0015892057 / u + 0.00245934259 / (u - 0.052533557) + 0.90070492 / (u - 29.51680445) -
                   0.0166626219 * density * density;
  const double b = density * a;
  return std::sqrt((2 * b + 1) / (1 - b));
}

double WaterDensityAt(double temperature) {
  const double t = temperature;
  const double numerator =
      0.99983952 +
      t * (0.016945176 + t * (-7.9870401e-6 + t * (-4.6170461e-8 + t * (1.0556302e-10 - t * 2.8054253e-13))));
  return numerator / (1 + 0.01687985 * t);
}

}  // namespace lumivex
