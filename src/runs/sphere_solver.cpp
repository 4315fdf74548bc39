#include "runs/sphere_solver.h"

#include <algorithm>

#include "runs/beam_methods.h"
#include "solvers/angles/cross_section.h"

namespace lumivex {

namespace {

using Solver = SphereSolution (*)(const MethodOptions&, const SphereAsked&, RunMonitor&);

struct SolverRow {
  Method method;
  Solver solve;
  Solver inBeam = nullptr;  ///< where a beam asks for another one
};

// One row a method; the differences of the Debye series stand in the row of the series.
constexpr SolverRow solverRows[] = {
    {Method::Mie, BHMIE, MIE_Gaussian},
    {Method::Debye, DebyeSeries, DebyeGaussian},
    {Method::Rayleigh, Rayleigh},
    {Method::Diffraction, Diffraction},
    {Method::Airy, Airy},
    {Method::Descartes, GO},
    {Method::Young, GO},
    {Method::YoungMod, GO},
    {Method::Huygens, Huygens},
    {Method::Aperture, Aperture},
    {Method::SurfaceWave, SurfaceWaves},
    {Method::VanDeHulst, vdh},
    {Method::YoungAiry, GO},
    {Method::CoatedSphere, Coated},
    {Method::Burgeroid, NonSpherical},
    {Method::Heiligenschein, Dew},
    {Method::InhomogeneousSphere, Inhomogeneous},
};

}  // namespace

SphereSolution SolveSphere(const MethodOptions& options, const SphereAsked& asked, RunMonitor& monitor) {
  for (const auto& row : solverRows) {
    if (row.method != options.method) continue;
    const bool beam = row.inBeam != nullptr && !options.beam.Plane();
    return (beam ? row.inBeam : row.solve)(options, asked, monitor);
  }
  SphereSolution none;
  none.refusal = {"Error", "Unknown calculation method"};
  return none;
}

void CrossSection(const AngleGrid& grid, double x, SphereSolution& solution) {
  const AngularIntegral integral = IntegrateAngles(solution.S1, solution.S2, grid);
  solution.efficiencies.Qsca = 2 * integral.sum / (x * x);
  solution.efficiencies.g = integral.sum > 0 ? integral.moment / integral.sum : 0;
}

RowWindow WindowOf(const SphereAsked& asked) {
  return {std::max(asked.window.low, 1), std::min(asked.window.high, asked.grid.RowCount())};
}

SphereSolution EmptySolution(const SphereAsked& asked) {
  SphereSolution solution;
  solution.S1.Resize(asked.grid.RowCount());
  solution.S2.Resize(asked.grid.RowCount());
  return solution;
}

Refusal BeyondMie() {
  return {"Error in BHMIE sub-routine", "Reduce radius or increase wavelength"};
}

Refusal NoRays() {
  return {"Error", "No rays selected"};
}

}  // namespace lumivex
