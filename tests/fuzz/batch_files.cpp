/// Fuzzes the reader of command files and lists. Whatever the bytes are, the commands come to an end, each of them can
/// be carried out, and what a message quotes of a bad one is short.

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <sstream>
#include <string>
#include <string_view>

#include "files/batch/batch_commands.h"
#include "fuzz/require.h"
#include "materials/files/readable_text.h"

namespace {

using namespace lumivex;

void CheckSteps(const BatchSteps& steps) {
  const double count = steps.Count();
  Require(count >= 0 && count == std::floor(count));
  if (count == 0) return;
  Require(std::isfinite(steps.At(0)));
  // While they are not beyond the last one and half a step.
  const double last = steps.from + (count - 1) * steps.by;
  const double slack = 1e-9 * (std::abs(steps.from) + std::abs(steps.to)) + std::abs(steps.by) / 2;
  if (count < 1e9) Require(steps.by > 0 ? last <= steps.to + slack * 1.000001 : last >= steps.to - slack * 1.000001);
}

void CheckCommand(const BatchCommand& command) {
  if (command.kind == BatchCommand::Kind::Unknown) {
    Require(Readable(command.line).size() <= std::size_t{4} * 40);
    return;
  }
  Require(command.keyword != nullptr && FindBatchKeyword(command.keyword->text) == command.keyword);
  if (command.keyword->TakesNumber()) Require(std::isfinite(command.number));
  if (command.keyword->action != BatchAction::Step) return;
  // Steps that lead away from their end are a command all the same: it runs nothing and says so.
  Require(command.stepName != nullptr && std::isfinite(command.steps.from) && std::isfinite(command.steps.by));
  CheckSteps(command.steps);
}

void CheckCommandFile(const std::string& text) {
  std::istringstream stream(text);
  BatchCommands commands(stream);
  std::size_t count = 0;
  for (BatchCommand command = commands.Next(); command.kind != BatchCommand::Kind::End; command = commands.Next()) {
    CheckCommand(command);
    Require(++count <= text.size());
  }
}

void CheckList(const std::string& text) {
  std::istringstream stream(text);
  BatchCommands list(stream);
  std::size_t count = 0;
  while (const auto line = list.NextLine()) {
    Require(!line->empty() && ++count <= text.size());
    if (const auto output = BatchOutputOf(*line)) Require(output->ends_with(".mut") && output->size() == line->size());
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  CheckCommandFile(text);
  CheckList(text);
  if (const auto steps = ReadBatchSteps(text)) CheckSteps(*steps);
  return 0;
}
