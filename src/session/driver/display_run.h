#pragma once

#include "record/session.h"

namespace lumivex {

/// Where results are drawn: on a page of their own, or over the one on the screen, in its limits.
enum class Onto { FreshPage, PageOnScreen };

/// Shows the last results, a curve read from a file always over the page on the screen. Yields first; where that
/// brings a Stop, the old page stays.
void DisplayRun(Session& session, Onto onto);

}  // namespace lumivex
