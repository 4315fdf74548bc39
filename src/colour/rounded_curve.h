#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace lumivex {

/// What a channel becomes on the way to the screen, as a whole number: offset + factor times the channel, which the
/// transfer curve has bent or not. For pictures of millions of cells: it looks up where each whole number begins, so
/// that the result is that of the formula to the last channel.
class RoundedCurve {
 public:
  /// @param bent    whether channels go through TransferCurve.
  /// @param factor  above 0; offset + 255 factor is 255 at most.
  explicit RoundedCurve(bool bent = true, double factor = 1, double offset = 0);

  /// @param channel  0 to 255.
  std::uint32_t operator()(double channel) const {
    const auto bin = static_cast<std::size_t>(channel / binWidth);
    std::size_t k = atBin_[std::min(bin, atBin_.size() - 1)];
    while (k < 255 && channel >= begins_[k + 1]) ++k;
    return static_cast<std::uint32_t>(k);
  }

 private:
  static constexpr double binWidth = 1.0 / 16;
  std::array<double, 256> begins_{};  ///< the smallest channel that becomes a number
  std::array<unsigned char, 255 * 16 + 1> atBin_{};
};

}  // namespace lumivex
