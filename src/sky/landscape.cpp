#include "sky/landscape.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>

namespace lumivex {

namespace {

struct Tint {
  double r = 0, g = 0, b = 0;
};

Tint Mix(const Tint& a, const Tint& b, double share) {
  const double s = std::clamp(share, 0.0, 1.0);
  return {a.r + s * (b.r - a.r), a.g + s * (b.g - a.g), a.b + s * (b.b - a.b)};
}

Tint Scaled(const Tint& a, double factor) {
  return {a.r * factor, a.g * factor, a.b * factor};
}

/// A number from 0 to 1 that belongs to a knot of the lattice.
double KnotValue(std::int64_t i, std::int64_t j, std::uint64_t seed) {
  std::uint64_t h = static_cast<std::uint64_t>(i) * 0x9E3779B97F4A7C15ULL +
                    static_cast<std::uint64_t>(j) * 0xC2B2AE3D27D4EB4FULL + seed;
  h = (h ^ (h >> 31U)) * 0xBF58476D1CE4E5B9ULL;
  h = (h ^ (h >> 29U)) * 0x94D049BB133111EBULL;
  return static_cast<double>((h ^ (h >> 32U)) >> 11U) * 0x1p-53;
}

/// Smooth between the knots.
double Noise(double x, double y, std::uint64_t seed) {
  const double fx = std::floor(x), fy = std::floor(y);
  const auto smooth = [](double t) { return t * t * (3 - 2 * t); };
  const double u = smooth(x - fx), v = smooth(y - fy);
  const auto i = static_cast<std::int64_t>(fx), j = static_cast<std::int64_t>(fy);
  const double top = KnotValue(i, j, seed) * (1 - u) + KnotValue(i + 1, j, seed) * u;
  const double bottom = KnotValue(i, j + 1, seed) * (1 - u) + KnotValue(i + 1, j + 1, seed) * u;
  return top * (1 - v) + bottom * v;
}

/// Noise of several sizes, each half the one before in size and strength; about 0 to 1.
double Clouds(double x, double y, int octaves, std::uint64_t seed) {
  double sum = 0, strength = 0.5;
  for (int i = 0; i < octaves; ++i, strength *= 0.5, x *= 2.03, y *= 2.03)
    sum += strength * Noise(x, y, seed + static_cast<std::uint64_t>(i));
  return sum;
}

/// Shares of the picture's height, so that the picture is the same at every size.
struct Place {
  double x = 0;        ///< from the middle
  double above = 0;    ///< over the horizon
  double horizon = 0;  ///< from the top
};

Tint Sky(const Place& at) {
  constexpr Tint zenith{62, 78, 104}, middle{104, 121, 142}, low{168, 174, 176};
  const double height = at.above / at.horizon;
  Tint tint = height > 0.4 ? Mix(middle, zenith, (height - 0.4) / 0.6) : Mix(low, middle, height / 0.4);
  // Clouds are longer than high, the more so the nearer to the horizon.
  const double depth = 0.12 + at.above;
  const double cloud = Clouds(1.1 * at.x / depth + 3, 0.9 / depth, 5, 11);
  return Scaled(tint, 0.78 + 0.42 * cloud);
}

Tint Meadow(const Place& at, double width) {
  constexpr Tint nearGrass{52, 62, 28}, farGrass{98, 108, 70}, hay{126, 116, 68};
  const double down = -at.above, depth = 0.02 + down;
  const double far = std::exp(-7 * down);
  const double fields = Clouds(0.35 * at.x / depth, 0.25 / depth, 3, 37);
  const double blades = Clouds(at.x * 160 / (0.3 + 4 * down), at.above * 420 / (0.3 + 4 * down), 3, 71);
  Tint tint = Mix(nearGrass, farGrass, far);
  tint = Mix(tint, hay, 2.2 * (fields - 0.45));
  return Scaled(tint, (0.86 + 0.28 * blades) * (1 - 0.12 * std::abs(at.x) / width));
}

/// Height of a row of hills over the horizon.
double Hill(double x, double height, double frequency, std::uint64_t seed) {
  return height * (0.25 + Clouds(frequency * x + 40, 0.5, 5, seed));
}

}  // namespace

Bitmap DefaultLandscape(int width, int height, double horizon) {
  struct Ridge {
    Tint tint;
    double height, frequency;
    std::uint64_t seed;
  };
  // From the farthest to the nearest, bluer the farther.
  constexpr std::array<Ridge, 3> ridges = {Ridge{{112, 124, 134}, 0.055, 2.1, 101},
                                           Ridge{{86, 98, 98}, 0.034, 4.3, 103}, Ridge{{52, 62, 48}, 0.016, 11, 107}};
  Bitmap picture(width, height);
  const double unit = 1.0 / height;
  std::vector<std::array<double, 3>> tops(static_cast<std::size_t>(width));
  for (int x = 0; x < width; ++x)
    for (std::size_t k = 0; k < ridges.size(); ++k)
      tops[static_cast<std::size_t>(x)][k] =
          Hill((x - 0.5 * width) * unit, ridges[k].height, ridges[k].frequency, ridges[k].seed);
  const auto channel = [](double c) { return static_cast<std::uint32_t>(std::clamp(c + 0.5, 0.0, 255.0)); };
  for (int y = 0; y < height; ++y)
    for (int x = 0; x < width; ++x) {
      const Place at{(x - 0.5 * width) * unit, (horizon - y) * unit, horizon * unit};
      Tint tint = at.above > 0 ? Sky(at) : Meadow(at, width * unit);
      for (std::size_t k = 0; k < ridges.size() && at.above > 0; ++k)
        if (at.above < tops[static_cast<std::size_t>(x)][k])
          tint = Scaled(ridges[k].tint, 0.96 + 0.08 * Noise(260 * at.x, 420 * at.above, ridges[k].seed));
      picture.Row(y)[x] = OpaquePixel(channel(tint.r), channel(tint.g), channel(tint.b));
    }
  return picture;
}

}  // namespace lumivex
