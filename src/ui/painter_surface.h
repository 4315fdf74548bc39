#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QImage>
#include <QPainter>
#include <map>
#include <memory>
#include <tuple>

#include "record/drawing_surface.h"

namespace lumivex {

/// Pixels of a surface and what they mean.
struct SurfaceScale {
  double unitPx = 1.0 / 15;  ///< pixels (1/96 inch) to one surface unit
  double deviceRatio = 1;    ///< dots of the device to one pixel
  bool dots = true;          ///< the device is made of dots: straight lines and boxes keep to whole ones
};

/// A surface that draws with a QPainter: on an image, in an SVG or on the page of a PDF. A point of a font is 20 units,
/// so that text grows with everything else; every font name of the system's vocabulary means the sans serif font of the
/// application. Whoever opens a paint device hands it to Open and calls Close before reading the result.
class PainterSurface : public DrawingSurface {
 public:
  PainterSurface() = default;
  ~PainterSurface() override;

  /// Starts to draw on `device`, which has to outlive the drawing.
  /// @param width, height  size of the drawing (pixels of 1/96 inch, not dots).
  void Open(QPaintDevice& device, const SurfaceScale& scale, double width, double height);
  void Close();
  bool IsOpen() const { return painter_.isActive(); }
  const SurfaceScale& Scale() const { return scale_; }
  /// Colours are those of a dark desktop.
  bool night = false;
  /// The colour that the surface is cleared to.
  QColor PaperColour() const { return FillColourOf(BackColour); }
  /// Whether anything was drawn since the last call.
  bool TakeChanged();

  void Cls() override;
  void Line(double x1, double y1, double x2, double y2, LineKind kind) override;
  void PSet(double x, double y, Colour colour) override;
  void Circle(double x, double y, double radius, Colour colour) override;
  void Polyline(std::span<const SurfacePoint> points) override;
  void Image(const CellBlock& block, std::span<const Colour> cells) override;
  double TextWidth(std::string_view text) const override;
  double TextHeight(std::string_view text) const override;
  double ScaleWidth() const override { return width_ / scale_.unitPx; }
  double ScaleHeight() const override { return height_ / scale_.unitPx; }

 protected:
  void Text(double x, double y, std::string_view text) override;

 private:
  struct Face {
    QFont font;
    QFontMetricsF metrics;
  };
  using FaceKey = std::tuple<double, bool>;

  const Face& CurrentFace() const;
  double Dots(double units) const;
  double LineDots() const;
  QPen PenOf(Colour colour) const;
  QColor FillColourOf(Colour colour) const;
  QColor InkOf(Colour colour) const;
  void FillBox(double x1, double y1, double x2, double y2, const QColor& colour);
  bool DrawStraight(double x1, double y1, double x2, double y2);
  void DrawSolid(std::span<const QPointF> points, double width);
  void DrawRun(std::span<const QPointF> points, QPen& pen);

  SurfaceScale scale_;
  double dotsPerUnit_ = 1.0 / 15;
  double width_ = 0, height_ = 0;
  QPaintDevice* device_ = nullptr;
  QPainter painter_;
  bool changed_ = false;
  mutable std::map<FaceKey, Face> faces_;
};

/// The surface of a window or picture in memory: an image in the dots of the screen.
class ImageSurface final : public PainterSurface {
 public:
  /// A new, blank image of that size.
  /// @param widthPx, heightPx  size in pixels of the window system.
  /// @param unitPx             pixels to one surface unit.
  /// @param deviceRatio        dots to one pixel.
  ImageSurface(int widthPx, int heightPx, double unitPx, double deviceRatio);
  ~ImageSurface() override;
  void Resize(int widthPx, int heightPx, double unitPx, double deviceRatio);
  const QImage& Picture() const { return image_; }

 private:
  QImage image_;
};

/// The system's colour as Qt has it.
QColor ToQColor(Colour colour);

}  // namespace lumivex
