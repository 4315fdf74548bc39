#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "record/colour.h"

namespace lumivex {

enum class LineKind { Plain, Box, FilledBox };

/// Pen, brush, font and print position of a surface; drawing reads them, nothing else is kept between operations.
struct SurfacePen {
  Colour BackColour = colours::ButtonFace;
  Colour ForeColour = colours::Black;  ///< colour of Line, Polyline and Print
  Colour FillColour = colours::Black;
  int FillStyle = 1;  ///< fill of Circle: 0 solid with FillColour, 1 transparent
  int DrawStyle = 0;  ///< 0 solid, 1 dash, 2 dot
  int DrawWidth = 1;  ///< 1 or 2
  double CurrentX = 0;
  double CurrentY = 0;  ///< top of the next text
  std::string FontName = "MS Sans Serif";
  double FontSize = 8;  ///< points
  bool FontBold = false;
};

struct SurfacePoint {
  double x = 0;
  double y = 0;
};

/// A part of a block of cells, in cells from its left and its top edge; ends lie anywhere within cells.
struct CellPart {
  double left = 0, top = 0, right = 0, bottom = 0;
};

/// A block of equal cells, row by row from the top left, in a box. Where samples stand on the ends of an axis, the
/// first and last cells are cut in half: the part from 0.5 to columns - 0.5 fills the box.
struct CellBlock {
  double left = 0, top = 0, right = 0, bottom = 0;
  int columns = 0, rows = 0;
  std::optional<CellPart> part = std::nullopt;  ///< what of the block fills the box; all of it without

  CellPart Part() const { return part.value_or(CellPart{0, 0, double(columns), double(rows)}); }
};

/// What every picture is drawn on: a window, a picture file, a page, or a list of operations.
///
/// Coordinates are surface units, y grows downward, (0, 0) is the top left corner. Nothing drawn outside the surface
/// is an error; coordinates that are not finite draw nothing.
class DrawingSurface : public SurfacePen {
 public:
  DrawingSurface() = default;
  DrawingSurface(const DrawingSurface&) = delete;
  DrawingSurface& operator=(const DrawingSurface&) = delete;
  virtual ~DrawingSurface() = default;

  /// Clears to BackColour and puts the print position at (0, 0).
  virtual void Cls() = 0;
  /// A line, the outline of a box or a filled box between two corners, in ForeColour.
  virtual void Line(double x1, double y1, double x2, double y2, LineKind kind = LineKind::Plain) = 0;
  virtual void PSet(double x, double y, Colour colour) = 0;
  /// A circle's outline in `colour`, filled with FillColour when FillStyle is 0.
  virtual void Circle(double x, double y, double radius, Colour colour) = 0;
  virtual double TextWidth(std::string_view text) const = 0;
  virtual double TextHeight(std::string_view text) const = 0;
  virtual double ScaleWidth() const = 0;
  virtual double ScaleHeight() const = 0;

  /// Joined lines through the points; dashes run on along the whole of it. Falls back on Line.
  virtual void Polyline(std::span<const SurfacePoint> points);
  /// A block of coloured cells (rows times columns of them). Falls back on filled boxes.
  virtual void Image(const CellBlock& block, std::span<const Colour> cells);

  /// Draws the text at the print position. With newline the position goes to the left margin of the next line,
  /// without it to the end of the text.
  void Print(std::string_view text, bool newline = true);
  /// Moves down one line.
  void Print() { Print("", true); }

 protected:
  /// Text with its top left corner at the point, in ForeColour and the current font.
  virtual void Text(double x, double y, std::string_view text) = 0;
};

}  // namespace lumivex
