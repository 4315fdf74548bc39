#include <gtest/gtest.h>

#include "materials/index/table_lookup.h"
#include "materials/index/water.h"
#include "materials/tables/segelstein_water.h"

namespace lumivex {
namespace {

TEST(Water, IndexAgreesWithThePublishedCheckValues) {
  // IAPWS 1997, table 3: 0 C, 0.1 MPa, density 999.843 kg/m3 at 589 and 226.5 nm.
  EXPECT_NEAR(WaterIndexIapws(0.589, 0.999843, 1.0), 1.334344, 5e-6);
  EXPECT_NEAR(WaterIndexIapws(0.2265, 0.999843, 1.0), 1.394527, 5e-6);
}

TEST(Water, DensityFollowsTheTemperature) {
  EXPECT_NEAR(WaterDensityAt(5), 0.99996382125, 5e-12);
  EXPECT_NEAR(WaterDensityAt(20), 0.99820, 2e-5);
  EXPECT_NEAR(WaterDensityAt(100), 0.95835, 2e-4);
}

TEST(Water, TheSegelsteinTableIsAligned) {
  struct Row {
    int index;
    float lambda, n, k;
  };
  for (const auto& row : {Row{0, 0.01F, 0.968416F, 0.001745F}, Row{90, 0.2F, 1.451724F, 1.101e-07F},
                          Row{250, 1.0F, 1.321695F, 3e-06F}, Row{602, 10.0F, 1.193164F, 0.05079F},
                          Row{1020, 40000.0F, 8.3527F, 1.463F}, Row{1260, 1e7F, 8.8486F, 0.006931F}}) {
    const auto i = static_cast<std::size_t>(row.index);
    EXPECT_EQ(SegelsteinLambda[i], row.lambda);
    EXPECT_EQ(SegelsteinN[i], row.n);
    EXPECT_EQ(SegelsteinK[i], row.k);
  }
  for (std::size_t i = 1; i < segelsteinRows; ++i) EXPECT_LT(SegelsteinLambda[i - 1], SegelsteinLambda[i]) << i;
}

TEST(Water, LookupInterpolatesAndEndsWithTheTable) {
  EXPECT_FALSE(LookUpLinear(SegelsteinLambda, SegelsteinK, 0.009));
  EXPECT_FALSE(LookUpLinear(SegelsteinLambda, SegelsteinK, 1.1e7));
  EXPECT_EQ(LookUpLinear(SegelsteinLambda, SegelsteinK, 1e7), 0.006931F);
  EXPECT_EQ(LookUpLinear(SegelsteinLambda, SegelsteinN, static_cast<double>(0.01F)), 0.968416F);
  const double between = LookUpLinear(SegelsteinLambda, SegelsteinK, 0.65).value();
  EXPECT_GT(between, 1.5e-8);
  EXPECT_LT(between, 1.8e-8);
}

}  // namespace
}  // namespace lumivex
