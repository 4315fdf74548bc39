#pragma once

#include <cstdint>

namespace lumivex {

/// A sphere's centre in a cube from 0 to its side along each axis (um).
struct Place {
  double x = 0, y = 0, z = 0;
};

/// What the random numbers of a sphere are for: each has a sequence of its own, so that one more of one kind changes
/// nothing of another.
enum class RandomUse : std::uint64_t { Place = 1, Size = 2, Motion = 3 };

/// The random numbers of one sphere, a pure function of seed, use and the sphere's number: whoever asks for a sphere
/// finds it the same, whichever others were asked for before, in any thread.
///
/// The sequence is splitmix64 (Steele, Lea and Flood 2014), in whole numbers of 64 bits: the same on every machine. The
/// library's distributions are not, which is why there are none here. Normal numbers come by Marsaglia's polar method
/// (Marsaglia and Bray 1964); their last bit is the logarithm's.
class SphereRandom {
 public:
  SphereRandom(std::uint64_t seed, RandomUse use, std::uint64_t sphere);

  /// 0 to 1, evenly; never 1.
  double Uniform();
  /// Mean 0, standard deviation 1.
  double Normal();

 private:
  std::uint64_t state_;
  double spare_ = 0;  ///< normal numbers come in pairs
  bool hasSpare_ = false;
};

/// Where a sphere stands at the start: anywhere in the cube, independently of all others.
/// @param sphere  from 0.
Place PlaceOf(std::uint64_t seed, std::uint64_t sphere, double side);

/// Diffusion coefficient of a sphere in water at 20 C (um2/s): k T/(6 pi eta r), Stokes and Einstein (Einstein 1905),
/// with eta = 1.0016 mPa s (Huber et al. 2009).
/// @param radius  um, above 0.
double DiffusionCoefficient(double radius);

/// A sphere in Brownian motion in a cube whose walls throw it back. Steps along each axis are normal with the variance
/// 2 D dt, so that the mean square step is 6 D dt, however long the steps are.
class BrownianWalk {
 public:
  /// Begins at PlaceOf the sphere.
  BrownianWalk(std::uint64_t seed, std::uint64_t sphere, double side, double diffusion);
  const Place& Here() const { return here_; }
  /// @param seconds  0 or more.
  void Go(double seconds);

 private:
  SphereRandom random_;
  Place here_;
  double side_, diffusion_;
};

}  // namespace lumivex
