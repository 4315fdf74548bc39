#include "pages/items/size_histogram.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "pages/items/readings.h"
#include "record/number_text.h"

namespace lumivex {

namespace {

// The side strip (surface units). The readings of a run stand in its left part; the distribution then takes the rest
// or, in a narrow window, what is below them.
constexpr double stripLeft = 12000, stripRight = HistogramRight, stripBottom = 2800;
constexpr double readingsBottom = 1800, marginOfAxis = 150, leastAxis = 800;
constexpr double peakTop = 100, barHeight = 2000, lowPeakTop = 1850, lowBarHeight = 420;

/// Where the bars stand.
struct Strip {
  double left = 0, right = 0;
  double top = peakTop, base = peakTop + barHeight;

  bool HasRoom() const { return right - left >= leastAxis; }
  double NumbersTop() const { return base + 40; }
  double CaptionTop() const { return base + 280; }
};

/// A strip without room where there is no place for one.
Strip StripOf(const DrawingSurface& surface, StripTaken taken) {
  const double right = std::min(stripRight, surface.ScaleWidth()) - marginOfAxis;
  const Strip whole{stripLeft + marginOfAxis, right};
  if (!taken.byReadings) return whole;
  const Strip beside{ReadingsRight + marginOfAxis, right};
  if (beside.HasRoom()) return beside;
  if (taken.byPowers) return {};
  return {whole.left, whole.right, lowPeakTop, lowPeakTop + lowBarHeight};
}

double PlaceOf(const PageHistogram& axis, const Strip& strip, double radius) {
  const double t = axis.logarithmic ? std::log(radius / axis.low) / std::log(axis.high / axis.low)
                                    : (radius - axis.low) / (axis.high - axis.low);
  return strip.left + std::clamp(t, 0.0, 1.0) * (strip.right - strip.left);
}

/// Density at each sample over the largest one, rows 1 up: equally probable samples take that of the normal
/// distribution, all others their own weight.
std::vector<double> Heights(const SizeDistribution& sizes, const CloudSamples& samples) {
  std::vector<double> heights(samples.radius.size(), 0);
  const auto* normal = std::get_if<NormalSizes>(&sizes);
  for (std::size_t i = 1; i < heights.size(); ++i)
    heights[i] = normal != nullptr ? std::exp(-0.5 * double{normal->z[i]} * double{normal->z[i]}) : samples.weight[i];
  const double peak = *std::ranges::max_element(heights);
  if (peak > 0)
    for (double& height : heights) height /= peak;
  return heights;
}

std::string CaptionOf(const SizeDistribution& sizes, int samples, const std::string& name) {
  if (const auto* file = std::get_if<FileSizes>(&sizes)) return "Histogram from file: " + file->name;
  return std::to_string(samples) + "-point approximation of " + name + " distribution";
}

void PrintAt(DrawingSurface& surface, double x, double y, const std::string& text) {
  surface.CurrentX = x;
  surface.CurrentY = y;
  surface.Print(text, false);
}

/// The caption may begin under the readings, which end above it; a narrow window goes without.
void PrintCaption(DrawingSurface& surface, const Strip& strip, const std::string& caption) {
  const double fontSize = surface.FontSize;
  const double room = strip.right - stripLeft;
  constexpr double smallestFont = 6;
  while (surface.TextWidth(caption) > room && surface.FontSize > smallestFont) surface.FontSize -= 0.5;
  const double width = surface.TextWidth(caption);
  if (width <= room) PrintAt(surface, strip.right - width, strip.CaptionTop(), caption);
  surface.FontSize = fontSize;
}

/// Numbers at both ends, between them the title or its unit. Where there is no room between them the unit stands behind
/// the upper number, and both have no more digits than fit.
void DrawAxis(DrawingSurface& surface, const PageHistogram& axis, const Strip& strip) {
  surface.Line(strip.left, strip.base, strip.right, strip.base);
  const double top = strip.NumbersTop(), room = strip.right - strip.left;
  const std::string unit = axis.overIndex ? "n" : "\u00B5m";
  const double blank = surface.TextWidth(" ");
  const auto print = [&](const std::string& low, const std::string& high, const std::string& title) {
    const double lowWidth = surface.TextWidth(low), highWidth = surface.TextWidth(high);
    const double width = surface.TextWidth(title), x = (strip.left + strip.right - width) / 2;
    const bool fits = title.empty() ? lowWidth + highWidth + 2 * blank <= room
                                    : x > strip.left + lowWidth + blank && x + width + blank < strip.right - highWidth;
    if (!fits) return false;
    PrintAt(surface, strip.left, top, low);
    if (!title.empty()) PrintAt(surface, x, top, title);
    PrintAt(surface, strip.right - highWidth, top, high);
    return true;
  };
  const std::string low = Significant(axis.low, 3), high = Significant(axis.high, 3);
  bool printed = print(low, high, axis.overIndex ? "Refractive index" : "Radius (\u00B5m)") || print(low, high, unit);
  for (int digits = 3; digits > 0 && !printed; --digits)
    printed = print(Significant(axis.low, digits), Significant(axis.high, digits) + " " + unit, "");
  if (!printed) print("", Significant(axis.high, 2) + " " + unit, "");
  PrintCaption(surface, strip, axis.caption);
}

void Wipe(DrawingSurface& surface, const Strip& strip) {
  surface.ForeColour = surface.BackColour;
  const double top = strip.top > readingsBottom ? readingsBottom : 0;
  surface.Line(strip.left - marginOfAxis, top, stripRight, stripBottom, LineKind::FilledBox);
  surface.Line(stripLeft, strip.CaptionTop(), stripRight, stripBottom, LineKind::FilledBox);
}

}  // namespace

std::optional<PageHistogram> DistDisplay(const SizeDistribution& sizes, double radius, const std::string& name,
                                         bool logarithmic, const Graph& graph) {
  if (!IsCloud(sizes)) return std::nullopt;
  const CloudSamples samples = SamplesOf(sizes, radius);
  if (samples.failure != SizeFailure::None || samples.Count() < 1) return std::nullopt;
  PageHistogram histogram;
  histogram.low = samples.lowest;
  histogram.high = samples.highest;
  histogram.logarithmic = logarithmic;
  histogram.overIndex = graph.family == Family::Lee && graph.axis == AxisVariable::RefractiveIndex;
  if (logarithmic && !(histogram.low > 0)) histogram.low = histogram.high / 1000;
  if (!(histogram.high > histogram.low)) {
    // All samples alike: a bar in the middle.
    histogram.low *= 0.9;
    histogram.high *= 1.1;
  }
  const auto* file = std::get_if<FileSizes>(&sizes);
  const bool classes = file != nullptr && file->upper.size() == samples.radius.size();
  const auto heights = Heights(sizes, samples);
  for (std::size_t i = 1; i < heights.size(); ++i) {
    const double r = samples.radius[i];
    // The sample of a class is its middle.
    const double high = classes ? file->upper[i] : r;
    histogram.bars.push_back({classes ? std::max(2 * r - high, histogram.low) : r, high, heights[i]});
  }
  histogram.caption = CaptionOf(sizes, samples.Count(), name);
  return histogram;
}

void PaintHistogram(DrawingSurface& surface, const PageHistogram& histogram, StripTaken taken, bool wiped) {
  const Strip strip = StripOf(surface, taken);
  if (!strip.HasRoom()) return;
  const SurfacePen before = surface;
  if (wiped) Wipe(surface, strip);
  surface.ForeColour = colours::Black;
  surface.DrawStyle = 0;
  surface.DrawWidth = 1;
  for (const HistogramBar& bar : histogram.bars) {
    const double top = strip.base - (strip.base - strip.top) * bar.height;
    const double left = PlaceOf(histogram, strip, bar.low);
    if (bar.low == bar.high)
      surface.Line(left, strip.base, left, top);
    else
      surface.Line(left, strip.base, PlaceOf(histogram, strip, bar.high), top, LineKind::Box);
  }
  DrawAxis(surface, histogram, strip);
  static_cast<SurfacePen&>(surface) = before;
}

}  // namespace lumivex
