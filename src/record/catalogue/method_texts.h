#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "catalogue/method.h"
#include "record/features.h"

namespace lumivex {

/// One entry of cboType: a method as the user finds it.
struct MethodRow {
  Method method;
  std::string_view text;
  Feature feature;
  bool inStartList;        ///< whether the list holds it from the start
  int diffractionVariant;  ///< of diffraction: 0 the plain form, 1 the sum over partial waves
};

/// All of them, in the order in which texts are compared.
std::span<const MethodRow> MethodTable();

/// The entry of that text whose solver is there; null where there is none.
const MethodRow* FindMethod(std::string_view text);

/// The text of a method; empty for one that has none.
std::string_view TextOfMethod(Method method, int diffractionVariant);

/// The texts that cboType offers at the start: those of the start list whose solver is there.
std::vector<std::string> OfferedMethods();

}  // namespace lumivex
