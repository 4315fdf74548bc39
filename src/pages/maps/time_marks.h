#pragma once

#include <vector>

#include "pages/look.h"
#include "record/page_map.h"
#include "runs/request.h"

namespace lumivex {

/// The times of rays (TimePlot) and of surface waves (TimePlotSW) over a picture of angle and time, as the look wants
/// them: rays of p = 0 to a highest one as dots for impacts in equal steps, surface waves as lines from their edge ray
/// on. Where the sphere disperses, paths in it are counted with the group index, as a pulse travels them.
///
/// Nothing for pictures of other quantities, for spheres in layers, and where the sphere has no index that rays know.
std::vector<MapMarks> TimeMarksOf(const RunRequest& asked, const TimePlotLook& look);

}  // namespace lumivex
