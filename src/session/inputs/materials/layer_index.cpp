#include <string_view>

#include "materials/index/index_formulas.h"
#include "materials/index/water.h"
#include "record/number_text.h"
#include "session/inputs/materials/read_material.h"

namespace lumivex {

namespace {

std::optional<double> FixedLayer(const Session& session, int layer) {
  const auto& dialog = session.forms.dlogCoatedSphere;
  if (layer == 1) return Val(dialog.txtRIcore.Text);
  if (layer == 2) return Val(dialog.txtRIshell.Text);
  return layer == 3 ? std::optional(Val(dialog.txtRImedium.Text)) : std::nullopt;
}

double WaterLayer(MaterialState& s, double wavelength) {
  constexpr double ratio = 278.15 / 273.15;
  constexpr float density = 0.9999638F;
  s.TempRatio = static_cast<float>(ratio);
  s.WaterDensity = density;
  s.RefractImag = 0;
  return WaterIndexIapws(wavelength, density, ratio);
}

std::optional<double> MetalLayer(Session& session, MetalName metal, double wavelength) {
  auto& s = session.state;
  s.LookupWavelength = static_cast<float>(wavelength);
  const auto found = IndexAt(MetalFilm{metal, RuleTicked(session.form1), true}, wavelength).value;
  if (metal == MetalName::Copper) s.RefractImag = 0;
  if (!found) return std::nullopt;
  s.RefractImag = found->k;
  return found->n;
}

}  // namespace

std::optional<double> RIcoat(Session& session, int layer, double wavelength, std::string_view material) {
  if (material == "Fixed") return FixedLayer(session, layer);
  if (material == "Water") return WaterLayer(session.state, wavelength);
  if (material == "Vacuum") return 1;
  if (material == "Glass") return SellmeierIndex(CrownGlass, wavelength);
  if (material == "Gold") return MetalLayer(session, MetalName::Gold, wavelength);
  if (material == "Silver") return MetalLayer(session, MetalName::Silver, wavelength);
  if (material == "Copper") return MetalLayer(session, MetalName::Copper, wavelength);
  return std::nullopt;
}

}  // namespace lumivex
