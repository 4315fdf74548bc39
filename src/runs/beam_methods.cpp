#include "runs/beam_methods.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <utility>

#include "runs/watched.h"
#include "solvers/rays/rainbow.h"
#include "solvers/series/debye_coefficients.h"
#include "solvers/series/debye_series.h"
#include "solvers/series/mie_coefficients.h"

namespace lumivex {

namespace {

/// Of the field of a disc, which falls with 1/q only.
constexpr int leastOrderOfDisc = 60;

double Seconds(std::chrono::steady_clock::time_point since) {
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - since).count();
}

int NearestWhole(double value) {
  return static_cast<int>(std::clamp(std::nearbyint(value), 0.0, double{MaxSeriesTerms}));
}

/// Those of the sphere, or of its selected terms; none after a Stop.
PartialWaves WavesOf(const MethodOptions& options, const SphereAsked& asked, int Lmax, RunMonitor& monitor) {
  if (options.method != Method::Debye || IsOpaque(options, asked)) return ChenAnBn(asked.x, asked.mRe, asked.mIm, Lmax);
  const DebyeSurfaces surfaces(asked.x, asked.mRe, asked.mIm, Lmax, options.byRatio, monitor);
  if (surfaces.Terms() < Lmax) return PartialWaves(0);
  int first = 1, last = Lmax;
  if (const auto& range = options.partialWaves) {
    first = NearestWhole(range->first * asked.x);
    last = NearestWhole(range->last * asked.x);
  }
  return SumDebyeTerms(surfaces, options.rays, first, last, monitor);
}

SphereSolution SolveInBeam(const MethodOptions& options, const SphereAsked& asked, RunMonitor& monitor) {
  Watched watched(monitor);
  const BeamScattering beam = ScatterBeam(options, asked, watched);
  SphereSolution solution = SolutionOf(beam, asked);
  if (beam.series) {
    const auto start = std::chrono::steady_clock::now();
    solution.rows = SumBeamRows(*beam.series, options, asked, WindowOf(asked), solution, watched);
    solution.beam->angles = Seconds(start);
  }
  solution.finished = watched.goesOn;
  return solution;
}

}  // namespace

std::vector<FocusedBeam> BeamsOf(const Illumination& light, double k) {
  FocusedBeam beam;
  beam.profile =
      light.kind == Illumination::Kind::TopHat ? FocusedBeam::Profile::TopHat : FocusedBeam::Profile::Gaussian;
  beam.k = k;
  beam.x0 = light.x0;
  beam.y0 = light.y0;
  beam.z0 = light.z0;
  beam.w0 = light.w0;
  std::vector<FocusedBeam> beams{beam};
  const auto add = [&](double x0, double y0) {
    // Adding 0 takes the sign off a zero, so that beams on the axis are the same.
    beam.x0 = x0 + 0.0;
    beam.y0 = y0 + 0.0;
    if (std::ranges::find(beams, beam) == beams.end()) beams.push_back(beam);
  };
  if (light.pair) add(-light.x0, -light.y0);
  if (light.central) add(0, 0);
  return beams;
}

BeamNumbers NumbersOfBeam(const Illumination& light, double x, double radius) {
  const FocusedBeam beam = BeamsOf(light, x / radius).front();
  BeamNumbers numbers;
  numbers.s = beam.Confinement();
  numbers.length = beam.w0 / numbers.s;
  numbers.Q = BeamSpread(beam);
  numbers.limits.Lmax = BeamLmax(x);
  numbers.limits.Mmax = BeamMmax(beam, numbers.limits.Lmax);
  if (light.kind == Illumination::Kind::TopHat)
    numbers.limits.Mmax = std::min(std::max(numbers.limits.Mmax, leastOrderOfDisc), numbers.limits.Lmax);
  if (light.limits && light.limits->Lmax > 0) numbers.limits.Lmax = light.limits->Lmax;
  if (light.limits && light.limits->Mmax > 0) numbers.limits.Mmax = light.limits->Mmax;
  numbers.limits.Mmax = std::min(numbers.limits.Mmax, numbers.limits.Lmax);
  return numbers;
}

PartialWaves ChenAnBn(double x, double mRe, double mIm, int Lmax) {
  MieTruncation truncation = ComputeMieTruncation(x, mRe, mIm, false, false);
  truncation.start += std::max(Lmax - truncation.NSTOP, 0);
  truncation.NMX = std::max(truncation.NMX, Lmax);
  truncation.NSTOP = Lmax;
  return MieCoefficients(x, mRe, mIm, truncation);
}

bool BeamShapeCoeff1(const std::vector<FocusedBeam>& beams, const BeamSumRule& rule, BeamShape& shape,
                     RunMonitor& monitor) {
  return std::ranges::all_of(beams, [&](const FocusedBeam& beam) { return shape.Add(beam, rule, monitor); });
}

