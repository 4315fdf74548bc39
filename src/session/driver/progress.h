#pragma once

#include <string>

#include "record/session.h"
#include "runs/request.h"
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
/// Columns of a map appear on the page as they are done, a few times a second at most.
class SessionWatch final : public RunWatch {
 public:
  SessionWatch(Session& session, const RunRequest& request);
  bool Look(const RunProgress& progress) override;

  /// Whether columns were drawn, so that the page is no more the one before the run.
  bool HasDrawn() const { return columnsDrawn_ > 0; }

  /// Puts the loop variables back to what they were before a run of which nothing is kept.
  void Forget();

 private:
  void PrintStrip(const RunProgress& progress);
  void DrawColumns(const RunProgress& progress);

  Session& session_;
  const RunRequest& request_;
  SeriesState before_;  ///< but for the series
  int wavelengthBefore_, sampleBefore_;
  double dispSampleBefore_, percentBefore_;
  float fractionBefore_;
  double printed_ = 0;  ///< seconds, when the strip was printed last
  int columnsDrawn_ = 0;
  double nextDrawing_ = 0;  ///< seconds, before which columns wait
};

}  // namespace lumivex
