// The methods as functions of a sphere: what each takes, what it leaves, what it refuses.

#include <gtest/gtest.h>

#include <cmath>

#include "runs/run_fixture.h"
#include "runs/sphere_solver.h"

namespace lumivex {
namespace {

class SphereSolver : public ::testing::Test {
 protected:
  /// Selects the terms p.
  void Choose(std::initializer_list<int> terms) {
    options.rays.assign(static_cast<std::size_t>(*(terms.end() - 1)) + 1, 0);
    for (const int p : terms) options.rays[static_cast<std::size_t>(p)] = 1;
  }
  void ChooseUpTo(int last) { options.rays.assign(static_cast<std::size_t>(last) + 1, 1); }

  using Solver = SphereSolution (*)(const MethodOptions&, const SphereAsked&, RunMonitor&);
  SphereSolution Solve(Solver solver, double x, double mRe = 1.333, double mIm = 0, RowWindow window = {1, 181}) {
    SilentMonitor silent;
    return solver(options, {x, mRe, mIm, AngleGrid(91), window, nullptr}, silent);
  }
  SphereSolution Solve(Method method, double x, double mRe = 1.333, double mIm = 0, RowWindow window = {1, 181}) {
    options.method = method;
    return Solve(SolveSphere, x, mRe, mIm, window);
  }