BeamScattering ScatterBeam(const MethodOptions& options, const SphereAsked& asked, RunMonitor& monitor) {
  using Clock = std::chrono::steady_clock;
  BeamScattering beam;
  if (beam.refusal = BeyondBeam(options, asked); !beam.refusal.text.empty()) return beam;
  beam.numbers = NumbersOfBeam(options.beam, asked.x, asked.radius);
  const BeamLimits limits = beam.numbers.limits;
  auto start = Clock::now();
  BeamShape shape(limits);
  if (!BeamShapeCoeff1(BeamsOf(options.beam, asked.x / asked.radius), options.beam.rule, shape, monitor)) return beam;
  beam.numbers.Jmax = shape.HighestJ();
  beam.numbers.functions = shape.SecondsOfFunctions();
  beam.numbers.shape = std::max(Seconds(start) - beam.numbers.functions, 0.0);
  start = Clock::now();
  Watched watched(monitor);
  const PartialWaves waves = WavesOf(options, asked, limits.Lmax, watched);
  if (!watched.goesOn) return beam;
  beam.series.emplace(waves, shape, options.beam.phi, options.beam.oneBeam);
  beam.numbers.waves = Seconds(start);
  return beam;
}

SphereSolution SolutionOf(const BeamScattering& beam, const SphereAsked& asked) {
  SphereSolution solution;
  solution.refusal = beam.refusal;
  if (solution.Refused()) return solution;
  solution = EmptySolution(asked);
  solution.finished = beam.series.has_value();
  solution.beam = beam.numbers;
  solution.NSTOP = beam.numbers.limits.Lmax;
  return solution;
}

RowsDone SumBeamRows(const BeamSeries& series, const MethodOptions& options, const SphereAsked& asked, RowWindow rows,
                     SphereSolution& solution, RunMonitor& monitor) {
  if (rows.Empty()) return {};
  std::vector<double> angles;
  for (int row = rows.low; row <= rows.high; ++row) angles.push_back(asked.grid.Angle(row));
  AmplitudeTable S1(static_cast<int>(angles.size())), S2(static_cast<int>(angles.size()));
  const int done = static_cast<int>(series.Sum(angles, S1, S2, monitor));
  const double scale = options.divideBySize ? 1 / asked.x : 1;
  for (int i = 1; i <= done; ++i) {
    solution.S1.Set(rows.low + i - 1, scale * S1.Re(i), scale * S1.Im(i));
    solution.S2.Set(rows.low + i - 1, scale * S2.Re(i), scale * S2.Im(i));
  }
  return done > 0 ? RowsUpTo(asked.grid, rows, rows.low + done - 1) : RowsDone{};
}

SphereSolution MIE_Gaussian(const MethodOptions& options, const SphereAsked& asked, RunMonitor& monitor) {
  MethodOptions whole = options;
  whole.method = Method::Mie;
  return SolveInBeam(whole, asked, monitor);
}

SphereSolution DebyeGaussian(const MethodOptions& options, const SphereAsked& asked, RunMonitor& monitor) {
  SphereSolution solution = SolveInBeam(options, asked, monitor);
  if (solution.Refused() || options.difference == Difference::None) return solution;
  if (solution.finished)
    TakeDifference(options, asked, solution, monitor);
  else
    solution.rows = {};  // of a difference nothing is there yet
  return solution;
}

Refusal BeyondBeam(const MethodOptions& options, const SphereAsked& asked) {
  const bool debye = options.method == Method::Debye;
  if (debye && std::ranges::none_of(options.rays, [](int p) { return p != 0; })) return NoRays();
  if (Refusal beyond = BeyondLimits(options, asked.x, asked.mRe, asked.mIm); !beyond.text.empty()) return beyond;
  const BeamLimits limits = NumbersOfBeam(options.beam, asked.x, asked.radius).limits;
  if (static_cast<double>(limits.Lmax) * (limits.Mmax + 1) <= mostBeamTerms) return {};
  return {"Error in MIE_Gaussian sub-routine",
          "The sum over L = 1 to " + std::to_string(limits.Lmax) + " and M = 0 to " + std::to_string(limits.Mmax) +
              " is too long: reduce the radius, or bring the beam nearer to the axis"};
}

Refusal BeyondMieInBeam() {
  return {"Error in MIE_Gaussian sub-routine", "Reduce radius or increase wavelength"};
}

RayBeam BeamOfRays(const Illumination& light, double radius) {
  constexpr double waistOfPair = 2;
  if (light.Plane() || light.central) return {};
  const auto profile = light.kind == Illumination::Kind::TopHat ? RayBeam::Profile::TopHat : RayBeam::Profile::Gaussian;
  if (light.pair) return {profile, 0, waistOfPair};
  return {profile, -light.y0 / radius, light.w0 / radius};
}

}  // namespace lumivex
