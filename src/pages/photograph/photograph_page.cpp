#include "pages/photograph/photograph_page.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "record/number_text.h"
#include "sky/paint_sky.h"

namespace lumivex {

namespace {

/// Dots to a pixel at most, and how far the view goes out beyond the whole picture.
constexpr double largestDots = 16;

constexpr std::uint32_t besidePicture = OpaquePixel(96, 96, 96);

double FitScale(const PagePhotograph& photograph, double surfaceWidth, double surfaceHeight) {
  const Bitmap& picture = *photograph.picture;
  return photograph.unitsPerDot * std::max(picture.width / surfaceWidth, picture.height / surfaceHeight);
}

bool SameWindow(const PictureWindow& a, const PictureWindow& b) {
  return a.left == b.left && a.top == b.top && a.scale == b.scale;
}

/// The picture on the dots in view, made anew where it or the view is another one.
const Bitmap& RasterOf(PhotographRaster& raster, const SharedBitmap& picture, const PictureWindow& window, int columns,
                       int rows) {
  const bool same = raster.of.lock() == picture && SameWindow(raster.window, window) && raster.cells.width == columns &&
                    raster.cells.height == rows;
  if (!same) raster = {picture, window, Resampled(*picture, window, columns, rows, besidePicture)};
  return raster.cells;
}

Bitmap CellsOf(const PagePhotograph& photograph, const PictureWindow& window, int columns, int rows) {
  Bitmap cells = RasterOf(photograph.drawn->first, photograph.picture, window, columns, rows);
  if (!photograph.preview) return cells;
  const Bitmap& ground = RasterOf(photograph.drawn->second, photograph.photograph, window, columns, rows);
  SilentWatch watch;
  TaskPool pool(watch);
  PaintSky(*photograph.preview, window, ground, cells, pool);
  return cells;
}

/// The room beside the picture, over the lines that go on there.
void PaintSurround(DrawingSurface& surface, const PagePhotograph& photograph, const PictureWindow& window) {
  const double width = surface.ScaleWidth(), height = surface.ScaleHeight();
  const SurfacePoint corner = PlaceOfPoint(photograph, window, {-0.5, -0.5});
  const SurfacePoint end =
      PlaceOfPoint(photograph, window, {photograph.picture->width - 0.5, photograph.picture->height - 0.5});
  surface.ForeColour = surface.BackColour;
  // A box has both of its ends.
  const double dot = photograph.unitsPerDot;
  if (corner.x > dot) surface.Line(0, 0, corner.x - dot, height, LineKind::FilledBox);
  if (corner.y > dot) surface.Line(0, 0, width, corner.y - dot, LineKind::FilledBox);
  if (end.x < width - dot) surface.Line(end.x + dot, 0, width, height, LineKind::FilledBox);
  if (end.y < height - dot) surface.Line(0, end.y + dot, width, height, LineKind::FilledBox);
}

/// A light line with a dark edge: seen on every ground.
void PaintLine(DrawingSurface& surface, const std::vector<SurfacePoint>& points, Colour colour) {
  surface.DrawStyle = 0;
  surface.DrawWidth = 2;
  surface.ForeColour = RGB(40, 40, 40);
  surface.Polyline(points);
  surface.DrawWidth = 1;
  surface.ForeColour = colour;
  surface.Polyline(points);
}

void PaintMark(DrawingSurface& surface, const SurfacePoint& at) {
  constexpr double inner = 60, outer = 180;
  surface.FillStyle = 1;
  for (const bool wide : {true, false}) {
    surface.DrawWidth = wide ? 2 : 1;
    surface.ForeColour = wide ? RGB(40, 40, 40) : RGB(255, 224, 96);
    surface.Line(at.x - outer, at.y, at.x - inner, at.y);
    surface.Line(at.x + inner, at.y, at.x + outer, at.y);
    surface.Line(at.x, at.y - outer, at.x, at.y - inner);
    surface.Line(at.x, at.y + inner, at.x, at.y + outer);
  }
}

std::string Degrees(double value) {
  return Format(value, "0.00") + "\u00B0";
}

}  // namespace

PictureWindow WindowOf(const PagePhotograph& photograph, double surfaceWidth, double surfaceHeight) {
  const Bitmap& picture = *photograph.picture;
  const double scale = FitScale(photograph, surfaceWidth, surfaceHeight) / photograph.zoom;
  const auto begin = [&](double surface, int pixels, double middle) {
    const double shown = scale * surface / photograph.unitsPerDot;
    if (shown >= pixels) return 0.5 * (pixels - shown);
    return std::clamp(middle - 0.5 * shown, 0.0, pixels - shown);
  };
  return {begin(surfaceWidth, picture.width, photograph.middle.x),
          begin(surfaceHeight, picture.height, photograph.middle.y), scale};
}

PicturePoint PicturePointAt(const PagePhotograph& photograph, const PictureWindow& window, const SurfacePoint& place) {
  return {window.left + window.scale * place.x / photograph.unitsPerDot - 0.5,
          window.top + window.scale * place.y / photograph.unitsPerDot - 0.5};
}

SurfacePoint PlaceOfPoint(const PagePhotograph& photograph, const PictureWindow& window, const PicturePoint& point) {
  return {(point.x + 0.5 - window.left) / window.scale * photograph.unitsPerDot,
          (point.y + 0.5 - window.top) / window.scale * photograph.unitsPerDot};
}

void PaintPhotograph(const Page& page, DrawingSurface& surface) {
  const PagePhotograph& photograph = *page.photograph;
  surface.BackColour = RGB(96, 96, 96);
  surface.Cls();
  const double width = surface.ScaleWidth(), height = surface.ScaleHeight(), dot = photograph.unitsPerDot;
  const auto dots = [dot](double units) { return std::max(1, static_cast<int>(std::ceil(units / dot - 1e-6))); };
  const PictureWindow window = WindowOf(photograph, width, height);
  const Bitmap cells = CellsOf(photograph, window, dots(width), dots(height));
  std::vector<Colour> colours;
  colours.reserve(cells.pixels.size());
  for (const std::uint32_t pixel : cells.pixels) colours.push_back(Colour{pixel & 0xFFFFFFU});
  surface.Image({0, 0, dot * cells.width, dot * cells.height, cells.width, cells.height}, colours);
  std::vector<SurfacePoint> points;
  for (const PageSkyLines& group : photograph.lines)
    for (const SkyLine& line : group.lines) {
      points.clear();
      for (const PicturePoint& point : line) points.push_back(PlaceOfPoint(photograph, window, point));
      PaintLine(surface, points, group.colour);
    }
  if (!photograph.lines.empty()) PaintSurround(surface, photograph, window);
  for (const PicturePoint& mark : photograph.marks) PaintMark(surface, PlaceOfPoint(photograph, window, mark));
  surface.ForeColour = colours::Black;
  surface.DrawWidth = 1;
}

std::optional<GraphReading> ReadPhotograph(const Page& page, double surfaceX, double surfaceY) {
  const PagePhotograph& photograph = *page.photograph;
  const PictureWindow window = WindowOf(photograph, page.geometry.surfaceWidth, page.geometry.surfaceHeight);
  const PicturePoint at = PicturePointAt(photograph, window, {surfaceX, surfaceY});
  const double x = std::round(at.x), y = std::round(at.y);
  if (!(x >= 0 && y >= 0 && x < photograph.picture->width && y < photograph.picture->height)) return std::nullopt;
  GraphReading reading;
  reading.x = x;
  reading.y = y;
  reading.place = {surfaceX, surfaceY};
  const SightReading sight = ReadSight(photograph.sight, {x, y});
  // A rounded -0.2 keeps its sign.
  reading.text = "Pixel " + Shortest(x + 0.0) + ", " + Shortest(y + 0.0) + "      altitude " + Degrees(sight.altitude) +
                 "   azimuth " + Degrees(sight.azimuth);
  if (sight.scattering) reading.text += "   scattering angle " + Degrees(*sight.scattering);
  if (!photograph.lightWords.empty()) reading.text += "      " + photograph.lightWords;
  return reading;
}

void ZoomPhotograph(Page& page, const SurfacePoint& place, double factor) {
  PagePhotograph& photograph = *page.photograph;
  const double width = page.geometry.surfaceWidth, height = page.geometry.surfaceHeight;
  const PictureWindow before = WindowOf(photograph, width, height);
  const PicturePoint kept = PicturePointAt(photograph, before, place);
  const double fit = FitScale(photograph, width, height);
  photograph.zoom = std::clamp(photograph.zoom * factor, 1.0, std::max(1.0, fit * largestDots));
  const double scale = fit / photograph.zoom / photograph.unitsPerDot;
  photograph.middle = {kept.x + 0.5 + scale * (0.5 * width - place.x), kept.y + 0.5 + scale * (0.5 * height - place.y)};
}

void PanPhotograph(Page& page, double right, double down) {
  PagePhotograph& photograph = *page.photograph;
  const double width = page.geometry.surfaceWidth, height = page.geometry.surfaceHeight;
  const PictureWindow window = WindowOf(photograph, width, height);
  const double scale = window.scale / photograph.unitsPerDot;
  // From the view as it is, which an edge may have held back.
  photograph.middle = {window.left + scale * (0.5 * width - right), window.top + scale * (0.5 * height - down)};
}

}  // namespace lumivex
