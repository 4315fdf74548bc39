#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <type_traits>

#include "pages/build_page.h"
#include "pages/curves/curve_path.h"
#include "pages/drawing_reader.h"
#include "pages/free_room.h"
#include "pages/items/readings.h"
#include "pages/page_table.h"
#include "pages/read_out.h"
#include "record/layout/menu_tree.h"
#include "runs/curves.h"
#include "session/inputs/look/read_look.h"
#include "session/page.h"
#include "session/session_fixture.h"
#include "session/window_events.h"

namespace lumivex {
namespace {

/// Every field of the record as text.
struct FieldPrinter {
  std::string text;

  template <class Field>
  void operator()(std::string_view name, const Field& field) {
    text += std::string(name) + "=";
    if constexpr (std::is_arithmetic_v<Field>)
      text += Exact(static_cast<double>(field));
    else if constexpr (std::is_same_v<Field, std::string>)
      text += field;
    else if constexpr (std::is_same_v<Field, std::vector<double>> || std::is_same_v<Field, std::vector<float>>)
      for (const auto element : field) text += Exact(static_cast<double>(element)) + ",";
    text += "\n";
  }
};

class Pages : public ScriptedSession {
 protected:
  Session& Now() { return runner.Current(); }
  MainFormState& State() { return Now().state; }
  const Page& Drawn() { return Now().page; }

