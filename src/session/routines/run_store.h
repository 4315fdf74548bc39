#pragma once

#include <string>

#include "record/session.h"
#include "session/routines/solver_call.h"

namespace lumivex {

/// What the plane-wave solvers have in common around their kernels.

/// "Water in Vacuum", as titles print it.
std::string MaterialsText(const Session& session);

/// A method's title: the words before the materials, which stand alone with "".
void WriteRunTitle(Session& session, const std::string& words);

/// The grid and window of a call.
AngleGrid GridOf(const SolverCall& call);
RowWindow WindowOf(const SolverCall& call);

/// Puts the grid of a call into the record: NANG, NN, DANG. A call for one angle leaves them.
void StoreGrid(Session& session, const SolverCall& call);

/// Gives S1 and S2 rows 0..2 NANG - 1 or as many as they have had, all zero: averaging reads beyond the grid.
void ClearAmplitudes(const AngleGrid& grid, AmplitudeTable& S1, AmplitudeTable& S2);

/// Copies the rows of a kernel's table, after ClearAmplitudes.
void CopyRows(const AmplitudeTable& from, AmplitudeTable& to);

}  // namespace lumivex
