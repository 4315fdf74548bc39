#include <sys/stat.h>

#include "materials/files/index_import.h"
#include "materials/files/spectrum_file.h"
#include "materials/material_fixture.h"
#include "particles/size_file.h"
#include "session/inputs/dropped_file.h"
#include "session/inputs/light/read_spectrum.h"
#include "session/inputs/materials/read_ref_index.h"
#include "session/inputs/materials/refractive_index.h"
#include "session/inputs/sizes/read_size_dist.h"

namespace lumivex {
namespace {

class InputFiles : public MaterialSession {
 protected:
  /// The message of a sphere's index file with this content, and that the table before stands.
  std::string IndexMessage(const std::string& content) {
    EXPECT_FALSE(ReadRefIndex1(Now(), Write("bad.rix", content)));
    EXPECT_EQ(State().FileRows1, 3);
    EXPECT_EQ(State().FileName1, "Testite");
    return LastText();
  }
};

std::string With(std::string text, const std::string& from, const std::string& to) {
  return text.replace(text.find(from), from.size(), to);
}

TEST_F(InputFiles, IndexFilesInEveryUnitAndLineEnd) {
  std::string dos;
  for (const char c : IndexFileText(3, "nm")) dos += c == '\n' ? std::string("\r\n") : std::string(1, c);
  ASSERT_TRUE(ReadRefIndex1(Now(), Write("dos.rix", "\xEF\xBB\xBF" + dos)));
  EXPECT_FLOAT_EQ(State().FileLambda1[3], 0.003F);
  EXPECT_FLOAT_EQ(State().FileData1[2][1], 0.002F);
  EXPECT_EQ(State().FileName1, "Testite");
  ASSERT_TRUE(ReadRefIndex2(Now(), Write("real.rix", IndexFileText(3, "mm", "Real"))));
  EXPECT_FLOAT_EQ(State().FileLambda2[1], 1000.0F);
  EXPECT_EQ(State().FileData2[3][1], 0.0F);
  EXPECT_EQ(State().MediumName, "Testite");
}

TEST_F(InputFiles, DamagedIndexFilesAreToldAndKeepTheTable) {
  ASSERT_TRUE(ReadRefIndex1(Now(), Write("good.rix", IndexFileText(3))));
  const std::string good = IndexFileText(3), opening = "Error in refractive index data file: " + Path("bad.rix");
  EXPECT_EQ(IndexMessage("Lumivex 200\n"),
            opening + "\n\nThe first line of this file should be \"Lumivex 300\"\nbut it reads \"Lumivex 200\"");
  EXPECT_EQ(IndexMessage(With(good, "\num\n", "\ninch\n")),
            opening + "\n\nLine 14 must specify the units of wavelength (m or mm or um or nm)");
  EXPECT_EQ(IndexMessage(With(good, "\nComplex\n", "\n\n")),
            opening + "\n\nLine 15 must indicate whether the data is Complex or Real");
  EXPECT_EQ(IndexMessage(good.substr(0, good.size() - 8)), opening + "\n\nLine 19: the file ends too early");
  EXPECT_EQ(IndexMessage(With(good, "1.02", "1.0x2")), opening + "\n\nLine 18: \"1.0x2\" is not a number");
  EXPECT_EQ(IndexMessage(With(good, "2, 1.02", "-2, 1.02")), opening + "\n\nLine 18: a wavelength must be positive");
  EXPECT_EQ(IndexMessage(With(good, " 3\n", " 10000000\n")),
            opening + "\n\nLine 16: a number from 1 to 32767 is needed");
  EXPECT_EQ(IndexMessage(With(good, "2, 1.02, 0.002", "2, 1.02, 0.002, 7")),
            opening + "\n\nLine 18: more than 3 numbers in a row (decimals need a point)");
  EXPECT_EQ(IndexMessage(With(good, "2, 1.02, 0.002", "2")), opening + "\n\nLine 18: a row has 3 numbers here");
  EXPECT_EQ(IndexMessage(With(good, "3, 1.03, 0.003", "3, 1.03\n\n")),
            opening + "\n\nLine 19: the file ends too early");
  EXPECT_EQ(IndexMessage("\xFF\xFEL" + std::string(1, '\0')),
            opening + "\n\nThis file is encoded in UTF-16: please save it as UTF-8");
  EXPECT_EQ(IndexMessage(std::string("\0L\0u", 4)),
            opening + "\n\nThis file is encoded in UTF-16: please save it as UTF-8");
  EXPECT_EQ(IndexMessage(good + "\n4, 1.04, 0.004\n"),
            opening + "\n\nLine 21: there is more than the rows that the file announces");
  EXPECT_EQ(IndexMessage("Lumi\x01\xFF" + std::string(60, 'v') + "\n"),
            opening + "\n\nThe first line of this file should be \"Lumivex 300\"\nbut it reads \"Lumi??" +
                std::string(34, 'v') + "\"");
  EXPECT_EQ(IndexMessage(""), opening + "\n\nThe first line of this file should be \"Lumivex 300\"\nbut it reads \"\"");
  EXPECT_FALSE(ReadRefIndex1(Now(), folder_.string()));
  EXPECT_NE(LastText().find("This is a folder, not a file"), std::string::npos);
  EXPECT_FALSE(ReadRefIndex2(Now(), Write("bad.rix", "x\n")));
  EXPECT_EQ(LastText(), opening);
  ASSERT_EQ(mkfifo(Path("pipe.rix").c_str(), 0600), 0);
  EXPECT_FALSE(ReadRefIndex1(Now(), Path("pipe.rix")));  // does not wait for a writer
  EXPECT_EQ(State().FileRows1, 3);
}

TEST_F(InputFiles, PathsAreToldReadablyAndWhole) {
  const std::string folders(60, 'v'), path = Path("\x1B[31m" + folders + ".rix");
  EXPECT_FALSE(ReadRefIndex1(Now(), path));
  EXPECT_EQ(LastText(),
            "Error in refractive index data file: " + Path("?[31m" + folders + ".rix") + "\n\nThe file is not there");
  EXPECT_FALSE(ReadSpectrum(Now(), Path("line\nend.spe")));
  EXPECT_NE(LastText().find(Path("line?end.spe")), std::string::npos) << LastText();
}

TEST_F(InputFiles, AMaterialWithoutNameIsCalledSo) {
  ASSERT_TRUE(ReadDroppedFile(Now(), Write("nameless.rix", With(IndexFileText(3), "Testite", ""))));
  EXPECT_EQ(Get("lblSphere"), "Sphere: unnamed material");
  EXPECT_EQ(State().SphereName, "unnamed material");
  Do("dialog dlogRI_User1 ok txtMaterial1=\nclick mnuRI_User1");
  EXPECT_EQ(Get("lblSphere"), "Sphere: unnamed material");
  EXPECT_EQ(State().SphereName, "unnamed material");
  Do("dialog dlogRI_User2 ok txtMaterial2=\nclick mnuRI_User2");
  EXPECT_EQ(Get("lblRI_Medium"), "Medium: unnamed material");
}

TEST_F(InputFiles, SpectraMustAgreeWithTheirHeader) {
  ASSERT_TRUE(ReadSpectrum(Now(), exampleFolder + "white_led.spe"));
  EXPECT_EQ(State().SpectrumFilePoints, 33);
  const std::string good = "Lumivex\n\nuniform\n\n380, 400, 10\n\n\n380.0, 1\n390, 2\n400 3\n";
  const auto message = [&](const std::string& content) {
    EXPECT_FALSE(ReadSpectrum(Now(), Write("bad.spe", content)));
    EXPECT_EQ(State().SpectrumFilePoints, 33);
    return LastText();
  };
  EXPECT_EQ(message(With(good, "Lumivex", "lumivex")), "Error in spectrum data file");
  EXPECT_EQ(message(With(good, "380.0", "380.0001")), "Error in spectrum data file: minimum wavelength incorrect");
  EXPECT_EQ(message(With(good, "\n400", "\n401")), "Error in spectrum data file: maximum wavelength incorrect");
  EXPECT_NE(message(With(good, "390, 2", "390, two")).find("Line 9: \"two\" is not a number"), std::string::npos);
  EXPECT_NE(message(With(good, ", 10", ", 0")).find("Line 5:"), std::string::npos);
  EXPECT_NE(message(With(good, ", 10", ", 1e-9")).find("Line 5:"), std::string::npos);
  EXPECT_NE(message(good.substr(0, good.size() - 6)).find("the file ends too early"), std::string::npos);
  EXPECT_NE(message(With(good, "390, 2", "390, 2,5")).find("Line 9: more than 2 numbers"), std::string::npos);
  EXPECT_NE(message(good + "410 3\n").find("Line 11: there is more"), std::string::npos);
  EXPECT_TRUE(ReadSpectrum(Now(), Write("good.spe", With(good, "380.0", "380.000001"))));  // the same single
  EXPECT_TRUE(ReadSpectrum(Now(), exampleFolder + "white_led.spe"));
  // The steps of a uniform file are counted: a row may be rounded, not stand elsewhere.
  EXPECT_NE(message(With(good, "390, 2", "385, 2")).find("Line 9: this wavelength is not"), std::string::npos);
  EXPECT_TRUE(ReadSpectrum(Now(), Write("good.spe", With(good, "390, 2", "391, 2"))));
  EXPECT_TRUE(ReadSpectrum(Now(), exampleFolder + "white_led.spe"));
  const std::string lines = "Lumivex\n\nnon-uniform\n\n380, 400, 4\n\n\n380, 1\n384, 2\n385, 3\n400, 4\n";
  EXPECT_NE(message(With(lines, "385, 3", "383, 3")).find("Line 10: the wavelengths must ascend"), std::string::npos);
  EXPECT_NE(message(With(lines, "384, 2", "384, -2")).find("Line 9: an intensity must not be"), std::string::npos);
  EXPECT_TRUE(ReadSpectrum(Now(), Write("good.spe", lines)));
  EXPECT_TRUE(ReadSpectrum(Now(), exampleFolder + "mercury_lamp.spe"));
  EXPECT_EQ(State().SpectrumFileNonUniform, 1);
}

TEST_F(InputFiles, SizeFilesKeepTheirPeculiarities) {
  const std::string free = "\na\na\na\na\na\na\na\na\na\na\na\na\n";
  const auto read = [](const std::string& text, SizeFileOptions options = {false, false}) {
    std::istringstream stream(text);
    return ReadSizeFile(stream, options);
  };
  // A uniform table is in micrometres whatever its unit says; a diameter halves size and number.
  SizeFile file = read("Lumivex 301" + free + "diameter\nnm\nUniform\n2\n4, 10\n6, 30\n");
  EXPECT_EQ(file.fault, SizeFileFault::None);
  EXPECT_EQ(file.size[2], 3.0F);
  EXPECT_EQ(file.number[2], 15.0F);
  EXPECT_EQ(file.lowest, 1.5F);
  EXPECT_EQ(file.highest, 3.5F);
  // Classes follow the unit; a metre is 1e9.
  file = read("Lumivex 300" + free + "m\nNon uniform\n1\n1e-9 3e-9 5\n");
  EXPECT_FLOAT_EQ(file.middle[1], 2.0F);
  EXPECT_EQ(file.number[1], 5.0F);
  file = read("Lumivex 301" + free + "diameter\num\nNon uniform\n2\n0 4 5\n4 8 15\n", {true, true});
  EXPECT_EQ(file.middle[2], 3.0F);
  EXPECT_FLOAT_EQ(file.number[2], 0.75F);
  EXPECT_NEAR(file.total, 1, 1e-6);
  // Neither word: told, and read on.
  file = read("Lumivex 301" + free + "girth\num\nUniform\n1\n4, 10\n");
  EXPECT_TRUE(file.sizeWordMissing);
  EXPECT_EQ(file.size[1], 4.0F);
  for (const char* bad : {"um\nuniform\n1\n1 1\n", "um\n\n1\n1 1\n"})
    EXPECT_EQ(read("Lumivex 300" + free + bad).fault, SizeFileFault::Format) << bad;
  for (const char* bad :
       {"um\nUniform\n2\n1 1\n", "um\nUniform\n10000000\n1 1\n", "um\nUniform\n1\n-1 1\n", "um\nUniform\n1\n1 -1\n",
        "um\nUniform\n1\n1 0\n", "um\nUniform\n1\n1e30 1e39\n", "um\nUniform\n0\n", "ell\nUniform\n1\n1 1\n",
        "um\nUniform\n1\nnan 1\n", "um\nUniform\n1\n1 1 1\n", "um\nUniform\n1\n1 1\n2 1\n"})
    EXPECT_EQ(read("Lumivex 300" + free + bad).fault, SizeFileFault::Data) << bad;
}

TEST_F(InputFiles, ACancelledOrDamagedSizeFileKeepsTheTable) {
  ASSERT_TRUE(ReadSizeDist(Now(), exampleFolder + "fog_classes.dis"));
  EXPECT_EQ(State().SizeFileCount, 9);
  EXPECT_FALSE(ReadSizeDist(Now(), Write("bad.dis", "Lumivex 302\n")));
  EXPECT_EQ(LastText(), "Error in radius distribution file: " + Path("bad.dis"));
  EXPECT_EQ(State().SizeFileCount, 9);
  Now().form1.cboDistrib.Text = "Haze";
  EXPECT_FALSE(ReadSizeDist(Now()));
  EXPECT_EQ(Get("cboDistrib"), "Log-normal");
}

TEST_F(InputFiles, TablesOfOtherProgramsAreImported) {
  const auto csv = [](const std::string& text) {
    std::istringstream stream(text);
    return ReadIndexCsv(stream);
  };
  auto result = csv("# made by hand\nwavelength (nm);n;k\n600;1.5;0.1\n400;1.6;0.2\n");
  ASSERT_EQ(result.fault, IndexFileFault::None) << result.detail;
  EXPECT_FLOAT_EQ(result.table.lambda[1], 0.4F);
  EXPECT_FLOAT_EQ(result.table.rows[1][1], 0.2F);
  result = csv("wl,n\r\n0.4,1.5\r\n0.6,1.4\r\n\r\nwl,k\r\n0.3,0.1\r\n0.5,0.3\r\n");
  ASSERT_EQ(result.table.count, 2);
  EXPECT_FLOAT_EQ(result.table.rows[1][1], 0.2F);  // k between its own rows
  EXPECT_EQ(result.table.rows[2][1], 0.0F);
  EXPECT_EQ(csv("0.4 1.5\n0.5 1.4").table.count, 2);
  EXPECT_EQ(csv("0.4 1.5\n-0.5 1.4").detail, "Line 2: a wavelength and its index are needed");
  EXPECT_EQ(csv("nothing\n").fault, IndexFileFault::Data);

  std::istringstream yaml("DATA:\n  - type: tabulated nk\n    data: |\n        0.4 1.5 0.01\n        0.5 1.4 0.02\n");
  EXPECT_FLOAT_EQ(ReadIndexYaml(yaml).table.rows[2][1], 0.02F);
  std::istringstream noRange("DATA:\n  - type: formula 3\n    coefficients: 1 2 3\n");
  EXPECT_EQ(ReadIndexYaml(noRange).fault, IndexFileFault::Data);

  ASSERT_TRUE(ReadDroppedFile(Now(), exampleFolder + "fused_silica.yml"));
  EXPECT_EQ(Get("lblSphere"), "Sphere: fused_silica");
  EXPECT_TRUE(RefRel(Now(), 0.5876));
  EXPECT_NEAR(State().RefractReal, 1.45846, 2e-5);
}

IndexFileResult Csv(const std::string& text) {
  std::istringstream stream(text);
  return ReadIndexCsv(stream);
}

IndexFileResult Yaml(const std::string& text) {
  std::istringstream stream(text);
  return ReadIndexYaml(stream);
}

TEST(ImportedTables, AreReadInTheWritingsOfManyPrograms) {
  // Each gives n = 1.5 and k = 0.25 at half a micrometre.
  const char* const writings[] = {
      "0,5;1,5;0,25\n",
      "0,5\t1,5\t0,25\n",
      "0,5 1,5 0,25\n",
      "\"0,5\",\"1,5\",\"0,25\"\n",
      "0.5, 1.5, 0.25\r",
      "sep=;\nWavelength (nm);n;k\n500;1,5;0,25\n",
      "k,n,lambda/nm\n0.25,1.5,500\n",
      "wavelength [\u00B5m]\tn\tk\tremark\n0.5\t1.5\t0.25\tof columnnm\n",
      "wavelength(angstrom),k (extinction),n\n5000,.25,+1.5\n",
      "# Wavelength (nm)  n  k\n500 1.5 0.25\n",
      "wavelength (mm) n k\n5e-4 1.5 2.5d-1\n",
      "wavelength (A),n,k\n5000,1.5,0.25\n",
      "a,n,k\n0.5,1.5,0.25\n",
      "Wavelength (micrometres in vacuum),refractive index,extinction coefficient\n0.5,1.5,0.25\n",
      "Wavelength (pm), as a title\nwavelength (nm),n,k\n500,1.5,0.25\n",
      "Energy (eV),n,k\n2.479683968,1.5,0.25\n",
      "Wavenumber (cm^-1),n,k\n20000,1.5,0.25\n",
      "Gold, as measured in nm units by nobody\n0.5,1.5,0.25\n\n,,,\n",
      "um,n\r0.5,1.5\rum,k\r0.4,0.2\r0.6,0.3\r",
  };
  for (const char* writing : writings) {
    const auto result = Csv(writing);
    ASSERT_EQ(result.detail, "") << writing;
    ASSERT_EQ(result.table.count, 1) << writing;
    EXPECT_FLOAT_EQ(result.table.lambda[1], 0.5F) << writing;
    EXPECT_FLOAT_EQ(result.table.rows[1][0], 1.5F) << writing;
    EXPECT_FLOAT_EQ(result.table.rows[1][1], 0.25F) << writing;
  }
}

TEST(ImportedTables, NeverLoseARowInSilence) {
  const std::pair<std::string, std::string> damaged[] = {
      {"0.4,1.5x\n0.5,1.4\n", "Line 1: \"1.5x\" is not a number"},
      {"0.4,1.5,0.1\n0.5,,0.1\n", "Line 2: a cell is empty"},
      {"wl,n,k\n0.4,1.5,\n", "Line 2: a cell is empty"},
      {"0.4,1.5\n0.5,1.4,0.1\n", "Line 2: a row has 2 cells here, not 3"},
      {"400,5,1,33\n", "Line 1: more than 3 columns need a heading (wavelength, n, k)"},
      {"0.4,1.5\nx,y\n0.6,1.3\n", "Line 2: \"x\" is not a number"},
      {"0.4,1.5\nremeasured in nm\n", "Line 2: a row has 2 cells here, not 3"},
      {"0.4\n", "Line 1: a wavelength and its index are needed"},
      {"wavelength (THz),n\n600,1.5\n", "Line 2: the unit in the heading \"wavelength (THz)\" is not known"},
      {"# wavelength (pm) n k\n600 1.5 0\n", "Line 2: the unit in the heading \"wavelength (pm)\" is not known"},
      {"Energy,n\n2,1.5\n", "Line 2: the unit in the heading \"Energy\" is not known"},
      {"wl,eps1,eps2\n0.6,2.2,0\n", "Line 2: the heading \"eps1\" is neither n nor k"},
      {"wl;T;R\n0.6;0.9;0.1\n", "Line 2: the heading \"T\" is neither n nor k"},
      {"wavelength (um),n,k\n0.4,1.5,0\nwavelength (nm),n,k\n500,1.52,0\n",
       "Line 3: only a block of k may have a heading here"},
      {"0.4,1.5\n1e31,1.4\n", "Line 2: a wavelength and its index are needed"},
      {"0.4,1.5\n0.5,-1e31\n", "Line 2: a wavelength and its index are needed"},
      {"0.4,1.5,0\n0.5,1.5,1e31\n", "Line 2: a wavelength and its index are needed"},
      {"0.4,1.5\n0,1.4\n", "Line 2: a wavelength and its index are needed"},
      {"0.4,1.5\n0.5,1" + std::string(50, 'x') + "\n", "Line 2: \"1" + std::string(39, 'x') + "\" is not a number"},
  };
  for (const auto& [text, message] : damaged) EXPECT_EQ(Csv(text).detail, message) << text;
  const std::string head = "DATA:\n  - type: tabulated nk\n    data: |\n";
  EXPECT_EQ(Yaml(head + "  0.4 1.5 0.1\n  0.5 1.4\n").detail, "Line 5: a row has 3 numbers here");
  EXPECT_EQ(Yaml(head + "  0.4 1.5 0.1\n  0.5 1.4 O\n").detail, "Line 5: \"0.5 1.4 O\" is not a row of numbers");
  EXPECT_EQ(Yaml("DATA:\n - type: formula 10\n").detail, "Line 2: \"formula 10\" is not a known kind of data");
  EXPECT_EQ(Yaml("DATA:\n - type: formula 1\n   wavelength_range: 0.2 1\n   coefficients: 0 one\n").detail,
            "Line 4: the coefficients of a formula are numbers");
  EXPECT_EQ(Yaml("DATA:\n - type: formula 2\n   wavelength_range: 0.2 6\n   coefficients: -20 1 0.1\n").detail,
            "Line 4: the formula gives no index at 0.2 um");
  for (const char* range : {"1", "0.2 0.5 1", "0.2 x"})
    EXPECT_EQ(Yaml(std::string("DATA:\n - type: formula 1\n   wavelength_range: ") + range).detail,
              "Line 3: a range is two wavelengths")
        << range;
  for (const char* range : {"0 1", "-1 1", "1 0.2", "1 1", "0.2 1e31"})
    EXPECT_EQ(
        Yaml(std::string("DATA:\n - type: formula 1\n   wavelength_range: ") + range + "\n   coefficients: 0 1 0.1\n")
            .detail,
        "Line 4: a formula needs its range of wavelengths")
        << range;
  // Formulas and tables follow each other, and each has its own range.
  const auto both = Yaml(
      "DATA:\n - type: formula 1\n   range: 0.4 0.8\n   coefficients: 0.25 1 0\n - type: tabulated k\n   data: |\n"
      "     0.4 0.1\n     0.8 0.3\n");
  EXPECT_EQ(both.detail, "");
  EXPECT_EQ(both.table.count, 1001);
  EXPECT_FLOAT_EQ(both.table.lambda[1], 0.4F);
  EXPECT_FLOAT_EQ(both.table.lambda[1001], 0.8F);
  EXPECT_FLOAT_EQ(both.table.rows[1][0], 1.5F);
  EXPECT_FLOAT_EQ(both.table.rows[1001][1], 0.3F);
  EXPECT_EQ(Yaml("DATA:\n - type: formula 1\n   range: 0.4 0.8\n   coefficients: 0 1 0\n - type: formula 1\n   "
                 "coefficients: 0 1 0\n")
                .detail,
            "Line 6: a formula needs its range of wavelengths");
  const auto first = Yaml("DATA:\n  - type: tabulated n\n    data: 0.4 1.5\n      0.5 1.4\nSPECS:\n  n: 3\n");
  EXPECT_EQ(first.detail, "");
  EXPECT_EQ(first.table.count, 2);
}

// At exactly their last wavelength these tables were once read in row 49, as those of the format .rix are.
TEST_F(InputFiles, ImportedTablesEndInTheirOwnLastRow) {
  ASSERT_TRUE(ReadDroppedFile(Now(), exampleFolder + "fused_silica.yml"));
  const double end = State().FileLast1;
  RefRel(Now(), end);
  EXPECT_NEAR(State().RefractReal, 1.1596, 1e-3);
  ASSERT_TRUE(ReadRefIndex1(Now(), Write("short.csv", "0.4,1.5\n0.8,1.25\n")));
  EXPECT_TRUE(RefRel(Now(), 0.8));
  EXPECT_EQ(State().RefractReal, 1.25);
  ASSERT_TRUE(ReadRefIndex1(Now(), Write("long.rix", IndexFileText(60))));
  EXPECT_TRUE(RefRel(Now(), 60));
  EXPECT_FLOAT_EQ(static_cast<float>(State().RefractReal), 1.49F);
}

TEST_F(InputFiles, EveryExampleIsRead) {
  for (const auto& entry : std::filesystem::directory_iterator(exampleFolder)) {
    if (!entry.is_regular_file() || entry.path().extension() == ".md") continue;
    EXPECT_TRUE(ReadDroppedFile(Now(), entry.path().string())) << entry.path();
    EXPECT_TRUE(Shown().empty()) << entry.path() << LastText();
  }
  EXPECT_EQ(Get("cboDistrib"), "Special");
  EXPECT_EQ(Get("optDisp"), "true");
  EXPECT_FALSE(ReadDroppedFile(Now(), "holiday.jpg"));
}

TEST_F(InputFiles, TheMenuReadsAFileAndCancelLeavesTheModel) {
  Do("click mnuRI_File1");
  EXPECT_EQ(Get("mnuRI_IAPWS"), "true");
  Do("open " + exampleFolder + "crown_glass.rix\nclick mnuRI_File1");
  EXPECT_EQ(Get("lblSphere"), "Sphere: Crown glass");
  EXPECT_EQ(Get("mnuRI_File1"), "true");
  EXPECT_NEAR(Number("txtRefractReal"), 1.51452, 1e-4);
}

}  // namespace
}  // namespace lumivex
