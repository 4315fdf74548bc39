#pragma once

#include <QLabel>
#include <QMainWindow>
#include <memory>

#include "record/session.h"
#include "ui/canvas.h"
#include "ui/command_gate.h"
#include "ui/menu_view.h"
#include "ui/panel_view.h"

namespace lumivex {

/// The window of the answer to a pulse at one angle: its curves, its panel at the left, the values of a click below.
///
/// Every act is one command of the gate. It shows one session, and looks at nothing of it after that has gone.
class ImpulseWindowView final : public QMainWindow {
 public:
  ImpulseWindowView(CommandGate& gate, Session& session, QWidget* parent);

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
  void Act(const CommandGate::Action& command);
  void RenewDrawing();
  ControlActions Actions();

  CommandGate& gate_;
  Session& session_;
  ImpulsePlotForm& form_;
  Canvas* canvas_;
  PanelView* panel_;
  QLabel* reading_;
  std::unique_ptr<MenuView> menu_;
};

}  // namespace lumivex
