#include <cmath>
#include <string>

#include "materials/index/index_formulas.h"
#include "materials/index/water.h"
#include "materials/tables/segelstein_water.h"
#include "record/number_text.h"
#include "session/inputs/materials/index_models.h"

namespace lumivex {

namespace {

using namespace index_models;

bool Air(const IndexLookup& lookup) {
  const std::string temperature(Trim(lookup.session.forms.dlogAir.txtAirTemp.Text));
  lookup.session.form1.mnuRI_Air2.Caption = "Air " + temperature + "C";
  lookup.session.state.RefractMedium = AirIndex(lookup.wavelength, Val(temperature));
  return true;
}

bool Vacuum(const IndexLookup& lookup) {
  lookup.session.state.RefractMedium = 1;
  return true;
}

bool Fixed(const IndexLookup& lookup) {
  auto& form = lookup.session.form1;
  lookup.session.state.RefractMedium = Val(form.txtRefractMedium.Text);
  form.lblRI_Medium.Caption = "Medium: Fixed refractive index";
  return true;
}

/// Whether the medium's table may be read by cubics is asked of the rows of the sphere's table: without a sphere file
/// it never is.
bool File(const IndexLookup& lookup) {
  auto& s = lookup.session.state;
  const FileLookup found = LookUpFile({s.FileLambda2, s.FileData2, s.FileRows2}, lookup.wavelength,
                                      RuleTicked(lookup.session.form1), {s.FileRows1, true});
  if (found.beyondRows) {
    TellMissingRow(lookup);
    return false;
  }
  if (found.value) s.RefractMedium = found.value->n;
  return true;
}

bool Water(const IndexLookup& lookup) {
  auto& s = lookup.session.state;
  const auto& dialog = lookup.session.forms.dlogTemp2;
  const WaterInputs water = ReadWater(dialog.txtTemp, dialog.txtDensity);
  s.MaterialTemp = static_cast<float>(water.temperature);
  s.WaterDensity = static_cast<float>(water.density);
  s.TempRatio = static_cast<float>(water.ratio);
  s.RefractMedium = WaterIndexIapws(lookup.wavelength, water.density, water.ratio);
  return true;
}

bool User(const IndexLookup& lookup) {
  auto& s = lookup.session.state;
  const auto& dialog = lookup.session.forms.dlogRI_User2;
  s.MediumName = dialog.txtMaterial.Text;
  lookup.session.form1.lblRI_Medium.Caption = "Medium: " + s.MediumName;
  s.RefractMedium = UserIndex(lookup, dialog, s.UserLambda2, s.UserRI2);
  return true;
}

/// At exactly the last wavelength the medium keeps the interpolated value, and the table's last row is written into the
/// index of the sphere: results saved so rely on it.
bool Segelstein(const IndexLookup& lookup) {
  auto& s = lookup.session.state;
  const EndedLookup found = LookUpToEnd(SegelsteinLambda, SegelsteinN, s.LookupWavelength);
  if (found.value) s.RefractMedium = *found.value;
  if (found.atEnd) s.RefractReal = SegelsteinN.back();
  return true;
}

bool Dielectric(const IndexLookup& lookup) {
  lookup.session.state.RefractMedium = std::sqrt(Val(lookup.session.forms.dlogDielectric2.txtDFreal2.Text));
  lookup.session.form1.lblRI_Medium.Caption = "Medium: Fixed dielectric function";
  return true;
}

struct MediumModel {
  MenuEntry Form1Menus::*entry;
  bool (*evaluate)(const IndexLookup&);
};

constexpr MediumModel mediumModels[] = {
    {&Form1Menus::mnuRI_Air2, Air},
    {&Form1Menus::mnuRI_Vacuum2, Vacuum},
    {&Form1Menus::mnuRI_Fixed2, Fixed},
    {&Form1Menus::mnuRI_File2, File},
    {&Form1Menus::mnuRI_IAPWS2, Water},
    {&Form1Menus::mnuRI_User2, User},
    {&Form1Menus::mnuRI_Segelstein2, Segelstein},
    {&Form1Menus::mnuRI_Perm2, Dielectric},
};

}  // namespace

bool EvaluateMedium(const IndexLookup& lookup) {
  auto& form = lookup.session.form1;
  if (form.lblRI_Medium.Caption == mediumSetByUser)
    lookup.session.state.RefractMedium = Val(form.txtRefractMedium.Text);
  for (const auto& model : mediumModels)
    if ((form.*model.entry).Checked && !model.evaluate(lookup)) return false;
  return true;
}

}  // namespace lumivex
