#pragma once

#include <QKeyEvent>
#include <QObject>
#include <QTimer>
#include <functional>
#include <optional>
#include <vector>

#include "pages/curves/curve_steps.h"
#include "pages/zoom.h"
#include "record/session.h"
#include "ui/canvas.h"
#include "ui/command_gate.h"

namespace lumivex {

/// What mouse and keyboard do on the graph: reading it, zooming and panning its axes.
///
/// The pointer reads; the wheel zooms both axes at the pointer, with Shift or over the numbers of an axis only one; a
/// drag pans, a double click shows the whole again. With the focus on the graph, + and - zoom the horizontal axis, the
/// arrows pan, Home shows the whole, Backspace goes back to the view before, and Ctrl with an arrow steps the reading
/// from point to point, with Page up and Page down from curve to curve; M marks the point that is read.
///
/// The key is dragged, or moved with Shift and an arrow; a double click on it, or Shift and Home, puts it below the
/// graph again.
///
/// A zoom draws what is stored and calculates nothing. Turns of the wheel that follow each other, and one drag, are one
/// step back.
class GraphPointer final : public QObject {
 public:
  /// @param act  runs a command of the session through the gate.
  GraphPointer(Canvas& canvas, std::function<void(const CommandGate::Action&)> act);

  void Attach(Session& session);
  /// The button went down in the graph: a drag may follow.
  void Press(SurfacePoint place);
  /// Whether a place lies on the key, which is dragged there.
  bool IsOnKey(SurfacePoint place);
  /// Whether a place lies on a picture of angle and time, where a click has a meaning of its own.
  bool IsOnTimes(SurfacePoint place) const;
  /// Whether the key meant something here.
  bool Key(const QKeyEvent& event);
  /// Enter right after a zoom that left few points in view calculates the view; false where it is to do what it does
  /// elsewhere.
  bool Enter();
  /// The user has gone on to the inputs: Enter is theirs again.
  void LeaveView() { zoomedLast_ = false; }
  /// What Enter would do here, for the status line; empty where it would do nothing of its own.
  QString Offer() const;
  /// The reading as the status line shows it; empty away from the graph.
  QString Text() const;
  /// Reads the place anew after the graph has changed.
  void Renew();

  std::function<void()> readingChanged;
  /// A click in the graph that was no drag and stayed alone.
  std::function<void(double x, double y)> clicked;

 private:
  /// Where the wheel turns: over the plot, or over the numbers of one of its axes.
  enum class Zone { None, Plot, XAxis, YAxis };

  void Read(SurfacePoint place);
  void Forget();
  void BeginStep();
  void Show(const PageView& view);
  bool Wheel(const CanvasWheel& wheel);
  void Drag(SurfacePoint place);
  void Step(int direction);
  void NextCurve(int direction);
  void Pan(double right, double down);
  void ZoomX(double factor);
  bool MoveKeyBy(const QKeyEvent& event);
  bool Ready() const;
  Zone ZoneAt(SurfacePoint place) const;

  Canvas& canvas_;
  std::function<void(const CommandGate::Action&)> act_;
  Session* session_ = nullptr;
  std::optional<SurfacePoint> place_;
  std::optional<GraphReading> reading_;
  std::optional<SurfacePoint> dragFrom_;
  std::optional<SurfacePoint> keyGrip_;  ///< where the key is held, from its upper left corner
  bool dragged_ = false;                 ///< the graph has followed the hand since the button went down
  SurfacePoint clickAt_;                 ///< where the button came up
  QTimer click_;                         ///< runs while a second click would make one of two
  std::vector<PageView> past_;           ///< views before each step
  bool zoomedLast_ = false;              ///< nothing was typed or chosen since
  QTimer rest_;                          ///< runs while the hand has not rested: what follows belongs to the same step
};

}  // namespace lumivex
