#include <algorithm>
#include <sstream>

#include "materials/files/catalogue_file.h"
#include "materials/material_fixture.h"
#include "record/text_file.h"
#include "session/inputs/materials/sellmeier_catalogue.h"
#include "session/user_actions.h"
#include "source_folder.h"

namespace lumivex {
namespace {

class SellmeierCatalogue : public MaterialSession {
 protected:
  SellmeierCatalogue() {
    for (const char* name : {"Dispersion.rxi", "DispersionBackup.rxi"})
      std::filesystem::copy(SourceFolder() + "/data/" + name, Path(name));
    State().CatalogueFolder = folder_.string();
    State().CatalogueUserFolder.clear();
    LoadCatalogue(Now());
  }
  const std::vector<std::string>& Items() { return Now().forms.dlogRI_Formula.cboMaterial.Items; }
};

TEST_F(SellmeierCatalogue, ShowsTheCoefficientsAsTheyStandInTheFile) {
  EXPECT_EQ(Items().size(), 39U);
  EXPECT_EQ(Items().front(), "Schott BK7");
  Do("choose dlogRI_Formula.cboMaterial Fused silica");
  EXPECT_EQ(Get("dlogRI_Formula.txtC3"), "97.93400254");
  EXPECT_EQ(Get("dlogRI_Formula.txtLambdaMin.Enabled"), "true");
  Do("choose dlogRI_Formula.cboMaterial Schott BK7");
  EXPECT_EQ(Get("dlogRI_Formula.txtB1"), "1.03961212E+00");
  EXPECT_EQ(Get("dlogRI_Formula.Frame1.Enabled"), "false");
  EXPECT_EQ(Get("dlogRI_Formula.chkIgnore.Enabled"), "false");
  Do("click dlogRI_Formula.cmdRange");
  EXPECT_EQ(Get("dlogRI_Formula.txtLambdaMax.Enabled"), "true");
  EXPECT_TRUE(Shown().empty());
}

TEST_F(SellmeierCatalogue, AddsRemovesAndRestores) {
  Do("choose dlogRI_Formula.cboMaterial Diamond\nset dlogRI_Formula.cboMaterial Ice, \"thin\"\n"
     "set dlogRI_Formula.txtLambdaMin  \nset dlogRI_Formula.txtLambdaMax  \nclick dlogRI_Formula.cmdSave");
  ASSERT_EQ(Items().size(), 40U);
  EXPECT_EQ(Get("dlogRI_Formula.cmdSave.Enabled"), "false");
  LoadCatalogue(Now());
  EXPECT_EQ(Items().back(), "Ice, 'thin'");
  Do("set dlogRI_Formula.cboMaterial Ice\nclick dlogRI_Formula.cmdSave\n"
     "set dlogRI_Formula.cboMaterial Ice,\nset dlogRI_Formula.cboMaterial Ice\nclick dlogRI_Formula.cmdSave");
  EXPECT_EQ(Items().size(), 42U);  // the same name twice
  Do("choose dlogRI_Formula.cboMaterial Diamond\nclick dlogRI_Formula.cmdRemove");
  EXPECT_EQ(Items().size(), 41U);
  EXPECT_EQ(Get("dlogRI_Formula.cboMaterial"), "Schott BK7");
  Do("click dlogRI_Formula.cmdRestore");
  EXPECT_EQ(Items().size(), 39U);
  // The fields show the singles that the file holds: nothing else is lost on the way.
  EXPECT_NEAR(Number("dlogRI_Formula.txtB1"), 1.03961212, 1e-7);
  EXPECT_TRUE(Shown().empty());
}

TEST_F(SellmeierCatalogue, EntriesOfOneNameArePickedByTheirPlace) {
  auto& list = Now().forms.dlogRI_Formula.cboMaterial;
  Do("choose dlogRI_Formula.cboMaterial Diamond\nset dlogRI_Formula.cboMaterial  Twin \n"
     "set dlogRI_Formula.txtB1 2\nclick dlogRI_Formula.cmdSave");
  EXPECT_EQ(list.Text, "Twin");
  Do("set dlogRI_Formula.txtB1 3\nset dlogRI_Formula.cboMaterial x\nset dlogRI_Formula.cboMaterial Twin\n"
     "click dlogRI_Formula.cmdSave");
  list.Picked = 40;
  EXPECT_TRUE(UserChooses(Now(), list, "Twin"));
  EXPECT_EQ(Get("dlogRI_Formula.txtB1"), "3");
  list.Picked = 39;
  EXPECT_TRUE(UserChooses(Now(), list, "Twin"));
  EXPECT_EQ(Get("dlogRI_Formula.txtB1"), "2");
  // Another program took the first material out meanwhile.
  std::ifstream file(Path("Dispersion.rxi"));
  auto entries = ReadCatalogueFile(file).entries;
  entries.erase(entries.begin());
  Write("Dispersion.rxi", CatalogueText(entries));
  Do("click dlogRI_Formula.cmdRemove");
  EXPECT_EQ(std::ranges::count(Items(), "Twin"), 1);
  EXPECT_EQ(Items().size(), 39U);
}

TEST_F(SellmeierCatalogue, AChoiceInADialogLoadsTheCoefficients) {
  Do("dialog dlogRI_Formula ok cboMaterial=Fused silica\nclick mnuRI_Formula");
  EXPECT_EQ(Get("dlogRI_Formula.txtC3"), "97.93400254");
  EXPECT_EQ(Get("lblSphere"), "Sphere: Fused silica");
}

// The boxes of the dialog went into runs that went on under the name of the material before.
TEST_F(SellmeierCatalogue, RunsTakeWhatWasAccepted) {
  Do("dialog dlogRI_Formula ok cboMaterial=Schott BK7\nclick mnuRI_Formula\nset cboStep 10\nclick cmdNewPlot");
  const std::string Qext = Get("Qext"), index = Get("txtRefractReal");
  Do("choose dlogRI_Formula.cboMaterial Diamond\nset txtLambda 0.6\nset txtLambda 0.65\nclick cmdNewPlot");
  EXPECT_EQ(Get("Qext"), Qext);
  EXPECT_EQ(Get("txtRefractReal"), index);
  EXPECT_EQ(Get("lblSphere"), "Sphere: Schott BK7");
  EXPECT_EQ(Get("SellmeierName"), "Schott BK7");
  Do("dialog dlogRI_Formula cancel cboMaterial=Fused silica\nclick mnuRI_Formula\nclick cmdNewPlot");
  EXPECT_EQ(Get("Qext"), Qext);
  Do("dialog dlogRI_Formula ok cboMaterial=Diamond\nclick mnuRI_Formula\nclick cmdNewPlot");
  EXPECT_NE(Get("Qext"), Qext);
  EXPECT_EQ(Get("lblSphere"), "Sphere: Diamond");
  Do("click mnuUndo\nclick cmdNewPlot");
  EXPECT_EQ(Get("Qext"), Qext) << "undo takes the acceptance back";
}

// The dialog that a range beyond the limits shows changed the limits, not the name.
TEST_F(SellmeierCatalogue, WhatIsAcceptedOverAWarningIsUsedWhole) {
  Do("choose cboGraph Qext/Qsca/Qabs v. wavelength\n"
     "dialog dlogRI_Formula ok txtLambdaMin=0.5 txtLambdaMax=0.6\nclick mnuRI_Formula\nset txtXmin 400\nset txtXmax "
     "700\nset cboStep 30\n"
     "dialog dlogRI_Formula ok cboMaterial=Diamond txtLambdaMin=0.3 txtLambdaMax=1\nclick cmdNewPlot");
  EXPECT_EQ(LastTitle(), "Refractive index calculations");
  EXPECT_EQ(Get("lblSphere"), "Sphere: Diamond");
  EXPECT_EQ(State().LastResults->asked.words.sphereName, "Diamond");
}

TEST_F(SellmeierCatalogue, GoesToTheUsersFolderWhereTheProgramsCannotBeWritten) {
  const auto before = std::filesystem::directory_iterator(std::filesystem::current_path());
  const long files = std::distance(before, {});
  State().CatalogueFolder = "/proc";  // takes files from nobody
  Do("set dlogRI_Formula.cboMaterial Mine\nclick dlogRI_Formula.cmdSave");
  EXPECT_NE(LastText().find("/proc/Dispersion.rxi could not be written"), std::string::npos) << LastText();
  State().CatalogueUserFolder = Path("home/share");
  Do("click dlogRI_Formula.cmdSave");
  EXPECT_TRUE(std::filesystem::exists(Path("home/share/Dispersion.rxi")));
  // From then on it is the one in use, wherever the delivered one lies.
  State().CatalogueFolder = folder_.string();
  LoadCatalogue(Now());
  EXPECT_EQ(Items(), std::vector<std::string>{"Mine"});
  Do("click dlogRI_Formula.cmdRestore");
  EXPECT_EQ(Items().size(), 39U);
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(std::filesystem::current_path()), {}), files);
  EXPECT_EQ(FindCatalogueFolder(""), "");
}

