#pragma once

#include "session/record/session.h"

namespace lumivex {

/// Clears the ticks of the sphere's models (and the colour of its label).
void ClearMenuRI(Session& session);
/// The same for the medium's models.
void ClearMenuRI2(Session& session);

/// Each chooses a model: ticks it alone, names the material, shows the model's dialog (not while settings are being
/// restored), evaluates it at the wavelength in txtLambda and writes the caption of lblSphere or lblRI_Medium.
void mnuRI_IAPWS_Click(Session& session);
void mnuRI_Vacuum1_Click(Session& session);
void mnuRI_Fixed1_Click(Session& session);
void mnuRI_Vacuum2_Click(Session& session);
void mnuRI_Fixed2_Click(Session& session);

/// An index typed by the user: the material is then "set by user", the field turns yellow.
void txtRefractReal_Change(Session& session);
void txtRefractImag_Change(Session& session);
void txtRefractMedium_Change(Session& session);

/// Density follows the temperature; a temperature outside 0 to 100 marks the field.
void dlogTemp_txtTemp_Change(Session& session);

}  // namespace lumivex
