#pragma once

#include <optional>

#include "pages/curves/line_graph.h"

namespace lumivex {

/// Whether pages of that kind have bars below their graph: intensity against angle, of one wavelength or several. The
/// angles of a polar plot run round its circle, where no bar could follow them.
bool HasBars(const PageKind& kind);

/// The light of a run by row, from which its bars are coloured: nothing for runs that are not of angles, and for those
/// stopped before their first wavelength.
///
/// Red, green and blue are the sums over the spectrum of intensity, weight of the light source and colour triple of the
/// wavelength (each 0 to 1); of a single wavelength its intensity times its triple. All are seen with the disc of the
/// sun where it shines; the unpolarised sums are the means of the two others. Bars show light: they are of intensities
/// also where the curves are moduli.
std::optional<PageBars> PlotN(const RunToDraw& run);

}  // namespace lumivex
