// Diffraction, Rayleigh, aperture and glory: limits, and against the Debye and Mie series.

#include <gtest/gtest.h>

#include <cfenv>
#include <cmath>

#include "solvers/angles/cross_section.h"
#include "solvers/patterns/simple_scattering.h"
#include "solvers/series/debye_series.h"
#include "solvers/series/mie_series.h"

namespace lumivex {
namespace {

constexpr int watched = FE_OVERFLOW | FE_DIVBYZERO | FE_INVALID;

AmplitudeTable Diffracted(double x, DiffractionForm form, int NANG) {
  const AngleGrid grid(NANG);
  AmplitudeTable S1(grid.RowCount());
  AmplitudeTable S2(grid.RowCount());
  SilentMonitor monitor;
  SumDiffraction(x, form, grid, {1, grid.RowCount()}, S1, S2, monitor);
  EXPECT_EQ(S1, S2);
  return S1;
}

TEST(Diffraction, IsTheReflectedDebyeTermForward) {
  for (const auto& [x, atZero, near] : {std::tuple{100.0, 0.08, 0.1}, {1000.0, 0.02, 0.02}, {5000.0, 0.007, 0.01}}) {
    DebyeRequest request;
    request.x = x;
    request.mRe = 1.333;
    request.NANG = 9001;
    request.selected = {1};
    request.window = {1, 400};
    SilentMonitor monitor;
    const DebyeResult debye = SolveDebye(request, monitor);
    const AmplitudeTable S = Diffracted(x, DiffractionForm::Disc, 9001);
    const double forward = 0.5 * x * x;
    EXPECT_DOUBLE_EQ(S.Re(1), forward);
    EXPECT_LT(std::hypot(debye.S1.Re(1) - forward, debye.S1.Im(1)) / forward, atZero);
    const AngleGrid grid(9001);
    for (int row = 1; row <= 400; ++row) {
      const double u = x * std::sin(grid.Angle(row));
      if (u > 2 && u < 20) {
        EXPECT_LT(std::hypot(debye.S1.Re(row) - S.Re(row), debye.S1.Im(row)) / forward, near)
            << "x " << x << ", u " << u;
      }
    }
  }
}

// Summed to the end of the Mie series the partial waves would be those of a disc 4 % larger.
TEST(Diffraction, BothFormsAgreeNearForward) {
  const AmplitudeTable disc = Diffracted(1000, DiffractionForm::Disc, 901);
  const AmplitudeTable waves = Diffracted(1000, DiffractionForm::PartialWaves, 901);
  EXPECT_NEAR(waves.Re(1), 500000, 1e-6);
  EXPECT_NEAR(disc.Re(11), -9097, 1);
  EXPECT_NEAR(waves.Re(11), -9170, 1);
  EXPECT_NEAR(waves.Re(6), disc.Re(6), 50);
}

TEST(Diffraction, EndRowsAndTinySpheresAreFinite) {
  std::feclearexcept(FE_ALL_EXCEPT);
  for (const double x : {1e-5, 0.3, 7.0, 20000.0}) {
    for (const auto form : {DiffractionForm::Disc, DiffractionForm::PartialWaves}) {
      const AmplitudeTable S = Diffracted(x, form, 46);
      for (int row = 1; row <= 91; ++row) EXPECT_TRUE(std::isfinite(S.Re(row)));
      EXPECT_NEAR(S.Re(91), 0.0, 1e-12 * x * x);
    }
  }
  EXPECT_EQ(std::fetestexcept(watched), 0);
}

TEST(Rayleigh, IsTheLimitOfMie) {
  const double x = 0.01;
  const AngleGrid grid(91);
  AmplitudeTable S1(181);
  AmplitudeTable S2(181);
  FillRayleigh(x, 1.5, grid, S1, S2);
  MieRequest request;
  request.x = x;
  request.mRe = 1.5;
  request.NANG = 91;
  SilentMonitor monitor;
  const MieResult mie = SolveMie(request, monitor);
  const double size = std::fabs(S1.Im(1));
  for (int row = 1; row <= 181; ++row) {
    EXPECT_NEAR(S1.Im(row), mie.S1.Im(row), 1e-3 * size) << row;
    EXPECT_NEAR(S2.Im(row), mie.S2.Im(row), 1e-3 * size) << row;
    EXPECT_NEAR(S2.Im(row), std::cos(grid.Angle(row)) * S1.Im(row), 1e-12 * size) << row;
    EXPECT_EQ(S1.Re(row), 0.0);
  }
  EXPECT_NEAR(RayleighEfficiency(x, 1.5) / mie.efficiencies.Qsca, 1, 1e-3);
  const AngularIntegral integral = IntegrateAngles(S1, S2, grid);
  EXPECT_NEAR(2 * integral.sum / (x * x) / RayleighEfficiency(x, 1.5), 1, 1e-3);
}

TEST(Aperture, OneStripAndMany) {
  const AngleGrid grid(91);
  AmplitudeTable S1(181);
  AmplitudeTable S2(181);
  SilentMonitor monitor;
  for (const int Q : {1, 2, 3, 40}) {
    const ApertureStrips strips = MakeAperture(Q);
    ASSERT_EQ(strips.ApertureCentre.size(), static_cast<std::size_t>(Q));
    EXPECT_NEAR(strips.ApertureCentre.front() + strips.ApertureCentre.back(), 1.0, 1e-15);
    SumAperture(50, strips, grid, {1, 181}, S1, S2, monitor);
    EXPECT_NEAR(S1.Re(1), 1.0, 1e-14) << Q;
    // The sum of the strips is a geometric series.
    const double half = 50 * std::sin(grid.Angle(4)) / Q;
    EXPECT_NEAR(std::hypot(S1.Re(4), S1.Im(4)), std::fabs(std::sin(Q * half) / (Q * std::sin(half))), 1e-12) << Q;
    EXPECT_EQ(S1.Re(120), 0.0);
  }
}

TEST(GloryRing, EqualAmplitudesGiveEqualPolarisations) {
  const AngleGrid grid(91);
  AmplitudeTable S1(181);
  AmplitudeTable S2(181);
  SilentMonitor monitor;
  SumGloryRing(80, 2, 2, grid, {1, 181}, S1, S2, monitor);
  EXPECT_EQ(S1.Re(91), 0.0);
  EXPECT_EQ(S1, S2);
  EXPECT_DOUBLE_EQ(S1.Re(181), 4 * 6400.0);
  SumGloryRing(80, 1, 3, grid, {1, 181}, S1, S2, monitor);
  const double u = 80 * std::sin(grid.Angle(5));
  const double J0 = std::cyl_bessel_j(0, u), J2 = std::cyl_bessel_j(2, u);
  EXPECT_NEAR(S1.Re(177), 6400 * ((J0 + J2) * 3 + (J0 - J2)), 1e-9);
  EXPECT_NEAR(S2.Re(177), 6400 * ((J0 + J2) + (J0 - J2) * 3), 1e-9);
}

}  // namespace
}  // namespace lumivex
