#pragma once

#include "record/session.h"

namespace lumivex {

/// Fills RelativeSD from cboSD and DistSample from the table for cboN. A cboN that is not 5, 10, 20 or 50 leaves
/// DistSample as it was. NumberSamples is that of the last run.
void Disperse(Session& session);

/// For "Special" with a table: Radius becomes half the sum of its first and last radius.
void TakeSpecialRadius(Session& session);

/// Whether the distribution's name is one of the aerosols'.
bool IsAerosol(std::string_view distribution);

}  // namespace lumivex
