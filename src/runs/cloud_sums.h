#pragma once

#include <vector>

#include "runs/sphere_solver.h"

namespace lumivex {

/// What a run finds at one setting: of a sphere its solution, of a cloud the means over its sizes.
struct SettingFound {
  SphereSolution sphere;                 ///< of a cloud S1 and S2 are the roots of the mean intensities, without phase
  std::vector<double> crossRe, crossIm;  ///< of a cloud the means of S1 conj(S2) by row; empty for one sphere
  double Cext = 0, Csca = 0;             ///< um2; of a cloud means of Q pi r^2, not Q pi of the mean radius
  int samples = 1;                       ///< sizes that were added
};

/// Sums over the spheres of a cloud; the asymmetry counts by scattering cross-section.
class CloudSums {
 public:
  /// Empties the sums.
  /// @param window  rows that are added.
  /// @param cross   whether S1 conj(S2) is summed too; without it their means are 0.
  void Begin(RowWindow window, bool cross = true);
  /// Adds a sphere of that radius (um) with its weight.
  void Add(const SphereSolution& sphere, double radius, double weight);
  int Samples() const { return samples_; }
  /// Whether anything can be told.
  bool HasMeans() const { return number_ > 0; }

  /// Means over the particles; with `actual` the sums themselves, as for the numbers of particles in a table.
  /// @param outside  particles that were not added, since they scatter nothing, but count in the means.
  SettingFound Means(int tableRows, bool actual, double outside = 0) const;

 private:
  RowWindow window_;
  std::vector<double> perpendicular_, parallel_, crossRe_, crossIm_;
  double Qext_ = 0, Qsca_ = 0, Qback_ = 0, extinguished_ = 0, scattered_ = 0, forward_ = 0, number_ = 0;
  int samples_ = 0;
  SphereSolution last_;  ///< of the last sphere, but for tables and series
};

}  // namespace lumivex
