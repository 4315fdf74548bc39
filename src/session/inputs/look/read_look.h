#pragma once

#include "pages/look.h"
#include "record/session.h"

namespace lumivex {

/// The look that the menus and inputs ask for now; the one place that reads them for drawing.
Look ReadLook(const Session& session);

/// The curves that a text of a list of polarisations asks for.
Polarisations PolarisationsChosen(std::string_view text);

/// The geometry of the record on the surface of the main window.
PageGeometry GeometryOf(const Session& session);

}  // namespace lumivex
