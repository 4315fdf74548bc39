#pragma once

#include <QKeyEvent>
#include <QObject>
#include <QTimer>
#include <functional>
#include <optional>

#include "pages/curves/curve_steps.h"
#include "record/session.h"
#include "ui/canvas.h"
#include "ui/command_gate.h"

namespace lumivex {

/// What mouse and keyboard do on the graph: reading it, zooming and panning its x axis.
///
/// The pointer reads; the wheel zooms at the pointer, a drag pans, a double click shows the whole range again. With the
/// focus on the graph, + and - zoom at its middle, the arrows pan, Home shows the whole, and Ctrl with an arrow steps
/// the reading from point to point, with Page up and Page down from curve to curve. A zoom draws what is stored; where
/// there is nothing stored a calculation follows once the hand rests.
class GraphPointer final : public QObject {
 public:
  /// @param act  runs a command of the session through the gate.
  GraphPointer(Canvas& canvas, std::function<void(const CommandGate::Action&)> act);

  void Attach(Session& session);
  /// The button went down in the graph: a drag may follow.
  void Press(SurfacePoint place);
  /// Whether the key meant something here.
  bool Key(const QKeyEvent& event);
  /// The reading as the status line shows it; empty away from the graph.
  QString Text() const;
  /// Reads the place anew after the graph has changed.
  void Renew();

  std::function<void()> readingChanged;

 private:
  void Read(SurfacePoint place);
  void Forget();
  void Show(XRange range);
  void Drag(double x);
  void Step(int direction);
  void NextCurve(int direction);
  void CalculateMissing();
  bool Ready() const;
  bool InGraph(SurfacePoint place) const;

  Canvas& canvas_;
  std::function<void(const CommandGate::Action&)> act_;
  Session* session_ = nullptr;
  std::optional<SurfacePoint> place_;
  std::optional<GraphReading> reading_;
  std::optional<double> dragFrom_;  ///< surface x
  bool missing_ = false;            ///< part of the range shown has not been calculated
  QTimer rest_;                     ///< runs out when the hand rests
};

}  // namespace lumivex
