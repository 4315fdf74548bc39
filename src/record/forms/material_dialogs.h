#pragma once

#include <vector>

#include "record/form.h"

namespace lumivex {

/// Temperature and density of the water around the sphere.
struct DlogTemp2 final : Form {
  DlogTemp2() : Form("dlogTemp2", "Water (medium)") {}
  Label lblTemp{*this, "lblTemp", "Temperature (C)"};
  TextInput txtTemp{*this, "txtTemp", "5", "Temperature of the water in degrees Celsius, 0 to 100"};
  Label lblDensity{*this, "lblDensity", "Density (kg/m3)"};
  TextInput txtDensity{*this, "txtDensity", "0.99996382125", "Density of the water in g/cm3; follows the temperature"};
};

/// Temperature of the air, in the sphere or around it.
struct DlogAir final : Form {
  DlogAir() : Form("dlogAir", "Air") {}
  Label lblAirTemp{*this, "lblAirTemp", "Temperature (C)"};
  TextInput txtAirTemp{*this, "txtAirTemp", "15", "Temperature of the air in degrees Celsius"};
};

/// Ray's table of water.
struct DlogRay final : Form {
  DlogRay() : Form("dlogRay", "Water: Refractive index") {}
  Label lblRay{*this, "lblRay", "Ray's data will be used to calculate the refractive index of water"};
  CheckBox chkRI_Complex{*this, "chkRI_Complex", "Complex values of refractive index?", true,
                         "Take the absorption of water into account"};
};

/// Segelstein's table of water.
struct DlogSegelstein final : Form {
  DlogSegelstein() : Form("dlogSegelstein", "Water: refractive index") {}
  Label lblSegelstein{*this, "lblSegelstein",
                      "Segelstein's data will be used to calculate the refractive index of water"};
  CheckBox chkRI_Complex{*this, "chkRI_Complex", "Complex values of refractive index?", true,
                         "Take the absorption of water into account"};
};

struct DlogDielectric final : Form {
  DlogDielectric() : Form("dlogDielectric", "Dielectric function for sphere") {}
  Label lblDFreal{*this, "lblDFreal", "Real part"};
  TextInput txtDFreal{*this, "txtDFreal", "1.775744", "Real part of the dielectric function"};
  Label lblDFimag{*this, "lblDFimag", "Imaginary part"};
  TextInput txtDFimag{*this, "txtDFimag", "4.6906E-08", "Imaginary part of the dielectric function"};
};

struct DlogDielectric2 final : Form {
  DlogDielectric2() : Form("dlogDielectric2", "Dielectric function for surrounding medium") {}
  Label lblDFreal2{*this, "lblDFreal2", "Real part"};
  TextInput txtDFreal2{*this, "txtDFreal2", "1", "Dielectric function of the medium, which must not absorb"};
};

/// A material given by its index at four wavelengths.
struct UserMaterialDialog : Form {
  UserMaterialDialog(std::string_view name, std::string_view caption, std::string_view nameField,
                     std::string_view firstIndex, std::string_view fourthIndex)
      : Form(name, caption),
        txtMaterial{*this, nameField, "Glass", "Name of the material"},
        txtRI_1_1{*this, "txtRI_1_1", firstIndex, indexTip},
        txtRI_1_4{*this, "txtRI_1_4", fourthIndex, indexTip} {}

  static constexpr std::string_view lambdaTip = "Wavelength in vacuum, in micrometres";
  static constexpr std::string_view indexTip = "Refractive index at that wavelength";

