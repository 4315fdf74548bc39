#pragma once

#include <string>

#include "record/session.h"

namespace lumivex {

/// The wavelength was typed: evaluates the indices there; a wavelength that gives none marks the field yellow.
void txtLambda_change(Session& session);
/// The size was typed.
void txtRadius_Change(Session& session);
/// What the field of the size is called, after what it means.
std::string SizeCaption(const Form1& form);
/// An input of the further axis, or of the sweep of a Lee diagram, was typed: the results must be calculated anew.
void FurtherAxis_Changed(Session& session);
/// A limit of the further axis was typed: the same, but where the results have what lies beyond the limits.
void Times_Changed(Session& session);
/// An input that shapes the results was changed: they must be calculated anew.
void Inputs_Changed(Session& session);
/// An input that only shapes the picture was changed: it can be drawn anew from the results.
void Picture_Changed(Session& session);
/// The choice of polarisation or of the vertical scale: drawn anew at once.
void Scale_Click(Session& session);

/// The step was typed or chosen: the results must be calculated anew.
void Step_Changed(Session& session);
/// A limit of the vertical axis was chosen from its list: drawn anew at once.
void Limit_Click(Session& session);

/// What txtRadius means: a radius, a diameter or a size parameter. The number in the field stays.
void mnuRadius_Click(Session& session);
void mnuDiameter_Click(Session& session);
void mnuRadiusX_Click(Session& session);

/// Toggles that need a new calculation.
void mnuSize_Click(Session& session);
void mnuClassicStart_Click(Session& session);
void mnuConstantVolume_Click(Session& session);
/// Logarithmic steps of an x axis: the step is then a number of steps.
void mnuXStepLog_Click(Session& session);

/// Readings shown or not; start values kept when the graph changes.
void mnuDataVisible_Click(Session& session);
void mnuKeepParameters_Click(Session& session);

}  // namespace lumivex
