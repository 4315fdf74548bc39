#include "pages/trust/trust_line.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "record/number_text.h"
#include "runs/curves.h"
#include "runs/settings.h"

namespace lumivex {

namespace {

using Standing = TrustMark::Standing;

constexpr int digits = 4;

/// Least and greatest of something.
struct Sizes {
  double least = 0, most = 0;

  void Take(double value) {
    least = std::min(least, value);
    most = std::max(most, value);
  }
};

/// Radii and wavelengths (um) that a run goes through beside those of its axis, about those of its last sphere.
struct Span {
  Sizes radius, lambda;
  std::optional<Sizes> x;  ///< where these are what is swept
};

void TakeSweep(const Sweep& sweep, Span& span) {
  const Sizes ends{std::min(sweep.low, sweep.high), std::max(sweep.low, sweep.high)};
  constexpr double nanometres = 1000;
  if (sweep.quantity == Swept::Radius) span.radius = ends;
  if (sweep.quantity == Swept::Wavelength) span.lambda = {ends.least / nanometres, ends.most / nanometres};
  if (sweep.quantity == Swept::SizeParameter) span.x = ends;
}

Span SpanOf(const Results& results) {
  const RunRequest& asked = results.asked;
  const LastSphere& last = results.last;
  Span span{{last.radius, last.radius}, {last.lambda, last.lambda}, {}};
  if (const auto* map = std::get_if<AngleMapRun>(&asked.run)) TakeSweep(map->columns, span);
  if (const auto* map = std::get_if<EfficiencyMapRun>(&asked.run)) {
    TakeSweep(map->columns, span);
    TakeSweep(map->rows, span);
  }
  if (asked.light.spectrum)
    for (std::size_t i = 1; i < asked.light.spectrum->wavelength.size(); ++i)
      span.lambda.Take(double{asked.light.spectrum->wavelength[i]});
  if (asked.Cloud())
    for (const double radius : {span.radius.least, span.radius.most}) {
      const CloudSamples samples = SamplesAt(asked, radius);
      for (std::size_t i = 1; i < samples.radius.size(); ++i) span.radius.Take(samples.radius[i]);
    }
  return span;
}

/// Size parameters of the smallest and the largest sphere, at the longest and the shortest wavelength.
Sizes SizesOf(const Results& results) {
  const LastSphere& last = results.last;
  Sizes sizes{last.sizeParameter, last.sizeParameter};
  if (const auto* axis = results.Find<AxisFound>(); axis != nullptr && axis->done > 0) {
    const auto end = std::min(static_cast<std::size_t>(axis->done) + 1, axis->size.size());
    for (std::size_t i = 1; i < end; ++i) sizes.Take(axis->size[i]);
  }
  const Span span = SpanOf(results);
  if (span.x) return *span.x;
  if (!(last.radius > 0 && last.lambda > 0 && span.lambda.least > 0)) return sizes;
  return {sizes.least * span.radius.least / last.radius * last.lambda / span.lambda.most,
          sizes.most * span.radius.most / last.radius * last.lambda / span.lambda.least};
}

/// A limit in one direction: good on one side of the first, outside beyond the second.
Standing Above(double value, double good, double edge) {
  return value >= good ? Standing::Good : value >= edge ? Standing::Doubtful : Standing::Outside;
}

Standing Worse(Standing a, Standing b) {
  return std::max(a, b);
}

TrustMark OfSize(const std::string& name, double x, double good, double edge, const std::string& about) {
  const Standing standing = Above(x, good, edge);
  const std::string limits = "It is good from x = " + Significant(good, digits) + " on and rough from " +
                             Significant(edge, digits) + "; the smallest sphere has x = " + Significant(x, digits) +
                             ".";
  const char* verdict = standing == Standing::Good       ? " holds"
                        : standing == Standing::Doubtful ? " is rough"
                                                         : " does not hold";
  return {standing, name + verdict, about + " " + limits};
}

TrustMark Exact(const std::string& name) {
  return {Standing::Good, "exact", name + " is the exact answer of electromagnetic theory."};
}

TrustMark OfDiffraction(const Results& results, double x) {
  constexpr double good = 20, edge = 40, goodSize = 20, edgeSize = 5;
  const AngleRows* rows = RowsOf(results.asked.run);
  const double widest = rows != nullptr ? rows->xmax : 0;
  const Standing angle = widest <= good ? Standing::Good : widest <= edge ? Standing::Doubtful : Standing::Outside;
  const Standing standing = Worse(angle, Above(x, goodSize, edgeSize));
  return {
      standing, standing == Standing::Good ? "diffraction holds" : "diffraction alone",
      "Light that passes the disc is all there is within some 20 degrees of the incident light; further out the light "
      "that the sphere refracts and reflects is stronger. The size parameter should be above 20."};
}

TrustMark OfMethod(const Results& results, const Sizes& sizes) {
  const double x = sizes.least;
  const double m = std::hypot(results.last.relativeRe, results.last.relativeIm);
  switch (results.asked.method.method) {
    case Method::Mie:
      return Exact("Mie theory");
    case Method::CoatedSphere:
      return Exact("The series for layers");
    case Method::InhomogeneousSphere:
      return {Standing::Good, "exact for its layers",
              "The series is exact for as many layers as were asked for; more of "
              "them come nearer to the profile."};
    case Method::Debye:
    case Method::SurfaceWave:
      break;
    case Method::Rayleigh: {
      const double size = sizes.most * std::max(1.0, m);
      const Standing standing = size <= 0.1 ? Standing::Good : size <= 0.5 ? Standing::Doubtful : Standing::Outside;
      return {standing, standing == Standing::Good ? "Rayleigh holds" : "too large for Rayleigh",
              "Rayleigh's dipole is good within 1 % up to |m| x = 0.1; the largest sphere has " +
                  Significant(size, digits) + "."};
    }
    case Method::Diffraction:
      return OfDiffraction(results, x);
    case Method::Airy:
      return OfSize("Airy", x, 5000, 1000, "Airy's theory is that of the bow of large drops.");
    case Method::Young:
      return {Standing::Doubtful, "fringes misplaced",
              "Young's rays lack the quarter wave at a caustic; Young mod has it."};
    case Method::Descartes:
      return OfSize("ray optics", x, 1000, 100,
                    "Rays without interference tell where light goes, not its fine structure.");
    case Method::YoungMod:
    case Method::Huygens:
      return OfSize("ray optics", x, 1000, 100,
                    "Rays with their phases err by some 1/x, and fail at the rainbow itself.");
    case Method::YoungAiry:
      return OfSize("rays and Airy", x, 1000, 100, "Rays with Airy's field at the rainbows.");
    case Method::Burgeroid:
      return OfSize("ray optics", x, 3000, 300, "Rays through flattened drops know no interference.");
    case Method::Heiligenschein:
      return OfSize("ray optics", x, 300, 30, "Rays through a drop of dew.");
    case Method::Aperture:
    case Method::VanDeHulst:
    case Method::None:
      return {Standing::Doubtful, "a picture", "This method shows what an effect is; it is no theory of the sphere."};
  }
  if (results.asked.method.method == Method::Debye)
    return {Standing::Good, "exact terms",
            "Each term of the Debye series is exact; all of them together are Mie theory."};
  const double size = x * std::pow(std::max(0.0, m * m - 1), 1.5);
  TrustMark mark =
      OfSize("surface waves", size, 20, 10,
             "The poles of the Debye terms are good where x (m^2 - 1)^1.5 is large; here x stands for that.");
  return mark;
}

/// Whether steps of an angle graph resolve the interference of opposite edges of the sphere, 180/x degrees.
std::optional<TrustMark> OfSteps(const Results& results, const Sizes& sizes) {
  const AngleRows* rows = RowsOf(results.asked.run);
  // The sizes of a cloud wash the ripples out; rays without interference have none.
  if (rows == nullptr || results.asked.Cloud() || sizes.most <= 1) return std::nullopt;
  // What a pulse makes of it is a ridge, much wider than a ripple.
  if (results.asked.graph.OfPulse()) return std::nullopt;
  const Method method = results.asked.method.method;
  if (method == Method::Descartes || method == Method::Rayleigh || method == Method::Burgeroid ||
      method == Method::Heiligenschein)
    return std::nullopt;
  const double period = 180 / sizes.most, points = period / rows->step;
  const Standing standing = Above(points, 4, 2);
  const std::string told = Significant(period, 3) + "\u00B0";
  return TrustMark{standing, standing == Standing::Good ? "steps resolve ripples" : "steps miss ripples of " + told,
                   "Light from opposite edges makes ripples some 180/x = " + told + " wide; steps of " +
                       Significant(rows->step, digits) + "\u00B0 put " + Significant(points, 2) +
                       " points on each, and four are needed."};
}

/// Qext against (4/x^2) Re S(0).
std::optional<TrustMark> OfOpticalTheorem(const Results& results) {
  const auto* angles = results.Find<AngleFound>();
  const AngleRows* rows = RowsOf(results.asked.run);
  const LastSphere& last = results.last;
  const bool whole = TraitsOf(results.asked.method.method).efficiencies && results.asked.method.beam.Plane() &&
                     results.asked.method.method != Method::Debye && results.asked.method.method != Method::Rayleigh &&
                     !results.asked.method.paths && !results.asked.method.divideBySize &&
                     results.asked.method.difference == Difference::None && !results.asked.Cloud();
  if (angles == nullptr || rows == nullptr || rows->window.low > 1 || !whole) return std::nullopt;
  if (angles->S1.Rows() < 1 || !(last.efficiencies.Qext > 0) || !(last.sizeParameter > 0)) return std::nullopt;
  const double forward = 4 / (last.sizeParameter * last.sizeParameter) * angles->S1.Re(1);
  const double off = std::abs(forward / last.efficiencies.Qext - 1);
  const Standing standing = off < 1e-6 ? Standing::Good : off < 1e-2 ? Standing::Doubtful : Standing::Outside;
  const std::string told = off < 1e-15 ? "all digits" : Significant(off, 2);
  return TrustMark{
      standing, "Qext and S(0): " + told,
      "By the optical theorem Qext is 4/x^2 times the real part of the amplitude straight forward. The two "
      "were calculated apart and differ by " +
          Significant(off, 2) + " of Qext."};
}

}  // namespace

std::vector<TrustMark> TrustOf(const Results& results) {
  std::vector<TrustMark> marks;
  const Sizes sizes = SizesOf(results);
  if (!(sizes.most > 0)) return marks;
  const LastSphere& last = results.last;
  const double m = std::hypot(last.relativeRe, last.relativeIm);
  const std::string range = sizes.least < sizes.most
                                ? Significant(sizes.least, digits) + " to " + Significant(sizes.most, digits)
                                : Significant(sizes.most, digits);
  marks.push_back(
      {Standing::Told, "x = " + range + ", |m| x = " + Significant(m * sizes.most, digits),
       "x is the circumference of the sphere in wavelengths of the medium, m its index over that of the medium."});
  if (last.NSTOP > 0)
    marks.push_back({Standing::Told, std::to_string(last.NSTOP) + " terms",
                     "Partial waves that were summed for the last sphere: those up to n = x meet it."});
  marks.push_back(OfMethod(results, sizes));
  if (auto mark = OfSteps(results, sizes)) marks.push_back(std::move(*mark));
  if (auto mark = OfOpticalTheorem(results)) marks.push_back(std::move(*mark));
  return marks;
}

}  // namespace lumivex
