#pragma once

#include "record/session.h"

namespace lumivex {

/// For "Normal" and "Log-normal": fills RelativeSD from cboSD, DistSample from the table for cboN, and NumberSamples. A
/// cboN that is not 5, 10, 20 or 50 leaves DistSample as it was.
void Disperse(Session& session);

/// Fills DistRadius, DistWeight (shares or numbers of particles), NumberSamples and the range DistMin to DistMax for
/// the distribution in cboDistrib: "Normal" and "Log-normal" of the samples of Disperse about Radius, equally weighted;
/// the models; "Special" from the table of the size file. Radius must be settled before.
/// @return false, with the reason told where `aloud`, for a distribution that cannot be used.
bool PrepareSizes(Session& session, bool aloud = true);

/// For "Special" with a table: Radius becomes half the sum of its first and last radius.
void TakeSpecialRadius(Session& session);

/// Whether the distribution's name is one of the aerosols'.
bool IsAerosol(std::string_view distribution);

}  // namespace lumivex
