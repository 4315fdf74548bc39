#pragma once

namespace lumivex {

/// Real refractive index of water after the release of the International Association for the Properties of Water and
/// Steam (IAPWS 1997; Harvey, Gallagher and Levelt Sengers 1998).
///
/// @param lambda   vacuum wavelength (um), above 0.
/// @param density  g/cm3.
/// @param tempRatio  (T + 273.15) / 273.15, T in degrees Celsius.
/// @return n; not a number where the formula has no real value.
double WaterIndexIapws(double lambda, double density, double tempRatio);

/// Density of air-saturated water under atmospheric pressure (Kell 1975), in g/cm3; T in degrees Celsius, 0 to 100.
double WaterDensityAt(double temperature);

}  // namespace lumivex
