#include "session/driver/fold_sizes.h"

#include <utility>

#include "record/number_text.h"
#include "runs/fold_sizes.h"
#include "session/inputs/sizes/read_sizes.h"

namespace lumivex {

std::shared_ptr<const Results> WithSizesFolded(Session& session) {
  auto& s = session.state;
  TakeSizesOut(s);
  const auto results = s.LastResults;
  const auto* map = results->Find<MapFound>();
  const bool asked = map != nullptr && results->asked.graph.family == Family::Lee && session.form1.optDisp.Checked;
  if (!asked) return results;
  const Sweep& columns = std::get<AngleMapRun>(results->asked.run).columns;
  if (columns.quantity != Swept::Radius) return results;
  const SizeDistribution sizes = ChosenSizes(session);
  FoldedMap folded = FoldSizes(*map, columns, sizes);
  if (folded.failure != SizeFailure::None) {
    session.platform.Message("Input error", WordsFor(folded.failure));
    return results;
  }
  s.FoldedShare = folded.share;
  auto shown = std::make_shared<Results>();
  shown->asked = results->asked;
  shown->found = std::move(folded.found);
  shown->last = results->last;
  shown->seconds = results->seconds;
  shown->asked.sizes = sizes;
  shown->asked.words.sizes = WordsForSizes(session);
  return s.FoldedResults = std::move(shown);
}

void TakeSizesOut(MainFormState& s) {
  s.FoldedResults.reset();
  s.FoldedShare = -1;
}

std::string FoldWords(const Session& session) {
  const double share = session.state.FoldedShare;
  const Graph& graph = session.state.LastResults->asked.graph;
  if (graph.family == Family::Lee && graph.VariesIndex() && session.form1.optDisp.Checked)
    return ", one size: distributions are folded into Lee diagrams of the radius only";
  if (share < 0) return "";
  const std::string words = ", sizes folded in";
  if (share == 0) return words;
  return words + ": " + Significant(100 * share, 2) + " % of the particles lie beyond the radii and are left out";
}

}  // namespace lumivex
