#include "session/driver/duration.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "record/number_text.h"
#include "runs/curves.h"
#include "runs/work.h"
#include "session/driver/calibration.h"
#include "session/inputs/methods/rays_check.h"

namespace lumivex {

namespace {

/// Below this many terms times angle pairs no machine in use needs the time that is asked about, so none is measured.
constexpr double pairTermsNeverSlow = 2e8;

/// One wavelength (um) that stands for those of the run.
double TypicalWavelength(const RunRequest& request) {
  constexpr double middleOfSpectrum = 0.515;
  return request.light.spectrum ? middleOfSpectrum : request.light.lambda;
}

double SecondsHere(Session& session, const RunRequest& request) {
  auto& s = session.state;
  const double pairTerms = PairTermsOf(request);
  if (s.CalibrationState == 0 && !(pairTerms > pairTermsNeverSlow)) return 0;
  if (s.SecondsPerPairTerm == 0) s.SecondsPerPairTerm = MeasurePairTerm(session.platform);
  return pairTerms * s.SecondsPerPairTerm;
}

/// The fits of a series against angle.
double FittedSeconds(const RunRequest& request, const AngleRows& rows) {
  const double r = request.particle.radius;
  const double S = (rows.xmax - rows.xmin) / rows.step;
  const double spheres = static_cast<double>(request.Wavelengths()) * SizesOf(request);
  const double shorter = 0.65 / TypicalWavelength(request);
  if (request.method.method == Method::Debye) {
    const auto terms = std::ranges::count_if(request.method.rays, [](int p) { return p != 0; });
    const double t = 7.76814 + 1.81405 * r + 1.369248e-5 * r * r;
    return t * S / 18000 * shorter * spheres * static_cast<double>(std::max<std::ptrdiff_t>(terms, 1));
  }
  const double t = 5.3394821 + 0.9759082 * r - 8.895773e-5 * r * r + 6.0300197e-8 * r * r * r;
  // The parabola was fitted to few points; beyond its top it is held.
  const double fitted = std::min(S, 0.0061566 / (2 * 9.773e-6));
  const double q =
      (0.2077 + 0.0061566 * fitted - 9.773e-6 * fitted * fitted) * t * 0.01 / rows.step * shorter * spheres;
  return q * 0.1 * (4.2380146 + 1.2130768 * std::log(S));
}

/// The fits of a Lee diagram: a term a column, and a factor for the range of angles.
double FittedSeconds(const RunRequest& request, const AngleMapRun& map) {
  const double range = map.rows.xmax - map.rows.xmin, S = range / map.rows.step;
  const double spheres = static_cast<double>(request.Wavelengths()) * SizesOf(request);
  const bool debye = request.method.method == Method::Debye;
  double columns = 0;
  for (int column = 0; column < map.columns.Count(); ++column) {
    const double r = map.columns.quantity == Swept::Radius ? map.columns.At(column) : request.particle.radius;
    columns += debye ? (7.76814 + 1.81405 * r + 1.369248e-5 * r * r) * S / 18000
                     : (5.3394821 + 0.9759082 * r - 8.895773e-5 * r * r + 7.10891e-8 * r * r * r) * S / 6000;
  }
  const double terms =
      debye ? static_cast<double>(std::ranges::count_if(request.method.rays, [](int p) { return p; })) : 1;
  const double decades = std::log10(range / 10);
  return columns * (1 + 0.42613778 * std::pow(decades, 4)) * 0.65 / TypicalWavelength(request) * spheres * terms;
}

}  // namespace

double ReferenceSeconds(const RunRequest& request) {
  // The fits are those of a plane wave.
  const bool plane = request.method.beam.Plane();
  if (const auto* map = std::get_if<AngleMapRun>(&request.run); map != nullptr && !map->pulse)
    return FittedSeconds(request, *map);
  if (const AngleRows* rows = RowsOf(request.run);
      rows != nullptr && plane && !request.graph.OfPulse() && !TraitsOf(request.method.method).takesLong)
    return FittedSeconds(request, *rows);
  // What the fit gives for a term of a pair of angles of the first plot's sphere.
  constexpr double secondsPerPairTerm = 2e-5;
  return secondsPerPairTerm * PairTermsOf(request);
}

void Duration(Session& session, const RunRequest& request) {
  auto& s = session.state;
  constexpr int calibratedFast = 3;
  if (request.method.method == Method::Debye) RaysCheck(session);
  // Nobody sits before a batch.
  if (s.BatchActive != 0) return;
  if (s.CalibrationState == calibratedFast || SecondsHere(session, request) <= secondsWithoutAsking) return;
  const double seconds = std::clamp(ReferenceSeconds(request), 0.0, 1e9);
  const double hours = Int(seconds / 3600);
  const std::string minutes = Shortest(Int((seconds - 3600 * hours) / 60)) + " minutes";
  std::string text = "Expected duration is ";
  if (hours == 1) text += "1 hour ";
  if (hours > 1) text += Shortest(hours) + " hours ";
  text += minutes + "\nwith 600 MHz Pentium\n\nDo you want to continue ?";
  if (!session.platform.Question("Long calculation !", text)) s.CommandAborted = 1;
}

}  // namespace lumivex
