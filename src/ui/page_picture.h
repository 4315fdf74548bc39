#pragma once

#include <QImage>
#include <QSizeF>
#include <string>
#include <string_view>

#include "record/page.h"

namespace lumivex {

/// A page as a picture: the same drawing, made anew for a file or the clipboard and as sharp there.
///
/// In place of the input panel, which a picture does not show, stand the parameters of the run in words.
struct PageFormat {
  double widthPx = 1400, heightPx = 850;  ///< size of the page (pixels of 1/96 inch)
  double unitPx = 1.0 / 15;               ///< pixels to one surface unit at that size
};

/// The format of a picture of other size than the page on the screen: text and lines grow with the picture.
PageFormat ScaledFormat(const PageFormat& onScreen, int widthPx, int heightPx);

/// Draws the page as an image with `deviceRatio` dots to a pixel.
QImage PageImage(const Page& page, const PageFormat& format, double deviceRatio);

/// The page as SVG; text in it is text.
QByteArray PageSvg(const Page& page, const PageFormat& format);

/// Writes the page as .png, .svg or .pdf, beside the file first, so that a failure leaves an older one whole.
/// @return an empty text, or a sentence on what went wrong.
std::string SavePage(const Page& page, const PageFormat& format, std::string_view path);

/// The same for a page of another window, in the size that it has there; below the parameters of its runs, where it has
/// any.
std::string SaveDrawing(const Page& page, std::string_view path);

/// Copies the page to the clipboard, as an image and as SVG.
std::string CopyPage(const Page& page, const PageFormat& format, double deviceRatio);

}  // namespace lumivex
