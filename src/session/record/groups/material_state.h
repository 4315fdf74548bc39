#pragma once

#include <type_traits>

namespace lumivex {

/// Refractive indices at the last wavelength looked up, and the water model's parameters.
struct MaterialState {
  double RefractReal = 0;               ///< n of the sphere
  double RefractImag = 0;               ///< k of the sphere
  double RefractMedium = 1;             ///< n of the medium
  double RefractMediumImag = 0;         ///< always 0
  float MaterialTemp = 5;               ///< temperature of the water (C)
  float TempRatio = 278.15F / 273.15F;  ///< (T + 273.15) / 273.15
  float WaterDensity = 0.99996382F;     ///< g/cm3
  float LookupWavelength = 0;           ///< wavelength rounded to single precision, as the tables are searched (um)
  int RIUserEdited = 0;                 ///< 1 when an index was typed in since the last evaluation
};

template <class Group, class Visitor>
requires std::is_same_v<std::remove_const_t<Group>, MaterialState>
void ForEachField(Group& g, Visitor&& visit) {
  visit("RefractReal", g.RefractReal);
  visit("RefractImag", g.RefractImag);
  visit("RefractMedium", g.RefractMedium);
  visit("RefractMediumImag", g.RefractMediumImag);
  visit("MaterialTemp", g.MaterialTemp);
  visit("TempRatio", g.TempRatio);
  visit("WaterDensity", g.WaterDensity);
  visit("LookupWavelength", g.LookupWavelength);
  visit("RIUserEdited", g.RIUserEdited);
}

}  // namespace lumivex
