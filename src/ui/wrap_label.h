#pragma once

#include <QLabel>

namespace lumivex {

/// A label that asks for little: a short text for its own width, a long one for the room of two lines, which it fills
/// by breaking at blanks. A text that was short when the panel was measured and grows later breaks likewise.
class WrapLabel final : public QLabel {
 public:
  explicit WrapLabel(bool isLong, QWidget* parent = nullptr);
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 private:
  bool isLong_;
};

}  // namespace lumivex
