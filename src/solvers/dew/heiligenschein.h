#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace lumivex {

/// A transparent sphere before an endless white matt plane, in sunlight: a drop of dew on a leaf. Lengths in radii of
/// the sphere.
struct DewDrop {
  double m = 1.333;       ///< relative index, > 0
  double distance = 2.0;  ///< L, of the plane from the sphere's centre, >= 1
  double slope = 0.0;  ///< gamma, between the plane's normal and the direction to the sun; radians, 0 <= gamma < pi/2
  double resolution = 0.01;  ///< radians: the apparent size that a source is taken for, > 0
  double absorption = 0.0;   ///< 2 x k: by a path of one radius the power falls to exp(-2 x k)
};

/// What comes back towards an angle: light that passed the sphere both ways, and that of the sunlit plane seen through
/// it; intensities in units of E0 a^2, or brightness over that of a dry matt surface that faces the sun, seen through
/// the sphere's own area.
struct DewBrightness {
  double spot = 0.0;   ///< I1
  double plane = 0.0;  ///< I2
  double Sum() const { return spot + plane; }
};

/// Heiligenschein by rays (Tricker 1970). A parallel bundle from the sun passes the sphere (p = 1) and lights a spot on
/// the plane; the bundle that reaches the observer, followed backwards, lands on the plane like the sun's. With W the
/// area of a bundle of unit density that lands on a unit of the plane, transmission included,
/// I1 = (1/pi) int W_sun W_observer dA and I2 = (cos gamma/pi) int W_observer dA outside the sphere's shadow.
///
/// The bundles are stratified with jitter of a fixed seed: the same numbers every time, on any number of threads.
/// Straight back the brightness of a point sun has no bound (a power of the angle at the focus), and what is found
/// depends on `resolution`.
class Heiligenschein {
 public:
  explicit Heiligenschein(const DewDrop& drop);

  /// @param delta  angle from the antisolar direction, positive towards the side that the plane faces; radians. Beyond
  /// a
  ///               right angle there is nothing.
  DewBrightness At(double delta) const;

 private:
  struct Ray {
    double x, y, z;     ///< where it leaves the sphere, of a bundle along z
    double ex, ey, ez;  ///< and where to
    double weight;
  };
  struct Landing {
    double u, v;  ///< on the plane: along the scattering plane, and |y|
    double x, y;  ///< across the sunlight
    bool meets;
  };
  Landing Land(const Ray& ray, double cosine, double sine) const;
  std::uint64_t Cell(const Landing& landing) const;
  double WeightOf(std::uint64_t cell) const;

  DewDrop drop_;
  double cosSlope_, sinSlope_, side_;
  std::vector<Ray> observer_;
  struct Spot {
    std::uint64_t cell;  // emptyCell where there is none
    double weight;
  };
  std::vector<Spot> spots_;  // open addressing
  /// A bit for each of the last bits of a hash that some cell has: most of the dark plane is known without a look at
  /// the spots, which are too many for a cache.
  std::vector<std::uint64_t> lit_;
};

}  // namespace lumivex
