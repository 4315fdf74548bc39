#include "solvers/layers/coated_paths.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "solvers/functions/complex_algebra.h"
#include "solvers/layers/layered_sphere.h"
#include "solvers/series/angular_sum.h"
#include "solvers/series/debye_coefficients.h"

namespace lumivex {
namespace {

constexpr int enough = 100;  // terms until which x = 60 has converged

struct Amplitudes {
  ComplexD S1, S2;
};

Amplitudes At(const PartialWaves& waves, double degrees) {
  SilentMonitor monitor;
  AmplitudeTable S1, S2;
  S1.Resize(1);
  S2.Resize(1);
  const double angle = degrees * std::numbers::pi / 180;
  SumAngularSeries(waves, std::span(&angle, 1), S1, S2, monitor);
  return {{S1.Re(1), S1.Im(1)}, {S2.Re(1), S2.Im(1)}};
}

PartialWaves Sum(const CoatedSphere& sphere, std::span<const WeightedPath> paths, int terms = enough,
                 WaveRecursion recursion = WaveRecursion::Automatic) {
  SilentMonitor monitor;
  const auto surfaces = CoatedSurfaces(sphere, terms, recursion);
  return SumCoatedPaths(surfaces, paths, monitor);
}

std::vector<WeightedPath> Labelled(int first, int last) {
  std::vector<WeightedPath> paths;
  for (const PathLabel& label : PathLabels(first, last)) {
    const PathCounts counts = *CountsOf(label);
    paths.push_back({counts, Degeneracy(counts)});
  }
  return paths;
}

std::vector<WeightedPath> One(const PathLabel& label) {
  return {{*CountsOf(label), 1.0}};
}

void ExpectNear(const ComplexD& is, const ComplexD& wanted, double tolerance) {
  EXPECT_NEAR(is.re, wanted.re, tolerance * std::hypot(wanted.re, wanted.im));
  EXPECT_NEAR(is.im, wanted.im, tolerance * std::hypot(wanted.re, wanted.im));
}

const CoatedSphere glass{40, 60, {1.5, 0}, {1.3333, 0}};

// Values by arithmetic of 60 digits.
TEST(CoatedPaths, SurfacesOfOneWave) {
  const auto surfaces = CoatedSurfaces(glass, enough, WaveRecursion::Automatic);
  const CoatedWave& tm = surfaces[30].TM;
  ExpectNear(tm.E, {0.0763929787989, -0.0763515501452}, 1e-11);
  ExpectNear(tm.r * tm.p, {0.00374818223263, -3.30350024162e-5}, 1e-11);
  ExpectNear(tm.To * tm.Ti, {-0.987075861664, -0.0116148772486}, 1e-11);
  ExpectNear(tm.q, {-0.0240364537827, -0.0250331233391}, 1e-11);
  ExpectNear(tm.r * tm.Ti, {0.075398407574, 0.0771520806837}, 1e-11);
  const CoatedWave& te = surfaces[30].TE;
  ExpectNear(te.E, {-0.127563725662, 0.123198077339}, 1e-11);
  ExpectNear(te.r * te.p, {0.0147029071046, 0.000296386463184}, 1e-11);
  ExpectNear(te.To * te.Ti, {-0.961794026907, -0.0135616886054}, 1e-11);
  ExpectNear(te.q, {0.0599955522691, 0.057244142375}, 1e-11);
}

TEST(CoatedPaths, AmplitudesOfSinglePaths) {
  const struct {
    PathLabel label;
    ComplexD S1, S2;
  } cases[] = {
      {{0, 0, 0}, {-8.553700803, 15.24737126}, {-4.733316420, 7.522175097}},
      {{0, 2, 1}, {-25.43827267, 47.72849694}, {-26.20197906, 49.62144049}},
      {{1, 2, 0}, {-14.72193084, -4.550055272}, {-13.20619534, -7.540500319}},
      {{2, 4, 3}, {-0.7025726543, 0.2401351333}, {-0.4808126397, 0.3432025961}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(testing::Message() << c.label.N << "-" << c.label.A << "-" << c.label.B);
    const Amplitudes is = At(Sum(glass, One(c.label)), 30);
    ExpectNear(is.S1, c.S1, 2e-9);
    ExpectNear(is.S2, c.S2, 2e-9);
  }
}

TEST(CoatedPaths, SumsOfMany) {
  const Amplitudes three = At(Sum(glass, Labelled(3, 3)), 30);
  ExpectNear(three.S1, {-3.167068252, 1.439499571}, 2e-9);
  ExpectNear(three.S2, {-1.018585927, 2.308144505}, 2e-9);
  const PartialWaves twelve = Sum(glass, Labelled(0, 12));
  ExpectNear(ForwardAmplitude(twelve), {1869.978137, 92.95919928}, 2e-9);
  ExpectNear(At(twelve, 30).S1, {-55.17454403, 62.85729346}, 2e-9);

  CoatedSphere grey = glass;
  grey.coating.im = 0.05;
  ExpectNear(At(Sum(grey, One({0, 2, 1})), 30).S1, {-2.515384154, 4.379512701}, 2e-9);
  ExpectNear(At(Sum(grey, Labelled(0, 12)), 30).S1, {-12.38500568, 19.29866313}, 2e-9);
}

// All ways of up to 40 reflections make up the sphere where its coating absorbs.
TEST(CoatedPaths, WaysAddUpToTheWholeSphere) {
  SilentMonitor monitor;
  const CoatedSphere grey{40, 60, {1.5, 0}, {1.3333, 0.05}};
  const SphereLayer layers[] = {{grey.x, grey.core}, {grey.y, grey.coating}};
  const PartialWaves whole = LayeredSphereCoefficients(layers, enough, monitor);
  const PartialWaves sum = Sum(grey, Labelled(0, 40));
  for (const double degrees : {0.0, 30.0, 90.0, 137.0, 180.0}) {
    SCOPED_TRACE(degrees);
    const double scale = At(whole, 0).S1.re;
    EXPECT_NEAR(At(sum, degrees).S1.re, At(whole, degrees).S1.re, 2e-8 * scale);
    EXPECT_NEAR(At(sum, degrees).S2.im, At(whole, degrees).S2.im, 2e-8 * scale);
  }
}

// The closed sum of both geometric series, wave by wave, for thick and thin, clear and absorbing layers.
TEST(CoatedPaths, EachWaveAddsUp) {
  SilentMonitor monitor;
  const CoatedSphere spheres[] = {{10, 20, {1.5, 0}, {1.33, 0}},      {10, 20, {1.33, 0.1}, {1.5, 0.2}},
                                  {195, 200, {1.5, 2}, {1.33, 0.2}},  {150, 200, {1.5, 0.01}, {1.33, 3}},
                                  {30, 40, {1, 0}, {1.33, 0.02}},     {0.1, 0.2, {1.5, 0}, {1.33, 0}},
                                  {60, 100, {1.5, 1e-6}, {1.4, 1e-3}}};
  for (const CoatedSphere& s : spheres) {
    SCOPED_TRACE(testing::Message() << s.x << " " << s.y << " " << s.core.im << " " << s.coating.im);
    const int terms = static_cast<int>(s.y);
    const SphereLayer layers[] = {{s.x, s.core}, {s.y, s.coating}};
    const PartialWaves whole = LayeredSphereCoefficients(layers, std::max(terms, 1), monitor);
    const auto surfaces = CoatedSurfaces(s, terms, WaveRecursion::Automatic);
    for (std::size_t n = 1; n < surfaces.size(); ++n) {
      const auto closed = [](const CoatedWave& w) {
        const ComplexD one(1, 0);
        const ComplexD W = w.p + w.Ti / (one - w.q);
        return 0.5 * (one - w.E) - 0.5 * w.To * W / (one - w.r * W);
      };
      const ComplexD a = closed(surfaces[n].TM), b = closed(surfaces[n].TE);
      EXPECT_NEAR(std::hypot(a.re - whole.aRe[n], a.im - whole.aIm[n]), 0, 1e-11) << n;
      EXPECT_NEAR(std::hypot(b.re - whole.bRe[n], b.im - whole.bIm[n]), 0, 1e-11) << n;
    }
  }
}

TEST(CoatedPaths, DirectionsOfRecursionAgreeWhileBothHold) {
  const CoatedSphere sphere{20, 30, {1.5, 0.05}, {1.33, 0.1}};
  const PartialWaves up = Sum(sphere, Labelled(0, 6), 50, WaveRecursion::Upwards);
  const PartialWaves down = Sum(sphere, Labelled(0, 6), 50, WaveRecursion::Downwards);
  for (std::size_t n = 1; n < up.aRe.size(); ++n) {
    EXPECT_NEAR(up.aRe[n], down.aRe[n], 1e-12) << n;
    EXPECT_NEAR(up.bIm[n], down.bIm[n], 1e-12) << n;
  }
}

// Layers that are alike, and a coating of nothing: the terms of a sphere without one.
TEST(CoatedPaths, LimitsAreTheTermsOfOneSurface) {
  SilentMonitor monitor;
  constexpr int terms = 80;
  const ComplexD m(1.5, 0.01);
  for (int p = 0; p <= 4; ++p) {
    SCOPED_TRACE(p);
    std::vector<int> selected(static_cast<std::size_t>(p) + 1, 0);
    selected.back() = 1;
    const auto compare = [&](const CoatedSphere& sphere, const std::vector<WeightedPath>& paths, double size) {
      const DebyeSurfaces surfaces(size, m.re, m.im, terms, false, monitor);
      const PartialWaves plain = SumDebyeTerms(surfaces, selected, 1, terms, monitor);
      const PartialWaves coated = Sum(sphere, paths, terms);
      for (std::size_t n = 1; n <= static_cast<std::size_t>(size); ++n) {
        EXPECT_NEAR(coated.aRe[n], plain.aRe[n], 1e-12) << n;
        EXPECT_NEAR(coated.aIm[n], plain.aIm[n], 1e-12) << n;
        EXPECT_NEAR(coated.bRe[n], plain.bRe[n], 1e-12) << n;
      }
    };
    const int N = p - 1;
    compare({30, 50, m, m}, p == 0 ? One({}) : One({N, 2 * N + 2, N + 1}), 50);
    if (p > 0) compare({30, 50, m, {1, 0}}, One({N, 2, N + 1}), 30);
  }
}

TEST(CoatedPaths, LabelsCountsAndDegeneracy) {
  const std::vector<PathLabel> labels = PathLabels(0, 12);
  EXPECT_EQ(labels.size(), 259u);
  EXPECT_EQ(labels.front(), (PathLabel{0, 0, 0}));
  EXPECT_EQ(labels.back(), (PathLabel{12, 26, 13}));
  for (const PathLabel& label : labels) EXPECT_EQ(CountsOf(label)->Label(), label);
  const double ways[] = {2, 3, 6, 14, 31, 70, 157, 353, 793, 1782, 4004, 8997, 20216};
  for (int N = 0; N <= 12; ++N) {
    double sum = 0;
    for (const WeightedPath& path : Labelled(N, N)) sum += path.weight;
    EXPECT_EQ(sum, ways[N]) << N;
  }
  for (const auto& [label, degeneracy] : {std::pair{PathLabel{2, 4, 3}, 2},
                                          {PathLabel{3, 4, 4}, 3},
                                          {PathLabel{5, 8, 4}, 12},
                                          {PathLabel{12, 12, 11}, 1260},
                                          {PathLabel{3, 4, 0}, 1},
                                          {PathLabel{12, 24, 13}, 12}})
    EXPECT_EQ(Degeneracy(*CountsOf(label)), degeneracy) << label.N << label.A << label.B;
  for (const PathLabel& none : {PathLabel{2, 3, 1}, {2, 4, 2}, {1, 6, 2}, {2, 2, -1}, {2, 2, 1}, {0, 2, 0}, {-1, 0, 0}})
    EXPECT_FALSE(CountsOf(none)) << none.N << none.A << none.B;
}

TEST(CoatedPaths, Words) {
  const struct {
    const char* word;
    PathLabel label;
    int factor;
  } cases[] = {{"p0r0", {0, 2, 1}, 1}, {"p1", {1, 2, 0}, 1},     {"r1", {1, 4, 2}, 1},    {"p1r1", {2, 4, 1}, 2},
               {"q2", {2, 2, 3}, 1},   {"p1r1p1", {3, 4, 0}, 1}, {"r1q2", {3, 4, 4}, 2},  {"q1r1q1", {3, 4, 4}, 1},
               {"r2p1", {3, 6, 2}, 2}, {"r3", {3, 8, 4}, 1},     {"P1R1Q1", {3, 4, 2}, 2}};
  for (const auto& c : cases) {
    const auto word = WordOf(c.word);
    ASSERT_TRUE(word) << c.word;
    EXPECT_EQ(word->counts.Label(), c.label) << c.word;
    EXPECT_EQ(word->factor, c.factor) << c.word;
  }
  for (const char* none : {"", "p2", "p1q1", "q1p1", "x1", "p", "r1p", "p99999999999", "r99r99"})
    EXPECT_FALSE(WordOf(none)) << none;
  EXPECT_EQ(PathOfOrders(3, 0).Label(), (PathLabel{5, 6, 0}));
  EXPECT_EQ(PathOfOrders(2, 3).Label(), (PathLabel{5, 4, 6}));
  EXPECT_EQ(PathOfOrders(0, 5).Label(), (PathLabel{}));
}

}  // namespace
}  // namespace lumivex
