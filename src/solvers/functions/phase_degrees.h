#pragma once

#include <cmath>

namespace lumivex {

/// Phase of a complex number in degrees, 0 up to 360; on the imaginary axis 90 for im >= 0 (so for 0 too), -90 below.
inline double PhaseDegrees(double re, double im) {
  constexpr double radiansPerDegree = 0.017453292519943278;
  if (re == 0) return im >= 0 ? 90 : -90;
  double phase = std::atan(im / re) / radiansPerDegree;
  if (re < 0) phase += 180;
  while (phase < 0) phase += 360;
  return phase;
}

}  // namespace lumivex
