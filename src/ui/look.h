#pragma once

#include <QEvent>
#include <QPalette>
#include <QString>
#include <string>
#include <string_view>

#include "record/colour.h"

namespace lumivex {

/// Text of the session (UTF-8) for Qt and back.
QString ToQString(std::string_view text);
std::string FromQString(const QString& text);

/// A caption as Qt shows it: an ampersand in it is an ampersand, not the mark of a key.
QString ShownText(std::string_view caption);

bool IsDark(const QPalette& palette);

/// Whether a top window is told that the desktop has changed its font or its colours.
bool IsNewLook(const QEvent& event);

/// The palette of an input that is marked: red for bad input, yellow for a warning, any other colour as it is, each
/// with a text that reads on it; white and the neutral colour leave the palette as it is.
QPalette MarkedPalette(const QPalette& plain, Colour mark);

/// The palette of a text in that colour: black is the palette's own text, a colour is made lighter on a dark ground.
QPalette InkedPalette(const QPalette& plain, Colour ink);

/// The palette of the input panel: on a light desktop its ground is the neutral colour of the drawing, so that the two
/// meet without an edge; on a dark one the drawing takes the desktop's ground.
QPalette PanelPalette(const QPalette& application);

}  // namespace lumivex
