#pragma once

#include <cstddef>
#include <optional>
#include <span>

#include "solvers/functions/vector_lanes.h"
#include "solvers/run_monitor.h"
#include "solvers/series/partial_waves.h"

namespace lumivex {

/// Efficiencies of a sphere, cross sections over pi a^2 (dimensionless), and the asymmetry parameter.
struct Efficiencies {
  double Qext = 0.0;   ///< Extinction, 4 Re S1(0) / x^2.
  double Qsca = 0.0;   ///< Scattering, 2/x^2 sum (2n+1) (|a_n|^2 + |b_n|^2).
  double Qback = 0.0;  ///< Backscattering, |S1(180 degrees)|^2 / (pi x^2).
  double g = 0.0;      ///< Mean cosine of the scattering angle; 0 where nothing is scattered.
};

/// Efficiencies from the coefficients of any sphere-like particle (Bohren and Huffman 1983, section 4.4; g after
/// Kerker 1969, section 3.7).
///
/// @param divideBySize  amplitudes are divided by x before Qext and Qback are formed from them: Qext is divided by
///                      x, Qback by x^2, Qsca and g stand.
Efficiencies EfficienciesOf(const PartialWaves& waves, double x, bool divideBySize = false);

/// Spheres to compute, structure of arrays of one length: size parameters and relative refractive indices.
struct SphereList {
  std::span<const double> x;
  std::span<const double> mRe;
  std::span<const double> mIm;
};

/// Where the efficiencies go: arrays at least as long as the list of spheres.
struct EfficiencyLists {
  std::span<double> Qext;
  std::span<double> Qsca;
  std::span<double> Qback;
  std::span<double> g;
  // Amplitudes at EfficiencyOptions::angle; not used without one.
  std::span<double> S1Re = {}, S1Im = {}, S2Re = {}, S2Im = {};
};

struct EfficiencyOptions {
  bool divideBySize = false;                   ///< As in EfficienciesOf.
  bool classicStart = false;                   ///< As in ComputeMieTruncation; takes the slow path.
  std::optional<double> angle = std::nullopt;  ///< One scattering angle (radians) at which S1 and S2 are wanted too.
};

/// Most sums over vector lanes and terms between two looks at the monitor.
inline constexpr std::size_t MaxLaneTermsPerLook = 4'000'000;

/// Mie efficiencies of many spheres, and their amplitudes at one angle where it is asked for.
///
/// Neighbours in the list share vector lanes and run as long as the largest of them: give radii in order. The
/// coefficients follow from psi_n(mx) and psi_n(x) by downward recurrence without division, normalised by the
/// Wronskian psi_(n-1) chi_n - psi_n chi_(n-1) = 1; results agree with SolveMie within 1e-12,
/// Qback, a small sum of large terms, within 4e-11 of its value at x = 10000.
///
/// @param spheres  within the limits of CheckMieLimits, which is to be asked first; a sphere beyond gets NaN.
/// @param monitor  asked after at most MaxLaneTermsPerLook terms, with the number of spheres done.
/// @param set      for tests and benchmarks: an instruction set this machine runs.
/// @return the number of spheres done, counted from the first; after a Stop the others keep their values.
std::size_t SolveEfficiencies(const SphereList& spheres, const EfficiencyLists& results,
                              const EfficiencyOptions& options, RunMonitor& monitor,
                              InstructionSet set = BestInstructionSet());

}  // namespace lumivex
