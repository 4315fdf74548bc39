#pragma once

#include <type_traits>

namespace lumivex {

/// The size distribution.
struct SizeState {
  double RelativeSD = 0;  ///< standard deviation over the mean radius
  double GammaThird = 0;  ///< gamma function of 1/3, 0.5, -0.5, -1.5 and 5
  double GammaHalf = 0;
  double GammaMinusHalf = 0;
  double GammaMinusThreeHalves = 0;
  double GammaFive = 0;
};

template <class Group, class Visitor>
requires std::is_same_v<std::remove_const_t<Group>, SizeState>
void ForEachField(Group& g, Visitor&& visit) {
  visit("RelativeSD", g.RelativeSD);
  visit("GammaThird", g.GammaThird);
  visit("GammaHalf", g.GammaHalf);
  visit("GammaMinusHalf", g.GammaMinusHalf);
  visit("GammaMinusThreeHalves", g.GammaMinusThreeHalves);
  visit("GammaFive", g.GammaFive);
}

}  // namespace lumivex
