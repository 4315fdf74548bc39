#include "ui/photograph_file.h"

#include <QBuffer>
#include <QClipboard>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImageReader>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <cstring>
#include <exiv2/exiv2.hpp>
#include <limits>

#include "pages/photograph/photograph_page.h"
#include "record/text_file.h"
#include "ui/look.h"
#include "ui/painter_surface.h"

namespace lumivex {

namespace {

constexpr int mostMegabytes = 1024;  // of one picture
constexpr double mostPixels = mostMegabytes * 1048576.0 / 4;
constexpr int jpegQuality = 95;
/// Lines over a saved picture are as thick as on one of so many pixels across.
constexpr double lineWidth = 1600;

double NumberOf(const Exiv2::ExifData& notes, const char* key) {
  const auto entry = notes.findKey(Exiv2::ExifKey(key));
  if (entry == notes.end() || entry->count() == 0) return 0;
  const double value = static_cast<double>(entry->toFloat());
  return std::isfinite(value) && value > 0 ? value : 0;
}

/// As of film, from the camera's own word or from the size of its sensor.
double FocalLength35(const Exiv2::ExifData& notes) {
  if (const double told = NumberOf(notes, "Exif.Photo.FocalLengthIn35mmFilm"); told > 0) return told;
  const double focal = NumberOf(notes, "Exif.Photo.FocalLength");
  const double dots = NumberOf(notes, "Exif.Photo.FocalPlaneXResolution");
  const double width = NumberOf(notes, "Exif.Photo.PixelXDimension");
  if (!(focal > 0) || !(dots > 0) || !(width > 0)) return 0;
  const double unit = NumberOf(notes, "Exif.Photo.FocalPlaneResolutionUnit");
  const double millimetres = unit == 3 ? 10 : 25.4;
  return focal * 36 / (width / dots * millimetres);
}

void ReadNotes(std::string_view path, OpenedPhotograph& opened) {
  try {
    const auto file = Exiv2::ImageFactory::open(std::string(path));
    file->readMetadata();
    Exiv2::ExifData notes = file->exifData();
    if (notes.empty()) return;
    opened.focal35 = FocalLength35(notes);
    Exiv2::ExifThumb(notes).erase();
    // The picture stands upright by now.
    if (notes.findKey(Exiv2::ExifKey("Exif.Image.Orientation")) != notes.end())
      notes["Exif.Image.Orientation"] = std::uint16_t{1};
    Exiv2::Blob blob;
    Exiv2::ExifParser::encode(blob, Exiv2::littleEndian, notes);
    opened.notes.assign(blob.begin(), blob.end());
  } catch (const std::exception&) {
    // A picture without notes, or with damaged ones, is a picture all the same.
    opened.notes.clear();
  }
}

/// Whether a JPEG file lacks its end. Readers show what there is of such a picture, grey below, and say nothing.
bool JpegEndsEarly(const QByteArray& file) {
  constexpr unsigned char marker = 0xFF, firstRestart = 0xD0, lastRestart = 0xD7, end = 0xD9, scan = 0xDA;
  const auto at = [&](qsizetype i) { return static_cast<unsigned char>(file[i]); };
  bool inScan = false;
  // After the two bytes of the start come segments, which tell their lengths, and scans, which run to the next marker.
  for (qsizetype i = 2; i + 1 < file.size();) {
    const unsigned char code = at(i + 1);
    const bool isMarker = at(i) == marker && code != 0 && code != marker;
    if (!isMarker || (code >= firstRestart && code <= lastRestart)) {
      if (!inScan && !isMarker && at(i) != marker) return false;  // not as files should be: the reader's to judge
      ++i;
      continue;
    }
    if (code == end) return false;
    if (i + 3 >= file.size()) return true;
    inScan = code == scan;
    i += 2 + 256 * at(i + 2) + at(i + 3);
  }
  return true;
}

Bitmap BitmapOf(const QImage& image) {
  QImage plain = image;
  if (image.hasAlphaChannel()) {
    plain = QImage(image.size(), QImage::Format_RGB32);
    plain.fill(Qt::white);
    QPainter(&plain).drawImage(0, 0, image);
  }
  plain = plain.convertToFormat(QImage::Format_RGBX8888);
  Bitmap bitmap(plain.width(), plain.height());
  for (int y = 0; y < plain.height(); ++y)
    std::memcpy(bitmap.Row(y), plain.constScanLine(y), static_cast<std::size_t>(plain.width()) * sizeof(std::uint32_t));
  return bitmap;
}

/// The file with the notes in it; as it is where the kind takes none.
QByteArray WithNotes(const QByteArray& file, std::string_view notes) {
  if (notes.empty()) return file;
  try {
    Exiv2::ExifData data;
    Exiv2::ExifParser::decode(data, reinterpret_cast<const Exiv2::byte*>(notes.data()),
                              static_cast<std::uint32_t>(notes.size()));
    const auto image = Exiv2::ImageFactory::open(reinterpret_cast<const Exiv2::byte*>(file.constData()),
                                                 static_cast<long>(file.size()));
    image->readMetadata();
    image->setExifData(data);
    image->writeMetadata();
    Exiv2::BasicIo& io = image->io();
    io.open();
    const Exiv2::DataBuf bytes = io.read(static_cast<long>(io.size()));
    return {reinterpret_cast<const char*>(bytes.pData_), static_cast<qsizetype>(bytes.size_)};
  } catch (const std::exception&) {
    return file;
  }
}

}  // namespace

OpenedPhotograph ReadPhotographFile(std::string_view path) {
  OpenedPhotograph opened;
  QImageReader::setAllocationLimit(mostMegabytes);
  QImageReader reader(ToQString(path));
  reader.setDecideFormatFromContent(true);
  reader.setAutoTransform(true);
  if (const QSize size = reader.size(); 1.0 * size.width() * size.height() > mostPixels) {
    opened.failure = std::string(path) + " is too large: " + std::to_string(size.width()) + " x " +
                     std::to_string(size.height()) + " pixels; a picture may have 268 million";
    return opened;
  }
  const bool jpeg = reader.format() == "jpeg";  // a reader that has read has forgotten
  const QImage image = reader.read();
  if (image.isNull()) {
    const QFileInfo file(ToQString(path));
    opened.failure = !file.exists() ? "There is no file " + std::string(path)
                     : file.isDir() ? std::string(path) + " is a folder"
                     : file.size() == 0
                         ? std::string(path) + " is empty"
                         : std::string(path) + " cannot be read as a picture: " + FromQString(reader.errorString());
    return opened;
  }
  opened.picture = BitmapOf(image);
  if (QFile file(ToQString(path)); jpeg && file.open(QIODevice::ReadOnly))
    if (JpegEndsEarly(file.readAll()))
      opened.remark = std::string(path) + " ends before its picture does: the rest of it is missing";
  ReadNotes(path, opened);
  return opened;
}

QImage PhotographImage(const Page& page) {
  Page whole = page;
  PagePhotograph& photograph = *whole.photograph;
  const Bitmap& picture = *photograph.picture;
  const double ratio = std::max(1.0, std::round(picture.width / lineWidth));
  constexpr double unitPx = 1.0 / 15;
  photograph.zoom = 1;
  photograph.preview = nullptr;
  photograph.marks.clear();  // they are for setting points, and no part of the picture
  photograph.unitsPerDot = 1 / (unitPx * ratio);
  photograph.drawn = PagePhotograph().drawn;
  QImage image(picture.width, picture.height, QImage::Format_RGB32);
  PainterSurface surface;
  surface.Open(image, {unitPx, ratio, true}, picture.width / ratio, picture.height / ratio);
  PaintPhotograph(whole, surface);
  surface.Close();
  return image;
}

std::string WritePhotographFile(const Page& page, std::string_view notes, std::string_view path) {
  const QImage image = PhotographImage(page);
  if (path.empty()) {
    QGuiApplication::clipboard()->setImage(image);
    return {};
  }
  const QString kind = QFileInfo(ToQString(path)).suffix().toLower();
  const bool jpeg = kind == "jpg" || kind == "jpeg";
  if (!jpeg && kind != "png") return "The name of a painted photograph ends in .png or .jpg.";
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  if (!image.save(&buffer, jpeg ? "JPEG" : "PNG", jpeg ? jpegQuality : -1))
    return "The picture could not be written in that kind.";
  bytes = WithNotes(bytes, notes);
  return WriteWholeFile(path, {bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

}  // namespace lumivex
