#include "pages/visible_data.h"

#include <algorithm>
#include <initializer_list>
#include <string>
#include <utility>

#include "record/number_text.h"
#include "solvers/series/angular_sum.h"

namespace lumivex {

namespace {

// The strip of readings (surface units).
constexpr double left = 12000, firstLine = 600, lineHeight = 200, stripBottom = 2800;
constexpr double pi = 3.14159265358979324;
constexpr int digitsShown = 6;

/// A wavelength's colour as text on the page: light ones are darkened.
Colour TextColour(Colour c) {
  constexpr double lightest = 130;
  const double lightness = 0.3 * c.Red() + 0.59 * c.Green() + 0.11 * c.Blue();
  const double factor = lightness > lightest ? lightest / lightness : 1;
  return RGB(factor * c.Red(), factor * c.Green(), factor * c.Blue());
}

class ReadingColumn {
 public:
  explicit ReadingColumn(DrawingSurface& surface) : surface_(surface) {}
  void Line(const std::string& text, Colour colour) {
    surface_.ForeColour = colour;
    Line(text);
    surface_.ForeColour = colours::Black;
  }
  void Line(const std::string& text) {
    surface_.CurrentX = left;
    surface_.CurrentY = y_;
    surface_.Print(text);
    y_ += lineHeight;
  }

 private:
  DrawingSurface& surface_;
  double y_ = firstLine;
};

void PrintEfficiencies(const MainFormState& s, ReadingColumn& column) {
  const std::initializer_list<std::pair<const char*, double>> readings = {{"Qsca = ", s.Qsca},
                                                                          {"Qext = ", s.Qext},
                                                                          {"Qabs = ", s.Qext - s.Qsca},
                                                                          {"Qback = ", s.Qback},
                                                                          {"Qradar = ", pi / 4 * s.Qback},
                                                                          {"g = ", s.Gsca}};
  for (const auto& [name, value] : readings) column.Line(name + Significant(value, digitsShown));
}

/// Wavelengths of a sum over a spectrum: the efficiencies belong to one wavelength and say nothing about it.
void PrintSpectrum(const MainFormState& s, ReadingColumn& column) {
  std::string count = std::to_string(s.ResultWavelengths) + " wavelengths";
  if (s.WavelengthsDone < s.ResultWavelengths) count = std::to_string(s.WavelengthsDone) + " of " + count;
  if (s.ResultSamples > 1) count += ", " + std::to_string(s.ResultSamples) + " sizes";
  column.Line(count);
  column.Line(s.ResultSource);
  const auto nanometres = [&](int i) {
    return Format(1000 * double{s.WavelengthList[static_cast<std::size_t>(i)]}, "0.#") + " nm";
  };
  constexpr int mostNamed = 7;
  if (s.ResultWavelengths <= mostNamed) {
    // The key of the curves, which have these colours.
    for (int i = 1; i <= s.WavelengthsDone; ++i)
      column.Line(nanometres(i), TextColour(s.WavelengthColours[static_cast<std::size_t>(i)]));
    return;
  }
  const bool falling = s.WavelengthList[1] > s.WavelengthList.back();
  column.Line(nanometres(falling ? s.ResultWavelengths : 1) + " to " + nanometres(falling ? 1 : s.ResultWavelengths));
}

/// Intensities straight forward and straight back, of the sphere even where the graph leaves those rows out.
void PrintEndIntensities(const Session& session, ReadingColumn& column) {
  const auto& s = session.state;
  if (s.Waves.Terms() < 1) return;
  const double scale = session.form1.mnuSize.Checked ? s.SizeParameter : 1;
  const auto intensity = [scale](const ComplexD& S) { return (S.re * S.re + S.im * S.im) / (scale * scale); };
  column.Line("  0 deg: " + Format(intensity(ForwardAmplitude(s.Waves)), "scientific"));
  column.Line("  180 deg: " + Format(intensity(BackwardAmplitude(s.Waves)), "scientific"));
  column.Line("X = " + Format(s.SizeParameter, "#,##0.######"));
}

}  // namespace

bool ShowsReadings(const Session& session) {
  const auto& s = session.state;
  const auto& form = session.form1;
  const std::initializer_list<int> withEfficiencies = {1, 2, 13};
  if (s.ScreenWidthPx <= 800 || s.PrevGraphType == 20 || !form.mnuDataVisible.Checked) return false;
  return s.ResultWavelengths > 1 ||
         (form.mnuPlaneWave.Checked && std::ranges::find(withEfficiencies, s.ResultMethod) != withEfficiencies.end());
}

void VisibleData(Session& session) {
  const auto& s = session.state;
  auto& surface = *session.surface;
  const Colour before = surface.ForeColour;
  surface.ForeColour = surface.BackColour;
  surface.Line(left, 0, surface.ScaleWidth(), stripBottom, LineKind::FilledBox);
  surface.ForeColour = colours::Black;
  const bool shown = ShowsReadings(session);
  if (shown && s.ResultWavelengths > 1) {
    ReadingColumn column(surface);
    PrintSpectrum(s, column);
  } else if (shown) {
    ReadingColumn column(surface);
    PrintEfficiencies(s, column);
    if (s.PrevGraphType == 1 && s.PrevGraphSubType == 3) {
      column.Line("Scattered power = " + Significant(s.ScatteredPower, digitsShown) + " W");
      column.Line("Backscattered power = " + Significant(s.BackscatteredPower, digitsShown) + " W");
    }
    if (s.PrevGraphType == 1) PrintEndIntensities(session, column);
  }
  surface.ForeColour = before;
}

void PrintTitle(Session& session) {
  const auto& s = session.state;
  auto& surface = *session.surface;
  constexpr double titleTop = 520, titleSize = 10;  // above the graph box; no more than its own lines is wiped
  const Colour before = surface.ForeColour;
  const double top = s.GraphTop - titleTop;
  surface.ForeColour = surface.BackColour;
  surface.Line(s.GraphLeft, top + 70, s.GraphRight, s.GraphTop - 190, LineKind::FilledBox);
  surface.ForeColour = colours::Black;
  surface.FontSize = titleSize;
  surface.FontBold = true;
  surface.CurrentX = s.GraphLeft;
  surface.CurrentY = top + 80;
  surface.Print(s.DrawnTitle, false);
  surface.FontSize = 8;
  surface.FontBold = false;
  surface.ForeColour = RGB(96, 96, 96);
  const std::string& label = s.DrawnLabel;
  surface.CurrentX = s.GraphRight - surface.TextWidth(label);
  surface.CurrentY = top + 120;
  surface.Print(label);
  surface.ForeColour = before;
}

}  // namespace lumivex
