/// Spheres in layers: with a coating, or with an index that goes with the radius.

#include <algorithm>
#include <array>
#include <cmath>
#include <span>
#include <utility>

#include "runs/beam_methods.h"
#include "runs/further_methods.h"
#include "runs/sphere_solver.h"
#include "runs/watched.h"
#include "solvers/functions/complex_algebra.h"
#include "solvers/layers/layered_sphere.h"
#include "solvers/series/mie_coefficients.h"

namespace lumivex {

namespace {

/// Terms of a running sum, of those of the amplitudes.
constexpr double convergenceStretch = 1.2;

Refusal BeyondSeries() {
  return {"Error", "Reduce radius or increase wavelength"};
}

/// Layers of the medium's own index scatter nothing; what rounding leaves of them has no direction either.
bool AreNothing(std::span<const SphereLayer> layers) {
  return std::ranges::all_of(layers, [](const SphereLayer& layer) { return layer.m == ComplexD(1, 0); });
}

PartialWaves WholeCoated(const SphereAsked& asked, int terms, RunMonitor& monitor) {
  const std::array layers = {SphereLayer{asked.x * asked.coreRatio, asked.core},
                             SphereLayer{asked.x, {asked.mRe, asked.mIm}}};
  return AreNothing(layers) ? PartialWaves(terms) : LayeredSphereCoefficients(layers, terms, monitor);
}

PartialWaves CoatedTerms(const MethodOptions& options, const SphereAsked& asked, int terms, RunMonitor& monitor) {
  const CoatedSphere sphere{asked.x * asked.coreRatio, asked.x, asked.core, {asked.mRe, asked.mIm}};
  return SumCoatedPaths(CoatedSurfaces(sphere, terms, options.recursion), *options.paths, monitor);
}

/// Amplitudes of the coefficients that were found, at the rows or the angle asked for.
void SumRows(const SphereAsked& asked, SphereSolution& solution, RunMonitor& monitor) {
  const AngleGrid& grid = asked.grid;
  solution.S1.Resize(grid.RowCount());
  solution.S2.Resize(grid.RowCount());
  if (solution.waves.Terms() == 0) return;
  if (grid.NANG == 1) {
    const std::span angle(&grid.first, 1);
    if (SumAngularSeries(solution.waves, angle, solution.S1, solution.S2, monitor) == 1) solution.rows.forward = {1, 1};
  } else if (asked.cosines && asked.cosines->Covers(grid, asked.window)) {
    solution.rows =
        SumAngularSeries(solution.waves, grid, *asked.cosines, asked.window, solution.S1, solution.S2, monitor);
  } else {
    solution.rows = SumAngularSeries(solution.waves, grid, asked.window, solution.S1, solution.S2, monitor);
  }
}

/// The modulus of the sum of (-1)^n (2n+1)(a_n - b_n), which is twice S1 at 180 degrees, squared over y^2.
double BackwardOf(const PartialWaves& waves, double y) {
  const ComplexD back = BackwardAmplitude(waves);
  return 4 * (back.re * back.re + back.im * back.im) / (y * y);
}

double ExtinctionByModuli(const PartialWaves& waves, double y) {
  double sum = 0;
  for (std::size_t n = 1; n < waves.aRe.size(); ++n) {
    const double weight = 2.0 * static_cast<double>(n) + 1;
    sum += weight * (std::hypot(waves.aRe[n], waves.aIm[n]) + std::hypot(waves.bRe[n], waves.bIm[n]));
  }
  return 2 * sum / (y * y);
}

Refusal BeyondProfile(const ProfileLayers& layers, const SphereAsked& asked) {
  if (const auto bad = FirstBadRadius(layers.profile, layers.layers)) {
    constexpr double thousand = 1000;
    const double r = std::round(*bad * thousand) / thousand;
    std::string where = std::to_string(r);
    where.erase(where.find_last_not_of('0') + 1);
    return {"Error", "The profile has no refractive index above 0 at r = " + where};
  }
  double largest = 1;
  for (const SphereLayer& layer : LayersOf(layers.profile, layers.layers, 1, asked.medium))
    largest = std::max(largest, layer.m.re);
  return CheckMieLimits(asked.x, largest, 0) == MieRefusal::None ? Refusal{} : BeyondSeries();
}

}  // namespace

Refusal BeyondLimits(const MethodOptions& options, const SphereAsked& asked) {
  if (options.method == Method::InhomogeneousSphere) return BeyondProfile(options.layers, asked);
  if (options.method == Method::Burgeroid) return BeyondDrops(options, asked);
  const bool beam = !options.beam.Plane() && (options.method == Method::Mie || options.method == Method::Debye);
  if (beam) return BeyondBeam(options, asked);
  if (options.method != Method::CoatedSphere) return BeyondLimits(options, asked.x, asked.mRe, asked.mIm);
  const bool good = CheckMieLimits(asked.x, asked.mRe, asked.mIm) == MieRefusal::None &&
                    CheckMieLimits(asked.x * asked.coreRatio, asked.core.re, asked.core.im) == MieRefusal::None;
  return good ? Refusal{} : BeyondSeries();
}

SphereSolution CoatedSphereMie(const MethodOptions& options, const SphereAsked& asked, RunMonitor& monitor) {
  Watched watched(monitor);
  SphereSolution solution;
  solution.refusal = BeyondLimits(options, asked);
  if (solution.Refused()) return solution;
  solution.NSTOP = LayeredSphereTerms(asked.x);
  solution.waves = WholeCoated(asked, solution.NSTOP, watched);
  solution.efficiencies = EfficienciesOf(solution.waves, asked.x);
  solution.efficiencies.Qext = ExtinctionByModuli(solution.waves, asked.x);
  solution.efficiencies.Qback = BackwardOf(solution.waves, asked.x);
  SumRows(asked, solution, watched);
  if (options.divideBySize) {
    solution.S1.Scale(1 / asked.x);
    solution.S2.Scale(1 / asked.x);
  }
  solution.finished = watched.goesOn;
  return solution;
}

SphereSolution CoatedSphereDebye(const MethodOptions& options, const SphereAsked& asked, RunMonitor& monitor) {
  Watched watched(monitor);
  SphereSolution solution;
  solution.refusal = BeyondLimits(options, asked);
  if (solution.Refused()) return solution;
  solution.NSTOP = LayeredSphereTerms(asked.x);
  solution.waves = CoatedTerms(options, asked, solution.NSTOP, watched);
  if (!watched.goesOn) solution.waves = PartialWaves(0);  // the waves after a Stop are missing in every row
  solution.efficiencies = EfficienciesOf(solution.waves, asked.x);
  solution.efficiencies.Qback = BackwardOf(solution.waves, asked.x);
  SumRows(asked, solution, watched);
  if (options.divideBySize) {
    solution.S1.Scale(1 / asked.x);
    solution.S2.Scale(1 / asked.x);
  }
  solution.finished = watched.goesOn;
  return solution;
}

SphereSolution Coated(const MethodOptions& options, const SphereAsked& asked, RunMonitor& monitor) {
  return options.paths ? CoatedSphereDebye(options, asked, monitor) : CoatedSphereMie(options, asked, monitor);
}

PartialWaves CoatedWavesBeyond(const MethodOptions& options, const SphereAsked& asked, RunMonitor& monitor) {
  Watched watched(monitor);
  const int terms = static_cast<int>(std::nearbyint(convergenceStretch * LayeredSphereTerms(asked.x)));
  PartialWaves waves = options.paths ? CoatedTerms(options, asked, terms, watched) : WholeCoated(asked, terms, watched);
  return watched.goesOn ? std::move(waves) : PartialWaves(0);
}

SphereSolution Inhomogeneous(const MethodOptions& options, const SphereAsked& asked, RunMonitor& monitor) {
  Watched watched(monitor);
  SphereSolution solution;
  solution.refusal = BeyondLimits(options, asked);
  if (solution.Refused()) return solution;
  solution.NSTOP = LayeredSphereTerms(asked.x);
  const auto layers = LayersOf(options.layers.profile, options.layers.layers, asked.x, asked.medium);
  if (AreNothing(layers))
    solution.waves = PartialWaves(solution.NSTOP);
  else
    solution.waves = options.layers.byTangents ? LayeredSphereByTangents(layers, solution.NSTOP, watched)
                                               : LayeredSphereCoefficients(layers, solution.NSTOP, watched);
  solution.efficiencies = EfficienciesOf(solution.waves, asked.x);
  SumRows(asked, solution, watched);
  solution.finished = watched.goesOn;
  return solution;
}

}  // namespace lumivex
