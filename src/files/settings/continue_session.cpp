#include "files/settings/continue_session.h"

#include <optional>
#include <string_view>
#include <vector>

#include "files/settings/session_text.h"
#include "materials/files/readable_text.h"
#include "session/inputs/dialog_use.h"
#include "session/inputs/graph_types.h"
#include "session/inputs/light/read_spectrum.h"
#include "session/inputs/materials/read_ref_index.h"
#include "session/inputs/methods.h"
#include "session/inputs/sizes/read_size_dist.h"
#include "session/undo.h"

namespace lumivex {

namespace {

/// While it lives, menu handlers show no dialog and bring no start values.
class Restoring {
 public:
  explicit Restoring(MainFormState& state) : state_(state), before_(state.RestoringSettings) {
    state.RestoringSettings = 1;
  }
  ~Restoring() { state_.RestoringSettings = before_; }
  Restoring(const Restoring&) = delete;
  Restoring& operator=(const Restoring&) = delete;

 private:
  MainFormState& state_;
  int before_;
};

/// An input file in use, how it is read, and what takes its place where it cannot be: a tick and an event.
struct InputFile {
  FileKind kind;
  MenuEntry Form1Menus::*entry;
  bool (*read)(Session&, const std::string&);
  std::string_view instead;
};
constexpr InputFile inputFiles[] = {
    {FileKind::SphereIndex, &Form1Menus::mnuRI_File1, ReadRefIndex1, "mnuRI_IAPWS_Click"},
    {FileKind::MediumIndex, &Form1Menus::mnuRI_File2, ReadRefIndex2, "mnuRI_Vacuum2_Click"},
    {FileKind::Spectrum, &Form1Menus::mnuSpectrumFile, ReadSpectrum, "mnuSpectrumLee_Click"},
};

/// Reads the files in use, and what these need beside them.
/// @return the events that choose something else where one is not to be had.
std::vector<std::string_view> ReadInputFiles(Session& session, const IniText& text) {
  auto& form = session.form1;
  std::vector<std::string_view> instead;
  for (const InputFile& file : inputFiles) {
    const std::string path = FileIn(text, file.kind);
    const bool inUse = (form.*file.entry).Checked;
    if ((inUse || !path.empty()) && !file.read(session, path) && inUse) instead.push_back(file.instead);
  }
  const bool special = form.cboDistrib.Text == "Special";
  if (special && !ReadSizeDist(session, FileIn(text, FileKind::Sizes))) instead.push_back("cboDistrib_Change");
  return instead;
}

/// Which inputs a method and a graph have is told by their events; what stands in them then by the values.
void ChooseMethodAndGraph(Session& session, const InputState& state) {
  const auto textOf = [&](const Control& list) {
    for (const auto& [name, value] : state.forms.front())
      if (name == list.Name()) return value.text;
    return std::string();
  };
  ChooseMethod(session, textOf(session.form1.cboType));
  ChooseGraph(session, textOf(session.form1.cboGraph));
}

void PutInstead(Session& session, std::string_view event) {
  if (event == "cboDistrib_Change") session.form1.cboDistrib.Text = "Log-normal";
  session.events.Raise(event);
}

}  // namespace

bool ContinueSession(Session& session, const std::string& path) {
  const auto content = path.empty() ? std::nullopt : ReadOwnFile(path);
  const auto text = content ? Unsealed(*content) : std::nullopt;
  if (!text) {
    session.platform.Message("Continue last session", content ? "The last session was kept in " + ReadablePath(path) +
                                                                    ",\nwhich is damaged. Nothing was changed."
                                                              : "There is no last session to continue.");
    return false;
  }
  {
    const Restoring restoring(session.state);
    const InputState state = InputsFromText(session, *text);
    ChooseMethodAndGraph(session, state);
    RestoreInputs(session, state);
    const auto instead = ReadInputFiles(session, *text);
    // A file that is read names its material, and chooses nothing.
    RestoreInputs(session, state);
    RestoreNames(session, *text);
    session.events.Raise("txtLambda_change");
    RestoreInputs(session, state);
    for (const std::string_view event : instead) PutInstead(session, event);
  }
  session.events.Raise("cmdNewPlot_Click");
  return true;
}

void mnuContinueSession_Click(Session& session) {
  ContinueSession(session, session.settings.lastSessionFile);
}

}  // namespace lumivex
