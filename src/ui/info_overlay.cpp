#include "ui/info_overlay.h"

#include <QLabel>
#include <QVBoxLayout>

#include "pages/free_room.h"
#include "ui/look.h"

namespace lumivex {

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

void InfoOverlay::Sync(const Page& page, double unitPx, int roomPx) {
  const QString caption = ShownText(frame_.Caption), body = ToQString(frame_.Body);
  if (title_->text() != caption) title_->setText(caption);
  if (body_->text() != body) body_->setText(body);
  const bool visible = frame_.Visible && !body.isEmpty();
  if (visible) {
    const QSize size = sizeHint();
    const SurfacePoint at = FreeRoom(page, size.width() / unitPx, size.height() / unitPx, frame_.Left, roomPx / unitPx);
    setGeometry(static_cast<int>(at.x * unitPx), static_cast<int>(at.y * unitPx), size.width(), size.height());
  }
  if (isHidden() == visible) setVisible(visible);
}

}  // namespace lumivex
