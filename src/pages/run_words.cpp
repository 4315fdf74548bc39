#include "pages/run_words.h"

#include <algorithm>
#include <cmath>

#include "pages/maps/map_sides.h"
#include "pages/run_phrases.h"
#include "particles/random_places.h"
#include "record/number_text.h"
#include "runs/curves.h"
#include "runs/settings.h"

namespace lumivex {

namespace {

/// First and last of a list and the number between.
std::string SpanWords(const std::vector<double>& values) {
  if (values.empty()) return "";
  if (values.size() == 1) return Number(values.front());
  return Number(values.front()) + " to " + Number(values.back()) + " in " +
         CountOf(static_cast<int>(values.size()) - 1, "step");
}

std::string Materials(const RunWords& words) {
  return std::string(Trim(words.sphereName)) + " in " + std::string(Trim(words.mediumName));
}

bool SumsSeries(const MethodOptions& method) {
  return method.method == Method::Mie || method.method == Method::Debye || TraitsOf(method.method).layered;
}

/// Shortest and longest of the first wavelengths of a spectrum.
std::string SpectrumRange(const SpectrumOfLight& light, int count) {
  const double first = 1000 * double{light.wavelength[1]};
  const double last = 1000 * double{light.wavelength[static_cast<std::size_t>(count)]};
  if (count == 1) return Significant(first, 6) + " nm";
  return Significant(std::min(first, last), 6) + " to " + Significant(std::max(first, last), 6) + " nm";
}

/// What the running sums of a series run over.
void AddTerms(const RunRequest& asked, const ConvergenceFound& terms, const std::string& start,
              std::vector<std::string>& lines) {
  const auto count = static_cast<double>(terms.perpendicular.size()) - 1;
  const bool overM = std::get<ConvergenceRun>(asked.run).over == ConvergenceRun::Over::M;
  const std::string name = asked.method.beam.Plane() ? start : overM ? "|M|: " : "L: ";
  lines.push_back(name + AxisRange(terms.first, terms.first + count - 1, 1, false, ""));
}

void AddAxis(const Results& results, std::vector<std::string>& lines) {
  const RunRequest& asked = results.asked;
  if (const auto* analysis = std::get_if<DebyeAnalysisRun>(&asked.run)) {
    lines.push_back("Scattering angle: " + AnglesAsked(asked) + ", p = 0 to " + std::to_string(analysis->limit));
    return;
  }
  if (const std::string angles = AnglesAsked(asked); !angles.empty()) lines.push_back("Scattering angle: " + angles);
  if (const auto* map = std::get_if<EfficiencyMapRun>(&asked.run)) {
    lines.push_back(SweepWords(map->columns));
    lines.push_back(SweepWords(map->rows));
    return;
  }
  if (const auto* map = std::get_if<AngleMapRun>(&asked.run)) {
    lines.push_back(SweepWords(map->columns));
    lines.push_back("Scattering angle: " + AxisRange(map->rows.xmin, map->rows.xmax, map->rows.step, false, "\u00B0"));
    return;
  }
  const std::string start = asked.words.scale + ": ", unit = UnitOfAxis(asked.graph);
  if (const AngleRows* rows = RowsOf(asked.run))
    lines.push_back(start + AxisRange(rows->xmin, rows->xmax, rows->step, false, unit));
  else if (const AxisRun* axis = AxisOf(asked.run); axis != nullptr && axis->pulse)
    lines.push_back(start + AxisRange(RoundDecimals(axis->xmin, 2), RoundDecimals(axis->xmax, 2),
                                      RoundDecimals(axis->step, 4), false, unit));
  else if (axis != nullptr)
    lines.push_back(start + AxisRange(axis->xmin, axis->xmax, axis->step, axis->logSteps, unit));
  else if (const auto* terms = results.Find<ConvergenceFound>())
    AddTerms(asked, *terms, start, lines);
}

/// Wavelengths that are in the results: a run that was stopped has not come to all.
int WavelengthsIn(const Results& results) {
  const auto* found = results.Find<SpectrumFound>();
  return std::max(found != nullptr ? found->done : results.asked.Wavelengths(), 1);
}

/// The lines of a text.
void AddLines(std::string_view text, std::vector<std::string>& lines) {
  while (!text.empty()) {
    const auto end = text.find('\n');
    lines.push_back("   " + std::string(text.substr(0, end)));
    text = end == text.npos ? "" : text.substr(end + 1);
  }
}

void AddMethod(const Results& results, std::vector<std::string>& lines) {
  const RunRequest& asked = results.asked;
  lines.push_back("Method: " + asked.words.method);
  if (asked.method.method != Method::Mie) AddLines(asked.words.methodLabel, lines);
  if (!asked.words.paths.empty()) lines.push_back("   Ray paths: " + asked.words.paths);
  if (const std::string further = FurtherWordsOf(results); !further.empty()) lines.push_back("   " + further);
  lines.push_back("Graph: " + asked.words.graph);
  if (const std::string beam = BeamWords(asked.method.beam); !beam.empty()) lines.push_back(beam);
  if (const std::string sums = BeamSumWords(asked.method.beam); !sums.empty()) lines.push_back("   " + sums);
  if (asked.light.spectrum) {
    const int done = WavelengthsIn(results);
    lines.push_back(CountOf(done, asked.Wavelengths(), "wavelength") + ", " +
                    SpectrumRange(*asked.light.spectrum, done));
    lines.push_back("Light: " + asked.words.light);
  } else if (!asked.graph.WavelengthAxis() && !Sweeps(asked.run, Swept::Wavelength)) {
    lines.push_back("Wavelength: " + Number(results.last.lambda) + " \u00B5m in vacuo");
  }
  if (const std::string pulse = PulseWords(asked); !pulse.empty()) lines.push_back(pulse);
}

void AddIndex(const Results& results, bool medium, const std::string& middle, std::vector<std::string>& lines) {
  lines.push_back(medium ? results.asked.words.medium : results.asked.words.sphere);
  if (const std::string index = IndexOf(results, medium); !index.empty()) lines.push_back("   n = " + index + middle);
}

/// What of a cloud of coated spheres stays as it is.
std::string VariationWords(const Particle& particle) {
  if (!particle.core) return "";
  switch (particle.core->sizes) {
    case CoatedSizes::FixedCore:
      break;
    case CoatedSizes::FixedRatio:
      return ", radii in a fixed ratio";
    case CoatedSizes::FixedCoating:
      return " of the cores, coating fixed";
  }
  return ", core fixed";
}

void AddSphere(const Results& results, const std::string& middle, std::vector<std::string>& lines) {
  const RunRequest& asked = results.asked;
  if (HasRadius(asked)) {
    lines.push_back("Radius: " + Number(results.last.radius) + " \u00B5m");
    if (!WavelengthRange(asked) && !Sweeps(asked.run, Swept::MediumIndex))
      lines.push_back("Size parameter x: " + Number(results.last.sizeParameter) + middle);
  }
  if (asked.Cloud()) lines.push_back("Sizes: " + SizesWords(asked) + VariationWords(asked.particle));
  if (asked.method.method == Method::InhomogeneousSphere) {
    lines.push_back("Sphere: " + asked.words.sphere);
    lines.push_back("   " + LayersWords(asked.method.layers));
    return;
  }
  if (asked.particle.core) {
    lines.push_back(asked.words.core);
    lines.push_back("   n = " + IndexWords(results.last.core.n, results.last.core.k) + middle);
  }
  AddIndex(results, false, middle, lines);
}

/// The share of its cube that the spheres of a volume fill, in percent: those of a radius, or of sizes about it.
double FilledBy(const RunRequest& asked, const VolumeRun& volume, double radius) {
  const CloudSamples samples = SamplesOf(asked.sizes, radius);
  double cubes = 0, particles = samples.outside;
  for (std::size_t i = 1; i < samples.radius.size(); ++i) {
    cubes += samples.weight[i] * std::pow(samples.radius[i] / volume.side, 3);
    particles += samples.weight[i];
  }
  return particles > 0 ? 100 * volume.count * 4.0 / 3 * 3.14159265358979324 * cubes / particles : 0;
}

std::string FilledWords(const RunRequest& asked, const VolumeRun& volume, double radius) {
  const auto filled = [&](double r) { return Significant(FilledBy(asked, volume, r), 3) + " %"; };
  const std::string start = "Spheres fill ", end = " of the cube";
  if (asked.graph.axis == AxisVariable::Radius)
    return start + filled(volume.axis.xmin) + " to " + filled(volume.axis.xmax) + end;
  return start + filled(radius) + end + (asked.graph.axis == AxisVariable::Number ? ", all of them" : "");
}

/// The cube of spheres: how many, how full it is, how they move.
void AddVolume(const Results& results, std::vector<std::string>& lines) {
  const RunRequest& asked = results.asked;
  const auto* volume = std::get_if<VolumeRun>(&asked.run);
  if (volume == nullptr) return;
  const AxisVariable axis = asked.graph.axis;
  const bool numbers = axis == AxisVariable::Number;
  const std::string spheres = numbers              ? "Spheres at random places"
                              : volume->count == 1 ? "1 sphere at a random place"
                                                   : std::to_string(volume->count) + " spheres at random places";
  lines.push_back(spheres + " in a cube of " + Number(volume->side) + " \u00B5m, seed " + std::to_string(volume->seed));
  const double radius = asked.particle.radius;
  lines.push_back(FilledWords(asked, *volume, radius));
  if (axis != AxisVariable::Time) return;
  const std::string motion = "Brownian motion in water at 20 \u00B0C";
  lines.push_back(
      asked.Cloud() ? motion : motion + ": D = " + Significant(DiffusionCoefficient(radius), 4) + " \u00B5m\u00B2/s");
}

}  // namespace

std::string RunTitleOf(const Results& results) {
  const RunRequest& asked = results.asked;
  const std::string materials = Materials(asked.words);
  const MethodOptions& method = asked.method;
  if (asked.graph.family == Family::TwoAngle) return "Mie scattering into two ranges of angle";
  if (asked.graph.family == Family::DebyeAnalysis) return materials;
  const bool varied = asked.graph.axis == AxisVariable::RefractiveIndex;
  switch (method.method) {
    case Method::Mie:
      if (!method.beam.Plane())
        return varied ? "Mie scattering (Gaussian beam)" : "Mie scattering (Gaussian beam):  " + materials;
      return varied ? "Mie scattering" : "Mie scattering:  " + materials;
    case Method::Rayleigh:
      return "Rayleigh scattering:  " + materials;
    case Method::Diffraction:
      return "Diffraction:  " + materials;
    case Method::Debye:
      return (method.OnlyReflected() ? "Debye series (p = 0):  " : "") + materials;
    case Method::Huygens:
      return "Ray tracing: Huygens (p =" + asked.words.rays + ") " + materials;
    default:
      return materials;
  }
}

std::string MethodLabelOf(const Results& results) {
  // Beside the title there is room for one line.
  const RunRequest& asked = results.asked;
  const std::string& label = asked.words.methodLabel;
  const std::string line = label.substr(0, label.find('\n'));
  if (asked.graph.quantity != Quantity::BowAngle) return line;
  return line + ", sun at " + Number(asked.method.drop.elevation * degreesPerRadian) + "\u00B0";
}

std::vector<std::string> ParameterLinesOf(const Results& results) {
  const RunRequest& asked = results.asked;
  const bool spectrum = asked.light.spectrum.has_value();
  // Of several wavelengths the one in the middle stands for the others.
  const std::string middle = spectrum ? " at " + Significant(1000 * asked.light.lambda, 6) + " nm" : "";
  const auto* angles = std::get_if<TwoAngleRun>(&asked.run);
  std::vector<std::string> lines;
  AddMethod(results, lines);
  if (angles != nullptr) {
    lines.push_back("Radius: " + SpanWords(angles->radius) + " \u00B5m");
    lines.push_back("Sphere: n = " + SpanWords(angles->index));
  } else {
    AddSphere(results, middle, lines);
  }
  AddIndex(results, true, middle, lines);
  const std::string time = TimeWords(results.seconds);
  if (angles != nullptr) {
    lines.push_back("Angles: " + Number(angles->angle1Min) + " to " + Number(angles->angle1Max) + "\u00B0 and " +
                    Number(angles->angle2Min) + " to " + Number(angles->angle2Max) + "\u00B0");
    lines.push_back("Spheres: " + std::to_string(angles->radius.size() * angles->index.size()) + ", " + time);
    return lines;
  }
  AddVolume(results, lines);
  if (const auto& drop = results.last.drop; drop && !spectrum && !asked.Cloud())
    lines.push_back("Axis ratio: " + Number(drop->axisRatio) +
                    ", power per \u03C0 a\u00B2: " + Significant(drop->perpendicular, 5) + " perpendicular, " +
                    Significant(drop->parallel, 5) + " parallel");
  AddAxis(results, lines);
  if (const auto* map = results.Find<MapFound>(); map != nullptr && map->done < map->columns)
    lines.push_back("Calculated: " + CountOf(map->done, map->columns, "column"));
  if (const AngleRows* rows = RowsOf(asked.run); rows != nullptr && PulseOf(asked) != nullptr)
    if (const auto* map = results.Find<MapFound>(); map != nullptr && map->rows <= rows->window.high - rows->window.low)
      lines.push_back("Calculated: " + CountOf(map->rows, rows->window.high - rows->window.low + 1, "row"));
  const bool terms = !spectrum && !asked.graph.InColour() && SumsSeries(asked.method);
  const auto& beam = results.last.beam;
  if (beam && !spectrum) {
    lines.push_back("Series: L to " + std::to_string(beam->limits.Lmax) + ", M to " +
                    std::to_string(beam->limits.Mmax) + ", " + time);
    return lines;
  }
  lines.push_back(terms ? "Series: " + std::to_string(results.last.NSTOP) + " terms, " + time
                        : "Calculated in " + time);
  return lines;
}

std::vector<std::string> ChangeLinesOf(const Results& results, const Look& look) {
  const RunRequest& asked = results.asked;
  const Drawing drawing = asked.graph.drawing;
  if (drawing == Drawing::PhasorDiagram || drawing == Drawing::TwoAngleChart) return {};
  std::vector<std::string> lines;
  const bool disc = look.sun.disc && RowsOf(asked.run) != nullptr;
  if (disc) lines.emplace_back(look.sun.rectangular ? "Light: Sun's disc, rectangular" : "Light: Sun's disc");
  if (asked.graph.InColour()) {
    const auto* map = std::get_if<AngleMapRun>(&asked.run);
    if (map != nullptr && map->invWavelength) lines.emplace_back("Intensity independent of wavelength");
    return lines;
  }
  const bool intensities =
      asked.graph.quantity == Quantity::Intensity && !std::holds_alternative<ConvergenceRun>(asked.run);
  if (intensities && look.amplitude) lines.emplace_back("Amplitudes in place of intensities");
  if (intensities && look.invWavelength)
    lines.emplace_back(look.amplitude ? "Amplitude independent of wavelength" : "Intensity independent of wavelength");
  if (look.averageWidth) lines.push_back("Running mean over " + Number(*look.averageWidth) + UnitOfAxis(asked.graph));
  if (look.interpolate) lines.emplace_back("Cubic interpolation");
  if (look.fourier)
    lines.push_back("Fourier transform of " + std::to_string(look.fourier->length) + " points from " +
                    Number(look.fourier->first) + UnitOfAxis(asked.graph) +
                    (look.fourier->complex ? ", complex amplitudes"
                     : look.fourier->root  ? ", square roots"
                                           : ""));
  return lines;
}

std::string TimeWords(double seconds) {
  return seconds < 1 ? Significant(seconds * 1000, 2) + " ms" : Significant(seconds, 3) + " s";
}

}  // namespace lumivex
