#include "pages/colours/cell_colours.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace lumivex {

namespace {

/// The transfer curve followed by rounding, for pictures of a million cells: where each whole value begins.
class RoundedTransfer {
 public:
  RoundedTransfer() {
    for (std::size_t k = 1; k < begins_.size(); ++k) begins_[k] = BeginOf(static_cast<double>(k));
    std::size_t k = 0;
    for (std::size_t bin = 0; bin < atBin_.size(); ++bin) {
      while (k < 255 && begins_[k + 1] <= static_cast<double>(bin) * binWidth) ++k;
      atBin_[bin] = static_cast<unsigned char>(k);
    }
  }

  /// @param channel  0 to 255.
  std::uint32_t operator()(double channel) const {
    const auto bin = static_cast<std::size_t>(channel / binWidth);
    std::size_t k = atBin_[std::min(bin, atBin_.size() - 1)];
    while (k < 255 && channel >= begins_[k + 1]) ++k;
    return static_cast<std::uint32_t>(k);
  }

 private:
  static constexpr double binWidth = 1.0 / 16;

  /// The smallest channel that becomes `value`.
  static double BeginOf(double value) {
    double below = 0, at = 255;
    while (std::nextafter(below, at) < at) {
      const double middle = below + (at - below) / 2;
      (std::nearbyint(TransferCurve(middle)) >= value ? at : below) = middle;
    }
    return at;
  }

  std::array<double, 256> begins_{};
  std::array<unsigned char, 255 * 16 + 1> atBin_{};
};

Colour Transferred(ColourTriple cell) {
  static const RoundedTransfer curve;
  return Colour{curve(cell.r) | (curve(cell.g) << 8U) | (curve(cell.b) << 16U)};
}

}  // namespace

CellColours::CellColours(const ColourRules& rules, double reference) : rules_(rules) {
  if (reference > 0) factor_ = std::abs(rules.brightness) * 255 / reference;
}

Colour CellColours::Of(double red, double green, double blue) const {
  double factor = factor_;
  if (rules_.saturated) {
    const double greatest = std::max({red, green, blue});
    factor = greatest > 0 ? 255 / greatest : 0;
  }
  if (!(factor > 0)) return colours::Black;
  ColourTriple cell{factor * red, factor * green, factor * blue};
  if (cell.r > 255 || cell.g > 255 || cell.b > 255) cell = Saturation(cell, rules_.saturation);
  const bool inRange = cell.r >= 0 && cell.g >= 0 && cell.b >= 0 && cell.r <= 255 && cell.g <= 255 && cell.b <= 255;
  if (rules_.gamma == GammaRule::IndividualRGB && inRange) return Transferred(cell);
  cell = GammaCorrect(cell, rules_.gamma);
  return RGB(cell.r, cell.g, cell.b);
}

}  // namespace lumivex
