#include "session/inputs/sizes/size_distribution.h"

#include <complex>
#include <functional>
#include <numbers>
#include <numeric>
#include <span>

#include "materials/material_fixture.h"
#include "particles/gamma_function.h"
#include "particles/normal_samples.h"
#include "particles/size_models.h"
#include "session/inputs/sizes/read_size_dist.h"
#include "session/inputs/sizes/size_distribution_display.h"
#include "session/inputs/sizes/size_menus.h"
#include "session/page.h"
#include "solvers/angles/scattering_pattern.h"
#include "solvers/series/mie_point.h"
#include "solvers/series/mie_series.h"

namespace lumivex {
namespace {

TEST(GammaFunction, AgreesWithTheLibrary) {
  for (const double x : {1.0 / 3, 0.5, -0.5, -1.5, 5.0, 1.0, 12.25, -7.3, 100.5}) {
    double value = 0;
    GammaFunction(x, value);
    EXPECT_NEAR(value / std::tgamma(x), 1, 1e-13) << x;
  }
  double pole = 0;
  for (const double x : {0.0, -1.0, -5.0}) {
    GammaFunction(x, pole);
    EXPECT_EQ(pole, 1e100) << x;
  }
}

TEST(NormalSamples, AreSymmetricSlicesOfUnitDeviation) {
  EXPECT_EQ(NormalSamples(5), (std::vector<float>{0, 0, 0.59881F, 1.46336F, -0.59881F, -1.46336F}));
  EXPECT_TRUE(NormalSamples(7).empty());
  for (const int count : {10, 20, 50}) {
    const auto samples = NormalSamples(count);
    ASSERT_EQ(samples.size(), static_cast<std::size_t>(count) + 1);
    double sum = 0, squares = 0;
    for (std::size_t i = 1; i < samples.size(); ++i) {
      sum += double{samples[i]};
      squares += double{samples[i]} * double{samples[i]};
    }
    EXPECT_NEAR(sum, 0, 1e-6);
    EXPECT_NEAR(squares / count, 1, 0.07) << count;
  }
}

struct ModelCase {
  const char* name;
  SizeModel model;
  double tolerance;
};

std::vector<ModelCase> Models() {
  return {{"cloud", CumulusCloud, 1e-3},
          {"haze", Haze, 2e-3},
          {"gamma", *GammaOfShape(2, 10), 3e-3},
          {"maritime", AerosolModes("Aerosol m0"), 0.02},
          {"rural", AerosolModes("Aerosol m6"), 0.02},
          {"modes", std::vector<SizeMode>{{10, 1.2, 1}, {5, 1.1, 0.5}}, 2e-3}};
}

// Cut by number the large particles were missing, which scatter most: a quarter of Csca of the rural aerosol.
TEST(SizeModels, RangesHoldAllButOneInTenThousandOfTheArea) {
  for (const auto& c : Models()) {
    const auto samples = SampleModel(c.model, 20, SizeSteps::Ratio);
    EXPECT_NEAR(AreaBelow(c.model, samples.lowest), 5e-5, 1e-7) << c.name;
    EXPECT_NEAR(AreaBelow(c.model, samples.highest), 1 - 5e-5, 1e-7) << c.name;
    // The share of r^2 by summing classes, from far below the range to far above it.
    double all = 0, inside = 0, number = 0, outside = 0;
    constexpr double step = 1.002;
    for (double r = samples.lowest * 1e-5; r < samples.highest * 1e4; r *= step) {
      const double particles = NumberDensity(c.model, r) * r;
      const bool within = r >= double{samples.lowest} && r < double{samples.highest};
      all += particles * r * r;
      number += particles;
      if (within) inside += particles * r * r;
      if (!within) outside += particles;
    }
    EXPECT_NEAR(inside / all, 1 - 1e-4, 2e-5) << c.name;
    EXPECT_NEAR(samples.outside, outside / number, 2e-3) << c.name;
    EXPECT_NEAR(std::accumulate(samples.weight.begin(), samples.weight.end(), samples.outside), 1, 1e-12) << c.name;
  }
  // A mode wider than any dust must not overflow.
  const auto wide = SampleModel(std::vector<SizeMode>{{1, 1e9, 1}}, 20, SizeSteps::Ratio);
  EXPECT_NEAR(std::accumulate(wide.weight.begin(), wide.weight.end(), 0.0), 1, 1e-12);
}

// Means are over all particles, also those too small to be sampled.
TEST(SizeModels, FiftySamplesOfAnAerosolScatterAsFifteenHundredClasses) {
  struct Mean {
    double scattered = 0, extinguished = 0;
  };
  const auto add = [](Mean& mean, double r, double share) {
    SilentMonitor silent;
    const auto q = SolveMiePoint({2 * std::numbers::pi * r / 0.65, 1.45, 0.005, 0, false, false}, silent).efficiencies;
    mean.scattered += share * q.Qsca * r * r;
    mean.extinguished += share * q.Qext * r * r;
  };
  for (const char* name : {"Aerosol m0", "Aerosol m6"}) {
    const SizeModel model = AerosolModes(name);
    Mean classes, samples;
    const double ratio = std::pow(200 / 1e-5, 1 / 1500.0);
    double number = 0;
    std::vector<double> particles;
    for (int i = 0; i < 1500; ++i) {
      const double r = 1e-5 * std::pow(ratio, i + 0.5);
      particles.push_back(NumberDensity(model, r) * r);
      number += particles.back();
    }
    for (int i = 0; i < 1500; ++i)
      add(classes, 1e-5 * std::pow(ratio, i + 0.5), particles[static_cast<std::size_t>(i)] / number);
    const auto fifty = SampleModel(model, 50, SizeSteps::Ratio);
    for (std::size_t i = 1; i < fifty.radius.size(); ++i) add(samples, fifty.radius[i], fifty.weight[i]);
    EXPECT_NEAR(samples.scattered / classes.scattered, 1, 0.005) << name;
    EXPECT_NEAR(samples.extinguished / classes.extinguished, 1, 0.005) << name;
  }
}

TEST(SizeModels, FiftySamplesMeetAFineIntegration) {
  for (const auto& c : Models())
    for (const auto steps : {SizeSteps::Ratio, SizeSteps::Equal}) {
      const auto few = SampleModel(c.model, 50, steps), many = SampleModel(c.model, 20000, SizeSteps::Ratio);
      const auto mean = [](const SizeSamples& s, double power) {
        double sum = 0;
        for (std::size_t i = 1; i < s.radius.size(); ++i) sum += s.weight[i] * std::pow(s.radius[i], power);
        return sum;
      };
      // Wide distributions need equal ratios.
      const bool wide = few.highest > 100 * few.lowest;
      if (wide && steps == SizeSteps::Equal) continue;
      EXPECT_NEAR(mean(few, 1) / mean(many, 1), 1, c.tolerance) << c.name;
      EXPECT_NEAR(mean(few, 2) / mean(many, 2), 1, 2 * c.tolerance) << c.name;
    }
}

TEST(SizeModels, HaveTheirPublishedMoments) {
  const auto effective = [](const SizeModel& model) {
    const auto s = SampleModel(model, 20000, SizeSteps::Ratio);
    double two = 0, three = 0;
    for (std::size_t i = 1; i < s.radius.size(); ++i) {
      two += s.weight[i] * std::pow(s.radius[i], 2);
      three += s.weight[i] * std::pow(s.radius[i], 3);
    }
    return three / two;
  };
  EXPECT_NEAR(effective(CumulusCloud), 6, 0.01);
  EXPECT_NEAR(effective(Haze), 0.9, 0.03);  // its tail is cut off
  EXPECT_NEAR(effective(*GammaOfShape(3, 7)), 7, 0.02);
  EXPECT_FALSE(GammaOfShape(0, 7));
  EXPECT_FALSE(AreUsable({{1, 1, 1}}));
  EXPECT_FALSE(AreUsable({{1, 2, 0}}));
}

class SizeDistribution : public MaterialSession {
 protected:
  void Disperse(const std::string& name, const std::string& samples, const std::string& deviation) {
    Do("click optDisp");
    Now().form1.cboDistrib.Text = name;
    Now().form1.cboN.Text = samples;
    Now().form1.cboSD.Text = deviation;
  }
};

/// Qext of a sphere of water at 0.65 um.
double ExtinctionOfWater(double radius, double n) {
  MieRequest request;
  request.x = 2 * 3.14159265358979324 * radius / 0.65;
  request.mRe = n;
  request.NANG = 2;
  request.window = {1, 1};
  SilentMonitor silent;
  return SolveMie(request, silent).efficiencies.Qext;
}

TEST_F(SizeDistribution, TheMeanOfALogNormalCloudMeetsItsIntegral) {
  Do("click mnuRI_Vacuum2\nclick mnuRI_Perm1\nclick optDisp\nset txtRadius 2");
  Disperse("Log-normal", "50", "20");
  Do("click cmdNewPlot");
  ASSERT_TRUE(Shown().empty()) << LastText();
  const double n = State().RefractReal, width = std::log(1.2);
  double sum = 0, weights = 0;
  for (int i = -2000; i <= 2000; ++i) {
    const double z = i * 0.0025, weight = std::exp(-z * z / 2);
    sum += weight * ExtinctionOfWater(2 * std::exp(z * width), n);
    weights += weight;
  }
  EXPECT_NEAR(State().Qext / (sum / weights), 1, 0.01);
  EXPECT_EQ(State().NumberSamples, 50);
  EXPECT_EQ(State().Radius, 2);
  EXPECT_EQ(State().Waves.Terms(), 0);
}

TEST_F(SizeDistribution, NoDeviationIsOneSphere) {
  Do("click cmdNewPlot");
  const auto one = State().Iperp;
  const double Qext = State().Qext, g = State().Gsca;
  Disperse("Log-normal", "20", "0");
  Do("click cmdNewPlot");
  ASSERT_EQ(State().Iperp.size(), one.size());
  for (std::size_t j = 1; j + 101 < one.size(); ++j) ASSERT_NEAR(State().Iperp[j] / one[j], 1, 1e-12) << j;
  EXPECT_NEAR(State().Qext, Qext, 1e-12);
  EXPECT_NEAR(State().Gsca, g, 1e-12);
}

TEST_F(SizeDistribution, EveryDistributionRuns) {
  ASSERT_TRUE(ReadSizeDist(Now(), exampleFolder + "fog_classes.dis"));
  State().RestoringSettings = 1;
  for (const char* name : {"Normal", "Log-normal", "Multimodal", "Gamma", "Cumulus cloud", "Haze", "Special",
                           "Aerosol m0", "Aerosol m6"}) {
    Disperse(name, "10", "5");
    DistDisplay(Now());
    Do("click cmdNewPlot");
    EXPECT_TRUE(Shown().empty()) << name << LastText();
    EXPECT_GT(State().Qext, 0) << name;
    EXPECT_EQ(State().NumberSamples, std::string(name) == "Special" ? 9 : 10) << name;
  }
}

TEST_F(SizeDistribution, MatrixOfACloudIsMadeOfMeansOfProducts) {
  Disperse("Log-normal", "5", "20");
  const auto check = [&](std::size_t i, double angle, double lambda, double mRe, double mIm) {
    double S11 = 0, S12 = 0, S33 = 0, S34 = 0;
    SilentMonitor silent;
    const auto sizes = NormalSamples(5);
    for (std::size_t k = 1; k < sizes.size(); ++k) {
      const double radius = 10 * std::pow(1.2, double{sizes[k]});
      const double x = 2 * 3.14159265358979324 * radius / lambda;
      const MiePoint p = SolveMiePoint({x, mRe, mIm, angle * 3.14159265358979324 / 180, false, false}, silent);
      const std::complex<double> S1(p.S1.re, p.S1.im), S2(p.S2.re, p.S2.im);
      S11 += (std::norm(S1) + std::norm(S2)) / 2;
      S12 += (std::norm(S2) - std::norm(S1)) / 2;
      S33 += (S2 * std::conj(S1)).real();
      S34 += (S2 * std::conj(S1)).imag();
    }
    EXPECT_NEAR(State().Iperp[i] * 5 / S11, 1, 1e-6);
    EXPECT_NEAR(State().Extra1[i], S12 / S11, 1e-6);
    EXPECT_NEAR(State().Extra2[i], S33 / S11, 1e-6);
    EXPECT_NEAR(State().Extra3[i], S34 / S11, 1e-6);
    EXPECT_LT(std::hypot(State().Extra1[i], State().Extra2[i], State().Extra3[i]), 0.999) << "clouds depolarise";
  };
  Do("choose cboGraph Scattering matrix\nclick cmdNewPlot");
  ASSERT_TRUE(Shown().empty()) << LastText();
  for (const int row : {301, 901, 1401})
    check(static_cast<std::size_t>(row), (row - 1) * 0.1, 0.65, State().RefRelReal, State().RefRelImag);
  const auto ratio = State().Extra3;
  Do("click cmdReplot");
  EXPECT_EQ(State().Extra3[901], ratio[901]);
  Do("choose cboGraph Scattering matrix: wavelength\nset txtRefractReal 1.4\nset txtRefractImag 0\n"
     "set txtXmin 500\nset txtXmax 600\nset cboStep 20\nset txtAngle 90\nclick cmdNewPlot");
  ASSERT_TRUE(Shown().empty()) << LastText();
  check(2, 90, 0.52, 1.4, 0);
  // One sphere is all polarised again.
  Do("click optMono\nclick cmdNewPlot");
  EXPECT_NEAR(std::hypot(State().Extra1[2], State().Extra2[2], State().Extra3[2]), 1, 1e-9);
}

TEST_F(SizeDistribution, PhaseFunctionOfACloudHasTheMeanOne) {
  Disperse("Log-normal", "10", "20");
  Do("choose cboGraph Phase function\nclick cmdNewPlot");
  ASSERT_TRUE(Shown().empty()) << LastText();
  const auto rows = std::span(State().Iunpol).subspan(1, static_cast<std::size_t>(State().NN));
  EXPECT_NEAR(SphereMean(rows), 1, 1e-9);
}

TEST_F(SizeDistribution, ReadingsAndDistributionStandSideBySide) {
  Disperse("Log-normal", "20", "5");
  Do("click cmdNewPlot");
  for (const double width : {19200.0, 15600.0, 13750.0}) {
    RecordingSurface page(width, 12000);
    DrawingSurface* shown = Now().surface;
    Now().surface = &page;
    DrawPage(Now());
    Now().surface = shown;
    const auto overlap = [&](const DrawnOperation& a, const DrawnOperation& b) {
      const auto right = [&](const DrawnOperation& o) { return o.points[0].x + page.TextWidth(o.text); };
      return a.points[0].x < right(b) && b.points[0].x < right(a) &&
             std::abs(a.points[0].y - b.points[0].y) < 0.9 * page.TextHeight("X");
    };
    std::vector<DrawnOperation> texts, bars;
    for (const auto& operation : page.Operations()) {
      const bool inStrip = !operation.points.empty() && operation.points[0].x >= 12000 && operation.points[0].y < 2800;
      if (!inStrip) continue;
      if (operation.kind == DrawnOperation::Kind::Text) texts.push_back(operation);
      if (operation.kind == DrawnOperation::Kind::Line) bars.push_back(operation);
    }
    ASSERT_EQ(texts.size(), width > 14000 ? 10U : 9U) << width << ": readings, axis and, where there is room, caption";
    ASSERT_EQ(bars.size(), 20U + 1U) << width;
    for (std::size_t i = 0; i < texts.size(); ++i) {
      for (std::size_t j = 0; j < i; ++j)
        EXPECT_FALSE(overlap(texts[i], texts[j])) << width << ": " << texts[i].text << " " << texts[j].text;
      for (const auto& bar : bars) {
        const double x = bar.points[0].x, y = std::min(bar.points[0].y, bar.points[1].y);
        const bool beside = x > texts[i].points[0].x + page.TextWidth(texts[i].text) || x < texts[i].points[0].x;
        const bool below = y > texts[i].points[0].y + 0.8 * page.TextHeight("X");
        EXPECT_TRUE(beside || below || i >= 6) << width << ": " << texts[i].text;
      }
    }
  }
}

TEST_F(SizeDistribution, OneAngleMeetsTheSameRowOfAllAngles) {
  Disperse("Gamma", "10", "3");
  Do("click cmdNewPlot");
  const std::size_t row = 601;  // 60 degrees
  const double perpendicular = State().Iperp[row], parallel = State().Ipar[row], g = State().Gsca;
  Do("choose cboGraph Intensity v. wavelength\nset txtAngle 60\nset txtXmin 500\nset txtXmax 800\nset cboStep 50");
  Disperse("Gamma", "10", "3");
  Do("click cmdNewPlot");
  ASSERT_TRUE(Shown().empty()) << LastText();
  ASSERT_EQ(State().XValues[4], 650);
  EXPECT_NEAR(State().Iperp[4] / perpendicular, 1, 1e-10);
  EXPECT_NEAR(State().Ipar[4] / parallel, 1, 1e-10);
  Do("choose cboGraph Asymmetry g v. wavelength\nset txtRadius 10\nclick mnuXStepLog\nset txtXmin 500\nset txtXmax "
     "800\nset cboStep 50");
  Disperse("Gamma", "10", "3");
  Do("click cmdNewPlot");
  EXPECT_NEAR(State().Iperp[4], g, 1e-12) << LastText();
}

TEST_F(SizeDistribution, AStopLeavesTheMeanOfTheSamplesDone) {
  Disperse("Log-normal", "20", "5");
  Do("set txtRadius 500\nset cboStep 0.05\nstop-at 25\nclick cmdNewPlot");
  EXPECT_EQ(LastTitle(), "Calculation in progress!");
  EXPECT_GT(State().S1.Intensity(1), 0);
  EXPECT_GT(State().Qext, 1.5);
  EXPECT_LT(State().Qext, 2.5);
  EXPECT_LT(State().LastResults->last.samples, 20);
}

TEST_F(SizeDistribution, ActualNumbersAreNotDividedOut) {
  Now().forms.dlogDistOption.optActual.Select();
  const std::string table = "Lumivex 300\na\na\na\na\na\na\na\na\na\na\na\na\num\nUniform\n2\n1, 30\n2, 10\n";
  ASSERT_TRUE(ReadSizeDist(Now(), Write("few.dis", table)));
  UseSizeFile(Now());
  Do("click optDisp\nclick cmdNewPlot");
  const double actual = State().Iperp[1], Qext = State().Qext;
  Now().forms.dlogDistOption.optNormalise.Select();
  Do("click cmdNewPlot");
  EXPECT_NEAR(actual / State().Iperp[1], 40, 1e-9);
  EXPECT_NEAR(Qext / State().Qext, 40, 1e-9);
}

TEST_F(SizeDistribution, NegativeRadiiAreRefused) {
  Disperse("Normal", "50", "50");
  DistDisplay(Now());
  EXPECT_EQ(LastTitle(), "Input error");
  EXPECT_EQ(LastText(), "Reduce standard deviation to avoid negative values of radius");
}

TEST_F(SizeDistribution, InputsFollowTheDistribution) {
  Do("click optDisp");
  EXPECT_EQ(Get("cboN"), "20");
  EXPECT_EQ(Get("Label11"), "Std Dev %");
  Do("choose cboDistrib Gamma");
  EXPECT_EQ(Get("Label11"), "Gamma");
  EXPECT_EQ(Get("cboSD"), "2");
  Do("choose cboDistrib Haze");
  EXPECT_EQ(Get("txtRadius.Visible"), "false");
  EXPECT_EQ(Get("cboSD.Visible"), "false");
  EXPECT_EQ(Get("cboN.Visible"), "true");
  Do("choose cboDistrib Special");  // no file is chosen
  EXPECT_EQ(Get("cboDistrib"), "Log-normal");
  EXPECT_EQ(Get("txtRadius.Visible"), "true");
  State().GraphType = 20;
  Do("choose cboDistrib Special");
  EXPECT_EQ(LastText(), "Special distributions are not available for Lee diagrams");
  EXPECT_EQ(Get("cboDistrib"), "Log-normal");
  State().GraphType = 1;
  Do("click optMono");
  EXPECT_EQ(Get("cboDistrib.Visible"), "false");
  EXPECT_EQ(Get("txtRadius.Visible"), "true");
}

TEST_F(SizeDistribution, TheStripShowsTheSamples) {
  Disperse("Log-normal", "20", "10");
  RecordingSurface strip(19200, 15360);
  Now().surface = &strip;
  DistDisplay(Now());
  int bars = 0;
  double highest = 1e9;
  std::string texts;
  for (const auto& operation : strip.Operations()) {
    const std::string line = operation.Describe();
    texts += line + "\n";
    if (operation.kind != DrawnOperation::Kind::Line || operation.points[0].x != operation.points[1].x) continue;
    bars += operation.points[0].y == 2100;
    highest = std::min(highest, operation.points[1].y);
  }
  EXPECT_EQ(bars, 20) << texts;
  EXPECT_NEAR(highest, 100, 1e-9);
  EXPECT_NE(texts.find("20-point approximation of Log-normal distribution"), std::string::npos);
}

TEST_F(SizeDistribution, ANumberOutsideTheTableKeepsTheSamplesBefore) {
  Do("click optDisp\nset cboN 10\nset cboN 7\nset txtRadius 1\nset cboStep 10\nclick cmdNewPlot");
  EXPECT_EQ(State().NumberSamples, 10);
  EXPECT_EQ(State().LastResults->asked.words.sizes, "Log-normal, Std Dev % 5, 10 samples") << "those that were taken";
  EXPECT_EQ(Get("cboN"), "10") << "and what the list shows";
  Do("set cboSD 3\nchoose cboDistrib Multimodal\nset cboN 10\nclick cmdNewPlot");
  EXPECT_EQ(State().RelativeSD, 0.03);
}

// Words counted as one sample, a million as 32767.
TEST_F(SizeDistribution, ANumberOfSamplesThatIsNoneIsMarkedAndTold) {
  const std::string incorrect = "    The red highlighted data entry is incorrect.    ";
  for (const char* kind : {"Log-normal", "Haze"})
    for (const auto& [samples, text] :
         std::vector<std::pair<std::string, std::string>>{{"abc", incorrect},
                                                          {"", incorrect},
                                                          {"2.5", incorrect},
                                                          {"0", "Value must be positive"},
                                                          {"-5", "Value must be positive"},
                                                          {"1000000", "Value must not be greater than 32767"}}) {
      SCOPED_TRACE(std::string(kind) + " " + samples);
      Do("reset\nclick optDisp\nchoose cboDistrib " + std::string(kind) + "\nset cboStep 10\nset cboN " + samples);
      const auto told = Shown().size();
      const auto before = State().LastResults;
      Do("click cmdNewPlot");
      ASSERT_EQ(Shown().size(), told + 1);
      EXPECT_EQ(LastText(), text);
      EXPECT_EQ(Now().form1.cboN.BackColour, colours::BadInput);
      EXPECT_EQ(State().LastResults, before);
      Do("set cboN 5\nclick cmdNewPlot");
      EXPECT_EQ(Shown().size(), told + 1);
      EXPECT_NE(State().LastResults, before);
      Do("set cboN abc\nclick optMono\nclick cmdNewPlot");
      EXPECT_EQ(Shown().size(), told + 1) << "a hidden input is no reason";
    }
}

}  // namespace
}  // namespace lumivex
