#include "materials/light/spectrum_weight.h"
#include "materials/material_fixture.h"
#include "materials/tables/sun_spectra.h"
#include "session/inputs/light/light_sources.h"
#include "session/inputs/light/read_spectrum.h"
#include "session/inputs/light/wavelength_list.h"

namespace lumivex {
namespace {

TEST(SpectrumWeights, MeetTheTellingValues) {
  EXPECT_NEAR(LeeWeight(0.38), 0.46, 1e-12);
  EXPECT_NEAR(LeeWeight(0.3825), (0.46 + 0.385) / 2, 1e-9);
  EXPECT_NEAR(LeeWeight(0.70), 0.617, 1e-9);  // the last point, not beyond it
  EXPECT_EQ(LeeWeight(0.71), 0);
  EXPECT_EQ(LeeWeight(0.379), 0);
  EXPECT_NEAR(WernandWeight(0.35), 0.3346, 1e-12);
  EXPECT_NEAR(WernandWeight(0.40), 0.6269, 1e-9);
  EXPECT_NEAR(WernandWeight(0.48), 1, 0.02);
  EXPECT_NEAR(WernandWeight(0.765), 0.496, 1e-9);
  EXPECT_NEAR(WernandWeight(0.935), 0.186, 1e-9);
  EXPECT_NEAR(WernandWeight(1.00), 0.4753, 1e-9);
  EXPECT_EQ(WernandWeight(1.001), 0);
  EXPECT_EQ(WernandWeight(0.3499), 0);
  EXPECT_NEAR(SunSpaceIrradiance.front(), 464.5, 1e-9);
  EXPECT_NEAR(SunSpaceIrradiance.back(), 988.6, 1e-9);
  EXPECT_NEAR(AirMass(90), 1, 1e-4);
  EXPECT_NEAR(AirMass(0), 40, 1e-9);
  EXPECT_NEAR(ElevationWeight(0.35, 90), 464.5 * 0.8989, 0.1);
  // A low sun is redder.
  EXPECT_LT(ElevationWeight(0.45, 5) / ElevationWeight(0.65, 5), ElevationWeight(0.45, 60) / ElevationWeight(0.65, 60));
}

TEST(SpectrumWeights, ABlackBodyPeaksAtOneAndIsNeverTooCold) {
  for (const double T : {3.0, 300.0, 2856.0, 6000.0, 1e5}) {
    EXPECT_NEAR(BlackBodyWeight(2898 / T, T), 1, 1e-12) << T;
    EXPECT_TRUE(std::isfinite(BlackBodyWeight(0.38, T))) << T;
    EXPECT_LE(BlackBodyWeight(0.38, T), 1.0001) << T;
  }
  const double direct = std::pow(2898.0 / 2856 / 0.5, 5) * std::expm1(14398.261 / 2898) / std::expm1(14398.261 / 1428);
  EXPECT_NEAR(BlackBodyWeight(0.5, 2856), direct, 1e-12);
}

TEST(SpectrumWeights, MeasuredSpectraAreStraightBetweenNeighbours) {
  const std::vector<double> x = {0, 400, 500, 700}, y = {0, 1, 3, 2};
  const MeasuredSpectrum nonUniform{x, y, 3, true}, uniform{x, y, 3, false};
  EXPECT_NEAR(MeasuredWeight(nonUniform, 0.45), 2, 1e-12);
  EXPECT_NEAR(MeasuredWeight(nonUniform, 0.6), 2.5, 1e-12);
  EXPECT_NEAR(MeasuredWeight(uniform, 0.55), 3, 1e-12);  // steps are counted, not looked up
  EXPECT_EQ(MeasuredWeight(uniform, 0.3), 1);
  EXPECT_EQ(MeasuredWeight(nonUniform, 0.8), 2);
}

class Light : public MaterialSession {};

TEST_F(Light, WavelengthsAreTheMiddlesOfEqualSlices) {
  Now().form1.cboWave.Text = "10";
  State().NumberWavelengths = 10;
  lambdaN(Now());
  ASSERT_EQ(State().WavelengthList.size(), 11U);
  EXPECT_NEAR(State().WavelengthList[1], 0.396, 1e-6);
  EXPECT_NEAR(State().WavelengthList[10], 0.684, 1e-6);
  EXPECT_NEAR(State().SpectrumWeight[1], LeeWeight(0.396), 1e-5);
  EXPECT_EQ(State().SpectrumWeight, State().SpectrumWeightInUse);
  EXPECT_EQ(State().WavelengthColours[0].value, 0U);
  Do("dialog dlogSpectrumBand ok txtSpectrumMin=500 txtSpectrumMax=600\nclick mnuSpectrumBand");
  EXPECT_EQ(Get("lblSpectrumBand"), "500 - 600 nm band");
  lambdaN(Now());
  EXPECT_NEAR(State().WavelengthList[10], 0.595, 1e-6);
  Now().form1.cboWave.Text = "RGB";
  State().NumberWavelengths = 3;
  lambdaN(Now());
  EXPECT_EQ(State().WavelengthList, (std::vector<float>{0, 0.65F, 0.51F, 0.44F}));
  EXPECT_EQ(State().WavelengthRed[1], 1);
  State().NumberWavelengths = 5000;
  lambdaN(Now());
  EXPECT_EQ(State().NumberWavelengths, 2001);
}

TEST_F(Light, SourcesAreChosenOneAtATime) {
  Do("dialog dlogWernand ok txtElevation=90\ndialog dlogWernand cancel\nclick mnuSpectrumWernand2");
  EXPECT_EQ(Get("mnuSpectrumLee"), "true");
  EXPECT_EQ(Get("dlogWernand.txtElevation.BackColour"), "16777215") << "cancelled: the old value, no mark";
  Do("dialog dlogWernand ok txtElevation=5\nclick mnuSpectrumWernand2");
  EXPECT_EQ(Get("dlogWernand.txtElevation.BackColour"), "65535");
  EXPECT_EQ(Get("lblSpectrum"), "Sun elevation = 5\u00B0");
  Do("dialog dlogWernand ok txtElevation=89.99\nclick mnuSpectrumWernand2");
  EXPECT_NEAR(SourceWeight(Now(), 0.5), ElevationWeight(0.5, 89.99), 1e-9);
  Do("click mnuSpectrumFlat");
  EXPECT_EQ(SourceWeight(Now(), 0.1), 1);
  Do("dialog dlogBlackBody ok txtBlackBody=3000\nclick mnuBlackBody");
  EXPECT_EQ(Get("mnuSpectrumFlat"), "false");
  EXPECT_NEAR(SourceWeight(Now(), 0.966), 1, 1e-9);
  Do("click mnuSpectrumFile");  // no file is chosen
  EXPECT_EQ(Get("mnuBlackBody"), "true");
  Do("open " + exampleFolder + "white_led.spe\nclick mnuSpectrumFile");
  EXPECT_EQ(Get("lblSpectrum"), "Data file");
  EXPECT_NEAR(SourceWeight(Now(), 0.45), 0.9 + std::exp(-std::pow(120 / 65.0, 2)), 1e-3);
  Do("click mnuSpectrumWernand\nclick mnuSpectrumFile");  // the spectrum held is used again
  EXPECT_EQ(Get("mnuSpectrumFile"), "true");
}

// As one that is dropped: at one wavelength it would be read and change nothing.
TEST_F(Light, ASpectrumReadByTheMenuIsPutToUse) {
  Now().form1.cboWave.Text = "1";
  Do("open " + exampleFolder + "white_led.spe\nclick mnuSpectrumFile");
  EXPECT_EQ(Get("mnuSpectrumFile"), "true");
  EXPECT_EQ(Get("cboWave"), "Med.");
  EXPECT_TRUE(Shown().empty()) << LastText();
}

TEST_F(Light, TheIncidentPowerIsWrittenOnceItIsGood) {
  Do("dialog dlogIncident ok txtIncidentPD=0");
  AskIncidentLight(Now());
  EXPECT_EQ(LastText(), "    The red highlighted data entry is incorrect.    ");
  EXPECT_EQ(State().IncidentDensity, 100);
  Do("dialog dlogIncident ok txtIncidentPD=1361 txtDistance=2.5");
  AskIncidentLight(Now());
  EXPECT_EQ(State().IncidentDensity, 1361);
  EXPECT_EQ(Get("lblWatts"), "Incident intensity = 1361 Watts/sq m");
  EXPECT_EQ(Get("lblDistance"), "Distance = 2.5 m");
}

}  // namespace
}  // namespace lumivex
