#pragma once

#include <QToolButton>

class QLabel;

namespace lumivex {

/// An arrow at the right end of a label that opens a menu below it: what the label tells can be changed there.
class MenuButton final : public QToolButton {
 public:
  /// @param name  what the menu is for, to a screen reader and as a tip.
  MenuButton(QLabel& label, QMenu& menu, const QString& name);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Place();

  QLabel& label_;
};

}  // namespace lumivex
