#pragma once

#include <string>

#include "record/session.h"
#include "runs/run_watch.h"

namespace lumivex {

/// Shows how far the run is, as a percentage in txtProgress and a bar on the surface, and yields to the event loop.
///
/// Once a run has lasted secondsUntilEstimate, SecondsLeft tells how long it will go on if it goes on as it did: the
/// total is smoothed, looked at once a second. The tip of txtProgress and the status line show it.
/// @param share  of the run that is done, 0 to 1.
void Progress(Session& session, double share);

inline constexpr double secondsUntilEstimate = 2;

/// "12 s left", in steps that can be read; empty below 0.
std::string TimeLeftWords(double seconds);

/// Shows txtProgress at 0, or hides it and wipes the bar.
void BeginProgress(Session& session);
void EndProgress(Session& session);

/// The session's eye on a run: writes the loop variables of the record, prints the running wavelength and radius in the
/// side strip, shows progress, and stops the run once PlotMode is 4. Nothing else writes them.
class SessionWatch final : public RunWatch {
 public:
  explicit SessionWatch(Session& session);
  bool Look(const RunProgress& progress) override;

  /// Puts the loop variables back to what they were before a run of which nothing is kept.
  void Forget();

 private:
  void PrintStrip(const RunProgress& progress);

  Session& session_;
  SeriesState before_;  ///< but for the series
  int wavelengthBefore_, sampleBefore_;
  double dispSampleBefore_, percentBefore_;
  float fractionBefore_;
  double printed_ = 0;  ///< seconds, when the strip was printed last
};

}  // namespace lumivex
