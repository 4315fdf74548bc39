#pragma once

#include <QEvent>
#include <QObject>
#include <QPointer>
#include <QWidget>
#include <chrono>
#include <functional>
#include <memory>
#include <vector>

namespace lumivex {

/// Lets one command of the session run at a time.
///
/// Every command that a user sets off goes through Do. While one runs, the window is served only inside Yield:
/// painting, the Stop button and Esc. What else the user does meanwhile is kept and delivered, in its order, when the
/// command has ended; clicks on what is switched off, pointer moves and repeated keys are dropped. A dialog that a
/// command shows takes its own input as usual.
class CommandGate final : public QObject {
 public:
  using Action = std::function<void()>;

  CommandGate() = default;
  ~CommandGate() override;

  /// Runs a command. Returns false, without running it, when another runs and no dialog of that one is open.
  bool Do(const Action& command);
  /// Whether a command is under way.
  bool Running() const { return depth_ > 0; }

  /// Takes back what Enter was pressed for during this command: it was stopped, and no other is to follow it.
  void DropEnter() { dropsEnter_ = true; }

  /// Serves the window from inside a command; returns at once when it was served less than 25 ms ago.
  void Yield();

  /// The event loop of a dialog that a command shows; its input may set off further commands.
  class DialogScope {
   public:
    explicit DialogScope(CommandGate& gate) : gate_(gate) { ++gate_.dialogs_; }
    ~DialogScope() { --gate_.dialogs_; }
    DialogScope(const DialogScope&) = delete;
    DialogScope& operator=(const DialogScope&) = delete;

   private:
    CommandGate& gate_;
  };

  Action begins;                 ///< before an outermost command
  Action refresh;                ///< after every command and before every yield: show what has changed
  Action whenFree;               ///< after the outermost command, before the kept input is delivered
  Action stop;                   ///< Esc during a run
  QPointer<QWidget> stopButton;  /// < takes the mouse during a run

 protected:
  bool eventFilter(QObject* receiver, QEvent* event) override;

 private:
  struct Kept {
    QPointer<QObject> receiver;
    std::unique_ptr<QEvent> event;
  };
  using Clock = std::chrono::steady_clock;

  bool FilterMouse(QObject* receiver, QEvent* event);
  bool FilterKey(QObject* receiver, QEvent* event);
  bool FilterClose(QObject* receiver, QEvent* event);
  bool Keep(QObject* receiver, QEvent* event);
  void Release();

  int depth_ = 0;
  int dialogs_ = 0;
  bool serving_ = false;
  bool stopPressed_ = false;
  bool dropsEnter_ = false;
  Clock::time_point lastServed_;
  std::vector<Kept> kept_;
  QPointer<QWidget> closing_;
};

}  // namespace lumivex
