#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

#include "pages/read_out.h"
#include "session/session_fixture.h"

namespace lumivex {
namespace {

/// Frequencies of curves, as a user asks for them.
class Fourier : public ScriptedSession {
 protected:
  const Page& Drawn() { return runner.Current().page; }

  /// A curve of the page by its place in the drawing; perpendicular is the last.
  const PageCurve& Perpendicular() { return Drawn().curves.back(); }

  struct Peak {
    double frequency = 0, magnitude = 0;
  };
  /// The highest value between two frequencies.
  Peak Highest(const PageCurve& curve, double low, double high) {
    Peak peak;
    for (std::size_t i = 1; i < curve.x.size(); ++i)
      if (curve.x[i] >= low && curve.x[i] <= high && curve.y[i] > peak.magnitude) peak = {curve.x[i], curve.y[i]};
    return peak;
  }
  void ExpectPeak(double low, double high, double frequency, double magnitude, double bin) {
    const Peak peak = Highest(Perpendicular(), low, high);
    EXPECT_NEAR(peak.frequency, frequency, 0.01 * bin);
    EXPECT_NEAR(peak.magnitude, magnitude, 1e-3 * magnitude);
  }
  void Drop(const std::string& more) {
    Do("set txtLambda 6.283185307179586\nclick mnuRI_Fixed1\nset txtRefractReal 1.333\nset txtRefractImag 0\n" + more);
  }
};

TEST_F(Fourier, RaysRippleAgainstAngle) {
  Drop("set txtRadius 1000\nset txtXmin 30\nset txtXmax 45\nset cboStep 0.05\nclick optLinear\nclick cmdNewPlot");
  Do("dialog dlogFFT ok\nclick mnuFFT");
  EXPECT_EQ(Get("dlogFFT.cboFFT"), "256");
  EXPECT_EQ(Get("dlogFFT.txtThetaMax"), "42.75");
  EXPECT_EQ(Get("mnuFFT"), "true");
  const double bin = 1 / (256 * 0.05);
  ExpectPeak(-10, -0.5, -2.265625, 111500, bin);
  ExpectPeak(0.5, 10, 2.65625, 50900, bin);
  // Turned off, the curves come back with the next Replot.
  Do("click mnuFFT");
  EXPECT_TRUE(Drawn().kind.fourier);
  Do("click cmdReplot");
  EXPECT_FALSE(Drawn().kind.fourier);
  // Intensities ripple at the difference.
  Do("dialog dlogFFT ok optFFTreal=1\nclick mnuFFT");
  EXPECT_EQ(Get("dlogFFT.txtFmin"), "0");
  ExpectPeak(2, 8, 5.0, 3.4583e7, bin);
  EXPECT_NEAR(Perpendicular().y[1], 1.89394e8, 1e3);
  EXPECT_NEAR(Highest(Drawn().curves.front(), 2, 8).magnitude, 2.2175e7, 1e3);
}

TEST_F(Fourier, AlongAnAxisOfSizes) {
  Do("set txtLambda 0.65\n"
     "choose cboGraph Intensity v. radius\nclick mnuRI_Fixed1\nset txtRefractReal 1.333\nset txtRefractImag 0\nset "
     "txtAngle 60\nset txtXmin 100\nset txtXmax 115\nset cboStep 0.05\n"
     "click cmdNewPlot");
  ASSERT_TRUE(Shown().empty()) << LastText();
  Do("dialog dlogFFT ok optFFTcomplex=1 txtFmin=-10\nclick mnuFFT");
  const double bin = 1 / (256 * 0.05);
  ExpectPeak(-10, -0.5, -2.109375, 68736, bin);
  ExpectPeak(0.5, 10, 1.5625, 37915, bin);
  Do("click mnuFFT\ndialog dlogFFT ok optFFTreal=1\nclick mnuFFT");
  ExpectPeak(2, 8, 3.671875, 9.579e6, bin);
}

TEST_F(Fourier, ExtinctionRipplesWithTheLightStraightThrough) {
  Do("set txtLambda 0.65\n"
     "choose cboGraph Qext/Qsca/Qabs v. size x\nclick mnuRI_Fixed1\nset txtRefractReal 1.333\nset txtRefractImag "
     "0\nclick mnuXStepLog\nset txtXmin 20\nset txtXmax 71.2\nset cboStep "
     "0.05\nclick cmdNewPlot");
  ASSERT_TRUE(Shown().empty()) << LastText();
  Do("dialog dlogFFT ok\nclick mnuFFT");
  EXPECT_EQ(Get("dlogFFT.cboFFT"), "1024");
  EXPECT_EQ(Get("dlogFFT.optFFTcomplex"), "false");
  const double bin = 1 / (1024 * 0.05);
  const Peak slow = Highest(Perpendicular(), 0.05, 0.5), ripple = Highest(Perpendicular(), 1, 2);
  EXPECT_NEAR(slow.frequency, 0.09765625, 0.01 * bin);
  EXPECT_NEAR(slow.magnitude, 77.44, 0.01);
  EXPECT_NEAR(ripple.frequency, 1.2109375, 0.01 * bin);
  EXPECT_NEAR(ripple.magnitude, 17.89, 0.01);
  // The read-out knows where rays are expected.
  const PagePanel& panel = Drawn().panels.front();
  const PanelMap map{panel.box, panel.limits, false, panel.logY};
  const double middle = (panel.box.top + panel.box.bottom) / 2;
  // Of the point that is told, wherever the pointer is.
  for (const double beside : {-0.002, 0.002}) {
    const auto reading = ReadAt(Drawn(), map.X(slow.frequency + beside), map.Y(slow.magnitude));
    ASSERT_TRUE(reading->onCurve);
    EXPECT_NEAR(reading->curveX, slow.frequency, 1e-9);
    EXPECT_NE(reading->text.find("rays p = 1 and diffraction"), std::string::npos) << reading->text;
  }
  EXPECT_NE(ReadAt(Drawn(), map.X(3.3), middle)->text.find("no rays"), std::string::npos);
}

TEST_F(Fourier, RaysStandBesideTheirPeaks) {
  Drop(
      "set txtRadius 1000\nset txtXmin 30\nset txtXmax 45\nset cboStep 0.05\nclick cmdNewPlot\ndialog dlogFFT "
      "ok\nclick mnuFFT");
  const auto& rays = Drawn().frequencies.rays;
  const auto ofOrder = [&](const std::string& name) {
    const auto ray = std::ranges::find(rays, name, &PageFrequencies::Ray::name);
    return ray == rays.end() ? -99 : ray->frequency;
  };
  EXPECT_NEAR(ofOrder("p = 0"), 2.6390, 1e-3);
  EXPECT_NEAR(ofOrder("p = 1"), -2.3393, 1e-3);
}

TEST_F(Fourier, TheDialogHoldsItsFields) {
  Do("set txtRadius 2\nclick cmdNewPlot");
  // 1801 rows hold 1024 points; the button is for what there is.
  Do("dialog dlogFFT ok\nclick mnuFFT");
  EXPECT_EQ(Get("dlogFFT.cboFFT"), "1024");
  EXPECT_EQ(Get("dlogFFT.txtFmin"), "-5");
  EXPECT_EQ(Get("dlogFFT.txtFmax"), "5");
  auto& dialog = runner.Current().forms.dlogFFT;
  Do("set dlogFFT.cboFFT 2048");
  EXPECT_EQ(dialog.txtThetaMax.BackColour, colours::BadInput);
  EXPECT_FALSE(dialog.OKButton.Enabled);
  Do("set dlogFFT.cboFFT 1000");
  EXPECT_EQ(dialog.cboFFT.BackColour, colours::BadInput);
  EXPECT_FALSE(dialog.OKButton.Enabled);
  Do("set dlogFFT.cboFFT 512\nset dlogFFT.txtThetaMin 100");
  EXPECT_TRUE(dialog.OKButton.Enabled);
  EXPECT_EQ(Get("dlogFFT.txtThetaMax"), "151.1");
  Do("set dlogFFT.txtThetaMin 140");
  EXPECT_FALSE(dialog.OKButton.Enabled);
  Do("set dlogFFT.txtThetaMin 0\nset dlogFFT.txtFmax 50\nset dlogFFT.txtFmin -7");
  EXPECT_EQ(Get("dlogFFT.txtFmax"), "5");
  EXPECT_EQ(Get("dlogFFT.txtFmin"), "-5");
  Do("click dlogFFT.optFFTreal");
  EXPECT_EQ(Get("dlogFFT.txtFmin"), "0");
  EXPECT_TRUE(dialog.chkSqrt.Enabled);
  Do("set dlogFFT.txtFmin 5");
  EXPECT_FALSE(dialog.OKButton.Enabled);
  for (const char* word : {"abc", "1E400", "", "-64", "0", "64.5"}) {
    Do(std::string("set dlogFFT.cboFFT \"") + word + "\"");
    EXPECT_FALSE(dialog.OKButton.Enabled) << word;
  }
  // A cancelled dialog leaves the entry as it was.
  Do("click mnuFFT\ndialog dlogFFT cancel\nclick mnuFFT");
  EXPECT_EQ(Get("mnuFFT"), "false");
}

TEST_F(Fourier, CurvesWithoutASpectrumAreTold) {
  for (const char* run : {"set cboWave 7", "choose cboGraph Lee diagram: radius\nset txtXmin 137\nset txtXmax 140"}) {
    Do(std::string("reset\nset txtRadius 2\n") + run + "\nclick cmdNewPlot\nclick mnuFFT");
    ASSERT_FALSE(Shown().empty()) << run;
    EXPECT_EQ(LastTitle(), "Option not available") << run;
    EXPECT_EQ(Get("mnuFFT"), "false") << run;
  }
  // Logarithmic steps are known before.
  Do("reset\nchoose cboGraph Qback v. radius");
  EXPECT_EQ(Get("mnuFFT.Enabled"), "false");
  Do("click mnuXStepLog");
  EXPECT_EQ(Get("mnuFFT.Enabled"), "true");
  // Means over a cloud have no phases.
  Do("reset\nclick optDisp\nset cboStep 1\nclick cmdNewPlot\ndialog dlogFFT ok\nclick mnuFFT");
  EXPECT_EQ(Get("dlogFFT.optFFTcomplex"), "false");
  EXPECT_TRUE(Drawn().kind.fourier);
  // A new run is seen as it is.
  Do("click cmdNewPlot");
  EXPECT_EQ(Get("mnuFFT"), "false");
  EXPECT_FALSE(Drawn().kind.fourier);
}

TEST_F(Fourier, WhatNoDialogWouldTakeIsHarmless) {
  // By scripts and files fields change while no dialog looks.
  Do("set txtRadius 2\nclick cmdNewPlot\ndialog dlogFFT ok\nclick mnuFFT");
  Do("set dlogFFT.cboFFT 100\nclick cmdReplot");
  EXPECT_EQ(LastTitle(), "Error!");
  EXPECT_EQ(LastText(), " NumSamples is \n100, which is not a positive integer power of two.");
  EXPECT_TRUE(Drawn().kind.fourier) << "what was drawn stays";
  Do("set dlogFFT.cboFFT 1073741824\nclick cmdReplot");
  EXPECT_FALSE(Drawn().kind.fourier);
  Do("set dlogFFT.cboFFT 1024\nset dlogFFT.txtThetaMin 1e300\nclick cmdReplot");
  EXPECT_TRUE(Drawn().kind.fourier);
  runner.Current().forms.dlogFFT.txtFmax.Text = "1e300";
  runner.Current().forms.dlogFFT.txtFmin.Text = "-1e300";
  Do("click cmdReplot");
  EXPECT_EQ(Perpendicular().x.size(), 1026U);
  // Where the sphere has no index in the middle of the samples there are no rays to name.
  Do("reset\nset txtRadius 2\nclick cmdNewPlot\ndialog dlogFFT ok\nclick mnuFFT");
  EXPECT_FALSE(Drawn().frequencies.rays.empty());
}

TEST_F(Fourier, ASpectrumIsSavedAndReadAsItIsDrawn) {
  const std::string path = testing::TempDir() + "lumivex_fourier.lvx";
  Do("set txtRadius 20\nclick cmdNewPlot\ndialog dlogFFT ok optFFTreal=1\nclick mnuFFT\nsave-results " + path);
  const PageCurve drawn = Perpendicular();
  Do("reset\nload " + path);
  EXPECT_TRUE(Drawn().kind.fourier);
  EXPECT_EQ(Perpendicular().x.All(), drawn.x.All());
  EXPECT_EQ(Perpendicular().y.All(), drawn.y.All());
}

}  // namespace
}  // namespace lumivex
