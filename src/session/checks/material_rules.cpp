/// Rules that hold wavelengths against the bands in which the materials and spectra are known.

#include <string>
#include <string_view>

#include "record/features.h"
#include "record/number_text.h"
#include "session/checks/check.h"
#include "session/checks/material_bands.h"

namespace lumivex {

namespace {

/// Marks where the range was typed.
Verdict RefuseRange(Check& check, const WavelengthRange& range, const std::string& text, std::string_view title) {
  auto& form = check.form;
  if (range.onAxis) return Refuse(check, {&form.txtXmin, &form.txtXmax}, text, title);
  if (range.ofPulse) return Refuse(check, {&form.txtLambda}, text, title);
  if (range.onFurther) return Refuse(check, {&form.txtF9_min, &form.txtF9_max}, text, title);
  return Refuse(check, {&form.lblSpectrumBand}, text, title);
}

bool SegelsteinIsThere(const Check& check) {
  return IsAvailable(Feature::AllMaterials) && !check.form.mnuRI_Segelstein.Checked;
}

/// The table of the IAPWS ends where Segelstein's goes on.
Verdict ExchangeWater(Check& check) {
  Warn(check,
       "IAPWS values are valid only for the 200 - 2000 nm band.  Use Segelstein's data (Menu: Advanced -> Refractive "
       "index -> Sphere -> Water)",
       "Refractive index of water");
  RaiseQuietly(check.session, "mnuRI_Segelstein_Click");
  check.waterExchanged = true;
  return Verdict::Repeat;
}

}  // namespace

Verdict SellmeierLimits(Check& check) {
  const Graph& graph = ChosenGraph(check.state);
  if (!check.form.mnuRI_Formula.Checked || (graph.InColour() && graph.VariesIndex())) return Verdict::GoOn;
  const WavelengthRange range = RangeOfRun(check.session);
  if (!range.Any()) return Verdict::GoOn;  // a single wavelength is told when its index is looked up
  const SellmeierChoice& chosen = check.state.Sellmeier;
  const auto exceeds = [&] {
    const bool limited = chosen.lowest > 0 && chosen.highest > 0 && !chosen.quiet;
    return limited && (range.low < chosen.lowest || range.high > chosen.highest);
  };
  if (!exceeds()) return Verdict::GoOn;
  Warn(check,
       "Wavelength range is beyond the specified limits for mthe Sellmeier equation for " + chosen.name +
           "\nChange the range of wavelengths or select \"Ignore warnings\" in next dialog box",
       "Refractive index calculations");
  // The menu entry shows the dialog and takes what is accepted in it.
  if (check.state.RestoringSettings == 0) check.session.events.Raise("mnuRI_Formula_Click");
  return exceeds() ? Verdict::End : Verdict::GoOn;
}

Verdict SingleWavelengthBand(Check& check) {
  auto& form = check.form;
  if (check.state.NumberWavelengths != 1 || ChosenGraph(check.state).SweepsWavelength() ||
      !IsNumber(form.txtLambda.Text))
    return Verdict::GoOn;
  const double lambda = Val(form.txtLambda.Text);
  if (!(lambda > 0)) return Verdict::GoOn;  // told by the rule on numbers
  for (const MaterialBand& band : BandsInUse(check.session)) {
    if (band.Holds(lambda, lambda)) continue;
    if (band.sphereFormula && SegelsteinIsThere(check) && !check.waterExchanged) return ExchangeWater(check);
    return Refuse(check, {&form.txtLambda}, band.one, band.title);
  }
  return Verdict::GoOn;
}

Verdict WavelengthAxisBand(Check& check) {
  auto& form = check.form;
  const WavelengthRange range = RangeOfRun(check.session);
  if (!range.Any()) return Verdict::GoOn;
  // On an axis of wavelength every wavelength counts the same: the light source has no say.
  if (check.state.NumberWavelengths > 1) {
    const auto within = [&](double low, double high) { return MaterialBand{low, high}.Holds(range.low, range.high); };
    if (form.mnuSpectrumLee.Checked && !within(0.38, 0.7))
      return RefuseRange(check, range, "Lee's spectrum of sunlight is valid only for 380 nm to 700 nm band",
                         "Spectrum of sunlight");
    if (form.mnuSpectrumWernand.Checked && !within(0.35, 1))
      return RefuseRange(check, range, "Wernand's spectrum of sunlight is valid only for 350 nm to 1000 nm band",
                         "Spectrum of sunlight");
  }
  for (const MaterialBand& band : BandsInUse(check.session))
    if (!band.Holds(range.low, range.high)) return RefuseRange(check, range, band.range, band.title);
  return Verdict::GoOn;
}

}  // namespace lumivex
