#include "solvers/angles/cross_section.h"

#include <cmath>

namespace lumivex {

AngularIntegral IntegrateAngles(const AmplitudeTable& S1, const AmplitudeTable& S2, const AngleGrid& grid) {
  AngularIntegral integral;
  for (int row = 1; row <= grid.RowCount(); ++row) {
    const double theta = grid.Angle(row);
    const double weight = (S1.Intensity(row) + S2.Intensity(row)) / 2.0 * std::sin(theta) * grid.DANG;
    integral.sum += weight;
    integral.moment += weight * std::cos(theta);
  }
  return integral;
}

}  // namespace lumivex
