#pragma once

#include <optional>

#include "pages/frame/frame_paint.h"

namespace lumivex {

/// Paints the key of a page below its plot: a sample of each pen with the curve that it draws, where the page has more
/// than one curve or a curve that stands for several. Of curves drawn over others it says what tells their runs apart.
///
/// One line a polarisation with the runs beside each other, as long as that fits; otherwise as many columns as the
/// surface has room for, in smaller letters where they are needed. None is left out before letters are as small as can
/// be read; then the last line tells how many there are besides.
/// One that was moved (Page::keyAt) stands in the plot on the paper's colour, its names below each other.
/// @param polarLabels  numbers of a polar plot, which the key stands below.
void PaintKey(DrawingSurface& surface, const Page& page, const TickLabels& polarLabels);

/// Where the key stands on a surface; nothing where the page has none. Pictures of another size have it elsewhere.
std::optional<GraphBox> KeyBox(DrawingSurface& surface, const Page& page);

/// The place of a key in the plot whose upper left corner is to stand at a place of the surface, to a thousandth.
KeyPlace KeyPlaceAt(const Page& page, double surfaceX, double surfaceY);

/// How many names the key has.
std::size_t EntriesInKey(const Page& page);

}  // namespace lumivex
