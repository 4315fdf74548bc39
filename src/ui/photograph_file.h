#pragma once

#include <QImage>
#include <string>
#include <string_view>

#include "record/page.h"
#include "record/photograph.h"

namespace lumivex {

/// Reads a picture of any kind that Qt has a reader for (JPEG, PNG, TIFF, WebP), by its content: turned upright, what
/// is transparent on white. The notes are those of its camera (Exif), and the focal length is taken from them.
OpenedPhotograph ReadPhotographFile(std::string_view path);

/// The page with its lines in the size of its photograph, a dot a pixel.
QImage PhotographImage(const Page& page);

/// Writes that as .png or .jpg, with the notes of the camera but for its small picture, which would be the one of
/// before; beside the file first, so that a failure leaves an older one whole. Copies it for an empty path.
/// @return an empty text, or a sentence on what went wrong.
std::string WritePhotographFile(const Page& page, std::string_view notes, std::string_view path);

}  // namespace lumivex
