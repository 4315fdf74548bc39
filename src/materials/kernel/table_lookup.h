#pragma once

#include <optional>
#include <span>

namespace lumivex {

/// Linear interpolation in a table of single-precision values, as all built-in water tables are read.
///
/// @param lambda  wavelengths, ascending (um).
/// @param values  one value a wavelength.
/// @param wanted  the wavelength (um), rounded to single precision where the caller's rule says so.
/// @return the value in the first interval that holds the wavelength; the last value exactly at the last wavelength;
///         nothing outside the table.
std::optional<double> LookUpLinear(std::span<const float> lambda, std::span<const float> values, double wanted);

}  // namespace lumivex
