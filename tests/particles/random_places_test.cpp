#include "particles/random_places.h"

#include <gtest/gtest.h>

#include <cmath>

namespace lumivex {
namespace {

// Reckoned with whole numbers in another language: recorded results are of no use where the sequence is another.
TEST(RandomPlaces, TheSequenceIsTheSameEverywhere) {
  struct Case {
    std::uint64_t seed;
    RandomUse use;
    std::uint64_t sphere;
    double numbers[3];
  };
  for (const auto& c : {
           Case{1, RandomUse::Place, 0, {0x1.48b67c1ab2cf0p-5, 0x1.3e4e00b28e6fbp-1, 0x1.9337c72eea600p-10}},
           Case{1, RandomUse::Place, 1, {0x1.cde8fdda74b8bp-1, 0x1.ddbe65d0685e5p-1, 0x1.7b25e9d0f872bp-1}},
           Case{2, RandomUse::Motion, 7, {0x1.575f4938ec09fp-1, 0x1.ff6228c98faf3p-1, 0x1.585eea7de4ffap-2}},
       }) {
    SphereRandom random(c.seed, c.use, c.sphere);
    for (const double number : c.numbers) EXPECT_EQ(random.Uniform(), number) << c.seed << " " << c.sphere;
  }
}

TEST(RandomPlaces, NumbersHaveTheMomentsOfTheirDistributions) {
  constexpr int spheres = 20000;
  double mean = 0, square = 0, fourth = 0, neighbours = 0;
  Place sum, squares;
  for (std::uint64_t i = 0; i < spheres; ++i) {
    SphereRandom random(5, RandomUse::Motion, i);
    const double a = random.Normal(), b = random.Normal();
    mean += (a + b) / (2 * spheres);
    square += (a * a + b * b) / (2 * spheres);
    fourth += (std::pow(a, 4) + std::pow(b, 4)) / (2 * spheres);
    neighbours += a * b / spheres;
    const Place p = PlaceOf(5, i, 2);
    ASSERT_TRUE(p.x >= 0 && p.x < 2 && p.y >= 0 && p.y < 2 && p.z >= 0 && p.z < 2);
    sum = {sum.x + p.x / spheres, sum.y + p.y / spheres, sum.z + p.z / spheres};
    squares = {squares.x + p.x * p.x / spheres, squares.y + p.x * p.y / spheres, squares.z + p.z * p.x / spheres};
  }
  EXPECT_NEAR(mean, 0, 0.02);
  EXPECT_NEAR(square, 1, 0.03);
  EXPECT_NEAR(fourth, 3, 0.25);
  EXPECT_NEAR(neighbours, 0, 0.03);
  for (const double value : {sum.x, sum.y, sum.z, squares.y, squares.z}) EXPECT_NEAR(value, 1, 0.02);
  EXPECT_NEAR(squares.x, 4.0 / 3, 0.02);
}

// k T = 4.0474e-21 J over 6 pi 1.0016e-3 Pa s 1e-6 m.
TEST(RandomPlaces, DiffusionIsThatOfStokesAndEinstein) {
  EXPECT_NEAR(DiffusionCoefficient(1), 0.21438, 1e-5);
  EXPECT_NEAR(DiffusionCoefficient(0.05), 20 * DiffusionCoefficient(1), 1e-12);
}

TEST(RandomPlaces, TheMeanSquareStepIsSixDt) {
  constexpr int spheres = 10000;
  constexpr double diffusion = 0.3, seconds = 2, side = 1e6;
  for (const int steps : {1, 4, 50}) {
    double square = 0, cosine = 0;
    constexpr double q = 0.7;
    for (std::uint64_t i = 0; i < spheres; ++i) {
      BrownianWalk walk(3, i, side, diffusion);
      const Place start = walk.Here();
      for (int step = 0; step < steps; ++step) walk.Go(seconds / steps);
      const Place end = walk.Here();
      square += std::pow(end.x - start.x, 2) + std::pow(end.y - start.y, 2) + std::pow(end.z - start.z, 2);
      cosine += std::cos(q * (end.x - start.x));
    }
    EXPECT_NEAR(square / spheres / (6 * diffusion * seconds), 1, 0.03) << steps;
    // What a wave finds of its phase after that time.
    EXPECT_NEAR(cosine / spheres, std::exp(-diffusion * q * q * seconds), 0.02) << steps;
  }
}

// Long after all has been stirred the spheres are as evenly spread as at the start.
TEST(RandomPlaces, WallsThrowSpheresBack) {
  double sum = 0, edge = 0;
  constexpr int spheres = 4000;
  for (std::uint64_t i = 0; i < spheres; ++i) {
    BrownianWalk walk(9, i, 3, 1);
    const Place start = walk.Here();
    walk.Go(0);
    EXPECT_EQ(walk.Here().x, start.x);
    for (const double seconds : {0.1, 1e-3, 1e9, 2.0}) {
      walk.Go(seconds);
      const Place p = walk.Here();
      ASSERT_TRUE(p.x >= 0 && p.x <= 3 && p.y >= 0 && p.y <= 3 && p.z >= 0 && p.z <= 3);
    }
    sum += walk.Here().x / spheres;
    edge += walk.Here().z < 0.3 ? 1.0 / spheres : 0;
  }
  EXPECT_NEAR(sum, 1.5, 0.05);
  EXPECT_NEAR(edge, 0.1, 0.02);
}

}  // namespace
}  // namespace lumivex
