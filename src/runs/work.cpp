#include "runs/work.h"

#include <algorithm>
#include <cmath>

#include "runs/beam_methods.h"
#include "runs/families.h"
#include "runs/pulse_band.h"
#include "runs/run.h"
#include "runs/volume_sums.h"
#include "solvers/angles/angle_cosines.h"
#include "solvers/angles/angle_window.h"
#include "solvers/series/mie_coefficients.h"

namespace lumivex {

namespace {

// What a term costs beside its angles, in pairs of angles (measured at x = 1000 and 10000).
constexpr double mieTerm = 80;
constexpr double mieTermInLanes = 15;  // points of an axis, side by side in vector lanes
constexpr double debyeTerm = 250;
constexpr double debyeTermOfEachRay = 10;
constexpr double coatedTerm = 400;
constexpr double wayTerm = 10;     // each of the ways that are selected
constexpr double layerTerm = 40;   // each layer of a profile
constexpr double ratioTerm = 100;  // times x: continued fractions of an absorbing sphere

// Rays: each of a drop, two bundles of dew, and the observer's one at one row.
constexpr double spheroidRay = 900, burgeroidRay = 4000;
constexpr double dewBundles = 6e7, dewRow = 1e7;

// Of a double series: a term (L, M) at one row, its shape coefficients, and how many j a sum for them goes beyond M.
constexpr double beamTerm = 12;
constexpr double shapeTerm = 80;
constexpr double jPerOrder = 20;

/// Most settings, and most sizes of a cloud, that are looked at one by one.
constexpr int mostLooks = 100;

/// Sums f(1) to f(count); of more than `most` some, evenly spread, stand for the others.
template <class Function>
double SumOver(int count, const Function& f, int most = mostLooks) {
  const int looks = std::min(count, most);
  double sum = 0;
  for (int i = 0; i < looks; ++i) sum += f(1 + static_cast<int>((i + 0.5) * count / looks));
  return looks > 0 ? sum * count / looks : 0;
}

double PairsOf(const AngleGrid& grid, RowWindow window) {
  const RowWindow folded = AngleCosines::Folded(grid, window);
  return folded.Empty() ? 0 : folded.high - folded.low + 1;
}

/// Rows of a beam have no mirror.
double PairsOf(const AngleRows& rows) {
  return rows.origin ? std::max(rows.window.high - rows.window.low + 1, 0) : PairsOf(rows.Grid(), rows.window);
}

/// One sphere in a beam over so many rows.
double BeamWork(const MethodOptions& options, double x, double radius, double rows) {
  const BeamLimits limits = NumbersOfBeam(options.beam, x, radius).limits;
  const double orders = limits.Mmax + 1, shapes = static_cast<double>(BeamsOf(options.beam, x / radius).size());
  const double sums =
      options.beam.rule.closed ? 0 : 2 * std::min(limits.Mmax * jPerOrder, double(options.beam.rule.Jmax));
  const double waves = options.method == Method::Debye ? debyeTerm : mieTerm;
  return limits.Lmax * (orders * (beamTerm * rows + shapes * (shapeTerm + sums)) + waves);
}

double RaysOf(const MethodOptions& options) {
  return static_cast<double>(std::ranges::count_if(options.rays, [](int p) { return p != 0; }));
}

/// One sphere over so many pairs of angles.
double SphereWork(const MethodOptions& options, const Setting& setting, double x, double pairs) {
  const bool series = options.method == Method::Mie || options.method == Method::Debye;
  if (series && !options.beam.Plane()) return BeamWork(options, x, setting.radius * x / setting.x, pairs);
  const double terms = NStopEstimate(x);
  const double mie = terms * (pairs + mieTerm);
  if (options.method == Method::Mie) return mie;
  if (options.method == Method::CoatedSphere) {
    const double ways = options.paths ? static_cast<double>(options.paths->size()) * wayTerm : 0;
    return terms * (pairs + coatedTerm + ways);
  }
  if (options.method == Method::Burgeroid)
    return options.drop.rays * (options.drop.form == DropForm::Burgeroid ? burgeroidRay : spheroidRay);
  if (options.method == Method::Heiligenschein)
    return dewBundles + dewRow * (options.dew.slope == 0 ? pairs / 2 : pairs);
  if (options.method == Method::InhomogeneousSphere) return terms * (pairs + layerTerm * options.layers.layers);
  if (options.method != Method::Debye) return 0;
  const double fractions = options.byRatio && setting.mIm != 0 ? ratioTerm * x : 0;
  const double debye = terms * (pairs + debyeTerm + debyeTermOfEachRay * RaysOf(options) + fractions);
  return options.difference == Difference::MieLessDebye ? debye + mie : debye;
}

/// A sphere, or the cloud about it.
double SettingWork(const RunRequest& request, const MethodOptions& options, const Setting& setting, double pairs) {
  if (!request.Cloud()) return SphereWork(options, setting, setting.x, pairs);
  const CloudSamples samples = SamplesAt(request, setting.radius);
  return SumOver(samples.Count(), [&](int i) {
    const double radius = RadiusOfSample(request.particle, samples.radius[static_cast<std::size_t>(i)]);
    const double x = SizeParameterOf(radius, setting.indices.MediumInUse(), setting.lambda);
    return radius > 0 ? SphereWork(options, setting, x, pairs) : 0;
  });
}

double WorkAt(const RunRequest& request, double lambda, double pairs) {
  const SettingResult at = SettingAt(request, lambda);
  return at.Good() ? SettingWork(request, request.method, at.setting, pairs) : 0;
}

double WorkOf(const RunRequest& request, const AngleRun& run) {
  return WorkAt(request, request.light.lambda, PairsOf(run.rows));
}

double WorkOf(const RunRequest& request, const SpectrumRun& run) {
  const double pairs = PairsOf(run.rows);
  const SpectrumOfLight& light = *request.light.spectrum;
  return SumOver(light.Count(),
                 [&](int i) { return WorkAt(request, double{light.wavelength[static_cast<std::size_t>(i)]}, pairs); });
}

/// The wavelengths of a pulse; 0 where it has no band.
double WorkOfPulse(const RunRequest& request, const PulsedLight& light, double pairs) {
  const Pulse pulse = BuildPulse(light.pulse);
  return SumOver(pulse.Bands(), [&](int i) { return WorkAt(request, pulse.Wavelength(pulse.low + i - 1), pairs); });
}

double WorkOf(const RunRequest& request, const AxisRun& run) {
  if (run.pulse) return WorkOfPulse(request, *run.pulse, 1);
  const bool power = request.graph.quantity == Quantity::Power;
  const bool lanes = request.method.method == Method::Mie && request.method.beam.Plane() && !power && !request.Cloud();
  // Each bow is found by some 1500 rays.
  constexpr double raysPerBow = 1500;
  if (request.graph.quantity == Quantity::BowAngle) {
    const double ray = request.method.drop.form == DropForm::Burgeroid ? burgeroidRay : spheroidRay;
    return run.points * RaysOf(request.method) * raysPerBow * ray;
  }
  const PowerRows rows(run.range);
  // In lanes the whole cost of a term, its one angle with it, takes the place of that of a sphere alone.
  const double pairs = power ? PairsOf(rows.grid, rows.window) : lanes ? mieTermInLanes - mieTerm : 1;
  const SettingResult base = SettingAt(request, request.light.lambda);
  const double ratio = StepRatio(run);
  return SumOver(run.points, [&](int point) {
    const double position = AxisPosition(run, ratio, point);
    const SettingResult at = SettingAtPoint(request, request.graph.axis, position, base.setting);
    return at.Good() ? SettingWork(request, request.method, at.setting, pairs) : 0;
  });
}

double WorkOf(const RunRequest& request, const VolumeRun& run) {
  const double sums = SumsWork(request.graph.axis, run);
  const SettingResult at = SettingAt(request, request.light.lambda);
  if (!at.Good()) return sums;
  if (request.graph.axis != AxisVariable::Radius) return sums + SettingWork(request, request.method, at.setting, 1);
  const double ratio = StepRatio(run.axis);
  return sums + SumOver(run.axis.points, [&](int point) {
           const double radius = AxisPosition(run.axis, ratio, point);
           const Setting setting = SettingAtPoint(request, AxisVariable::Radius, radius, at.setting).setting;
           return SettingWork(request, request.method, setting, 1);
         });
}

double WorkOf(const RunRequest& request, const ConvergenceRun&) {
  // The sums go on beyond their stop.
  return 1.2 * WorkAt(request, request.light.lambda, 1);
}

double WorkOf(const RunRequest& request, const DebyeAnalysisRun& run) {
  const SettingResult at = SettingAt(request, request.light.lambda);
  if (!at.Good()) return 0;
  // Each term is a series of its own.
  MethodOptions term = request.method;
  term.method = Method::Debye;
  term.difference = Difference::None;
  term.rays = {1};
  MethodOptions mie = term;
  mie.method = Method::Mie;
  return (run.limit + 1) * SphereWork(term, at.setting, at.setting.x, 1) + SphereWork(mie, at.setting, at.setting.x, 1);
}

double WorkOf(const RunRequest& request, const TwoAngleRun& run) {
  const SettingResult at = SettingAt(request, request.light.lambda);
  if (!at.Good()) return 0;
  const AngleGrid grid(twoAngleRowsTo90);
  const auto rowsOf = [&](double low, double high) {
    constexpr double degree = AngleGridQuarterTurn / 90;
    return RowsOfRange(grid, {low * degree, high * degree});
  };
  const RowWindow a = rowsOf(run.angle1Min, run.angle1Max), b = rowsOf(run.angle2Min, run.angle2Max);
  const double pairs = PairsOf(grid, {std::min(a.low, b.low), std::max(a.high, b.high)});
  MethodOptions mie = request.method;
  mie.method = Method::Mie;
  const double column = SumOver(static_cast<int>(run.radius.size()), [&](int row) {
    const double radius = run.radius[static_cast<std::size_t>(row - 1)];
    const double x = SizeParameterOf(radius, at.setting.indices.MediumInUse(), at.setting.lambda);
    return SphereWork(mie, at.setting, x, pairs);
  });
  return column * static_cast<double>(run.index.size());
}

double WorkOf(const RunRequest& request, const AngleMapRun& run) {
  // What the transforms of both amplitudes cost for a column of a pair of rows.
  constexpr double transforms = 600;
  if (run.pulse)
    return WorkOfPulse(request, *run.pulse, PairsOf(run.rows)) + transforms * run.columns.Count() * PairsOf(run.rows);
  double sum = 0;
  for (const double column : WorkOfColumns(request, run)) sum += column;
  return sum;
}

double WorkOf(const RunRequest& request, const EfficiencyMapRun& run) {
  const bool lanes = request.method.method == Method::Mie && !request.Cloud();
  const double pairs = lanes ? mieTermInLanes - mieTerm : 1;
  return SumOver(run.columns.Count(), [&](int column) {
    return SumOver(run.rows.Count(), [&](int row) {
      const SettingResult at = SettingOfCell(request, run, column - 1, row - 1);
      return at.Good() ? SettingWork(request, request.method, at.setting, pairs) : 0;
    });
  });
}

}  // namespace

std::vector<double> WorkOfColumns(const RunRequest& request, const AngleMapRun& run) {
  constexpr int wavelengthLooks = 8;
  const double pairs = PairsOf(run.rows);
  std::vector<double> work;
  for (int column = 0; column < run.columns.Count(); ++column) {
    const auto workAt = [&](double lambda) {
      const SettingResult at = SettingOfColumn(request, run, column, lambda);
      return at.Good() ? SettingWork(request, request.method, at.setting, pairs) : 0;
    };
    const auto& light = request.light.spectrum;
    const auto ofSpectrum = [&](int i) { return workAt(double{light->wavelength[static_cast<std::size_t>(i)]}); };
    work.push_back(light ? SumOver(light->Count(), ofSpectrum, wavelengthLooks) : workAt(request.light.lambda));
  }
  return work;
}

double PairTermsOf(const RunRequest& request) {
  return std::visit([&](const auto& run) { return WorkOf(request, run); }, request.run);
}

int SizesOf(const RunRequest& request) {
  return request.Cloud() ? std::max(SamplesOf(request.sizes, request.particle.radius).Count(), 1) : 1;
}

}  // namespace lumivex
