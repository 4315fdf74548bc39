#include "ui/wrap_label.h"

#include <algorithm>

namespace lumivex {

namespace {
constexpr qsizetype oneWord = 5;  // "+ i" is not broken
}

WrapLabel::WrapLabel(bool isLong, QWidget* parent) : QLabel(parent), isLong_(isLong) {
  setWordWrap(true);
  QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Minimum);
  policy.setHeightForWidth(true);
  setSizePolicy(policy);
}

QSize WrapLabel::sizeHint() const {
  const auto metrics = fontMetrics();
  if (!isLong_ && text().isEmpty()) return {0, metrics.height()};
  if (!isLong_) return {metrics.horizontalAdvance(text()) + 1, metrics.height()};
  return {minimumSizeHint().width(), 2 * metrics.height()};
}

QSize WrapLabel::minimumSizeHint() const {
  const auto metrics = fontMetrics();
  if (text().size() <= oneWord) return {metrics.horizontalAdvance(text()) + 1, metrics.height()};
  int longest = 0;
  for (const auto& word : text().split(' ')) longest = std::max(longest, metrics.horizontalAdvance(word));
  return {longest + 1, metrics.height()};
}

}  // namespace lumivex
