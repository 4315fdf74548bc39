#include "ui/canvas.h"

#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>
#include <cmath>
#include <utility>

namespace lumivex {

namespace {

constexpr int resizePauseMs = 30;
constexpr double wheelStep = 120;  // eighths of a degree to a click of a wheel

}  // namespace

Canvas::Canvas(QWidget* parent) : QWidget(parent), surface_(1, 1, unitPx_, 1) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMouseTracking(true);
  setFocusPolicy(Qt::ClickFocus);
  setAccessibleName("Graph");
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
  if (shown.width() < width() || shown.height() < height()) painter.fillRect(rect(), ToQColor(surface_.BackColour));
  painter.drawImage(shown, picture);
  if (firstPainted) QTimer::singleShot(0, this, std::exchange(firstPainted, nullptr));
  if (IsStale() && !resizeTimer_.isActive()) resizeTimer_.start();  // moved to a screen of another density
}

void Canvas::resizeEvent(QResizeEvent*) {
  // Not restarted while it runs, so that the drawing follows an edge that is being dragged.
  if (!resizeTimer_.isActive()) resizeTimer_.start();
}

void Canvas::mousePressEvent(QMouseEvent* event) {
  const QPointF at = UnitsAt(event->position());
  if (event->button() == Qt::LeftButton && mouse.press) mouse.press(at.x(), at.y());
}

void Canvas::mouseMoveEvent(QMouseEvent* event) {
  const QPointF at = UnitsAt(event->position());
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
  if (mouse.wheel) {
    mouse.wheel(at.x(), at.y(), event->angleDelta().y() / wheelStep);
  } else {
    event->ignore();  // scrolls
  }
}

void Canvas::leaveEvent(QEvent*) {
  if (mouse.leave) mouse.leave();
}

}  // namespace lumivex
