#pragma once

#include <QLineEdit>
#include <QObject>
#include <QPointer>
#include <functional>

namespace lumivex {

/// Up, Down and the wheel in number fields. A field that does not have the focus leaves the wheel to what lies behind.
class NumberKeys final : public QObject {
 public:
  /// @param step  asked for so many steps of a field, up is positive.
  explicit NumberKeys(std::function<void(QLineEdit& field, int steps)> step) : step_(std::move(step)) {}

  /// Takes keys and wheel of every field below a widget; lists have their own.
  void Watch(QWidget& parent);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Turn(QLineEdit& field, int angle);

  std::function<void(QLineEdit&, int)> step_;
  QPointer<QLineEdit> turned_;  ///< the field that the wheel was turned in last
  int turnedBy_ = 0;            ///< what has not made a whole step yet (eighths of a degree)
};

}  // namespace lumivex
