#include "pages/run_words.h"

#include <algorithm>
#include <cmath>

#include "materials/index/material.h"
#include "pages/maps/map_sides.h"
#include "particles/random_places.h"
#include "record/catalogue/graph_texts.h"
#include "record/number_text.h"
#include "runs/curves.h"
#include "runs/settings.h"

namespace lumivex {

namespace {

std::string Number(double value) {
  return Significant(value, 8);
}

std::string IndexWords(double real, double imaginary) {
  return imaginary == 0 ? Number(real) : Number(real) + " + " + Number(imaginary) + " i";
}

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

constexpr double degreesPerRadian = 180 / 3.14159265358979324;

/// "400 to 700 nm in steps of 0.5 nm".
std::string AxisRange(double xmin, double xmax, double step, bool logSteps, const std::string& unit) {
  return Number(xmin) + " to " + Number(xmax) + unit +
         (logSteps ? " in " + CountOf(step, "step") : " in steps of " + Number(step) + unit);
}

/// The unit behind a number of the horizontal axis.
std::string UnitOfAxis(const Graph& graph) {
  if (graph.AgainstAngle()) return "\u00B0";
  const std::string unit(XUnitOf(graph));
  return unit.empty() ? "" : " " + unit;
}

/// Scattering angles that a graph against something else is for: "140\u00B0", "0 to 180\u00B0"; empty without.
std::string AnglesAsked(const RunRequest& asked) {
  if (const auto* analysis = std::get_if<DebyeAnalysisRun>(&asked.run))
    return Number(analysis->angle * degreesPerRadian) + "\u00B0";
  if (const auto* convergence = std::get_if<ConvergenceRun>(&asked.run)) return Number(convergence->angle) + "\u00B0";
  if (const auto* map = std::get_if<EfficiencyMapRun>(&asked.run))
    return asked.graph.quantity == Quantity::Intensity ? Number(map->angle * degreesPerRadian) + "\u00B0" : "";
  const AxisRun* axis = AxisOf(asked.run);
  if (axis == nullptr) return "";
  if (asked.graph.AtOneAngle()) return Number(axis->angle * degreesPerRadian) + "\u00B0";
  if (asked.graph.quantity != Quantity::Power) return "";
  return AxisRange(axis->range.low, axis->range.high, axis->range.step, false, "\u00B0");
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

/// The beam; empty in a plane wave.
std::string BeamWords(const Illumination& light) {
  if (light.Plane()) return "";
  const bool disc = light.kind == Illumination::Kind::TopHat;
  std::string words = std::string(disc ? "Top hat" : "Gaussian") + " beam: x0 = " + Number(light.x0) +
                      ", y0 = " + Number(light.y0) + ", z0 = " + Number(light.z0) + ", w0 = " + Number(light.w0) +
                      " \u00B5m";
  if (light.oneBeam) words += ", tilt " + Number(light.phi * degreesPerRadian) + "\u00B0";
  if (light.pair) words += ", multiple beams";
  if (light.central) words += ", central beam";
  return words;
}

/// What tells the series of a beam from others beside the beam itself: limits and sums that were typed.
std::string BeamSumWords(const Illumination& light) {
  std::string words;
  const BeamLimits typed = light.limits.value_or(BeamLimits{0, 0});
  if (typed.Lmax > 0) words = "Lmax = " + std::to_string(typed.Lmax);
  if (typed.Mmax > 0) words += (words.empty() ? "Mmax = " : ", Mmax = ") + std::to_string(typed.Mmax);
  if (light.rule.closed) return words;
  return words + (words.empty() ? "" : ", ") + "sums to j = " + std::to_string(light.rule.Jmax) + " or " +
         Number(light.rule.error) + (light.rule.logarithms ? "" : " by factorials");
}

std::string_view NameOf(PulseForm form) {
  switch (form) {
    case PulseForm::Rectangular:
      return "Rectangular";
    case PulseForm::RaisedCosine:
      return "Raised cosine";
    case PulseForm::Hamming:
      return "Hamming";
    case PulseForm::AM:
      return "AM";
    case PulseForm::FM:
      return "FM";
    case PulseForm::Gaussian:
      break;
  }
  return "Gaussian";
}

const PulsedLight* PulseOf(const RunRequest& asked) {
  if (const auto* map = std::get_if<AngleMapRun>(&asked.run)) return map->pulse ? &*map->pulse : nullptr;
  const AxisRun* axis = AxisOf(asked.run);
  return axis != nullptr && axis->pulse ? &*axis->pulse : nullptr;
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

/// Sizes that a table or a model has by itself are those of no radius.
bool HasRadius(const RunRequest& asked) {
  if (Sweeps(asked.run, Swept::Radius) || Sweeps(asked.run, Swept::SizeParameter)) return false;
  if (asked.graph.SizeAxis() || std::holds_alternative<FileSizes>(asked.sizes)) return false;
  const auto* model = std::get_if<ModelSizes>(&asked.sizes);
  return model == nullptr || std::holds_alternative<GammaShape>(model->model);
}

std::string SizesWords(const RunRequest& asked) {
  const auto* file = std::get_if<FileSizes>(&asked.sizes);
  if (file == nullptr) return asked.words.sizes;
  const std::string name = file->name.empty() ? "Special" : "Special (" + file->name + ")";
  return name + ", " + std::to_string(SamplesOf(asked.sizes, RadiusOfSizes(asked.particle)).Count()) + " sizes";
}

/// The index along an axis of wavelengths (nm): of the first and of the last one, in its words for one where they are
/// the same; empty where the material has none at an end.
std::string IndexAlong(XRange axis, const Material& material, bool medium) {
  std::string words[2];
  for (const int end : {0, 1}) {
    const double lambda = (end == 0 ? axis.xmin : axis.xmax) / 1000;
    const auto found = medium ? MediumIndexAt(material, lambda).value : IndexAt(material, lambda).value;
    if (!found) return "";
    words[end] = IndexWords(found->n, medium ? 0 : found->k);
  }
  return words[0] == words[1] ? words[0] : words[0] + " to " + words[1];
}

/// The wavelengths (nm) that an axis or a map goes through; nothing at one wavelength.
std::optional<XRange> WavelengthRange(const RunRequest& asked) {
  if (asked.graph.WavelengthAxis()) {
    const auto& axis = std::get<AxisRun>(asked.run);
    return XRange{axis.xmin, axis.xmax};
  }
  if (!Sweeps(asked.run, Swept::Wavelength)) return std::nullopt;
  const Sweep& sweep = std::get<AngleMapRun>(asked.run).columns;
  return XRange{sweep.low, sweep.high};
}

/// Refractive index of the sphere, or of the medium, as far as it is one of the run; empty where the axis has it.
std::string IndexOf(const Results& results, bool medium) {
  const RunRequest& asked = results.asked;
  const OpticalIndices& indices = results.last.indices;
  if (const auto range = WavelengthRange(asked))
    return IndexAlong(*range, medium ? asked.particle.medium : asked.particle.sphere, medium);
  if (medium) return Sweeps(asked.run, Swept::MediumIndex) ? "" : Number(indices.MediumInUse());
  if (Sweeps(asked.run, Swept::SphereAbsorption))
    return Sweeps(asked.run, Swept::SphereIndex) ? "" : Number(indices.sphereN) + " + that of the axis i";
  if (!asked.graph.VariesIndex() && !Sweeps(asked.run, Swept::SphereIndex))
    return IndexWords(indices.sphereN, indices.sphereK);
  return indices.sphereK == 0 ? "" : "that of the axis + " + Number(indices.sphereK) + " i";
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

std::string LayersWords(const ProfileLayers& layers) {
  return std::to_string(layers.layers) + " layers, " + (layers.byTangents ? "old code" : "new code");
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

/// Whether a material is a number that was typed.
bool IsTyped(const Material& material) {
  return std::holds_alternative<FixedIndex>(material) || std::holds_alternative<FixedDielectric>(material);
}

std::string OnOneLine(std::string text) {
  std::ranges::replace(text, '\n', ' ');
  return text;
}

/// The method by its label, which tells p; by its name where that tells more, as of two forms of diffraction, or where
/// there is no label.
std::string MethodMark(const RunRequest& asked) {
  const std::string label = OnOneLine(asked.words.methodLabel);
  const bool named = asked.method.method != Method::Mie && !asked.words.method.starts_with(label);
  return named ? label : asked.words.method;
}

std::string SizeMark(const Results& results) {
  const RunRequest& asked = results.asked;
  if (std::holds_alternative<TwoAngleRun>(asked.run)) return "";
  std::string radius;
  if (HasRadius(asked))
    radius = asked.particle.sizeTyped ? "x = " + Number(*asked.particle.sizeTyped)
                                      : "r = " + Number(asked.particle.radius) + " \u00B5m";
  if (!asked.Cloud()) return radius;
  return SizesWords(asked) + (radius.empty() ? "" : ", " + radius);
}

/// What tells spheres in layers from others; empty for a homogeneous one.
std::string LayersMark(const RunRequest& asked) {
  if (asked.method.method == Method::InhomogeneousSphere) return asked.words.sphereName;
  if (!asked.particle.core) return "";
  return asked.words.core + "; " + asked.words.sphere;
}

std::string MaterialMark(const Results& results, bool medium) {
  const RunRequest& asked = results.asked;
  if (!medium && TraitsOf(asked.method.method).layered) return LayersMark(asked);
  const Material& material = medium ? asked.particle.medium : asked.particle.sphere;
  const bool varied = !medium && (asked.graph.VariesIndex() || std::holds_alternative<TwoAngleRun>(asked.run));
  const std::string name(Trim(medium ? asked.words.mediumName : asked.words.sphereName));
  if (varied || !IsTyped(material)) return varied ? "" : (medium ? "in " : "") + name;
  return (medium ? "medium n = " : "n = ") + IndexOf(results, medium);
}

// What tells the volumes of runs from each other.

std::string CountMark(const RunRequest& asked) {
  const auto* volume = std::get_if<VolumeRun>(&asked.run);
  const bool told = volume != nullptr && asked.graph.axis != AxisVariable::Number;
  return told ? "N = " + std::to_string(volume->count) : "";
}

std::string SideMark(const RunRequest& asked) {
  const auto* volume = std::get_if<VolumeRun>(&asked.run);
  return volume != nullptr ? "side " + Number(volume->side) + " \u00B5m" : "";
}

std::string SeedMark(const RunRequest& asked) {
  const auto* volume = std::get_if<VolumeRun>(&asked.run);
  return volume != nullptr ? "seed " + std::to_string(volume->seed) : "";
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
  const std::string& label = results.asked.words.methodLabel;
  return label.substr(0, label.find('\n'));
}

std::string PulseWords(const RunRequest& asked) {
  const PulsedLight* light = PulseOf(asked);
  if (light == nullptr) return "";
  const PulseRequest& pulse = light->pulse;
  std::string words = std::string(NameOf(pulse.form)) + " pulse, " + Number(pulse.duration) + " fs, cut-off " +
                      Number(pulse.cutOff) + " dB, " + std::to_string(pulse.length) + " samples of " +
                      Number(RoundDecimals(SampleStep(pulse), 4)) + " fs";
  if (light->fromCentre) words += ", times from the centre";
  return light->correlated ? words + ", correlated with the pulse" : words;
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

std::vector<std::string> MarksOf(const Results& results) {
  const RunRequest& asked = results.asked;
  const bool oneWavelength = !asked.light.spectrum && !asked.graph.WavelengthAxis();
  return {MethodMark(asked),
          asked.method.divideBySize ? "divided by x" : "",
          BeamWords(asked.method.beam),
          PulseWords(asked),
          SizeMark(results),
          MaterialMark(results, false),
          MaterialMark(results, true),
          oneWavelength ? Number(1000 * asked.light.lambda) + " nm" : "",
          AnglesAsked(asked),
          CountMark(asked)};
}

std::vector<std::string> PlaceMarksOf(const Results& results) {
  return {SideMark(results.asked), SeedMark(results.asked)};
}

std::vector<std::string> FinerMarksOf(const Results& results) {
  const RunRequest& asked = results.asked;
  const std::string sphere = IndexOf(results, false), medium = IndexOf(results, true);
  double step = 0;
  if (const AngleRows* rows = RowsOf(asked.run)) step = rows->step;
  const AxisRun* axis = AxisOf(asked.run);
  if (axis != nullptr) step = axis->step;
  const bool logSteps = axis != nullptr && axis->logSteps;
  return {sphere.empty() ? "" : "n = " + sphere,
          medium.empty() ? "" : "medium n = " + medium,
          step == 0  ? ""
          : logSteps ? CountOf(step, "step")
                     : "step " + Number(step),
          asked.words.method,
          OnOneLine(asked.words.methodLabel),
          asked.words.paths,
          BeamSumWords(asked.method.beam),
          asked.method.method == Method::InhomogeneousSphere ? LayersWords(asked.method.layers) : "",
          FurtherWordsOf(results)};
}

std::string FurtherWordsOf(const Results& results) {
  const MethodOptions& method = results.asked.method;
  if (method.method == Method::SurfaceWave) {
    const SurfaceWaveOptions& waves = method.surface;
    const std::string poles = "J = " + std::to_string(waves.firstPole) + " to " + std::to_string(waves.lastPole);
    return waves.amplitude == 1 ? poles : poles + ", amplitude times " + Number(waves.amplitude);
  }
  const auto& drop = results.last.drop;
  if (!drop) return "";
  const std::string asked = Format(drop->raysAsked, "#,##0"), done = Format(drop->raysDone, "#,##0");
  return (drop->raysDone < drop->raysAsked ? done + " of " + asked : asked) + " rays";
}

std::string TimeWords(double seconds) {
  return seconds < 1 ? Significant(seconds * 1000, 2) + " ms" : Significant(seconds, 3) + " s";
}

}  // namespace lumivex
