#pragma once

#include "record/session.h"

namespace lumivex {

/// Saves the present graph as a picture (.png, .svg, .pdf) under a name that is asked for; a failure is told.
void mnuSavePicture_Click(Session& session);
/// Copies the present graph to the clipboard.
void mnuCopyPicture_Click(Session& session);
/// Copies the curves to the clipboard, tab separated.
void mnuCopyData_Click(Session& session);
/// Saves the curves as CSV, the parameters of the run as a commented header.
void mnuSaveData_Click(Session& session);

void mnuExit_Click(Session& session);
void mnuHelpContents_Click(Session& session);
void mnuAbout_Click(Session& session);

}  // namespace lumivex
