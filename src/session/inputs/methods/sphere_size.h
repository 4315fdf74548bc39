#pragma once

#include "record/session.h"

namespace lumivex {

/// The radius in micrometres that txtRadius means: itself, a diameter to be halved, or a size parameter, after which of
/// mnuRadius, mnuDiameter and mnuRadiusX is ticked. Wavelength and medium are read from their fields. Of a coated
/// sphere it is the outer radius of its dialog; of a map it is the radius that its own field means, or the smallest
/// that it sweeps.
double SphereRadius(const Session& session);

/// That radius, or the one that stands for a size file.
double RadiusInUse(const Session& session);

/// The medium's index as a run uses it: an entry of exactly 0 counts as 1.
double MediumIndexInUse(const Session& session);

}  // namespace lumivex
