#pragma once

#include "record/main_form_state.h"
#include "runs/results.h"

namespace lumivex {

/// Puts what a Lee diagram or a map has found into the record: the swept quantity (AxisMin to AxisRatio), views of the
/// cells, the greatest value of each column, rows and the place where the run ended.
/// @param results  the last results of the record, which the views look into.
void KeepMap(MainFormState& s, const Results& results, const MapFound& found);

}  // namespace lumivex
