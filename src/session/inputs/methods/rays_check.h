#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "record/session.h"

namespace lumivex {

/// Highest number p of internal reflections that a single value or a range may name.
inline constexpr int HighestRay = 1000;

/// A range of p as its fields have it.
struct RayRange {
  std::string Pmin, Pmax, Pstep;
};

/// The texts and boxes by which p is selected.
struct RayInputs {
  std::string text;               ///< of cboRays
  std::optional<RayRange> range;  ///< of "Multiple" by a range in place of the boxes
  std::vector<int> boxes;         ///< by p, 1 where ticked
};
RayInputs RayInputsOf(const Session& session);

/// The selected p, element p not 0, the highest last: a single number, all from 0 to -p where it is negative, or for
/// "Multiple" the range or the boxes. Numbers beyond HighestRay are cut to it; a range without a positive step selects
/// nothing.
std::vector<int> SelectedRays(const RayInputs& inputs);

/// Whether a method's terms are selected by p: those whose selection results files tell.
bool SelectsRays(Method method);

/// Reads which p are selected into RayEnabled, RayMax and RayCount, and the range into Pmin, Pmax and Pstep.
void RaysCheck(Session& session);

/// Whether the method's p are to be selected in dlogP and none is, nor diffraction in their place.
bool LacksRays(const Session& session);

/// Whether cboRays read "Multiple" without a selection at the last RaysCheck.
bool NoRaysSelected(const Session& session);

/// Whether the method has rays that diffraction can be added to: methods of rays, and "GO - Debye".
bool OffersDiffraction(const Session& session);

/// Whether diffraction is to be added to rays: the box of the main window or that of dlogP, which follow each other.
bool WithDiffraction(const Session& session);

/// The selected p as text: "2", "0, 3", "0 to 20, 30".
std::string SelectedRaysText(std::span<const int> enabled);

/// A value of cboRays was chosen: "Multiple" asks for the numbers in dlogP. Writes the label of the method anew.
void cborays_Click(Session& session);

/// The buttons and boxes of dlogP.
void cmdSelectAll_Click(Session& session);
void cmdSelectNone_Click(Session& session);
void chkMultStep_Click(Session& session);
void chkDiffraction_Click(Session& session);

}  // namespace lumivex
