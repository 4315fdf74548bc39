#pragma once

#include "record/session.h"

namespace lumivex {

/// All spheres alike, or a distribution of sizes: shows the inputs that go with it.
void optMono_Click(Session& session);
void optDisp_Click(Session& session);

/// A distribution was chosen: shows its inputs, asks for what it needs ("Special" a file, "Multimodal" its modes) and
/// draws it. "Special" is refused at a Lee diagram; a choice that is refused or cancelled goes back.
void cboDistrib_Change(Session& session);

/// A parameter of the distribution was changed: it is drawn anew, and the results must be calculated anew.
void cboSD_Change(Session& session);
void cboN_Change(Session& session);

/// Reads a size file and turns to "Special".
void mnuSizeDist_Click(Session& session);
/// Turns to the table that was read last.
void UseSizeFile(Session& session);

/// Changes in the dialogs.
void dlogDistDisplay_Click(Session& session);
void dlogMultiModal_Change(Session& session);
void dlogMultiModal_cboN_Change(Session& session);

/// Shows of the size inputs those that distribution, graph and optDisp ask for.
void ShowSizeInputs(Session& session);

/// Lee diagrams are calculated for one size: with a size distribution chosen, tells how to go on and chooses "Mono".
void RefuseDisperseLeeDiagram(Session& session);

}  // namespace lumivex
