// Runs of spheres in layers: what one quantity is by two routes, clouds, refusals and stops.

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>

#include "runs/run_fixture.h"
#include "runs/sphere_solver.h"

namespace lumivex {
namespace {

constexpr double lambda = 0.65;  // um

/// A coated sphere of outer radius 6 um against angle.
RunRequest CoatedRequest(double core = 4, double coreIndex = 1.5, double coating = 1.3333) {
  RunRequest request = AngleRequest(6, 1, Method::CoatedSphere);
  request.particle.sphere = FixedIndex{coating, 0};
  request.particle.core = SphereCore{core, FixedIndex{coreIndex, 0}, CoatedSizes::FixedCore};
  return request;
}

/// The Debye terms of all N up to a highest.
std::vector<WeightedPath> PathsTo(int highest) {
  std::vector<WeightedPath> paths;
  for (const PathLabel& label : PathLabels(0, highest)) {
    const PathCounts counts = *CountsOf(label);
    paths.push_back({counts, Degeneracy(counts)});
  }
  return paths;
}

RunRequest ProfileRequest(const IndexProfile& profile, int layers, bool byTangents = false) {
  RunRequest request = AngleRequest(6, 1, Method::InhomogeneousSphere);
  request.method.layers = {profile, layers, byTangents};
  request.particle.sphere = FixedIndex{IndexAt(profile, 1), 0};
  return request;
}

RunRequest MieRequestOf(double index) {
  RunRequest request = AngleRequest(6, 1);
  request.particle.sphere = FixedIndex{index, 0};
  return request;
}

Results ResultsOf(const RunRequest& request) {
  const RunEnd end = RunSilently(request);
  EXPECT_EQ(end.outcome, Outcome::Done) << end.refusal.text;
  return end.results;
}

/// The largest difference of amplitudes over all angles, of the largest of them.
double Apart(const Results& a, const Results& b) {
  const auto& first = std::get<AngleFound>(a.found);
  const auto& second = std::get<AngleFound>(b.found);
  double largest = 0, apart = 0;
  for (int row = 1; row <= 181; ++row) {
    largest = std::max({largest, first.S1.Intensity(row), first.S2.Intensity(row)});
    for (const auto& tables : {std::pair(&first.S1, &second.S1), std::pair(&first.S2, &second.S2)})
      apart = std::max(apart, std::hypot(tables.first->Re(row) - tables.second->Re(row),
                                         tables.first->Im(row) - tables.second->Im(row)));
  }
  return apart / std::sqrt(largest);
}

TEST(LayeredRuns, LayersOfOneIndexAreTheHomogeneousSphere) {
  const Results mie = ResultsOf(MieRequestOf(1.3333));
  // Their series end a little earlier.
  constexpr double end = 1e-9;
  EXPECT_LT(Apart(mie, ResultsOf(CoatedRequest(4, 1.3333))), end);
  const IndexProfile constant{ProfileShape::Polynomial, {1.3333, 0, 0, 0}};
  for (const bool tangents : {false, true})
    EXPECT_LT(Apart(mie, ResultsOf(ProfileRequest(constant, 64, tangents))), end) << tangents;
}

TEST(LayeredRuns, ACoatingOfTheMediumIsNone) {
  RunRequest bare = MieRequestOf(1.5);
  bare.particle.radius = 4;
  EXPECT_LT(Apart(ResultsOf(bare), ResultsOf(CoatedRequest(4, 1.5, 1))), 1e-10);
}

TEST(LayeredRuns, TwoStepsOfAProfileAreACoatedSphere) {
  // Two layers of equal depth.
  const IndexProfile step{ProfileShape::Linear, {0.5, 1.5, 0.5, 1.3333}};
  EXPECT_LT(Apart(ResultsOf(CoatedRequest(3)), ResultsOf(ProfileRequest(step, 2))), 1e-11);
}

TEST(LayeredRuns, IndicesAreRelativeToTheMedium) {
  RunRequest wet = CoatedRequest(4, 1.5, 1.4);
  wet.particle.medium = FixedIndex{1.3333, 0};
  RunRequest scaled = CoatedRequest(4, 1.5 / 1.3333, 1.4 / 1.3333);
  scaled.light.lambda = lambda / 1.3333;
  EXPECT_LT(Apart(ResultsOf(wet), ResultsOf(scaled)), 1e-11);
  IndexProfile luneburg{ProfileShape::Luneburg, {1, 0.7}};
  RunRequest lens = ProfileRequest(luneburg, 32);
  lens.particle.medium = FixedIndex{1.2, 0};
  RunRequest bare = ProfileRequest({ProfileShape::Luneburg, {1 / 1.44, 0.7 / 1.44}}, 32);
  bare.light.lambda = lambda / 1.2;
  EXPECT_LT(Apart(ResultsOf(lens), ResultsOf(bare)), 1e-10);
}

TEST(LayeredRuns, DebyeTermsOfAllWaysAddUpToTheSphere) {
  // Absorption in the coating lets the sum over N converge.
  RunRequest whole = CoatedRequest(4, 1.5);
  whole.particle.sphere = FixedIndex{1.3333, 0.05};
  RunRequest terms = whole;
  terms.method.paths = PathsTo(12);
  const Results exact = ResultsOf(whole), sum = ResultsOf(terms);
  EXPECT_LT(Apart(exact, sum), 1e-5);
  EXPECT_NEAR(sum.last.efficiencies.Qback, exact.last.efficiencies.Qback, 1e-3 * exact.last.efficiencies.Qback);
  for (const WaveRecursion recursion : {WaveRecursion::Upwards, WaveRecursion::Downwards}) {
    terms.method.recursion = recursion;
    EXPECT_LT(Apart(sum, ResultsOf(terms)), 1e-9);
  }
}

TEST(LayeredRuns, ExtinctionOfACoatedSphereGoesByModuli) {
  // A thick bound for x = 10, y = 20; its real parts give 2.82.
  RunRequest request = CoatedRequest();
  const double unit = lambda / (2 * 3.14159265358979324);
  request.particle.radius = 20 * unit;
  request.particle.core->radius = 10 * unit;
  const Results results = ResultsOf(request);
  EXPECT_NEAR(results.last.efficiencies.Qext, 3.46, 0.01);
  const auto& found = std::get<AngleFound>(results.found);
  EXPECT_NEAR(results.last.efficiencies.Qback, 4 * found.S1.Intensity(181) / (20 * 20), 1e-9);
  EXPECT_NEAR(results.last.efficiencies.Qsca, 4 * found.S1.Re(1) / (20 * 20), 1e-9) << "nothing is absorbed";
}

TEST(LayeredRuns, AmplitudesDividedBySizeLeaveTheEfficiencies) {
  RunRequest request = CoatedRequest();
  const Results whole = ResultsOf(request);
  request.method.divideBySize = true;
  const Results divided = ResultsOf(request);
  const double y = whole.last.sizeParameter;
  const auto &S = std::get<AngleFound>(whole.found).S1, &s = std::get<AngleFound>(divided.found).S1;
  EXPECT_NEAR(s.Re(40), S.Re(40) / y, 1e-12 * std::abs(S.Re(40)));
  EXPECT_EQ(divided.last.efficiencies.Qext, whole.last.efficiencies.Qext);
}

TEST(LayeredRuns, ConvergenceEndsAtTheAmplitude) {
  for (const bool debye : {false, true}) {
    RunRequest request = CoatedRequest();
    if (debye) request.method.paths = std::vector{WeightedPath{*CountsOf({2, 4, 3}), 2}};
    const Results angles = ResultsOf(request);
    request.graph = GraphOf({13, 0});
    request.run = ConvergenceRun{40};
    const Results sums = ResultsOf(request);
    const auto& found = std::get<ConvergenceFound>(sums.found);
    ASSERT_GT(found.perpendicular.size(), 50U);
    const double wanted = std::get<AngleFound>(angles.found).S1.Intensity(41);
    EXPECT_NEAR(found.perpendicular.back(), wanted, 1e-6 * wanted) << debye;
    EXPECT_GT(sums.last.NSTOP, angles.last.NSTOP);
  }
}

TEST(LayeredRuns, ACloudIsTheMeanOfItsSpheres) {
  struct Case {
    CoatedSizes sizes;
    double core, radius;  ///< of the sample at 1.1 times the middle
  };
  for (const Case& c : {Case{CoatedSizes::FixedCore, 4, 6.6}, Case{CoatedSizes::FixedRatio, 4.4, 6.6},
                        Case{CoatedSizes::FixedCoating, 4.4, 6.4}}) {
    RunRequest cloud = CoatedRequest();
    cloud.particle.core->sizes = c.sizes;
    NormalSizes one;
    one.z = {0, 1};
    one.relativeSD = 0.1;
    cloud.sizes = one;
    RunRequest sphere = CoatedRequest(c.core);
    sphere.particle.radius = c.radius;
    const auto many = ResultsOf(cloud), single = ResultsOf(sphere);
    const auto &a = std::get<AngleFound>(many.found).S1, &b = std::get<AngleFound>(single.found).S1;
    EXPECT_NEAR(a.Intensity(31), b.Intensity(31), 1e-5 * b.Intensity(31)) << static_cast<int>(c.sizes);
  }
}

TEST(LayeredRuns, SpheresThatCannotBeAreRefused) {
  const auto refusal = [](const RunRequest& request) {
    const RunEnd end = RunSilently(request);
    EXPECT_EQ(end.outcome, Outcome::Refused);
    EXPECT_FALSE(end.hasResults);
    return end.refusal.text;
  };
  RunRequest cloud = CoatedRequest(5.5);
  cloud.sizes = LogNormal(0.2);
  EXPECT_EQ(refusal(cloud), "The radius of the core must be less than the radius of the overall particle");
  RunRequest huge = CoatedRequest();
  huge.particle.radius = 1e6;
  EXPECT_EQ(refusal(huge), "Reduce radius or increase wavelength");
  RunRequest dense = CoatedRequest(4, 1e5);
  EXPECT_EQ(refusal(dense), "Reduce radius or increase wavelength");
  EXPECT_EQ(refusal(CoatedRequest(4, 0)), "Help! RI of sphere undefined");
  RunRequest root = ProfileRequest({ProfileShape::Luneburg, {0.4, 1}}, 64);
  root.particle.sphere = FixedIndex{1, 0};
  EXPECT_EQ(refusal(root), "The profile has no refractive index above 0 at r = 0.898");
}

TEST(LayeredRuns, AreTheSameOnAnyNumberOfThreadsAndStopWhole) {
  RunRequest coated = CoatedRequest();
  coated.run = AngleRun{RowsFor(0, 180, 0.02)};
  RunRequest spectrum = SpectrumRequest(4, 1, 6);
  spectrum.method = coated.method;
  spectrum.particle = coated.particle;
  RunRequest cloud = CoatedRequest(2);
  cloud.sizes = LogNormal();
  for (const RunRequest& request : {coated, spectrum, cloud}) {
    const auto one = Numbers(RunSilently(request, 1).results).all, four = Numbers(RunSilently(request, 4).results).all;
    ASSERT_EQ(one.size(), four.size());
    EXPECT_EQ(std::memcmp(one.data(), four.data(), one.size() * sizeof(double)), 0);
  }
  StopAt watch(0.5);
  const RunEnd end = RunWatched(spectrum, watch, 1);
  ASSERT_EQ(end.outcome, Outcome::Stopped);
  const auto& found = std::get<SpectrumFound>(end.results.found);
  EXPECT_GT(found.done, 0);
  EXPECT_LT(found.done, 6);
  EXPECT_EQ(found.perpendicular.size(), static_cast<std::size_t>(found.done) * 181);
}

TEST(LayeredRuns, AStoppedProfileHasNoFalseRows) {
  RunRequest request = ProfileRequest({ProfileShape::Luneburg, {1, 0.7}}, 8192);
  StopAt atOnce(0);
  const RunEnd end = RunWatched(request, atOnce, 1);
  EXPECT_EQ(end.outcome, Outcome::Stopped);
  EXPECT_FALSE(end.hasResults);
}

}  // namespace
}  // namespace lumivex
