#include "files/settings/save_ini.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <system_error>

#include "record/file_lock.h"
#include "record/number_text.h"
#include "record/text_file.h"
#include "session/driver/calibration.h"
#include "session/recent_files.h"

namespace lumivex {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view window = "Window", calibration = "Calibration", graph = "Graph", recentSection = "Recent";
constexpr std::array<std::string_view, fileKinds> kindWords = {"results", "batch",    "sphere",
                                                               "medium",  "spectrum", "sizes"};

std::string PathOf(const std::string& folder) {
  return (fs::path(folder) / iniName).string();
}

/// Whether the configuration could be written there now.
bool TakesFile(const std::string& folder) {
  std::error_code error;
  if (folder.empty() || !fs::is_directory(folder, error)) return false;
  const std::string path = PathOf(folder);
  if (fs::exists(path, error) && !std::fstream(path, std::ios::in | std::ios::out)) return false;
  const auto made = MakeUniqueFile(folder);
  if (made) fs::remove(*made, error);
  return made.has_value();
}

void ReadCalibration(MainFormState& s, const IniText& ini) {
  const auto state = ini.Number(calibration, "State");
  const auto speed = ini.Number(calibration, "Speed");
  if (!state || !speed || (*state != 1 && *state != 3)) return;
  if (*speed < slowestMachine || *speed > fastestMachine) return;
  s.CalibrationState = ToWhole(*state);
  s.SecondsPerPairTerm = 1e-6 / *speed;
}

/// "batch|/home/ann/run.min"
std::vector<RecentFile> RecentIn(const IniText& ini) {
  std::vector<RecentFile> recent;
  for (const auto& [key, value] : ini.Values(recentSection)) {
    const auto bar = value.find('|');
    const auto kind = std::ranges::find(kindWords, std::string_view(value).substr(0, bar));
    if (bar == std::string::npos || kind == kindWords.end() || bar + 1 == value.size()) continue;
    const RecentFile file{static_cast<FileKind>(kind - kindWords.begin()), value.substr(bar + 1)};
    if (recent.size() < mostRecentFiles && std::ranges::find(recent, file) == recent.end()) recent.push_back(file);
  }
  return recent;
}

void WriteRecent(IniText& ini, const std::vector<RecentFile>& recent) {
  ini.Remove(recentSection);
  for (std::size_t i = 0; i < recent.size(); ++i)
    ini.Set(recentSection, "File" + std::to_string(i + 1),
            std::string(kindWords[static_cast<std::size_t>(recent[i].kind)]) + '|' + recent[i].path);
}

/// What this program has read or cleared, onto what stands in the file by now.
std::vector<RecentFile> Merged(const IniText& ini, const UnsavedSettings& unsaved) {
  std::vector<RecentFile> recent = unsaved.recentCleared ? std::vector<RecentFile>() : RecentIn(ini);
  std::for_each(unsaved.recent.rbegin(), unsaved.recent.rend(),
                [&](const RecentFile& file) { PutFirst(recent, file); });
  return recent;
}

void Change(IniText& ini, const Session& session) {
  const UnsavedSettings& unsaved = session.settings.unsaved;
  if (unsaved.window) ini.Set(window, "Place", session.settings.windowPlace);
  if (unsaved.calibration) {
    ini.Set(calibration, "State", std::to_string(session.state.CalibrationState));
    ini.Set(calibration, "Speed", Shortest(1e-6 / session.state.SecondsPerPairTerm));
  }
  if (unsaved.liveGraph) ini.Set(graph, "Live", session.form1.mnuLiveGraph.Checked ? "1" : "0");
  if (unsaved.recentCleared || !unsaved.recent.empty()) WriteRecent(ini, Merged(ini, unsaved));
}

}  // namespace

std::string SettingsFolder(const std::string& programFolder, const std::string& userFolder) {
  if (TakesFile(programFolder)) return programFolder;
  std::error_code error;
  if (!userFolder.empty()) fs::create_directories(userFolder, error);
  return TakesFile(userFolder) ? userFolder : std::string();
}

void ReadIni(Session& session) {
  auto& settings = session.settings;
  const auto content = settings.folder.empty() ? std::nullopt : ReadOwnFile(PathOf(settings.folder));
  if (!content) return;
  const IniText ini = IniText::Read(*content);
  settings.windowPlace = ini.Value(window, "Place").value_or("");
  settings.recent = RecentIn(ini);
  ReadCalibration(session.state, ini);
  settings.liveGraph = session.form1.mnuLiveGraph.Checked = ini.Number(graph, "Live") != 0.0;
}

void Save_ini(Session& session) {
  auto& settings = session.settings;
  const auto& unsaved = settings.unsaved;
  const bool changed =
      unsaved.window || unsaved.calibration || unsaved.liveGraph || unsaved.recentCleared || !unsaved.recent.empty();
  if (settings.folder.empty() || !changed) return;
  std::vector<RecentFile> recent;
  const std::string failure = iniFileUpdate(PathOf(settings.folder), [&](IniText& ini) {
    Change(ini, session);
    recent = RecentIn(ini);
  });
  if (!failure.empty()) return;
  settings.recent = std::move(recent);
  settings.liveGraph = session.form1.mnuLiveGraph.Checked;
  settings.unsaved = {};
  // Another program's files are shown too.
  ShowRecentFiles(session);
}

std::string iniFileUpdate(const std::string& path, const std::function<void(IniText&)>& change) {
  const FileLock lock(path);
  if (!lock.Failure().empty()) return lock.Failure();
  IniText ini = IniText::Read(ReadOwnFile(path).value_or(""));
  change(ini);
  return WriteWholeFile(path, ini.Write());
}

}  // namespace lumivex
