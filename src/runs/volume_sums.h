#pragma once

#include <cstddef>
#include <vector>

#include "particles/random_places.h"
#include "particles/size_distribution.h"
#include "runs/request.h"
#include "runs/results.h"
#include "runs/task_pool.h"

namespace lumivex {

/// The spheres of a volume but for their amplitudes: where each stands, which of the sizes it has, and the phase that
/// its place gives its field.
///
/// The wave comes along z and is looked at in the plane of x and z. A sphere at r has the phase k (e_inc - e_sca) . r
/// beside one at the origin (Bohren and Huffman 1983, section 3.2), with k in the medium: -k sin(theta) along x,
/// k (1 - cos(theta)) along z and nothing along y.
class VolumeSpheres {
 public:
  /// @param samples     good ones, of which each sphere has one by their weights.
  /// @param waveNumber  in the medium (1/um).
  VolumeSpheres(const VolumeRun& run, const CloudSamples& samples, double waveNumber);

  std::size_t Count() const { return count_; }
  /// Sizes, from 0; the last one is that of particles beyond the samples, which scatter nothing.
  std::size_t Sizes() const { return upTo_.size(); }
  std::size_t SizeOf(std::size_t sphere) const;
  Place PlaceAt(std::size_t sphere) const { return PlaceOf(seed_, sphere, side_); }
  BrownianWalk WalkOf(std::size_t sphere, double radius) const {
    return {seed_, sphere, side_, DiffusionCoefficient(radius)};
  }
  /// exp(i phase).
  ComplexD PhaseAt(const Place& place) const;

 private:
  std::size_t count_;
  std::uint64_t seed_;
  double side_, alongX_, alongZ_;  ///< um, 1/um
  std::vector<double> upTo_;       ///< weights of the sizes up to each, by size
};

/// What a sphere of each size sends at the angle of the run; those that scatter nothing have 0.
struct SizeAmplitudes {
  std::vector<double> radius;  ///< um
  std::vector<ComplexD> S1, S2;
};

/// The part of a run that the sums are.
struct ShareOfSums {
  double before = 0, ofRun = 1;
};

/// Volume1: sums the fields over the spheres at the points of `found.x`, which are positions of the first sphere along
/// x, numbers of spheres, or times of their Brownian motion.
///
/// Blocks of spheres are tasks; they are added in their order, so that sums are the same bits on any number of threads.
/// @return false after a Stop, or where the arithmetic failed; `found` then is not whole.
bool Volume1(AxisVariable axis, const VolumeSpheres& spheres, const SizeAmplitudes& amplitudes, ShareOfSums share,
             TaskPool& pool, VolumeFound& found);

/// The same for spheres whose amplitudes are not known yet: sums of their phases, and their number, by size. The field
/// of all is the sum of S times these.
struct PhaseSums {
  std::vector<ComplexD> sum;
  std::vector<double> count;
  bool whole = false;  ///< false after a Stop
};
PhaseSums SumPhases(const VolumeSpheres& spheres, ShareOfSums share, TaskPool& pool);

/// Work of the sums, in the unit of PairTermsOf.
double SumsWork(AxisVariable axis, const VolumeRun& run);

}  // namespace lumivex
