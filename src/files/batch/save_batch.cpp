#include "files/batch/save_batch.h"

#include <array>
#include <ctime>
#include <string>

#include "files/batch/batch_block.h"
#include "session/inputs/look/read_look.h"

namespace lumivex {

namespace {

/// Date and time of the place where the program runs: "2026-11-22 14:05:09".
std::string DateAndTime() {
  const std::time_t now = std::time(nullptr);
  std::array<char, 32> text{};
  const std::size_t length = std::strftime(text.data(), text.size(), "%Y-%m-%d %H:%M:%S", std::localtime(&now));
  return {text.data(), length};
}

}  // namespace

bool Save_Batch(Session& session, PendingFile& output) {
  const auto& form = session.form1;
  const auto& results = session.state.LastResults;
  if (!results) return true;
  const Look look = ReadLook(session);
  const std::string now = DateAndTime();
  return output.Append(
      BatchBlock(*results, session.page,
                 {{look.amplitude, look.invWavelength}, form.mnuDiameter.Checked, form.mnuS1S2.Checked, now}));
}

}  // namespace lumivex
