#pragma once

#include <QTimer>
#include <QWidget>
#include <functional>
#include <optional>

#include "ui/painter_surface.h"

namespace lumivex {

/// A turn of the wheel over the drawing, at a place in surface units.
struct CanvasWheel {
  double x = 0, y = 0;
  double steps = 0;  ///< up is positive
  bool one = false;  ///< Shift is down: one axis alone
};

/// What the mouse does on the drawing, in surface units. Whoever reads a curve or zooms into one fills in its part.
struct CanvasMouse {
  std::function<void(double x, double y)> press;
  std::function<void(double x, double y)> move;
  std::function<void(double x, double y)> drag;  ///< moved with the left button down
  std::function<void(double x, double y)> release;
  std::function<void(double x, double y)> doubleClick;
  /// False where the wheel is to scroll.
  std::function<bool(const CanvasWheel& wheel)> wheel;
  std::function<void()> leave;
  std::function<void(double right, double down)> pan;  ///< moved with the right or middle button down, by so much
};

/// The widget that shows the drawing of the main window.
///
/// The drawing is an image in the dots of the screen. When the widget is resized the old image stays, on the colour of
/// the page, until a new one of the new size has been drawn: at once for a single change, a few times a second while an
/// edge is dragged.
class Canvas final : public QWidget {
  Q_OBJECT

 public:
  explicit Canvas(QWidget* parent = nullptr);

  /// The drawing; lives as long as the widget.
  ImageSurface& Surface() { return surface_; }
  /// Whether the page is shown as on a dark desktop; whoever changes it draws anew.
  void SetNight(bool night) { surface_.night = night; }
  bool IsNight() const { return surface_.night; }
  /// Pixels to one surface unit; a change takes effect with the next Renew.
  void SetUnit(double unitPx) { unitPx_ = unitPx; }
  double Unit() const { return unitPx_; }
  /// Makes a blank drawing of the widget's present size; whoever calls draws on it.
  void Renew();
  /// Whether the drawing has another size than the widget.
  bool IsStale() const;
  /// Repaints if the drawing has changed since the last time.
  void ShowChanges();

  /// A small ring on the drawing, at a place in surface units: the point that is read out.
  void SetMark(std::optional<SurfacePoint> mark);
  const std::optional<SurfacePoint>& Mark() const { return mark_; }

  /// A few words in a corner over the drawing, which is not part of it; none for an empty text.
  /// @param corner  top right, in surface units.
  void SetNote(const QString& note, SurfacePoint corner);
  const QString& Note() const { return note_; }

  CanvasMouse mouse;
  /// What the drawing shows, for those who hear it; asked when a screen reader asks.
  std::function<std::string()> inWords;
  /// What is told of a place of the drawing while the pointer rests there (surface units); nothing for an empty text.
  std::function<std::string(double x, double y)> tip;
  /// A key while the graph has the focus; true when it meant something.
  std::function<bool(const QKeyEvent& event)> key;
  /// The widget has a new size and the drawing has not: called when it is time to renew it.
  std::function<void()> resized;
  /// Called once, when the drawing has been painted for the first time.
  std::function<void()> firstPainted;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QPointF UnitsAt(const QPointF& px) const { return px / unitPx_; }

  QRect MarkArea() const;
  QRect NoteArea() const;
  void PaintNote(QPainter& painter) const;

  double unitPx_ = 1.0 / 15;
  std::optional<SurfacePoint> mark_;
  QString note_;
  SurfacePoint noteCorner_;
  QPointF panFrom_;
  ImageSurface surface_;
  QTimer resizeTimer_;
};

}  // namespace lumivex
