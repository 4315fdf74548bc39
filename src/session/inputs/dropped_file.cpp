#include "session/inputs/dropped_file.h"

#include <algorithm>

#include "record/number_text.h"
#include "session/inputs/dialog_use.h"
#include "session/inputs/light/light_sources.h"
#include "session/inputs/light/read_spectrum.h"
#include "session/inputs/materials/material_menus.h"
#include "session/inputs/materials/read_ref_index.h"
#include "session/inputs/methods.h"
#include "session/inputs/sizes/read_size_dist.h"
#include "session/inputs/sizes/size_menus.h"

namespace lumivex {

namespace {

constexpr const char* indexEndings[] = {".rix", ".csv", ".yml", ".yaml"};

/// The spectrum is the light from now on: one wavelength would go on without it. Where the graph takes no more than
/// one, the user is told what the spectrum waits for.
void LightBySpectrum(Session& session) {
  auto& form = session.form1;
  UseSpectrumFile(session);
  if (Trim(form.cboWave.Text) != "1") return;
  if (!TakesWavelengths(ChosenGraph(session.state))) {
    session.platform.Message("Dropped files",
                             "The spectrum has been read. It takes effect in graphs of several wavelengths,\nfor "
                             "instance \"Intensity v. scattering angle\" with \"Wavelengths\" above 1.");
    return;
  }
  form.cboWave.Text = "Med.";
  session.events.Raise("cboWave_Click");
}

}  // namespace

bool TakesDroppedFile(const std::string& path) {
  const auto ends = [&path](const char* ending) { return EndsWith(path, ending); };
  return std::ranges::any_of(indexEndings, ends) || ends(".spe") || ends(".dis");
}

bool ReadDroppedFile(Session& session, const std::string& path) {
  for (const char* ending : indexEndings) {
    if (!EndsWith(path, ending)) continue;
    if (ReadRefIndex1(session, path)) UseFileTable1(session);
    return true;
  }
  if (EndsWith(path, ".spe")) {
    if (ReadSpectrum(session, path)) LightBySpectrum(session);
    return true;
  }
  if (EndsWith(path, ".dis")) {
    if (!ReadSizeDist(session, path)) return true;
    UseSizeFile(session);
    optDisp_Click(session);
    return true;
  }
  return false;
}

}  // namespace lumivex
