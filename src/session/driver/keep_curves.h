#pragma once

#include "record/main_form_state.h"
#include "runs/curves.h"

namespace lumivex {

/// Puts the curves of results into the record, under the names by which scripts and files know them: XValues, Iperp,
/// Ipar, Iunpol, Extra1 to Extra3, IntensityNorm, ScatteredPower and BackscatteredPower, of a spectrum the colour
/// tables, and for rows of angles the weights of the disc of the sun (SunDiscWeight). Rows of an angle graph that were
/// not asked for hold 0.
/// @param rectangular  of the disc: not round.
void FillCurveArrays(MainFormState& s, const Results& results, const Curves& curves, bool rectangular);

}  // namespace lumivex
