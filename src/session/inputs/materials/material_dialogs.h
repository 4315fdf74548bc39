#pragma once

#include "record/session.h"

namespace lumivex {

/// Density follows the temperature; a temperature outside 0 to 100, or one that is no number, marks the field.
void dlogTemp_txtTemp_Change(Session& session);
void dlogTemp2_txtTemp_Change(Session& session);
/// What is no number marks the field.
void dlogTemp_txtDensity_Change(Session& session);
void dlogTemp2_txtDensity_Change(Session& session);
void dlogAir_txtAirTemp_Change(Session& session);
/// OK tells of a temperature or density that is no number: its mark keeps the dialog open.
void dlogTemp_OKButton_Click(Session& session);
void dlogTemp2_OKButton_Click(Session& session);
void dlogAir_OKButton_Click(Session& session);

/// The boxes "Complex values of refractive index?" are kept in step: that of dlogTemp sets Segelstein's, those of Ray
/// and Segelstein set dlogTemp's; on a click and on OK.
void dlogTemp_chkRI_Complex_Click(Session& session);
void dlogSegelstein_chkRI_Complex_Click(Session& session);
void dlogRay_chkRI_Complex_Click(Session& session);

/// OK evaluates the index at the wavelength in txtLambda; a dielectric function below 0 marks the medium's field.
void dlogDielectric_OKButton_Click(Session& session);
void dlogDielectric2_OKButton_Click(Session& session);
void dlogDielectric2_txtDFreal2_Change(Session& session);

/// Cancel puts the defaults back, whatever stood in the dialog before.
void dlogRI_User1_CancelButton_Click(Session& session);
void dlogRI_User2_cmdCancel_Click(Session& session);

}  // namespace lumivex
