#pragma once

#include "record/session.h"
#include "runs/results.h"

namespace lumivex {

/// The preview of a live run: over the kept page, as a sketch in grey, where it fits on its axes; elsewhere the page
/// that New plot would show.
/// @param copy  the inputs that were asked with, which keep the results as a session does; nobody else may hold it.
/// @param kept  the page that stays.
Preview PreviewOf(Session& copy, Results&& results, const Page& kept);

}  // namespace lumivex
