#pragma once

#include <string>

#include "record/session.h"
#include "solvers/run_monitor.h"

namespace lumivex {

/// Shows how far the run is, as a percentage in txtProgress and a bar on the surface, and yields to the event loop.
/// Reads the loop variables of the record, so that whoever loops need pass nothing. The percentage counts the angles
/// of a sphere within the samples of its cloud within the wavelengths, and never falls.
///
/// Once a run has lasted secondsUntilEstimate, SecondsLeft tells how long it will go on if it goes on as it did: the
/// total is smoothed, looked at once a second. The tip of txtProgress and the status line show it.
void Progress(Session& session);

inline constexpr double secondsUntilEstimate = 2;

/// "12 s left", in steps that can be read; empty below 0.
std::string TimeLeftWords(double seconds);

/// Shows txtProgress at 0, or hides it and wipes the bar.
void BeginProgress(Session& session);
void EndProgress(Session& session);

/// What a kernel of the present run reports to: moves the loop variables, shows progress, sees a Stop.
class SessionMonitor final : public RunMonitor {
 public:
  /// What the kernel's share of work is a share of: the angles of one sphere, or the points of an x axis.
  enum class Share { Angles, Points };
  explicit SessionMonitor(Session& session, Share share = Share::Angles) : session_(session), share_(share) {}
  bool Report(std::size_t index, std::size_t count) override;

 private:
  Session& session_;
  Share share_;
};

}  // namespace lumivex
