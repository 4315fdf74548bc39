#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "session/record/features.h"
#include "session/record/session.h"

namespace lumivex {

/// One calculation method: the text of cboType and the code that everything else branches on.
struct MethodRow {
  int code;
  std::string_view text;
  Feature feature;
  bool inStartList;        ///< whether the list holds it from the start
  int diffractionVariant;  ///< only for code 4
};

/// All methods in the order in which texts are compared.
std::span<const MethodRow> MethodTable();

/// The texts that cboType offers at the start: those of the start list whose solver is there.
std::vector<std::string> OfferedMethods();

/// Translates the text of cboType into CalcMethod and DiffractionVariant. A text that is no method, or whose solver is
/// not there, marks the list and reports "Unknown calculation method"; CalcMethod is then 0.
void TypeCalc(Session& session);

/// cboType_click: what shows and what is allowed with the chosen method.
void cboType_click(Session& session);

/// Settles NumberWavelengths from cboWave ("RGB" is 3; "High", "Med." and "Low" depend on the radius).
void NumberWavelengths(Session& session);

/// A new number of wavelengths needs a new calculation; one wavelength shows its inputs, several the spectrum's.
void cboWave_Click(Session& session);

}  // namespace lumivex
