#pragma once

#include <string>

#include "axes/scale_rules.h"
#include "record/session.h"

namespace lumivex {

/// Tick text of a linear y axis: above 0.0001 Str of the rounded number, 0 as "0", below 0 the sign before the number
/// and from -1 down before the signed number, so that the sign stands twice; between 0 and 0.0001 in the form
/// "1.23E-05". A point that comes first gets a zero before it.
std::string RoundedText(double x, int decimals);

/// A number as the axes print it in between: as many digits as it has, at least one before the point.
std::string TickText(double value);

/// Ticks of a linear x axis.
/// @param graph      holds the number that the frame before tested for being odd: a range of exactly 10 then has ticks
///                   at every 1 and labels at every 5.
/// @param step       distance of the ticks (out).
/// @param range      xmax - xmin (out).
/// @param labelStep  distance of the labels (out).
void GridxStep(const GraphState& graph, double xmin, double xmax, double& step, double& range, double& labelStep);

/// Top of the vertical axis for curves that reach up to `value`: the number in cboYmax, or with "Automatic" a round
/// number above; in an overplot, and for a value that is not positive, the top of the last scaling. While the second
/// panel is drawn the result stays as it is.
void GridYmax(Session& session, double value, double& result);

/// Bottom of the vertical axis for curves that reach down to `value`, which has Ymax above it: the number in cboYmin,
/// or with "Automatic" 0 on a linear axis and a power of ten on a logarithmic one; in an overplot the bottom of the
/// last scaling.
void GridYmin(Session& session, double value, double& result);

}  // namespace lumivex
