#pragma once

#include <optional>

#include "pages/curves/line_graph.h"
#include "pages/read_out.h"
#include "record/drawing_surface.h"

namespace lumivex {

/// The phasor diagram of a Debye analysis: what is left of a Mie amplitude after each term as dots in the complex
/// plane, phase clockwise from the top, modulus outward on the limits of the look or on decades around all terms.
/// Nothing for other results.
std::optional<PagePhasors> PlotDots(const RunToDraw& run, const PageGeometry& geometry);

/// Where circle and table stand on a surface: where it is too narrow the table gives way first, then the circle.
PhasorPlace PlacePhasors(const PageGeometry& geometry);

/// Phase of a complex number from 0 to 2 pi.
double PhasorPhase(double re, double im);

/// Where the dot of a term lies; nothing below the scale. Term 1 is the Mie amplitude, term j what is left after j - 1.
std::optional<SurfacePoint> DotPlace(const PagePhasors& dots, const AmplitudeTable& terms, int j);

/// The words of a term: "Mie", "- p = 0", "- p = 0 to 3".
std::string TermWords(int j);

/// Paints circle, rings, dots with their numbers and the table of the terms.
void PaintPhasors(DrawingSurface& surface, const PagePhasors& dots, Colour ground);

/// Modulus and phase at a place in the circle, and the nearest dot.
std::optional<GraphReading> ReadPhasors(const PagePhasors& dots, double surfaceX, double surfaceY);

}  // namespace lumivex
