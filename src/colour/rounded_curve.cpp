#include "colour/rounded_curve.h"

#include <cmath>
#include <limits>

#include "colour/wavelength_colour.h"

namespace lumivex {

RoundedCurve::RoundedCurve(bool bent, double factor, double offset) {
  const auto valueOf = [=](double channel) {
    return std::nearbyint(offset + factor * (bent ? TransferCurve(channel) : channel));
  };
  const double lowest = valueOf(0), highest = valueOf(255);
  for (std::size_t k = 1; k < begins_.size(); ++k) {
    const auto value = static_cast<double>(k);
    if (value <= lowest) continue;
    begins_[k] = std::numeric_limits<double>::infinity();
    if (value > highest) continue;
    double below = 0, at = 255;
    while (std::nextafter(below, at) < at) {
      const double middle = below + (at - below) / 2;
      (valueOf(middle) >= value ? at : below) = middle;
    }
    begins_[k] = at;
  }
  std::size_t k = 0;
  for (std::size_t bin = 0; bin < atBin_.size(); ++bin) {
    while (k < 255 && begins_[k + 1] <= static_cast<double>(bin) * binWidth) ++k;
    atBin_[bin] = static_cast<unsigned char>(k);
  }
}

}  // namespace lumivex
