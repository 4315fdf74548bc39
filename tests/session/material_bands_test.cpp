#include "session/checks/material_bands.h"

#include <gtest/gtest.h>

#include "session/info.h"
#include "session/session_fixture.h"

namespace lumivex {
namespace {

class MaterialBands : public ScriptedSession {
 protected:
  /// A run that must be refused with this text, and leave the old results alone.
  void ExpectRefused(const std::string& text) {
    const std::string Qext = Get("Qext");
    runner.World().messages.clear();
    Do("click cmdNewPlot");
    ASSERT_EQ(Shown().size(), 1U) << text;
    EXPECT_EQ(LastText(), text);
    EXPECT_EQ(Get("Qext"), Qext);
  }
};

struct BandCase {
  const char* material;  ///< script lines, after the graph was chosen
  const char* inside;    ///< limits of the axis (nm) that are still good
  const char* outside;
  const char* text;
};

// Fused silica's table of the examples ends at 6.7 um.
const BandCase axisCases[] = {
    {"click mnuRI_Vacuum1\nclick mnuRI_IAPWS2", "set txtXmin 200\nset txtXmax 2000.00000001", "set txtXmax 2001",
     "IAPWS values for refractive index of water are valid only for the 200 - 2000 nm band"},
    {"click mnuRI_Vacuum1\nclick mnuRI_Segelstein2", "set txtXmin 10\nset txtXmax 400", "set txtXmin 9",
     "Segelstein's values for refractive index of water are valid only for the 10 nm to 10 m band"},
    {"click mnuRI_Ag", "set txtXmin 188\nset txtXmax 1934", "set txtXmax 1935",
     "The values for refractive index of Silver are valid only for the 188 - 1934 nm (0.188 - 1.934 \u00B5m) band"},
};

TEST_F(MaterialBands, HoldOnAxesOfWavelengthForTheMediumToo) {
  for (const auto& c : axisCases) {
    SCOPED_TRACE(c.material);
    Do("reset\nchoose cboGraph Qext/Qsca/Qabs v. wavelength\nset cboStep 20");
    runner.World().messages.clear();
    Do(std::string(c.material) + "\nset txtRadius 0.1\n" + c.inside + "\nclick cmdNewPlot");
    EXPECT_TRUE(Shown().empty()) << LastText();
    Do(c.outside);
    ExpectRefused(c.text);
    EXPECT_EQ(Get("txtXmin.BackColour"), "255");
    EXPECT_EQ(Get("txtXmax.BackColour"), "255");
  }
}

TEST_F(MaterialBands, HoldForTheMediumAtOneWavelength) {
  Do("click mnuRI_Fixed1\nclick mnuRI_Segelstein2\nset txtLambda 0.005");
  ExpectRefused("Segelstein's values are valid only for the 10 nm - 10 m (0.01 \u00B5m - 1E7 \u00B5m) band");
  Do("click mnuRI_IAPWS2\nset txtLambda 3");
  ExpectRefused("IAPWS values for refractive index of water are valid only for the 0.2 - 2 \u00B5m band");
  // The sphere's water gives way to Segelstein's; the medium's does not.
  Do("click mnuRI_IAPWS\nclick cmdNewPlot");
  EXPECT_EQ(Get("lblSphere"), "Sphere: Water (Segelstein Complex)");
  EXPECT_EQ(LastText(), "IAPWS values for refractive index of water are valid only for the 0.2 - 2 \u00B5m band");
}

TEST_F(MaterialBands, HoldForFilesOnAxesAndInSpectra) {
  const std::string text =
      "Values for refractive index of Testite are valid only for the band 700 - 1250 nm (0.7 - 1.25 \u00B5m)";
  const auto useFile = [this] {
    auto& session = runner.Current();
    auto table = std::make_shared<IndexTable>();
    table->name = "Testite";
    table->lambda = {0, 0.7F, 1, 1.25F};
    table->rows = {{}, {1.5F, 0}, {1.5F, 0}, {1.5F, 0}};
    table->count = 3;
    session.state.FileTable1 = table;
    session.state.FileFirst1 = 0.7F;
    session.state.FileLast1 = 1.25F;
    session.state.FileName1 = "Testite";
    session.state.RestoringSettings = 1;
    Do("click mnuRI_File1");
    session.state.RestoringSettings = 0;
  };
  Do("choose cboGraph Intensity v. wavelength");
  useFile();
  Do("set txtXmin 700\nset txtXmax 1249\nset cboStep 9\nclick cmdNewPlot");
  EXPECT_TRUE(Shown().empty()) << "0.7 um is in the table, although 0.7F is below 0.7: " << LastText();
  Do("set txtXmin 690");
  ExpectRefused(text);
  Do("choose cboGraph Intensity v. scattering angle");
  useFile();
  Do("set cboWave 7\nclick mnuSpectrumFlat");
  ExpectRefused(text);
  EXPECT_EQ(Get("lblSpectrumBand.BackColour"), "255");
  Do("dialog dlogSpectrumBand ok txtSpectrumMin=700 txtSpectrumMax=1200\nclick mnuSpectrumBand");
  EXPECT_EQ(Get("lblSpectrumBand.BackColour"), "16777215");
  Do("click cmdNewPlot");
  EXPECT_EQ(Shown().size(), 1U) << LastText();
}

TEST_F(MaterialBands, HoldForTheEquationUpToItsVeryEnds) {
  Do("choose cboGraph Intensity v. wavelength\nset cboStep 10\n"
     "dialog dlogRI_Formula ok txtLambdaMin=0.4 txtLambdaMax=0.7\nclick mnuRI_Formula\nclick cmdNewPlot");
  EXPECT_TRUE(Shown().empty()) << LastText();
  for (const char* beyond : {"set txtXmax 701", "set txtXmax 700\nset txtXmin 399"}) {
    runner.World().messages.clear();
    Do(std::string(beyond) + "\nclick cmdNewPlot");
    ASSERT_EQ(Shown().size(), 1U) << beyond;
    EXPECT_EQ(LastTitle(), "Refractive index calculations");
  }
}

TEST_F(MaterialBands, TheStatusLineOffersTheWayOutOfStartValuesThatAreRefused) {
  for (const char* graph : {"Albedo v. wavelength", "Asymmetry g v. wavelength"}) {
    Do(std::string("choose cboGraph ") + graph);
    EXPECT_EQ(StatusText(runner.Current()),
              "Wavelength scale: Water (IAPWS) is known from 200 to 2000 nm; Segelstein's water from 10 nm to 10 m");
    Do("set txtXmin 200\nset txtXmax 2000\nset cboStep 20");
    EXPECT_TRUE(WayOutOfBand(runner.Current()).empty());
    runner.World().messages.clear();
    Do("click cmdNewPlot");
    EXPECT_TRUE(Shown().empty()) << LastText();
    Do("choose cboGraph Intensity v. scattering angle");
  }
}

}  // namespace
}  // namespace lumivex
