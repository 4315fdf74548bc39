#pragma once

#include <string>

#include "axes/scale_rules.h"
#include "pages/look.h"

namespace lumivex {

/// Tick text of a linear y axis: above 0.0001 Str of the rounded number, 0 as "0", below 0 the sign before the number
/// and from -1 down before the signed number, so that the sign stands twice; between 0 and 0.0001 in the form
/// "1.23E-05". A point that comes first gets a zero before it.
std::string RoundedText(double x, int decimals);

/// A number as the axes print it in between: as many digits as it has, at least one before the point.
std::string TickText(double value);

/// Ticks of a linear x axis.
/// @param oddTest    number that the frame before tested for being odd: a range of exactly 10 then has ticks at every 1
///                   and labels at every 5.
/// @param step       distance of the ticks (out).
/// @param range      xmax - xmin (out).
/// @param labelStep  distance of the labels (out).
void GridxStep(double oddTest, double xmin, double xmax, double& step, double& range, double& labelStep);

/// Top of the vertical axis for curves that reach up to `value`: the number asked for, or a round number above; for a
/// value that is not positive the top of the last scaling, which it becomes.
double GridYmax(const ScaleLook& look, double value, ScaleMemory& memory);

/// Bottom of the vertical axis for curves that reach down to `value`, under the top `ymax`: the number asked for, or 0
/// on a linear axis and a power of ten on a logarithmic one. It becomes the bottom of the last scaling.
double GridYmin(const ScaleLook& look, double value, double ymax, ScaleMemory& memory);

/// Limits around an albedo that hardly differs along its curve. Down from 0, or over a whole decade, it would be a line
/// on the edge of the box; where no limit is typed it has round ones next to its smallest and largest value. So have
/// angles of bows on a linear axis.
/// @param limits  as GridYmax and GridYmin chose them; others are left as they are.
void FitFlatAlbedo(const PageKind& kind, const ScaleLook& look, double bottom, double top, AxisLimits& limits);

}  // namespace lumivex