  Label lblEnter{*this, "lblEnter", "Enter refractive index of medium at 4 different wavelengths"};
  Label lblMaterial{*this, "lblMaterial", "Material"};
  TextInput txtMaterial;
  Label lblWavelength{*this, "lblWavelength", "Wavelength (um)"};
  Label lblIndex{*this, "lblIndex", "Refractive index"};
  TextInput txtRI_lambda1_1{*this, "txtRI_lambda1_1", "0.43584", lambdaTip};
  TextInput txtRI_1_1;
  TextInput txtRI_lambda1_2{*this, "txtRI_lambda1_2", "0.47998", lambdaTip};
  TextInput txtRI_1_2{*this, "txtRI_1_2", "1.5258", indexTip};
  TextInput txtRI_lambda1_3{*this, "txtRI_lambda1_3", "0.58756", lambdaTip};
  TextInput txtRI_1_3{*this, "txtRI_1_3", "1.5192", indexTip};
  TextInput txtRI_lambda1_4{*this, "txtRI_lambda1_4", "0.70652", lambdaTip};
  TextInput txtRI_1_4;
};

struct DlogRI_User1 final : UserMaterialDialog {
  DlogRI_User1() : UserMaterialDialog("dlogRI_User1", "User-defined sphere", "txtMaterial1", "1.5301", "1.5150") {}
  TextInput& txtMaterial1 = txtMaterial;
};

/// The first index has a leading blank and the fourth differs from the sphere's: settings saved as text hold them so.
struct DlogRI_User2 final : UserMaterialDialog {
  DlogRI_User2() : UserMaterialDialog("dlogRI_User2", "User-defined medium", "txtMaterial2", " 1.5301", "1.5140") {}
  TextInput& txtMaterial2 = txtMaterial;
};

/// Coefficients of the Sellmeier equation, and the catalogue of materials.
struct DlogRI_Formula final : Form {
  DlogRI_Formula() : Form("dlogRI_Formula", "Constants for Sellmeier equation") {}
  Label lblMaterial{*this, "lblMaterial", "Material"};
  SelectionList cboMaterial{*this, "cboMaterial", SelectionList::Style::Editable, "Schott BK7",
                            "A material of the catalogue, or the name of a new one"};
  Label lblB1{*this, "lblB1", "B1"};
  TextInput txtB1{*this, "txtB1", "1.03961212E+00", "Strength of the first resonance"};
  Label lblC1{*this, "lblC1", "C1"};
  TextInput txtC1{*this, "txtC1", "6.00069867E-03",
                  "Square of the first resonance's wavelength, in square micrometres"};
  Label lblB2{*this, "lblB2", "B2"};
  TextInput txtB2{*this, "txtB2", "2.31792344E-01", "Strength of the second resonance"};
  Label lblC2{*this, "lblC2", "C2"};
  TextInput txtC2{*this, "txtC2", "2.00179144E-02",
                  "Square of the second resonance's wavelength, in square micrometres"};
  Label lblB3{*this, "lblB3", "B3"};
  TextInput txtB3{*this, "txtB3", "1.01046945E+00", "Strength of the third resonance"};
  Label lblC3{*this, "lblC3", "C3"};
  TextInput txtC3{*this, "txtC3", "1.03560653E+02",
                  "Square of the third resonance's wavelength, in square micrometres"};
  Frame Frame1{*this, "Frame1", "Wavelength range", "Click to enable this feature"};
  CommandButton cmdRange{*this, "cmdRange", "Wavelength range", "Click to enable this feature"};
  Label Label8{*this, "Label8", "Minimum"};
  TextInput txtLambdaMin{*this, "txtLambdaMin", "", "Shortest wavelength that the equation holds for (um); 0 is none"};
  Label Label9{*this, "Label9", "Maximum"};
  TextInput txtLambdaMax{*this, "txtLambdaMax", "", "Longest wavelength that the equation holds for (um); 0 is none"};
  CheckBox chkIgnore{*this, "chkIgnore", "Ignore warnings?", false, "Say nothing of wavelengths outside the range"};
  CommandButton cmdSave{*this, "cmdSave", "Add item", "Add this material to the catalogue"};
  CommandButton cmdRemove{*this, "cmdRemove", "Remove item", "Take this material out of the catalogue"};
  CommandButton cmdRestore{*this, "cmdRestore", "Restore", "Return to the catalogue as it was delivered"};
};

/// The dialogs of the materials but for dlogTemp, which is among the first.
struct MaterialDialogs {
  DlogTemp2 dlogTemp2;
  DlogAir dlogAir;
  DlogRay dlogRay;
  DlogSegelstein dlogSegelstein;
  DlogDielectric dlogDielectric;
  DlogDielectric2 dlogDielectric2;
  DlogRI_User1 dlogRI_User1;
  DlogRI_User2 dlogRI_User2;
  DlogRI_Formula dlogRI_Formula;

  std::vector<Form*> MaterialForms() {
    return {&dlogTemp2,       &dlogAir,      &dlogRay,      &dlogSegelstein, &dlogDielectric,
            &dlogDielectric2, &dlogRI_User1, &dlogRI_User2, &dlogRI_Formula};
  }
};

}  // namespace lumivex
