#include "pages/maps/map_colours.h"

#include <cmath>

#include "axes/scale_rules.h"
#include "pages/colours/cell_colours.h"
#include "record/number_text.h"

namespace lumivex {

namespace {

/// White on the ramp of ratios, and the end of the key of decades.
constexpr double whiteRatio = 4, lastOfKey = -7;
constexpr int cellsOfKey = 700;

/// Colours of one column.
class ColumnInk {
 public:
  ColumnInk(const PictureCells& cells, const MapInk& ink, int column, double reference)
      : cells_(cells),
        ink_(ink),
        reference_(reference),
        colours_(ink.look->rules, reference),
        light_(ink.light.empty() ? ColourTriple{} : ink.light[static_cast<std::size_t>(column)]) {}

  Colour Of(std::size_t cell) const {
    if (ink_.look->falseColours) {
      const double value = cells_.Greatest(cell);
      return std::isnan(value) ? ink_.ground : ink_.falseColours.ColourOf(value, reference_);
    }
    if (cells_.OfSpectrum()) {
      const auto [red, green, blue] = cells_.Channels(cell);
      return std::isnan(red) ? ink_.ground : colours_.Of(red, green, blue);
    }
    const double value = cells_.Value(cell);
    return std::isnan(value) ? ink_.ground : colours_.Of(value * light_.r, value * light_.g, value * light_.b);
  }

 private:
  const PictureCells& cells_;
  const MapInk& ink_;
  double reference_;
  CellColours colours_;
  ColourTriple light_;
};

}  // namespace

std::optional<double> FalseColourRule::PositionOf(double value, double reference) const {
  if (!(reference > 0)) return std::nullopt;
  const double part = value / reference;
  if (ratio) return brightness > 0 ? whiteRatio * part / brightness : part;
  if (!(value > 0)) return std::nullopt;
  return ramp == FalseColours::Greys ? part : Log10Guarded(part) / brightness;
}

Colour FalseColourRule::ColourOf(double value, double reference) const {
  const auto x = PositionOf(value, reference);
  return x ? ColourScale(*x, ramp) : colours::Black;
}

FalseColourRule FalseColoursFor(const ColourLook& look, const Graph& graph) {
  FalseColourRule rule;
  rule.ratio = graph.quantity == Quantity::Efficiencies;
  rule.brightness = std::abs(look.rules.brightness);
  if (look.greyScale)
    rule.ramp = FalseColours::Greys;
  else if (rule.ratio)
    rule.ramp = FalseColours::Ratio;
  else
    rule.ramp = look.paleEnd ? FalseColours::RainbowPale : FalseColours::Rainbow;
  return rule;
}

ColourKey KeyOf(const FalseColourRule& rule) {
  const bool greys = rule.ramp == FalseColours::Greys, decades = !greys && !rule.ratio;
  const double last = decades ? lastOfKey : greys ? 1 : whiteRatio;
  ColourKey key;
  for (int i = 0; i < cellsOfKey; ++i) key.cells.push_back(ColourScale(last * (i + 0.5) / cellsOfKey, rule.ramp));
  key.words = decades ? "decades" : "of maximum";
  const double full = decades ? last : 1;
  const int numbers = decades ? 7 : 4;
  const double scale = decades || (rule.ratio && rule.brightness > 0) ? rule.brightness : 1;
  // A quarter of the ratio is white where greys show ratios.
  const double white = greys && rule.ratio && rule.brightness > 0 ? 1 / whiteRatio : 1;
  for (int i = 0; i <= numbers; ++i) {
    const double part = static_cast<double>(i) / numbers;
    key.numbers.push_back({part, Significant(part * full * scale * white, 4)});
  }
  return key;
}

std::vector<Colour> ColoursOf(const MapFound& found, std::size_t picture, ShownRows rows, const MapInk& ink) {
  const PictureCells cells(found, picture);
  const auto columns = static_cast<std::size_t>(found.columns), count = static_cast<std::size_t>(rows.count);
  std::vector<Colour> colours(columns * count, ink.ground);
  if (colours.empty()) return colours;  // none of the rows is in view
  for (int column = 0; column < found.done; ++column) {
    const double reference = ink.look->absolute ? ink.scaleMaximum : GreatestOf(found, cells, column, rows);
    const ColumnInk of(cells, ink, column, reference);
    Colour* to = &colours[static_cast<std::size_t>(column)];
    const std::size_t first = found.At(column, rows.lowest);
    for (std::size_t row = 0; row < count; ++row) to[(count - 1 - row) * columns] = of.Of(first + row);
  }
  return colours;
}

}  // namespace lumivex
