#pragma once

#include <array>

namespace lumivex {

/// Optical constants of pure water at 25 C, 10 nm to 10 m (Segelstein 1981). Rows 0 to 1260; wavelengths in
/// micrometres, ascending.
inline constexpr int segelsteinRows = 1261;
extern const std::array<float, segelsteinRows> SegelsteinLambda;
extern const std::array<float, segelsteinRows> SegelsteinN;
extern const std::array<float, segelsteinRows> SegelsteinK;

}  // namespace lumivex
