#pragma once

#include <functional>

#include "record/drawing_surface.h"
#include "record/page.h"

namespace lumivex {

/// The profile of a sphere's refractive index as a small graph.
/// @param index   n at a distance from the centre, 0 to 1; what is not a finite number breaks the curve.
/// @param layers  that the sphere is taken apart into; few of them are drawn as stairs beside the curve.
PageProfile ProfileGraph(const std::function<double(double r)>& index, int layers);

/// Paints it on the whole surface.
void PaintProfile(DrawingSurface& surface, const PageProfile& profile);

}  // namespace lumivex
