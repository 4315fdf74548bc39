#pragma once

#include "particles/size_distribution.h"
#include "runs/request.h"
#include "runs/results.h"

namespace lumivex {

/// A map over radius with a distribution of sizes folded into its columns.
struct FoldedMap {
  SizeFailure failure = SizeFailure::None;
  MapFound found;
  double share = 0;  ///< of the particles, those whose radius lies beyond the columns: they were left out
};

/// Folds a distribution of sizes into a map of single sizes: each column becomes the mean over the sizes that lie about
/// its radius, the cells of a size interpolated between the columns beside it, linearly in the logarithm of the radius.
///
/// Means go by number of particles, as those of a cloud do. Sizes beyond the first and the last column that was done
/// are left out, and the others count for them; a column none of whose sizes is within them is not a number. Which
/// wavelength is strongest is told of the column's own radius.
/// @param radii  the columns of the map, all above 0.
FoldedMap FoldSizes(const MapFound& map, const Sweep& radii, const SizeDistribution& sizes);

}  // namespace lumivex
