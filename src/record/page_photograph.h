#pragma once

#include <memory>
#include <string>
#include <vector>

#include "record/colour.h"
#include "sky/sight.h"
#include "sky/sky_lines.h"

namespace lumivex {

class SkyPainter;

/// Lines of one colour over a photograph.
struct PageSkyLines {
  std::vector<SkyLine> lines;
  Colour colour;
};

/// A raster that a photograph was drawn on last. It is remembered because the mean of millions of pixels takes longer
/// than a picture may that follows the mouse; a page is the same with it or without.
struct PhotographRaster {
  std::weak_ptr<const Bitmap> of;
  PictureWindow window;
  Bitmap cells;
};

/// A photograph, what lies over it, and how much of it is in view.
struct PagePhotograph {
  SharedBitmap picture;     ///< as it is now
  SharedBitmap photograph;  ///< before any painting: what a preview adds light to
  Sight sight;              ///< of its camera and light, for readings
  std::vector<PageSkyLines> lines;
  std::vector<PicturePoint> marks;            ///< points that the user has set
  std::shared_ptr<const SkyPainter> preview;  ///< light that is painted over what is in view; may be null
  std::string lightWords;                     ///< what the light was read from, for readings
  double zoom = 1;                            ///< 1 where the whole picture fits
  PicturePoint middle;                        ///< of the view, where it is zoomed
  double unitsPerDot = 15;                    ///< surface units to a dot of the screen
  /// Rasters of `picture` and of `photograph`.
  std::shared_ptr<std::pair<PhotographRaster, PhotographRaster>> drawn =
      std::make_shared<std::pair<PhotographRaster, PhotographRaster>>();
};

}  // namespace lumivex
