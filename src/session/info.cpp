#include "session/info.h"

#include "materials/files/readable_text.h"
#include "pages/run_words.h"
#include "record/number_text.h"
#include "session/checks/material_bands.h"
#include "session/driver/fold_sizes.h"
#include "session/driver/progress.h"
#include "session/inputs/dialog_use.h"

namespace lumivex {

namespace {

/// "Mie, 117 terms, 3 ms"; without terms for methods that sum no series, with the wavelengths of a spectrum: those that
/// a Stop has left of them.
std::string RunInShort(const Results& results) {
  const RunRequest& asked = results.asked;
  const std::string time = TimeWords(results.seconds);
  if (const auto* found = results.Find<SpectrumFound>())
    return asked.words.method + ", " + CountOf(found->done, asked.Wavelengths(), "wavelength") + ", " + time;
  if (const auto* map = results.Find<MapFound>())
    return asked.words.method + ", " + CountOf(map->done, map->columns, "column") + ", " + time;
  const MethodTraits& method = TraitsOf(asked.method.method);
  const bool series = method.series || method.layered;
  return asked.words.method + ", " + (series ? CountOf(results.last.NSTOP, "term") + ", " : "") + time;
}

/// Whether columns or wavelengths are missing: the run was stopped, however long ago.
bool IsPart(const Results& results) {
  if (const auto* found = results.Find<SpectrumFound>()) return found->done < results.asked.Wavelengths();
  const auto* map = results.Find<MapFound>();
  return map != nullptr && map->done < map->columns;
}

/// "Batch rain.min, Radius 120   "; empty outside a batch.
std::string BatchWords(const BatchState& batch) {
  if (batch.BatchActive == 0) return {};
  std::string words = "Batch " + Readable(FileNameOf(batch.BatchFileName));
  if (batch.StepActive != 0) words += ", " + batch.StepName + " " + Significant(double{batch.StepValue}, 7);
  return words + "   ";
}

}  // namespace

std::vector<std::string> RunParameters(const Session& session) {
  return session.page.runs.empty() ? std::vector<std::string>() : session.page.runs.back().parameters;
}

void cmdInfo_Click(Session& session) {
  auto& frame = session.form1.Frame6;
  frame.Visible = !frame.Visible;
  session.form1.mnuInfo.Checked = frame.Visible;
  if (!frame.Visible) return;
  frame.Body.clear();
  for (const auto& line : RunParameters(session)) frame.Body += (frame.Body.empty() ? "" : "\n") + line;
}

std::string StatusText(const Session& session) {
  const auto& s = session.state;
  const std::string batch = BatchWords(s);
  if (session.form1.txtProgress.Visible) {
    const std::string left = TimeLeftWords(s.SecondsLeft);
    return batch + session.form1.txtProgress.Text + (left.empty() ? "" : "   " + left);
  }
  if (!batch.empty()) return std::string(Trim(batch));
  // Some graphs start with a range that is wider than the band of common materials.
  if (std::string wayOut = WayOutOfBand(session); !wayOut.empty()) return wayOut;
  if (!s.LastResults) return "Ready";
  const bool remarked = session.remark.of.lock() == s.LastResults;
  if (remarked && session.remark.text != informationOff) return session.remark.text;
  const bool stopped = s.StopAnswer != 0 || IsPart(*s.LastResults);
  const bool off = remarked && !session.form1.Frame6.Visible;
  return (off ? std::string(informationOff) + "   " : "") + RunInShort(*s.LastResults) + FoldWords(session) +
         (stopped ? ", stopped" : "");
}

}  // namespace lumivex
