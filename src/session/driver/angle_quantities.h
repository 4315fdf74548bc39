#pragma once

#include "record/session.h"
#include "session/driver/angle_family.h"

namespace lumivex {

/// Whether the graph chosen integrates over all angles, so that the solver is asked for every row.
bool NeedsAllRows(const RunState& s);

/// Element i of the curve arrays as the scattering matrix: S11 in the curves, S12, S33, S34 over S11 in the extras. The
/// amplitudes of a cloud are moduli; its S33 and S34 come from the means in CloudCrossRe and CloudCrossIm, which a run
/// of one sphere leaves empty.
void FillMatrixPoint(MainFormState& s, std::size_t i, const AmplitudePair& pair);

/// Turns the intensities in the curve arrays into what the graph against angle shows: the phase function (mean over the
/// sphere 1), Watts/m2 at the distance and incident density in use, the differential cross-section (m2/sr), the
/// scattering matrix (S11 in Iperp; S12, S33, S34 over S11 in Extra1 to Extra3), or the cumulative probability. A graph
/// of plain intensity stays.
void ApplyAngleQuantity(Session& session);

}  // namespace lumivex
