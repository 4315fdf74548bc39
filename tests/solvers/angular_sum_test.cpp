#include "solvers/series/angular_sum.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "solvers/angles/cross_section.h"
#include "solvers/series/mie_series.h"

namespace lumivex {
namespace {

/// Stops at a given look, and keeps count of the looks.
class StopAt final : public RunMonitor {
 public:
  explicit StopAt(int look) : left_(look) {}
  bool Report(std::size_t index, std::size_t count) override {
    ++looks;
    EXPECT_LE(index, count);
    EXPECT_GE(index, last_);
    last_ = index;
    return --left_ > 0;
  }
  int looks = 0;

 private:
  int left_;
  std::size_t last_ = 0;
};

std::vector<InstructionSet> SetsHere() {
  std::vector<InstructionSet> sets{InstructionSet::Plain};
  if (BestInstructionSet() != InstructionSet::Plain) sets.push_back(InstructionSet::Avx2);
  if (BestInstructionSet() == InstructionSet::Avx512) sets.push_back(InstructionSet::Avx512);
  return sets;
}

PartialWaves Waves(double x) {
  return MieCoefficients(x, 1.4, 0.01, ComputeMieTruncation(x, 1.4, 0.01, false, false));
}

/// S1 and S2 term by term as the textbook has them.
void TextbookSum(const PartialWaves& waves, double angle, std::complex<double>& S1, std::complex<double>& S2) {
  double pi = 1.0;
  double before = 0.0;
  S1 = 0.0;
  S2 = 0.0;
  for (int n = 1; n <= waves.Terms(); ++n) {
    const auto k = static_cast<std::size_t>(n);
    const std::complex<double> a(waves.aRe[k], waves.aIm[k]);
    const std::complex<double> b(waves.bRe[k], waves.bIm[k]);
    const double tau = n * std::cos(angle) * pi - (n + 1) * before;
    const double weight = (2.0 * n + 1.0) / (n * (n + 1.0));
    S1 += weight * (a * pi + b * tau);
    S2 += weight * (a * tau + b * pi);
    const double next = ((2 * n + 1) * std::cos(angle) * pi - (n + 1) * before) / n;
    before = pi;
    pi = next;
  }
}

// Odd and even numbers of terms, one term alone, grids that fill blocks and that do not, every instruction set.
TEST(AngularSum, EqualsTheTextbookSum) {
  for (const InstructionSet set : SetsHere()) {
    for (const double x : {0.001, 2.0, 2.5, 60.0}) {
      PartialWaves waves = Waves(x);
      if (x < 0.01)
        waves = [] {
          PartialWaves one(1);
          one.aRe[1] = 0.3;
          one.bIm[1] = -0.7;
          return one;
        }();
      for (const int rows : {2, 3, 16, 17, 40, 91}) {
        const AngleGrid grid(rows);
        AmplitudeTable S1(grid.RowCount());
        AmplitudeTable S2(grid.RowCount());
        SilentMonitor monitor;
        SumAngularSeries(waves, grid, {1, grid.RowCount()}, S1, S2, monitor, set);
        const double scale = std::hypot(S1.Re(1), S1.Im(1));
        for (int j = 1; j <= grid.RowCount(); ++j) {
          std::complex<double> t1, t2;
          TextbookSum(waves, grid.Angle(j), t1, t2);
          EXPECT_LT(std::abs(std::complex<double>(S1.Value(j)) - t1), 1e-13 * scale)
              << Name(set) << " x " << x << " rows " << rows << " row " << j;
          EXPECT_LT(std::abs(std::complex<double>(S2.Value(j)) - t2), 1e-13 * scale)
              << Name(set) << " x " << x << " rows " << rows << " row " << j;
        }
        EXPECT_EQ(S1.Re(0), 0.0);
      }
    }
  }
}

TEST(AngularSum, TouchesOnlyTheRowsOfTheWindow) {
  const PartialWaves waves = Waves(20.0);
  const AngleGrid grid(46);
  const int last = grid.RowCount();
  SilentMonitor monitor;
  AmplitudeTable all1(last), all2(last);
  SumAngularSeries(waves, grid, {1, last}, all1, all2, monitor);
  const double old = 12345.0;
  for (const RowWindow window : {RowWindow{1, 1},
                                 {last, last},
                                 {46, 46},
                                 {45, 47},
                                 {3, 60},
                                 {40, 91},
                                 {70, 75},
                                 {1, 46},
                                 {-5, 1000},
                                 {9, 8},
                                 {200, 300}}) {
    AmplitudeTable S1(last), S2(last);
    for (int j = 0; j <= last; ++j) S1.Set(j, old, old);
    const RowsDone done = SumAngularSeries(waves, grid, window, S1, S2, monitor);
    for (int j = 1; j <= last; ++j) {
      const bool wanted = window.Contains(j);
      EXPECT_EQ(done.Contains(j), wanted) << window.low << ".." << window.high << " row " << j;
      const double scale = std::hypot(all1.Re(1), all1.Im(1));
      EXPECT_NEAR(S1.Re(j), wanted ? all1.Re(j) : old, wanted ? 1e-14 * scale : 0.0) << j;
      EXPECT_NEAR(S2.Im(j), wanted ? all2.Im(j) : 0.0, wanted ? 1e-14 * scale : 0.0) << j;
    }
  }
}

// Small grids, every window there is: the last row of a block, of a half and of the grid come out as in the whole.
TEST(AngularSum, EveryWindowOfASmallGridHoldsWhatTheWholeHas) {
  const PartialWaves waves = Waves(3.0);
  SilentMonitor monitor;
  for (const int NANG : {2, 3, 9, 18}) {
    const AngleGrid grid(NANG);
    const int last = grid.RowCount();
    AmplitudeTable all1(last), all2(last);
    SumAngularSeries(waves, grid, {1, last}, all1, all2, monitor);
    const double close = 1e-14 * std::hypot(all1.Re(1), all1.Im(1));
    for (int low = 1; low <= last; ++low)
      for (int high = low; high <= last; ++high) {
        AmplitudeTable S1(last), S2(last);
        SumAngularSeries(waves, grid, {low, high}, S1, S2, monitor);
        for (int j = 1; j <= last; ++j) {
          const bool wanted = j >= low && j <= high;
          ASSERT_NEAR(S1.Re(j), wanted ? all1.Re(j) : 0, close) << NANG << " " << low << ".." << high << " row " << j;
          ASSERT_NEAR(S2.Im(j), wanted ? all2.Im(j) : 0, close) << NANG << " " << low << ".." << high << " row " << j;
        }
      }
  }
}

// A table of cosines that another call left must not change a single digit, wherever the window begins.
TEST(AngularSum, CosinesMayBeSharedBetweenCalls) {
  const PartialWaves waves = Waves(30.0);
  for (const int NANG : {2, 19, 901}) {
    const AngleGrid grid(NANG), other(NANG + 1);
    const AngleCosines all(grid, {1, grid.RowCount()});
    for (const RowWindow window : {RowWindow{1, grid.RowCount()}, RowWindow{NANG / 2 + 1, NANG},
                                   RowWindow{NANG, grid.RowCount()}, RowWindow{NANG / 3 + 1, NANG + NANG / 2}}) {
      SilentMonitor silent;
      AmplitudeTable S1(grid.RowCount()), S2(grid.RowCount()), T1(grid.RowCount()), T2(grid.RowCount());
      ASSERT_TRUE(all.Covers(grid, window));
      SumAngularSeries(waves, grid, window, S1, S2, silent);
      SumAngularSeries(waves, grid, all, window, T1, T2, silent);
      EXPECT_EQ(S1, T1) << NANG << " " << window.low;
      EXPECT_EQ(S2, T2) << NANG << " " << window.low;
    }
    EXPECT_FALSE(all.Covers(other, {1, 2}));
    EXPECT_FALSE(AngleCosines(grid, {2, 2}).Covers(grid, {1, 2}));
    EXPECT_TRUE(AngleCosines(grid, {2, 2}).Covers(grid, {grid.Mirror(2), grid.Mirror(2)}));
  }
}

TEST(AngularSum, AStoppedSumKeepsWholeRowsAndSaysWhich) {
  const PartialWaves waves = Waves(20000.0);
  const AngleGrid grid(500);
  const int last = grid.RowCount();
  SilentMonitor silent;
  AmplitudeTable all1(last), all2(last);
  SumAngularSeries(waves, grid, {1, last}, all1, all2, silent);
  for (const RowWindow window : {RowWindow{1, last}, {1, 620}, {300, last}}) {
    for (int look = 1; look <= 3; ++look) {
      StopAt stop(look);
      AmplitudeTable S1(last), S2(last);
      const RowsDone done = SumAngularSeries(waves, grid, window, S1, S2, stop);
      EXPECT_EQ(stop.looks, look);
      int rows = 0;
      for (int j = 1; j <= last; ++j) {
        const bool has = done.Contains(j);
        rows += has ? 1 : 0;
        EXPECT_TRUE(!has || window.Contains(j)) << j;
        EXPECT_EQ(S1.Re(j), has ? all1.Re(j) : 0.0) << "look " << look << " row " << j;
      }
      EXPECT_EQ(rows > 0, look > 1);
      EXPECT_LT(rows, window.high - window.low + 1);
    }
  }
}

// Between two looks lies a bounded amount of work, also for the longest series: the looks are counted.
TEST(AngularSum, LooksAtTheMonitorOftenEnough) {
  struct Row {
    int terms;
    int rows;
  };
  for (const Row& row : {Row{199999, 101}, {20000, 101}, {1000, 2001}, {20, 2001}}) {
    PartialWaves waves(row.terms);
    waves.aRe[1] = 1.0;
    StopAt count(std::numeric_limits<int>::max());
    const AngleGrid grid(row.rows);
    AmplitudeTable S1(grid.RowCount()), S2(grid.RowCount());
    SumAngularSeries(waves, grid, {1, grid.RowCount()}, S1, S2, count);
    const double work = static_cast<double>(row.terms) * row.rows;
    EXPECT_GE(count.looks - 1, work / static_cast<double>(MaxPairTermsPerLook)) << row.terms;
    EXPECT_LE(count.looks, 3 + 1.5 * work / static_cast<double>(MaxPairTermsPerLook)) << row.terms;
  }
}

TEST(AngularSum, ListedAnglesNeedNoOrderNorRange) {
  const PartialWaves waves = Waves(15.0);
  const double pi = 3.14159265358979323846;
  const std::vector<double> angles{pi,  2.0, 0.05, -0.05, 1.0, 2.0 * pi - 1.0, 0.0, pi / 2.0, 3.12, 0.1, 1.5, 1.6, 2.9,
                                   3.0, 0.3, 0.6,  0.7,   0.8};
  AmplitudeTable S1(static_cast<int>(angles.size())), S2(static_cast<int>(angles.size()));
  SilentMonitor monitor;
  EXPECT_EQ(SumAngularSeries(waves, angles, S1, S2, monitor), angles.size());
  for (std::size_t i = 0; i < angles.size(); ++i) {
    std::complex<double> t1, t2;
    TextbookSum(waves, angles[i], t1, t2);
    EXPECT_LT(std::abs(std::complex<double>(S1.Value(static_cast<int>(i) + 1)) - t1), 1e-11) << angles[i];
    EXPECT_LT(std::abs(std::complex<double>(S2.Value(static_cast<int>(i) + 1)) - t2), 1e-11) << angles[i];
  }
  StopAt stop(1);
  EXPECT_EQ(SumAngularSeries(waves, angles, S1, S2, stop), 0U);
}

// The weight is the mean of both intensities: without the halves and squares a Rayleigh sphere had 1e4 times its Qsca.
TEST(CrossSection, IntegralGivesScatteringAndAsymmetry) {
  for (const double x : {0.1, 5.0}) {
    MieRequest request;
    request.x = x;
    request.mRe = 1.5;
    request.NANG = 1001;
    SilentMonitor monitor;
    const MieResult result = SolveMie(request, monitor);
    const AngularIntegral integral = IntegrateAngles(result.S1, result.S2, AngleGrid(request.NANG));
    // Qsca = 2 pi / k^2 times the sum over pi a^2.
    EXPECT_NEAR(2.0 * integral.sum / (x * x) / result.efficiencies.Qsca, 1.0, 1e-5) << x;
    EXPECT_NEAR(integral.moment / integral.sum, result.efficiencies.g, 1e-5) << x;
  }
}

}  // namespace
}  // namespace lumivex
