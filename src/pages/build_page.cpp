#include "pages/build_page.h"

#include "pages/bars/bar_colours.h"
#include "pages/bars/bar_light.h"
#include "pages/curves/curve_limits.h"
#include "pages/curves/curve_path.h"
#include "pages/curves/fourier_graph.h"
#include "pages/curves/spectrum_graph.h"
#include "pages/frame/frame.h"
#include "pages/items/phasor_diagram.h"
#include "pages/items/readings.h"
#include "pages/items/size_histogram.h"
#include "pages/items/two_angle_chart.h"
#include "pages/maps/plot_lee.h"
#include "pages/run_words.h"
#include "record/number_text.h"
#include "runs/settings.h"

namespace lumivex {

namespace {

bool HasLogo(const Graph& graph) {
  return graph.family != Family::Impulse && graph.family != Family::Volume;
}

PageStyle StyleOf(const PageKind& kind, const Look& look) {
  const BackgroundLook& background = look.background;
  const bool mono = kind.wavelengths == 1;
  PageStyle style;
  style.paper = background.paper;
  style.ground = mono ? background.ground : background.spectrumGround;
  style.gridColour = background.grid.value_or(mono ? RGB(128, 255, 255) : RGB(64, 64, 64));
  style.minorXColour = background.white ? colours::Black : style.gridColour;
  style.gridLines = look.gridLines;
  style.size = look.size;
  style.special = look.special;
  style.logo = HasLogo(kind.graph) ? look.logo : "";
  style.logoPlace = look.logoPlace;
  style.logoColour = mono && background.pale ? RGB(200, 200, 200) : RGB(100, 100, 100);
  style.narrowScreen = look.narrowScreen;
  style.readingsVisible = look.readingsVisible;
  return style;
}

/// The name of a distribution: what comes first in its words.
std::string NameOfSizes(const RunWords& words) {
  return words.sizes.substr(0, words.sizes.find(','));
}

/// A run in words; what the look makes of its curves tells it from others too.
PageRun WordsOf(const RunToDraw& run) {
  const Results& results = run.results;
  PageRun words{results.number,   RunTitleOf(results),   MethodLabelOf(results), ParameterLinesOf(results),
                MarksOf(results), FinerMarksOf(results), PlaceMarksOf(results)};
  const bool disc = run.look.sun.disc && results.asked.graph.AgainstAngle();
  words.marks.emplace_back(disc ? "disc of the sun" : "");
  words.marks.push_back(run.look.averageWidth ? "mean over " + Significant(*run.look.averageWidth, 8) : "");
  const auto changes = ChangeLinesOf(results, run.look);
  words.parameters.insert(words.parameters.end(), changes.begin(), changes.end());
  return words;
}

/// A page of so many numbers takes some hundred MB: the oldest runs give way before memory does.
constexpr std::size_t mostNumbers = 40'000'000;

std::size_t NumbersOn(const Page& page) {
  std::size_t numbers = 0;
  for (const PageCurve& curve : page.curves) numbers += curve.y.size() + curve.colours.size();
  return numbers;
}

void LeaveOutOldestRuns(Page& page) {
  while (NumbersOn(page) > mostNumbers && page.runs.size() > 1) {
    std::erase_if(page.curves, [](const PageCurve& curve) { return curve.run == 0; });
    for (PageCurve& curve : page.curves) --curve.run;
    page.runs.erase(page.runs.begin());
    ++page.runsLeftOut;
  }
}

/// The cells found: the results' own where these are shared, otherwise a copy.
std::shared_ptr<const MapFound> CellsOf(const Results& results, const MapFound& found) {
  if (auto held = results.weak_from_this().lock()) return {std::move(held), &found};
  return std::make_shared<const MapFound>(found);
}

void AddMap(Page& page, const RunToDraw& run) {
  const auto* found = run.results.Find<MapFound>();
  if (found == nullptr) return;
  const RunRequest& asked = run.results.asked;
  const auto* angles = std::get_if<AngleMapRun>(&asked.run);
  const auto* quantities = std::get_if<EfficiencyMapRun>(&asked.run);
  if (angles == nullptr && quantities == nullptr) return;
  MapToDraw map{asked, run.look, CellsOf(run.results, *found), {}, {}};
  map.columns = angles != nullptr ? angles->columns : quantities->columns;
  if (angles != nullptr)
    map.rows = angles->rows;
  else
    map.rows = quantities->rows;
  if (run.look.special)
    PlotLeeSpecial(page, map);
  else
    PlotLee(page, map);
}

void DisplayCurves(Page& page, const RunToDraw& run) {
  const Curves curves = CurvesOf(run.results, run.Curves());
  if (!run.look.fourier) return Display(page, run, curves);
  const FourierCurves spectrum = FFTcalc(run.results, curves, *run.look.fourier);
  Display(page, run, spectrum.curves);
  page.frequencies = {RayFrequenciesOf(run.results, *run.look.fourier), FrequencyStep(run.results, *run.look.fourier)};
}

void AddRun(Page& page, const RunToDraw& run) {
  const Results& results = run.results;
  page.runs.push_back(WordsOf(run));
  page.bars = HasBars(page.kind) ? PlotN(run) : std::nullopt;
  switch (results.asked.graph.drawing) {
    case Drawing::PhasorDiagram:
      page.phasors = PlotDots(run, page.geometry);
      break;
    case Drawing::TwoAngleChart:
      DisplayTwoAngle(page, run);
      break;
    case Drawing::ColourImage:
      AddMap(page, run);
      break;
    default:
      if (results.Find<SpectrumFound>() != nullptr)
        PlotNColour(page, run);
      else
        DisplayCurves(page, run);
  }
  LeaveOutOldestRuns(page);
  if (page.bars) page.bars->run = page.runs.size() - 1;
  ColourBars(page, run.look.colours);
  page.readings = VisibleData(results);
  page.histogram = DistDisplay(results.asked.sizes, RadiusOfSizes(results.asked.particle),
                               NameOfSizes(results.asked.words), run.look.histogramLog, results.asked.graph);
  const auto* angles = results.Find<AngleFound>();
  page.wavefronts = angles != nullptr ? angles->wavefronts : std::vector<HuygensWave>();
}

}  // namespace

Page BuildPage(const Results& results, const Look& wanted, const PageGeometry& geometry, const ScaleMemory& memory) {
  const Look look = LookOfSpectrum(results, wanted);
  const RunToDraw run{results, look};
  Page page;
  page.kind = KindOf(run);
  page.style = StyleOf(page.kind, look);
  page.geometry = geometry;
  page.scale = memory;
  AddRun(page, run);
  // Curves have come to the key since the frame was placed.
  return PlacePage(std::move(page), geometry);
}

bool SharesAxes(const PageKind& page, const PageKind& run) {
  return page.graph == run.graph && page.graph.drawing != Drawing::PhasorDiagram &&
         page.graph.drawing != Drawing::ColourImage && page.wavelengths == 1 && run.wavelengths == 1 &&
         page.second == run.second && page.amplitude == run.amplitude && page.invWavelength == run.invWavelength &&
         page.perVolume == run.perVolume && page.fourier == run.fourier && page.xTitle == run.xTitle &&
         page.yTitle == run.yTitle;
}

Page DrawOver(const Page& page, const Results& results, const Look& wanted) {
  const Look look = LookOfSpectrum(results, wanted);
  const RunToDraw run{results, look};
  if (page.Empty() || !SharesAxes(page.kind, KindOf(run))) return BuildPage(results, look, page.geometry, page.scale);
  Page both = WithLook(page, look);
  AddRun(both, run);
  FitOverplot(both, look);
  const PageGeometry geometry = both.geometry;
  return PlacePage(std::move(both), geometry);
}

Page PlacePage(Page page, const PageGeometry& geometry) {
  page.geometry = geometry;
  for (PagePanel& panel : page.panels) panel.box = BoxOf(page, panel.place);
  if (page.phasors) page.phasors->place = PlacePhasors(geometry);
  return page;
}

Page WithLook(Page page, const Look& look) {
  page.style = StyleOf(page.kind, look);
  ColourBars(page, look.colours);
  return page;
}

}  // namespace lumivex
