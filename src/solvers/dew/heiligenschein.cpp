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
/// Rays of a bundle: so many in impact and in azimuth. Both halves of the azimuth are alike, so one is traced.
constexpr int bundleSide = 400;

/// Share of unpolarised light that passes two surfaces at incidence i and refraction r.
double TransmissionOfBoth(double i, double r, double m) {
  const double ci = std::cos(i), cr = std::cos(r);
  const double across = (ci - m * cr) / (ci + m * cr), along = (m * ci - cr) / (m * ci + cr);
  const double ts = 1 - across * across, tp = 1 - along * along;
  return (ts * ts + tp * tp) / 2;
}

std::size_t HashOf(std::uint64_t cell) {
  return static_cast<std::size_t>((cell * 0x9E3779B97F4A7C15ULL) >> 20);
}

}  // namespace

std::vector<Heiligenschein::Ray> Heiligenschein::Bundle(double m, std::uint64_t seed) {
  std::mt19937_64 generator(seed);
  std::vector<Ray> rays;
  rays.reserve(static_cast<std::size_t>(bundleSide) * bundleSide);
  for (int k = 0; k < bundleSide; ++k) {
    for (int l = 0; l < bundleSide; ++l) {
      const double b = std::sqrt((k + NextFraction(generator)) / bundleSide);
      const double f = pi * (l + NextFraction(generator)) / bundleSide;
      if (b > m) continue;  // totally reflected
      const double i = std::asin(b), r = std::asin(b / m);
      const double place = 2 * r - i, turn = 2 * (i - r);
      rays.push_back({std::sin(place) * std::cos(f), std::sin(place) * std::sin(f), std::cos(place),
                      -std::sin(turn) * std::cos(f), -std::sin(turn) * std::sin(f), std::cos(turn),
                      TransmissionOfBoth(i, r, m) * pi / (static_cast<double>(bundleSide) * bundleSide)});
    }
  }
  return rays;
}

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
  const std::size_t mask = cells_.size() - 1;
  for (std::size_t i = HashOf(cell) & mask;; i = (i + 1) & mask) {
    if (cells_[i] == cell) return weights_[i];
    if (cells_[i] == emptyCell) return 0;
  }
}

Heiligenschein::Heiligenschein(const DewDrop& drop)
    : drop_(drop),
      cosSlope_(std::cos(drop.slope)),
      sinSlope_(std::sin(drop.slope)),
      side_(drop.distance * drop.resolution),
      observer_(Bundle(drop.m, 2)),
      cells_(std::size_t{1} << 19, emptyCell),
      weights_(cells_.size(), 0.0) {
  const std::size_t mask = cells_.size() - 1;
  // Both halves of the sun's bundle land in a cell of |y|, which is as large as two.
  const double share = 1 / (2 * side_ * side_);
  for (const Ray& ray : Bundle(drop.m, 1)) {
    const Landing landing = Land(ray, 1, 0);
    if (!landing.meets) continue;
    const std::uint64_t cell = Cell(landing);
    std::size_t i = HashOf(cell) & mask;
    while (cells_[i] != cell && cells_[i] != emptyCell) i = (i + 1) & mask;
    cells_[i] = cell;
    weights_[i] += ray.weight * share;
  }
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
