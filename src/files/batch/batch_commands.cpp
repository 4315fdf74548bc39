#include "files/batch/batch_commands.h"

#include <array>
#include <cmath>
#include <filesystem>
#include <utility>

#include "record/number_text.h"

namespace lumivex {

namespace {

constexpr std::string_view commandEnding = ".min", outputEnding = ".mut";

}  // namespace

bool BatchSteps::End() const {
  return by != 0 && std::isfinite((to - from) / by);
}

double BatchSteps::Count() const {
  const double steps = (to - from) / by + 0.5;
  return End() && steps >= 0 ? std::floor(steps) + 1 : 0;
}

float BatchSteps::At(double step) const {
  return static_cast<float>(from + step * by);
}

std::optional<BatchSteps> ReadBatchSteps(std::string_view line) {
  std::array<double, 3> numbers{};
  for (double& number : numbers) {
    line = Trim(line);
    const std::string_view word = line.substr(0, line.find_first_of(", \t"));
    if (!IsNumber(word)) return std::nullopt;
    number = Val(word);
    if (!std::isfinite(static_cast<float>(number))) return std::nullopt;
    line = Trim(line.substr(word.size()));
    if (line.starts_with(',')) line.remove_prefix(1);
  }
  if (!Trim(line).empty()) return std::nullopt;
  return BatchSteps{numbers[0], numbers[1], numbers[2]};
}

BatchCommands::BatchCommands(std::istream& stream) : lines_(stream) {
  first_ = NextLine().value_or("");
  version_ = BatchVersionOf(first_);
}

std::optional<std::string> BatchCommands::NextLine() {
  for (std::string line; lines_.Next(line);)
    if (const std::string_view text = Trim(line); !text.empty()) return std::string(text);
  return std::nullopt;
}

BatchCommand BatchCommands::Unknown(std::string line) const {
  BatchCommand command;
  command.kind = BatchCommand::Kind::Unknown;
  command.line = std::move(line);
  command.lineNumber = lines_.Number();
  return command;
}

BatchCommand BatchCommands::Next() {
  BatchCommand command;
  const auto line = NextLine();
  if (!line || EndsBatch(*line)) return command;
  command.keyword = FindBatchKeyword(*line);
  if (command.keyword == nullptr || lines_.Cut()) return Unknown(*line);
  command.kind = BatchCommand::Kind::Keyword;
  command.lineNumber = lines_.Number();
  if (command.keyword->TakesNumber()) {
    const std::string value = NextLine().value_or(*line);  // the keyword, where the file ends with it
    if (!IsNumber(value) || lines_.Cut()) return Unknown(value);
    command.number = Val(value);
  } else if (command.keyword->action == BatchAction::Step) {
    const std::string name = NextLine().value_or(*line);
    command.stepName = FindBatchStepName(name);
    if (command.stepName == nullptr) return Unknown(name);
    const std::string numbers = NextLine().value_or(name);
    const auto steps = ReadBatchSteps(numbers);
    if (!steps || !steps->End()) return Unknown(numbers);
    command.steps = *steps;
  }
  return command;
}

std::optional<std::string> BatchOutputOf(std::string_view commandFile) {
  if (!commandFile.ends_with(commandEnding)) return std::nullopt;
  commandFile.remove_suffix(commandEnding.size());
  return std::string(commandFile) + std::string(outputEnding);
}

std::string BatchOutputBeside(const std::string& commandFile) {
  return BatchOutputOf(commandFile).value_or(commandFile + std::string(outputEnding));
}

std::string BatchEntryPath(const std::string& listFile, const std::string& entry) {
  return (std::filesystem::path(listFile).parent_path() / entry).string();
}

}  // namespace lumivex
