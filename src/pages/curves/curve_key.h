#pragma once

#include "pages/frame/frame_paint.h"

namespace lumivex {

/// Paints the key of a page below its plot: a sample of each pen with the curve that it draws, where the page has more
/// than one curve or a curve that stands for several. Of curves drawn over others it says what tells their runs apart.
///
/// One line a polarisation with the runs beside each other, as long as that fits; otherwise as many columns as the
/// surface has room for, in smaller letters where they are needed. None is left out before letters are as small as can
/// be read; then the last line tells how many there are besides.
/// @param polarLabels  numbers of a polar plot, which the key stands below.
void PaintKey(DrawingSurface& surface, const Page& page, const TickLabels& polarLabels);

/// How many names the key has.
std::size_t EntriesInKey(const Page& page);

}  // namespace lumivex
