#include "particles/random_places.h"

#include <cmath>
#include <initializer_list>
#include <numbers>

namespace lumivex {

namespace {

/// 2^64 over the golden ratio, the step of the sequence.
constexpr std::uint64_t golden = 0x9E3779B97F4A7C15;

/// The last stage of splitmix64: numbers that differ in one bit become unlike.
std::uint64_t Mixed(std::uint64_t z) {
  z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9;
  z = (z ^ (z >> 27)) * 0x94D049BB133111EB;
  return z ^ (z >> 31);
}

/// Into the cube again: a wall mirrors the path beyond it.
double ThrownBack(double place, double side) {
  const double folded = std::fmod(std::abs(place), 2 * side);
  return folded > side ? 2 * side - folded : folded;
}

}  // namespace

SphereRandom::SphereRandom(std::uint64_t seed, RandomUse use, std::uint64_t sphere)
    : state_(Mixed(Mixed(Mixed(seed + golden) + static_cast<std::uint64_t>(use)) + sphere)) {}

double SphereRandom::Uniform() {
  state_ += golden;
  return static_cast<double>(Mixed(state_) >> 11) * 0x1p-53;
}

double SphereRandom::Normal() {
  if (hasSpare_) {
    hasSpare_ = false;
    return spare_;
  }
  double u = 0, v = 0, square = 0;
  do {
    u = 2 * Uniform() - 1;
    v = 2 * Uniform() - 1;
    square = u * u + v * v;
  } while (square >= 1 || square == 0);
  const double length = std::sqrt(-2 * std::log(square) / square);
  spare_ = v * length;
  hasSpare_ = true;
  return u * length;
}

Place PlaceOf(std::uint64_t seed, std::uint64_t sphere, double side) {
  SphereRandom random(seed, RandomUse::Place, sphere);
  Place place;
  for (double* axis : {&place.x, &place.y, &place.z}) *axis = side * random.Uniform();
  return place;
}

double DiffusionCoefficient(double radius) {
  constexpr double boltzmann = 1.380649e-23;  // J/K
  constexpr double temperature = 293.15;      // K
  constexpr double viscosity = 1.0016e-3;     // Pa s
  constexpr double um = 1e-6, um2PerM2 = 1e12;
  return um2PerM2 * boltzmann * temperature / (6 * std::numbers::pi * viscosity * radius * um);
}

BrownianWalk::BrownianWalk(std::uint64_t seed, std::uint64_t sphere, double side, double diffusion)
    : random_(seed, RandomUse::Motion, sphere),
      here_(PlaceOf(seed, sphere, side)),
      side_(side),
      diffusion_(diffusion) {}

void BrownianWalk::Go(double seconds) {
  if (!(seconds > 0)) return;
  const double length = std::sqrt(2 * diffusion_ * seconds);
  for (double* axis : {&here_.x, &here_.y, &here_.z}) *axis = ThrownBack(*axis + length * random_.Normal(), side_);
}

}  // namespace lumivex
