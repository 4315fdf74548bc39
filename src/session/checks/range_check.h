#pragma once

#include "record/session.h"

namespace lumivex {

/// Holds all inputs against each other, the method and the graph, rule by rule in a fixed order. The first rule that
/// fails marks its inputs red, says why and ends the check with abort at 1; some rules repair a value and go on.
/// Inputs marked by an earlier check and mended since turn white again.
///
/// @param Xmin, Xmax, Ymin, Ymax  written with the limits as numbers; Ymin, Ymax only where not "Automatic".
void RangeCheck(Session& session, double& Xmin, double& Xmax, double& Ymin, double& Ymax, int& abort);

/// Whether a size distribution can be folded into the Lee diagram of the last results: its width must fit the steps of
/// the radius. Tells why not.
bool SizesFitColumns(Session& session);

}  // namespace lumivex
