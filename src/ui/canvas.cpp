#include "ui/canvas.h"

#include <QAccessibleWidget>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <QWheelEvent>
#include <cmath>
#include <utility>

#include "ui/look.h"

namespace lumivex {

namespace {

constexpr int resizePauseMs = 30;
constexpr double wheelStep = 120;  // eighths of a degree to a click of a wheel
constexpr double markRadiusPx = 4;

class CanvasAccess final : public QAccessibleWidget {
 public:
  explicit CanvasAccess(Canvas* canvas) : QAccessibleWidget(canvas, QAccessible::Chart), canvas_(canvas) {}
  QString text(QAccessible::Text kind) const override {
    if (kind == QAccessible::Description && canvas_->inWords) return ToQString(canvas_->inWords());
    return QAccessibleWidget::text(kind);
  }

 private:
  Canvas* canvas_;
};

QAccessibleInterface* MakeAccess(const QString&, QObject* object) {
  auto* canvas = qobject_cast<Canvas*>(object);
  return canvas ? new CanvasAccess(canvas) : nullptr;
}

void OfferAccess() {
  static const bool offered = [] {
    QAccessible::installFactory(MakeAccess);
    return true;
  }();
  static_cast<void>(offered);
}

}  // namespace

Canvas::Canvas(QWidget* parent) : QWidget(parent), surface_(1, 1, unitPx_, 1) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
  setAccessibleName("Graph");
  OfferAccess();
  resizeTimer_.setSingleShot(true);
  resizeTimer_.setInterval(resizePauseMs);
  connect(&resizeTimer_, &QTimer::timeout, this, [this] {
    if (IsStale() && resized) resized();
  });
}

void Canvas::Renew() {
  surface_.Resize(width(), height(), unitPx_, devicePixelRatioF());
}

bool Canvas::IsStale() const {
  const double ratio = devicePixelRatioF();
  const QSize wanted(static_cast<int>(std::ceil(width() * ratio)), static_cast<int>(std::ceil(height() * ratio)));
  return surface_.Picture().size() != wanted;
}

void Canvas::ShowChanges() {
  if (surface_.TakeChanged()) update();
}

void Canvas::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QImage& picture = surface_.Picture();
  const double ratio = surface_.Scale().deviceRatio;
  const QRectF shown(QPointF(0, 0), QSizeF(picture.size()) / ratio);
  if (shown.width() < width() || shown.height() < height()) painter.fillRect(rect(), surface_.PaperColour());
  painter.drawImage(shown, picture);
  if (mark_) {
    painter.setRenderHint(QPainter::Antialiasing);
    const QPointF centre(mark_->x * unitPx_, mark_->y * unitPx_);
    // White around black: seen on every background.
    painter.setPen(QPen(Qt::white, 3));
    painter.drawEllipse(centre, markRadiusPx, markRadiusPx);
    painter.setPen(QPen(Qt::black, 1.2));
    painter.drawEllipse(centre, markRadiusPx, markRadiusPx);
  }
  if (!note_.isEmpty()) PaintNote(painter);
  if (firstPainted) QTimer::singleShot(0, this, std::exchange(firstPainted, nullptr));
  if (IsStale() && !resizeTimer_.isActive()) resizeTimer_.start();  // moved to a screen of another density
}

void Canvas::resizeEvent(QResizeEvent*) {
  // Not restarted while it runs, so that the drawing follows an edge that is being dragged.
  if (!resizeTimer_.isActive()) resizeTimer_.start();
}

void Canvas::mousePressEvent(QMouseEvent* event) {
  const QPointF at = UnitsAt(event->position());
  panFrom_ = at;
  if (event->button() == Qt::LeftButton && mouse.press) mouse.press(at.x(), at.y());
}

void Canvas::mouseMoveEvent(QMouseEvent* event) {
  const QPointF at = UnitsAt(event->position());
  if (mouse.pan && event->buttons() & (Qt::RightButton | Qt::MiddleButton)) {
    const QPointF by = at - std::exchange(panFrom_, at);
    mouse.pan(by.x(), by.y());
    return;
  }
  const auto& act = event->buttons() & Qt::LeftButton ? mouse.drag : mouse.move;
  if (act) act(at.x(), at.y());
}

void Canvas::mouseReleaseEvent(QMouseEvent* event) {
  const QPointF at = UnitsAt(event->position());
  if (event->button() == Qt::LeftButton && mouse.release) mouse.release(at.x(), at.y());
}

void Canvas::mouseDoubleClickEvent(QMouseEvent* event) {
  const QPointF at = UnitsAt(event->position());
  if (mouse.doubleClick) mouse.doubleClick(at.x(), at.y());
}

void Canvas::wheelEvent(QWheelEvent* event) {
  const QPointF at = UnitsAt(event->position());
  // Some systems turn the wheel with Shift into a horizontal one.
  const QPoint turned = event->angleDelta();
  const double steps = (turned.y() != 0 ? turned.y() : turned.x()) / wheelStep;
  const bool one = event->modifiers() & Qt::ShiftModifier;
  if (!mouse.wheel || !mouse.wheel({at.x(), at.y(), steps, one})) event->ignore();
}

QRect Canvas::MarkArea() const {
  if (!mark_) return {};
  const int reach = static_cast<int>(markRadiusPx) + 4;
  const QPoint centre(static_cast<int>(mark_->x * unitPx_), static_cast<int>(mark_->y * unitPx_));
  return {centre - QPoint(reach, reach), centre + QPoint(reach, reach)};
}

void Canvas::SetMark(std::optional<SurfacePoint> mark) {
  const QRect before = MarkArea();
  mark_ = mark;
  update(before.united(MarkArea()));
}

QRect Canvas::NoteArea() const {
  if (note_.isEmpty()) return {};
  constexpr int side = 7, edge = 2, apart = 6;
  const QSize size = fontMetrics().size(Qt::TextSingleLine, note_) + QSize(2 * side, 2 * edge);
  const QPoint corner(static_cast<int>(noteCorner_.x * unitPx_), static_cast<int>(noteCorner_.y * unitPx_));
  return {corner + QPoint(-size.width() - apart, apart), size};
}

void Canvas::PaintNote(QPainter& painter) const {
  // The colours of a selection made pale: seen on every background, and no alarm.
  constexpr float strength = 0.85F;
  QColor ground = palette().color(QPalette::Highlight);
  ground.setAlphaF(strength);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(ground);
  const QRect area = NoteArea();
  painter.drawRoundedRect(area, area.height() / 2.0, area.height() / 2.0);
  painter.setPen(palette().color(QPalette::HighlightedText));
  painter.drawText(area, Qt::AlignCenter, note_);
}

void Canvas::SetNote(const QString& note, SurfacePoint corner) {
  if (note == note_ && corner.x == noteCorner_.x && corner.y == noteCorner_.y) return;
  const QRect before = NoteArea();
  note_ = note;
  noteCorner_ = corner;
  update(before.united(NoteArea()));
}

bool Canvas::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip && tip) {
    const auto* help = static_cast<QHelpEvent*>(event);
    const QPointF at = UnitsAt(help->pos());
    const QString words = ToQString(tip(at.x(), at.y()));
    if (words.isEmpty()) {
      QToolTip::hideText();
      event->ignore();
    } else {
      QToolTip::showText(help->globalPos(), words, this);
    }
    return true;
  }
  return QWidget::event(event);
}

void Canvas::keyPressEvent(QKeyEvent* event) {
  if (!key || !key(*event)) QWidget::keyPressEvent(event);
}

void Canvas::leaveEvent(QEvent*) {
  if (mouse.leave) mouse.leave();
}

}  // namespace lumivex
