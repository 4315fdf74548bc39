#pragma once

namespace lumivex {

/// Coefficients of a three-term Sellmeier equation: B without unit, C in um^2.
struct SellmeierTerms {
  double B1 = 0, B2 = 0, B3 = 0, C1 = 0, C2 = 0, C3 = 0;
  bool operator==(const SellmeierTerms&) const = default;
};

/// n from n^2 = 1 + sum of B_i L^2/(L^2 - C_i), L the wavelength in vacuum (um) (Sellmeier 1871). Not a number where
/// n^2 is negative or a resonance is met.
double SellmeierIndex(const SellmeierTerms& terms, double lambda);

/// The crown glass of the coated sphere's layers: borosilicate crown, coefficients of its maker's data sheet.
inline constexpr SellmeierTerms CrownGlass{1.03961212,    0.231792344,  1.01046945,
                                           0.00600069867, 0.0200179144, 103.560653};

/// n of water from a quartic in the wavelength, rounded to single precision in nanometres, fitted to the values of Kaye
/// and Laby's tables in the visible; it has no end and goes astray outside.
double WaterIndexKayeLaby(double lambda);

/// n of air at the pressure of one atmosphere and T degrees Celsius, with dispersion in 1/L^2 (L in um).
double AirIndex(double lambda, double temperature);

/// The principal root of a dielectric function e1 + i e2: n and k.
double IndexOfDielectric(double e1, double e2);
double AbsorptionOfDielectric(double e1, double e2);

}  // namespace lumivex
