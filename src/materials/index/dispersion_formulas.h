#pragma once

#include <span>

namespace lumivex {

/// n of one of the nine dispersion formulas that the database refractiveindex.info uses (M. N. Polyanskiy, Sci. Data
/// 11, 94, 2024): 1 and 2 Sellmeier, 3 polynomial, 4 the database's own, 5 Cauchy, 6 gases, 7 Herzberger, 8 Retro, 9
/// exotic.
/// @param number        1 to 9; any other gives no number.
/// @param coefficients  C1 up, index 0 is C1; those that are missing are 0.
/// @param lambda        vacuum wavelength (um).
/// @return not a number where the formula has no real value.
double DispersionFormula(int number, std::span<const double> coefficients, double lambda);

}  // namespace lumivex
