#include "pages/curves/spectrum_graph.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "axes/scale_rules.h"
#include "pages/bars/bar_light.h"
#include "pages/frame/colours.h"
#include "record/number_text.h"

namespace lumivex {

namespace {

/// Most wavelengths whose curves can be told apart.
constexpr int mostCurvesApart = 7;

constexpr int perpendicularKind = 1, parallelKind = 2;

const std::vector<double>& CurveOfKind(const Curves& curves, int kind) {
  return kind == perpendicularKind ? curves.perpendicular : kind == parallelKind ? curves.parallel : curves.unpolarised;
}

/// The highest and the lowest value of all wavelengths in each row, from which the scale is chosen.
Curves Envelope(const std::vector<Curves>& all) {
  Curves envelope = all.front();
  auto& high = envelope.perpendicular;
  auto& low = envelope.parallel;
  for (std::size_t j = 0; j < high.size(); ++j)
    if (high[j] < low[j]) std::swap(high[j], low[j]);
  for (const Curves& curves : all)
    for (std::size_t j = 0; j < high.size(); ++j) {
      high[j] = AMAX(high[j], AMAX(curves.perpendicular[j], curves.parallel[j]));
      low[j] = AMIN(low[j], AMIN(curves.perpendicular[j], curves.parallel[j]));
    }
  return envelope;
}

/// Colour of each row, as bright as it can be. Sixteen steps a channel: more pieces of a curve cannot be seen.
std::vector<Colour> RowColours(const BarLight& light, double brightness) {
  const auto& channels = light.channels;
  constexpr double steps = 15;
  std::vector<Colour> colours(channels[0].size(), Colour{0x808080});
  for (std::size_t j = 1; j < colours.size(); ++j) {
    const double peak = std::max({channels[0][j], channels[1][j], channels[2][j]});
    if (!(peak > 0)) continue;
    const auto value = [&](std::size_t c) {
      return std::round(steps * channels[c][j] / peak) / steps * 255 * brightness;
    };
    colours[j] = RGB(value(0), value(1), value(2));
  }
  return colours;
}

/// White light cannot be seen on white: on a pale ground all colours are darker.
double FullBrightness(Colour ground) {
  constexpr int pale = 600;  // sum of the channels
  return ground.Red() + ground.Green() + ground.Blue() > pale ? 0.65 : 1;
}

/// A sum over the spectrum in the colour that the light has in each row; in the key it is grey.
void ColourTotal(const Page& page, const PageBars& bars, PageCurve& curve) {
  const double shade = curve.kind == perpendicularKind ? 1 : curve.kind == parallelKind ? 0.5 : 0.75;
  const double brightness = shade * FullBrightness(page.style.ground);
  curve.colour = RGB(160 * brightness, 160 * brightness, 160 * brightness);
  curve.colours = RowColours(bars.light[static_cast<std::size_t>(curve.kind) - 1], brightness);
}

void PlotTotal(Page& page, const RunToDraw& run, const Curves& curves) {
  const auto bars = page.bars ? page.bars : PlotN(run);
  for (const int kind : KindsWanted(run.look)) {
    PageCurve curve = Plot(page, run, curves.x, CurveOfKind(curves, kind), {0, kind}, {});
    ColourTotal(page, *bars, curve);
    page.curves.push_back(std::move(curve));
  }
}

/// The sums above their degree of polarisation.
void DisplayTotal(Page& page, const RunToDraw& run) {
  const std::size_t first = page.curves.size();
  Display(page, run, CurvesOf(run.results, run.Curves()));
  const auto bars = page.bars ? page.bars : PlotN(run);
  for (std::size_t i = first; i < page.curves.size(); ++i)
    if (PageCurve& curve = page.curves[i]; !page.panels[curve.panel].second) ColourTotal(page, *bars, curve);
}

}  // namespace

bool ShowsWavelengthsApart(const RunToDraw& run) {
  const auto& light = run.results.asked.light.spectrum;
  if (!light) return false;
  return light->components ? run.look.components : light->Count() <= mostCurvesApart;
}

std::string WavelengthWords(const SpectrumOfLight& light, int wavelength) {
  return Format(1000 * double{light.wavelength[static_cast<std::size_t>(wavelength)]}, "0.#") + " nm";
}

void PlotColour(Page& page, const RunToDraw& run, const Curves& curves, int wavelength) {
  if (wavelength == 0) return PlotTotal(page, run, curves);
  const SpectrumOfLight& light = *run.results.asked.light.spectrum;
  const Colour colour = ColourSet(colRGB2(double{light.wavelength[static_cast<std::size_t>(wavelength)]}));
  for (const int kind : KindsWanted(run.look)) {
    PageCurve curve = Plot(page, run, curves.x, CurveOfKind(curves, kind), {0, kind}, colour);
    curve.name = WavelengthWords(light, wavelength) + ": " + curve.name;
    page.curves.push_back(std::move(curve));
  }
}

void PlotNColour(Page& page, const RunToDraw& run) {
  const auto* found = run.results.Find<SpectrumFound>();
  if (found == nullptr || found->done < 1) return;
  if (page.kind.second != SecondPanel::None) return DisplayTotal(page, run);
  if (!ShowsWavelengthsApart(run)) {
    const Curves total = CurvesOf(run.results, run.Curves());
    if (page.panels.empty()) DrawFrame(page, run, PanelPlace::Whole, total.x, total.perpendicular, total.parallel);
    return PlotColour(page, run, total, 0);
  }
  std::vector<Curves> all;
  for (int i = 1; i <= found->done; ++i) all.push_back(CurvesOfWavelength(run.results, run.Curves(), i));
  const Curves scale = Envelope(all);
  if (page.panels.empty()) DrawFrame(page, run, PanelPlace::Whole, scale.x, scale.perpendicular, scale.parallel);
  for (int i = 1; i <= found->done; ++i) PlotColour(page, run, all[static_cast<std::size_t>(i) - 1], i);
}

}  // namespace lumivex
