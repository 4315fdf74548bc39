#include "ui/info_overlay.h"

#include <QLabel>
#include <QVBoxLayout>
#include <algorithm>

#include "ui/look.h"

namespace lumivex {

namespace {

constexpr double readingsRight = 13750, roomyLeft = 14400, stripBottom = 2800, top = 150, edge = 150;  // surface units

}  // namespace

InfoOverlay::InfoOverlay(Frame& frame, QWidget* parent)
    : QFrame(parent), frame_(frame), title_(new QLabel(this)), body_(new QLabel(this)) {
  setFrameShape(QFrame::StyledPanel);
  setAutoFillBackground(true);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(8, 5, 8, 6);
  column->setSpacing(2);
  QFont bold = font();
  bold.setWeight(QFont::DemiBold);
  title_->setFont(bold);
  body_->setTextFormat(Qt::PlainText);
  body_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  column->addWidget(title_);
  column->addWidget(body_);
  hide();
}

void InfoOverlay::Sync(double unitPx, int roomPx) {
  const QString caption = ShownText(frame_.Caption), body = ToQString(frame_.Body);
  if (title_->text() != caption) title_->setText(caption);
  if (body_->text() != body) body_->setText(body);
  const bool visible = frame_.Visible && !body.isEmpty();
  if (visible) {
    const QSize size = sizeHint();
    const double mostLeft = roomPx - size.width() - edge * unitPx;
    const bool fitsBeside = mostLeft >= readingsRight * unitPx;
    const double left = fitsBeside ? std::max(frame_.Left, roomyLeft) * unitPx : mostLeft;
    const double y = (fitsBeside ? top : stripBottom + top) * unitPx;
    setGeometry(static_cast<int>(std::min(left, mostLeft)), static_cast<int>(y), size.width(), size.height());
  }
  if (isHidden() == visible) setVisible(visible);
}

}  // namespace lumivex
