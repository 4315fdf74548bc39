#include "colour/wavelength_colour.h"

#include <algorithm>
#include <cmath>

namespace lumivex {

namespace {

ColourTriple Times(double factor, ColourTriple c) {
  return {factor * c.r, factor * c.g, factor * c.b};
}

/// Below it a ratio counts as this: the ramp starts at black, not at a hole.
constexpr double smallestRatio = 1e-6;

/// Channels from -1 to 1 of y, which counts the bands of the rainbow.
ColourTriple Rainbow(double y, bool paleEnd) {
  if (y > -1) return {1, y + 1, y + 1};
  if (y > -2) return {1, -1 - y, 0};
  if (y > -3) return {y + 3, 1, 0};
  if (y > -3.5) return {0, 1, (-3 - y) / (y + 4)};
  if (y > -4) return {0, (y + 4) / (-3 - y), 1};
  if (y > -5) return {-4 - y, 0, 1};
  const double t = std::min(-5 - y, 1.0);
  if (paleEnd) return Times(1 / 255.0, {255 - 10 * t, 245 * t, 255 - 10 * t});
  return {1 - t, 0, 1 - t};
}

}  // namespace

ColourTriple colRGB2(double lambda) {
  const double w = 1000 * lambda;
  if (w <= 440) return Times(255, {1.25 * 0.016666 * (440 - w), 0, 1});
  if (w <= 490) return Times(255, {0, 0.02 * (w - 440), 1});
  if (w < 510) return Times(255, {0, 1, 0.05 * (510 - w)});
  if (w < 580) return Times(255, {0.0142857 * (w - 510), 1, 0});
  if (w < 645) return Times(255, {1, 0.015384 * (645 - w), 0});
  return {255, 0, 0};
}

ColourTriple colrgb3(double lambda) {
  const double w = 1000 * lambda;
  if (w > 700) return {0, 0, 0};
  if (w > 650) return {255, 0, 0};
  if (w > 580) return Times(255, {1, 1 - (w - 580) / 70, 0});
  if (w > 550) return Times(255, {(w - 550) / 30, 1, 0});
  if (w > 500) return Times(255, {0, 1, 1 - (w - 500) / 50});
  if (w > 470) return Times(255, {0, (w - 450) / 50, 1});
  if (w > 450) return Times(255, {1 - (w - 380) / 90, (w - 450) / 50, 1});
  if (w >= 380) return Times(255, {1 - (w - 380) / 90, 0, 1});
  return {0, 0, 0};
}

ColourTriple Saturation(ColourTriple cell, SaturationRule rule) {
  const double greatest = std::max({cell.r, cell.g, cell.b});
  if (!(greatest > 255)) return cell;
  switch (rule) {
    case SaturationRule::Photo:
      return {std::min(cell.r, 255.0), std::min(cell.g, 255.0), std::min(cell.b, 255.0)};
    case SaturationRule::PeakWhite:
      return {255, 255, 255};
    case SaturationRule::Freeze:
      break;
  }
  return Times(255 / greatest, cell);
}

double TransferCurve(double channel) {
  return channel > 4.59 ? 255 * (1.099 * std::pow(channel / 255, 0.45) - 0.099) : 4.5 * channel;
}

ColourTriple GammaCorrect(ColourTriple cell, GammaRule rule) {
  if (rule == GammaRule::None) return cell;
  if (rule == GammaRule::IndividualRGB) return {TransferCurve(cell.r), TransferCurve(cell.g), TransferCurve(cell.b)};
  const double greatest = std::max({cell.r, cell.g, cell.b});
  return greatest > 0 ? Times(TransferCurve(greatest) / greatest, cell) : cell;
}

ColourTriple RatioColour(double ratio) {
  const double x = std::max(ratio, smallestRatio);
  if (x <= 0.5) return {0, 0, 510 * x};
  if (x <= 1) return {0, 510 * (x - 0.5), 510 * (x + 0.5)};
  if (x <= 2) return {255 * (x - 1), 255, 255 * (2 - x)};
  if (x <= 3) return {255, 255 * (3 - x), 0};
  if (x <= 4) return {255, 255 * (x - 3), 255 * (x - 3)};
  return {255, 255, 255};
}

ColourTriple LogarithmColour(double logarithm, bool paleEnd) {
  if (std::isnan(logarithm)) return paleEnd ? ColourTriple{245, 245, 245} : ColourTriple{};
  return Times(255, Rainbow(2.5 * logarithm, paleEnd));
}

}  // namespace lumivex
