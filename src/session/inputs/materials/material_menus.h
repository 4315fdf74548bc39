#pragma once

#include "record/session.h"

namespace lumivex {

/// Clears the ticks of the sphere's models (and the colour of its label).
void ClearMenuRI(Session& session);
/// The same for the medium's models.
void ClearMenuRI2(Session& session);

/// Each chooses a model: shows the model's dialog (not while settings are being restored), ticks it alone, names the
/// material, evaluates it at the wavelength in txtLambda and writes the caption of lblSphere or lblRI_Medium. A
/// cancelled dialog, or a file that cannot be read, changes nothing.
void mnuRI_Formula_Click(Session& session);
void mnuRI_Ray_Click(Session& session);
void mnuRI_Segelstein_Click(Session& session);
void mnuRI_File1_Click(Session& session);
void mnuRI_Au_Click(Session& session);
void mnuRI_Ag_Click(Session& session);
void mnuRI_Cu_Click(Session& session);
void mnuRI_KayeLaby_Click(Session& session);
void mnuRI_IAPWS_Click(Session& session);
void mnuRI_Air1_Click(Session& session);
void mnuRI_Vacuum1_Click(Session& session);
void mnuRI_Fixed1_Click(Session& session);
void mnuRI_Perm1_Click(Session& session);
void mnuRI_User1_Click(Session& session);

void mnuRI_Air2_Click(Session& session);
void mnuRI_Vacuum2_Click(Session& session);
void mnuRI_Fixed2_Click(Session& session);
void mnuRI_File2_Click(Session& session);
void mnuRI_IAPWS2_Click(Session& session);
void mnuRI_User2_Click(Session& session);
void mnuRI_Segelstein2_Click(Session& session);
void mnuRI_Perm2_Click(Session& session);

/// The model takes the table that was read from a file last.
void UseFileTable1(Session& session);
void UseFileTable2(Session& session);

/// An index typed by the user: the material is then "set by user", the field turns yellow.
void txtRefractReal_Change(Session& session);
void txtRefractImag_Change(Session& session);
void txtRefractMedium_Change(Session& session);

}  // namespace lumivex
