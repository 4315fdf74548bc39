#pragma once

#include <optional>

#include "pages/read_out.h"

namespace lumivex {

/// A reading goes from point to point without a pointer, for hands on the keyboard. On a map it goes from column to
/// column, and from picture to picture.

/// The next point in view of the curve that is read, forward (1) or backward (-1); at the end the reading stays.
GraphReading StepAlongCurve(const Page& page, const GraphReading& reading, int direction);

/// The point of the next (1) or previous (-1) curve at nearly the same x, from panel to panel; nothing with one curve.
std::optional<GraphReading> NeighbourCurve(const Page& page, const GraphReading& reading, int direction);

}  // namespace lumivex
