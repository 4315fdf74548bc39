#pragma once

#include <QLabel>
#include <QMainWindow>
#include <QSlider>
#include <QTimer>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "record/session.h"
#include "ui/canvas.h"
#include "ui/command_gate.h"
#include "ui/menu_view.h"
#include "ui/panel_view.h"
#include "ui/undo_keys.h"

namespace lumivex {

/// The simulation window: a photograph with the light of a run over it, its panel at the left, its readings below.
///
/// A drag over the picture moves the chosen point, and the light follows; the right or middle button moves the view,
/// the wheel zooms it. Every act is one command of the gate. It shows one session, and looks at nothing of it after
/// that has gone.
class PhotographWindow final : public QMainWindow {
 public:
  PhotographWindow(CommandGate& gate, Session& session, QWidget* parent);

  /// Shows every control as it is now, the drawing, and itself where its form is visible.
  void Refresh();
  /// Takes up a new size at once.
  void Settle();
  Canvas& Drawing() { return *canvas_; }
  QWidget* WidgetOf(const Control& control) const { return panel_->WidgetOf(control); }

 protected:
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  /// A slider below an input, which types into it.
  struct Slider {
    Control* input;
    QSlider* widget;
    std::function<double(double)> valueAt;  ///< of the slider's place, 0 to 1
    std::function<double(double)> placeOf;
  };

  void ConnectMouse();
  bool Nudge(const QKeyEvent& event);
  void AddSlider(Control& input, std::function<double(double)> valueAt, std::function<double(double)> placeOf);
  void SyncSliders();
  void Act(const CommandGate::Action& command);
  void Follow();
  void RenewDrawing();
  ControlActions Actions();

  CommandGate& gate_;
  Session& session_;
  Form2& form_;
  Canvas* canvas_;
  PanelView* panel_;
  QLabel* reading_;
  std::unique_ptr<MenuView> menu_;
  std::vector<Slider> sliders_;
  std::optional<SurfacePoint> draggedTo_;  ///< the last place of a drag that the picture has not followed yet
  QTimer follow_;
  UndoKeys undoKeys_;
};

}  // namespace lumivex
