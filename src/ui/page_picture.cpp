#include "ui/page_picture.h"

#include <QBuffer>
#include <QClipboard>
#include <QFileInfo>
#include <QFontInfo>
#include <QGuiApplication>
#include <QMimeData>
#include <QPageSize>
#include <QPdfWriter>
#include <QSvgGenerator>
#include <algorithm>
#include <vector>

#include "pages/build_page.h"
#include "pages/page_table.h"
#include "record/text_file.h"
#include "ui/look.h"
#include "ui/painter_surface.h"

namespace lumivex {

namespace {

constexpr double dotsPerInch = 96;
constexpr double pdfDotsPerInch = 1200;
constexpr double pointsPerPx = 0.75;
constexpr double panelWidth = 12000;  // where the readings begin (surface units)

/// The geometry of a page on another surface: a graph of the size of its window keeps its proportion to it.
PageGeometry GeometryOn(const Page& page, const DrawingSurface& surface) {
  PageGeometry geometry = page.geometry;
  if (page.style.size == GraphSize::VeryLarge) {
    geometry.box.right *= surface.ScaleWidth() / geometry.surfaceWidth;
    geometry.panelWidth *= surface.ScaleWidth() / geometry.surfaceWidth;
    geometry.box.bottom *= surface.ScaleHeight() / geometry.surfaceHeight;
  }
  geometry.surfaceWidth = surface.ScaleWidth();
  geometry.surfaceHeight = surface.ScaleHeight();
  return geometry;
}

/// The parameters of the runs, in columns over the room of the input panel, in letters small enough for all of them.
void PrintParameters(const Page& page, DrawingSurface& surface) {
  constexpr double left = 1000, top = 600, bottom = 2850, gap = 400;
  constexpr double largestFont = 8, smallestFont = 4, fontStep = 0.5;
  const auto lines = HeaderInShort(page);
  if (lines.empty()) return;
  const SurfacePen before = surface;
  surface.ForeColour = colours::Black;
  surface.FontBold = false;
  // Places of the lines as far as there is room, and whether there is for all.
  const auto place = [&](std::vector<SurfacePoint>& places) {
    const double height = surface.TextHeight("X");
    const auto rows = static_cast<std::size_t>((bottom - top) / height);
    double x = left, y = top, width = 0;
    places.clear();
    for (std::size_t i = 0, row = 0; i < lines.size(); ++i, ++row) {
      // An indented line stays below the one that it belongs to.
      const bool follows = i + 1 < lines.size() && lines[i + 1].starts_with(' ');
      if (row >= rows || (row + 1 == rows && row > 0 && follows)) x += width + gap, y = top, row = 0, width = 0;
      width = std::max(width, surface.TextWidth(lines[i]));
      if (x + width > panelWidth) return false;
      places.push_back({x, y});
      y += height;
    }
    return true;
  };
  std::vector<SurfacePoint> places;
  surface.FontSize = largestFont;
  while (!place(places) && surface.FontSize > smallestFont) surface.FontSize -= fontStep;
  for (std::size_t i = 0; i < places.size(); ++i) {
    surface.CurrentX = places[i].x;
    surface.CurrentY = places[i].y;
    surface.Print(lines[i], false);
  }
  static_cast<SurfacePen&>(surface) = before;
}

void DrawOn(const Page& page, DrawingSurface& surface) {
  Paint(PlacePage(page, GeometryOn(page, surface)), surface);
  PrintParameters(page, surface);
}

QByteArray PagePng(const Page& page, const PageFormat& format) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  return PageImage(page, format, 1).save(&buffer, "PNG") ? bytes : QByteArray();
}

QByteArray PagePdf(const Page& page, const PageFormat& format) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  QPdfWriter writer(&buffer);
  writer.setTitle("Lumivex");
  writer.setCreator("Lumivex");
  writer.setResolution(static_cast<int>(pdfDotsPerInch));
  writer.setPageSize(QPageSize(QSizeF(format.widthPx, format.heightPx) * pointsPerPx, QPageSize::Point, "Lumivex",
                               QPageSize::ExactMatch));
  writer.setPageMargins(QMarginsF(0, 0, 0, 0));
  PainterSurface surface;
  surface.Open(writer, {format.unitPx, pdfDotsPerInch / dotsPerInch, false}, format.widthPx, format.heightPx);
  DrawOn(page, surface);
  surface.Close();
  return bytes;
}

}  // namespace

PageFormat ScaledFormat(const PageFormat& onScreen, int widthPx, int heightPx) {
  if (widthPx <= 0 || heightPx <= 0) return onScreen;
  const double width = widthPx, height = heightPx;
  return {width, height, onScreen.unitPx * std::min(width / onScreen.widthPx, height / onScreen.heightPx)};
}

QImage PageImage(const Page& page, const PageFormat& format, double deviceRatio) {
  ImageSurface surface(static_cast<int>(format.widthPx), static_cast<int>(format.heightPx), format.unitPx, deviceRatio);
  DrawOn(page, surface);
  surface.Close();
  return surface.Picture();
}

QByteArray PageSvg(const Page& page, const PageFormat& format) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  QSvgGenerator generator;
  generator.setOutputDevice(&buffer);
  generator.setResolution(static_cast<int>(dotsPerInch));
  generator.setSize(QSize(static_cast<int>(format.widthPx), static_cast<int>(format.heightPx)));
  generator.setViewBox(QRectF(0, 0, format.widthPx, format.heightPx));
  generator.setTitle("Lumivex");
  PainterSurface surface;
  surface.Open(generator, {format.unitPx, 1, false}, format.widthPx, format.heightPx);
  DrawOn(page, surface);
  surface.Close();
  // The family's own name means something on this machine alone.
  const QByteArray family = QGuiApplication::font().family().toUtf8();
  const QByteArray resolved = QFontInfo(QGuiApplication::font()).family().toUtf8();
  return bytes.replace("font-family=\"" + family + "\"", "font-family=\"" + resolved + ", sans-serif\"");
}

std::string SavePage(const Page& page, const PageFormat& format, std::string_view path) {
  const QString file = ToQString(path);
  const QString kind = QFileInfo(file).suffix().toLower();
  QByteArray bytes;
  if (kind == "png") {
    bytes = PagePng(page, format);
  } else if (kind == "svg") {
    bytes = PageSvg(page, format);
  } else if (kind == "pdf") {
    bytes = PagePdf(page, format);
  } else {
    return "The name of a picture file ends in .png, .svg or .pdf.";
  }
  if (bytes.isEmpty()) return "The picture could not be drawn at that size.";
  return WriteWholeFile(path, {bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

std::string SaveDrawing(const Page& page, std::string_view path) {
  constexpr double unitsPerPixel = 15, roomForParameters = 2500;
  Page placed = page;
  if (!placed.runs.empty()) {
    placed.geometry.box.top += roomForParameters;
    placed.geometry.box.bottom += roomForParameters;
    placed.geometry.surfaceHeight += roomForParameters;
  }
  const PageGeometry& geometry = placed.geometry;
  return SavePage(
      placed, {geometry.surfaceWidth / unitsPerPixel, geometry.surfaceHeight / unitsPerPixel, 1 / unitsPerPixel}, path);
}

std::string CopyPage(const Page& page, const PageFormat& format, double deviceRatio) {
  auto* data = new QMimeData;
  data->setImageData(PageImage(page, format, deviceRatio));
  data->setData("image/svg+xml", PageSvg(page, format));
  QGuiApplication::clipboard()->setMimeData(data);
  return {};
}

}  // namespace lumivex
