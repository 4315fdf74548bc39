#include "ui/command_gate.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScopeGuard>
#include <QWindow>
#include <utility>

namespace lumivex {

namespace {

/// A short run ends before the first yield is served: it neither flickers nor pays for the event loop.
constexpr auto servedEvery = std::chrono::milliseconds(25);
constexpr int servedForMs = 50;

/// The top widget of a native window, or the widget itself.
QWidget* WidgetOf(QObject* receiver) {
  if (receiver->isWidgetType()) return static_cast<QWidget*>(receiver);
  if (!receiver->isWindowType()) return nullptr;
  for (QWidget* top : QApplication::topLevelWidgets())
    if (top->windowHandle() == receiver) return top;
  return nullptr;
}

/// What a mouse event is aimed at: native windows get it first, for the widget below the pointer.
QWidget* TargetOf(QObject* receiver, const QMouseEvent& event) {
  QWidget* widget = WidgetOf(receiver);
  if (!widget || !receiver->isWindowType()) return widget;
  QWidget* child = widget->childAt(event.position().toPoint());
  return child ? child : widget;
}

bool IsEnter(const QEvent& event) {
  if (event.type() != QEvent::KeyPress && event.type() != QEvent::KeyRelease) return false;
  const int key = static_cast<const QKeyEvent&>(event).key();
  return key == Qt::Key_Return || key == Qt::Key_Enter;
}

}  // namespace

CommandGate::~CommandGate() {
  if (serving_) qApp->removeEventFilter(this);
}

bool CommandGate::Do(const Action& command) {
  if (depth_ > 0 && dialogs_ == 0) return false;
  if (depth_ == 0 && begins) begins();
  if (depth_ == 0) lastServed_ = Clock::now();
  ++depth_;
  const auto leave = qScopeGuard([this] {
    --depth_;
    if (refresh) refresh();
    if (depth_ == 0) Release();
  });
  command();
  return true;
}

void CommandGate::Yield() {
  if (depth_ == 0 || serving_ || Clock::now() - lastServed_ < servedEvery) return;
  if (refresh) refresh();
  serving_ = true;
  qApp->installEventFilter(this);
  QCoreApplication::processEvents(QEventLoop::AllEvents, servedForMs);
  qApp->removeEventFilter(this);
  serving_ = false;
  lastServed_ = Clock::now();
}

bool CommandGate::Keep(QObject* receiver, QEvent* event) {
  kept_.push_back({receiver, std::unique_ptr<QEvent>(event->clone())});
  event->accept();
  return true;
}

bool CommandGate::FilterMouse(QObject* receiver, QEvent* event) {
  const auto* mouse = static_cast<QMouseEvent*>(event);
  QWidget* target = TargetOf(receiver, *mouse);
  const bool isRelease = event->type() == QEvent::MouseButtonRelease;
  const bool forStop = stopButton && target && (target == stopButton || stopButton->isAncestorOf(target));
  if (forStop || (stopPressed_ && isRelease)) {
    stopPressed_ = !isRelease;
    return false;
  }
  if (event->type() == QEvent::MouseMove) return true;
  if (!isRelease && target && !target->isEnabled()) return true;
  return Keep(receiver, event);
}

bool CommandGate::FilterKey(QObject* receiver, QEvent* event) {
  const auto* key = static_cast<QKeyEvent*>(event);
  if (key->key() == Qt::Key_Escape) {
    event->accept();
    if (event->type() == QEvent::KeyPress && !key->isAutoRepeat() && stop) stop();
    return true;
  }
  return key->isAutoRepeat() || Keep(receiver, event);
}

bool CommandGate::FilterClose(QObject* receiver, QEvent* event) {
  QWidget* widget = WidgetOf(receiver);
  if (!widget) return false;
  closing_ = widget->window();
  event->ignore();
  return true;
}

bool CommandGate::eventFilter(QObject* receiver, QEvent* event) {
  // A question that the run has put (whether to stop) takes its input; it blocks the other windows by itself.
  if (!serving_ || QApplication::activeModalWidget()) return false;
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseMove:
      return FilterMouse(receiver, event);
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
      return FilterKey(receiver, event);
    case QEvent::Wheel:
    case QEvent::Shortcut:
    case QEvent::InputMethod:
      return Keep(receiver, event);
    case QEvent::Close:
      return FilterClose(receiver, event);
    case QEvent::ContextMenu:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TabletPress:
    case QEvent::TabletRelease:
    case QEvent::NativeGesture:
    case QEvent::DragEnter:
    case QEvent::Drop:
      event->ignore();
      return true;
    default:
      return false;
  }
}

void CommandGate::Release() {
  if (whenFree) whenFree();
  const bool dropsEnter = std::exchange(dropsEnter_, false);
  for (auto& kept : std::exchange(kept_, {}))
    if (kept.receiver && !(dropsEnter && IsEnter(*kept.event)))
      QCoreApplication::postEvent(kept.receiver, kept.event.release());
  stopPressed_ = false;
  if (QWidget* window = std::exchange(closing_, nullptr))
    QMetaObject::invokeMethod(window, &QWidget::close, Qt::QueuedConnection);
}

}  // namespace lumivex
