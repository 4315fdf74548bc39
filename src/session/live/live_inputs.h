#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "runs/request.h"
#include "session/input_copy.h"

namespace lumivex {

/// What New plot would be asked with the inputs as they stand, found out on a copy of them: nobody is told or asked
/// anything, and the session stays as it is.
struct LiveInputs {
  std::unique_ptr<InputCopy> copy;    ///< as the checks have left it
  std::optional<RunRequest> request;  ///< nothing where New plot would refuse, or ask something first
  std::vector<Control*> bad;          ///< inputs of the session's main window that the checks would mark
  std::string why;                    ///< what would be told first, of a repair too; may be empty
};

LiveInputs ReadLiveInputs(Session& session);

/// Seconds that a run takes here, from its work.
/// @param secondsPerPairTerm  of one thread of this machine (MeasurePairTerm).
/// @param threads             that share the run.
double LiveSeconds(const RunRequest& request, double secondsPerPairTerm, unsigned threads);

/// Longest run that is made while somebody types (seconds).
inline constexpr double longestLiveRun = 0.25;

}  // namespace lumivex
