#include "session/inputs/dropped_file.h"

#include <algorithm>

#include "session/inputs/dialog_use.h"
#include "session/inputs/light/light_sources.h"
#include "session/inputs/light/read_spectrum.h"
#include "session/inputs/materials/material_menus.h"
#include "session/inputs/materials/read_ref_index.h"
#include "session/inputs/sizes/read_size_dist.h"
#include "session/inputs/sizes/size_menus.h"

namespace lumivex {

namespace {

constexpr const char* indexEndings[] = {".rix", ".csv", ".yml", ".yaml"};

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
    if (ReadSpectrum(session, path)) LightBySpectrum(session, "Dropped files");
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
