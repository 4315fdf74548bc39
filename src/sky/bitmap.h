#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace lumivex {

/// A picture of 8-bit channels: rows from the top, pixels from the left, red in the low byte, then green, blue, and 255
/// on top, so that a window system takes the pixels as they stand.
struct Bitmap {
  int width = 0, height = 0;
  std::vector<std::uint32_t> pixels;

  Bitmap() = default;
  Bitmap(int columns, int rows, std::uint32_t pixel = 0xFF000000U)
      : width(columns),
        height(rows),
        pixels(static_cast<std::size_t>(columns) * static_cast<std::size_t>(rows), pixel) {}

  bool Empty() const { return pixels.empty(); }
  std::uint32_t* Row(int y) { return pixels.data() + static_cast<std::ptrdiff_t>(y) * width; }
  const std::uint32_t* Row(int y) const { return pixels.data() + static_cast<std::ptrdiff_t>(y) * width; }
};

using SharedBitmap = std::shared_ptr<const Bitmap>;

constexpr std::uint32_t OpaquePixel(std::uint32_t red, std::uint32_t green, std::uint32_t blue) {
  return 0xFF000000U | red | (green << 8U) | (blue << 16U);
}
constexpr std::uint32_t ChannelOf(std::uint32_t pixel, int channel) {
  return (pixel >> (8U * static_cast<unsigned>(channel))) & 0xFFU;
}

/// A place of a picture: x to the right and y down from its top left corner, in pixels. The pixel of column x and row y
/// is the point (x, y).
struct PicturePoint {
  double x = 0, y = 0;
};

/// What of a picture fills a raster: its corner, and pixels of the picture to one of the raster.
struct PictureWindow {
  double left = 0, top = 0, scale = 1;
};

/// The picture on a raster of columns x rows. Where it is made smaller each cell is the mean of its pixels, where it is
/// made larger the nearest pixel; cells beside the picture have the colour `beside`.
Bitmap Resampled(const Bitmap& picture, const PictureWindow& window, int columns, int rows, std::uint32_t beside);

/// Each channel becomes 255 - channel.
void Invert(Bitmap& picture);
/// Each pixel is scaled until its greatest channel is 255; a black one stays.
void SaturateColours(Bitmap& picture);

}  // namespace lumivex
