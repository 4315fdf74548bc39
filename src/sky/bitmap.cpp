#include "sky/bitmap.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace lumivex {

namespace {

/// Columns or rows of the picture that a cell takes the mean of; first > last for one beside the picture.
struct Span {
  int first = 0, last = -1;
};

std::vector<Span> SpansOf(double begin, double scale, int cells, int pixels) {
  std::vector<Span> spans(static_cast<std::size_t>(cells));
  for (int i = 0; i < cells; ++i) {
    const double low = begin + scale * i, high = begin + scale * (i + 1);
    const double middle = 0.5 * (low + high);
    if (!(middle >= 0 && middle < pixels)) continue;
    const double first = scale > 1 ? std::floor(low + 0.5) : std::floor(middle);
    const double last = scale > 1 ? std::floor(high + 0.5) - 1 : first;
    const auto within = [&](double at) { return static_cast<int>(std::clamp(at, 0.0, double(pixels - 1))); };
    spans[static_cast<std::size_t>(i)] = {within(first), within(std::max(first, last))};
  }
  return spans;
}

std::uint32_t MeanOf(const Bitmap& picture, Span columns, Span rows) {
  std::array<std::uint64_t, 3> sum{};
  for (int y = rows.first; y <= rows.last; ++y) {
    const std::uint32_t* row = picture.Row(y);
    for (int x = columns.first; x <= columns.last; ++x)
      for (int c = 0; c < 3; ++c) sum[static_cast<std::size_t>(c)] += ChannelOf(row[x], c);
  }
  const auto count = static_cast<std::uint64_t>(columns.last - columns.first + 1) *
                     static_cast<std::uint64_t>(rows.last - rows.first + 1);
  const auto mean = [&](std::size_t c) { return static_cast<std::uint32_t>((sum[c] + count / 2) / count); };
  return OpaquePixel(mean(0), mean(1), mean(2));
}

}  // namespace

Bitmap Resampled(const Bitmap& picture, const PictureWindow& window, int columns, int rows, std::uint32_t beside) {
  Bitmap raster(columns, rows, beside);
  const auto across = SpansOf(window.left, window.scale, columns, picture.width);
  const auto down = SpansOf(window.top, window.scale, rows, picture.height);
  for (int j = 0; j < rows; ++j) {
    const Span lines = down[static_cast<std::size_t>(j)];
    if (lines.first > lines.last) continue;
    for (int i = 0; i < columns; ++i)
      if (const Span cell = across[static_cast<std::size_t>(i)]; cell.first <= cell.last)
        raster.Row(j)[i] = MeanOf(picture, cell, lines);
  }
  return raster;
}

void Invert(Bitmap& picture) {
  for (std::uint32_t& pixel : picture.pixels) pixel ^= 0x00FFFFFFU;
}

void SaturateColours(Bitmap& picture) {
  for (std::uint32_t& pixel : picture.pixels) {
    const std::uint32_t r = ChannelOf(pixel, 0), g = ChannelOf(pixel, 1), b = ChannelOf(pixel, 2);
    const std::uint32_t most = std::max({r, g, b});
    if (most == 0) continue;
    const auto full = [most](std::uint32_t channel) { return (255 * channel + most / 2) / most; };
    pixel = OpaquePixel(full(r), full(g), full(b));
  }
}

}  // namespace lumivex
