/// Fuzzes the reader of results files. Whatever the bytes are, reading must end; what is refused must leave the inputs
/// and the results as they were, and what is read must be drawn, saved and read again.

#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>

#include "files/results/read_file.h"
#include "files/results/save_data.h"
#include "fuzz/require.h"
#include "scripts/script_runner.h"
#include "session/undo.h"

namespace {

using namespace lumivex;

/// A session that is opened once, for its start takes a hundred times as long as a small file. Its platform has no
/// user.
ScriptRunner& Program() {
  static std::ostringstream output, errors;
  static ScriptRunner runner(output, errors);
  static const bool started = [] {
    runner.Start();
    std::istringstream script("set txtRadius 1\nset cboStep 30\nclick cmdNewPlot\n");
    runner.Run(script);
    return true;
  }();
  Require(started);
  return runner;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  ScriptRunner& program = Program();
  Session& session = program.Current();
  const InputState before = PresentInputs(session);
  const auto results = session.state.LastResults;
  std::istringstream file(std::string(reinterpret_cast<const char*>(data), size));
  const bool read = ReadResults(session, file, Onto::FreshPage);
  program.World().messages.clear();
  if (!read) {
    Require(PresentInputs(session) == before);
    Require(session.state.LastResults == results);
    return 0;
  }
  std::string failure;
  const std::string text = ResultsText(session, failure);
  if (!failure.empty()) return 0;
  std::istringstream again(text);
  Require(ReadResults(session, again, Onto::FreshPage));
  return 0;
}