  std::vector<double> Values(int kind, std::size_t panel = 0) {
    for (const auto& curve : Drawn().curves)
      if (curve.kind == kind && curve.panel == panel) return curve.y;
    return {};
  }
  std::string Drawing() {
    output.str("");
    Do("drawing");
    return output.str();
  }
  /// Every field of the record and every control, as text.
  std::string Everything() {
    FieldPrinter printer;
    ForEachStateField(std::as_const(State()), printer);
    for (Form* form : Now().forms.All())
      for (const Control* control : form->Controls())
        printer.text += std::string(form->Name()) + "." + std::string(control->Name()) + "=" + control->Value().text +
                        (control->Value().checked ? "1" : "0") + std::string(control->ShownCaption()) +
                        (control->Visible ? "v" : "") + "\n";
    const auto& logo = Now().form1.lblLogo;
    return printer.text + Exact(logo.Left) + " " + Exact(logo.Top);
  }
};

/// Script lines that draw each kind of graph.
const std::vector<std::pair<const char*, const char*>> kinds = {
    {"angles", "set txtRadius 2"},
    {"overplot", "set txtRadius 2\nclick cmdNewPlot\nset txtRadius 3\nclick cmdOverPlot"},
    {"polar", "click mnuPolarPlot"},
    {"phases", "click mnuAmpPhase"},
    {"polarisation", "click mnuIntPol"},
    {"matrix", "choose cboGraph Scattering matrix\nclick cmdNewPlot"},
    {"efficiencies", "choose cboGraph Qext/Qsca/Qabs v. radius\nset cboStep 50\nclick cmdNewPlot"},
    {"two angles", "dialog dlogIncident ok\ndialog dlogTwoAngle ok\nclick mnuTwoAngle\nclick cmdNewPlot"},
    {"volume", "dialog dlogVolume ok\nclick mnuVolumeNumber\nclick cmdNewPlot"},
    {"terms", "choose cboType Debye\nclick mnuDebyeSequence\nclick cmdNewPlot"},
    {"convergence", "click mnuConvergence\nclick cmdNewPlot"},
    {"three wavelengths", "set cboWave 3\nset cboStep 1\nclick cmdNewPlot"},
    {"thirty wavelengths", "set cboWave 30\nset cboStep 1\nclick cmdNewPlot"},
    {"wavefronts", "click mnuHuygens\nclick cmdNewPlot"},
    {"cloud", "click optDisp\nset cboN 5\nset cboStep 1\nclick cmdNewPlot"},
};

TEST_F(Pages, ChangeNothingWhenTheyAreDrawnAndAreReadAndListed) {
  for (const auto& [kind, lines] : kinds) {
    SCOPED_TRACE(kind);
    Do("reset");
    Do(lines);
    ASSERT_TRUE(Shown().empty()) << LastText();
    const std::string before = Everything();
    const std::string drawing = Drawing();
    RecordingSurface other(14000, 9000);
    PageGeometry geometry = Drawn().geometry;
    geometry.surfaceWidth = 14000;
    geometry.surfaceHeight = 9000;
    geometry.box.right = 13000;
    Paint(PlacePage(Drawn(), geometry), other);
    EXPECT_GT(other.Operations().size(), 30U);
    DrawPage(Now());
    EXPECT_EQ(Everything(), before);
    EXPECT_EQ(Drawing(), drawing) << "an export on another surface leaves the page as it was";

    const auto columns = TableOf(Drawn());
    ASSERT_GE(columns.size(), 2U);
    EXPECT_GT(columns[1].cells.size(), 1U);
    const SurfacePoint place = Drawn().phasors ? SurfacePoint{Drawn().phasors->place.x, Drawn().phasors->place.y}
                               : Drawn().kind.polar
                                   ? SurfacePoint{Drawn().geometry.polarX, Drawn().geometry.polarY}
                                   : SurfacePoint{Drawn().panels[0].box.left + 900, Drawn().panels[0].box.top + 900};
    const auto reading = ReadAt(Drawn(), place.x, place.y);
    ASSERT_TRUE(reading);
    EXPECT_TRUE(reading->onCurve);
    EXPECT_NE(reading->text.find(':') == std::string::npos, Drawn().kind.graph.family != Family::TwoAngle)
        << reading->text;
  }
}

/// Entries that shape the page, choose files or end the program; all others are options of the next run.
bool ShapesThePage(std::string_view name) {
  constexpr std::string_view looks[] = {
      "mnuAmplitude",   "mnuAmpPhase",      "mnuIntPol",   "mnuPolarPlot", "mnuAverage",
      "mnuInterpolate", "mnuInvWavelength", "mnuFFT",      "mnuSun",       "optSun",
      "optPoint",       "chkComponents",    "OptLog",      "optLinear",    "OptXLinear",
      "optXLog",        "mnuExit",          "mnuUndo",     "mnuRedo",      "mnuRead",
      "mnuSave",        "mnuBatchFile",     "mnuOverplot", "mnuSolid",     "mnuDash",
      "mnuDot",         "mnuSmall",         "mnuMedium",   "mnuLarge",     "mnuVLarge",
      "mnuWhite",       "mnuGrey",          "mnuBlack",    "mnuDefault",   "mnuRestoreDefaults",
      "mnuTrueColour",  "mnuDataVisible"};
  constexpr std::string_view families[] = {"mnuSize", "mnuDrawWidth", "mnuMajor",  "mnuMinor",
                                           "mnuLogo", "mnuHideLogo",  "mnuExample"};
  if (name == "mnuSize" || name == "mnuSizeDist") return false;
  return std::ranges::find(looks, name) != std::end(looks) || name.ends_with("Line") || name == "mnuMoreColours" ||
         std::ranges::any_of(families, [&](std::string_view family) { return name.starts_with(family); });
}

/// What is clicked, and what is chosen from the lists, before the next run.
std::vector<std::string> OptionsOfRuns(Session& session) {
  std::vector<std::string> lines;
  for (const Control* control : session.form1.Controls()) {
    const auto kind = control->Kind();
    const bool clicked =
        kind == ControlKind::MenuEntry || kind == ControlKind::OptionButton || kind == ControlKind::CheckBox;
    if (clicked && control->Enabled && control->Visible && !ShapesThePage(control->Name()))
      lines.push_back("click " + std::string(control->Name()));
  }
  for (const char* method : {"Debye", "Young mod", "Rayleigh", "Mie"})
    lines.push_back("choose cboType " + std::string(method));
  return lines;
}

TEST_F(Pages, ShowWhatWasCalculatedWhateverIsClickedAfterwards) {
  for (const auto& [kind, lines] : kinds) {
    SCOPED_TRACE(kind);
    Do("reset");
    Do(lines);
    Now().events.Raise("cmdReplot_Click");
    const auto curves = Drawn().curves;
    const auto titles = Drawn().runs.back();
    int clicks = 0;
    for (const auto& option : OptionsOfRuns(Now())) {
      std::istringstream script(option);
      // What another click has disabled meanwhile is passed over.
      if (runner.Run(script) != ScriptRunner::ok) continue;
      ++clicks;
      Now().events.Raise("cmdReplot_Click");
      ASSERT_EQ(Drawn().curves.size(), curves.size()) << option;
      for (std::size_t c = 0; c < curves.size(); ++c) {
        ASSERT_EQ(Drawn().curves[c].name, curves[c].name) << option;
        for (std::size_t i = 1; i < curves[c].y.size(); ++i)
          ASSERT_TRUE(Drawn().curves[c].y[i] == curves[c].y[i] || std::isnan(curves[c].y[i])) << option << " " << i;
      }
      EXPECT_EQ(Drawn().runs.back().title, titles.title) << option;
      EXPECT_EQ(Drawn().runs.back().parameters, titles.parameters) << option;
    }
    EXPECT_GT(clicks, 30);
  }
}

TEST_F(Pages, OnWhitePaperTheStripIsGreyBelowItsReadings) {
  Do("click mnuWhite");
  const std::string drawing = Drawing();
  const auto strip = drawing.find("15750");
  ASSERT_NE(strip, std::string::npos) << drawing.substr(0, 300);
  EXPECT_LT(strip, drawing.find("Qsca = ")) << "the strip would hide the readings";
}

TEST_F(Pages, WattsAreThoseOfTheRunAfterTheDivisionIsClicked) {
  Do("dialog dlogIncident ok\nchoose cboGraph Watts/sq. m. v. scattering angle\nclick cmdNewPlot");
  const auto parallel = Values(2);
  const double power = State().ScatteredPower;
  Do("click mnuSize\nchoose cboPol Parallel");
  ASSERT_EQ(Drawn().curves.size(), 1U);
  EXPECT_EQ(Values(2), parallel);
  EXPECT_EQ(State().ScatteredPower, power);
}

TEST_F(Pages, PhaseFunctionOfRaysIsNotScaledByAnotherMethod) {
  Do("choose cboType Young mod\nchoose cboGraph Phase function\nclick cmdNewPlot");
  const auto parallel = Values(2);
  Do("choose cboType Mie\nchoose cboPol Parallel\nclick cmdReplot");
  const auto again = Values(2);
  ASSERT_EQ(again.size(), parallel.size());
  for (std::size_t i = 101; i < again.size() && std::isfinite(parallel[i]); i += 100)
    EXPECT_EQ(again[i], parallel[i]) << i;
}

TEST_F(Pages, EfficienciesOfGoldKeepTheirThreeCurves) {
  Do("click mnuRI_Au\nchoose cboGraph Qext/Qsca/Qabs v. radius\nset cboStep 50\nclick cmdNewPlot");
  ASSERT_EQ(Drawn().curves.size(), 3U);
  Do("click mnuRI_Vacuum1\nclick optLinear");
  EXPECT_EQ(Drawn().curves.size(), 3U);
}

TEST_F(Pages, AnOverplotOfAnotherQuantityStartsAfresh) {
  Do("choose cboGraph Qext/Qsca/Qabs v. radius\nset cboStep 50\nclick cmdNewPlot\nclick cmdOverPlot");
  const std::size_t both = Drawn().curves.size();
  Do("choose cboGraph Cext/Csca/Cabs v. diameter\nset txtXmax 1e9\nclick cmdNewPlot\nset txtXmax 20\nset cboStep 50");
  EXPECT_EQ(Drawn().curves.size(), both);
  EXPECT_EQ(Drawn().kind.graph.quantity, Quantity::Efficiencies);
  Now().events.Raise("cmdOverPlot_Click");
  EXPECT_EQ(Drawn().kind.graph.quantity, Quantity::CrossSections);
  EXPECT_EQ(Drawn().runs.size(), 1U);
}

TEST_F(Pages, TickingDisperseDrawsOnlyUntilTheNextPaint) {
  const int samples = State().NumberSamples;
  Do("set cboN 20\nclick optDisp");
  const auto live = static_cast<const RecordingSurface*>(Now().surface)->Operations();
  EXPECT_TRUE(std::ranges::any_of(live, [](const DrawnOperation& op) {
    return op.text.find("-point approximation of Log-normal distribution") != std::string::npos;
  })) << "shown at once";
  Do("size 1200x900");
  EXPECT_EQ(Drawing().find("approximation"), std::string::npos) << "the run was of one size";
  EXPECT_NE(Drawing().find("Qext = "), std::string::npos);
  EXPECT_EQ(State().NumberSamples, samples);
  Do("click cmdNewPlot");
  EXPECT_NE(Drawing().find("20-point approximation of Log-normal distribution"), std::string::npos);
}

// The run ends at the last radius of the axis; its sizes are those about the radius that was asked for.
TEST_F(Pages, ACloudAlongAnAxisKeepsTheSizesOfItsInputs) {
  Do("click optDisp\nset cboN 5\nset cboSD 10\nchoose cboGraph Intensity v. radius\nset cboStep 5\nclick cmdNewPlot");
  ASSERT_TRUE(Drawn().histogram);
  EXPECT_GT(Drawn().histogram->low, 8);
  EXPECT_LT(Drawn().histogram->high, 12);
}

TEST_F(Pages, SizesThatAreAllAlikeAreABarInTheMiddle) {
  Do("click optDisp\nset cboN 5\nset cboSD 0\nclick cmdNewPlot");
  ASSERT_TRUE(Drawn().histogram) << LastText();
  EXPECT_NEAR(Drawn().histogram->low, 9, 1e-6);
  EXPECT_NEAR(Drawn().histogram->high, 11, 1e-6);
}

TEST_F(Pages, ADebyeAnalysisIsSavedTermByTerm) {
  Do("choose cboType Debye\ndialog dlogDebyeSeq ok txtLimit=4\nclick mnuDebyeSequence\nclick cmdNewPlot\n"
     "click mnuCopyData");
  const std::string& copied = runner.World().copiedText;
  EXPECT_THAT(copied, testing::StartsWith("Terms taken away\tPerpendicular\tphase (deg)\tParallel\t"));
  EXPECT_EQ(std::ranges::count(copied, '\n'), 7) << "a line of names, Mie, p = 0 to 4";
}

TEST_F(Pages, AStopBeforeAnythingIsDoneLeavesTheOldCurve) {
  for (const char* run : {"set txtRadius 2000", "choose cboType Debye\nchoose cboGraph Intensity v. radius"}) {
    SCOPED_TRACE(run);
    Do("reset");
    const auto old = Values(1);
    const auto array = State().Iperp;
    const double x = State().XValues[100];
    Do(run);
    runner.World().onYield = [this] {
      if (State().Busy != 0) State().PlotMode = 4, State().StopAnswer = 1;
    };
    Do("click cmdNewPlot");
    runner.World().onYield = nullptr;
    EXPECT_EQ(Values(1).size(), old.size());
    ASSERT_EQ(State().Iperp.size(), array.size());
    EXPECT_EQ(State().Iperp[100], array[100]);
    EXPECT_EQ(State().XValues[100], x);
    EXPECT_EQ(State().LastResults->asked.graph.axis, AxisVariable::Angle);
  }
}

TEST(RecordingSurface, TellsImagesApartByTheirCells) {
  RecordingSurface surface(100, 100);
  const std::vector<Colour> cells = {colours::Black, colours::White}, others = {colours::White, colours::Black};
  surface.Image({0, 0, 10, 10, 2, 1}, cells);
  surface.Image({0, 0, 10, 10, 2, 1}, others);
  EXPECT_EQ(surface.Operations()[0].cells, cells);
  EXPECT_THAT(surface.Operations()[0].Describe(), testing::StartsWith("image 0,0 10,10 #000000 2x1 sum="));
  EXPECT_NE(surface.Operations()[0].Describe(), surface.Operations()[1].Describe());
}

TEST_F(Pages, CurvesOfAStoppedAxisEndWhereTheRunDid) {
  Results results;
  results.asked.graph = GraphOf({14, 7});
  results.asked.run = AxisRun{};
  AxisFound found;
  found.x = {0, 1, 2, 3};
  found.radius = found.Qback = {0, 1, 1, 0};
  found.done = 2;
  results.found = found;
  const Curves curves = CurvesOf(results, {});
  EXPECT_EQ(curves.perpendicular[2], 1);
  EXPECT_TRUE(std::isnan(curves.perpendicular[3]));
}

// What the spheres' volume divides has another frame; where it divides nothing, it is not offered.
TEST_F(Pages, ConstantVolumePartsOnlyWhatItDivides) {
  for (const char* graph : {"Asymmetry g v. radius", "Intensity v. radius", "Vol: Int v. radius", "Qback v. radius"}) {
    auto& list = Now().form1.cboGraph;
    if (!list.Holds(graph)) list.Items.emplace_back(graph);
    Do("choose cboGraph " + std::string(graph));
    EXPECT_FALSE(Now().form1.mnuConstantVolume.Enabled) << graph;
  }
  Do("choose cboGraph Qext/Qsca/Qabs v. radius\nclick cmdNewPlot\nclick mnuConstantVolume\nclick cmdOverPlot");
  EXPECT_EQ(Drawn().runs.size(), 1U);
}

TEST_F(Pages, AnOverplotKeepsThePolarFrameOfTheScreen) {
  Do("click mnuPolarPlot\nclick cmdNewPlot\nclick mnuAperture\nclick cmdOverPlot");
  EXPECT_FALSE(Now().form1.mnuPolarPlot.Checked);
  EXPECT_TRUE(Drawn().kind.polar);
  EXPECT_EQ(Drawn().runs.size(), 2U);
}

TEST_F(Pages, TheChartOfTwoAnglesTellsItsLastSphere) {
  Do("click mnuTwoAngle\nclick cmdNewPlot");
  for (const char* reading : {"  0 deg: ", "  180 deg: ", "X = "})
    EXPECT_NE(Drawing().find(reading), std::string::npos) << reading;
  Do("click mnuPolarPlot");
  EXPECT_EQ(Drawing().find("polarisation"), std::string::npos) << "its lines are named";
}

// The note with the parameters stood over the distribution, and over the curve where it had no room beside the inputs.
TEST_F(Pages, ANoteHidesNeitherReadingsNorDistributionNorPeak) {
  Do("size 1400x900");
  EXPECT_EQ(FreeRoom(Drawn(), 3000, 2500, 16000, 21000).y, 150) << "beside the readings";
  const GraphBox box = Drawn().geometry.box;
  const SurfacePoint inPlot = FreeRoom(Drawn(), 3000, 2500, 11760, 15000);
  EXPECT_GT(inPlot.x, box.left + 3000) << "clear of the forward peak";
  EXPECT_GT(inPlot.y, box.top);
  Do("click optDisp\nset cboN 5\nclick cmdNewPlot");
  EXPECT_GT(FreeRoom(Drawn(), 3000, 2500, 16000, 21000).x, 15600) << "beside the distribution";
  EXPECT_GT(FreeRoom(Drawn(), 3000, 2500, 11760, 18000).y, box.top);
  Do("click mnuSmall");
  EXPECT_GT(FreeRoom(Drawn(), 3000, 2500, 11760, 18000).x, Drawn().geometry.box.right) << "beside a small graph";
}

TEST_F(Pages, AStripOfAnyWidthNamesItsUnit) {
  for (const char* kind : {"Aerosol m0", "Aerosol m6", "Log-normal", "Haze"}) {
    Do("reset\nset cboN 5\nset cboStep 5\nclick optDisp\nchoose cboDistrib " + std::string(kind) +
       "\nclick cmdNewPlot\nclick mnuSmall");
    for (const double width : {13600.0, 15000.0, 15300.0, 19000.0}) {
      RecordingSurface surface(width, 12000);
      Paint(Drawn(), surface);
      const DrawingReader read(surface);
      const auto texts = read.TextsIn({11000, 20000, 2100, 2500});
      EXPECT_TRUE(
          texts.empty() ||
          std::ranges::any_of(texts, [](const std::string& text) { return text.find("\u00B5m") != std::string::npos; }))
          << kind << " " << width;
      EXPECT_THAT(read.Overlaps(), testing::IsEmpty()) << kind << " " << width;
    }
  }
}

TEST_F(Pages, AReadingThatIsNoNumberIsNotPrinted) {
  Do("dialog dlogIncident ok\nchoose cboGraph Watts/sq. m. v. scattering angle\nset cboStep 1\nclick cmdNewPlot");
  Results results = *State().LastResults;
  EXPECT_THAT(VisibleData(results)[6].text, testing::StartsWith("Scattered power = "));
  // A run that was stopped has rows without numbers.
  std::get<AngleFound>(results.found).rows.forward.high = 20;
  for (const PageLine& line : VisibleData(results)) {
    EXPECT_EQ(line.text.find("power"), std::string::npos) << line.text;
    EXPECT_EQ(line.text.find("NaN"), std::string::npos) << line.text;
  }
}

TEST_F(Pages, NoDeviationIsAskedForThatIsNoNumber) {
  Do("choose cboGraph Qext/Qsca/Qabs v. radius\nset cboN 5\nclick optDisp\nset txtXmin 1e-200\nset txtXmax 1e200\n"
     "set cboStep 5\nclick cmdNewPlot");
  for (const ShownMessage& message : Shown()) EXPECT_EQ(message.text.find("Infinity"), std::string::npos);
}

// 40 runs of 900001 rows took 1.3 GB.
TEST_F(Pages, TheOldestRunsGiveWayWhenAPageHoldsTooMuch) {
  Do("set cboStep 1\nclick cmdNewPlot\nset txtRadius 5\nclick cmdOverPlot");
  Page page = Drawn();
  page.curves[0].y = std::vector<double>(45'000'000);
  const Results results = *State().LastResults;
  const Page left = DrawOver(page, results, ReadLook(Now()));
  EXPECT_EQ(left.runsLeftOut, 1U);
  EXPECT_EQ(left.runs.size(), 2U);
  for (const auto& curve : left.curves) EXPECT_LT(curve.run, 2U);
  RecordingSurface surface(19200, 15360);
  Paint(left, surface);
  EXPECT_NE(DrawingReader(surface).Text("Oldest runs left out, for want of memory: 1"), nullptr);
}

// A curve of more rows than any picture has dots is as high and as low in every dot as all its rows.
TEST_F(Pages, ManyRowsAreThinnedWithoutLosingAPeak) {
  Do("set cboStep 5\nchoose cboPol Unpolarised\nclick cmdNewPlot\nclick mnuLarge");
  Page page = Drawn();
  constexpr std::size_t rows = 900001;
  std::vector<double> x(rows + 1), y(rows + 1, 10);
  for (std::size_t i = 1; i <= rows; ++i) x[i] = 180.0 * static_cast<double>(i - 1) / (rows - 1);
  y[500000] = 1000;
  y[700000] = 0.5;
  y[300000] = std::nan("");
  page.curves[0].x = std::move(x);
  page.curves[0].y = std::move(y);
  page.panels[0].limits = {0, 180, 0.1, 10000};
  const auto runs = CurveRuns(page, page.panels[0], page.curves[0]);
  ASSERT_EQ(runs.size(), 2U) << "a gap stays a gap";
  std::size_t points = 0;
  double highest = 1e9, lowest = 0;
  for (const auto& run : runs)
    for (const auto& p : run) {
      ++points;
      highest = std::min(highest, p.y);
      lowest = std::max(lowest, p.y);
    }
  EXPECT_LT(points, 60000U);
  const PanelMap map{page.panels[0].box, page.panels[0].limits, false, true};
  EXPECT_NEAR(highest, map.Y(1000), 1e-6);
  EXPECT_NEAR(lowest, map.Y(0.5), 1e-6);
}

// A piece takes the colour of the row before where its middle is half-way, in a picture of any size.
TEST_F(Pages, ColoursOfACurveDoNotDependOnTheSizeOfThePicture) {
  Do("set txtRadius 7\nclick optDisp\nset cboWave 30\nset cboStep 1\nset txtXmin 140\nset txtXmax 160\nclick "
     "cmdNewPlot");
  const auto pieces = [this](const std::string& size) {
    Do("size " + size);
    const std::string drawing = Drawing();
    std::size_t count = 0;
    for (auto at = drawing.find("polyline"); at != std::string::npos; at = drawing.find("polyline", at + 1)) ++count;
    return count;
  };
  const std::size_t first = pieces("1280x1024");
  for (const char* size : {"1400x900", "1023x801", "777x999"}) EXPECT_EQ(pieces(size), first) << size;
}

}  // namespace
}  // namespace lumivex
