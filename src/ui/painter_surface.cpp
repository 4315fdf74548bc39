#include "ui/painter_surface.h"

#include <QApplication>
#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <vector>

#include "ui/night_colours.h"

namespace lumivex {

namespace {

constexpr double unitsPerPoint = 20;
constexpr double pointsPerPx = 0.75;
constexpr double largestDot = 60;  // surface units
/// Beyond any window or page, and small enough for the fixed-point numbers of a rasteriser.
constexpr double farAway = 30000;
/// A long dashed curve is stroked in pieces: the rasteriser's work for one path grows faster than its length.
constexpr std::size_t pointsAtOnce = 256;
const std::array<QList<qreal>, 3> dashPatterns = {QList<qreal>{}, QList<qreal>{6, 4}, QList<qreal>{1, 3}};

const QList<qreal>& DashesOf(int drawStyle) {
  return dashPatterns[static_cast<std::size_t>(std::clamp(drawStyle, 0, 2))];
}

bool AllFinite(std::initializer_list<double> values) {
  return std::ranges::all_of(values, [](double v) { return std::isfinite(v); });
}

QString FromText(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// The part of an image as an image of its own, in pixels so small that its ends lie between them: vector files know
/// whole images only, and what shows them smooths few pixels over a large box.
QImage WholePixels(const QImage& image, const CellPart& part) {
  constexpr double enough = 800;
  const auto pixelsEach = [](double cells) { return std::max(2, 2 * static_cast<int>(std::ceil(enough / cells / 2))); };
  const int across = pixelsEach(part.right - part.left);
  // One row above another smooths nothing.
  const int down = image.height() == 1 ? pixelsEach(enough) : pixelsEach(part.bottom - part.top);
  const auto pixel = [](double cell, int each) { return static_cast<int>(std::lround(cell * each)); };
  const int left = pixel(part.left, across), top = pixel(part.top, down);
  QImage whole(std::max(1, pixel(part.right, across) - left), std::max(1, pixel(part.bottom, down) - top),
               QImage::Format_RGB32);
  for (int y = 0; y < whole.height(); ++y) {
    const int row = std::clamp((top + y) / down, 0, image.height() - 1);
    const auto* from = reinterpret_cast<const QRgb*>(image.constScanLine(row));
    auto* to = reinterpret_cast<QRgb*>(whole.scanLine(y));
    for (int x = 0; x < whole.width(); ++x) to[x] = from[std::clamp((left + x) / across, 0, image.width() - 1)];
  }
  return whole;
}

}  // namespace

QColor ToQColor(Colour colour) {
  return {colour.Red(), colour.Green(), colour.Blue()};
}

PainterSurface::~PainterSurface() {
  Close();
}

void PainterSurface::Open(QPaintDevice& device, const SurfaceScale& scale, double width, double height) {
  Close();
  scale_ = scale;
  dotsPerUnit_ = scale.unitPx * scale.deviceRatio;
  width_ = width;
  height_ = height;
  device_ = &device;
  faces_.clear();
  painter_.begin(&device);
}

void PainterSurface::Close() {
  if (painter_.isActive()) painter_.end();
  faces_.clear();
  device_ = nullptr;
}

bool PainterSurface::TakeChanged() {
  return std::exchange(changed_, false);
}

double PainterSurface::Dots(double units) const {
  return std::clamp(units * dotsPerUnit_, -farAway * scale_.deviceRatio, farAway * scale_.deviceRatio);
}

double PainterSurface::LineDots() const {
  const double width = std::clamp(DrawWidth, 1, 9) * scale_.deviceRatio;
  return scale_.dots ? std::max(1.0, std::round(width)) : width * 0.8;
}

QColor PainterSurface::FillColourOf(Colour colour) const {
  return night ? NightFill(colour) : ToQColor(colour);
}

QColor PainterSurface::InkOf(Colour colour) const {
  return night ? NightInk(colour) : ToQColor(colour);
}

QPen PainterSurface::PenOf(Colour colour) const {
  QPen pen(InkOf(colour), LineDots(), Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin);
  pen.setCosmetic(scale_.dots);
  if (DrawStyle != 0) pen.setDashPattern(DashesOf(DrawStyle));
  return pen;
}

void PainterSurface::Cls() {
  changed_ = true;
  CurrentX = CurrentY = 0;
  if (!painter_.isActive()) return;
  const double ratio = scale_.deviceRatio;
  painter_.fillRect(QRectF(0, 0, std::ceil(width_ * ratio), std::ceil(height_ * ratio)), PaperColour());
}

void PainterSurface::FillBox(double x1, double y1, double x2, double y2, const QColor& colour) {
  double left = std::min(x1, x2), right = std::max(x1, x2), top = std::min(y1, y2), bottom = std::max(y1, y2);
  if (scale_.dots) {
    // Half-open, so that neighbours meet without a gap and without sharing a dot.
    left = std::round(left);
    top = std::round(top);
    right = std::max(std::round(right), left + 1);
    bottom = std::max(std::round(bottom), top + 1);
  }
  painter_.fillRect(QRectF(left, top, right - left, bottom - top), colour);
}

bool PainterSurface::DrawStraight(double x1, double y1, double x2, double y2) {
  if (!scale_.dots || DrawStyle != 0) return false;
  const double width = LineDots(), half = std::floor(width / 2);
  if (std::round(y1) == std::round(y2)) {
    const double y = std::floor(y1) - half;
    FillBox(std::floor(std::min(x1, x2)), y, std::floor(std::max(x1, x2)) + 1, y + width, InkOf(ForeColour));
    return true;
  }
  if (std::round(x1) == std::round(x2)) {
    const double x = std::floor(x1) - half;
    FillBox(x, std::floor(std::min(y1, y2)), x + width, std::floor(std::max(y1, y2)) + 1, InkOf(ForeColour));
    return true;
  }
  return false;
}

void PainterSurface::Line(double x1, double y1, double x2, double y2, LineKind kind) {
  if (!painter_.isActive() || !AllFinite({x1, y1, x2, y2})) return;
  changed_ = true;
  const double left = Dots(x1), top = Dots(y1), right = Dots(x2), bottom = Dots(y2);
  if (kind == LineKind::FilledBox) {
    // A box as small as this is a dot of a curve.
    const bool isDot = std::abs(x2 - x1) <= largestDot && std::abs(y2 - y1) <= largestDot;
    FillBox(left, top, right, bottom, isDot ? InkOf(ForeColour) : FillColourOf(ForeColour));
    return;
  }
  if (kind == LineKind::Box) {
    Line(x1, y1, x2, y1, LineKind::Plain);
    Line(x2, y1, x2, y2, LineKind::Plain);
    Line(x2, y2, x1, y2, LineKind::Plain);
    Line(x1, y2, x1, y1, LineKind::Plain);
    return;
  }
  if (DrawStraight(left, top, right, bottom)) return;
  painter_.setRenderHint(QPainter::Antialiasing, x1 != x2 && y1 != y2);
  painter_.setPen(PenOf(ForeColour));
  painter_.drawLine(QPointF(left, top), QPointF(right, bottom));
}

void PainterSurface::DrawSolid(std::span<const QPointF> points, double width) {
  // Thin lines have a quick way through the rasteriser, wide ones a very slow one (a stroked outline): a wide curve on
  // dots is drawn as thin ones side by side.
  const int count = static_cast<int>(points.size());
  if (static_cast<int>(width) % 2 == 1) painter_.drawPolyline(points.data(), count);
  for (double reach = (width - 1) / 2; reach > 0; reach -= 1) {
    const double slant = reach * std::numbers::sqrt2 / 2;
    const QPointF around[] = {{reach, 0},     {-reach, 0},     {0, reach},      {0, -reach},
                              {slant, slant}, {-slant, slant}, {slant, -slant}, {-slant, -slant}};
    // Half a dot away the slanted ones add nothing.
    for (const QPointF& offset : std::span(around).first(reach < 1 ? 4 : 8)) {
      painter_.translate(offset);
      painter_.drawPolyline(points.data(), count);
      painter_.translate(-offset);
    }
  }
}

void PainterSurface::DrawRun(std::span<const QPointF> points, QPen& pen) {
  if (points.size() < 2) return;
  if (DrawStyle == 0 && scale_.dots) {
    const double width = pen.widthF();
    pen.setWidthF(1);
    painter_.setPen(pen);
    DrawSolid(points, width);
    pen.setWidthF(width);
    return;
  }
  painter_.setPen(pen);
  if (DrawStyle == 0) {
    painter_.drawPolyline(points.data(), static_cast<int>(points.size()));
    return;
  }
  double length = 0;
  for (std::size_t first = 0; first + 1 < points.size(); first += pointsAtOnce - 1) {
    const auto piece = points.subspan(first, std::min(pointsAtOnce, points.size() - first));
    pen.setDashOffset(length / pen.widthF());
    painter_.setPen(pen);
    painter_.drawPolyline(piece.data(), static_cast<int>(piece.size()));
    for (std::size_t i = 1; i < piece.size(); ++i) length += QLineF(piece[i - 1], piece[i]).length();
  }
}

void PainterSurface::Polyline(std::span<const SurfacePoint> points) {
  if (!painter_.isActive()) return;
  changed_ = true;
  painter_.setRenderHint(QPainter::Antialiasing, true);
  QPen pen = PenOf(ForeColour);
  std::vector<QPointF> run;
  run.reserve(points.size());
  for (const auto& point : points) {
    if (AllFinite({point.x, point.y})) {
      run.emplace_back(Dots(point.x), Dots(point.y));
    } else {
      DrawRun(run, pen);
      run.clear();
    }
  }
  DrawRun(run, pen);
}

void PainterSurface::PSet(double x, double y, Colour colour) {
  if (!painter_.isActive() || !AllFinite({x, y})) return;
  changed_ = true;
  const double left = scale_.dots ? std::floor(Dots(x)) : Dots(x), top = scale_.dots ? std::floor(Dots(y)) : Dots(y);
  FillBox(left, top, left + LineDots(), top + LineDots(), InkOf(colour));
}

void PainterSurface::Circle(double x, double y, double radius, Colour colour) {
  if (!painter_.isActive() || !AllFinite({x, y, radius})) return;
  changed_ = true;
  painter_.setRenderHint(QPainter::Antialiasing, true);
  painter_.setPen(PenOf(colour));
  painter_.setBrush(FillStyle == 0 ? QBrush(FillColourOf(FillColour)) : QBrush(Qt::NoBrush));
  painter_.drawEllipse(QPointF(Dots(x), Dots(y)), Dots(std::abs(radius)), Dots(std::abs(radius)));
}

void PainterSurface::Image(const CellBlock& block, std::span<const Colour> cells) {
  if (!painter_.isActive() || block.columns <= 0 || block.rows <= 0) return;
  const auto columns = static_cast<std::size_t>(block.columns), rows = static_cast<std::size_t>(block.rows);
  const CellPart part = block.Part();
  if (cells.size() < columns * rows || !AllFinite({block.left, block.top, block.right, block.bottom}) ||
      !AllFinite({part.left, part.top, part.right, part.bottom}) || !(part.right > part.left) ||
      !(part.bottom > part.top))
    return;
  changed_ = true;
  QImage image(block.columns, block.rows, QImage::Format_RGB32);
  for (std::size_t row = 0; row < rows; ++row) {
    auto* line = reinterpret_cast<QRgb*>(image.scanLine(static_cast<int>(row)));
    for (std::size_t column = 0; column < columns; ++column) {
      const Colour cell = cells[row * columns + column];
      line[column] = qRgb(cell.Red(), cell.Green(), cell.Blue());
    }
  }
  QRectF target(QPointF(Dots(block.left), Dots(block.top)), QPointF(Dots(block.right), Dots(block.bottom)));
  painter_.setRenderHint(QPainter::SmoothPixmapTransform, false);
  if (scale_.dots) {
    target = QRectF(target.toRect());
    painter_.drawImage(target, image, QRectF(QPointF(part.left, part.top), QPointF(part.right, part.bottom)));
  } else {
    painter_.setRenderHint(QPainter::LosslessImageRendering, true);
    painter_.drawImage(target, WholePixels(image, part));
  }
}

const PainterSurface::Face& PainterSurface::CurrentFace() const {
  const FaceKey key{FontSize, FontBold};
  const auto known = faces_.find(key);
  if (known != faces_.end()) return known->second;
  QFont font(QApplication::font().family());
  // The device turns points into its own dots; what is wanted is 20 units a point on this surface.
  const double px =
      std::clamp(FontSize, 1.0, 200.0) * unitsPerPoint * scale_.unitPx * (scale_.dots ? scale_.deviceRatio : 1);
  font.setPointSizeF(px * pointsPerPx);
  font.setBold(FontBold);
  font.setStyleStrategy(QFont::NoSubpixelAntialias);
  const QFontMetricsF metrics = device_ ? QFontMetricsF(font, device_) : QFontMetricsF(font);
  return faces_.emplace(key, Face{font, metrics}).first->second;
}

double PainterSurface::TextWidth(std::string_view text) const {
  return CurrentFace().metrics.horizontalAdvance(FromText(text)) / dotsPerUnit_;
}

double PainterSurface::TextHeight(std::string_view) const {
  return CurrentFace().metrics.height() / dotsPerUnit_;
}

void PainterSurface::Text(double x, double y, std::string_view text) {
  if (!painter_.isActive() || !AllFinite({x, y})) return;
  changed_ = true;
  const Face& face = CurrentFace();
  QPointF at(Dots(x), Dots(y) + face.metrics.ascent());
  if (scale_.dots) at = QPointF(std::round(at.x()), std::round(at.y()));
  painter_.setFont(face.font);
  painter_.setPen(InkOf(ForeColour));
  painter_.drawText(at, FromText(text));
}

ImageSurface::ImageSurface(int widthPx, int heightPx, double unitPx, double deviceRatio) {
  Resize(widthPx, heightPx, unitPx, deviceRatio);
}

ImageSurface::~ImageSurface() {
  Close();
}

void ImageSurface::Resize(int widthPx, int heightPx, double unitPx, double deviceRatio) {
  Close();
  constexpr int dotsPerMetre = 3780;  // 96 to the inch, so that a point is 4/3 dots whatever the screen says
  const QSize size(static_cast<int>(std::ceil(widthPx * deviceRatio)),
                   static_cast<int>(std::ceil(heightPx * deviceRatio)));
  image_ = QImage(size.expandedTo({1, 1}), QImage::Format_RGB32);
  image_.setDotsPerMeterX(dotsPerMetre);
  image_.setDotsPerMeterY(dotsPerMetre);
  image_.fill(PaperColour());
  Open(image_, {unitPx, deviceRatio, true}, widthPx, heightPx);
}

}  // namespace lumivex
