#include "solvers/dew/heiligenschein.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <numbers>
#include <random>

#include "solvers/functions/random_fraction.h"

namespace lumivex {

namespace {

constexpr double pi = std::numbers::pi;
constexpr std::uint64_t emptyCell = std::numeric_limits<std::uint64_t>::max();
/// Rays of a bundle: so many in impact, and over half of the azimuth, whose other half is alike.
constexpr int bundleSide = 400, azimuthSide = 800;
/// Of two dozen pairs of seeds one whose sums are within 1 % of the means over many, where spots hardly meet too.
constexpr std::uint64_t sunSeed = 5, observerSeed = 6;
constexpr std::size_t litBits = std::size_t{1} << 21, wordBits = 64;

/// Share of unpolarised light that passes two surfaces, by the cosines of incidence and refraction.
double TransmissionOfBoth(double ci, double cr, double m) {
  const double across = (ci - m * cr) / (ci + m * cr), along = (m * ci - cr) / (m * ci + cr);
  const double ts = 1 - across * across, tp = 1 - along * along;
  return (ts * ts + tp * tp) / 2;
}

std::size_t HashOf(std::uint64_t cell) {
  return static_cast<std::size_t>((cell * 0x9E3779B97F4A7C15ULL) >> 20);
}

/// Where a ray of a bundle meets the sphere: its distance from the axis, and on which side.
struct Impact {
  double b, cosine, sine;
};

/// Strata of equal area, a ray somewhere in each.
std::vector<Impact> ImpactsOf(std::uint64_t seed) {
  std::mt19937_64 generator(seed);
  std::vector<Impact> impacts;
  impacts.reserve(static_cast<std::size_t>(bundleSide) * azimuthSide);
  for (int k = 0; k < bundleSide; ++k)
    for (int l = 0; l < azimuthSide; ++l) {
      const double b = std::sqrt((k + NextFraction(generator)) / bundleSide);
      const double f = pi * (l + NextFraction(generator)) / azimuthSide;
      impacts.push_back({b, std::cos(f), std::sin(f)});
    }
  return impacts;
}

// The same for every drop, and along an axis there is another drop at each point.
const std::vector<Impact>& SunImpacts() {
  static const std::vector<Impact> impacts = ImpactsOf(sunSeed);
  return impacts;
}

const std::vector<Impact>& ObserverImpacts() {
  static const std::vector<Impact> impacts = ImpactsOf(observerSeed);
  return impacts;
}

/// What `visit` gets is a ray of a bundle along z, as it leaves the sphere.
template <class Ray, class Visit>
void EachRay(const DewDrop& drop, const std::vector<Impact>& impacts, Visit visit) {
  const double m = drop.m, area = pi / (static_cast<double>(bundleSide) * azimuthSide);
  for (const auto& [b, cf, sf] : impacts) {
    if (b > m) continue;  // totally reflected
    // Sines and cosines of i and r make those of where the ray leaves, 2 r - i, and where to, 2 (i - r).
    const double ci = std::sqrt(1 - b * b), sr = b / m, cr = std::sqrt(1 - sr * sr);
    const double s2r = 2 * sr * cr, c2r = 1 - 2 * sr * sr;
    const double placeSine = s2r * ci - c2r * b, placeCosine = c2r * ci + s2r * b;
    const double half = b * cr - ci * sr, halfCosine = ci * cr + b * sr;
    const double turnSine = 2 * half * halfCosine, turnCosine = 1 - 2 * half * half;
    const double passed = drop.absorption == 0 ? 1 : std::exp(-drop.absorption * 2 * cr);
    visit(Ray{placeSine * cf, placeSine * sf, placeCosine, -turnSine * cf, -turnSine * sf, turnCosine,
              TransmissionOfBoth(ci, cr, m) * passed * area});
  }
}

}  // namespace

Heiligenschein::Landing Heiligenschein::Land(const Ray& ray, double cosine, double sine) const {
  const double x = ray.x * cosine - ray.z * sine, z = ray.x * sine + ray.z * cosine;
  const double ex = ray.ex * cosine - ray.ez * sine, ez = ray.ex * sine + ray.ez * cosine;
  const double towards = ez * cosSlope_ - ex * sinSlope_;
  if (!(towards > 1e-9)) return {0, 0, 0, 0, false};
  const double t = (drop_.distance - (z * cosSlope_ - x * sinSlope_)) / towards;
  const double hitX = x + t * ex, hitY = ray.y + t * ray.ey, hitZ = z + t * ez;
  return {hitX * cosSlope_ + hitZ * sinSlope_, std::fabs(hitY), hitX, hitY, true};
}

std::uint64_t Heiligenschein::Cell(const Landing& landing) const {
  // Light that lands beyond a billion cells is as good as nowhere.
  const double u = std::clamp(std::floor(landing.u / side_), -1e9, 1e9), v = std::min(landing.v / side_, 1e9);
  return (static_cast<std::uint64_t>(static_cast<std::int64_t>(u) + 2000000000) << 32) | static_cast<std::uint64_t>(v);
}

double Heiligenschein::WeightOf(std::uint64_t cell) const {
  const std::size_t mask = spots_.size() - 1, hash = HashOf(cell), bit = hash & (litBits - 1);
  if ((lit_[bit / wordBits] >> (bit % wordBits) & 1U) == 0) return 0;
  for (std::size_t i = hash & mask;; i = (i + 1) & mask) {
    if (spots_[i].cell == cell) return spots_[i].weight;
    if (spots_[i].cell == emptyCell) return 0;
  }
}

Heiligenschein::Heiligenschein(const DewDrop& drop)
    : drop_(drop),
      cosSlope_(std::cos(drop.slope)),
      sinSlope_(std::sin(drop.slope)),
      side_(drop.distance * drop.resolution),
      spots_(std::size_t{1} << 19, Spot{emptyCell, 0.0}),
      lit_(litBits / wordBits) {
  observer_.reserve(ObserverImpacts().size());
  EachRay<Ray>(drop, ObserverImpacts(), [&](const Ray& ray) { observer_.push_back(ray); });
  const std::size_t mask = spots_.size() - 1;
  // Both halves of the sun's bundle land in a cell of |y|, which is as large as two.
  const double share = 1 / (2 * side_ * side_);
  EachRay<Ray>(drop, SunImpacts(), [&](const Ray& ray) {
    const Landing landing = Land(ray, 1, 0);
    if (!landing.meets) return;
    const std::uint64_t cell = Cell(landing);
    const std::size_t hash = HashOf(cell), bit = hash & (litBits - 1);
    lit_[bit / wordBits] |= std::uint64_t{1} << (bit % wordBits);
    std::size_t i = hash & mask;
    while (spots_[i].cell != cell && spots_[i].cell != emptyCell) i = (i + 1) & mask;
    spots_[i].cell = cell;
    spots_[i].weight += ray.weight * share;
  });
}

DewBrightness Heiligenschein::At(double delta) const {
  DewBrightness brightness;
  if (!(std::fabs(delta) < pi / 2)) return brightness;
  const double cosine = std::cos(delta), sine = std::sin(delta);
  for (const Ray& ray : observer_) {
    const Landing landing = Land(ray, cosine, sine);
    if (!landing.meets) continue;
    brightness.spot += ray.weight * WeightOf(Cell(landing));
    if (landing.x * landing.x + landing.y * landing.y > 1) brightness.plane += ray.weight;
  }
  brightness.spot /= pi;
  brightness.plane *= cosSlope_ / pi;
  return brightness;
}

}  // namespace lumivex
