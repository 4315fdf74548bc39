#include "session/live/live_graph.h"

#include <algorithm>
#include <thread>
#include <utility>

#include "session/driver/calibration.h"
#include "session/inputs/look/read_look.h"
#include "session/live/preview_page.h"
#include "session/page.h"
#include "session/undo.h"

namespace lumivex {

namespace {

/// Work does not tell of methods that sum no series: a run that goes on for so much longer than it may is given up.
constexpr double patience = 2 * longestLiveRun;

unsigned ThreadsOf(const Platform& platform) {
  const unsigned threads = platform.Threads();
  return threads != 0 ? threads : std::max(1U, std::thread::hardware_concurrency());
}

}  // namespace

LiveGraph::LiveGraph(Session& session, Post post) : session_(session), post_(std::move(post)) {}

void LiveGraph::Pause() {
  if (standing_ == Standing::Running) interrupted_ = true;
  ++turn_;
  runs_.Cancel();
}

bool LiveGraph::Follows() const {
  const auto& s = session_.state;
  return session_.form1.mnuLiveGraph.Checked && s.LastResults && s.BatchActive == 0 && s.Busy == 0 &&
         session_.undo.open.empty();
}

bool LiveGraph::Noticed() {
  const auto& results = session_.state.LastResults;
  InputState present = PresentInputs(session_);
  const bool adopted = keptResults_.lock() != results;
  const bool changed = !(present == seenInputs_);
  // Another page has come in its place.
  const bool lost = std::exchange(hasShown_, session_.preview.has_value()) && !session_.preview;
  const bool interrupted = std::exchange(interrupted_, false);
  keptResults_ = results;
  seenInputs_ = std::move(present);
  if (!adopted) return changed || lost || interrupted;
  standing_ = Standing::Kept;
  marked_.clear();
  return false;
}

bool LiveGraph::IsKept(const LiveInputs& inputs) const {
  if (!inputs.request->AsksSame(session_.state.LastResults->asked)) return false;
  // Limits that are typed wait for no button to show what they do.
  const ScaleLook scale = ReadLook(inputs.copy->Inputs()).scale;
  if (session_.page.panels.empty() || !session_.form1.cboYmax.Visible) return true;
  const XRange limits = session_.page.homeY;
  return (!scale.ymin || *scale.ymin == limits.xmin) && (!scale.ymax || *scale.ymax == limits.xmax);
}

void LiveGraph::Learn(double seconds) {
  // Of shorter runs the time is not that of their work.
  constexpr double tellingEstimate = 0.005, greatestPace = 8;
  if (estimate_ < tellingEstimate) return;
  pace_ = std::clamp((pace_ + seconds / estimate_) / 2, 1.0, greatestPace);
}

bool LiveGraph::IsShort(const RunRequest& request) {
  const auto& s = session_.state;
  if (s.CalibrationState == 0 && secondsPerPairTerm_ == 0) secondsPerPairTerm_ = MeasurePairTerm(session_.platform);
  const double term = s.CalibrationState != 0 ? s.SecondsPerPairTerm : secondsPerPairTerm_;
  estimate_ = LiveSeconds(request, term, ThreadsOf(session_.platform));
  return patient_ || pace_ * estimate_ < longestLiveRun;
}

void LiveGraph::Mark(const std::vector<Control*>& bad) {
  const auto isBad = [&](const Control* control) { return std::ranges::find(bad, control) != bad.end(); };
  for (const auto& [control, before] : marked_)
    if (!isBad(control) && control->BackColour == colours::BadInput) control->BackColour = before;
  std::erase_if(marked_, [&](const auto& mark) { return !isBad(mark.first); });
  for (Control* control : bad) {
    if (control->BackColour == colours::BadInput) continue;
    std::erase_if(marked_, [&](const auto& mark) { return mark.first == control; });
    marked_.emplace_back(control, control->BackColour);
    control->BackColour = colours::BadInput;
  }
}

bool LiveGraph::Follow() {
  if (!Follows()) {
    const bool had = standing_ != Standing::Kept || !marked_.empty();
    Mark({});
    Drop();
    standing_ = Standing::Kept;
    // The next look is a whole one, whatever happens until then.
    keptResults_ = session_.state.LastResults;
    seenInputs_ = {};
    interrupted_ = false;
    return had;
  }
  const Standing before = standing_;
  if (!Noticed()) return standing_ != before;
  LiveInputs inputs = ReadLiveInputs(session_);
  Mark(inputs.bad);
  why_ = inputs.why;
  if (!inputs.request) {
    // Beside a number that is still being typed the graph stays as it is.
    if (inputs.bad.empty()) Drop();
    standing_ = inputs.bad.empty() ? Standing::Waiting : Standing::Refused;
    return true;
  }
  if (IsKept(inputs)) {
    Drop();
    standing_ = Standing::Kept;
  } else if (!IsShort(*inputs.request)) {
    Drop();
    standing_ = Standing::Waiting;
  } else {
    Try(std::move(inputs));
  }
  return true;
}

void LiveGraph::Try(LiveInputs inputs) {
  standing_ = Standing::Running;
  const std::uint64_t turn = ++turn_;
  // One callback hands all to the thread of the runs and, as the preview, back.
  const std::shared_ptr<InputCopy> copy = std::move(inputs.copy);
  TriedRun run;
  run.request = std::move(*inputs.request);
  run.mostSeconds = patient_ ? 0 : patience;
  run.threads = session_.platform.Threads();
  run.done = [this, copy, turn, kept = session_.page, post = post_,
              alive = std::weak_ptr<const bool>(alive_)](RunEnd end) {
    auto preview = std::make_shared<std::optional<Preview>>();
    const bool whole = end.hasResults && end.outcome == Outcome::Done;
    if (whole) *preview = PreviewOf(copy->Inputs(), std::move(end.results), kept);
    post([this, turn, preview, alive] {
      if (!alive.expired()) Take(turn, std::move(*preview));
    });
  };
  runs_.Ask(std::move(run));
}

void LiveGraph::Take(std::uint64_t turn, std::optional<Preview> preview) {
  if (turn != turn_) return;
  Learn(preview ? preview->results->seconds : patience);
  if (preview) {
    session_.preview = std::move(preview);
    hasShown_ = true;
    standing_ = Standing::Preview;
    DrawPage(session_);
  } else {
    Drop();
    standing_ = Standing::Waiting;
  }
  if (shown) shown();
}

bool LiveGraph::Drop() {
  hasShown_ = false;
  if (!session_.preview) return false;
  session_.preview.reset();
  standing_ = Standing::Waiting;
  DrawPage(session_);
  return true;
}

std::string LiveGraph::Words() const {
  if (standing_ == Standing::Refused) return why_.empty() ? "This cannot be calculated" : why_;
  if (session_.preview) return "Live: Enter keeps it, Esc drops it" + (why_.empty() ? "" : " (" + why_ + ")");
  return standing_ == Standing::Waiting ? "Inputs changed: Enter draws them" : "";
}

}  // namespace lumivex
