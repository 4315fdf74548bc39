/// The methods in closed form.

#include <algorithm>
#include <cmath>
#include <numbers>

#include "runs/sphere_solver.h"
#include "solvers/functions/bessel_functions.h"
#include "solvers/patterns/simple_scattering.h"

namespace lumivex {

namespace {

bool CoversAllAngles(const SphereAsked& asked) {
  const RowWindow window = WindowOf(asked);
  return asked.grid.NANG > 1 && window.low == 1 && window.high == asked.grid.RowCount();
}

double ForwardEfficiency(double x, double amplitude) {
  return 4 / (x * x) * amplitude;
}

bool IsWhole(const RowsDone& rows, RowWindow window) {
  return rows.Contains(window.low) && rows.Contains(window.high);
}

}  // namespace

SphereSolution Diffraction(const MethodOptions& options, const SphereAsked& asked, RunMonitor& monitor) {
  SphereSolution solution = EmptySolution(asked);
  const RowWindow window = WindowOf(asked);
  solution.rows = SumDiffraction(asked.x, options.diffraction, asked.grid, window, solution.S1, solution.S2, monitor);
  solution.finished = IsWhole(solution.rows, window);
  if (CoversAllAngles(asked) && solution.finished) CrossSection(asked.grid, asked.x, solution);
  solution.efficiencies.Qext = solution.efficiencies.Qsca = ForwardEfficiency(asked.x, ForwardDiffraction(asked.x));
  return solution;
}

SphereSolution Rayleigh(const MethodOptions& options, const SphereAsked& asked, RunMonitor&) {
  SphereSolution solution = EmptySolution(asked);
  const double amplitude = FillRayleigh(asked.x, asked.mRe, asked.grid, solution.S1, solution.S2);
  solution.rows = {{1, asked.grid.NANG}, {asked.grid.NANG + 1, asked.grid.RowCount()}};
  Efficiencies& q = solution.efficiencies;
  q.Qsca = RayleighEfficiency(asked.x, asked.mRe);
  if (CoversAllAngles(asked)) CrossSection(asked.grid, asked.x, solution);
  q.Qext = q.Qsca;
  if (options.forwardEfficiency) q.Qext = q.Qsca = std::fabs(ForwardEfficiency(asked.x, amplitude));
  q.Qback = amplitude * amplitude / (std::numbers::pi * asked.x * asked.x);
  return solution;
}

SphereSolution Aperture(const MethodOptions& options, const SphereAsked& asked, RunMonitor& monitor) {
  SphereSolution solution = EmptySolution(asked);
  const RowWindow window = WindowOf(asked);
  ApertureStrips strips = MakeAperture(options.counted);
  solution.rows = SumAperture(asked.x, strips, asked.grid, window, solution.S1, solution.S2, monitor);
  // Behind the aperture there is no light: rows beyond 90 degrees are 0, and done.
  const RowWindow lit{window.low, std::min(window.high, asked.grid.NANG)};
  solution.finished = lit.Empty() || IsWhole(solution.rows, lit);
  if (solution.finished) solution.rows.mirrored = {asked.grid.NANG + 1, asked.grid.RowCount()};
  solution.apertureCentre = std::move(strips.ApertureCentre);
  solution.apertureWeight = std::move(strips.ApertureWeight);
  return solution;
}

SphereSolution vdh(const MethodOptions& options, const SphereAsked& asked, RunMonitor& monitor) {
  SphereSolution solution = EmptySolution(asked);
  const RowWindow window = WindowOf(asked);
  solution.rows = SumGloryRing(asked.x, static_cast<double>(options.Qmin), static_cast<double>(options.Qmax),
                               asked.grid, window, solution.S1, solution.S2, monitor);
  const RowWindow behind{std::max(window.low, asked.grid.NANG + 1), window.high};
  solution.finished = behind.Empty() || IsWhole(solution.rows, behind);
  if (solution.finished) solution.rows.forward = {1, asked.grid.NANG};
  RealBessel bessel;
  BesselJY(asked.x * std::sin(asked.grid.Angle(window.high)), 4, bessel);
  solution.besselOrders = bessel.RealBesselJ;
  solution.besselOrders.resize(5, 0.0);
  return solution;
}

}  // namespace lumivex
