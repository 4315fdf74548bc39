#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace lumivex {

/// What a file is read for.
enum class FileKind { Results, Batch, SphereIndex, MediumIndex, Spectrum, Sizes };
inline constexpr std::size_t fileKinds = 6;

struct RecentFile {
  FileKind kind = FileKind::Results;
  std::string path;  ///< absolute
  bool operator==(const RecentFile&) const = default;
};

/// As many as the menu shows.
inline constexpr std::size_t mostRecentFiles = 9;

/// Which running program somebody is, by which another tells whether it still runs.
struct ProgramIdentity {
  std::string host;     ///< name of the machine: folders may be shared between several
  std::string boot;     ///< since which start of the machine
  std::string process;  ///< number of the process; empty where the system does not tell
  bool operator==(const ProgramIdentity&) const = default;
};

/// What has changed in this program and is not in the configuration yet. It is the changes that are written, not the
/// whole, so that two programs at once keep what the other has changed.
struct UnsavedSettings {
  bool window = false, calibration = false, liveGraph = false;
  bool recentCleared = false;  ///< before `recent` came
  std::vector<RecentFile> recent;
};

/// What outlives the program, and where it is kept. A session without a folder (a script's, a test's) reads and writes
/// nothing: it has recent files as long as it lives.
struct Settings {
  std::string folder;              ///< of "Lumivex.ini" and of the files of sessions; empty: nothing is kept
  std::string windowPlace;         ///< the window's size and place, in the words of the window system; empty: none yet
  bool liveGraph = true;           ///< the graph follows what is typed
  std::vector<RecentFile> recent;  ///< the last first
  UnsavedSettings unsaved;
  ProgramIdentity program;      ///< this program
  std::string inputsAtStart;    ///< as text: a session in which nothing was changed is not worth keeping
  std::string sessionFile;      ///< what this program keeps its session in while it runs; empty: in none
  std::string examplesFolder;   ///< where the examples of the menu lie; empty: there are none
  std::string lastSessionFile;  ///< what Continue last session reads; empty: there is nothing to continue
};

}  // namespace lumivex
