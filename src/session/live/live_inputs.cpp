#include "session/live/live_inputs.h"

#include <algorithm>
#include <cstddef>

#include "runs/run.h"
#include "runs/work.h"
#include "session/driver/commands.h"
#include "session/driver/read_run.h"
#include "session/driver/settle_beam.h"

namespace lumivex {

namespace {

/// Checks the inputs of the copy and reads the request, as New plot does before it runs.
std::optional<RunRequest> RequestOf(InputCopy& copy) {
  Session& inputs = copy.Inputs();
  // A new run is seen as it is before it is transformed.
  if (inputs.form1.mnuFFT.Checked) inputs.events.Raise("mnuFFT_Click");
  if (!InputsHold(inputs) || !SettleBeam(inputs)) return std::nullopt;
  auto request = ReadRun(inputs);
  if (!request || copy.World().asked > 0) return std::nullopt;
  if (Refusal beyond = BeyondVolume(*request); !beyond.text.empty()) {
    copy.World().told.push_back(beyond.text);
    return std::nullopt;
  }
  return request;
}

}  // namespace

LiveInputs ReadLiveInputs(Session& session) {
  LiveInputs live;
  live.copy = std::make_unique<InputCopy>(session);
  live.copy->Take(session);
  Session& inputs = live.copy->Inputs();
  // What would be asked is not to count as answered.
  inputs.state.RestoringSettings = 0;
  live.copy->World().told.clear();
  live.copy->World().asked = 0;
  live.request = RequestOf(*live.copy);
  const auto& told = live.copy->World().told;
  if (!told.empty()) live.why = told.front().substr(0, told.front().find('\n'));
  if (live.request) return live;
  const auto& checked = inputs.form1.Controls();
  for (std::size_t i = 0; i < checked.size(); ++i)
    if (checked[i]->BackColour == colours::BadInput) live.bad.push_back(session.form1.Controls()[i]);
  return live;
}

double LiveSeconds(const RunRequest& request, double secondsPerPairTerm, unsigned threads) {
  // Threads share memory and are never all busy to the end.
  constexpr double shareOfFurtherThread = 0.8;
  return PairTermsOf(request) * secondsPerPairTerm / (1 + shareOfFurtherThread * (std::max(threads, 1U) - 1));
}

}  // namespace lumivex
