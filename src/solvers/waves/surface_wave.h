#pragma once

#include <complex>
#include <cstddef>
#include <span>
#include <vector>

#include "solvers/angles/amplitude_table.h"
#include "solvers/run_monitor.h"
#include "solvers/waves/surface_poles.h"

namespace lumivex {

/// Which way round a surface wave reaches an angle.
enum class SurfacePath { Both, Short, Long };

/// Surface waves of one number p of short cuts (Nussenzveig 1969; Khare and Nussenzveig 1977): what the poles of term p
/// of the Debye series add to its rays, in the convention of the Mie series. Each pole is of order p + 1; its residue
/// is taken as a sum over a circle round it.
///
/// With D = p (pi - 2 arcsin(1/Re m)), h the whole number of half turns not below it and psi the angle from the axis
/// that it is nearest to, the short path creeps along h pi - D - psi and the long one along h pi - D + psi. Beyond the
/// edge ray, psi > h pi - D, the short path has ended; there `Both` is the long one alone. Either alone has a focal
/// line on the axis, where it is held at psi = 1e-6; near it `Both` is summed as one, with J_n in place of the two
/// halves, whose difference would lose what high orders p are right to. On the other end of the axis it is held at 1/x.
class SurfaceWave {
 public:
  /// @param poles  of FindSurfacePoles with lastTerm >= p; those numbered first..last are summed.
  SurfaceWave(const std::vector<SurfacePole>& poles, double x, double mRe, int p, SurfacePath path, int first,
              int last);

  /// Adds the amplitudes at angles[i] to row firstRow + i, times `amplitude`.
  ///
  /// @param angles   radians, 0..pi.
  /// @param monitor  asked once an angle.
  /// @return the number of angles done.
  std::size_t Sum(std::span<const double> angles, double amplitude, AmplitudeTable& S1, AmplitudeTable& S2,
                  int firstRow, RunMonitor& monitor) const;

 private:
  struct Point {
    ComplexD lambda;
    ComplexD logWeight;  // without the path: it overflows
    bool tm;
  };
  struct Fields;
  /// One path, or near the axis both as one.
  void AddPath(double psi, SurfacePath path, Fields& fields) const;

  std::vector<Point> points_;
  double x_;
  double edge_;      // h pi - D
  double nearAxis_;  // up to there both paths are summed as one
  bool odd_;         // h is odd: psi counts from 180 degrees
  SurfacePath path_;
};

/// H1_0, H1_1 of a complex argument Re z > 0 without exp(i z), or H2 without exp(-i z) where `second`: a power series
/// of J and Y for |z| < 14, Hankel's expansion beyond.
struct HankelPair {
  ComplexD zero, one;
};
HankelPair ScaledHankel(const ComplexD& z, bool second);

}  // namespace lumivex