  MethodOptions options;
};

TEST_F(SphereSolver, NothingSelectedIsRefused) {
  options.rays = {0, 0};
  for (const Method method : {Method::Debye, Method::YoungMod, Method::Airy, Method::Huygens})
    EXPECT_EQ(Solve(method, 100).refusal.text, "No rays selected") << static_cast<int>(method);
  // Diffraction alone is something to add to rays.
  options.addDiffraction = true;
  const SphereSolution disc = Solve(Method::YoungMod, 100);
  EXPECT_FALSE(disc.Refused());
  EXPECT_DOUBLE_EQ(disc.S1.Re(1), 5000.0);
  EXPECT_DOUBLE_EQ(disc.efficiencies.Qext, 2.0);
}

TEST_F(SphereSolver, DebyeTermsHaveRowsAndEfficienciesOfTheirOwn) {
  ChooseUpTo(20);
  const SphereSolution terms = Solve(Method::Debye, 60, 1.333, 0, {1, 120});
  EXPECT_EQ(terms.NSTOP, 78);
  EXPECT_TRUE(terms.rows.Contains(120));
  EXPECT_FALSE(terms.rows.Contains(121));
  EXPECT_EQ(terms.S1.Re(121), 0.0);
  EXPECT_NEAR(terms.efficiencies.Qext, 4 * terms.S1.Re(1) / 3600, 1e-12);
  EXPECT_EQ(terms.efficiencies.Qsca, terms.efficiencies.Qext);
  const SphereSolution absorbing = Solve(Method::Debye, 60, 1.333, 0.001);
  EXPECT_NEAR(absorbing.efficiencies.Qext, 4 * absorbing.S1.Re(1) / 3600, 1e-12);
  EXPECT_LT(absorbing.efficiencies.Qsca, absorbing.efficiencies.Qext);
  options.partialWaves = PartialWaveRange{0.2, 0.4};
  const SphereSolution partial = Solve(Method::Debye, 60);
  EXPECT_EQ(partial.partialWaveFirst, 12);
  EXPECT_EQ(partial.partialWaveLast, 24);
}

TEST_F(SphereSolver, DebyeSeriesRefusesAndHandsOver) {
  Choose({0});
  const SphereSolution large = Solve(Method::Debye, 150000, 1.4);
  EXPECT_EQ(large.refusal.title, "Error");
  EXPECT_EQ(large.refusal.text, "Reduce radius or increase wavelength");
  EXPECT_EQ(BeyondLimits(options, 150000, 1.4, 0).text, large.refusal.text);
  // x mIm = 700 exactly stays with the series, whose margin is 2 terms; above it the Mie series takes over.
  const SphereSolution terms = Solve(Method::Debye, 1000, 1.5, 0.7);
  EXPECT_EQ(terms.NSTOP, 1042);
  const SphereSolution opaque = Solve(Method::Debye, 1000, 1.5, 0.7000001);
  EXPECT_EQ(opaque.NSTOP, 1060);
  for (int row = 1; row <= 181; ++row) EXPECT_NEAR(opaque.S1.Re(row), terms.S1.Re(row), 0.05) << row;
}

TEST_F(SphereSolver, DifferencesLeaveWhatTheTermsLack) {
  ChooseUpTo(2);
  const SphereSolution terms = Solve(Method::Debye, 200, 1.333, 1e-4), mie = Solve(Method::Mie, 200, 1.333, 1e-4),
                       optics = Solve(GO2, 200, 1.333, 1e-4);
  const struct {
    Difference difference;
    const SphereSolution &from, &less;
  } cases[] = {{Difference::MieLessDebye, mie, terms},
               {Difference::RaysLessDebye, optics, terms},
               {Difference::DebyeLessRays, terms, optics}};
  for (const auto& c : cases) {
    options.difference = c.difference;
    const SphereSolution found = Solve(Method::Debye, 200, 1.333, 1e-4);
    for (int row = 1; row <= 181; ++row) {
      EXPECT_NEAR(found.S1.Re(row), c.from.S1.Re(row) - c.less.S1.Re(row), 1e-6) << row;
      EXPECT_NEAR(found.S2.Im(row), c.from.S2.Im(row) - c.less.S2.Im(row), 1e-6) << row;
    }
    EXPECT_EQ(found.efficiencies.Qext, terms.efficiencies.Qext);
    EXPECT_EQ(found.S1b.Rows(), 181);
  }
}

// Rays with their diffraction are what p = 0 of the series holds; without it x^2/2 was missing straight forward.
TEST_F(SphereSolver, RaysLessTermsTakeDiffractionIn) {
  ChooseUpTo(2);
  const SphereSolution bare = [&] {
    options.difference = Difference::RaysLessDebye;
    return Solve(Method::Debye, 500, 1.333, 1e-4);
  }();
  options.addDiffraction = true;
  const SphereSolution whole = Solve(Method::Debye, 500, 1.333, 1e-4);
  EXPECT_NEAR(whole.S1.Re(1) - bare.S1.Re(1), 125000, 1e-6);
  EXPECT_LT(std::abs(whole.S1.Re(1)), 0.02 * 125000);
  EXPECT_EQ(whole.S2.Im(40), bare.S2.Im(40)) << "the physical sign, with diffraction or without";
  options.difference = Difference::DebyeLessRays;
  EXPECT_GT(Solve(Method::Debye, 500, 1.333, 1e-4).S1.Re(1), 0.9 * 125000) << "bare rays";
}

// With an absorbing sphere rays alone have the parallel amplitude with its sign changed, which must not reach a sum
// with another field.
TEST_F(SphereSolver, ParallelSignOfAbsorbingSpheres) {
  Choose({1});
  const SphereSolution alone = Solve(Method::YoungMod, 200, 1.333, 1e-3), second = Solve(GO2, 200, 1.333, 1e-3);
  EXPECT_EQ(second.S1.Im(40), alone.S1.Im(40));
  EXPECT_EQ(second.S2.Im(40), -alone.S2.Im(40));
  options.addDiffraction = true;
  EXPECT_NEAR(Solve(Method::YoungMod, 200, 1.333, 1e-3).S2.Im(40), -alone.S2.Im(40), 1e-12);
}

TEST_F(SphereSolver, OnlyAirysFieldReachesBehindTheRainbow) {
  Choose({2});
  std::vector<double> rainbow;  // one degree below it
  for (const Method method : {Method::Descartes, Method::Young, Method::YoungMod, Method::YoungAiry}) {
    const SphereSolution found = Solve(method, 1000);
    EXPECT_TRUE(found.rows.Contains(181));
    EXPECT_NEAR(found.rainbowAngle, 137.92 * 3.14159265 / 180, 1e-4);
    rainbow.push_back(found.S1.Intensity(138));
  }
  EXPECT_EQ(rainbow[0], 0.0);
  EXPECT_EQ(rainbow[2], 0.0);
  EXPECT_GT(rainbow[3], 0.0);
  EXPECT_NEAR(Solve(Method::Airy, 1000).S1.Intensity(138), rainbow[3], 1e-9 * rainbow[3]);
}

TEST_F(SphereSolver, ClosedFormsHaveEfficiencies) {
  const SphereSolution disc = Solve(Method::Diffraction, 100);
  EXPECT_DOUBLE_EQ(disc.efficiencies.Qext, 2.0);
  options.diffraction = DiffractionForm::PartialWaves;
  const SphereSolution waves = Solve(Method::Diffraction, 100);
  EXPECT_NE(waves.S1.Re(3), disc.S1.Re(3));
  EXPECT_NEAR(waves.S1.Re(3), disc.S1.Re(3), 0.1 * 5000);

  const double closed = 8.0 / 3.0 * 1e-4 * std::pow(1.25 / 4.25, 2);
  const SphereSolution small = Solve(Method::Rayleigh, 0.1, 1.5);
  EXPECT_NEAR(small.efficiencies.Qsca / closed, 1, 1e-3);
  EXPECT_EQ(small.efficiencies.Qext, small.efficiencies.Qsca);
  EXPECT_NEAR(small.efficiencies.Qback, small.S1.Intensity(181) / (3.14159265358979 * 0.01), 1e-15);
  EXPECT_NEAR(Solve(Method::Rayleigh, 0.1, 1.5, 0, {10, 20}).efficiencies.Qsca / closed, 1, 1e-12);
  options.forwardEfficiency = true;
  EXPECT_NEAR(Solve(Method::Rayleigh, 0.1, 1.5).efficiencies.Qext, 4 * 0.1 * 1.25 / 4.25, 1e-12);
}

TEST_F(SphereSolver, ApertureGloryAndWavefront) {
  options.counted = 4;
  const SphereSolution slits = Solve(Method::Aperture, 50);
  EXPECT_EQ(slits.apertureCentre, (std::vector<double>{0.125, 0.375, 0.625, 0.875}));
  EXPECT_NEAR(slits.S1.Re(1), 1, 1e-14);
  options.Qmin = options.Qmax = 2;
  const SphereSolution glory = Solve(Method::VanDeHulst, 50);
  EXPECT_EQ(glory.S1, glory.S2);
  EXPECT_EQ(glory.S1.Re(91), 0.0);
  EXPECT_EQ(glory.besselOrders.size(), 5U);
  Choose({2});
  options.counted = 90;
  const SphereSolution wave = Solve(Method::Huygens, 1000, 1.333, 0, {121, 151});
  ASSERT_EQ(wave.wavefronts.size(), 1U);
  EXPECT_EQ(wave.wavefronts[0].waveX.size(), 91U);
  EXPECT_GT(wave.S1.Intensity(140), 0.0);
}

TEST_F(SphereSolver, AStoppedSphereHasWholeRows) {
  struct Stopper final : RunMonitor {
    int left = 40;
    bool Report(std::size_t, std::size_t) override { return --left > 0; }
  } stopper;
  ChooseUpTo(30);
  options.method = Method::YoungMod;
  const SphereSolution part = GO(options, {1000, 1.333, 0, AngleGrid(901), {1, 1801}, nullptr}, stopper);
  EXPECT_FALSE(part.finished);
  EXPECT_FALSE(part.rows.Contains(1801));
  for (int row = 1; row <= 1801; ++row) EXPECT_EQ(part.S1.Intensity(row) > 0, part.rows.Contains(row)) << row;
}

TEST_F(SphereSolver, APartOfTheRowsIsWhatTheWholeHas) {
  SilentWatch silent;
  for (const Method method : {Method::Mie, Method::Debye, Method::YoungMod, Method::Huygens, Method::Diffraction}) {
    options.method = method;
    Choose({2});
    for (const RowWindow window : {RowWindow{1, 1801}, RowWindow{1370, 1460}, RowWindow{300, 1200}}) {
      const SphereAsked asked{400, 1.333, 0, AngleGrid(901), window, nullptr};
      SilentMonitor monitor;
      const SphereSolution whole = SolveSphere(options, asked, monitor);
      TaskPool pool(silent, 3);
      const SphereSolution parts = SolveInParts(options, asked, pool);
      EXPECT_TRUE(parts.finished);
      for (int row = window.low; row <= window.high; ++row) {
        ASSERT_TRUE(parts.rows.Contains(row)) << static_cast<int>(method) << " row " << row;
        // Roots for rays start from the neighbour's, and end within their tolerance of where others would.
        const double tolerance = TraitsOf(method).series ? 0 : 1e-9 * std::sqrt(whole.S1.Intensity(row));
        ASSERT_NEAR(parts.S1.Re(row), whole.S1.Re(row), tolerance) << static_cast<int>(method) << " row " << row;
        ASSERT_NEAR(parts.S2.Im(row), whole.S2.Im(row), tolerance) << static_cast<int>(method) << " row " << row;
      }
      EXPECT_EQ(parts.efficiencies.Qext, whole.efficiencies.Qext);
    }
  }
}

}  // namespace
}  // namespace lumivex
