#pragma once

#include <span>

namespace lumivex {

/// Relative spectral power of light sources at a vacuum wavelength (um).

/// Lee's sunlight, straight between the entries of SunLee; 0 outside 0.38 to 0.70 um.
double LeeWeight(double lambda);

/// Sunlight, straight between the entries of SunWernand; 0 outside 0.35 to 1.00 um.
double WernandWeight(double lambda);

/// Air masses that sunlight passes: 1/(s + 0.025 exp(-11 s)), s the sine of the elevation (Rozenberg 1966).
double AirMass(double elevationDegrees);

/// Sunlight (W m-2 um-1) at an elevation, straight between the entries of SunSpaceIrradiance times SunTransmittance to
/// the power of the air mass; 0 outside 0.35 to 1.00 um.
double ElevationWeight(double lambda, double elevationDegrees);

/// A black body's power per wavelength (Planck) over that at its peak, 2898/T um. 0 for a temperature or wavelength
/// that is not positive.
double BlackBodyWeight(double lambda, double kelvin);

/// A measured spectrum, first index 1.
struct MeasuredSpectrum {
  std::span<const double> wavelength;  ///< nm, ascending
  std::span<const double> value;
  int points = 0;
  bool nonUniform = false;
};

/// Straight between neighbours; the first value below the first wavelength, the last above the last. A uniform spectrum
/// counts steps from the first wavelength and looks at no other but the last; a non-uniform one is searched.
double MeasuredWeight(const MeasuredSpectrum& spectrum, double lambda);

}  // namespace lumivex
