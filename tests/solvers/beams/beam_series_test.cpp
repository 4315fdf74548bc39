#include "solvers/beams/beam_series.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <vector>

#include "solvers/angles/angular_functions.h"
#include "solvers/functions/complex_algebra.h"
#include "solvers/series/angular_sum.h"
#include "solvers/series/debye_coefficients.h"
#include "solvers/series/mie_coefficients.h"

namespace lumivex {
namespace {

constexpr double pi = std::numbers::pi;
constexpr double k = 2 * pi / 0.65;  // 1/um
constexpr double x = k * 10;

struct Amplitudes {
  ComplexD S1, S2;
};

FocusedBeam Beam(double w0, double x0, double y0, double z0) {
  FocusedBeam beam;
  beam.k = k;
  beam.w0 = w0;
  beam.x0 = x0;
  beam.y0 = y0;
  beam.z0 = z0;
  return beam;
}

Amplitudes At(const PartialWaves& waves, const BeamShape& shape, double angle, double phi = pi / 2,
              bool oneBeam = false) {
  SilentMonitor monitor;
  AmplitudeTable S1, S2;
  S1.Resize(1);
  S2.Resize(1);
  BeamSeries(waves, shape, phi, oneBeam).Sum(std::span(&angle, 1), S1, S2, monitor);
  return {{S1.Re(1), S1.Im(1)}, {S2.Re(1), S2.Im(1)}};
}

BeamShape ShapeOf(std::initializer_list<FocusedBeam> beams, bool closed = true, int Mmax = 0) {
  SilentMonitor monitor;
  const int Lmax = BeamLmax(x);
  for (const FocusedBeam& beam : beams) Mmax = std::max(Mmax, BeamMmax(beam, Lmax));
  BeamShape shape({Lmax, Mmax});
  for (const FocusedBeam& beam : beams) shape.Add(beam, {1000, 1e-20, closed}, monitor);
  return shape;
}

PartialWaves Mie(double mRe, double mIm) {
  return MieCoefficients(x, mRe, mIm, ComputeMieTruncation(x, mRe, mIm, false, false));
}

PartialWaves SecondDebyeTerm() {
  SilentMonitor monitor;
  const int terms = BeamLmax(x);
  const std::vector<int> selected{0, 0, 1};
  return SumDebyeTerms(DebyeSurfaces(x, 1.3326, 0, terms, false, monitor), selected, 1, terms, monitor);
}

void ExpectNear(const ComplexD& is, const ComplexD& wanted, double tolerance) {
  EXPECT_NEAR(is.re, wanted.re, tolerance);
  EXPECT_NEAR(is.im, wanted.im, tolerance);
}

// By arithmetic of high precision with a beam turned in space; off the axis within what M = 0 differs by.
TEST(BeamSeries, KnownAmplitudes) {
  const PartialWaves waves = SecondDebyeTerm();
  for (const bool closed : {true, false}) {
    const Amplitudes on = At(waves, ShapeOf({Beam(5, 0, 0, 0)}, closed), 150 * pi / 180);
    ExpectNear(on.S1, {-3.2617956, 4.6779986}, 1e-7);
    ExpectNear(on.S2, {2.7556513, -2.3737363}, 1e-7);
    const Amplitudes off = At(waves, ShapeOf({Beam(5, 0, -8, 0)}, closed), 150 * pi / 180);
    ExpectNear(off.S1, {8.3147336, 18.0533886}, 3e-4);
    ExpectNear(off.S2, {21.8246693, -1.4016908}, 3e-4);
  }
}

TEST(BeamSeries, WideBeamsAreThePlaneWave) {
  SilentMonitor monitor;
  const PartialWaves waves = Mie(1.33, 0.01);
  FocusedBeam disc = Beam(30, 3, -8, 0);
  disc.profile = FocusedBeam::Profile::TopHat;
  for (const double angle : {0.0, 0.01, 1.0, 2.5, pi}) {
    AmplitudeTable S1, S2;
    S1.Resize(1);
    S2.Resize(1);
    SumAngularSeries(waves, std::span(&angle, 1), S1, S2, monitor);
    const ComplexD first(S1.Re(1), S1.Im(1)), second(S2.Re(1), S2.Im(1));
    const double scale = 1e-9 * ForwardAmplitude(waves).re;
    for (const BeamShape& shape : {ShapeOf({Beam(1e6, 0, 0, 0)}), ShapeOf({disc}, true, 30)}) {
      const Amplitudes is = At(waves, shape, angle);
      ExpectNear(is.S1, first, scale);
      ExpectNear(is.S2, second, scale);
      // One beam across the plane and within it: sine and cosine of the azimuth.
      const Amplitudes one = At(waves, shape, angle, 0.3, true);
      ExpectNear(one.S1, std::sin(0.3) * first, scale);
      ExpectNear(one.S2, std::cos(0.3) * second, scale);
    }
  }
}

// Mirrored beams mirror the field, and the far side of the axis goes on without a step.
TEST(BeamSeries, ReflectionAndTheOtherSide) {
  const PartialWaves waves = Mie(1.33, 0);
  const BeamShape below = ShapeOf({Beam(4, 0, -7, 12)}), above = ShapeOf({Beam(4, 0, 7, 12)});
  for (const double angle : {0.2, 1.5, 3.0}) {
    const Amplitudes one = At(waves, below, angle), other = At(waves, above, -angle);
    ExpectNear(one.S1, other.S1, 1e-9);
    ExpectNear(one.S2, other.S2, 1e-9);
    const Amplitudes round = At(waves, below, 2 * pi - angle), back = At(waves, below, -angle);
    ExpectNear(round.S1, back.S1, 1e-9);
    EXPECT_GT(std::abs(one.S1.re - back.S1.re), 1e-3);
  }
  const Amplitudes before = At(waves, below, -1e-9), after = At(waves, below, 1e-9);
  ExpectNear(before.S2, after.S2, 1e-4);
}

TEST(BeamSeries, PairsOfBeamsAddUp) {
  const PartialWaves waves = Mie(1.5, 0);
  const FocusedBeam one = Beam(5, 2, -6, 3), other = Beam(5, -2, 6, 3);
  const BeamShape pair = ShapeOf({one, other}), alone = ShapeOf({one});
  const Amplitudes sum = At(waves, pair, 1.0), a = At(waves, alone, 1.0), b = At(waves, ShapeOf({other}), 1.0);
  ExpectNear(sum.S1, a.S1 + b.S1, 1e-10);
  ExpectNear(sum.S2, a.S2 + b.S2, 1e-10);
  for (int L = 1; L < pair.Lmax(); L += 10) {
    ExpectNear(pair.TM(L, 1), 2.0 * alone.TM(L, 1), 1e-15);
    ExpectNear(pair.TE(L, -3), 2.0 * alone.TE(L, -3), 1e-15);
    ExpectNear(pair.TM(L, 2), {}, 1e-15);
  }
}

// Sums over j come to the Bessel function wherever they hold; a coarse end of them shows.
TEST(BeamSeries, SumsAndClosedForm) {
  for (const FocusedBeam& beam : {Beam(20, 0, -40, 0), Beam(5, 3, 4, 10), Beam(2, -9, 0, -5), Beam(5, 0, 0, 30)}) {
    const BeamShape sum = ShapeOf({beam}, false), closed = ShapeOf({beam});
    for (int L = 1; L <= sum.Lmax(); L += 12) {
      for (int M = -sum.Mmax(); M <= sum.Mmax(); ++M) {
        ExpectNear(sum.TM(L, M), closed.TM(L, M), 1e-13);
        ExpectNear(sum.TE(L, M), closed.TE(L, M), 1e-13);
      }
    }
  }
  SilentMonitor monitor;
  BeamShape coarse({100, 7});
  coarse.Add(Beam(5, 0, -8, 0), {4, 1e-20, false}, monitor);
  EXPECT_EQ(coarse.HighestJ(), 4);
  // Nothing overflows a hundred radii away.
  const BeamShape far = ShapeOf({Beam(5, 0, -1000, 0)});
  for (int L = 1; L <= far.Lmax(); ++L) ExpectNear(far.TM(L, 1), {}, 1e-300);
}

TEST(BeamSeries, LimitsOfTheSums) {
  EXPECT_EQ(BeamLmax(100), 121);
  EXPECT_EQ(BeamMmax(Beam(20, 0, -40, 0), 118), 7);
  EXPECT_EQ(BeamMmax(Beam(5, 0, -8, 0), 117), 18);
  EXPECT_EQ(BeamMmax(Beam(1, 0, -8, 0), 9), 9);
}

// High orders at small angles, where sin^M leaves the range of a double, against tables with exponents.
TEST(BeamSeries, HighOrdersKeepTheirDigits) {
  SilentMonitor monitor;
  constexpr int Lmax = 2500, Mmax = 300, L = 2400;
  PartialWaves waves(Lmax);
  waves.aIm[L] = 1.0;
  waves.bRe[L] = 1.0;
  FocusedBeam beam = Beam(100, 0, -200, 0);
  BeamShape shape({Lmax, Mmax});
  shape.Add(beam, {}, monitor);
  AngularFunctionTable table;
  for (const double angle : {0.03, 0.1, 1.3}) {
    AngularFunctions(angle, Lmax, Mmax, table);
    ComplexD sum;
    const auto take = [&](int M, double value, int exponent, const ComplexD& weight) {
      const double scale = exponent - std::max(std::abs(M) - 1, -1) * std::log(L + 0.5);
      const ComplexD turn(std::cos(M * pi / 2), std::sin(M * pi / 2));
      sum = sum + value * std::exp(scale) * (weight * turn);
    };
    for (int M = -Mmax; M <= Mmax; ++M) {
      const int order = std::abs(M);
      take(M, M * table.Pi(L, order), table.PiExponent(L, order), ComplexD(0, -1) * ComplexD(0, 1) * shape.TM(L, M));
      take(M, table.Tau(L, order), table.TauExponent(L, order), shape.TE(L, M));
    }
    const double c = (2.0 * L + 1) / (2.0 * L * (L + 1));
    const ComplexD is = At(waves, shape, angle).S1;
    ExpectNear(is, c * sum, 1e-9 * std::hypot(is.re, is.im));
  }
}

TEST(BeamSeries, ModifiedBesselFunctions) {
  std::vector<ComplexD> values;
  ScaledModifiedBessel({3, 4}, 5, values);
  ExpectNear(values[0], {0.1602866564340943, -0.08474030062258149}, 1e-15);
  ExpectNear(values[5], {-0.003124851880336143, 0.03242476715940779}, 1e-15);
  ScaledModifiedBessel({1e-3, 700}, 3, values);
  ExpectNear(values[3], {0.0160112285606011, -0.02468626204459289}, 1e-14);
  ScaledModifiedBessel({5000, 0}, 3, values);
  EXPECT_NEAR(values[3].re, 0.005636960842591143, 1e-16);
  ScaledModifiedBessel({}, 2, values);
  ExpectNear(values[0], {1, 0}, 0);
  ExpectNear(values[2], {}, 0);
}

}  // namespace
}  // namespace lumivex
