#include "record/recording_surface.h"

#include <cmath>
#include <cstdint>

#include "record/number_text.h"

namespace lumivex {

namespace {

constexpr double unitsPerPoint = 20;

/// Characters, not bytes: continuation bytes of UTF-8 have no width.
double CharacterCount(std::string_view text) {
  double count = 0;
  for (const char c : text)
    if ((static_cast<unsigned char>(c) & 0xC0U) != 0x80U) ++count;
  return count;
}

/// FNV-1a over the cells: tells two images of a size apart.
std::uint32_t Checksum(const std::vector<Colour>& cells) {
  std::uint32_t sum = 2166136261U;
  for (const Colour cell : cells) sum = (sum ^ static_cast<std::uint32_t>(cell.value)) * 16777619U;
  return sum;
}

std::string Hex(Colour colour) {
  static constexpr char digits[] = "0123456789abcdef";
  std::string text = "#";
  for (const int c : {colour.Red(), colour.Green(), colour.Blue()}) {
    text += digits[c / 16];
    text += digits[c % 16];
  }
  return text;
}

}  // namespace

std::string DrawnOperation::Describe() const {
  static constexpr const char* names[] = {"cls",   "line",   "box",  "filledbox", "polyline",
                                          "point", "circle", "text", "image"};
  std::string line = names[static_cast<int>(kind)];
  for (const auto& p : points) line += " " + Shortest(p.x) + "," + Shortest(p.y);
  if (kind == Kind::Circle) line += " radius=" + Shortest(radius);
  line += " " + Hex(colour);
  if (drawStyle != 0) line += " style=" + std::to_string(drawStyle);
  if (drawWidth != 1) line += " width=" + std::to_string(drawWidth);
  if (kind == Kind::Text) line += " size=" + Shortest(fontSize) + (fontBold ? " bold" : "") + " \"" + text + "\"";
  if (kind == Kind::Image)
    line += " " + std::to_string(columns) + "x" + std::to_string(rows) + " sum=" + std::to_string(Checksum(cells));
  return line;
}

void RecordingSurface::Resize(double width, double height) {
  width_ = width;
  height_ = height;
}

DrawnOperation& RecordingSurface::Add(DrawnOperation::Kind kind) {
  auto& operation = operations_.emplace_back();
  operation.kind = kind;
  operation.colour = ForeColour;
  operation.drawStyle = DrawStyle;
  operation.drawWidth = DrawWidth;
  operation.fillStyle = FillStyle;
  operation.fillColour = FillColour;
  return operation;
}

void RecordingSurface::Cls() {
  operations_.clear();
  Add(DrawnOperation::Kind::Cls).colour = BackColour;
  CurrentX = CurrentY = 0;
}

void RecordingSurface::Line(double x1, double y1, double x2, double y2, LineKind kind) {
  using enum DrawnOperation::Kind;
  auto& operation = Add(kind == LineKind::Plain ? DrawnOperation::Kind::Line : kind == LineKind::Box ? Box : FilledBox);
  operation.points = {{x1, y1}, {x2, y2}};
}

void RecordingSurface::PSet(double x, double y, Colour colour) {
  auto& operation = Add(DrawnOperation::Kind::Point);
  operation.points = {{x, y}};
  operation.colour = colour;
}

void RecordingSurface::Circle(double x, double y, double radius, Colour colour) {
  auto& operation = Add(DrawnOperation::Kind::Circle);
  operation.points = {{x, y}};
  operation.radius = radius;
  operation.colour = colour;
}

void RecordingSurface::Polyline(std::span<const SurfacePoint> points) {
  Add(DrawnOperation::Kind::Polyline).points.assign(points.begin(), points.end());
}

void RecordingSurface::Image(const CellBlock& block, std::span<const Colour> cells) {
  auto& operation = Add(DrawnOperation::Kind::Image);
  operation.points = {{block.left, block.top}, {block.right, block.bottom}};
  operation.columns = block.columns;
  operation.rows = block.rows;
  operation.part = block.Part();
  operation.cells.assign(cells.begin(), cells.end());
}

double RecordingSurface::TextWidth(std::string_view text) const {
  return CharacterCount(text) * (FontBold ? 0.6 : 0.55) * FontSize * unitsPerPoint;
}

double RecordingSurface::TextHeight(std::string_view) const {
  return 1.2 * FontSize * unitsPerPoint;
}

void RecordingSurface::Text(double x, double y, std::string_view text) {
  auto& operation = Add(DrawnOperation::Kind::Text);
  operation.points = {{x, y}};
  operation.text = text;
  operation.fontSize = FontSize;
  operation.fontBold = FontBold;
  operation.width = TextWidth(text);
  operation.height = TextHeight(text);
}

}  // namespace lumivex
