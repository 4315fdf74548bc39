#pragma once

#include <array>

namespace lumivex {

/// Optical constants of liquid water, 0.2 um to 3 cm (P. S. Ray, Appl. Opt. 11, 1836, 1972). Rows 0 to 89; wavelengths
/// in micrometres, ascending.
inline constexpr int rayRows = 90;
extern const std::array<float, rayRows> RayLambda;
extern const std::array<float, rayRows> RayN;
extern const std::array<float, rayRows> RayK;

}  // namespace lumivex
