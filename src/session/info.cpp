#include "session/info.h"

#include "pages/run_words.h"
#include "session/checks/material_bands.h"
#include "session/driver/fold_sizes.h"
#include "session/driver/progress.h"

namespace lumivex {

namespace {

/// "Mie, 117 terms, 3 ms"; without terms for methods that sum no series, with the wavelengths of a spectrum.
std::string RunInShort(const Results& results) {
  const RunRequest& asked = results.asked;
  const std::string time = TimeWords(results.seconds);
  if (const auto* found = results.Find<SpectrumFound>())
    return asked.words.method + ", " + std::to_string(found->done) + " wavelengths, " + time;
  if (const auto* map = results.Find<MapFound>())
    return asked.words.method + ", " + std::to_string(map->done) + " columns, " + time;
  const bool series = TraitsOf(asked.method.method).series;
  return asked.words.method + ", " + (series ? std::to_string(results.last.NSTOP) + " terms, " : "") + time;
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
  if (session.form1.txtProgress.Visible) {
    const std::string left = TimeLeftWords(s.SecondsLeft);
    return session.form1.txtProgress.Text + (left.empty() ? "" : "   " + left);
  }
  // Some graphs start with a range that is wider than the band of common materials.
  if (std::string wayOut = WayOutOfBand(session); !wayOut.empty()) return wayOut;
  if (!s.LastResults) return "Ready";
  return RunInShort(*s.LastResults) + FoldWords(session) +
         (s.StopAnswer == 0                       ? ""
          : s.LastResults->asked.graph.InColour() ? ", stopped"
                                                  : ", stopped: Replot draws what was done");
}

}  // namespace lumivex
