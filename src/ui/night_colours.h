#pragma once

#include <QColor>

#include "record/colour.h"

namespace lumivex {

/// The colours of a page on a dark desktop. A page is made for light paper; here its neutral colours change places with
/// dark ones, and what is drawn on it is made light enough to read. Data that are colours (bars, images) stay.

/// Of an area: the paper takes the colour of the window and the pale ground a darker one, all others stay.
QColor NightFill(Colour colour);

/// Of a line or a text: grid and logo keep in the background, black is near white, what would be too dark is paler than
/// the full colour of its hue, so that both can be told apart.
QColor NightInk(Colour colour);

}  // namespace lumivex
