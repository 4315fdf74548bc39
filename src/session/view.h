#pragma once

#include <optional>
#include <string>

#include "record/session.h"

namespace lumivex {

/// What a calculation of the part of the axes in view would be asked, as it stands in the inputs.
struct ViewRun {
  int points = 0;        ///< that are in view now
  bool complete = true;  ///< the whole view has been calculated
  std::string xmin, xmax, step;
};

/// The calculation that would show more of a zoomed page: where fewer than 50 points are in view, or a part of it was
/// never calculated. Nothing where the page is not zoomed, where the inputs have gone on to another graph, and where
/// the view cannot be told by limits and a step.
std::optional<ViewRun> RunOfView(const Session& session);

/// Sets limits and step to the view, one step of undo, and makes a new plot.
void CalculateView(Session& session, const ViewRun& run);

}  // namespace lumivex
