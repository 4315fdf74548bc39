#pragma once

#include <array>

namespace lumivex {

/// Relative spectral power of sunlight at the ground after Lee, 0.38 to 0.70 um in steps of 0.005 um; its peak is 1.
inline constexpr int sunLeeRows = 65;
extern const std::array<double, sunLeeRows> SunLee;

/// Sunlight on a finer footing, 0.35 to 1.00 um in steps of 0.005 um. The three tables were made from the reference
/// spectra of ASTM G173-03 (extraterrestrial; global on a plane tilted by 37 degrees; direct and circumsolar), seen
/// through a Gaussian slit of 8.5 nm and fitted with smooth factors to published values of the three quantities.
inline constexpr int sunRows = 131;
/// Global sunlight at the ground, its peak 1.
extern const std::array<double, sunRows> SunWernand;
/// Irradiance outside the atmosphere (W m-2 um-1).
extern const std::array<double, sunRows> SunSpaceIrradiance;
/// Transmittance of one air mass.
extern const std::array<double, sunRows> SunTransmittance;

}  // namespace lumivex
