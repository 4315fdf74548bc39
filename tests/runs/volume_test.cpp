#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <numbers>

#include "particles/random_places.h"
#include "runs/curves.h"
#include "runs/run_fixture.h"
#include "runs/volume_sums.h"

namespace lumivex {
namespace {

using Field = std::complex<double>;

constexpr double angle = 2.4;  // of the requests

const VolumeRun& RunOf(const RunRequest& request) {
  return std::get<VolumeRun>(request.run);
}

RunRequest WithSeed(RunRequest request, std::uint64_t seed) {
  std::get<VolumeRun>(request.run).seed = seed;
  return request;
}

VolumeFound FoundOf(const RunRequest& request) {
  const RunEnd end = RunSilently(request);
  EXPECT_EQ(end.outcome, Outcome::Done) << end.refusal.text;
  return std::get<VolumeFound>(end.results.found);
}

/// S1 and S2 of one sphere of the request at its angle, by the graph against radius.
struct OneSphere {
  Field S1, S2;
};
OneSphere SphereOf(RunRequest request, double radius) {
  request.graph = GraphOf({11, 1});
  request.sizes = OneSize{};
  AxisRun axis;
  axis.xmin = axis.xmax = radius;
  axis.step = 1;
  axis.angle = angle;
  request.run = axis;
  const auto found = std::get<AxisFound>(RunSilently(request).results.found);
  return {{found.S1.Re(1), found.S1.Im(1)}, {found.S2.Re(1), found.S2.Im(1)}};
}

/// The phase of a place in radians: k (e_inc - e_sca) . r.
double Phase(const Place& place, double medium = 1) {
  const double k = 2 * std::numbers::pi * medium / 0.65;
  return k * (-std::sin(angle) * place.x + (1 - std::cos(angle)) * place.z);
}

Field Turned(const Place& place) {
  return std::polar(1.0, Phase(place));
}

TEST(Volume, TheMeanOverManySeedsIsThatOfSpheresWithoutInterference) {
  constexpr int seeds = 1000, spheres = 12;
  const double alone = spheres * std::norm(SphereOf(VolumeRequest(31, spheres, 1, spheres, 11), 5).S1);
  double mean = 0, square = 0;
  for (std::uint64_t seed = 1; seed <= seeds; ++seed) {
    const VolumeFound found = FoundOf(WithSeed(VolumeRequest(31, spheres, spheres, spheres, 0), seed));
    const double intensity = found.S1.Intensity(1) / alone;
    mean += intensity / seeds;
    square += intensity * intensity / seeds;
    ASSERT_NEAR(found.alonePerp[1] / alone, 1, 1e-12);
  }
  EXPECT_NEAR(mean, 1, 0.05);
  // Speckle: of N phases the mean square is 2 - 1/N.
  EXPECT_NEAR(square, 2 - 1.0 / spheres, 0.25);
}

TEST(Volume, OneSphereSendsItsOwnIntensityInEveryGraph) {
  for (const Method method : {Method::Mie, Method::Debye, Method::Diffraction, Method::Rayleigh})
    for (const int type : {30, 31, 32, 33}) {
      RunRequest request = VolumeRequest(type, 1, type == 31 ? 1 : 5, 5, type == 31 ? 0 : 4);
      auto& volume = std::get<VolumeRun>(request.run);
      if (type == 31) volume.axis.points = 1;
      if (type == 33) volume.axis.xmax = 5, volume.axis.points = 1;
      request.method.method = method;
      if (TraitsOf(method).needsP) request.method.rays = {0, 0, 1};
      const OneSphere one = SphereOf(request, 5);
      const VolumeFound found = FoundOf(request);
      ASSERT_GE(found.x.size(), 2U);
      for (std::size_t i = 1; i < found.x.size(); ++i) {
        SCOPED_TRACE(std::to_string(type) + " point " + std::to_string(i));
        EXPECT_NEAR(found.S1.Intensity(static_cast<int>(i)) / std::norm(one.S1), 1, 1e-10);
        EXPECT_NEAR(found.S2.Intensity(static_cast<int>(i)) / std::norm(one.S2), 1, 1e-10);
        EXPECT_NEAR(found.alonePerp[i] / std::norm(one.S1), 1, 1e-10);
      }
    }
}

TEST(Volume, TwoSpheresAreTwoBeams) {
  const RunRequest request = VolumeRequest(30, 2, 0, 20, 200);
  const OneSphere one = SphereOf(request, 5);
  const VolumeRun& run = RunOf(request);
  const VolumeFound found = FoundOf(request);
  Place moved = PlaceOf(run.seed, 0, run.side);
  const Place other = PlaceOf(run.seed, 1, run.side);
  double lowest = 1e300, highest = 0;
  for (int i = 1; i <= 201; ++i) {
    moved.x = found.x[static_cast<std::size_t>(i)];
    const double cosine = std::cos(Phase(moved) - Phase(other));
    EXPECT_NEAR(found.S1.Intensity(i), 2 * std::norm(one.S1) * (1 + cosine), 1e-8 * std::norm(one.S1)) << i;
    EXPECT_NEAR(found.S2.Intensity(i), 2 * std::norm(one.S2) * (1 + cosine), 1e-8 * std::norm(one.S2)) << i;
    lowest = std::min(lowest, found.S1.Intensity(i));
    highest = std::max(highest, found.S1.Intensity(i));
  }
  EXPECT_NEAR(highest / std::norm(one.S1), 4, 0.02);
  EXPECT_NEAR(lowest / std::norm(one.S1), 0, 0.02);
}

TEST(Volume, EachGraphIsTheSumOverItsSpheres) {
  const auto near = [](const VolumeFound& found, int point, Field S1, double scale) {
    EXPECT_NEAR(found.S1.Re(point), S1.real(), 1e-9 * scale) << point;
    EXPECT_NEAR(found.S1.Im(point), S1.imag(), 1e-9 * scale) << point;
  };
  const RunRequest numbers = VolumeRequest(31, 9, 1, 9, 8);
  const std::uint64_t seed = RunOf(numbers).seed;
  const double side = RunOf(numbers).side;
  const OneSphere one = SphereOf(numbers, 5);
  const VolumeFound byNumber = FoundOf(numbers);
  Field sum = 0;
  for (int n = 1; n <= 9; ++n) {
    sum += one.S1 * Turned(PlaceOf(seed, static_cast<std::uint64_t>(n - 1), side));
    near(byNumber, n, sum, n * std::abs(one.S1));
    EXPECT_NEAR(byNumber.alonePar[static_cast<std::size_t>(n)], n * std::norm(one.S2), 1e-9 * std::norm(one.S2));
  }
  // The last number is the whole cloud of the graph whose first sphere is where it is anyway.
  const double x = PlaceOf(seed, 0, side).x;
  near(FoundOf(VolumeRequest(30, 9, x, x, 0)), 1, sum, 9 * std::abs(one.S1));
  near(FoundOf(VolumeRequest(32, 9, 0, 0, 0)), 1, sum, 9 * std::abs(one.S1));

  const VolumeFound byTime = FoundOf(VolumeRequest(32, 9, 0.5, 2.5, 4));
  std::vector<BrownianWalk> walks;
  for (std::uint64_t n = 0; n < 9; ++n) walks.emplace_back(seed, n, side, DiffusionCoefficient(5));
  for (int i = 1; i <= 5; ++i) {
    Field field = 0;
    for (BrownianWalk& walk : walks) {
      walk.Go(0.5);
      field += one.S1 * Turned(walk.Here());
    }
    near(byTime, i, field, 9 * std::abs(one.S1));
  }

  const VolumeFound byRadius = FoundOf(VolumeRequest(33, 9, 4, 6, 4));
  for (int i = 1; i <= 5; ++i) {
    const OneSphere other = SphereOf(numbers, byRadius.x[static_cast<std::size_t>(i)]);
    near(byRadius, i, sum / one.S1 * other.S1, 9 * std::abs(other.S1));
  }
}

TEST(Volume, SpheresOfACloudHaveSizesAndAmplitudesOfTheirOwn) {
  RunRequest request = VolumeRequest(31, 30000, 1, 30000, 29999);
  request.sizes = LogNormal(0.3);
  const CloudSamples samples = SamplesOf(request.sizes, 5);
  std::vector<double> intensities;
  double mean = 0;
  for (int i = 1; i <= samples.Count(); ++i) {
    intensities.push_back(std::norm(SphereOf(request, samples.radius[static_cast<std::size_t>(i)]).S1));
    mean += intensities.back() / samples.Count();
  }
  const RunEnd end = RunSilently(request);
  const auto& found = *end.results.Find<VolumeFound>();
  for (std::size_t n = 2; n <= 40; ++n) {
    const double own = found.alonePerp[n] - found.alonePerp[n - 1];
    EXPECT_TRUE(std::ranges::any_of(intensities, [&](double i) { return std::abs(own / i - 1) < 1e-6; })) << n;
  }
  EXPECT_NEAR(found.alonePerp[30000] / 30000 / mean, 1, 0.03);
  // What is told of the sphere is what every graph of the cloud tells.
  RunRequest angles = AngleRequest(5, 1);
  angles.sizes = request.sizes;
  EXPECT_NEAR(end.results.last.efficiencies.Qext, RunSilently(angles).results.last.efficiencies.Qext, 1e-12);
  // Along an axis of radii the sizes lie about each.
  RunRequest radii = VolumeRequest(33, 5, 5, 7, 2);
  radii.sizes = request.sizes;
  RunRequest spheres = VolumeRequest(31, 5, 5, 5, 0);
  spheres.sizes = request.sizes;
  const VolumeFound of5 = FoundOf(spheres), byRadius = FoundOf(radii);
  EXPECT_NEAR(byRadius.S1.Re(1), of5.S1.Re(1), 1e-9 * std::abs(of5.S1.Re(1)));
  EXPECT_NEAR(byRadius.alonePar[1], of5.alonePar[1], 1e-9 * of5.alonePar[1]);
}

TEST(Volume, NumbersInEqualRatiosAreWholeAndRise) {
  RunRequest request = VolumeRequest(31, 1000, 1, 1000, 60);
  auto& axis = std::get<VolumeRun>(request.run).axis;
  axis.logSteps = true;
  axis.step = 60;
  const VolumeFound found = FoundOf(request);
  EXPECT_EQ(found.x[1], 1);
  EXPECT_EQ(found.x.back(), 1000);
  for (std::size_t i = 2; i < found.x.size(); ++i) {
    EXPECT_EQ(found.x[i], std::floor(found.x[i]));
    EXPECT_GT(found.x[i], found.x[i - 1]);
    EXPECT_GT(found.alonePerp[i], found.alonePerp[i - 1]);
  }
}

// Sums over some of the spheres would be those of another cloud.
TEST(Volume, AStoppedRunFindsNothing) {
  for (const int type : {30, 31, 32, 33}) {
    const bool walks = type == 32;
    // So many that half of them take longer than it is to the first look on any machine.
    constexpr int many = 2000000;
    RunRequest request = VolumeRequest(type, walks ? 400 : many, 1, 20, walks ? 2000 : 200);
    if (type == 31) std::get<VolumeRun>(request.run).axis.xmax = many;
    StopAt watch(0.5);
    const RunEnd end = RunWatched(request, watch, 2);
    EXPECT_FALSE(watch.fell) << type;
    EXPECT_EQ(end.outcome, Outcome::Stopped) << type;
    EXPECT_FALSE(end.hasResults) << type;
  }
}

TEST(Volume, SpheresBeyondTheLimitsAreRefusedAtOnce) {
  const RunEnd end = RunSilently(VolumeRequest(33, 10, 1, 40000, 20));
  EXPECT_EQ(end.outcome, Outcome::Refused);
  EXPECT_EQ(end.refusal.text, "Reduce radius or increase wavelength");
  RunRequest wide = VolumeRequest(30, 10, 0, 20, 10);
  wide.sizes = NormalSizes{{0, 1, -1}, 1.5, false};
  EXPECT_EQ(RunSilently(wide).refusal.text, "Reduce standard deviation to avoid negative values of radius");
}

TEST(Volume, CurvesAreIntensitiesOrModuliBesideThoseWithoutInterference) {
  const RunEnd end = RunSilently(VolumeRequest(31, 6, 1, 6, 5));
  const Curves plain = CurvesOf(end.results, {});
  const double k2 = std::pow(2 * std::numbers::pi / 0.65e-6, 2);
  for (const bool amplitude : {false, true}) {
    const Curves curves = CurvesOf(end.results, {.amplitude = amplitude, .invWavelength = true});
    const double power = amplitude ? 0.5 : 1;
    EXPECT_NEAR(curves.perpendicular[6] / std::pow(plain.perpendicular[6] / k2, power), 1, 1e-9);
    EXPECT_NEAR(curves.aloneParallel[6] / std::pow(plain.aloneParallel[6] / k2, power), 1, 1e-9);
  }
  EXPECT_NEAR(plain.aloneUnpolarised[6], 6 * plain.aloneUnpolarised[1], 1e-9 * plain.aloneUnpolarised[6]);
}

}  // namespace
}  // namespace lumivex
