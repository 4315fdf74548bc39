#include "solvers/layers/index_profile.h"

#include <gtest/gtest.h>

#include <cmath>

#include "solvers/series/mie_efficiencies.h"

namespace lumivex {
namespace {

using enum ProfileShape;

TEST(IndexProfile, ValuesAtTheirCorners) {
  const IndexProfile linear{Linear, {0.4, 1.5, 0.7, 1.3333}}, cosine{Cosine, {0.4, 1.5, 0.7, 1.3333}};
  const IndexProfile three{ThreeLayer, {0.25, 1.7, 0.4166, 1.416, 0.5, 1.416, 0.8333, 1.132}};
  for (const auto& [profile, r, n] : {std::tuple{linear, 0.0, 1.5},
                                      {linear, 0.55, 1.41665},
                                      {linear, 0.7, 1.3333},
                                      {linear, 1.0, 1.3333},
                                      {cosine, 0.4, 1.5},
                                      {cosine, 0.475, 1.41665 + 0.08335 * std::sqrt(0.5)},
                                      {cosine, 0.9, 1.3333},
                                      {three, 0.1, 1.7},
                                      {three, 0.3333, 1.558},
                                      {three, 0.45, 1.416},
                                      {three, 0.66665, 1.274},
                                      {three, 0.95, 1.132},
                                      {IndexProfile{ThreeLayer, {0.25, 1.7, 0.5, 1.4, 0.5, 1.4, 0.8, 1.1}}, 0.5, 1.4},
                                      {IndexProfile{Linear, {0.7, 1.5, 0.4, 1.3}}, 0.5, 1.5},
                                      {IndexProfile{Linear, {0.7, 1.5, 0.4, 1.3}}, 0.8, 1.3},
                                      {IndexProfile{ModifiedLuneburg, {0}}, 0.3, 1.0},
                                      {IndexProfile{ModifiedLuneburg, {1}}, 1.0, 1.0},
                                      {IndexProfile{Luneburg, {1, 1}}, 0.0, std::sqrt(2.0)},
                                      {IndexProfile{Luneburg, {1, 0.7}}, 1.0, std::sqrt(1.3)},
                                      {IndexProfile{Exponential, {0.3333, 1, -0.2, 4}}, 0.0, 4.0},
                                      {IndexProfile{Exponential, {0.3333, 1, -0.2, 4}}, 1.0, 1.3333},
                                      {IndexProfile{Exponential, {0.3333, 1, -0.2, 4}}, 1e-9, 4.0},
                                      {IndexProfile{Exponential, {1.2, 0, -0.2, 4}}, 0.5, 1.2},
                                      {IndexProfile{Polynomial, {1.5, -0.1, 0.2, -0.3}}, 0.5, 1.4625},
                                      {IndexProfile{Sinusoidal, {1.3333, 0.3333, 1, 90}}, 0.0, 1.6666},
                                      {IndexProfile{Sinusoidal, {1.3333, 0.3333, 2, 0}}, 0.125, 1.6666}})
    EXPECT_NEAR(IndexAt(profile, r), n, 1e-12) << static_cast<int>(profile.shape) << " at " << r;
  EXPECT_TRUE(std::isnan(IndexAt({Luneburg, {0.1, 1}}, 1.0)));
}

TEST(IndexProfile, RadiiWithoutAnIndexAreFound) {
  EXPECT_FALSE(FirstBadRadius({Luneburg, {1, 1}}, 128));
  EXPECT_NEAR(*FirstBadRadius({Luneburg, {0.18, 1}}, 100), 0.605, 1e-12);
  EXPECT_NEAR(*FirstBadRadius({Polynomial, {0.5, -1, 0, 0}}, 10), 0.55, 1e-12);
  EXPECT_TRUE(FirstBadRadius({Exponential, {1, 1, -2000, HUGE_VAL}}, 8));
}

// What a sphere of many layers tends to changes with the square of their depth.
TEST(IndexProfile, LayersTendToTheContinuousSphere) {
  SilentMonitor monitor;
  const IndexProfile lens{Luneburg, {1, 1}};
  const auto extinction = [&](int layers) {
    const double y = 20;
    return EfficienciesOf(LayeredSphereCoefficients(LayersOf(lens, layers, y, 1.0), LayeredSphereTerms(y), monitor), y)
        .Qext;
  };
  const double coarse = extinction(256) - extinction(512), fine = extinction(512) - extinction(1024);
  EXPECT_NEAR(coarse / fine, 4, 0.4);
  EXPECT_LT(std::abs(fine), 1e-4);

  const auto water = LayersOf({Linear, {0.4, 1.5, 0.7, 1.5}}, 4, 10, 1.25);
  EXPECT_DOUBLE_EQ(water[0].x, 2.5);
  EXPECT_DOUBLE_EQ(water[3].x, 10);
  EXPECT_DOUBLE_EQ(water[2].m.re, 1.2);
}

}  // namespace
}  // namespace lumivex
