#pragma once

#include <optional>
#include <vector>

namespace lumivex {

/// A sphere seen by rays: lengths in um, m its index relative to the medium's n, m > 0.
struct RaySphere {
  double radius = 10.0;
  double n = 1.0;
  double m = 1.333;
};

/// A ray of order p: p = 0 is reflected outside, p >= 1 runs along p chords.
struct TimedRay {
  int p = 0;
  double impact = 0.0;     ///< sin i, 0..1
  double deviation = 0.0;  ///< 2 i - 2 p r + (p - 1) pi in radians: of the direction of travel, not folded
  double angle = 0.0;      ///< scattering angle, 0..180 degrees
  double time = 0.0;       ///< fs after the light that the sphere's front reflects straight back

  /// The field's phase grows with the angle as q x sin i with q = 1, or falls with q = -1.
  int Side() const;
};

/// The ray that enters at an impact; nothing where it is totally reflected (p >= 1, impact > m).
///
/// time = (2 a n/c) (1 - cos i + p mTime cos r), mTime = m but where the index disperses: a pulse runs at the group
/// index, the ray by the phase index.
///
/// @param mGroup  the group index relative to the medium's n; 0 stands for m.
std::optional<TimedRay> RayAtImpact(const RaySphere& sphere, int p, double impact, double mGroup = 0.0);

/// Rays of p = 0..last, of impacts 0, step, 2 step, ... 1.
std::vector<TimedRay> RayTimes(const RaySphere& sphere, int last, double step, double mGroup = 0.0);

/// The rays of p that leave at a scattering angle (degrees), in the order of their impact.
std::vector<TimedRay> RaysAtAngle(const RaySphere& sphere, int p, double angle);

struct TimePoint {
  double angle = 0.0;  ///< 0..180 degrees
  double time = 0.0;   ///< fs, zero as of rays
};

/// The way of a surface wave of p short cuts through the sphere from the edge ray round the sphere: its corners in the
/// plane of angle and time, the first at the edge p (180 - 2 asin(1/m)), the others where it passes 0 or 180 degrees
/// (Nussenzveig 1969). Nothing for m <= 1 and p >= 1.
///
/// @param surfaceIndex  index that it creeps with: it takes surfaceIndex a/c a radian.
/// @param halfTurns     passages of 0 or 180 degrees, >= 1.
/// @param mGroup        the group index of the sphere relative to the medium's n, for the cuts; 0 stands for m.
std::vector<TimePoint> SurfaceWaveLine(const RaySphere& sphere, int p, double surfaceIndex, int halfTurns,
                                       double mGroup = 0.0);

/// Frequencies at which the amplitude of a ray goes round along an axis, cycles a unit of it.
double FrequencyOverAngle(const RaySphere& sphere, const TimedRay& ray, double wavelength);       ///< per degree
double FrequencyOverRadius(const RaySphere& sphere, const TimedRay& ray, double wavelength);      ///< per um
double FrequencyOverWavelength(const RaySphere& sphere, const TimedRay& ray, double wavelength);  ///< per nm

}  // namespace lumivex
