#include "ui/night_colours.h"

#include <QGuiApplication>
#include <QPalette>
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

#include "ui/painter_surface.h"

namespace lumivex {

namespace {

constexpr QRgb ground = 0xFF18181C;  // of the plot, darker than any desktop's window
constexpr double leastContrast = 4;
constexpr Colour paleGround{0xE0FFFF};

/// Lines that stay behind the curves, by the colour that they have on light paper; dark ones are as wanted already.
struct Quiet {
  Colour light;
  QRgb dark;
};
constexpr std::array quietColours = {Quiet{{0xFFFF80}, 0xFF2C4A4E}, Quiet{{0xC8C8C8}, 0xFF48484E},
                                     Quiet{{0x404040}, 0xFF404040}, Quiet{{0x646464}, 0xFF646464}};

double Luminance(const QColor& colour) {
  const auto part = [](double c) { return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); };
  return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) + 0.0722 * part(colour.blueF());
}

bool Reads(const QColor& ink) {
  return Luminance(ink) + 0.05 >= leastContrast * (Luminance(QColor(ground)) + 0.05);
}

}  // namespace

QColor NightFill(Colour colour) {
  if (colour == colours::ButtonFace) return QGuiApplication::palette().color(QPalette::Window);
  return colour == paleGround ? QColor(ground) : ToQColor(colour);
}

QColor NightInk(Colour colour) {
  for (const auto& quiet : quietColours)
    if (colour == quiet.light) return QColor(quiet.dark);
  QColor ink = ToQColor(colour);
  if (Reads(ink)) return ink;
  constexpr int neutral = 8, nearWhite = 225;
  const auto [least, most] = std::minmax({ink.red(), ink.green(), ink.blue()});
  if (most - least <= neutral) {
    const int grey = nearWhite - most / 2;
    return {grey, grey, grey};
  }
  float hue = 0, saturation = 0, lightness = 0;
  ink.getHslF(&hue, &saturation, &lightness);
  // A second curve is the darker one of its colour on light paper; here it is the paler one.
  lightness = std::max(lightness, 1 - 0.8F * lightness);
  ink.setHslF(hue, saturation, lightness);
  while (!Reads(ink) && lightness < 0.95F) {
    lightness += 0.02F;
    ink.setHslF(hue, saturation, lightness);
  }
  return ink;
}

}  // namespace lumivex
