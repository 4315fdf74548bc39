#include "session/view.h"

#include <gtest/gtest.h>

#include "pages/zoom.h"
#include "session/inputs/look/read_look.h"
#include "session/session_fixture.h"

namespace lumivex {
namespace {

/// A calculation of what a zoom shows.
class Views : public ScriptedSession {
 protected:
  std::optional<ViewRun> Zoomed(double low, double high) {
    auto& session = runner.Current();
    session.page = WithView(session.page, {XRange{low, high}, {}}, ReadLook(session));
    return RunOfView(session);
  }
};

TEST_F(Views, LimitsStandOnStepsOfTheirOwn) {
  Do("click cmdNewPlot");
  EXPECT_FALSE(RunOfView(runner.Current())) << "not zoomed";
  EXPECT_FALSE(Zoomed(10.03, 20.02)) << "a hundred points are enough";
  const auto run = Zoomed(10.033, 13.017);
  ASSERT_TRUE(run);
  EXPECT_TRUE(run->complete);
  EXPECT_NEAR(run->points, 30, 1);
  EXPECT_EQ(run->step, "0.005");
  EXPECT_EQ(run->xmin, "10.03");
  EXPECT_EQ(run->xmax, "13.02");
  CalculateView(runner.Current(), *run);
  EXPECT_TRUE(Shown().empty()) << LastText();
  EXPECT_EQ(Get("txtXmin") + " " + Get("txtXmax") + " " + Get("cboStep"), "10.03 13.02 0.005");
  EXPECT_NEAR(runner.Current().state.PlotXmax, 13.02, 1e-9);
  Do("click mnuUndo");
  EXPECT_EQ(Get("txtXmin") + " " + Get("txtXmax") + " " + Get("cboStep"), "0 180 0.1") << "one step";
}

TEST_F(Views, StepsEndWhereTheyCanBeNoFiner) {
  Do("click cmdNewPlot");
  const auto fine = Zoomed(10, 10.3);
  ASSERT_TRUE(fine);
  EXPECT_EQ(fine->step, "0.001");
  const auto end = Zoomed(179.9, 180);
  ASSERT_TRUE(end);
  EXPECT_EQ(end->xmax, "180");
}

TEST_F(Views, WhatWasNotCalculatedIsAskedFor) {
  Do("set txtXmin 20\nset txtXmax 60\nclick cmdNewPlot");
  const auto run = Zoomed(10, 70);
  ASSERT_TRUE(run);
  EXPECT_FALSE(run->complete);
  EXPECT_EQ(run->xmin + " " + run->xmax + " " + run->step, "10 70 0.1");
}

TEST_F(Views, EqualRatiosKeepTheirNumberOfSteps) {
  Do("choose cboGraph Intensity v. radius\nclick mnuXStepLog\nset txtXmin 1\nset txtXmax 100\nset cboStep 60\n"
     "click cmdNewPlot");
  ASSERT_TRUE(Shown().empty()) << LastText();
  const auto run = Zoomed(2, 3);
  ASSERT_TRUE(run);
  EXPECT_EQ(run->xmin + " " + run->xmax + " " + run->step, "2 3 500");
  Do("choose cboGraph Intensity v. wavelength");
  EXPECT_FALSE(RunOfView(runner.Current())) << "the inputs have gone on to another graph";
}

}  // namespace
}  // namespace lumivex