TEST_F(SellmeierCatalogue, CanBeEmptied) {
  Write("Dispersion.rxi", CatalogueText({{"Only", {"1", "0", "0", "0", "0", "0", "0", "0"}}}));
  LoadCatalogue(Now());
  Do("choose dlogRI_Formula.cboMaterial Only\nclick dlogRI_Formula.cmdRemove");
  EXPECT_TRUE(Items().empty());
  EXPECT_NE(ReadWholeFile(Path("Dispersion.rxi")).value().find("4000\n 0\n"), std::string::npos);
  EXPECT_TRUE(Shown().empty());
}

TEST_F(SellmeierCatalogue, ADamagedFileIsToldAndLeftAlone) {
  const std::string whole = ReadWholeFile(Path("Dispersion.rxi")).value();
  const auto with = [&](const std::string& from, const std::string& to) {
    std::string text = whole;
    return text.replace(text.find(from), from.size(), to);
  };
  for (const auto& damaged : {with("4000", "3999"), with("Lumivex:", "Lumivox:"), whole.substr(0, whole.size() / 2),
                              with("1.08511833", "one"), with(" 39", " 99999"), with(" 39", " 38"), std::string()}) {
    Write("Dispersion.rxi", damaged);
    for (const char* step : {"click dlogRI_Formula.cmdRemove", "choose dlogRI_Formula.cboMaterial Diamond",
                             "set dlogRI_Formula.cboMaterial New"}) {
      Now().forms.dlogRI_Formula.cmdSave.Enabled = true;
      Do(step);
    }
    Do("click dlogRI_Formula.cmdSave");
    EXPECT_TRUE(LastText().starts_with("Error in data file: " + Path("Dispersion.rxi"))) << LastText();
    EXPECT_EQ(ReadWholeFile(Path("Dispersion.rxi")), damaged);
    Now().forms.dlogRI_Formula.cboMaterial.Text = "Schott BK7";
  }
}

TEST(CatalogueFile, DeliveredCataloguesAreGlasses) {
  std::ifstream file(SourceFolder() + "/data/Dispersion.rxi");
  const Catalogue catalogue = ReadCatalogueFile(file);
  EXPECT_EQ(catalogue.failure, "");
  std::istringstream again(CatalogueText(catalogue.entries));
  const Catalogue rewritten = ReadCatalogueFile(again);
  ASSERT_EQ(rewritten.entries.size(), catalogue.entries.size());
  for (std::size_t i = 0; i < catalogue.entries.size(); ++i)
    for (std::size_t j = 0; j < 8; ++j)
      EXPECT_EQ(static_cast<float>(Val(rewritten.entries[i].numbers[j])),
                static_cast<float>(Val(catalogue.entries[i].numbers[j])));
}

}  // namespace
}  // namespace lumivex
