#include "materials/refractive_index.h"

#include <cmath>
#include <complex>
#include <string_view>

#include "materials/kernel/table_lookup.h"
#include "materials/kernel/water.h"
#include "materials/tables/segelstein_water.h"
#include "session/record/number_text.h"

namespace lumivex {

namespace {

constexpr std::string_view sphereSetByUser = "Sphere: Refractive index set by user";
constexpr std::string_view mediumSetByUser = "Medium: Refractive index set by user";

void WaterSphere(Session& session, double wavelength) {
  auto& s = session.state;
  const auto& dialog = session.forms.dlogTemp;
  const double temperature = Val(dialog.txtTemp.Text);
  const double density = Val(dialog.txtDensity.Text);
  const double ratio = (temperature + 273.15) / 273.15;
  s.MaterialTemp = static_cast<float>(temperature);
  s.WaterDensity = static_cast<float>(density);
  s.TempRatio = static_cast<float>(ratio);
  s.RefractReal = WaterIndexIapws(wavelength, density, ratio);
  s.RefractImag = 0;
  if (dialog.chkRI_Complex.Checked)
    s.RefractImag = LookUpLinear(SegelsteinLambda, SegelsteinK, wavelength).value_or(0.0);
}

void VacuumSphere(Session& session, double) {
  session.state.RefractReal = 1;
}

void FixedSphere(Session& session, double) {
  session.state.RefractReal = Val(session.form1.txtRefractReal.Text);
  session.state.RefractImag = Val(session.form1.txtRefractImag.Text);
}

void VacuumMedium(Session& session, double) {
  session.state.RefractMedium = 1;
}

void FixedMedium(Session& session, double) {
  session.state.RefractMedium = Val(session.form1.txtRefractMedium.Text);
}

struct IndexModel {
  MenuEntry Form1Menus::*entry;
  void (*evaluate)(Session&, double wavelength);
};

// In the order of evaluation: were two entries ever ticked, the later one would stand.
constexpr IndexModel sphereModels[] = {
    {&Form1Menus::mnuRI_IAPWS, WaterSphere},
    {&Form1Menus::mnuRI_Vacuum1, VacuumSphere},
    {&Form1Menus::mnuRI_Fixed1, FixedSphere},
};
constexpr IndexModel mediumModels[] = {
    {&Form1Menus::mnuRI_Vacuum2, VacuumMedium},
    {&Form1Menus::mnuRI_Fixed2, FixedMedium},
};

template <std::size_t count>
void Evaluate(Session& session, const IndexModel (&models)[count], double wavelength) {
  for (const auto& model : models)
    if ((session.form1.*model.entry).Checked) model.evaluate(session, wavelength);
}

/// The relative index from what the models wrote; complex only where the sphere absorbs.
double RelativeIndex(Session& session) {
  auto& s = session.state;
  s.RefractMediumImag = 0;
  const double medium = s.RefractMedium == 0 ? 1 : s.RefractMedium;
  s.RefRelImag = s.RefractImag == 0 ? 0 : s.RefractImag / medium;
  if (s.RefRelImag < 0)
    session.platform.Message("Refractive index error", "Imaginary part of refractive index must not be negative");
  return s.RefractReal / medium;
}

/// Fields that were typed or fixed keep the user's own text.
void ShowIndices(Session& session) {
  auto& form = session.form1;
  const auto& s = session.state;
  if (!form.mnuRI_Fixed1.Checked && form.lblSphere.Caption != sphereSetByUser) {
    form.txtRefractReal.Text = IndexText(s.RefractReal);
    form.txtRefractImag.Text = s.RefractImag == 0 ? "0" : IndexText(s.RefractImag);
  }
  if (!form.mnuRI_Fixed2.Checked && form.lblRI_Medium.Caption != mediumSetByUser)
    form.txtRefractMedium.Text = IndexText(s.RefractMedium);
}

}  // namespace

std::string IndexText(double value) {
  if (!(value >= 0.0001 && value <= 10000)) return Format(value, "Scientific");
  return Significant(RoundDecimals(value, 7), 15);
}

std::optional<double> RefRel(Session& session, double wavelength, LookupVoice voice) {
  auto& s = session.state;
  auto& form = session.form1;
  const auto typedRatio = [&] {
    const double medium = Val(form.txtRefractMedium.Text);
    return Val(form.txtRefractReal.Text) / (medium == 0 ? 1 : medium);
  };
  if (!(wavelength > 0)) return typedRatio();
  constexpr int coatedSphere = 13, inhomogeneousSphere = 17;
  if (s.CalcMethod == coatedSphere || s.CalcMethod == inhomogeneousSphere) return std::nullopt;

  s.RefractReal = s.RefractImag = s.RefractMediumImag = 0;
  s.LookupWavelength = static_cast<float>(wavelength);
  Evaluate(session, sphereModels, wavelength);
  if (form.lblSphere.Caption == sphereSetByUser) FixedSphere(session, wavelength);
  if (s.RefractReal == 0 || !std::isfinite(s.RefractReal) || !std::isfinite(s.RefractImag)) {
    if (voice == LookupVoice::Aloud) session.platform.Message("Error", "Help! RI of sphere undefined");
    return std::nullopt;
  }
  if (form.lblRI_Medium.Caption == mediumSetByUser) FixedMedium(session, wavelength);
  Evaluate(session, mediumModels, wavelength);
  const double relative = RelativeIndex(session);
  ShowIndices(session);
  form.lblSphere.ForeColour = form.lblRI_Medium.ForeColour = colours::Black;
  s.RIUserEdited = 0;
  return relative;
}

}  // namespace lumivex
