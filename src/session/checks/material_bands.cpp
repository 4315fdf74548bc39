#include "session/checks/material_bands.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "record/number_text.h"

namespace lumivex {

namespace {

using Entry = MenuEntry Form1Menus::*;

const std::string micro = "\u00B5";
constexpr std::string_view waterTitle = "Refractive index of water";

/// A model with a band of its own; the medium has no entry of some.
struct WaterModel {
  Entry sphere, medium;
  double low, high;
  std::string name, one, range;
};

const std::array<WaterModel, 4>& WaterModels() {
  static const std::array<WaterModel, 4> models = {
      WaterModel{
          &Form1Menus::mnuRI_KayeLaby, nullptr, 0.38, 0.7, "Water (Kaye + Laby)",
          "Kaye & Laby's values for refractive index of water are valid only for the 0.38 - 0.7 " + micro + "m band",
          "Kaye & Laby's values for refractive index of water are valid only for the 380 - 700 nm band"},
      WaterModel{&Form1Menus::mnuRI_Ray, nullptr, 0.2, 30000, "Water (Ray)",
                 "Ray's values for refractive index of water are valid only for the 0.2  - 30,000 " + micro + "m band",
                 "Ray's values for refractive index of water are valid only for the 0.2 " + micro + "m - 0.03m band"},
      WaterModel{&Form1Menus::mnuRI_IAPWS, &Form1Menus::mnuRI_IAPWS2, 0.2, 2, "Water (IAPWS)",
                 "IAPWS values for refractive index of water are valid only for the 0.2 - 2 " + micro + "m band",
                 "IAPWS values for refractive index of water are valid only for the 200 - 2000 nm band"},
      WaterModel{
          &Form1Menus::mnuRI_Segelstein, &Form1Menus::mnuRI_Segelstein2, 0.01, 1e7, "Water (Segelstein)",
          "Segelstein's values are valid only for the 10 nm - 10 m (0.01 " + micro + "m - 1E7 " + micro + "m) band",
          "Segelstein's values for refractive index of water are valid only for the 10 nm to 10 m band"}};
  return models;
}

struct Metal {
  Entry entry;
  std::string_view name;
};
constexpr std::array metals = {Metal{&Form1Menus::mnuRI_Au, "Gold"}, Metal{&Form1Menus::mnuRI_Ag, "Silver"},
                               Metal{&Form1Menus::mnuRI_Cu, "Copper"}};
constexpr double metalLow = 0.188, metalHigh = 1.934;

std::string TitleOf(std::string_view name) {
  return "Refractive index of " + std::string(name);
}

MaterialBand BandOfMetal(std::string_view metal) {
  const std::string opening =
      "The values for refractive index of " + std::string(metal) + " are valid only for the 188 - 1934 nm ";
  return {metalLow,       metalHigh,        std::string(metal),
          TitleOf(metal), opening + "band", opening + "(0.188 - 1.934 " + micro + "m) band",
          false};
}

MaterialBand BandOfFile(float low, float high, const std::string& name) {
  const auto limits = [&](double factor) {
    return Significant(factor * double{low}, 6) + " - " + Significant(factor * double{high}, 6);
  };
  const std::string text = "Values for refractive index of " + name + " are valid only for the band " + limits(1000) +
                           " nm (" + limits(1) + " " + micro + "m)";
  return {double{low}, double{high}, name, TitleOf(name), text, text, false};
}

/// Layers know the IAPWS' water and the metals.
std::vector<MaterialBand> BandsOfLayers(const Session& session) {
  const auto& d = session.forms.dlogCoatedSphere;
  std::vector<MaterialBand> bands;
  const auto used = [&d](std::string_view name) {
    return d.cboRIcore.Text == name || d.cboRIshell.Text == name || d.cboRImedium.Text == name;
  };
  for (const WaterModel& model : WaterModels())
    if (model.sphere == &Form1Menus::mnuRI_IAPWS && used("Water"))
      bands.push_back({model.low, model.high, model.name, std::string(waterTitle), model.one, model.range, false});
  for (const Metal& metal : metals)
    if (used(metal.name)) bands.push_back(BandOfMetal(metal.name));
  return bands;
}

float Rounded(double wavelength) {
  constexpr int decimals = 7;
  return static_cast<float>(RoundDecimals(wavelength, decimals));
}

}  // namespace

bool MaterialBand::Holds(double lowest, double highest) const {
  return Rounded(lowest) >= Rounded(low) && Rounded(highest) <= Rounded(high);
}

std::vector<MaterialBand> BandsInUse(const Session& session) {
  const Form1& form = session.form1;
  const auto& s = session.state;
  if (s.CalcMethod == Method::CoatedSphere) return BandsOfLayers(session);
  // A material whose index a map varies has no say.
  const Graph& graph = ChosenGraph(s);
  const bool sphere = (!graph.InColour() || !graph.VariesIndex()) && !TraitsOf(s.CalcMethod).layered,
             medium = !graph.VariesMedium();
  std::vector<MaterialBand> bands;
  for (const WaterModel& model : WaterModels()) {
    const bool inSphere = sphere && (form.*model.sphere).Checked;
    const bool around = medium && model.medium != nullptr && (form.*model.medium).Checked;
    if (inSphere || around)
      bands.push_back({model.low, model.high, model.name, std::string(waterTitle), model.one, model.range,
                       inSphere && model.sphere == &Form1Menus::mnuRI_IAPWS});
  }
  if (sphere && form.mnuRI_File1.Checked) bands.push_back(BandOfFile(s.FileFirst1, s.FileLast1, s.FileName1));
  if (medium && form.mnuRI_File2.Checked) bands.push_back(BandOfFile(s.FileFirst2, s.FileLast2, s.FileName2));
  for (const Metal& metal : metals)
    if (sphere && (form.*metal.entry).Checked) bands.push_back(BandOfMetal(metal.name));
  return bands;
}

WavelengthRange RangeOfRun(const Session& session) {
  const Form1& form = session.form1;
  if (ChosenGraph(session.state).WavelengthAxis())
    return {Val(form.txtXmin.Text) / 1000, Val(form.txtXmax.Text) / 1000, true, false};
  if (ChosenGraph(session.state).SweepsWavelength())
    return {Val(form.txtF9_min.Text) / 1000, Val(form.txtF9_max.Text) / 1000, false, true};
  if (ChosenGraph(session.state).OfPulse())
    return {session.state.PulseBandLow, session.state.PulseBandHigh, false, false, true};
  if (session.state.NumberWavelengths <= 1) return {};
  if (form.cboWave.Text == "RGB") return {0.44, 0.65};
  const auto& band = session.forms.dlogSpectrumBand;
  return {Val(band.txtSpectrumMin.Text) / 1000, Val(band.txtSpectrumMax.Text) / 1000};
}

std::string WayOutOfBand(const Session& session) {
  if (!ChosenGraph(session.state).SweepsWavelength()) return "";
  const WavelengthRange range = RangeOfRun(session);
  double low = 0, high = 1e30;
  std::string beyond;
  bool formula = false;
  for (const MaterialBand& band : BandsInUse(session)) {
    low = std::max(low, band.low);
    high = std::min(high, band.high);
    if (band.Holds(range.low, range.high)) continue;
    if (beyond.empty()) beyond = band.name;
    formula = formula || band.sphereFormula;
  }
  if (beyond.empty()) return "";
  const std::string& axis = range.onFurther ? session.form1.Frame9.Caption : session.form1.Frame2.Caption;
  std::string text = axis + ": " + beyond + " is known from " + Significant(1000 * low, 6) + " to " +
                     Significant(1000 * high, 6) + " nm";
  if (high <= low) text = axis + ": " + beyond + " is not known there";
  if (formula) text += "; Segelstein's water from 10 nm to 10 m";
  return text;
}

}  // namespace lumivex
