#include "pages/bars/bar_light.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>
#include <vector>

#include "colour/wavelength_colour.h"

namespace lumivex {

namespace {

constexpr double notComputed = std::numeric_limits<double>::quiet_NaN();
constexpr std::size_t perpendicular = 0, parallel = 1, unpolarised = 2;

std::size_t At(int row) {
  return static_cast<std::size_t>(row);
}

SharedValues MeanOf(const SharedValues& a, const SharedValues& b) {
  std::vector<double> mean(a.size());
  for (std::size_t j = 0; j < mean.size(); ++j) mean[j] = (a[j] + b[j]) / 2;
  return mean;
}

/// A column of the sums, not a number outside the rows that were calculated.
SharedValues Column(const RunToDraw& run, const AngleRows& rows, const Table2D& table, std::size_t column) {
  std::vector<double> values(table.rows, notComputed);
  for (int row = rows.window.low; row <= rows.window.high; ++row) values[At(row)] = table.At(At(row), column);
  return SeenUnderSun(run, values);
}

void TakeSums(const RunToDraw& run, const AngleRows& rows, PageBars& bars) {
  const SpectrumSums sums = SumsOf(run.results, {.invWavelength = run.look.invWavelength});
  for (std::size_t c = 0; c < 3; ++c) {
    bars.light[perpendicular].channels[c] = Column(run, rows, sums.perpendicular, c + 1);
    bars.light[parallel].channels[c] = Column(run, rows, sums.parallel, c + 1);
  }
}

/// The rows of one wavelength as the sums have them.
std::vector<double> Rows(const RunToDraw& run, const AngleRows& rows, std::span<const double> intensities,
                         double weight) {
  std::vector<double> values(At(2 * rows.NANG), notComputed);
  for (std::size_t i = 0; i < intensities.size(); ++i) values[At(rows.window.low) + i] = weight * intensities[i];
  return SeenUnderSun(run, values);
}

/// Finds, row by row, the wavelength of the most light.
class Strongest {
 public:
  explicit Strongest(std::size_t rows) : most_(rows, 0.0), wavelength_(rows, notComputed) {}

  template <class Light>
  void Try(double nm, Light&& light) {
    for (std::size_t j = 1; j < most_.size(); ++j) {
      const double value = light(j);
      if (!(value > most_[j])) continue;
      most_[j] = value;
      wavelength_[j] = nm;
    }
  }
  std::vector<double> Take() { return std::move(wavelength_); }

 private:
  std::vector<double> most_, wavelength_;
};

void FindStrongest(const RunToDraw& run, const AngleRows& rows, int done, PageBars& bars) {
  const CurveLook look{.invWavelength = run.look.invWavelength};
  const auto& light = *run.results.asked.light.spectrum;
  const std::size_t size = At(2 * rows.NANG);
  Strongest first(size), second(size), both(size);
  for (int i = 1; i <= done; ++i) {
    const WavelengthLight one = LightOfWavelength(run.results, look, i);
    const auto a = Rows(run, rows, one.perpendicular, one.weight), b = Rows(run, rows, one.parallel, one.weight);
    const double nm = 1000 * double{light.wavelength[At(i)]};
    first.Try(nm, [&](std::size_t j) { return a[j]; });
    second.Try(nm, [&](std::size_t j) { return b[j]; });
    both.Try(nm, [&](std::size_t j) { return a[j] + b[j]; });
  }
  bars.light[perpendicular].strongest = first.Take();
  bars.light[parallel].strongest = second.Take();
  bars.light[unpolarised].strongest = both.Take();
}

void TakeOneWavelength(const RunToDraw& run, PageBars& bars) {
  const Curves curves = CurvesOf(run.results, {.invWavelength = run.look.invWavelength});
  const ColourTriple triple = colRGB2(run.results.asked.light.lambda);
  const std::array shares = {triple.r / 255, triple.g / 255, triple.b / 255};
  bars.channelOfUnit = std::max({shares[0], shares[1], shares[2]});
  const auto take = [&](const std::vector<double>& curve, BarLight& light) {
    const std::vector<double> seen = SeenUnderSun(run, curve);
    for (std::size_t c = 0; c < 3; ++c) {
      std::vector<double> channel = seen;
      for (double& value : channel) value *= shares[c];
      light.channels[c] = std::move(channel);
    }
  };
  take(curves.perpendicular, bars.light[perpendicular]);
  take(curves.parallel, bars.light[parallel]);
}

/// The disc of the sun needs neighbours: beside the ends of what was calculated it has no sums.
void FindRows(const AngleRows& rows, PageBars& bars) {
  const SharedValues& values = bars.light[perpendicular].channels[0];
  bars.first = At(std::max(rows.window.low, 1));
  bars.last = std::min(At(rows.window.high), values.size() - 1);
  while (bars.first <= bars.last && !std::isfinite(values[bars.first])) ++bars.first;
  while (bars.last >= bars.first && !std::isfinite(values[bars.last])) --bars.last;
}

}  // namespace

namespace {

/// The light over the sky in the colours of the bars: that of one wavelength has its colour.
std::shared_ptr<const DropSky> SkyOf(const Results& results) {
  auto sky = std::make_shared<DropSky>(results.sky);
  if (results.asked.light.spectrum) return sky;
  const ColourTriple triple = colRGB2(results.asked.light.lambda);
  const auto tint = [](std::vector<float>& channel, double share) {
    for (float& value : channel) value = static_cast<float>(share / 255 * double{value});
  };
  tint(sky->red, triple.r);
  tint(sky->green, triple.g);
  tint(sky->blue, triple.b);
  return sky;
}

}  // namespace

bool HasBars(const PageKind& kind) {
  return kind.graph.AgainstAngle() && kind.graph.quantity == Quantity::Intensity &&
         kind.graph.drawing == Drawing::Curves && !kind.polar && !kind.fourier;
}

std::optional<PageBars> PlotN(const RunToDraw& run) {
  const AngleRows* rows = RowsOf(run.results.asked.run);
  const auto* spectrum = run.results.Find<SpectrumFound>();
  if (rows == nullptr || (spectrum != nullptr && spectrum->done < 1)) return std::nullopt;
  PageBars bars;
  bars.angle = AnglesOf(*rows);
  bars.step = rows->step;
  if (spectrum != nullptr) {
    TakeSums(run, *rows, bars);
    FindStrongest(run, *rows, spectrum->done, bars);
  } else {
    TakeOneWavelength(run, bars);
  }
  for (std::size_t c = 0; c < 3; ++c)
    bars.light[unpolarised].channels[c] =
        MeanOf(bars.light[perpendicular].channels[c], bars.light[parallel].channels[c]);
  FindRows(*rows, bars);
  // Sums that are freed of the wave number have another unit.
  if (run.results.sky.sectors > 0 && !run.look.invWavelength) bars.sky = SkyOf(run.results);
  return bars;
}

}  // namespace lumivex
