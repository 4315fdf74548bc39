// Lee diagrams and maps as a user meets them: inputs, refusals, runs, results.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>

#include "record/catalogue/graph_texts.h"
#include "record/recording_surface.h"
#include "session/session_fixture.h"

namespace lumivex {
namespace {

class MapSession : public ScriptedSession {
 protected:
  void Choose(const std::string& graph) {
    // Not all of them stand in the list.
    auto& list = runner.Current().form1.cboGraph;
    if (!list.Holds(graph)) list.Items.push_back(graph);
    Do("choose cboGraph " + graph);
  }
  /// Few rows, so that runs take no time.
  void Coarse() { Do("set txtXmin 137\nset txtXmax 139\nset cboStep 0.5"); }
  const Session& TheSession() { return runner.Current(); }
  /// The text of an input, the caption of a label or frame.
  std::string Text(const std::string& name) {
    const Control* control = runner.Current().form1.Find(name);
    if (control == nullptr) return "no " + name;
    const std::string text = control->Value().text;
    return text.empty() ? std::string(control->ShownCaption()) : text;
  }
  const MapFound* Map() {
    const auto& results = TheSession().state.LastResults;
    return results ? results->Find<MapFound>() : nullptr;
  }
  /// The refusal of a New plot, which leaves no results.
  std::string Refusal() {
    runner.World().messages.clear();
    const auto before = TheSession().state.LastResults;
    Do("click cmdNewPlot");
    EXPECT_EQ(TheSession().state.LastResults, before);
    return LastText();
  }
};

TEST_F(MapSession, EachGraphStartsWithItsOwnValues) {
  struct Start {
    const char* graph;
    std::vector<std::pair<const char*, const char*>> values;
  };
  const std::vector<Start> starts = {
      {"Lee diagram: radius",
       {{"txtXmin", "178"},
        {"txtXmax", "180"},
        {"cboStep", "0.05"},
        {"cboWave", "3"},
        {"txtRmax", "20"},
        {"txtRstep", "4"},
        {"cboLee", "Normalised"},
        {"Label7", "Minimum radius"},
        {"Label24", "Maximum radius"},
        {"Frame3", "Drop size"},
        {"Frame9", "Refractive index sphere"},
        {"Label26", "Lee diagram"}}},
      {"Map: angle v. RI of sphere",
       {{"txtXmin", "178"},
        {"cboWave", "1"},
        {"txtF9_fixed", "0"},
        {"txtF9_min", "1.1"},
        {"txtF9_max", "1.5"},
        {"txtF9_step", "4"},
        {"cboLee", "Absolute"},
        {"Label30", "Imaginary part"},
        {"Label32", "Real part"},
        {"lblSphere", "Sphere: Variable refractive index"},
        {"Frame9", "Refractive index sphere"}}},
      {"Map: angle v. RI of medium",
       {{"Frame9", "Refractive index medium"},
        {"lblRI_Medium", "Medium: Variable refractive index"},
        {"lblSphere", "Sphere: Water (IAPWS 5C Complex)"}}},
      {"Lee diagram: refractive index",
       {{"txtXmin", "170"},
        {"cboStep", "0.1"},
        {"txtRmax", "2"},
        {"txtRstep", "10"},
        {"txtAngle", "10"},
        {"Label7", "Minimum RI"},
        {"Label24", "Maximum RI"},
        {"Frame3", "Refractive index sphere"},
        {"lblSphere", "Sphere: Variable refractive index"},
        {"lblRI_Medium", "Medium: Fixed refractive index"}}},
      {"Map: angle v. imaginary RI",
       {{"txtF9_min", "0.001"},
        {"txtF9_max", "0.01"},
        {"txtXmin", "137"},
        {"txtXmax", "145"},
        {"txtAngle", "10"},
        {"Label32", "Imaginary part"},
        {"Label30", "Real part"},
        {"lblRI_Medium", "Medium: Vacuum"}}},
      {"Map: angle v. radius",
       {{"txtF9_min", "5"},
        {"txtF9_max", "20"},
        {"txtLambda", "0.65"},
        {"txtRadius", "10"},
        {"Frame9", "Radius"},
        {"lblSphere", "Sphere: Water (IAPWS 5C Complex)"}}},
      {"Map: angle v. wavelength",
       {{"txtF9_min", "400"}, {"txtF9_max", "700"}, {"txtAngle", "10"}, {"Frame9", "Wavelength (nm)"}}},
      {"Map: Q v. RI & size x",
       {{"txtAngle", "170"},
        {"txtRefractMedium", "1.33"},
        {"Frame9", "Particle"},
        {"Frame2", "Size parameter x"},
        {"Label5", "No. of steps"},
        {"Label2", "Maximum value"},
        {"Label3", "Minimum value"},
        {"Label18", "Colour scale"},
        {"Label26", "Intensity map"},
        {"Label32", "Refractive index (real)"}}},
      {"Map: Q v. Real RI & Imag RI", {{"Frame2", "Refractive index (imag)"}, {"Label30", "Size parameter x"}}},
  };
  for (const Start& start : starts) {
    Choose(start.graph);
    for (const auto& [name, value] : start.values) EXPECT_EQ(Text(name), value) << start.graph << ": " << name;
  }
  // What follows has its own names again.
  Choose("Intensity v. scattering angle");
  for (const auto& [name, value] : {std::pair{"Label7", "Radius (\u00B5m)"},
                                    {"Frame3", "Drop size"},
                                    {"lblSphere", "Sphere: Water (IAPWS 5C Complex)"},
                                    {"lblRI_Medium", "Medium: Vacuum"},
                                    {"Label26", "Lee diagram"},
                                    {"Label18", "Brightness"}})
    EXPECT_EQ(Text(name), value) << name;
}

TEST_F(MapSession, WhatHasNoMeaningIsHidden) {
  struct Shown {
    const char* graph;
    std::vector<const char*> there, hidden;
  };
  const std::vector<Shown> graphs = {
      {"Lee diagram: radius",
       {"txtRadius", "txtRmax", "txtRstep", "cboLee"},
       {"Frame9", "Frame8", "cboPol", "cboYmax"}},
      {"Lee diagram: refractive index", {"txtAngle", "txtRefractImag", "txtRstep"}, {"txtRefractReal", "txtF9_min"}},
      {"Map: angle v. RI of sphere",
       {"txtRadius", "txtF9_fixed", "txtF9_step"},
       {"txtRmax", "txtAngle", "txtRefractReal"}},
      {"Map: angle v. RI of medium", {"txtRadius", "txtRefractReal"}, {"txtF9_fixed", "txtRefractMedium"}},
      {"Map: angle v. wavelength", {"txtAngle", "txtF9_min"}, {"txtLambda", "txtRadius", "txtF9_fixed"}},
      {"Map: angle v. radius", {"txtF9_min", "txtLambda"}, {"txtRadius", "txtAngle", "txtF9_fixed"}},
      {"Map: RI v. size x", {"txtAngle", "txtF9_fixed", "txtRefractMedium"}, {"txtRadius", "OptXLinear"}},
      {"Map: Q v. RI & size x", {"txtF9_fixed"}, {"txtAngle", "txtRadius"}},
      {"Intensity v. scattering angle",
       {"txtRadius", "cboPol", "cboYmax", "Frame8", "OptXLinear"},
       {"Frame9", "cboLee"}},
  };
  for (const Shown& graph : graphs) {
    Choose(graph.graph);
    for (const char* name : graph.there)
      EXPECT_TRUE(runner.Current().form1.Find(name)->Visible) << graph.graph << ": " << name;
    for (const char* name : graph.hidden)
      EXPECT_FALSE(runner.Current().form1.Find(name)->Visible) << graph.graph << ": " << name;
  }
}

TEST_F(MapSession, RangesSurviveAChangeOfSubTypeAndParametersThatAreKept) {
  Choose("Lee diagram: radius");
  Do("set txtXmin 100");
  Choose("Lee diagram: refractive index");
  EXPECT_EQ(Text("txtXmin"), "100");
  EXPECT_EQ(Text("txtRadius"), "1.1") << "a radius is no index";
  Do("click mnuKeepParameters");
  Choose("Map: angle v. radius");
  EXPECT_EQ(Text("txtXmin"), "100");
  EXPECT_EQ(Text("Frame9"), "Radius");
  EXPECT_EQ(Text("lblSphere"), "Sphere: Water (IAPWS 5C Complex)");
}

TEST_F(MapSession, ColumnsAreThoseThatTheInputsName) {
  Choose("Lee diagram: radius");
  Coarse();
  Do("set cboWave RGB\nclick cmdNewPlot");
  ASSERT_NE(Map(), nullptr) << LastText();
  EXPECT_EQ(Map()->done, 5);
  EXPECT_EQ(Map()->rows, 5);
  EXPECT_TRUE(Map()->OfSpectrum());
  EXPECT_EQ(Number("AxisMin"), 10);
  EXPECT_NEAR(Number("AxisRatio"), 1.189207, 1e-6);
  EXPECT_EQ(Number("Radius"), 20);
  EXPECT_EQ(Number("LeeRowStart"), 275);
  EXPECT_EQ(Number("ColumnIndex"), 4);
  EXPECT_EQ(Text("cboLee"), "Normalised");
  EXPECT_FALSE(TheSession().form1.cmdOverPlot.Enabled);
  const auto& s = TheSession().state;
  EXPECT_EQ(s.LeeRedPerp.cells.data(), Map()->panels[0].red.data()) << "nothing is copied";
  EXPECT_GT(s.LeeColumnMaximum.At(4, 0), s.LeeColumnMaximum.At(0, 0));

  Choose("Lee diagram: refractive index");
  const std::string index = Text("txtRefractReal");
  Do("set txtAngle 3\nset txtRefractImag 0.01\nset txtRefractMedium 1.1\nset cboWave 1\nclick cmdNewPlot");
  ASSERT_EQ(Map()->done, 11) << LastText();
  EXPECT_EQ(Number("Radius"), 3);
  EXPECT_EQ(Number("SphereRIReal"), 2);
  EXPECT_EQ(Number("SphereRIImag"), 0.01);
  EXPECT_EQ(Number("MediumRIReal"), 1.1);
  EXPECT_EQ(Text("txtRefractReal"), index) << "the user's own";
  EXPECT_EQ(Text("txtRefractImag"), "0.01");
  EXPECT_EQ(Text("lblSphere"), "Sphere: Variable refractive index");

  Choose("Map: angle v. imaginary RI");
  Coarse();
  Do("set txtF9_min 0\nset txtF9_fixed 1.4\nset txtAngle 4\nclick cmdNewPlot");
  EXPECT_EQ(Number("AxisMin"), 1e-12);
  EXPECT_EQ(Number("SphereRIReal"), 1.4);
  EXPECT_EQ(Number("Radius"), 4);
  EXPECT_EQ(Text("cboLee"), "Absolute");

  Choose("Map: angle v. wavelength");
  Coarse();
  Do("click cmdNewPlot");
  EXPECT_EQ(Number("Lambda"), 0.7);
  Choose("Map: Q v. Real RI & Imag RI");
  Do("set txtF9_step 3\nset cboStep 2\nset txtF9_fixed 7\nclick cmdNewPlot");
  ASSERT_NE(Map(), nullptr) << LastText();
  EXPECT_EQ(Map()->columns, 4);
  EXPECT_EQ(Map()->rows, 3);
  EXPECT_EQ(Map()->panels.size(), 3U);
  EXPECT_NEAR(Number("SizeParameter"), 7, 1e-12);
  EXPECT_EQ(Number("SphereRIImag"), 0.5);
  EXPECT_TRUE(s.LeeRedPerp.cells.empty()) << "efficiencies have no colours";
}

TEST_F(MapSession, EveryMapCanBeDrawn) {
  for (const auto& row : GraphTable()) {
    if (!GraphOf(row.code).InColour()) continue;
    Choose(std::string(row.text));
    const bool cells = GraphOf(row.code).family == Family::EfficiencyMap;
    Do(cells ? "set cboStep 4\nset txtF9_step 4" : "set txtXmin 137\nset txtXmax 139\nset cboStep 0.5");
    Do("click cmdNewPlot");
    ASSERT_NE(Map(), nullptr) << row.text << ": " << LastText();
    EXPECT_EQ(Map()->done, Map()->columns) << row.text;
    EXPECT_EQ(TheSession().state.LastResults->asked.graph.code, row.code) << row.text;
    EXPECT_FALSE(TheSession().page.Empty()) << row.text;
    Do("click cmdReplot");
  }
}

TEST_F(MapSession, BadInputIsRefused) {
  Choose("Lee diagram: radius");
  Coarse();
  struct Bad {
    const char *set, *restore, *text;
  };
  const auto refuse = [&](const std::vector<Bad>& all) {
    for (const Bad& bad : all) {
      Do(bad.set);
      EXPECT_EQ(Refusal(), bad.text) << bad.set;
      Do(bad.restore);
    }
  };
  constexpr const char* tooMany = "Increase the step size or reduce the maximum/minimum range";
  refuse({{"set txtRmax 5", "set txtRmax 20", "Minimum value >= Maximum value"},
          {"set txtRadius 0", "set txtRadius 10", "Value must be positive"},
          {"set txtRstep 0", "set txtRstep 4", "Number of steps must be 1 or more"},
          {"set txtRstep -3", "set txtRstep 4", "Number of steps must be 1 or more"},
          {"set txtRstep 0.5", "set txtRstep 4", "Number of steps not valid"},
          {"set txtRstep 2.7", "set txtRstep 4", "Number of steps not valid"},
          {"set txtRstep 0\nset txtRmax 10", "set txtRstep 4\nset txtRmax 20", "Minimum value >= Maximum value"},
          {"set txtRstep 400.5\nset txtRmax 9", "set txtRstep 4\nset txtRmax 20", "Minimum value >= Maximum value"},
          {"set txtRstep 401", "set txtRstep 4", "Maximum number of steps = 400"},
          {"set txtRstep 1000000", "set txtRstep 4", "Maximum number of steps = 400"},
          {"set txtXmax 136", "set txtXmax 139", "Minimum angle > Maximum angle"},
          {"set txtXmax 137", "set txtXmax 139", "Minimum angle = Maximum angle"},
          {"set txtXmax 181", "set txtXmax 139", "Maximum angle > 180 degrees"},
          {"set cboStep 7", "set cboStep 0.5", "Must be a sub-multiple of 90 degrees"},
          {"set cboWave 2001", "set cboWave 3", "Maximum number of colors = 2000"}});
  Choose("Map: angle v. radius");
  Coarse();
  refuse({{"set txtF9_max 4", "set txtF9_max 20", "Minimum value must be less than maximum value"},
          {"set txtF9_min -1", "set txtF9_min 5", "Value must be positive or zero"},
          {"set txtF9_step 0", "set txtF9_step 4", "Number of steps must be 1 or more"},
          {"set txtF9_step 2.5", "set txtF9_step 4", "Number of steps must be 1 or more"},
          {"set txtF9_step 1000000\nset cboStep 0.01", "set txtF9_step 4", tooMany},
          {"set txtXmin 140", "set txtXmin 137", "Minimum value must be less than maximum value"},
          {"set txtF9_max 1e30", "set txtF9_max 20", "Value must not be greater than 1000000000"}});
  Choose("Map: angle v. wavelength");
  Coarse();
  refuse({{"set cboWave 3", "set cboWave 1", "This graph type is available only for single wavelength calculations"},
          {"set txtF9_max 3000", "set txtF9_max 700",
           "IAPWS values for refractive index of water are valid only for the 200 - 2000 nm band"}});
  Choose("Map: Q v. RI & size x");
  refuse({{"set txtF9_step 1", "set txtF9_step 4", "Number of steps must be greater than 1"},
          {"set cboStep 0.5", "set cboStep 4", "Number of steps must be 1 or more"},
          {"set txtF9_fixed -1", "set txtF9_fixed 0", "Value must be positive or zero"},
          {"set txtF9_step 100000\nset cboStep 100000", "set txtF9_step 4\nset cboStep 4", tooMany},
          {"set txtF9_max 1e5", "set txtF9_max 2", "Value must not be greater than 1000"},
          {"choose cboType Airy", "choose cboType Mie",
           "Selected graph type is available only for Mie and Debye calculations"}});
}

// Both fields of steps turned red, whichever was at fault.
TEST_F(MapSession, TheSideWithMoreCellsIsTheOneAtFault) {
  Choose("Map: Q v. RI & size x");
  const auto& form = TheSession().form1;
  const auto marked = [&](const Control& control) { return control.BackColour == colours::BadInput; };
  Do("set txtF9_step 1000000\nset cboStep 100\nclick cmdNewPlot");
  EXPECT_TRUE(marked(form.txtF9_step) && !marked(form.cboStep));
  Do("set txtF9_step 100\nset cboStep 1000000\nclick cmdNewPlot");
  EXPECT_TRUE(!marked(form.txtF9_step) && marked(form.cboStep));
  EXPECT_EQ(LastText(), "Increase the step size or reduce the maximum/minimum range");
}

// Headings, tables and read-outs said "1E-12" for a 0 that was typed.
TEST_F(MapSession, AnAxisFromZeroReadsZero) {
  Choose("Map: Q v. Imag RI & size x");
  Do("set txtF9_step 4\nset cboStep 2\nset txtXmin 0\nclick cmdNewPlot");
  const Page& page = TheSession().page;
  ASSERT_TRUE(page.map);
  const auto& lines = page.runs.front().parameters;
  for (const char* line : {"Imaginary refractive index: 0 to 0.5 in 4 steps", "Size parameter x: 0 to 20 in 2 steps"})
    EXPECT_EQ(std::ranges::count(lines, line), 1) << line;
  output.str("");
  Do("table");
  EXPECT_NE(output.str().find("Imaginary refractive index,0,0.125,0.25,0.375,0.5\n0,"), std::string::npos)
      << output.str();
  EXPECT_NE(output.str().find("\n10,"), std::string::npos);
  EXPECT_EQ(Number("AxisMin"), 1e-12) << "what is calculated with";
}

// One row filled the height of any range, that of other angles too.
TEST_F(MapSession, ARowIsShownWhereItIs) {
  Choose("Map: angle v. radius");
  Do("set txtXmin 137.1\nset txtXmax 137.2\nset cboStep 0.5\nclick cmdNewPlot");
  ASSERT_NE(Map(), nullptr) << LastText();
  ASSERT_EQ(Map()->rows, 1);
  const auto& map = TheSession().page.map;
  EXPECT_EQ(map->up.samples.count, 1);
  EXPECT_EQ(map->up.samples.At(0), 137);
  EXPECT_FALSE(map->pictures.front().cells->empty());
  Do("set txtXmin 136.6\nset txtXmax 136.8\nclick cmdReplot");
  EXPECT_EQ(map->up.samples.count, 1) << "the row reaches down to 136.75";
  Do("set txtXmin 137.3\nset txtXmax 137.7\nclick cmdReplot");
  EXPECT_EQ(map->up.samples.count, 0) << "and up to 137.25";
  EXPECT_TRUE(map->pictures.front().cells->empty());
}

// What a script sets of another graph's inputs is none of the results'.
TEST_F(MapSession, AHiddenInputLeavesReplotOffered) {
  Choose("Map: angle v. radius");
  Coarse();
  Do("click cmdNewPlot\nset txtRmax 30\nset txtAngle 20");
  EXPECT_EQ(Get("cmdReplot.Enabled"), "true");
  EXPECT_EQ(Get("txtRmax"), "30");
  Do("set txtF9_max 30");
  EXPECT_EQ(Get("cmdReplot.Enabled"), "false");
}

TEST_F(MapSession, OneColumnMoreThanNoneAndFineStepsAreDrawn) {
  Choose("Map: angle v. radius");
  Do("set txtXmin 137\nset txtXmax 137.02\nset cboStep 0.001\nset txtF9_min 1\nset txtF9_max 2\nset txtF9_step 1");
  Do("click cmdNewPlot");
  ASSERT_NE(Map(), nullptr) << LastText();
  EXPECT_EQ(Map()->columns, 2);
  EXPECT_EQ(Text("cboStep"), "0.01") << "finer steps than the cells of any picture";
}

TEST_F(MapSession, ADisperseLeeDiagramIsCalculatedForOneSizeAndFoldedByReplot) {
  Choose("Lee diagram: radius");
  Coarse();
  Do("set txtRstep 40\nclick optDisp\nclick cmdNewPlot");
  EXPECT_EQ(LastTitle(), "Disperse calculations");
  EXPECT_TRUE(TheSession().form1.optMono.Checked);
  ASSERT_NE(Map(), nullptr);
  const auto single = TheSession().state.LastResults;
  runner.World().messages.clear();
  Do("click optDisp\nclick cmdReplot");
  EXPECT_EQ(LastText(), "");
  EXPECT_GT(Number("FoldedShare"), 0);
  EXPECT_LT(Number("FoldedShare"), 0.5);
  EXPECT_EQ(TheSession().state.LastResults, single) << "the columns stay those of single sizes";
  Do("set cboSD 10\nclick cmdReplot");
  EXPECT_EQ(LastText(), "") << "another width needs no calculation";
  Do("click optMono");
  EXPECT_EQ(Number("FoldedShare"), -1) << "single sizes again";
  Do("set txtRstep 4\nclick cmdNewPlot\nclick optDisp\nclick cmdReplot");
  EXPECT_EQ(LastText(), "Increase the Standard Deviation to at least 19%");
  EXPECT_EQ(Number("FoldedShare"), -1) << "what was refused is not drawn";
  Do("click mnuFalseColours");
  EXPECT_EQ(Number("FoldedShare"), -1) << "colours fold nothing in";
}

TEST_F(MapSession, AStopKeepsTheColumnsThatAreDone) {
  Choose("Lee diagram: radius");
  Do("set txtXmin 0\nset txtXmax 180\nset cboStep 0.1\nset txtRadius 5\nset txtRmax 500\nset txtRstep 40\n"
     "set cboWave 10");
  Do("stop-at 20\nclick cmdNewPlot");
  ASSERT_NE(Map(), nullptr);
  EXPECT_GT(Map()->done, 0);
  EXPECT_LT(Map()->done, 41);
  Do("click cmdReplot");
  EXPECT_FALSE(TheSession().page.Empty());
}

// A run too short for any column to be shown on its way left the page of before.
TEST_F(MapSession, AStoppedMapIsOnThePageAtOnce) {
  Choose("Map: Q v. RI & size x");
  Do("set txtF9_step 300\nset cboStep 300\nset txtXmax 300\nstop-at 30\nclick cmdNewPlot");
  const Page& page = TheSession().page;
  ASSERT_TRUE(page.map);
  ASSERT_EQ(page.kind.graph, TheSession().state.LastResults->asked.graph);
  EXPECT_EQ(page.map->values->done, Map()->done);
}

TEST_F(MapSession, ColumnsAppearAsTheyAreDone) {
  Choose("Lee diagram: radius");
  Coarse();
  Do("set txtRstep 30\nset cboWave 5");
  // Other threads may be done before the first looks; alone it looks after each column.
  runner.World().threads = 1;
  // A second passes with every look at the clock.
  double now = 0;
  runner.World().clock = [&] { return now += 1; };
  std::vector<int> seen;
  runner.World().onYield = [&] {
    const auto& map = TheSession().page.map;
    if (map && TheSession().state.Busy != 0 && (seen.empty() || map->values->done > seen.back()))
      seen.push_back(map->values->done);
  };
  Do("click cmdNewPlot");
  ASSERT_GT(seen.size(), 3U);
  EXPECT_GT(seen.front(), 0);
  EXPECT_LT(seen.front(), 31);
  EXPECT_EQ(TheSession().page.map->values->done, 31);
  // A stop before anything is whole leaves the page that was there.
  const auto before = TheSession().page.map->values;
  runner.World().onYield = [&] { runner.Current().state.PlotMode = 4; };
  Do("set txtRadius 12\nclick cmdNewPlot");
  ASSERT_TRUE(TheSession().page.map);
  if (TheSession().state.LastResults->Find<MapFound>()->done == 31) {
    EXPECT_EQ(TheSession().page.map->values, before);
  }
}

TEST_F(MapSession, ColoursAreRenewedWithoutACalculation) {
  Choose("Map: angle v. radius");
  Coarse();
  Do("click cmdNewPlot");
  const auto results = TheSession().state.LastResults;
  const auto cells = [&] { return *TheSession().page.map->pictures.at(0).cells; };
  Do("click mnuFalseColours");
  auto before = cells();
  for (const char* change : {"set cboBright 0.5", "choose cboLee Normalised", "click mnuGammaNone",
                             "click mnuFalseColours", "click mnuSaturated"}) {
    Do(change);
    EXPECT_EQ(TheSession().state.LastResults, results) << change;
    if (std::string(change) != "click mnuSaturated") {
      EXPECT_NE(cells(), before) << change;
    }
    before = cells();
  }
  Do("click mnuUndo\nclick mnuUndo");
  EXPECT_NE(cells(), before) << "false colours are undone";
  Do("click mnuInvWavelength");
  EXPECT_FALSE(TheSession().form1.cmdReplot.Enabled) << "other sums";
}

TEST_F(MapSession, UndoTakesTheGraphAndItsInputsBack) {
  Choose("Lee diagram: refractive index");
  Do("set txtRmax 1.7");
  Choose("Map: Q v. Imag RI & size x");
  Do("click mnuUndo");
  EXPECT_EQ(Text("cboGraph"), "Lee diagram: refractive index");
  EXPECT_EQ(Text("txtRmax"), "1.7");
  EXPECT_EQ(Text("Label7"), "Minimum RI");
  EXPECT_EQ(Text("lblSphere"), "Sphere: Variable refractive index");
  EXPECT_TRUE(TheSession().form1.txtRmax.Visible);
  Do("click mnuRedo");
  EXPECT_EQ(Text("Label30"), "Refractive index (real)");
}

// Where the rows and columns of a map stand, as scripts find them.
TEST_F(MapSession, TheRecordTellsWhereCellsStand) {
  Choose("Lee diagram: radius");
  Coarse();
  Do("set cboWave RGB\nclick cmdNewPlot");
  const auto& s = TheSession().state;
  EXPECT_EQ(s.LeeRowStart, 275) << "137 degrees in steps of 0.5, from row 1 at 0";
  EXPECT_EQ(s.LeeRowEnd, 279);
  EXPECT_EQ(s.LeeRowOffset, 274) << "rows below the first that is stored";
  EXPECT_EQ(s.RowIndex, 4);
  for (const std::size_t column : {0U, 4U}) {
    std::array<double, 3> most{};
    for (std::size_t cell = 5 * column; cell < 5 * (column + 1); ++cell) {
      const auto& first = Map()->panels[0];
      const auto& second = Map()->panels[1];
      for (const auto list : {&MapPanel::red, &MapPanel::green, &MapPanel::blue}) {
        const double a = double{(first.*list)[cell]}, b = double{(second.*list)[cell]};
        most = {std::max(most[0], a), std::max(most[1], b), std::max(most[2], (a + b) / 2)};
      }
    }
    for (std::size_t panel = 0; panel < 3; ++panel)
      EXPECT_EQ(s.LeeColumnMaximum.At(column, panel), most[panel]) << column << " " << panel;
  }
  Choose("Map: RI v. size x");
  Do("set cboStep 4\nset txtF9_step 4\nset txtAngle 170\nclick cmdNewPlot");
  EXPECT_EQ(Number("SelectedAngleIndex"), 17001) << "rows of 0.01 degrees";
  EXPECT_EQ(Number("LastPoint"), 5);
}

// What the strip beside the inputs tells while columns come in.
TEST_F(MapSession, AColumnIsToldWhileItIsCalculated) {
  double now = 0;
  runner.World().clock = [&] { return now += 1; };
  const auto texts = [&](const std::string& lines) {
    std::string all;
    runner.World().onYield = [&] {
      for (const auto& drawn : static_cast<const RecordingSurface&>(*runner.Current().surface).Operations())
        if (drawn.kind == DrawnOperation::Kind::Text) all += drawn.text + "|";
    };
    Do(lines + "\nclick cmdNewPlot");
    runner.World().onYield = {};
    return all;
  };
  Choose("Lee diagram: refractive index");
  Coarse();
  const std::string lee =
      texts("set txtRadius 1.5\nset txtRmax 1.5004\nset txtRstep 40\nset cboWave 1\nset txtAngle 30");
  for (const char* text :
       {"|Step: ", "   Radius = 30|", "|   Wavelength = 650 nm|", "|   Ref Index = 1.5", "|   Imaginary RI = 0|"})
    EXPECT_NE(lee.find(text), std::string::npos) << text;
  const std::string several = texts("set cboWave RGB");
  EXPECT_NE(several.find("|Wavelength #"), std::string::npos);
  Choose("Map: Q v. RI & size x");
  const std::string cells = texts("set txtF9_step 300\nset cboStep 300");
  EXPECT_NE(cells.find("|Step: "), std::string::npos);
  EXPECT_EQ(cells.find("   Radius = "), std::string::npos) << "a column of them has spheres of every size";
}

}  // namespace
}  // namespace lumivex
