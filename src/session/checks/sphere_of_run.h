#pragma once

#include "record/session.h"

namespace lumivex {

/// Bounds of what a run is going to calculate, for rules that a whole run passes or fails. What no input on the screen
/// stands for comes from the material and the axis, never from an input that is hidden.
struct SphereOfRun {
  double lowestN = 0;  ///< index of the sphere, by the wavelengths of the run
  double lowestK = 0;  ///< absorption index, likewise
  double highestK = 0;
  double leastAbsorption = 0;       ///< k x, the medium left out, where the sphere is smallest and clearest
  double wavelengthsPerRadius = 0;  ///< shortest wavelength over largest radius
  double leastParameter = 0;        ///< size parameter in vacuo of the smallest sphere at the longest wavelength
};

SphereOfRun BoundsOfRun(const Session& session);

/// Takes the absorption out of a model of the sphere that can do without: water, a fixed index, a dielectric function
/// above 0.
/// @return false, with nothing changed, for metals and for tables from files.
bool DropAbsorption(Session& session);

}  // namespace lumivex
