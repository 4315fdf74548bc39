#pragma once

#include <span>
#include <string>

#include "record/session.h"

namespace lumivex {

/// Highest number p of internal reflections that a single value or a range may name.
inline constexpr int HighestRay = 1000;

/// Reads which p are selected into RayEnabled, RayMax and RayCount: a single number of cboRays, all from 0 to -p where
/// it is negative, or for "Multiple" the range or the boxes of dlogP. Numbers beyond HighestRay are cut to it; a range
/// without a positive step selects nothing.
void RaysCheck(Session& session);

/// Whether cboRays reads "Multiple" without a selection.
bool NoRaysSelected(const Session& session);

/// Tells of it and stops the run.
void RefuseNoRays(Session& session);

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
