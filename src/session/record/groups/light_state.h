#pragma once

#include <type_traits>
#include <vector>

namespace lumivex {

/// The light source.
struct LightState {
  float SpectrumMin = 0.38F;  ///< band of a calculation with several wavelengths (um)
  float SpectrumMax = 0.70F;
  std::vector<double> SunDiscWeight;  ///< weights of the solar disc by offset, index 0 to SunDiscRows + 1
  int SunDiscRows = 0;
  double SunDiscTotal = 1;  ///< sum of the weights over both sides
};

template <class Group, class Visitor>
requires std::is_same_v<std::remove_const_t<Group>, LightState>
void ForEachField(Group& g, Visitor&& visit) {
  visit("SpectrumMin", g.SpectrumMin);
  visit("SpectrumMax", g.SpectrumMax);
  visit("SunDiscWeight", g.SunDiscWeight);
  visit("SunDiscRows", g.SunDiscRows);
  visit("SunDiscTotal", g.SunDiscTotal);
}

}  // namespace lumivex
