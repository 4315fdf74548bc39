#include "pages/photograph/sky_light.h"

#include <algorithm>
#include <cmath>

#include "pages/maps/map_cells.h"
#include "runs/results.h"

namespace lumivex {

namespace {

/// Factor that makes linear channels of sums; 0 leaves all dark. Where every cell is as bright as it can be, whoever
/// paints scales it: here only the ratios of the channels count.
double FactorOf(const ColourRules& rules, double reference) {
  const double brightness = rules.saturated ? 1 : std::abs(rules.brightness);
  return reference > 0 ? brightness * 255 / reference : 0;
}

ColourTriple Scaled(double factor, double red, double green, double blue) {
  const auto channel = [factor](double c) { return std::isfinite(c) ? std::max(0.0, factor * c) : 0.0; };
  return {channel(red), channel(green), channel(blue)};
}

/// The light of flattened drops along the clock, for the rows that a table has.
void TakeSectors(const DropSky& sky, double factor, LightTable& table) {
  const auto before = static_cast<std::ptrdiff_t>(std::nearbyint(table.first / table.step)) + 1 - sky.rows.low;
  const auto count = std::ssize(table.rows);
  if (before < 0 || before + count > sky.RowCount()) return;
  for (int sector = 0; sector < sky.sectors; ++sector) {
    auto& rows = table.sectors.emplace_back();
    for (std::ptrdiff_t row = 0; row < count; ++row) {
      const auto cell = static_cast<std::size_t>(sector * sky.RowCount() + before + row);
      const ColourTriple light = Scaled(factor, double{sky.red[cell]}, double{sky.green[cell]}, double{sky.blue[cell]});
      rows.push_back({light, light});
    }
  }
}

int NearestColumn(const SampleAxis& radii, double radius) {
  int nearest = 0;
  double least = INFINITY;
  for (int i = 0; i < radii.count; ++i) {
    const double at = radii.At(i);
    const double ratio = at > 0 ? std::abs(std::log(at / radius)) : INFINITY;
    if (ratio < least) least = ratio, nearest = i;
  }
  return nearest;
}

}  // namespace

std::optional<LightTable> LightOfBars(const Page& page, XRange range, const ColourRules& rules) {
  if (!page.bars || page.bars->last < page.bars->first) return std::nullopt;
  const PageBars& bars = *page.bars;
  const double factor = FactorOf(rules, bars.reference);
  LightTable table;
  table.step = bars.step;
  bool begun = false;
  const double beyond = 1e-6 * bars.step;
  for (std::size_t row = bars.first; row <= bars.last && row < bars.angle.size(); ++row) {
    // Rows at the ends that the disc of the sun reaches beyond are no numbers; those that it looks at beside the range
    // are none of the run's.
    const bool within = bars.angle[row] >= range.xmin - beyond && bars.angle[row] <= range.xmax + beyond;
    const bool known = within && std::isfinite(bars.light[0].channels[0][row]);
    if (!known && !begun) continue;
    if (!known) break;
    if (!begun) table.first = bars.angle[row];
    begun = true;
    const auto light = [&](std::size_t k) {
      const auto& [red, green, blue] = bars.light[k].channels;
      return Scaled(factor, red[row], green[row], blue[row]);
    };
    table.rows.push_back({light(0), light(1)});
  }
  if (table.rows.empty()) return std::nullopt;
  if (bars.sky) TakeSectors(*bars.sky, factor, table);
  return table;
}

std::optional<LeeLight> LightOfLee(const Page& page, double radius, const ColourLook& look, double lambda) {
  const bool overRadius = page.map && page.map->values && page.kind.graph.ColumnsOfAngles() &&
                          page.map->across.name == "Radius" && page.map->values->panels.size() >= 2;
  if (!overRadius || !(radius > 0)) return std::nullopt;
  const PageMap& map = *page.map;
  const MapFound& found = *map.values;
  const int column = NearestColumn(map.across.samples, radius);
  if (column >= found.done) return std::nullopt;
  const int count = map.up.samples.count;
  const PictureCells perpendicular(found, 0), parallel(found, 1);
  const ShownRows rows{map.lowest, count};
  const double reference = look.absolute ? map.scaleMaximum
                                         : std::max(GreatestOf(found, perpendicular, column, rows),
                                                    GreatestOf(found, parallel, column, rows));
  const double factor = FactorOf(look.rules, reference);
  // Of one wavelength cells hold intensities: the light has its colour, which is full at 255.
  const ColourTriple single = colRGB2(lambda);
  const auto light = [&](const PictureCells& cells, int row) {
    const std::size_t cell = found.At(column, map.lowest + row);
    if (cells.OfSpectrum()) {
      const auto channels = cells.Channels(cell);
      return Scaled(factor, channels[0], channels[1], channels[2]);
    }
    const double value = cells.Value(cell) / 255;
    return Scaled(factor, value * single.r, value * single.g, value * single.b);
  };
  LeeLight lee;
  lee.radius = map.across.samples.At(column);
  lee.table.first = map.up.samples.first;
  lee.table.step = count > 1 ? (map.up.samples.last - map.up.samples.first) / (count - 1) : 1;
  for (int row = 0; row < count; ++row) lee.table.rows.push_back({light(perpendicular, row), light(parallel, row)});
  return lee;
}

}  // namespace lumivex
