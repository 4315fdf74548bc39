#include "pages/items/pulse_graph.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>

#include "record/number_text.h"

namespace lumivex {

namespace {

// The boxes on a surface of the usual size.
constexpr double usualWidth = 9300, usualHeight = 4800;
constexpr double pulseLeft = 1500, pulseRight = 3548, spectrumLeft = 5000, spectrumRight = 9048;
constexpr double top = 1000, bottom = 4000, headings = 800;

/// Femtoseconds to a frequency in THz.
constexpr double terahertz = 1000;
constexpr double lowestDecibels = -60;
/// A drawing of more points shows nothing more.
constexpr int mostPoints = 4000;

const Colour yellow = RGB(255, 255, 0), bandGround = RGB(224, 236, 255);

double StepOf(double range) {
  const double unit = std::pow(10, std::floor(std::log10(range)));
  const double whole = range / unit;
  return whole < 2 ? unit / 2 : whole < 5 ? unit : 2 * unit;
}

struct Plot {
  GraphBox box;
  double low, high;    ///< of the horizontal axis
  double least, most;  ///< of the vertical one

  double X(double value) const {
    return std::clamp(box.left + (value - low) / (high - low) * box.Width(), box.left, box.right);
  }
  double Y(double value) const {
    return std::clamp(box.bottom - (value - least) / (most - least) * (box.bottom - box.top), box.top, box.bottom);
  }
};

void PrintAt(DrawingSurface& surface, double x, double y, const std::string& text) {
  surface.CurrentX = x;
  surface.CurrentY = y;
  surface.Print(text, false);
}

void PrintCentred(DrawingSurface& surface, double x, double y, const std::string& text) {
  PrintAt(surface, x - surface.TextWidth(text) / 2, y, text);
}

/// White, with its middle line in yellow, lines at a quarter and three quarters, and seven divisions.
void PaintBox(DrawingSurface& surface, const GraphBox& box) {
  constexpr double tick = 75;
  constexpr int divisions = 8;
  const double middle = (box.top + box.bottom) / 2;
  surface.ForeColour = RGB(224, 224, 224);
  for (const int quarter : {1, 3}) {
    const double y = box.top + quarter * (box.bottom - box.top) / 4;
    surface.Line(box.left, y, box.right, y);
  }
  surface.ForeColour = yellow;
  surface.Line(box.left, middle, box.right, middle);
  surface.ForeColour = colours::Black;
  for (int i = 1; i < divisions; ++i) {
    const double x = box.left + i * box.Width() / divisions;
    surface.Line(x, box.top, x, box.top + tick);
    surface.Line(x, middle - tick / 2, x, middle + tick / 2);
    surface.Line(x, box.bottom - tick, x, box.bottom);
  }
  surface.Line(box.left, box.top, box.right, box.bottom, LineKind::Box);
}

void FillBox(DrawingSurface& surface, const GraphBox& box, Colour colour) {
  surface.ForeColour = colour;
  surface.Line(box.left, box.top, box.right, box.bottom, LineKind::FilledBox);
  surface.ForeColour = colours::Black;
}

/// Numbers below, as many as have room.
void PaintNumbers(DrawingSurface& surface, const Plot& plot) {
  const double step = StepOf(plot.high - plot.low);
  double free = -1e9;
  for (double at = step * std::ceil(plot.low / step - 1e-9); at <= plot.high + 1e-9 * step; at += step) {
    const std::string text = Significant(std::fabs(at) < 1e-9 * step ? 0 : at, 6);
    const double width = surface.TextWidth(text), x = plot.X(at) - width / 2;
    if (x < free) continue;
    PrintAt(surface, x, plot.box.bottom + 100, text);
    free = x + width + surface.TextWidth("0");
  }
}

void PaintCurve(DrawingSurface& surface, const Plot& plot, const std::vector<double>& x, const std::vector<double>& y) {
  std::vector<SurfacePoint> points;
  for (std::size_t i = 0; i < x.size(); ++i)
    if (x[i] >= plot.low && x[i] <= plot.high) points.push_back({plot.X(x[i]), plot.Y(y[i])});
  surface.ForeColour = RGB(0, 0, 192);
  // Of a pulse shorter than a sample all but one are 0, and what is within the box may be that one alone.
  if (points.size() == 1) surface.Line(points[0].x, plot.Y(0), points[0].x, points[0].y);
  if (points.size() > 1) surface.Polyline(points);
  surface.ForeColour = colours::Black;
}

/// Top of a number beside the vertical axis: within its ends, so that it keeps clear of what stands over the box.
double BesideAxis(const Plot& plot, double value, double line) {
  return std::clamp(plot.Y(value) - line / 2, plot.box.top, plot.box.bottom - line);
}

void PaintTimes(DrawingSurface& surface, const PagePulse& pulse, const GraphBox& box) {
  const Plot plot{box, -pulse.span, pulse.span, -1, 1};
  FillBox(surface, box, colours::White);
  PaintBox(surface, box);
  PaintCurve(surface, plot, pulse.time, pulse.amplitude);
  const double line = surface.TextHeight("0");
  for (const int value : {1, 0, -1}) {
    const std::string text = std::to_string(value);
    PrintAt(surface, box.left - surface.TextWidth(text + " "), BesideAxis(plot, value, line), text);
  }
  PaintNumbers(surface, plot);
  PrintCentred(surface, (box.left + box.right) / 2, box.bottom + 100 + 1.3 * line, "Time (femtoseconds)");
  PrintAt(surface, box.left - surface.TextWidth("Amplitude -1 "), (box.top + box.bottom) / 2 - line / 2, "Amplitude");
}

void PaintSpectrum(DrawingSurface& surface, const PagePulse& pulse, const GraphBox& box) {
  const double least = pulse.decibels ? lowestDecibels : 0, most = pulse.decibels ? 0 : 1;
  const Plot plot{box, pulse.lowest, pulse.highest, least, most};
  FillBox(surface, box, colours::White);
  if (pulse.bandHigh > pulse.bandLow)
    FillBox(surface, {plot.X(pulse.bandLow), plot.X(pulse.bandHigh), box.top, box.bottom}, bandGround);
  PaintBox(surface, box);
  std::vector<double> magnitude = pulse.magnitude;
  if (pulse.decibels)
    for (double& value : magnitude)
      value = value > 0 ? std::max(lowestDecibels, 20 * std::log10(value)) : lowestDecibels;
  PaintCurve(surface, plot, pulse.frequency, magnitude);
  const double line = surface.TextHeight("0");
  const auto label = [&](double value, const std::string& text) {
    PrintAt(surface, box.left - surface.TextWidth(text + " "), BesideAxis(plot, value, line), text);
  };
  label(most, pulse.decibels ? "0" : "1");
  label(least, pulse.decibels ? "-60" : "0");
  if (pulse.decibels) label((least + most) / 2, "dB");
  PaintNumbers(surface, plot);
  PrintCentred(surface, (box.left + box.right) / 2, box.bottom + 100 + 1.3 * line, "Frequency (THz)");
}

}  // namespace

PagePulse PulseGraph(const Pulse& pulse, bool decibels) {
  PagePulse drawn;
  const bool signal = pulse.asked.form == PulseForm::AM || pulse.asked.form == PulseForm::FM;
  constexpr int periodsOfSignal = 16;
  drawn.span = signal ? periodsOfSignal * pulse.period : 2 * pulse.asked.duration;
  const std::int32_t middle = pulse.asked.length / 2;
  const auto reach = static_cast<std::int32_t>(std::min(std::ceil(drawn.span / pulse.step), double{mostPoints}));
  for (std::int32_t j = std::max(0, middle - reach); j <= std::min(pulse.asked.length - 1, middle + reach); ++j) {
    drawn.time.push_back(pulse.Time(j));
    drawn.amplitude.push_back(pulse.real[static_cast<std::size_t>(j)]);
  }
  const double unit = terahertz / pulse.window;  // from index to index
  drawn.highest = 2 * unit * pulse.centre;
  const std::int32_t last = std::min(2 * pulse.centre, pulse.asked.length / 2);
  // Of many frequencies the highest of some neighbours stands for them.
  const std::int32_t group = std::max(1, last / mostPoints);
  for (std::int32_t k = 0; k <= last; k += group) {
    double highest = 0;
    for (std::int32_t i = k; i < k + group && i <= last; ++i) highest = std::max(highest, pulse.Magnitude(i));
    drawn.frequency.push_back(unit * k);
    drawn.magnitude.push_back(pulse.peak > 0 ? highest / pulse.peak : 0);
  }
  drawn.decibels = decibels;
  if (!pulse.valid) return drawn;
  drawn.bandLow = unit * pulse.low;
  drawn.bandHigh = unit * pulse.high;
  constexpr int digits = 2;
  const auto nm = [](double um) { return Shortest(RoundDecimals(1000 * um, digits)); };
  drawn.limits =
      "Wavelength limits: " + nm(pulse.Wavelength(pulse.high)) + "-" + nm(pulse.Wavelength(pulse.low)) + " nm";
  return drawn;
}

void PaintPulse(DrawingSurface& surface, const PagePulse& pulse) {
  const double wide = surface.ScaleWidth() / usualWidth, high = surface.ScaleHeight() / usualHeight;
  const GraphBox times{pulseLeft * wide, pulseRight * wide, top * high, bottom * high};
  const GraphBox spectrum{spectrumLeft * wide, spectrumRight * wide, top * high, bottom * high};
  surface.FontBold = false;
  const double y = std::min(headings * high, times.top - 1.1 * surface.TextHeight("X"));
  PrintAt(surface, 2200 * wide, y, "Pulse shape");
  const double limitsEnd = 4800 * wide + surface.TextWidth(pulse.limits);
  if (!pulse.limits.empty()) PrintAt(surface, 4800 * wide, y, pulse.limits);
  const double room = pulse.limits.empty() ? 0 : limitsEnd + surface.TextWidth("XX");
  PrintAt(surface, std::max(6800 * wide, room), y, "Spectrum");
  PaintTimes(surface, pulse, times);
  PaintSpectrum(surface, pulse, spectrum);
}

}  // namespace lumivex
