#pragma once

#include "sky/camera.h"

namespace lumivex {

/// A picture to begin with: a sky after rain, hills on the horizon and meadows before them, made by numbers alone, the
/// same ones on every machine.
/// @param horizon  row of the horizon (pixels from the top).
Bitmap DefaultLandscape(int width, int height, double horizon);

}  // namespace lumivex
