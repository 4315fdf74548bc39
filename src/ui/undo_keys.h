#pragma once

#include <QKeyEvent>
#include <QObject>
#include <QWidget>
#include <functional>

namespace lumivex {

/// Ctrl+Z, Ctrl+Y and Ctrl+Shift+Z in the inputs of a window go to the session, which knows what was typed, chosen and
/// ticked everywhere; the fields' own memory of their text would take them otherwise.
class UndoKeys final : public QObject {
 public:
  /// @param step  called with true for redo.
  explicit UndoKeys(std::function<void(bool redo)> step) : step_(std::move(step)) {}

  /// Takes the keys of every field and list below a widget.
  void Watch(QWidget& parent);
  /// Acts on the key where it is one of these.
  bool Take(const QKeyEvent& event) const;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  std::function<void(bool redo)> step_;
};

}  // namespace lumivex
