#pragma once

#include <string>

#include "record/session.h"

namespace lumivex {

/// The catalogue of Sellmeier coefficients behind dlogRI_Formula: "Dispersion.rxi" in CatalogueFolder, to which
/// "DispersionBackup.rxi" beside it is the way back. Where that folder cannot be written, the changed catalogue goes to
/// CatalogueUserFolder and is read there from then on.
///
/// The file is read again on every use, and changed under a lock: of two programs that add materials neither loses one.
/// It is written beside and renamed, so that no failure loses it. A damaged file is told ("Error in data file: ", its
/// path, the line) and left.

/// Fills the list of materials at start-up. A missing file leaves it empty without a word.
void LoadCatalogue(Session& session);

/// A material was picked, by its place where names are the same: its coefficients and limits go to the fields as they
/// stand in the file. Limits of "0" and "0" turn the range off.
void cboMaterial_Click(Session& session);
/// A name was typed: it may be added.
void cboMaterial_Change(Session& session);

/// Adds the fields under the name in cboMaterial, which then reads as the file holds it; a name that is there already
/// appears twice.
void cmdSave_Click(Session& session);
/// Takes the present material out and shows the first one.
void cmdRemove_Click(Session& session);
/// Returns to the entries of the backup and shows the first one.
void cmdRestore_Click(Session& session);

/// Turns the range of wavelengths on.
void Frame1_Click(Session& session);

/// The folder of the delivered catalogue: the program's, or "../share/lumivex" beside it; empty where neither has one.
std::string FindCatalogueFolder(const std::string& programFolder);

}  // namespace lumivex
