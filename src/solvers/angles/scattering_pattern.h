#pragma once

#include <span>
#include <vector>

#include "solvers/functions/complex_pairs.h"

namespace lumivex {

/// Elements of the scattering matrix of a sphere (Bohren and Huffman 1983, section 3.3); for unit incident light and
/// dimensionless S1, S2. S22 = S11, S21 = S12, S44 = S33, S43 = -S34.
struct ScatteringMatrix {
  double S11 = 0;  ///< (|S1|^2 + |S2|^2)/2
  double S12 = 0;  ///< (|S2|^2 - |S1|^2)/2
  double S33 = 0;  ///< Re(S2 S1*)
  double S34 = 0;  ///< Im(S2 S1*)
};
ScatteringMatrix MatrixOf(const ComplexD& S1, const ComplexD& S2);

/// The cumulative probability of scattering angles up to each row, from 0 at the first row to 1 at the last: the
/// integral of intensity times sin(theta) by the trapezium rule.
///
/// @param intensity  by row from 0 to 180 degrees, equally spaced, first index 0.
/// @return as many values; all 0 where nothing is scattered.
std::vector<double> CumulativeProbability(std::span<const double> intensity);

/// Mean over the sphere, half the integral of intensity times sin(theta), by the same rule.
double SphereMean(std::span<const double> intensity);

}  // namespace lumivex
