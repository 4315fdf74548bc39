#include "pages/run_words.h"

#include <algorithm>
#include <optional>

#include "record/number_text.h"
#include "runs/curves.h"

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
  return Number(values.front()) + " to " + Number(values.back()) + " in " + std::to_string(values.size() - 1) +
         " steps";
}

std::string Materials(const RunWords& words) {
  return std::string(Trim(words.sphereName)) + " in " + std::string(Trim(words.mediumName));
}

bool SumsSeries(const MethodOptions& method) {
  return method.method == Method::Mie || method.method == Method::Debye || method.method == Method::CoatedSphere;
}

/// Shortest and longest wavelength.
std::string SpectrumRange(const SpectrumOfLight& light) {
  const double first = 1000 * double{light.wavelength[1]}, last = 1000 * double{light.wavelength.back()};
  return Significant(std::min(first, last), 6) + " to " + Significant(std::max(first, last), 6) + " nm";
}

/// Range and step of the horizontal axis.
struct AxisWords {
  double xmin, xmax, step;
  bool logSteps = false;
  std::string unit = {};
};

std::optional<AxisWords> AxisOf(const Results& results) {
  const FamilyRun& run = results.asked.run;
  if (const AngleRows* rows = RowsOf(run)) return AxisWords{rows->xmin, rows->xmax, rows->step, false, "\u00B0"};
  if (const auto* axis = std::get_if<AxisRun>(&run))
    return AxisWords{axis->xmin, axis->xmax, axis->step, axis->logSteps};
  if (std::holds_alternative<ConvergenceRun>(run)) return AxisWords{1, static_cast<double>(results.last.NSTOP), 1};
  return std::nullopt;
}

void AddAxis(const Results& results, std::vector<std::string>& lines) {
  if (const auto* analysis = std::get_if<DebyeAnalysisRun>(&results.asked.run)) {
    constexpr double degreesPerRadian = 180 / 3.14159265358979324;
    lines.push_back("Scattering angle: " + Number(analysis->angle * degreesPerRadian) + "\u00B0, p = 0 to " +
                    std::to_string(analysis->limit));
    return;
  }
  const auto axis = AxisOf(results);
  if (!axis) return;
  const std::string& unit = axis->unit;
  const std::string step = Number(axis->step);
  lines.push_back(results.asked.words.scale + ": " + Number(axis->xmin) + unit + " to " + Number(axis->xmax) + unit +
                  (axis->logSteps ? " in " + step + " steps" : " in steps of " + step + unit));
}

void AddMethod(const Results& results, std::vector<std::string>& lines) {
  const RunRequest& asked = results.asked;
  lines.push_back("Method: " + asked.words.method);
  if (asked.method.method != Method::Mie && !asked.words.methodLabel.empty())
    lines.push_back("   " + asked.words.methodLabel);
  lines.push_back("Graph: " + asked.words.graph);
  if (asked.light.spectrum) {
    lines.push_back(std::to_string(asked.Wavelengths()) + " wavelengths, " + SpectrumRange(*asked.light.spectrum));
    lines.push_back("Light: " + asked.words.light);
  } else {
    lines.push_back("Wavelength: " + Number(results.last.lambda) + " \u00B5m in vacuo");
  }
}

void AddSphere(const Results& results, const std::string& middle, std::vector<std::string>& lines) {
  const RunRequest& asked = results.asked;
  if (!asked.graph.SizeAxis()) {
    lines.push_back("Radius: " + Number(results.last.radius) + " \u00B5m");
    lines.push_back("Size parameter x: " + Number(results.last.sizeParameter) + middle);
  }
  if (asked.Cloud()) lines.push_back("Sizes: " + asked.words.sizes);
  lines.push_back(asked.words.sphere);
  lines.push_back("   n = " + IndexWords(results.last.indices.sphereN, results.last.indices.sphereK) + middle);
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
  return results.asked.words.methodLabel;
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
  lines.push_back(asked.words.medium);
  lines.push_back("   n = " + Number(results.last.indices.MediumInUse()) + middle);
  const std::string time = TimeWords(results.seconds);
  if (angles != nullptr) {
    lines.push_back("Angles: " + Number(angles->angle1Min) + " to " + Number(angles->angle1Max) + "\u00B0 and " +
                    Number(angles->angle2Min) + " to " + Number(angles->angle2Max) + "\u00B0");
    lines.push_back("Spheres: " + std::to_string(angles->radius.size() * angles->index.size()) + ", " + time);
    return lines;
  }
  AddAxis(results, lines);
  const bool terms = !spectrum && SumsSeries(asked.method);
  lines.push_back(terms ? "Series: " + std::to_string(results.last.NSTOP) + " terms, " + time
                        : "Calculated in " + time);
  return lines;
}

std::string TimeWords(double seconds) {
  return seconds < 1 ? Significant(seconds * 1000, 2) + " ms" : Significant(seconds, 3) + " s";
}

}  // namespace lumivex
