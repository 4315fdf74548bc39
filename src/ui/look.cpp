#include "ui/look.h"

#include <QColor>

#include "ui/painter_surface.h"

namespace lumivex {

namespace {

struct MarkColours {
  QRgb ground;
  QRgb text;
};

constexpr MarkColours badOnLight{0xFFFFB0A8, 0xFF5A0000}, badOnDark{0xFF8E1F1B, 0xFFFFFFFF};
constexpr MarkColours warningOnLight{0xFFFFF08C, 0xFF403400}, warningOnDark{0xFF6E5A00, 0xFFFFFFFF};

MarkColours ColoursOf(Colour mark, bool dark) {
  if (mark == colours::BadInput) return dark ? badOnDark : badOnLight;
  if (mark == colours::Warning) return dark ? warningOnDark : warningOnLight;
  const QColor ground = ToQColor(mark);
  return {ground.rgb(), ground.lightnessF() > 0.55 ? 0xFF000000 : 0xFFFFFFFF};
}

}  // namespace

QString ToQString(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

std::string FromQString(const QString& text) {
  return text.toStdString();
}

QString ShownText(std::string_view caption) {
  return ToQString(caption).replace('&', "&&");
}

bool IsDark(const QPalette& palette) {
  return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

bool IsNewLook(const QEvent& event) {
  switch (event.type()) {
    case QEvent::ApplicationFontChange:
    case QEvent::ApplicationPaletteChange:
    case QEvent::FontChange:
    case QEvent::PaletteChange:
      return true;
    default:
      return false;
  }
}

QPalette MarkedPalette(const QPalette& plain, Colour mark) {
  if (mark == colours::White || mark == colours::ButtonFace) return plain;
  QPalette marked = plain;
  const MarkColours to = ColoursOf(mark, IsDark(plain));
  for (const auto role : {QPalette::Base, QPalette::Button, QPalette::Window}) marked.setColor(role, QColor(to.ground));
  for (const auto role : {QPalette::Text, QPalette::ButtonText, QPalette::WindowText})
    marked.setColor(role, QColor(to.text));
  return marked;
}

QPalette InkedPalette(const QPalette& plain, Colour ink) {
  if (ink == colours::Black) return plain;
  QPalette inked = plain;
  QColor colour = ToQColor(ink);
  if (IsDark(plain) && colour.lightness() < 150) colour = colour.lighter(170);
  if (!IsDark(plain) && colour.lightness() > 110) colour = colour.darker(140);
  inked.setColor(QPalette::WindowText, colour);
  return inked;
}

QPalette PanelPalette(const QPalette& application) {
  QPalette palette = application;
  if (!IsDark(application)) palette.setColor(QPalette::Window, ToQColor(colours::ButtonFace));
  return palette;
}

}  // namespace lumivex
