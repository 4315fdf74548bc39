#pragma once

#include "runs/request.h"

namespace lumivex {

/// The work of a run before it is done, by which the time that it takes is told beforehand.
///
/// Its unit is one term of a partial-wave series at one pair of angles, theta and 180 degrees - theta: the inner loop
/// of most runs. Coefficients, continued fractions and points of one angle count as so many of those as they take as
/// long as. Only series, and the spheres of a volume, are counted: nothing else takes long. Settings that differ
/// (wavelengths, points of an axis, sizes of a cloud) count each with its own size parameter; of very many some are
/// looked at.
double PairTermsOf(const RunRequest& request);

/// Sizes of the request's cloud; 1 without one.
int SizesOf(const RunRequest& request);

}  // namespace lumivex
