#include "files/reports/save_text.h"

#include <algorithm>

#include "files/reports/result_columns.h"
#include "pages/page_table.h"
#include "pages/run_words.h"
#include "record/text_file.h"

namespace lumivex {

namespace {

/// Whether the last run of a page is that of the results: a run that was stopped stands on no page until it is drawn.
bool Shows(const Page& page, const Results& results) {
  if (page.runs.empty()) return false;
  const auto lines = ParameterLinesOf(results);
  const auto& shown = page.runs.back().parameters;
  return shown.size() >= lines.size() && std::ranges::equal(lines, std::span(shown).first(lines.size()));
}

}  // namespace

std::string TextReport(const Page& page, const Results* results) {
  std::string text;
  if (!page.runs.empty()) text = page.runs.back().title + "\n\n";
  for (const auto& line : HeaderOf(page)) text += line + "\n";
  text += "\n" + TableAsText(page);
  if (results == nullptr) return text;
  const std::string amplitudes = TextOfColumns(AmplitudeColumnsOf(*results));
  if (!amplitudes.empty()) text += "\n" + std::string(amplitudesTitle) + "\n\n" + amplitudes;
  return text;
}

SaveKind ReportKindOf(const RunRequest& asked) {
  const Family family = asked.graph.family;
  const bool beam = asked.method.beam.kind == Illumination::Kind::Gaussian;
  if (family == Family::Volume) return SaveKind::VolumeData;
  if (family == Family::Convergence && beam) return SaveKind::GaussianConvergence;
  if (asked.graph.OfPulse()) return SaveKind::ImpulseData;
  return SaveKind::TextReport;
}

std::string Save_MieGConv(const Results& results, bool parallel) {
  const auto* found = results.Find<ConvergenceFound>();
  const auto& beam = results.last.beam;
  if (found == nullptr || !beam) return "";
  const ConvergenceFound::Terms& terms = parallel ? found->parallelTerms : found->perpendicularTerms;
  if (terms.ratio.size() < 2) return "";
  ResultColumns table;
  table.first = 1;
  table.last = terms.ratio.size() - 1;
  std::vector<double> L(terms.ratio.size(), beam->limits.Lmax), M(terms.ratio.size(), beam->limits.Mmax);
  const bool overL = std::get<ConvergenceRun>(results.asked.run).over == ConvergenceRun::Over::L;
  for (std::size_t i = 1; i < terms.ratio.size(); ++i) (overL ? L : M)[i] = static_cast<double>(i) - 1 + found->first;
  table.columns = {{"Term 1", terms.ofPi},
                   {"Term 2", terms.ofTau},
                   {"Term 3", terms.ratio},
                   {"L", std::move(L)},
                   {"M", std::move(M)}};
  return TextOfColumns(table);
}

std::string Save_Text(Session& session, const std::string& path) {
  const auto& results = session.state.LastResults;
  const bool amplitudes = session.form1.mnuS1S2.Checked && results && Shows(session.page, *results);
  std::string text = TextReport(session.page, amplitudes ? results.get() : nullptr);
  if (results && Shows(session.page, *results) && ReportKindOf(results->asked) == SaveKind::GaussianConvergence)
    text += "\n" + Save_MieGConv(*results, session.form1.cboPol.Text == "Parallel");
  return WriteWholeFile(path, text);
}

void mnuSaveText_Click(Session& session) {
  const auto& results = session.state.LastResults;
  select_save_filename(session, results ? ReportKindOf(results->asked) : SaveKind::TextReport);
}

}  // namespace lumivex
