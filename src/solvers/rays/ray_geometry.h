#pragma once

namespace lumivex {

/// The one place where rays keep their angles, path and phase; rays, the rainbow and graphs against time use it.
///
/// Rays are counted by p: p = 0 is reflected outside, p >= 1 is refracted in and out with p - 1 reflections inside. A
/// ray of incidence i (from the normal) and refraction r is turned by the deviation D = 2 i - 2 p r + (p - 1) pi, sin r
/// = sin i / m (van de Hulst 1957, section 12.2). D is not folded: negative for p = 0, beyond pi for p >= 3.

/// Where a ray goes.
struct Ray {
  double sinI = 0.0, cosI = 1.0;  ///< incidence
  double sinR = 0.0, cosR = 1.0;  ///< refraction; cosR = 0 from total reflection on
  double deviation = 0.0;         ///< D, radians
};

/// All rays of one p: the curve of D over a parameter t in 0..tMax along which it is smooth. t is the angle of
/// incidence, or that of refraction where m < 1 and p >= 1 (incidence then ends where the sphere reflects totally).
class RayFamily {
 public:
  /// @param m  real part of the relative index, > 0.
  RayFamily(double m, int p);

  Ray At(double t) const;
  /// The ray at t + dt of the ray at t, for |dt| up to 1e-4, without a circular function: sines to rounding, the
  /// deviation by the mean of the slopes at both ends, which leaves out D''' dt^3/12.
  Ray Near(const Ray& ray, double dt) const;
  /// dD/dt.
  double Slope(const Ray& ray) const;
  /// dD/di times m cosR / 2: m cosR - p cosI. Its sign is that of dD/di, and it is finite everywhere.
  double Focus(const Ray& ray) const { return p_ == 0 ? 1.0 : m_ * ray.cosR - p_ * ray.cosI; }
  /// t of an impact sin i.
  double Parameter(double sinI) const;

  double Index() const { return m_; }
  int P() const { return p_; }
  double Last() const { return last_; }

 private:
  double m_;
  int p_;
  bool byRefraction_;
  double last_;
};

/// On which half turn a deviation lies, and what its scattering angle 0..pi is.
struct RayFold {
  int halfTurn = 0;  ///< floor(D/pi)
  int q = -1;        ///< -1 on even half turns (D = 2 pi T + theta), +1 on odd ones (D = 2 pi (T + 1) - theta)
  int kk = 0;        ///< -T, or -(T + 1) on odd half turns
};

RayFold FoldHalfTurn(int halfTurn);
RayFold FoldDeviation(double deviation);
/// The scattering angle of a deviation on that half turn, radians.
double ScatteringAngle(const RayFold& fold, double deviation);
/// The deviation on that half turn that has a scattering angle.
double DeviationAt(const RayFold& fold, double theta);

/// Optical path through the sphere relative to a ray through its centre that is not refracted, in radii of the sphere
/// times the index of the medium: 2 (p m cos r - cos i). Times radius and medium's index over the speed of light it is
/// the delay.
double OpticalPath(double m, int p, const Ray& ray);

/// Phase of a ray: -x times the optical path, and a quarter turn for each half turn and each caustic passed,
/// phi = 2 x (cos i - p m cos r) + (pi/2)(p - 2 kk + s/2 - q/2) (van de Hulst 1957, section 12.22).
///
/// @param s  sign of dD/di; 0 for the field on a caustic itself, or to leave that quarter wave out.
double RayPhase(double x, double m, int p, const Ray& ray, const RayFold& fold, int s);

}  // namespace lumivex
