#pragma once

#include <string>

#include "record/session.h"

namespace lumivex {

/// Asks for a spectrum file (.spe) and reads it into the SpectrumFile fields of the record.
///
/// A file that cannot be used is told ("Error in spectrum data file" and, where it is damaged, its path and the line);
/// the spectrum before is kept.
/// @return whether a spectrum was read; false when the user cancelled.
bool ReadSpectrum(Session& session);

/// The same for a given file.
bool ReadSpectrum(Session& session, const std::string& path);

}  // namespace lumivex
