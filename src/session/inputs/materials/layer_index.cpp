#include <array>
#include <string_view>

#include "materials/index/index_formulas.h"
#include "materials/index/water.h"
#include "materials/tables/metals.h"
#include "record/number_text.h"
#include "session/inputs/materials/read_material.h"

namespace lumivex {

namespace {

std::optional<double> FixedLayer(Session& session, int layer) {
  constexpr std::array<std::string_view, 3> fields = {"txtRIcore", "txtRIshell", "txtRImedium"};
  const Form* dialog = session.forms.Find("dlogCoatedSphere");
  if (dialog == nullptr || layer < 1 || layer > 3) return std::nullopt;
  const Control* field = dialog->Find(fields[static_cast<std::size_t>(layer) - 1]);
  return field == nullptr ? std::nullopt : std::optional(Val(field->Value().text));
}

double WaterLayer(MaterialState& s, double wavelength) {
  constexpr double ratio = 278.15 / 273.15;
  constexpr float density = 0.9999638F;
  s.TempRatio = static_cast<float>(ratio);
  s.WaterDensity = density;
  s.RefractImag = 0;
  return WaterIndexIapws(wavelength, density, ratio);
}

/// Read along straight lines a layer of metal has no k but at exactly the last row; copper has none by cubics either.
/// Results saved with coated metals rely on it.
std::optional<double> MetalLayer(Session& session, const MetalTable& table, double wavelength, bool keepsK) {
  auto& s = session.state;
  s.LookupWavelength = static_cast<float>(wavelength);
  const TableRule rule = RuleTicked(session.form1);
  const auto found = LookUpMetal(MetalLambda, table, s.LookupWavelength, rule);
  if (!keepsK) s.RefractImag = 0;
  if (!found) return std::nullopt;
  const bool lastRow = s.LookupWavelength == MetalLambda[metalRows];
  if (keepsK) s.RefractImag = rule == TableRule::Cubic || lastRow ? found->k : 0;
  return found->n;
}

}  // namespace

std::optional<double> RIcoat(Session& session, int layer, double wavelength, std::string_view material) {
  if (material == "Fixed") return FixedLayer(session, layer);
  if (material == "Water") return WaterLayer(session.state, wavelength);
  if (material == "Vacuum") return 1;
  if (material == "Glass") return SellmeierIndex(CrownGlass, wavelength);
  if (material == "Gold") return MetalLayer(session, GoldNK, wavelength, true);
  if (material == "Silver") return MetalLayer(session, SilverNK, wavelength, true);
  if (material == "Copper") return MetalLayer(session, CopperNK, wavelength, false);
  return std::nullopt;
}

}  // namespace lumivex
