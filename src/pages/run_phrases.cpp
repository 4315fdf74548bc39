#include "pages/run_phrases.h"

#include <string_view>

#include "materials/index/material.h"
#include "pages/maps/map_sides.h"
#include "pages/run_words.h"
#include "record/catalogue/graph_texts.h"
#include "record/number_text.h"
#include "runs/curves.h"
#include "runs/settings.h"

namespace lumivex {

namespace {

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

}  // namespace

std::string Number(double value) {
  return Significant(value, 8);
}

std::string IndexWords(double real, double imaginary) {
  return imaginary == 0 ? Number(real) : Number(real) + " + " + Number(imaginary) + " i";
}

std::string AxisRange(double xmin, double xmax, double step, bool logSteps, const std::string& unit) {
  return Number(xmin) + " to " + Number(xmax) + unit +
         (logSteps ? " in " + CountOf(step, "step") : " in steps of " + Number(step) + unit);
}

std::string UnitOfAxis(const Graph& graph) {
  if (graph.AgainstAngle()) return "\u00B0";
  const std::string unit(XUnitOf(graph));
  return unit.empty() ? "" : " " + unit;
}

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

std::string BeamSumWords(const Illumination& light) {
  std::string words;
  const BeamLimits typed = light.limits.value_or(BeamLimits{0, 0});
  if (typed.Lmax > 0) words = "Lmax = " + std::to_string(typed.Lmax);
  if (typed.Mmax > 0) words += (words.empty() ? "Mmax = " : ", Mmax = ") + std::to_string(typed.Mmax);
  if (light.rule.closed) return words;
  return words + (words.empty() ? "" : ", ") + "sums to j = " + std::to_string(light.rule.Jmax) + " or " +
         Number(light.rule.error) + (light.rule.logarithms ? "" : " by factorials");
}

const PulsedLight* PulseOf(const RunRequest& asked) {
  if (const auto* map = std::get_if<AngleMapRun>(&asked.run)) return map->pulse ? &*map->pulse : nullptr;
  const AxisRun* axis = AxisOf(asked.run);
  return axis != nullptr && axis->pulse ? &*axis->pulse : nullptr;
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

std::optional<XRange> WavelengthRange(const RunRequest& asked) {
  if (asked.graph.WavelengthAxis()) {
    const auto& axis = std::get<AxisRun>(asked.run);
    return XRange{axis.xmin, axis.xmax};
  }
  if (!Sweeps(asked.run, Swept::Wavelength)) return std::nullopt;
  const Sweep& sweep = std::get<AngleMapRun>(asked.run).columns;
  return XRange{sweep.low, sweep.high};
}

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

std::string LayersWords(const ProfileLayers& layers) {
  return std::to_string(layers.layers) + " layers, " + (layers.byTangents ? "old code" : "new code");
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

}  // namespace lumivex
