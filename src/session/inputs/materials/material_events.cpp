#include "session/inputs/materials/material_events.h"

#include "session/inputs/light/light_sources.h"
#include "session/inputs/materials/material_dialogs.h"
#include "session/inputs/materials/material_menus.h"
#include "session/inputs/materials/sellmeier_catalogue.h"
#include "session/inputs/sizes/size_distribution_display.h"
#include "session/inputs/sizes/size_menus.h"

namespace lumivex {

namespace {

constexpr MaterialEvent materialEvents[] = {
    // Sphere.
    {"mnuRI_Formula_Click", mnuRI_Formula_Click},
    {"mnuRI_Ray_Click", mnuRI_Ray_Click},
    {"mnuRI_Segelstein_Click", mnuRI_Segelstein_Click},
    {"mnuRI_File1_Click", mnuRI_File1_Click},
    {"mnuRI_Au_Click", mnuRI_Au_Click},
    {"mnuRI_Ag_Click", mnuRI_Ag_Click},
    {"mnuRI_Cu_Click", mnuRI_Cu_Click},
    {"mnuRI_KayeLaby_Click", mnuRI_KayeLaby_Click},
    {"mnuRI_IAPWS_Click", mnuRI_IAPWS_Click},
    {"mnuRI_Air1_Click", mnuRI_Air1_Click},
    {"mnuRI_Vacuum1_Click", mnuRI_Vacuum1_Click},
    {"mnuRI_Fixed1_Click", mnuRI_Fixed1_Click},
    {"mnuRI_Perm1_Click", mnuRI_Perm1_Click},
    {"mnuRI_User1_Click", mnuRI_User1_Click},
    {"txtRefractReal_Change", txtRefractReal_Change},
    {"txtRefractImag_Change", txtRefractImag_Change},

    // Medium.
    {"mnuRI_Air2_Click", mnuRI_Air2_Click},
    {"mnuRI_Vacuum2_Click", mnuRI_Vacuum2_Click},
    {"mnuRI_Fixed2_Click", mnuRI_Fixed2_Click},
    {"mnuRI_File2_Click", mnuRI_File2_Click},
    {"mnuRI_IAPWS2_Click", mnuRI_IAPWS2_Click},
    {"mnuRI_User2_Click", mnuRI_User2_Click},
    {"mnuRI_Segelstein2_Click", mnuRI_Segelstein2_Click},
    {"mnuRI_Perm2_Click", mnuRI_Perm2_Click},
    {"txtRefractMedium_Change", txtRefractMedium_Change},

    // Dialogs of the materials.
    {"dlogTemp.txtTemp_Change", dlogTemp_txtTemp_Change},
    {"dlogTemp.chkRI_Complex_Click", dlogTemp_chkRI_Complex_Click},
    {"dlogTemp.txtDensity_Change", dlogTemp_txtDensity_Change},
    {"dlogTemp.OKButton_Click", dlogTemp_OKButton_Click},
    {"dlogTemp2.txtTemp_Change", dlogTemp2_txtTemp_Change},
    {"dlogTemp2.txtDensity_Change", dlogTemp2_txtDensity_Change},
    {"dlogTemp2.OKButton_Click", dlogTemp2_OKButton_Click},
    {"dlogAir.txtAirTemp_Change", dlogAir_txtAirTemp_Change},
    {"dlogAir.OKButton_Click", dlogAir_OKButton_Click},
    {"dlogSegelstein.chkRI_Complex_Click", dlogSegelstein_chkRI_Complex_Click},
    {"dlogSegelstein.OKButton_Click", dlogSegelstein_chkRI_Complex_Click},
    {"dlogRay.chkRI_Complex_Click", dlogRay_chkRI_Complex_Click},
    {"dlogRay.OKButton_Click", dlogRay_chkRI_Complex_Click},
    {"dlogDielectric.OKButton_Click", dlogDielectric_OKButton_Click},
    {"dlogDielectric2.OKButton_Click", dlogDielectric2_OKButton_Click},
    {"dlogDielectric2.txtDFreal2_Change", dlogDielectric2_txtDFreal2_Change},
    {"dlogRI_User1.CancelButton_Click", dlogRI_User1_CancelButton_Click},
    {"dlogRI_User2.cmdCancel_Click", dlogRI_User2_cmdCancel_Click},
    {"dlogRI_User2.CancelButton_Click", dlogRI_User2_cmdCancel_Click},
    {"dlogRI_Formula.cboMaterial_Click", cboMaterial_Click},
    {"dlogRI_Formula.cboMaterial_Change", cboMaterial_Change},
    {"dlogRI_Formula.cmdSave_Click", cmdSave_Click},
    {"dlogRI_Formula.cmdRemove_Click", cmdRemove_Click},
    {"dlogRI_Formula.cmdRestore_Click", cmdRestore_Click},
    {"dlogRI_Formula.Frame1_Click", Frame1_Click},
    {"dlogRI_Formula.cmdRange_Click", Frame1_Click},

    // Light.
    {"mnuSpectrumLee_Click", mnuSpectrumLee_Click},
    {"mnuSpectrumWernand_Click", mnuSpectrumWernand_Click},
    {"mnuSpectrumWernand2_Click", mnuSpectrumWernand2_Click},
    {"mnuSpectrumFlat_Click", mnuSpectrumFlat_Click},
    {"mnuBlackBody_Click", mnuBlackBody_Click},
    {"mnuSpectrumFile_Click", mnuSpectrumFile_Click},
    {"mnuSpectrumBand_Click", mnuSpectrumBand_Click},
    {"dlogWernand.txtElevation_Change", dlogWernand_txtElevation_Change},
    {"dlogBlackBody.txtBlackBody_Change", dlogBlackBody_txtBlackBody_Change},
    {"dlogSpectrumBand.txtSpectrumMin_Change", dlogSpectrumBand_Change},
    {"dlogSpectrumBand.txtSpectrumMax_Change", dlogSpectrumBand_Change},
    {"dlogSpectrumBand.OKButton_Click", dlogSpectrumBand_OKButton_Click},
    {"dlogIncident.Show", AskIncidentLight},
    {"dlogIncident.txtIncidentPD_Change", dlogIncident_Change},
    {"dlogIncident.txtDistance_Change", dlogIncident_Change},
    {"dlogIncident.OKButton_Click", dlogIncident_OKButton_Click},

    // Sizes.
    {"optMono_Click", optMono_Click},
    {"optDisp_Click", optDisp_Click},
    {"cboDistrib_Change", cboDistrib_Change},
    {"cboSD_Change", cboSD_Change},
    {"cboN_Change", cboN_Change},
    {"mnuSizeDist_Click", mnuSizeDist_Click},
    {"dlogDistDisplay.Show", AskDistDisplay},
    {"dlogDistDisplay.optLogX_Click", dlogDistDisplay_Click},
    {"dlogDistDisplay.optLinearX_Click", dlogDistDisplay_Click},
    {"dlogMultiModal.chkMode2_Click", dlogMultiModal_Change},
    {"dlogMultiModal.chkMode3_Click", dlogMultiModal_Change},
    {"dlogMultiModal.txtMedian1_Change", dlogMultiModal_Change},
    {"dlogMultiModal.txtSpread1_Change", dlogMultiModal_Change},
    {"dlogMultiModal.txtFraction1_Change", dlogMultiModal_Change},
    {"dlogMultiModal.txtMedian2_Change", dlogMultiModal_Change},
    {"dlogMultiModal.txtSpread2_Change", dlogMultiModal_Change},
    {"dlogMultiModal.txtFraction2_Change", dlogMultiModal_Change},
    {"dlogMultiModal.txtMedian3_Change", dlogMultiModal_Change},
    {"dlogMultiModal.txtSpread3_Change", dlogMultiModal_Change},
    {"dlogMultiModal.txtFraction3_Change", dlogMultiModal_Change},
    {"dlogMultiModal.cboN_Change", dlogMultiModal_cboN_Change},
};

}  // namespace

std::span<const MaterialEvent> MaterialEvents() {
  return materialEvents;
}

}  // namespace lumivex
