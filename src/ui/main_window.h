#pragma once

#include <QLabel>
#include <QMainWindow>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollArea>
#include <memory>
#include <vector>

#include "record/session.h"
#include "ui/canvas.h"
#include "ui/command_gate.h"
#include "ui/curves_window.h"
#include "ui/dialog_view.h"
#include "ui/graph_pointer.h"
#include "ui/impulse_window.h"
#include "ui/info_overlay.h"
#include "ui/live_view.h"
#include "ui/menu_view.h"
#include "ui/page_picture.h"
#include "ui/panel_density.h"
#include "ui/panel_view.h"
#include "ui/photograph_window.h"
#include "ui/status_line.h"
#include "ui/undo_keys.h"

namespace lumivex {

/// The main window: menu bar, input panel and readings over the graph, status line with progress.
///
/// It shows a session and passes on what the user does to it; every such act is one command of the gate.
class MainWindow final : public QMainWindow {
 public:
  explicit MainWindow(CommandGate& gate);
  ~MainWindow() override;

  /// The surface that the session draws on; it lives as long as the window.
  DrawingSurface& Surface() { return canvas_->Surface(); }
  Canvas& Drawing() { return *canvas_; }

  /// Shows this session from now on and gives it a blank surface of the window's size. The session has to outlive the
  /// window or the next Attach; it may be loaded afterwards.
  void Attach(Session& session);
  /// Shows every control, menu entry and label as it is now, and the drawing.
  void Refresh();

  /// Lets the graph follow the inputs from now on (session/live); a window that runs a script leaves it.
  void FollowInputs() { live_.Start(); }
  LiveView& Live() { return live_; }
  /// Opens the slider beside the input that has the focus.
  void ShowSlider();

  /// Shows a window over a form of the layout and goes on; one that is open comes to the front.
  void Show(Form& form);
  /// Brings the window of the form to the front.
  void BringToFront(const Form& form);
  /// The simulation window, null before it has been shown.
  PhotographWindow* Photograph() const { return photograph_; }
  /// The window of one angle, null before it has been shown.
  ImpulseWindowView* Impulse() const { return impulse_; }
  /// The window of curves, null before it has been shown.
  CurvesWindow* Curves() const { return curves_; }
  /// Saves the drawing of another form as a picture.
  std::string SaveDrawingOf(const Form& form, std::string_view path) const;
  /// Shows a dialog and waits; true is OK.
  bool ShowDialog(Form& form);
  /// Size and scale of the page on the screen.
  PageFormat Page() const;
  /// Saves the page as a picture file, or copies it for an empty path; a sentence on what went wrong, or nothing.
  std::string SavePicture(std::string_view path, int widthPx = 0, int heightPx = 0);
  /// Saves an image of the whole window, or of another one.
  std::string SaveScreenshot(std::string_view path, QWidget* window = nullptr);

  /// The widget of a control of the panel, null where it has none.
  QWidget* WidgetOf(const Control& control) const;
  QAction* ActionOf(const MenuEntry& entry) const { return menu_->ActionOf(entry); }
  /// Size and place of the window on the desktop as a text for settings, and the same back; a text that is none leaves
  /// the window as it is. To be taken before the window is shown.
  std::string Place() const;
  void TakePlace(const std::string& place);
  /// Takes up a new size at once, without waiting for the event loop.
  void Settle();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void changeEvent(QEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void ShowImpulse();
  void ShowCurves();
  void ShowPhotograph();
  void FitPanel();
  void BuildPanel(std::size_t density);
  double UnitOf(std::size_t density);
  void TakeNewLook();
  void RenewInfo();
  void ReserveRoom();
  void RenewDrawing();
  void WatchInputs();
  /// The menus of materials, opened beside what the panel tells of them.
  void AddMaterialMenus();
  void Act(const CommandGate::Action& command);
  void NewPlot();
  void AddKeys();
  /// The guide at what it says of the input under the pointer, or of the one with the focus.
  void ShowHelpOfInput();
  void Resized();
  ControlActions Actions();
  DialogView::Hooks DialogHooks();

  CommandGate& gate_;
  Session* session_ = nullptr;
  QScrollArea* scroll_;
  Canvas* canvas_;
  StatusLine statusLine_;
  GraphPointer pointer_;
  LiveView live_;
  PanelView* panel_ = nullptr;
  InfoOverlay* info_ = nullptr;
  std::size_t density_ = 0;                ///< of the panel
  std::vector<double> units_;              ///< pixels to a unit with each density, 0 where it has not been measured yet
  double leastUnits_ = unitsWithReadings;  ///< width that the drawing keeps (surface units)
  bool lookIsStale_ = false;               ///< the desktop's font or colours have changed
  std::unique_ptr<MenuView> menu_;
  std::vector<DialogView*> dialogs_;
  std::vector<QPointer<DialogView>> windows_;  ///< modeless ones
  PhotographWindow* photograph_ = nullptr;
  ImpulseWindowView* impulse_ = nullptr;
  CurvesWindow* curves_ = nullptr;
  UndoKeys undoKeys_;
};

}  // namespace lumivex
