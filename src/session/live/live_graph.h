#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "record/session.h"
#include "record/undo_history.h"
#include "runs/latest_run.h"
#include "session/live/live_inputs.h"

namespace lumivex {

/// Lets the graph of a window follow its inputs: after each thing that the user does, a run that takes no time is made
/// in a thread of its own and shown as the preview of the session. Record, page, results and undo stay as they are
/// until a command adopts the inputs, which it does as if there had been no preview.
///
/// Whoever has the window calls Pause before a command and Follow after it, both outside of any other. All of it runs
/// in the thread of the session but the runs, with the pages that are made of them.
class LiveGraph {
 public:
  /// How the graph stands to the inputs.
  enum class Standing {
    Kept,     ///< it shows them, or does not follow
    Running,  ///< a run is under way
    Preview,  ///< it shows them by a preview
    Waiting,  ///< it does not show them: that would take long, or needs an answer
    Refused,  ///< nothing can be calculated with them; what is at fault is marked
  };
  /// Calls something later in the thread of the session, from any other. It may be called any time before the end of
  /// the program.
  using Post = std::function<void(std::function<void()>)>;

  LiveGraph(Session& session, Post post);

  /// A command begins: what is under way ends.
  void Pause();
  /// A command has ended.
  /// @return whether marks, words or the drawing have changed.
  bool Follow();
  /// Takes the preview away; the inputs stay. @return whether there was one.
  bool Drop();
  /// Makes runs of any length, as long as this is on: for films, whose pictures are waited for.
  void SetPatient(bool patient) {
    patient_ = patient;
    interrupted_ = patient;
  }

  Standing Stands() const { return standing_; }
  /// What Enter and Esc would do now, or why nothing is drawn, for the status line; may be empty.
  std::string Words() const;

  std::function<void()> shown;  ///< a run has ended: the preview is there, or the words have changed

 private:
  bool Follows() const;
  /// Whether anything has happened since the last look that could matter.
  bool Noticed();
  bool IsKept(const LiveInputs& inputs) const;
  bool IsShort(const RunRequest& request);
  /// A run has taken so long: this machine, with what else it does, may be slower than it was measured.
  void Learn(double seconds);
  void Mark(const std::vector<Control*>& bad);
  void Try(LiveInputs inputs);
  void Take(std::uint64_t turn, std::optional<Preview> preview);

  Session& session_;
  Post post_;
  Standing standing_ = Standing::Kept;
  std::string why_;
  std::uint64_t turn_ = 0;  ///< of the run whose result is awaited; others are passed over
  bool patient_ = false;
  bool hasShown_ = false;          ///< a preview, which may be gone by now
  bool interrupted_ = false;       ///< a run was stopped by a command
  double secondsPerPairTerm_ = 0;  ///< measured when it is first needed
  double estimate_ = 0;            ///< of the run that was asked for last (seconds)
  double pace_ = 1;                ///< seconds that runs take for each that is estimated
  std::weak_ptr<const Results> keptResults_;
  InputState seenInputs_;
  /// What was marked here, with the colours of before.
  std::vector<std::pair<Control*, Colour>> marked_;
  std::shared_ptr<const bool> alive_ = std::make_shared<const bool>(true);
  LatestRun runs_;  ///< last: its thread ends before anything else does
};

}  // namespace lumivex
