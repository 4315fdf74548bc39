#include "ui/menu_button.h"

#include <QEvent>
#include <QLabel>
#include <QMenu>

namespace lumivex {

MenuButton::MenuButton(QLabel& label, QMenu& menu, const QString& name) : QToolButton(&label), label_(label) {
  setArrowType(Qt::DownArrow);
  setAutoRaise(true);
  setPopupMode(QToolButton::InstantPopup);
  setMenu(&menu);
  setFocusPolicy(Qt::TabFocus);
  setAccessibleName(name);
  setToolTip(name);
  // The arrow alone, without another one for the menu.
  setStyleSheet("QToolButton::menu-indicator { image: none; }");
  const int side = label.fontMetrics().height();
  setFixedSize(side, side);
  label.setContentsMargins(0, 0, side, 0);
  label.installEventFilter(this);
  Place();
}

bool MenuButton::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize || event->type() == QEvent::Show) Place();
  return QToolButton::eventFilter(watched, event);
}

void MenuButton::Place() {
  move(label_.width() - width(), 0);
}

}  // namespace lumivex
