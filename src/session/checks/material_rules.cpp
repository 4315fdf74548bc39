/// Rules that hold wavelengths against the bands in which the materials and spectra are known.

#include <array>
#include <initializer_list>
#include <optional>
#include <string>

#include "record/features.h"
#include "record/number_text.h"
#include "session/checks/check.h"

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

/// Wavelengths of a run that has more than one: those of its axis, or those of its spectrum.
struct Range {
  double low = 0, high = 0;  ///< um
  bool onAxis = false;       ///< typed as the limits of the axis
  bool Exceeds(double bandLow, double bandHigh) const { return low < bandLow || high > bandHigh; }
};

std::optional<Range> RangeOf(const Check& check) {
  const auto& form = check.form;
  if (HasWavelengthAxis(check.state)) return Range{Val(form.txtXmin.Text) / 1000, Val(form.txtXmax.Text) / 1000, true};
  if (check.state.NumberWavelengths <= 1) return std::nullopt;
  if (form.cboWave.Text == "RGB") return Range{0.44, 0.65, false};
  const auto& band = check.session.forms.dlogSpectrumBand;
  return Range{Val(band.txtSpectrumMin.Text) / 1000, Val(band.txtSpectrumMax.Text) / 1000, false};
}

/// Marks where the range was typed.
Verdict RefuseRange(Check& check, const Range& range, const std::string& text, std::string_view title) {
  auto& form = check.form;
  if (range.onAxis) return Refuse(check, {&form.txtXmin, &form.txtXmax}, text, title);
  return Refuse(check, {&form.lblSpectrumBand}, text, title);
}

/// A table from a file, at one wavelength; its limits are singles.
Verdict FileBand(Check& check, double lambda, float low, float high, const std::string& name) {
  const auto wavelength = static_cast<float>(lambda);
  if (wavelength >= low && wavelength <= high) return Verdict::GoOn;
  const auto band = [&](double factor) {
    return Significant(factor * double{low}, 6) + " - " + Significant(factor * double{high}, 6);
  };
  return Refuse(check, {&check.form.txtLambda},
                "Values for refractive index of " + name + " are valid only for the band " + band(1000) + " nm (" +
                    band(1) + " " + micro + "m)",
                "Refractive index of " + name);
}

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

Verdict SellmeierLimits(Check& check) {
  if (!check.form.mnuRI_Formula.Checked) return Verdict::GoOn;
  const auto range = RangeOf(check);
  if (!range) return Verdict::GoOn;  // a single wavelength is told when its index is looked up
  auto& dialog = check.session.forms.dlogRI_Formula;
  const auto exceeds = [&] {
    const double low = Val(dialog.txtLambdaMin.Text), high = Val(dialog.txtLambdaMax.Text);
    return low > 0 && high > 0 && !dialog.chkIgnore.Checked && range->Exceeds(low, high);
  };
  if (!exceeds()) return Verdict::GoOn;
  Warn(check,
       "Wavelength range is beyond the specified limits for mthe Sellmeier equation for " + dialog.cboMaterial.Text +
           "\nChange the range of wavelengths or select \"Ignore warnings\" in next dialog box",
       "Refractive index calculations");
  if (check.state.RestoringSettings == 0) check.session.platform.ShowModal(dialog);
  return exceeds() ? Verdict::End : Verdict::GoOn;
}

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
  const auto& s = check.state;
  if (form.mnuRI_File1.Checked)
    if (const Verdict file = FileBand(check, lambda, s.FileFirst1, s.FileLast1, s.FileName1); file != Verdict::GoOn)
      return file;
  if (form.mnuRI_File2.Checked)
    if (const Verdict file = FileBand(check, lambda, s.FileFirst2, s.FileLast2, s.FileName2); file != Verdict::GoOn)
      return file;
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
  const auto range = RangeOf(check);
  if (!range) return Verdict::GoOn;
  const auto within = [&](double bandLow, double bandHigh) { return !range->Exceeds(bandLow, bandHigh); };
  const auto refuse = [&](const std::string& text, std::string_view title) {
    return RefuseRange(check, *range, text, title);
  };
  // On an axis of wavelength every wavelength counts the same: the light source has no say.
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
