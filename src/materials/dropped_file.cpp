#include "materials/dropped_file.h"

#include "materials/dialog_use.h"
#include "materials/light_sources.h"
#include "materials/material_menus.h"
#include "materials/read_ref_index.h"
#include "materials/read_spectrum.h"
#include "particles/read_size_dist.h"
#include "particles/size_menus.h"

namespace lumivex {

bool ReadDroppedFile(Session& session, const std::string& path) {
  for (const char* ending : {".rix", ".csv", ".yml", ".yaml"}) {
    if (!EndsWith(path, ending)) continue;
    if (ReadRefIndex1(session, path)) UseFileTable1(session);
    return true;
  }
  if (EndsWith(path, ".spe")) {
    if (ReadSpectrum(session, path)) UseSpectrumFile(session);
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
