#include "session/inputs/materials/refractive_index.h"

#include "materials/index/dispersion_formulas.h"
#include "materials/index/index_formulas.h"
#include "materials/index/table_lookup.h"
#include "materials/material_fixture.h"
#include "materials/tables/metals.h"
#include "materials/tables/ray_water.h"
#include "materials/tables/segelstein_water.h"
#include "session/inputs/materials/read_ref_index.h"

namespace lumivex {
namespace {

class RefractiveIndex : public MaterialSession {
 protected:
  void UseFile(int rows) {
    ASSERT_TRUE(ReadRefIndex1(Now(), Write("sphere.rix", IndexFileText(rows))));
    Now().state.RestoringSettings = 1;
    Do("click mnuRI_File1");
    Now().state.RestoringSettings = 0;
  }
  void UseMediumFile(int rows) {
    ASSERT_TRUE(ReadRefIndex2(Now(), Write("medium.rix", IndexFileText(rows))));
    Now().state.RestoringSettings = 1;
    Do("click mnuRI_File2");
    Now().state.RestoringSettings = 0;
  }
};

TEST_F(RefractiveIndex, EveryModelHasItsIndexAndItsNames) {
  struct Case {
    const char* menu;
    double lambda, n, k;
    const char *name, *caption;
  };
  // IAPWS, air and Sellmeier by hand from their formulas, tables from their rows.
  for (const auto& c : {
           Case{"mnuRI_Formula", 0.5876, 1.5168, 0, "Schott BK7", "Sphere: Schott BK7"},
           Case{"mnuRI_Ray", 5, 1.325, 0.0124, "Water", "Sphere: Water (Ray Complex)"},
           Case{"mnuRI_Segelstein", 10, 1.193164, 0.05079, "Water", "Sphere: Water (Segelstein Complex)"},
           Case{"mnuRI_Au", 0.548671, 0.43, 2.455, "Gold", "Sphere: Gold"},
           Case{"mnuRI_Ag", 0.187878, 1.07, 1.212, "Silver", "Sphere: Silver"},
           Case{"mnuRI_Cu", 1.93749, 1.09, 13.43, "Copper", "Sphere: Copper"},
           Case{"mnuRI_KayeLaby", 0.589, 1.3331, 0, "Water", "Sphere: Water (Kaye + Laby)"},
           Case{"mnuRI_IAPWS", 0.65, 1.33257, 1.64e-8, "Water", "Sphere: Water (IAPWS 5C Complex)"},
           Case{"mnuRI_Air1", 0.589, 1.000277, 0, "Air", "Sphere: Air 15C"},
           Case{"mnuRI_Vacuum1", 0.589, 1, 0, "Vacuum", "Sphere: Vacuum"},
           Case{"mnuRI_Perm1", 0.589, 1.33257, 1.76e-8, "Sphere of fixed RI", "Sphere: Fixed dielectric function"},
           Case{"mnuRI_User1", 0.58756, 1.5192, 0, "Glass", "Sphere: Glass"},
       }) {
    Do(std::string("click ") + c.menu);
    ASSERT_TRUE(RefRel(Now(), c.lambda)) << c.menu;
    EXPECT_NEAR(State().RefractReal, c.n, 2e-4) << c.menu;
    EXPECT_NEAR(State().RefractImag, c.k, std::max(1e-9, 1e-6 * c.k)) << c.menu;
    EXPECT_EQ(State().SphereName, c.name) << c.menu;
    EXPECT_EQ(Get("lblSphere"), c.caption) << c.menu;
    EXPECT_EQ(Get(c.menu), "true");
  }
  struct MediumCase {
    const char* menu;
    double n;
    const char *name, *caption;
  };
  for (const auto& c : {MediumCase{"mnuRI_Air2", 1.000277, "air", "Medium: Air 15C"},
                        MediumCase{"mnuRI_IAPWS2", 1.3340, "water", "Medium: Water (IAPWS 5C)"},
                        MediumCase{"mnuRI_User2", 1.5192, "Glass", "Medium: Glass"},
                        MediumCase{"mnuRI_Segelstein2", 1.3330, "water", "Medium: Water (Segelstein Complex)"},
                        MediumCase{"mnuRI_Perm2", 1, "medium of fixed RI", "Medium: Fixed dielectric function"},
                        MediumCase{"mnuRI_Vacuum2", 1, "a vacuum", "Medium: Vacuum"}}) {
    Do(std::string("click ") + c.menu);
    ASSERT_TRUE(RefRel(Now(), 0.58756)) << c.menu;
    EXPECT_NEAR(State().RefractMedium, c.n, 1e-3) << c.menu;
    EXPECT_EQ(State().MediumName, c.name);
    EXPECT_EQ(Get("lblRI_Medium"), c.caption);
  }
}

TEST_F(RefractiveIndex, TheNameFollowsThroughGraphsThatVaryTheIndex) {
  struct Case {
    const char *chosen, *caption, *name;
  };
  for (const auto& c : {Case{"set txtRefractReal 1.5", "Sphere: Fixed refractive index", "Sphere of fixed RI"},
                        Case{"click mnuRI_Fixed1", "Sphere: Fixed refractive index", "Sphere of fixed RI"},
                        Case{"click mnuRI_Au", "Sphere: Gold", "Gold"}}) {
    Do(std::string("reset\nclick mnuKeepParameters\n") + c.chosen + "\nchoose cboGraph Intensity v. refractive index");
    EXPECT_EQ(Get("lblSphere"), "Sphere: Variable refractive index");
    Do("choose cboGraph Intensity v. scattering angle\nclick cmdNewPlot");
    EXPECT_EQ(Get("lblSphere"), c.caption) << c.chosen;
    EXPECT_EQ(Get("SphereName"), c.name) << c.chosen;
  }
}

TEST_F(RefractiveIndex, WavelengthsOutsideATableLeaveTheFieldsAlone) {
  Do("click mnuRI_Au\nset txtLambda 0.6");
  const std::string before = Get("txtRefractReal");
  EXPECT_FALSE(RefRel(Now(), 0.1));
  EXPECT_EQ(LastText(), "Help! RI of sphere undefined");
  EXPECT_EQ(LastTitle(), "Error");
  EXPECT_EQ(Get("txtRefractReal"), before);
  // Copper was never given an n in its row 41.
  Do("click mnuRI_Cu");
  EXPECT_FALSE(RefRel(Now(), 0.756096));
  EXPECT_TRUE(RefRel(Now(), 0.75));
}

TEST_F(RefractiveIndex, RayEndsExactlyWithItsTable) {
  Do("click mnuRI_Ray");
  EXPECT_TRUE(RefRel(Now(), 0.2));
  EXPECT_FLOAT_EQ(static_cast<float>(State().RefractReal), RayN[0]);
  EXPECT_TRUE(RefRel(Now(), 30000));
  EXPECT_EQ(State().RefractReal, RayN[89]);
  EXPECT_EQ(State().RefractImag, RayK[89]);
  Do("click dlogRay.chkRI_Complex\nclick mnuRI_Ray");
  EXPECT_TRUE(RefRel(Now(), 5));
  EXPECT_EQ(State().RefractImag, 0);
  EXPECT_EQ(Get("mnuRI_Ray.Caption"), "Ray");
  EXPECT_EQ(Get("dlogTemp.chkRI_Complex"), "false");
}

TEST_F(RefractiveIndex, TablesAreSearchedInSinglePrecision) {
  // 0.2 um in double precision lies below the first row of the table, which is 0.2F.
  Do("click mnuRI_Ray");
  EXPECT_LT(0.2, static_cast<double>(RayLambda[0]));
  EXPECT_TRUE(RefRel(Now(), 0.2));
}

TEST_F(RefractiveIndex, FileTablesHoldTheirEndsAndEndInRow49) {
  UseFile(60);
  EXPECT_TRUE(RefRel(Now(), 0.5));
  EXPECT_FLOAT_EQ(static_cast<float>(State().RefractReal), 1.01F);
  EXPECT_TRUE(RefRel(Now(), 100));
  EXPECT_FLOAT_EQ(static_cast<float>(State().RefractReal), 1.60F);
  EXPECT_TRUE(RefRel(Now(), 60));
  EXPECT_FLOAT_EQ(static_cast<float>(State().RefractReal), 1.49F);
  EXPECT_FLOAT_EQ(static_cast<float>(State().RefractImag), 0.049F);
  // By cubics, too: the last two intervals are straight.
  Now().form1.mnuInterpolate.Checked = true;
  EXPECT_TRUE(RefRel(Now(), 60));
  EXPECT_FLOAT_EQ(static_cast<float>(State().RefractReal), 1.49F);
  Now().form1.mnuInterpolate.Checked = false;
  UseFile(10);
  EXPECT_FALSE(RefRel(Now(), 10));
  EXPECT_EQ(LastText(), "Subscript out of range");
  EXPECT_TRUE(RefRel(Now(), 9.99));
}

TEST_F(RefractiveIndex, CubicsOfTheMediumAskForTheRowsOfTheSphere) {
  // A bend in row 3 tells a cubic from a straight line.
  std::string bent = IndexFileText(8);
  bent.replace(bent.find("3, 1.03"), 7, "3, 1.50");
  ASSERT_TRUE(ReadRefIndex2(Now(), Write("bent.rix", bent)));
  Now().state.RestoringSettings = 1;
  Do("click mnuRI_File2\nclick mnuRI_Vacuum1");
  Now().form1.mnuInterpolate.Checked = true;
  EXPECT_TRUE(RefRel(Now(), 4.5));
  EXPECT_NEAR(State().RefractMedium, 1.045, 1e-6);  // no sphere file: straight
  ASSERT_TRUE(ReadRefIndex1(Now(), Write("sphere.rix", IndexFileText(20))));
  EXPECT_TRUE(RefRel(Now(), 4.5));
  EXPECT_GT(std::abs(State().RefractMedium - 1.045), 1e-3);
  ASSERT_TRUE(ReadRefIndex1(Now(), Write("sphere.rix", IndexFileText(6))));
  EXPECT_TRUE(RefRel(Now(), 4.5));
  EXPECT_NEAR(State().RefractMedium, 1.045, 1e-6);  // interval 4 needs 7 rows
}

// A table whose n and k are cubics of the wavelength: cubic interpolation gives them back in every interval, the first
// and the last too, and straight lines do not.
TEST(TableLookup, CubicsGiveBackCubics) {
  const auto n = [](double x) { return 1 + 0.3 * x - 0.02 * x * x + 0.004 * x * x * x; };
  const auto k = [](double x) { return 2 - 0.1 * x + 0.05 * x * x - 0.003 * x * x * x; };
  std::vector<float> lambda{0};
  std::vector<IndexRow> rows{{9, 9, 9}};
  for (const double x : {1.0, 1.5, 2.5, 3.0, 4.5, 5.0, 6.0, 7.5}) {
    lambda.push_back(static_cast<float>(x));
    rows.push_back({static_cast<float>(n(x)), static_cast<float>(k(x)), 0});
  }
  const int count = 8;
  for (const double at : {1.1, 1.4, 1.9, 2.7, 3.7, 4.8, 5.3, 6.5, 7.4}) {
    const auto wanted = static_cast<float>(at);
    const auto metal = LookUpMetal(lambda, rows, wanted, TableRule::Cubic);
    ASSERT_TRUE(metal) << at;
    EXPECT_NEAR(metal->n, n(wanted), 1e-6) << at;
    EXPECT_NEAR(metal->k, k(wanted), 1e-6) << at;
    const auto straight = LookUpMetal(lambda, rows, wanted, TableRule::Linear);
    ASSERT_TRUE(straight);
    EXPECT_GT(std::abs(straight->k - k(wanted)), 1e-4) << at;
    const FileTable table{lambda, rows, count};
    // Cubics reach as far as there are rows; with a cubic of the end the last interval has one, the one before has not.
    for (const bool endCubic : {false, true}) {
      const auto file = LookUpFile(table, at, TableRule::Cubic, {count + 2, endCubic}).value;
      ASSERT_TRUE(file) << at;
      const bool cubic = at < 6 || (at > 6 && endCubic);
      if (cubic) {
        EXPECT_NEAR(file->n, n(at), 1e-6) << at;
        EXPECT_NEAR(file->k, k(at), 1e-6) << at;
      } else {
        EXPECT_NEAR(file->k, straight->k, 1e-6) << at;
      }
      // A gate of 7 rows lets cubics be up to interval 4.
      const auto gated = LookUpFile(table, at, TableRule::Cubic, {7, endCubic}).value;
      ASSERT_TRUE(gated) << at;
      EXPECT_NEAR(gated->k, at < 4.5 ? k(at) : straight->k, 1e-6) << at;
    }
  }
}

TEST_F(RefractiveIndex, MetalSearchLetsTheLaterIntervalStand) {
  // At an inner row the cubic of the lower interval uses other rows than that of the upper one; both pass through it.
  const float row = MetalLambda[36];
  const auto found = LookUpMetal(MetalLambda, GoldNK, row, TableRule::Linear);
  ASSERT_TRUE(found);
  EXPECT_EQ(found->n, GoldNK[36][0]);
  EXPECT_EQ(found->k, GoldNK[36][1]);
  EXPECT_FALSE(LookUpMetal(MetalLambda, GoldNK, 1.9375F, TableRule::Cubic));
  for (const int i : {1, 2, 20, 47, 48}) {
    const auto at = static_cast<std::size_t>(i);
    const float between = (MetalLambda[at] + MetalLambda[at + 1]) / 2;
    const auto cubic = LookUpMetal(MetalLambda, SilverNK, between, TableRule::Cubic);
    ASSERT_TRUE(cubic) << i;
    EXPECT_NEAR(cubic->k, (SilverNK[at][1] + SilverNK[at + 1][1]) / 2, 0.35) << i;
  }
}

TEST_F(RefractiveIndex, SegelsteinAsMediumWritesItsEndIntoTheSphere) {
  Do("click mnuRI_Vacuum1\nclick mnuRI_Segelstein2");
  EXPECT_TRUE(RefRel(Now(), 9999000));
  EXPECT_EQ(State().RefractReal, 1);
  EXPECT_TRUE(RefRel(Now(), 1e7));
  EXPECT_EQ(State().RefractReal, SegelsteinN[1260]);
  EXPECT_NEAR(State().RefractMedium, SegelsteinN[1260], 1e-5);
}

TEST_F(RefractiveIndex, LayeredMethodsAndNoWavelengthChangeNothing) {
  Do("click mnuRI_Au\nset txtLambda 0.6");
  const double n = State().RefractReal;
  EXPECT_NEAR(RefRel(Now(), 0).value(), Number("txtRefractReal"), 1e-12);
  State().CalcMethod = Method::CoatedSphere;
  EXPECT_FALSE(RefRel(Now(), 0.5));
  EXPECT_EQ(State().RefractReal, n);
  EXPECT_TRUE(Shown().empty());
}

TEST_F(RefractiveIndex, LayersKeepTheirOddities) {
  auto& s = State();
  EXPECT_NEAR(RIcoat(Now(), 1, 0.65, "Water").value(), 1.33257, 1e-5);
  EXPECT_NEAR(RIcoat(Now(), 1, 0.5876, "Glass").value(), 1.5168, 1e-4);
  s.RefractImag = 7;
  EXPECT_EQ(RIcoat(Now(), 1, 0.5, "Vacuum"), 1.0);
  EXPECT_EQ(s.RefractImag, 7);
  EXPECT_FALSE(RIcoat(Now(), 1, 0.5, "Butter"));
  EXPECT_TRUE(RIcoat(Now(), 1, 0.6, "Gold"));
  EXPECT_EQ(s.RefractImag, 0);  // a straight line does not absorb
  EXPECT_TRUE(RIcoat(Now(), 1, 1.93749, "Gold"));
  EXPECT_FLOAT_EQ(static_cast<float>(s.RefractImag), 13.78F);
  Now().form1.mnuInterpolate.Checked = true;
  EXPECT_TRUE(RIcoat(Now(), 1, 0.6, "Silver"));
  EXPECT_GT(s.RefractImag, 3);
  EXPECT_TRUE(RIcoat(Now(), 1, 0.6, "Copper"));
  EXPECT_EQ(s.RefractImag, 0);
}

TEST_F(RefractiveIndex, SellmeierWarnsOfOneWavelengthOutsideItsRange) {
  Do("dialog dlogRI_Formula ok txtLambdaMin=0.4 txtLambdaMax=0.7\nclick mnuRI_Formula");
  EXPECT_TRUE(Shown().empty());
  EXPECT_TRUE(RefRel(Now(), 0.8));
  EXPECT_EQ(LastTitle(), "Refractive index calculations");
  EXPECT_EQ(LastText(), "Wavelength is beyond the specified limits for\nthe Sellmeier equation for Schott BK7");
  const auto told = Shown().size();
  State().NumberWavelengths = 3;
  EXPECT_TRUE(RefRel(Now(), 0.8));
  State().NumberWavelengths = 1;
  Do("dialog dlogRI_Formula ok chkIgnore=true\nclick mnuRI_Formula");
  EXPECT_TRUE(RefRel(Now(), 0.8));
  EXPECT_EQ(Shown().size(), told);
}

TEST_F(RefractiveIndex, BadDialogsAreTold) {
  Do("dialog dlogRI_User1 ok txtRI_lambda1_2=0.43584\nclick mnuRI_User1");
  EXPECT_FALSE(RefRel(Now(), 0.5));
  ASSERT_GE(Shown().size(), 2U);
  EXPECT_EQ(Shown()[Shown().size() - 2].text, "All x values must be different");
  Do("dialog dlogRI_User2 cancel txtRI_1_1=9\nclick mnuRI_User2");
  EXPECT_EQ(Get("dlogRI_User2.txtRI_1_1"), "1.5301");
  EXPECT_EQ(Get("dlogRI_User2.txtRI_1_4"), "1.515");
  EXPECT_EQ(Get("mnuRI_Vacuum2"), "true");
  Do("dialog dlogTemp2 ok txtTemp=101\ndialog dlogTemp2 cancel\nclick mnuRI_IAPWS2");
  EXPECT_EQ(LastText(), "Maximum temperature = 100");
  EXPECT_EQ(Get("mnuRI_Vacuum2"), "true");
}

TEST(IndexFormulas, AgreeWithPublishedIndices) {
  // nD and refractivity: fused silica (Malitson 1965), air at 15 C (Edlen 1966), small losses of a dielectric.
  const std::vector<double> silica = {0, 0.6961663, 0.0684043, 0.4079426, 0.1162414, 0.8974794, 9.896161};
  EXPECT_NEAR(DispersionFormula(1, silica, 0.5876), 1.45846, 1e-5);
  const std::vector<double> squared = {
      0, 0.6961663, 0.0684043 * 0.0684043, 0.4079426, 0.1162414 * 0.1162414, 0.8974794, 9.896161 * 9.896161};
  EXPECT_NEAR(DispersionFormula(2, squared, 0.5876), 1.45846, 1e-5);
  EXPECT_NEAR(DispersionFormula(5, std::vector<double>{1.5, 0.004, -2}, 0.5), 1.516, 1e-12);
  // Air by the two-term formula of Ciddor (1996): 1.00027717 at 0.5876 um.
  EXPECT_NEAR(DispersionFormula(6, std::vector<double>{0, 0.05792105, 238.0185, 0.00167917, 57.362}, 0.5876),
              1.00027717, 1e-8);
  // The same resonances told with powers: Malitson's first two, beside each other in formulas 1 and 4.
  for (const double lambda : {0.3, 0.7, 2.0})
    EXPECT_NEAR(
        DispersionFormula(4, std::vector<double>{1, 0.6961663, 2, 0.0684043, 2, 0.4079426, 2, 0.1162414, 2}, lambda),
        DispersionFormula(1, std::vector<double>(silica.begin(), silica.begin() + 5), lambda), 1e-12);
  struct Published {
    const char* what;
    int number;
    std::vector<double> coefficients;
    double lambda, n;
  };
  const Published published[] = {
      {"glass BK7, polynomial of its maker",
       3,
       {2.2718929, -1.0108077e-2, 2, 1.0592509e-2, -2, 2.0816965e-4, -4, -7.6472538e-6, -6, 4.9240991e-7, -8},
       0.5876,
       1.51680},
      {"barium borate, ordinary (Eimerl 1987)",
       4,
       {2.7405, 0.0184, 0, 0.0179, 1, 0, 0, 0, 1, -0.0155, 2},
       1.0642,
       1.65513},
      {"silicon (Edwards and Ochoa 1980)", 7, {3.41696, 0.138497, 0.013924, -2.09e-5, 1.48e-7}, 4, 3.42539},
      {"silver bromide (Schroeter 1931)", 8, {0.452505, 0.09939, 0.070537, -0.00150}, 0.6, 2.25131},
      {"urea, extraordinary (Rosker 1985)", 9, {2.51527, 0.0240, 0.0300, 0.020, 1.52, 0.8771}, 1.0642, 1.59017},
  };
  for (const auto& row : published)
    EXPECT_NEAR(DispersionFormula(row.number, row.coefficients, row.lambda), row.n, 1e-5) << row.what;
  EXPECT_NEAR(DispersionFormula(7, std::vector<double>{1, 0, 0, 0, 0, 0.01}, 2), 1.64, 1e-12) << "the sixth power";
  EXPECT_TRUE(std::isnan(DispersionFormula(10, silica, 0.5)));
  EXPECT_NEAR(AirIndex(0.5893, 15), 1.0002765, 1e-6);
  EXPECT_NEAR(AbsorptionOfDielectric(1.775744, 4.6906e-8), 4.6906e-8 / (2 * 1.332570), 1e-14);
  EXPECT_NEAR(IndexOfDielectric(-4, 0.4), 0.0998759, 1e-6);
}

}  // namespace
}  // namespace lumivex
