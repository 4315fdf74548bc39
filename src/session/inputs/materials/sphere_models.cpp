#include <cmath>
#include <string>

#include "materials/index/index_formulas.h"
#include "materials/index/water.h"
#include "materials/tables/metals.h"
#include "materials/tables/ray_water.h"
#include "materials/tables/segelstein_water.h"
#include "record/number_text.h"
#include "session/inputs/materials/index_models.h"

namespace lumivex {

namespace {

using namespace index_models;

/// A single wavelength beyond the limits that the user gave for the equation is told; its index is used all the same.
void WarnOfRange(const IndexLookup& lookup) {
  const auto& dialog = lookup.session.forms.dlogRI_Formula;
  const double low = Val(dialog.txtLambdaMin.Text), high = Val(dialog.txtLambdaMax.Text);
  const bool limited = low > 0 && high > 0 && lookup.session.state.NumberWavelengths == 1;
  const bool beyond = lookup.wavelength < low || lookup.wavelength > high;
  if (!limited || !beyond || dialog.chkIgnore.Checked || lookup.voice == LookupVoice::Quiet) return;
  lookup.session.platform.Message(
      "Refractive index calculations",
      "Wavelength is beyond the specified limits for\nthe Sellmeier equation for " + dialog.cboMaterial.Text);
}

bool Sellmeier(const IndexLookup& lookup) {
  const auto& d = lookup.session.forms.dlogRI_Formula;
  const SellmeierTerms terms{Val(d.txtB1.Text), Val(d.txtB2.Text), Val(d.txtB3.Text),
                             Val(d.txtC1.Text), Val(d.txtC2.Text), Val(d.txtC3.Text)};
  lookup.session.state.RefractReal = SellmeierIndex(terms, lookup.wavelength);
  WarnOfRange(lookup);
  return true;
}

/// The water tables know straight lines only, and their search stops at the first hit.
template <std::size_t rows>
bool WaterTable(const IndexLookup& lookup, const std::array<float, rows>& lambda, const std::array<float, rows>& n,
                const std::array<float, rows>& k, bool complex) {
  auto& s = lookup.session.state;
  if (const auto index = LookUpLinear(lambda, n, s.LookupWavelength)) s.RefractReal = *index;
  if (complex) s.RefractImag = LookUpLinear(lambda, k, s.LookupWavelength).value_or(0);
  return true;
}

bool Ray(const IndexLookup& lookup) {
  return WaterTable(lookup, RayLambda, RayN, RayK, lookup.session.forms.dlogRay.chkRI_Complex.Checked);
}

bool Segelstein(const IndexLookup& lookup) {
  return WaterTable(lookup, SegelsteinLambda, SegelsteinN, SegelsteinK,
                    lookup.session.forms.dlogSegelstein.chkRI_Complex.Checked);
}

bool File(const IndexLookup& lookup) {
  auto& s = lookup.session.state;
  const FileLookup found = LookUpFile({s.FileLambda1, s.FileData1, s.FileRows1}, lookup.wavelength,
                                      RuleTicked(lookup.session.form1), {s.FileRows1, false});
  if (found.beyondRows) {
    TellMissingRow(lookup);
    return false;
  }
  if (!found.value) return true;
  s.RefractReal = found.value->n;
  s.RefractImag = found.value->k;
  return true;
}

template <const MetalTable& table>
bool Metal(const IndexLookup& lookup) {
  auto& s = lookup.session.state;
  const auto found = LookUpMetal(MetalLambda, table, s.LookupWavelength, RuleTicked(lookup.session.form1));
  if (!found) return true;
  s.RefractReal = found->n;
  s.RefractImag = found->k;
  return true;
}

bool KayeLaby(const IndexLookup& lookup) {
  lookup.session.state.RefractReal = WaterIndexKayeLaby(lookup.wavelength);
  return true;
}

bool Water(const IndexLookup& lookup) {
  auto& s = lookup.session.state;
  const auto& dialog = lookup.session.forms.dlogTemp;
  const WaterInputs water = ReadWater(dialog.txtTemp, dialog.txtDensity);
  s.MaterialTemp = static_cast<float>(water.temperature);
  s.WaterDensity = static_cast<float>(water.density);
  s.TempRatio = static_cast<float>(water.ratio);
  s.RefractReal = WaterIndexIapws(lookup.wavelength, water.density, water.ratio);
  s.RefractImag = 0;
  // The one search that runs on the wavelength in double precision.
  if (dialog.chkRI_Complex.Checked)
    s.RefractImag = LookUpLinear(SegelsteinLambda, SegelsteinK, lookup.wavelength).value_or(0.0);
  return true;
}

bool Air(const IndexLookup& lookup) {
  const std::string temperature(Trim(lookup.session.forms.dlogAir.txtAirTemp.Text));
  lookup.session.form1.mnuRI_Air1.Caption = "Air " + temperature + "C";
  lookup.session.state.RefractReal = AirIndex(lookup.wavelength, Val(temperature));
  return true;
}

bool Vacuum(const IndexLookup& lookup) {
  lookup.session.state.RefractReal = 1;
  return true;
}

bool Fixed(const IndexLookup& lookup) {
  lookup.session.state.RefractReal = Val(lookup.session.form1.txtRefractReal.Text);
  lookup.session.state.RefractImag = Val(lookup.session.form1.txtRefractImag.Text);
  return true;
}

bool Dielectric(const IndexLookup& lookup) {
  auto& s = lookup.session.state;
  const auto& dialog = lookup.session.forms.dlogDielectric;
  const double e1 = Val(dialog.txtDFreal.Text), e2 = Val(dialog.txtDFimag.Text);
  s.RefractReal = IndexOfDielectric(e1, e2);
  s.RefractImag = AbsorptionOfDielectric(e1, e2);
  lookup.session.form1.lblSphere.Caption = "Sphere: Fixed dielectric function";
  return true;
}

bool User(const IndexLookup& lookup) {
  auto& s = lookup.session.state;
  const auto& dialog = lookup.session.forms.dlogRI_User1;
  s.SphereName = dialog.txtMaterial.Text;
  lookup.session.form1.lblSphere.Caption = "Sphere: " + s.SphereName;
  s.RefractReal = UserIndex(lookup, dialog, s.UserLambda1, s.UserRI1);
  s.RefractImag = 0;
  return true;
}

struct SphereModel {
  MenuEntry Form1Menus::*entry;  ///< null: an index that the user typed in
  bool (*evaluate)(const IndexLookup&);
};

constexpr SphereModel sphereModels[] = {
    {&Form1Menus::mnuRI_Formula, Sellmeier},
    {&Form1Menus::mnuRI_Ray, Ray},
    {&Form1Menus::mnuRI_Segelstein, Segelstein},
    {&Form1Menus::mnuRI_File1, File},
    {&Form1Menus::mnuRI_Au, Metal<GoldNK>},
    {&Form1Menus::mnuRI_Ag, Metal<SilverNK>},
    {&Form1Menus::mnuRI_Cu, Metal<CopperNK>},
    {&Form1Menus::mnuRI_KayeLaby, KayeLaby},
    {&Form1Menus::mnuRI_IAPWS, Water},
    {&Form1Menus::mnuRI_Air1, Air},
    {&Form1Menus::mnuRI_Vacuum1, Vacuum},
    {nullptr, Fixed},
    {&Form1Menus::mnuRI_Fixed1, Fixed},
    {&Form1Menus::mnuRI_Perm1, Dielectric},
    {&Form1Menus::mnuRI_User1, User},
};

}  // namespace

bool EvaluateSphere(const IndexLookup& lookup) {
  auto& form = lookup.session.form1;
  for (const auto& model : sphereModels) {
    const bool chosen =
        model.entry == nullptr ? form.lblSphere.Caption == sphereSetByUser : (form.*model.entry).Checked;
    if (chosen && !model.evaluate(lookup)) return false;
  }
  return true;
}

}  // namespace lumivex
