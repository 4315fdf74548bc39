#include "session/inputs/sizes/read_size_dist.h"

#include <fstream>

#include "materials/files/input_items.h"
#include "materials/files/readable_text.h"
#include "particles/size_file.h"
#include "session/inputs/dialog_use.h"
#include "session/recent_files.h"

namespace lumivex {

namespace {

constexpr const char* opening = "Error in radius distribution file: ";

bool ReadFrom(Session& session, const std::string& path) {
  auto& s = session.state;
  const auto& options = session.forms.dlogDistOption;
  s.LastFile = path;
  std::ifstream stream;
  SizeFile file;
  file.detail = OpenInput(stream, path);
  file.fault = SizeFileFault::Data;
  if (file.detail.empty()) file = ReadSizeFile(stream, {options.optNormalise.Checked, options.chkNormalise.Checked});
  if (file.sizeWordMissing)
    session.platform.Message("Error", opening + ReadablePath(path) + "\nSpecify radius or diameter in line 14");
  if (file.fault != SizeFileFault::None) {
    session.platform.Message("Error", opening + ReadablePath(path) + (file.detail.empty() ? "" : "\n\n" + file.detail));
    return false;
  }
  s.SizeTableUniform = std::move(file.size);
  s.SizeTableUpper = std::move(file.upper);
  s.SizeTableNonUniform = std::move(file.middle);
  s.SizeTableNumber = std::move(file.number);
  s.SizeTableMode = file.uniform ? 0 : 1;
  s.SizeFileCount = file.count;
  s.SizeFileMin = file.lowest;
  s.SizeFileMax = file.highest;
  s.SizeFileTotal = file.total;
  s.SizeFilePeak = file.peak;
  s.SizeFileName = path;
  s.SizeFileLoaded = 1;
  NoteFile(session, FileKind::Sizes, path);
  return true;
}

}  // namespace

bool ReadSizeDist(Session& session) {
  if (!AskIn(session, session.forms.dlogDistOption)) return false;
  const auto path = session.platform.OpenFileName({"Size distribution", "Lumivex size distribution files (*.dis)", ""});
  if (path) return ReadFrom(session, *path);
  session.form1.cboDistrib.Text = "Log-normal";
  return false;
}

bool ReadSizeDist(Session& session, const std::string& path) {
  return AskIn(session, session.forms.dlogDistOption) && ReadFrom(session, path);
}

}  // namespace lumivex
