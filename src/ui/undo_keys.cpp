#include "ui/undo_keys.h"

#include <QComboBox>
#include <QLineEdit>

namespace lumivex {

namespace {

enum class HistoryKey { None, Undo, Redo };

HistoryKey KeyOf(const QKeyEvent& event) {
  const auto modifiers = event.modifiers() & ~Qt::KeypadModifier;
  if (event.key() == Qt::Key_Z && modifiers == Qt::ControlModifier) return HistoryKey::Undo;
  if (event.key() == Qt::Key_Z && modifiers == (Qt::ControlModifier | Qt::ShiftModifier)) return HistoryKey::Redo;
  return event.key() == Qt::Key_Y && modifiers == Qt::ControlModifier ? HistoryKey::Redo : HistoryKey::None;
}

}  // namespace

void UndoKeys::Watch(QWidget& parent) {
  for (auto* edit : parent.findChildren<QLineEdit*>()) edit->installEventFilter(this);
  for (auto* box : parent.findChildren<QComboBox*>()) box->installEventFilter(this);
}

bool UndoKeys::Take(const QKeyEvent& event) const {
  const HistoryKey key = KeyOf(event);
  if (key == HistoryKey::None) return false;
  step_(key == HistoryKey::Redo);
  return true;
}

bool UndoKeys::eventFilter(QObject* watched, QEvent* event) {
  // Taken as a plain key, not as the menu's shortcut: a dialog has no menu.
  if (event->type() == QEvent::ShortcutOverride && KeyOf(*static_cast<QKeyEvent*>(event)) != HistoryKey::None) {
    event->accept();
    return true;
  }
  if (event->type() == QEvent::KeyPress && Take(*static_cast<QKeyEvent*>(event))) return true;
  return QObject::eventFilter(watched, event);
}

}  // namespace lumivex
