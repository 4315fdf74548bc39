/// Rules that hold wavelengths against the bands in which the materials and spectra are known.

#include <array>
#include <initializer_list>
#include <string>

#include "session/checks/check.h"
#include "session/record/features.h"
#include "session/record/number_text.h"

namespace lumivex {

namespace {

const std::string micro = "\u00B5";

/// A model with a band of its own: limits in micrometres, and what is said beyond them at one wavelength and on an axis
/// of wavelength.
struct Band {
  MenuEntry Form1Menus::*entry;
  double low, high;
  std::string one, axis;
};

const std::array<Band, 4>& WaterBands() {
  static const std::array<Band, 4> bands = {
      Band{&Form1Menus::mnuRI_KayeLaby, 0.38, 0.7,
           "Kaye & Laby's values for refractive index of water are valid only for the 0.38 - 0.7 " + micro + "m band",
           "Kaye & Laby's values for refractive index of water are valid only for the 380 - 700 nm band"},
      Band{&Form1Menus::mnuRI_Ray, 0.2, 30000,
           "Ray's values for refractive index of water are valid only for the 0.2  - 30,000 " + micro + "m band",
           "Ray's values for refractive index of water are valid only for the 0.2 " + micro + "m - 0.03m band"},
      Band{&Form1Menus::mnuRI_IAPWS, 0.2, 2,
           "IAPWS values for refractive index of water are valid only for the 0.2 - 2 " + micro + "m band",
           "IAPWS values for refractive index of water are valid only for the 200 - 2000 nm band"},
      Band{&Form1Menus::mnuRI_Segelstein, 0.01, 1e7,
           "Segelstein's values are valid only for the 10 nm - 10 m (0.01 " + micro + "m - 1E7 " + micro + "m) band",
           "Segelstein's values for refractive index of water are valid only for the 10 nm to 10 m band"}};
  return bands;
}

struct Metal {
  MenuEntry Form1Menus::*entry;
  std::string_view name;
};
constexpr std::array metals = {Metal{&Form1Menus::mnuRI_Au, "Gold"}, Metal{&Form1Menus::mnuRI_Ag, "Silver"},
                               Metal{&Form1Menus::mnuRI_Cu, "Copper"}};
constexpr double metalLow = 0.188, metalHigh = 1.934;

constexpr std::string_view waterTitle = "Refractive index of water";

bool SegelsteinIsThere(const Check& check) {
  return IsAvailable(Feature::AllMaterials) && !check.form.mnuRI_Segelstein.Checked;
}

/// The table of the IAPWS ends where Segelstein's goes on.
Verdict ExchangeWater(Check& check) {
  Warn(check,
       "IAPWS values are valid only for the 200 - 2000 nm band.  Use Segelstein's data (Menu: Advanced -> Refractive "
       "index -> Sphere -> Water)",
       waterTitle);
  RaiseQuietly(check.session, "mnuRI_Segelstein_Click");
  check.waterExchanged = true;
  return Verdict::Repeat;
}

}  // namespace

Verdict SingleWavelengthBand(Check& check) {
  auto& form = check.form;
  if (check.state.NumberWavelengths != 1 || HasWavelengthAxis(check.state) || !IsNumber(form.txtLambda.Text))
    return Verdict::GoOn;
  const double lambda = Val(form.txtLambda.Text);
  if (!(lambda > 0)) return Verdict::GoOn;  // told by the rule on numbers
  for (const auto& band : WaterBands()) {
    if (!(form.*band.entry).Checked || (lambda >= band.low && lambda <= band.high)) continue;
    if (band.entry == &Form1Menus::mnuRI_IAPWS && SegelsteinIsThere(check) && !check.waterExchanged)
      return ExchangeWater(check);
    return Refuse(check, {&form.txtLambda}, band.one, waterTitle);
  }
  for (const auto& metal : metals)
    if ((form.*metal.entry).Checked && (lambda < metalLow || lambda > metalHigh))
      return Refuse(check, {&form.txtLambda},
                    "The values for refractive index of " + std::string(metal.name) +
                        " are valid only for the 188 - 1934 nm band",
                    "Refractive index of " + std::string(metal.name));
  return Verdict::GoOn;
}

Verdict WavelengthAxisBand(Check& check) {
  auto& form = check.form;
  if (!HasWavelengthAxis(check.state)) return Verdict::GoOn;
  const double low = Val(form.txtXmin.Text) / 1000, high = Val(form.txtXmax.Text) / 1000;
  const auto within = [&](double bandLow, double bandHigh) { return low >= bandLow && high <= bandHigh; };
  const auto refuse = [&](const std::string& text, std::string_view title) {
    return Refuse(check, {&form.txtXmin, &form.txtXmax}, text, title);
  };
  if (check.state.NumberWavelengths > 1) {
    if (form.mnuSpectrumLee.Checked && !within(0.38, 0.7))
      return refuse("Lee's spectrum of sunlight is valid only for 380 nm to 700 nm band", "Spectrum of sunlight");
    if (form.mnuSpectrumWernand.Checked && !within(0.35, 1))
      return refuse("Wernand's spectrum of sunlight is valid only for 350 nm to 1000 nm band", "Spectrum of sunlight");
  }
  for (const auto& band : WaterBands())
    if ((form.*band.entry).Checked && !within(band.low, band.high)) return refuse(band.axis, waterTitle);
  for (const auto& metal : metals)
    if ((form.*metal.entry).Checked && !within(metalLow, metalHigh))
      return refuse("The values for refractive index of " + std::string(metal.name) +
                        " are valid only for the 188 - 1934 nm (0.188 - 1.934 " + micro + "m) band",
                    "Refractive index of " + std::string(metal.name));
  return Verdict::GoOn;
}

}  // namespace lumivex
