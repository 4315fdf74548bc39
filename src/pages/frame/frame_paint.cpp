#include "pages/frame/frame_paint.h"

#include <algorithm>
#include <cmath>

namespace lumivex {

namespace {

/// Room between two labels (surface units).
constexpr double labelGap = 50;

/// Room between the longest tick and a label of the vertical axis.
constexpr double roomForTick = 130;

/// Left edge of the surface that text keeps from.
constexpr double surfaceMargin = 30;

constexpr double smallestFont = 6;

constexpr double slideFont = 14;

}  // namespace

void PrepareSurface(DrawingSurface& surface, const PageStyle& style) {
  surface.ForeColour = colours::Black;
  surface.FillStyle = 1;
  surface.DrawStyle = 0;
  surface.DrawWidth = 1;
  surface.FontName = "MS Sans Serif";
  surface.FontSize = style.special ? slideFont : 8;
  surface.FontBold = style.special;
}

bool TickLabels::HasRoom(double x, double y, double width, double height) const {
  return std::none_of(taken_.begin(), taken_.end(), [&](const GraphBox& box) {
    return x < box.right + labelGap && x + width + labelGap > box.left && y < box.bottom && y + height > box.top;
  });
}

bool TickLabels::Print(std::string_view text, double x, double y) {
  const double width = surface_->TextWidth(text);
  const double height = surface_->TextHeight(text);
  if (!HasRoom(x, y, width, height)) return false;
  Take(x, y, width, height);
  surface_->CurrentX = x;
  surface_->CurrentY = y;
  surface_->Print(text, false);
  return true;
}

double TickLabels::HighestTop(double left, double right, double otherwise) const {
  double top = otherwise;
  for (const auto& box : taken_)
    if (box.left < right && box.right > left) top = std::min(top, box.top);
  return top;
}

void TickLabels::Take(double x, double y, double width, double height) {
  taken_.push_back({x, x + width, y, y + height});
}

FramePaint::FramePaint(const Page& thePage, const PagePanel& thePanel, DrawingSurface& theSurface)
    : page(thePage),
      kind(thePage.kind),
      style(thePage.style),
      panel(thePanel),
      surface(theSurface),
      map{thePanel.box, thePanel.limits, thePage.kind.logX, thePanel.logY},
      labels(surface) {}

void FramePaint::Rule(double x1, double y1, double x2, double y2, Colour colour) const {
  surface.ForeColour = colour;
  surface.Line(x1, y1, x2, y2);
  surface.ForeColour = colours::Black;
}

void FramePaint::VerticalLine(double x, Colour colour) const {
  const bool atEnd = std::min(std::abs(x - Box().left), std::abs(x - Box().right)) < 1;
  Rule(x, Box().top, x, Box().bottom, atEnd ? colours::Black : colour);
}

void FramePaint::HorizontalLine(double y, Colour colour) const {
  const bool atEnd = std::min(std::abs(y - Box().top), std::abs(y - Box().bottom)) < 1;
  Rule(Box().left, y, Box().right, y, atEnd ? colours::Black : colour);
}

void FramePaint::TickBelow(double x, double length) const {
  Rule(x, Box().bottom, x, Box().bottom + length, colours::Black);
}

void FramePaint::TickLeft(double y, double length) const {
  Rule(Box().left - length, y, Box().left, y, colours::Black);
}

bool FramePaint::LabelBelow(std::string_view text, double x, double y) {
  const double width = surface.TextWidth(text);
  const double rightmost = std::max(surfaceMargin, surface.ScaleWidth() - width - surfaceMargin);
  return labels.Print(text, std::clamp(x - 0.5 * width, surfaceMargin, rightmost), y);
}

bool FramePaint::LabelLeft(std::string_view text, double y) {
  const double fontSize = surface.FontSize;
  const double room = Box().left - roomForTick - surfaceMargin;
  while (surface.TextWidth(text) > room && surface.FontSize > smallestFont) surface.FontSize -= 1;
  const double x = std::max(surfaceMargin, Box().left - roomForTick - surface.TextWidth(text));
  const bool printed = labels.Print(text, x, y - 0.5 * surface.TextHeight(text));
  surface.FontSize = fontSize;
  return printed;
}

}  // namespace lumivex
