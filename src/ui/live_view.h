#pragma once

#include <QObject>
#include <QPointer>
#include <QString>
#include <functional>
#include <memory>

#include "record/session.h"
#include "session/live/live_graph.h"
#include "ui/canvas.h"
#include "ui/command_gate.h"
#include "ui/number_keys.h"

class QMainWindow;
class QToolBar;

namespace lumivex {

class MenuView;
class SliderView;

/// What makes the graph of the main window follow its inputs: the live runs, stepping of numbers by keys and wheel, the
/// slider, the tool bar at the end of the menu bar and the small note in the corner of the graph.
class LiveView final : public QObject {
 public:
  using Act = std::function<void(const CommandGate::Action&)>;

  /// @param act      runs a command of the session through the gate.
  /// @param refresh  shows what has changed outside of a command.
  LiveView(QMainWindow& window, Canvas& canvas, Act act, std::function<void()> refresh);
  ~LiveView() override;

  /// Lets graphs follow from now on; a window that runs a script leaves it.
  void Start();
  /// Another session, with the menu of its window.
  void Attach(Session& session, const MenuView& menu);
  /// Another panel: its fields take keys and wheel, and those that slide offer it in their menus.
  void Watch(QWidget& panel);

  /// A command begins, and has ended: whether anything has changed that is on show.
  void Pause();
  bool Follow();
  /// Esc outside of a run: takes the preview away. Whether there was one.
  bool Escape();
  /// What Enter and Esc would do, for the status line.
  QString Words() const;
  /// Shows note and slider as they are now.
  void Sync();

  /// Opens the slider for the input of that name, or where it is none of those that slide, for the radius.
  void ShowSlider(const Control* input);
  /// Writes a picture of what the graph shows; a sentence on what went wrong, or nothing.
  std::function<std::string(const std::string& path)> savePicture;
  LiveGraph* Graph() const { return graph_.get(); }
  SliderView* Slider() const;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Begin();
  void StepNumber(QLineEdit& field, int steps);

  Canvas& canvas_;
  Act act_;
  std::function<void()> refresh_;
  bool follows_ = false;
  Session* session_ = nullptr;
  QToolBar* tools_;
  NumberKeys keys_;
  QPointer<SliderView> slider_;
  std::unique_ptr<LiveGraph> graph_;
};

}  // namespace lumivex
