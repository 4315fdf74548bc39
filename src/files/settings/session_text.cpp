#include "files/settings/session_text.h"

#include <array>
#include <charconv>
#include <cstdint>
#include <sstream>

#include "files/results/file_lines.h"
#include "files/results/input_sheet.h"
#include "files/results/own_block.h"
#include "files/settings/ini_text.h"
#include "record/number_text.h"
#include "session/undo.h"

namespace lumivex {

namespace {

constexpr std::string_view sumOpening = "\nSum ";

/// FNV-1a: damage is told by it, no forgery.
std::string SumOf(std::string_view text) {
  std::uint64_t sum = 14695981039346656037U;
  for (const char c : text) sum = (sum ^ static_cast<unsigned char>(c)) * 1099511628211U;
  std::array<char, 16> digits{};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), sum, 16);
  return {digits.data(), end.ptr};
}

void WalkKeeper(FileLines& lines, ProgramIdentity& keeper) {
  if (!lines.Word(machineGenerated, true)) lines.Refuse("this is no session");
  lines.Exactly();
  lines.Field("Host", keeper.host);
  lines.Field("Boot", keeper.boot);
  lines.Field("Process", keeper.process);
}

/// What no control holds: texts of before a graph took a field or an index for its own, and the menu's names of the
/// materials, which follow from what was once chosen in their dialogs.
void WalkNames(FileLines& lines, Session& session) {
  auto& s = session.state;
  lines.Field("KeptSphereLabel", s.KeptSphereLabel);
  lines.Field("KeptSphereName", s.KeptSphereName);
  lines.Field("KeptMediumLabel", s.KeptMediumLabel);
  lines.Field("KeptAngle", s.KeptAngle);
  lines.Field("KeptRadius", s.KeptRadius);
  lines.Field("SphereCaptionBefore", s.SphereCaptionBefore);
  lines.Field("DistribInUse", s.DistribInUse);
  for (const auto& entries : {SphereSources(session.form1), MediumSources(session.form1)})
    for (MenuEntry* entry : entries) lines.Field(entry->Name(), entry->Caption);
}

/// Reads into a sheet, or throws BadFile.
void ReadInto(InputSheet& sheet, ReadLines& lines) {
  Session& inputs = sheet.Inputs();
  ProgramIdentity keeper;
  WalkKeeper(lines, keeper);
  InputState state = PresentInputs(inputs);
  WalkInputsAndTables(lines, inputs, state);
  SettleInputs(sheet, {&state});
  WalkNames(lines, inputs);
  lines.End();
}

}  // namespace

std::string SessionText(Session& session, const ProgramIdentity& keeper) {
  WrittenLines lines;
  ProgramIdentity program = keeper;
  WalkKeeper(lines, program);
  InputState state = PresentInputs(session);
  WalkInputsAndTables(lines, session, state);
  WalkNames(lines, session);
  return lines.Take();
}

std::optional<ProgramIdentity> KeeperOf(const std::string& text) {
  std::istringstream stream(text);
  ReadLines lines(stream);
  ProgramIdentity keeper;
  try {
    WalkKeeper(lines, keeper);
  } catch (const BadFile&) {
    return std::nullopt;
  }
  return keeper;
}

std::string TakeSession(Session& session, const std::string& text) {
  std::istringstream stream(text);
  ReadLines lines(stream);
  InputSheet sheet(session);
  try {
    ReadInto(sheet, lines);
  } catch (const BadFile& bad) {
    return bad.text;
  }
  sheet.PutInto(session);
  session.state.DistribInUse = sheet.Inputs().state.DistribInUse;
  return {};
}

std::string Sealed(std::string text) {
  const std::string sum = SumOf(text);
  return std::move(text) + std::string(sumOpening) + sum + '\n';
}

std::optional<std::string> Unsealed(std::string_view text) {
  const auto seal = text.rfind(sumOpening);
  if (seal == std::string_view::npos) return std::nullopt;
  const std::string_view body = text.substr(0, seal);
  if (Trim(text.substr(seal + sumOpening.size())) != SumOf(body)) return std::nullopt;
  return std::string(body);
}

}  // namespace lumivex
