/// What tells runs on one page apart.

#include <algorithm>

#include "materials/index/material.h"
#include "pages/run_phrases.h"
#include "pages/run_words.h"
#include "record/number_text.h"
#include "runs/curves.h"

namespace lumivex {

namespace {

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

}  // namespace lumivex
