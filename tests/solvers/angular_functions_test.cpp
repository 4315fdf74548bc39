#include "solvers/angles/angular_functions.h"

#include <gtest/gtest.h>

#include <cfenv>
#include <cmath>

namespace lumivex {
namespace {

TEST(DoubleFactorials, ProductsAndLogarithms) {
  EXPECT_EQ(Factorial2(0), 0.0);
  EXPECT_EQ(Factorial2(1), 1.0);
  EXPECT_EQ(Factorial2(7), 105.0);
  EXPECT_EQ(Factorial2(8), 384.0);
  EXPECT_EQ(LogFactorial2(1), 0.0);
  for (const int n : {2, 9, 139, 250}) EXPECT_NEAR(LogFactorial2(n), std::log(Factorial2(n)), 1e-12 * n) << n;
}

// Closed forms of P_L^M / sin and its derivative, without the factor (-1)^M, at both ends too.
TEST(AngularFunctions, LowOrdersInClosedForm) {
  AngularFunctionTable table;
  for (const double theta : {0.0, 0.3, 1.2, 2.8, -0.7}) {
    AngularFunctions(theta, 3, 3, table);
    const double s = std::sin(theta);
    const double c = std::cos(theta);
    EXPECT_NEAR(table.Tau(1, 0), -s, 1e-15);
    EXPECT_NEAR(table.Tau(2, 0), -3.0 * s * c, 1e-15);
    EXPECT_NEAR(table.Tau(3, 0), -s * (15.0 * c * c - 3.0) / 2.0, 1e-14);
    EXPECT_NEAR(table.Pi(1, 1), 1.0, 1e-15);
    EXPECT_NEAR(table.Tau(1, 1), c, 1e-15);
    EXPECT_NEAR(table.Pi(2, 1), 3.0 * c, 1e-15);
    EXPECT_NEAR(table.Tau(2, 1), 3.0 * (c * c - s * s), 1e-14);
    EXPECT_NEAR(table.Pi(2, 2), 3.0 * s, 1e-15);
    EXPECT_NEAR(table.Tau(3, 2), 15.0 * s * (2.0 * c * c - s * s), 1e-14);
    EXPECT_NEAR(table.Pi(3, 3), 15.0 * s * s, 1e-14);
    EXPECT_EQ(table.Pi(2, 3), 0.0);
    EXPECT_NEAR(table.Pi(4, 1), 2.5 * c * (7.0 * c * c - 3.0), 1e-13);
  }
}

// The scaled tables are the same functions: below the switch from the direct form, above it finite.
TEST(AngularFunctions, ScaledFormIsTheSameFunction) {
  for (const double theta : {0.0, 0.05, 0.9, 1.5707963267948966, 3.0, -1.1}) {
    AngularFunctionTable direct;
    AngularFunctionTable scaled;
    AngularFunctions(theta, 200, AngularScaleSwitch - 1, direct);
    std::feclearexcept(FE_ALL_EXCEPT);
    AngularFunctions(theta, 200, 160, scaled);
    EXPECT_EQ(std::fetestexcept(FE_OVERFLOW | FE_DIVBYZERO | FE_INVALID), 0) << theta;
    ASSERT_FALSE(direct.Scaled());
    ASSERT_TRUE(scaled.Scaled());
    for (int M = 1; M < AngularScaleSwitch; M += 4) {
      for (int L = M; L <= 201; L += 7) {
        // Too large for a double in direct form is not compared.
        if (!std::isfinite(direct.Tau(L, M))) continue;
        const double size = std::fabs(direct.Pi(L, M)) * L;
        const double pi = scaled.Pi(L, M) * std::exp(scaled.PiExponent(L, M));
        const double tau = scaled.Tau(L, M) * std::exp(scaled.TauExponent(L, M));
        EXPECT_NEAR(pi, direct.Pi(L, M), 1e-9 * (size + std::fabs(pi))) << theta << " " << L << " " << M;
        EXPECT_NEAR(tau, direct.Tau(L, M), 1e-9 * (size + std::fabs(tau))) << theta << " " << L << " " << M;
      }
    }
    for (int L = 160; L <= 201; ++L) {
      EXPECT_TRUE(std::isfinite(scaled.Pi(L, 160)) && std::isfinite(scaled.Tau(L, 160))) << theta << " " << L;
      EXPECT_EQ(scaled.Tau(L, 0), direct.Tau(L, 0));
    }
  }
}

}  // namespace
}  // namespace lumivex
