// Surface waves as a user finds them.

#include <gtest/gtest.h>

#include <complex>

#include "runs/run_fixture.h"
#include "session/session_fixture.h"

namespace lumivex {
namespace {

using Complex = std::complex<double>;

class SurfaceWaveSession : public ScriptedSession {
 protected:
  /// Water of the tables that surface waves are checked against, of a size parameter.
  void Water(const std::string& x, const std::string& p) {
    Do("reset\nchoose cboType Surface wave\nclick mnuRadiusX\nset txtRadius " + x +
       "\nset txtRefractReal 1.333\nset txtRefractImag 0\nset cboRays " + p);
  }
  void Run() {
    runner.World().messages.clear();
    Do("click cmdNewPlot");
  }
  const MainFormState& State() { return runner.Current().state; }
  static Complex At(const AmplitudeTable& S, double degrees, double step = 0.1) {
    const int row = static_cast<int>(std::nearbyint(degrees / step)) + 1;
    return {S.Re(row), S.Im(row)};
  }
};

TEST_F(SurfaceWaveSession, AmplitudesAreThoseOfThePoles) {
  const struct {
    const char *x, *p;
    double theta;
    const char *poles, *path;
    Complex S1, S2;
  } cases[] = {
      {"100", "1", 120, "10", "mnuSWBoth", {0.360030, 0.319495}, {1.062059, 0.630842}},
      {"100", "1", 120, "1", "mnuSWBoth", {0.361374, 0.317231}, {1.062691, 0.625176}},
      {"1000", "1", 100, "10", "mnuSWBoth", {0.970097, 0.751834}, {2.234768, 1.572661}},
      {"1000", "2", 175, "10", "mnuSWBoth", {-17.674903, -8.111415}, {-39.648272, -13.689882}},
      {"1000", "2", 175, "10", "mnuSWShort", {-15.831172, -10.238212}, {-35.449585, -19.946330}},
      {"1000", "2", 175, "10", "mnuSWLong", {-1.843731, 2.126797}, {-4.198687, 6.256448}},
      {"1000", "2", 180, "10", "mnuSWBoth", {119.1785, -38.5860}, {-119.1784, 38.5860}},
      {"200", "3", 100, "10", "mnuSWBoth", {-3.602008, -0.340994}, {-7.038422, 1.802262}},
      {"200", "4", 20, "10", "mnuSWBoth", {1.417709, -6.879617}, {-3.704357, -10.954589}},
  };
  for (const auto& c : cases) {
    Water(c.x, c.p);
    Do(std::string("set cboQmax ") + c.poles + "\nclick " + c.path);
    Run();
    ASSERT_TRUE(Shown().empty()) << LastText();
    const double scale = 2e-5 * std::abs(c.S2);
    EXPECT_NEAR(std::abs(At(State().S1, c.theta) - c.S1), 0, scale) << c.x << " " << c.p << " " << c.theta;
    EXPECT_NEAR(std::abs(At(State().S2, c.theta) - c.S2), 0, scale) << c.x << " " << c.p << " " << c.theta;
  }
}

TEST_F(SurfaceWaveSession, BeyondTheCriticalAngleTheyAreTheDebyeTerm) {
  Water("200", "1");
  Do("set cboQmax 15\nset txtXmin 84\nset cboStep 0.5");
  Run();
  const AmplitudeTable S1 = State().S1, S2 = State().S2;
  Do("choose cboType Debye\nset cboRays 1\nclick cmdNewPlot");
  double worst = 0;
  for (double theta = 84; theta <= 180; theta += 0.5)
    worst = std::max({worst, std::abs(At(S1, theta, 0.5) - At(State().S1, theta, 0.5)),
                      std::abs(At(S2, theta, 0.5) - At(State().S2, theta, 0.5))});
  EXPECT_LT(worst, 1e-6 * std::abs(At(S2, 84, 0.5)));
}

TEST_F(SurfaceWaveSession, ManyShortCutsNeedALargeSphere) {
  Water("50", "10");
  Run();
  EXPECT_TRUE(Shown().empty()) << LastText();
  Do("set cboRays 11");
  Run();
  EXPECT_EQ(LastText(), "Surface waves of more than 10 short cuts need a larger sphere");
}

TEST_F(SurfaceWaveSession, PolesFactorAndSeveralTermsAdd) {
  Water("300", "2");
  EXPECT_EQ(Get("cboQmin") + Get("cboQmax") + Get("txtSWAmp"), "1101");
  Run();
  const Complex second = At(State().S2, 170);
  Do("set txtSWAmp -2");
  Run();
  EXPECT_NEAR(std::abs(At(State().S2, 170) + 2.0 * second), 0, 1e-12 * std::abs(second));
  Do("set txtSWAmp 1\nset cboRays 3");
  Run();
  const Complex third = At(State().S2, 170);
  // All up to 3 leaves out p = 0, which has no surface waves of its own here.
  Do("set cboRays 1");
  Run();
  const Complex first = At(State().S2, 170);
  Do("dialog dlogP ok chkMultStep=1 txtPmin=0 txtPmax=3\nset cboRays Multiple");
  Run();
  ASSERT_TRUE(Shown().empty()) << LastText();
  EXPECT_NEAR(std::abs(At(State().S2, 170) - first - second - third), 0, 1e-9 * std::abs(second));
  // Straight back the two polarisations are opposite.
  EXPECT_NEAR(std::abs(At(State().S1, 180) + At(State().S2, 180)), 0, 1e-3 * std::abs(At(State().S1, 180)));
  Do("choose cboType van de Hulst");
}

TEST_F(SurfaceWaveSession, InputsShowWithTheMethodAloneAndTheLabelTellsThePath) {
  EXPECT_EQ(Get("cboQmin.Visible") + Get("mnuSurfaceWave.Visible"), "falsefalse");
  Water("100", "2");
  for (const char* name : {"cboQmin.Visible", "cboQmax.Visible", "txtSWAmp.Visible", "mnuSurfaceWave.Visible"})
    EXPECT_EQ(Get(name), "true") << name;
  EXPECT_EQ(Get("lblDebyeRays"), "Surface wave: short + long paths (p = 2)");
  Do("click mnuSWShort");
  EXPECT_EQ(Get("lblDebyeRays"), "Surface wave: short path (p = 2)");
  EXPECT_EQ(Get("mnuSWBoth") + Get("mnuSWShort") + Get("mnuSWLong"), "falsetruefalse");
  Do("click mnuSWLong");
  EXPECT_EQ(Get("lblDebyeRays"), "Surface wave: long path (p = 2)");
  // The lists are those of the glory of a ring as well, whose amplitudes are 1 unless they are typed.
  Do("choose cboType Mie");
  EXPECT_EQ(Get("cboQmax"), "1");
  EXPECT_EQ(Get("mnuSurfaceWave.Visible"), "false");
}

TEST_F(SurfaceWaveSession, WhatHasNoSurfaceWavesIsRefused) {
  const std::string small = "Surface waves need a larger sphere or a higher refractive index";
  const struct {
    const char *inputs, *text;
  } cases[] = {{"set txtRefractReal 0.9", small.c_str()},
               {"set txtRefractReal 1", small.c_str()},
               {"set txtRadius 8", small.c_str()},
               {"set txtRefractReal 1.02", small.c_str()},
               {"set cboRays 0", "Surface wave calculations are valid only for p > 0"},
               {"set cboQmin 0", "Jmin must be >=1"},
               {"set cboQmin 5\nset cboQmax 3", "Jmin > Jmax"},
               {"set cboQmax 26", "Jmax must be <=25"}};
  for (const auto& c : cases) {
    Water("100", "2");
    Do(c.inputs);
    const auto* before = State().LastResults.get();
    Run();
    ASSERT_EQ(Shown().size(), 1U) << c.inputs;
    EXPECT_EQ(LastText(), c.text) << c.inputs;
    EXPECT_EQ(State().LastResults.get(), before) << c.inputs;
  }
  Water("100", "2");
  Do("set txtSWAmp much");
  Run();
  EXPECT_EQ(Shown().size(), 1U);
  // Spheres of a cloud are all to be large enough: nobody waits for the last one's refusal.
  Water("100", "2");
  Do("click mnuRadius\nset txtRadius 2\nclick optDisp\nchoose cboDistrib Log-normal\nset cboSD 50\nset cboN 20");
  Run();
  EXPECT_EQ(LastText(), small);
}

TEST_F(SurfaceWaveSession, AxesAndClouds) {
  Do("reset\nchoose cboGraph Intensity v. wavelength\nchoose cboType Surface wave\nset txtRadius 20\nset txtAngle 175\n"
     "set cboRays 2\nset cboStep 10\nclick cmdNewPlot");
  ASSERT_TRUE(Shown().empty()) << LastText();
  const auto* axis = State().LastResults->Find<AxisFound>();
  ASSERT_NE(axis, nullptr);
  EXPECT_EQ(axis->done, 31);
  const double alone = axis->S1.Intensity(31);  // 700 nm
  EXPECT_GT(alone, 0);
  Do("reset\nchoose cboType Surface wave\nset txtRadius 20\nset txtLambda 0.7\nset cboRays 2\nclick cmdNewPlot");
  EXPECT_NEAR(std::norm(At(State().S1, 175)) / alone, 1, 1e-9);
  Do("click optDisp\nchoose cboDistrib Normal\nset cboSD 5\nset cboN 5\nset cboStep 1\nclick cmdNewPlot");
  ASSERT_TRUE(Shown().empty()) << LastText();
  EXPECT_GT(std::norm(At(State().S1, 175, 1)), 0);
}

TEST(SurfaceWaveRuns, AreTheSameOnAnyNumberOfThreadsAndStopInWholeRows) {
  RunRequest request = AngleRequest(200, 0.1, Method::SurfaceWave);
  request.method.rays = {0, 1, 1};
  const RunEnd one = RunSilently(request, 1), three = RunSilently(request, 3);
  ASSERT_EQ(one.outcome, Outcome::Done) << one.refusal.text;
  EXPECT_EQ(Numbers(one.results).all, Numbers(three.results).all);
  StopAt half(0.5);
  const RunEnd stopped = RunWatched(request, half, 1);
  ASSERT_EQ(stopped.outcome, Outcome::Stopped);
  ASSERT_TRUE(stopped.hasResults);
  const auto& found = std::get<AngleFound>(stopped.results.found);
  const auto& whole = std::get<AngleFound>(one.results.found);
  EXPECT_TRUE(found.rows.Contains(1));
  EXPECT_FALSE(found.rows.Contains(1801));
  for (int row = 1; row <= 1801; ++row) {
    if (found.rows.Contains(row)) {
      ASSERT_EQ(found.S1.Re(row), whole.S1.Re(row)) << row;
    }
  }
}

}  // namespace
}  // namespace lumivex
