#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace lumivex {

/// A colour as one value, red in the low byte, then green, then blue.
struct Colour {
  std::uint32_t value = 0;

  constexpr int Red() const { return static_cast<int>(value & 0xFFU); }
  constexpr int Green() const { return static_cast<int>((value >> 8U) & 0xFFU); }
  constexpr int Blue() const { return static_cast<int>((value >> 16U) & 0xFFU); }
  constexpr bool operator==(const Colour&) const = default;
};

/// Joins three channels, each rounded to nearest (ties to even); a channel above 255 counts as 255, one below 0 or
/// not a number as 0.
inline Colour RGB(double red, double green, double blue) {
  const auto channel = [](double c) {
    return static_cast<std::uint32_t>(c > 0 ? std::nearbyint(std::min(c, 255.0)) : 0.0);
  };
  return Colour{channel(red) | (channel(green) << 8U) | (channel(blue) << 16U)};
}

namespace colours {
inline constexpr Colour Black{0x000000};
inline constexpr Colour White{0xFFFFFF};
inline constexpr Colour BadInput{255};         ///< red: an input that stops a command
inline constexpr Colour Warning{65535};        ///< yellow: an input to look at
inline constexpr Colour ButtonFace{0xF0F0F0};  ///< the neutral colour of the window around the graph
}  // namespace colours

}  // namespace lumivex
