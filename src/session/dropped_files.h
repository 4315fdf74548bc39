#pragma once

#include <span>
#include <string>

#include "record/session.h"

namespace lumivex {

/// Files that a user drops on the window: one table of refractive indices, one spectrum or one size distribution is
/// read and put to use, which can be undone. Several files at once, and a file of another kind, are told and change
/// nothing.
void DropFiles(Session& session, std::span<const std::string> paths);

}  // namespace lumivex
