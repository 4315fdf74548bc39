#pragma once

#include "session/kernel/run_monitor.h"
#include "session/record/session.h"

namespace lumivex {

/// Shows how far the run is, as a percentage in txtProgress and a bar on the surface, and yields to the event loop.
/// Reads the loop variables of the record, so that whoever loops need pass nothing.
void Progress(Session& session);

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
