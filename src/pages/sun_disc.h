#pragma once

#include "record/session.h"

namespace lumivex {

/// Weights of the solar disc, 0.5 degrees wide, for the angular step in cboStep: SunDiscWeight, SunDiscRows and
/// SunDiscTotal; Xstep is read on the way. The disc is round, or rectangular with mnuSun ticked.
void SunCorrection(Session& session);

}  // namespace lumivex
