#include "pages/spectrum_graph.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include "axes/curve_smoothing.h"
#include "axes/scale_rules.h"
#include "pages/frame.h"
#include "pages/line_graph.h"
#include "pages/spectrum_sums.h"
#include "pages/two_panels.h"
#include "record/number_text.h"

namespace lumivex {

namespace {

/// Most wavelengths whose curves can be told apart.
constexpr int mostCurvesApart = 7;

constexpr int perpendicularKind = 1, parallelKind = 2, unpolarisedKind = 3;

/// The curve kinds that cboPol asks for, in the order in which they are drawn.
std::vector<int> KindsAsked(std::string_view polarisation) {
  const bool all = polarisation == "All 3", both = polarisation == "Both";
  std::vector<int> kinds;
  if (all || both || polarisation.starts_with("Parallel")) kinds.push_back(parallelKind);
  if (all || polarisation == "Unpolarised") kinds.push_back(unpolarisedKind);
  if (all || both || polarisation.starts_with("Perpendicular")) kinds.push_back(perpendicularKind);
  return kinds;
}

const std::vector<double>& CurveOfKind(const SpectrumCurves& curves, int kind) {
  return kind == perpendicularKind ? curves.perpendicular : kind == parallelKind ? curves.parallel : curves.unpolarised;
}

/// The highest and the lowest value of all wavelengths in each row, from which the scale is chosen.
SpectrumCurves Envelope(const Session& session) {
  const auto& s = session.state;
  SpectrumCurves envelope = CurvesOfWavelength(session, 1);
  auto& high = envelope.perpendicular;
  auto& low = envelope.parallel;
  for (std::size_t j = 0; j < high.size(); ++j)
    if (high[j] < low[j]) std::swap(high[j], low[j]);
  for (int wavelength = 2; wavelength <= s.WavelengthsDone; ++wavelength) {
    const SpectrumCurves curves = CurvesOfWavelength(session, wavelength);
    for (std::size_t j = 0; j < high.size(); ++j) {
      high[j] = AMAX(high[j], AMAX(curves.perpendicular[j], curves.parallel[j]));
      low[j] = AMIN(low[j], AMIN(curves.perpendicular[j], curves.parallel[j]));
    }
  }
  return envelope;
}

/// A channel of the sums by row, as a source of the sun's width shows it.
std::vector<double> Channel(const Session& session, const Table2D& table, std::size_t column) {
  const auto& s = session.state;
  std::vector<double> values(s.XValues.size(), 0.0);
  for (int row = s.SpectrumRowLow; row <= s.SpectrumRowHigh; ++row) {
    const auto j = static_cast<std::size_t>(row);
    values[j] = table.At(j, column);
  }
  if (!session.form1.optSun.Checked || s.SunDiscWeight.size() < 2) return values;
  return FoldedWithDisc(values, {s.SunDiscWeight, s.SunDiscRows, s.SunDiscTotal}, static_cast<std::size_t>(s.NN));
}

/// Colour of each row, as bright as it can be. Sixteen steps a channel: more pieces of a curve cannot be seen.
std::vector<Colour> RowColours(const Session& session, const Table2D& table, double brightness) {
  const std::array channels = {Channel(session, table, 1), Channel(session, table, 2), Channel(session, table, 3)};
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

void PlotTotal(Session& session, int kind) {
  auto& s = session.state;
  const auto& table = kind == perpendicularKind ? s.ColourPerp : kind == parallelKind ? s.ColourPar : s.ColourMain;
  const auto& y = kind == perpendicularKind ? s.Iperp : kind == parallelKind ? s.Ipar : s.Iunpol;
  const double shade = kind == perpendicularKind ? 1 : kind == parallelKind ? 0.5 : 0.75;
  const double brightness = shade * FullBrightness(s.PlotBackColourSpectrum);
  s.CurveKind = kind;
  KeptCurve curve = CapturedCurve(session, y, 0);
  curve.colours = RowColours(session, table, brightness);
  curve.colour = RGB(160 * brightness, 160 * brightness, 160 * brightness);
  PlotCurve(session, std::move(curve));
}

}  // namespace

bool ShowsWavelengthsApart(const Session& session) {
  const auto& s = session.state;
  // Red comes first in "RGB" alone; bands rise.
  const bool components = s.ResultWavelengths == 3 && s.WavelengthList[1] > s.WavelengthList[2];
  if (components) return session.form1.chkComponents.Checked;
  return s.ResultWavelengths <= mostCurvesApart;
}

std::string WavelengthWords(const LightState& light, int wavelength) {
  const double nanometres = 1000 * double{light.WavelengthList[static_cast<std::size_t>(wavelength)]};
  return Format(nanometres, "0.#") + " nm";
}

void PlotColour(Session& session, int wavelength) {
  auto& s = session.state;
  session.platform.Yield();
  SpectrumCurves curves;
  if (wavelength > 0) {
    s.WavelengthIndex = wavelength;
    curves = CurvesOfWavelength(session, wavelength);
  }
  for (const int kind : KindsAsked(session.form1.cboPol.Text)) {
    if (s.PlotMode == 4) return;
    if (wavelength == 0) {
      PlotTotal(session, kind);
      continue;
    }
    s.CurveKind = kind;
    KeptCurve curve = CapturedCurve(session, CurveOfKind(curves, kind), 0);
    curve.colour = s.WavelengthColours[static_cast<std::size_t>(wavelength)];
    curve.name = WavelengthWords(s, wavelength) + ": " + curve.name;
    PlotCurve(session, std::move(curve));
  }
}

void PlotNColour(Session& session) {
  auto& s = session.state;
  if (session.form1.mnuIntPol.Checked) return DisplayTwoPanels(session);
  if (s.PlotMode == 4 || s.WavelengthsDone < 1) return;
  s.SecondPanel = 0;
  if (!ShowsWavelengthsApart(session)) {
    FrameInBox(session, WholeBox(s), {s.Iperp, s.Ipar, s.Iunpol});
    PlotColour(session, 0);
    return;
  }
  const SpectrumCurves scale = Envelope(session);
  FrameInBox(session, WholeBox(s), {scale.perpendicular, scale.parallel, scale.unpolarised});
  for (int wavelength = 1; wavelength <= s.WavelengthsDone; ++wavelength) PlotColour(session, wavelength);
}

}  // namespace lumivex
