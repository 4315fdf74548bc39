#pragma once

#include <string>
#include <vector>

#include "record/drawing_surface.h"

namespace lumivex {

/// One operation as it reached a RecordingSurface, with the pen it was drawn with.
struct DrawnOperation {
  enum class Kind { Cls, Line, Box, FilledBox, Polyline, Point, Circle, Text, Image };
  Kind kind = Kind::Line;
  std::vector<SurfacePoint> points;  ///< corners, ends, the curve, the centre, or the top left of a text
  double radius = 0;                 ///< of a circle
  Colour colour;
  int drawStyle = 0, drawWidth = 1;
  int fillStyle = 1;
  Colour fillColour;
  std::string text;
  double fontSize = 0;
  bool fontBold = false;
  double width = 0, height = 0;  ///< of a text
  int columns = 0, rows = 0;     ///< of an image
  CellPart part;                 ///< of an image, what of it is shown
  std::vector<Colour> cells;     ///< of an image, row by row from the top left

  /// One line of text: the operation's name, its numbers, its colour, its text; of an image the size and a checksum of
  /// its cells.
  std::string Describe() const;
};

/// A surface that keeps the list of what was drawn, with fixed text metrics: a character is 0.55 em wide (0.6 em in
/// bold) and a line 1.2 em high, an em being 20 units a point.
class RecordingSurface final : public DrawingSurface {
 public:
  RecordingSurface(double width, double height) : width_(width), height_(height) {}

  void Resize(double width, double height);
  /// What was drawn since the last Cls, which stands first.
  const std::vector<DrawnOperation>& Operations() const { return operations_; }
  void Forget() { operations_.clear(); }

  void Cls() override;
  void Line(double x1, double y1, double x2, double y2, LineKind kind) override;
  void PSet(double x, double y, Colour colour) override;
  void Circle(double x, double y, double radius, Colour colour) override;
  void Polyline(std::span<const SurfacePoint> points) override;
  void Image(const CellBlock& block, std::span<const Colour> cells) override;
  double TextWidth(std::string_view text) const override;
  double TextHeight(std::string_view text) const override;
  double ScaleWidth() const override { return width_; }
  double ScaleHeight() const override { return height_; }

 protected:
  void Text(double x, double y, std::string_view text) override;

 private:
  DrawnOperation& Add(DrawnOperation::Kind kind);

  double width_, height_;
  std::vector<DrawnOperation> operations_;
};

}  // namespace lumivex
