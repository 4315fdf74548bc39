#pragma once

#include <string>

#include "record/page.h"

namespace lumivex {

/// What a page shows, for those who hear it: title, axes with their ranges, and of each curve in view (the first six)
/// its greatest value and where up to three more maxima stand, the highest first. Empty for a page without a graph.
std::string PageInWords(const Page& page);

}  // namespace lumivex
