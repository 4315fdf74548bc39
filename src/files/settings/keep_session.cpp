#include "files/settings/keep_session.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <iterator>
#include <system_error>
#include <vector>

#include "files/settings/ini_text.h"
#include "files/settings/session_text.h"
#include "record/text_file.h"
#include "session/undo.h"

namespace lumivex {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view fileStart = "Lumivex-", fileEnd = ".session";

/// A name that two programs do not share, on however many machines.
std::string FileNameOf(const ProgramIdentity& program) {
  std::string host = program.host.substr(0, 40);
  for (char& c : host)
    if (std::isalnum(static_cast<unsigned char>(c)) == 0) c = '_';
  return std::string(fileStart) + host + '-' + program.process + std::string(fileEnd);
}

/// @return whether the file stands there now; the one of before stays where it does not.
bool Write(Session& session, const std::string& path, const ProgramIdentity& keeper) {
  return WriteWholeFile(path, Sealed(SessionText(session, keeper))).empty();
}

bool IsWhole(const fs::path& path) {
  const auto content = ReadOwnFile(path.string());
  return content && Unsealed(*content);
}

/// Whether a file was left behind by a program that does not run any more. A damaged one was: files are renamed into
/// their place whole, so that nobody is writing it.
bool IsLeft(const fs::path& path, const ProgramIdentity& here) {
  const auto content = ReadOwnFile(path.string());
  const auto text = content ? Unsealed(*content) : std::nullopt;
  const auto keeper = text ? KeeperOf(*text) : std::nullopt;
  // The number of a process comes again: a file that is there before this program has written any is not its own.
  return !keeper || *keeper == here || !MayRun(*keeper);
}

std::vector<fs::path> LeftBehind(const std::string& folder, const ProgramIdentity& here) {
  std::vector<fs::path> left;
  std::error_code error;
  for (auto entry = fs::directory_iterator(folder, error); !error && entry != fs::directory_iterator();
       entry.increment(error)) {
    const std::string name = entry->path().filename().string();
    if (name.starts_with(fileStart) && name.ends_with(fileEnd) && IsLeft(entry->path(), here))
      left.push_back(entry->path());
  }
  return left;
}

/// The youngest whole one of the sessions that were left behind becomes the last session.
bool Recover(const std::vector<fs::path>& left, const std::string& last) {
  std::error_code error;
  const auto age = [](const fs::path& path) {
    std::error_code ignored;
    return fs::last_write_time(path, ignored);
  };
  std::vector<fs::path> whole;
  std::ranges::copy_if(left, std::back_inserter(whole), IsWhole);
  const auto youngest = std::ranges::max_element(whole, {}, age);
  bool recovered = false;
  if (youngest != whole.end()) {
    fs::rename(*youngest, last, error);
    recovered = !error;
    // Where the folder takes no change now, the next start finds it again.
    if (!recovered) return false;
  }
  for (const auto& path : left) fs::remove(path, error);
  return recovered;
}

}  // namespace

bool BeginSession(Session& session, const ProgramIdentity& program) {
  auto& settings = session.settings;
  if (settings.folder.empty()) return false;
  settings.lastSessionFile = (fs::path(settings.folder) / lastSessionName).string();
  const bool recovered = Recover(LeftBehind(settings.folder, program), settings.lastSessionFile);
  if (!program.process.empty()) settings.sessionFile = (fs::path(settings.folder) / FileNameOf(program)).string();
  settings.program = program;
  settings.inputsAtStart = SessionText(session, {});
  std::error_code error;
  session.form1.mnuContinueSession.Enabled = fs::is_regular_file(settings.lastSessionFile, error);
  return recovered;
}

void Run_Ended(Session& session) {
  const auto& settings = session.settings;
  // What a batch sets is not the user's.
  if (session.state.BatchActive != 0 || settings.sessionFile.empty()) return;
  Write(session, settings.sessionFile, settings.program);
}

void EndSession(Session& session) {
  auto& settings = session.settings;
  if (settings.lastSessionFile.empty()) return;
  const bool kept = SessionText(session, {}) == settings.inputsAtStart || Write(session, settings.lastSessionFile, {});
  // Of a session that could not be written at its end, what was kept after its last run is offered at the next start.
  std::error_code ignored;
  if (kept && !settings.sessionFile.empty()) fs::remove(settings.sessionFile, ignored);
  settings.sessionFile.clear();
}

}  // namespace lumivex
