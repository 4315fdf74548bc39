#include "ui/number_keys.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QWheelEvent>
#include <utility>

namespace lumivex {

namespace {
constexpr int oneClick = 120;  // of a wheel (eighths of a degree)
}

void NumberKeys::Watch(QWidget& parent) {
  for (auto* edit : parent.findChildren<QLineEdit*>())
    if (!qobject_cast<QComboBox*>(edit->parentWidget())) edit->installEventFilter(this);
}

void NumberKeys::Turn(QLineEdit& field, int angle) {
  if (turned_ != &field) turnedBy_ = 0;
  turned_ = &field;
  turnedBy_ += angle;
  const int steps = turnedBy_ / oneClick;
  turnedBy_ -= steps * oneClick;
  if (steps != 0) step_(field, steps);
}

bool NumberKeys::eventFilter(QObject* watched, QEvent* event) {
  auto& field = *static_cast<QLineEdit*>(watched);
  if (event->type() == QEvent::KeyPress) {
    const auto& key = *static_cast<QKeyEvent*>(event);
    const bool up = key.key() == Qt::Key_Up, down = key.key() == Qt::Key_Down;
    const bool plain = (key.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    if (!(up || down) || !plain) return false;
    step_(field, up ? 1 : -1);
    return true;
  }
  if (event->type() == QEvent::Wheel && field.hasFocus() && field.isEnabled()) {
    Turn(field, static_cast<QWheelEvent*>(event)->angleDelta().y());
    event->accept();
    return true;
  }
  return false;
}

}  // namespace lumivex
