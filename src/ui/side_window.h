#pragma once

#include <QLabel>
#include <QMainWindow>
#include <QScrollArea>
#include <memory>
#include <span>
#include <vector>

#include "record/layout/menu_tree.h"
#include "record/session.h"
#include "ui/canvas.h"
#include "ui/command_gate.h"
#include "ui/menu_view.h"
#include "ui/panel_view.h"

namespace lumivex {

/// A window beside the main one: a menu, a panel of inputs at the left, a drawing, and what is read off it below.
///
/// Every act is one command of the gate. It shows one session, and looks at nothing of it after that has gone.
class SideWindow : public QMainWindow {
 public:
  /// Shows every control as it is now, the drawing, and itself where its form is visible.
  void Refresh();
  /// Takes up a new size at once.
  void Settle();
  Canvas& Drawing() { return *canvas_; }
  QWidget* WidgetOf(const Control& control) const { return panel_->WidgetOf(control); }

 protected:
  /// What it is made of.
  struct Parts {
    Form& form;
    std::span<const FrameLayout> frames;
    std::span<const MenuRow> menu;
    Control& closes;    ///< clicked where the user closes the window
    Control& onReturn;  ///< and where Return is pressed
    QString drawing;    ///< name of the drawing, to a screen reader
    QSize size;
  };
  SideWindow(CommandGate& gate, Session& session, const Parts& parts, QWidget* parent);

  /// Draws on the surface that the canvas has now.
  virtual void Draw() = 0;
  /// What stands below.
  virtual QString Reading() const = 0;
  /// More than the panel that follows the controls.
  virtual void SyncMore() {}
  virtual void Click(Control& control);

  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

  void Act(const CommandGate::Action& command);
  void RenewDrawing();
  /// Gives the room beside the drawing the width that the panel needs, once everything stands in it.
  void FitPanel();

  CommandGate& gate_;
  Session& session_;
  Canvas* canvas_ = nullptr;
  PanelView* panel_ = nullptr;

 private:
  ControlActions Actions();

  Parts parts_;
  QScrollArea* side_ = nullptr;
  QLabel* reading_ = nullptr;
  std::unique_ptr<MenuView> menu_;
};

}  // namespace lumivex
