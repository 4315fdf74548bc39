#include "files/batch/batch_block.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>
#include <vector>

#include "files/reports/result_columns.h"
#include "materials/index/material.h"
#include "pages/maps/map_sides.h"
#include "pages/page_table.h"
#include "pages/run_words.h"
#include "record/number_text.h"

namespace lumivex {

namespace {

constexpr std::string_view firstLine = "Lumivex v4.1", lastLine = "******************************************";
constexpr double degreesPerRadian = 180 / 3.14159265358979324;

/// A wavelength of a spectrum, which has the seven digits of single precision.
std::string Single(float value) {
  return Significant(double{value}, 7);
}

/// A number of the header: what was typed as it was typed, what was calculated to more digits than anybody measures.
std::string Number(double value) {
  return Significant(value, 10);
}

std::string Span(double from, double to) {
  return from == to ? Number(from) : Number(from) + " to " + Number(to);
}

std::string OnOneLine(std::string text) {
  std::ranges::replace(text, '\n', ' ');
  return text;
}

/// The name of a material; of an index that the graph varies what its label says behind "Sphere: ".
std::string NameOf(bool varies, std::string_view label, std::string_view name) {
  const auto colon = label.find(": ");
  return std::string(Trim(varies && colon != label.npos ? label.substr(colon + 2) : name));
}

/// The header of a block, group by group.
class BlockHeader {
 public:
  BlockHeader(const Results& results, const BatchBlockLook& look)
      : results_(results), look_(look), asked_(results.asked), graph_(results.asked.graph) {}

  std::string Text() {
    Line(firstLine);
    EndGroup();
    Line("Date & Time: " + std::string(look_.dateAndTime));
    EndGroup();
    const std::string& label = asked_.words.methodLabel.empty() ? asked_.words.method : asked_.words.methodLabel;
    Line("Calculation Method: " + OnOneLine(label));
    EndGroup();
    Line("Sphere: \t" + NameOf(graph_.VariesIndex(), asked_.words.sphere, asked_.words.sphereName));
    Line("Medium: \t" + NameOf(graph_.VariesMedium(), asked_.words.medium, asked_.words.mediumName));
    EndGroup();
    if (graph_.OfAngles() || graph_.family == Family::DebyeAnalysis || graph_.family == Family::Convergence)
      OfOneSphere();
    else
      OfAxis();
    Further();
    Line("Graph type: \t" + asked_.words.graph);
    EndGroup();
    return std::move(text_);
  }

 private:
  void Line(std::string_view line) { text_ += std::string(line) + "\n"; }
  void EndGroup() { text_ += '\n'; }
  void Group(std::string_view line) {
    Line(line);
    EndGroup();
  }

  const AxisRun* Axis() const { return AxisOf(asked_.run); }

  /// What a map varies along one of its sides, or a chart of two angles; nothing for other graphs and quantities.
  std::optional<std::string> SweptSpan(Swept quantity) const {
    const auto span = [](const Sweep& sweep) { return Span(sweep.LowShown(), sweep.high); };
    if (const auto* map = std::get_if<AngleMapRun>(&asked_.run); map != nullptr && map->columns.quantity == quantity)
      return span(map->columns);
    if (const auto* map = std::get_if<EfficiencyMapRun>(&asked_.run)) {
      if (map->columns.quantity == quantity) return span(map->columns);
      if (map->rows.quantity == quantity) return span(map->rows);
    }
    if (const auto* angles = std::get_if<TwoAngleRun>(&asked_.run)) {
      const auto ends = [](const std::vector<double>& values) {
        return values.empty() ? std::string() : Span(values.front(), values.back());
      };
      if (quantity == Swept::SphereIndex) return ends(angles->index);
      if (quantity == Swept::Radius) return ends(angles->radius);
    }
    return std::nullopt;
  }

  /// Both parts of an index, of an axis of wavelengths at both of its ends.
  std::pair<std::string, std::string> SphereIndex() const {
    const OpticalIndices& indices = results_.last.indices;
    std::pair index(Number(indices.sphereN), Number(indices.sphereK));
    if (const auto ends = WavelengthEnds()) {
      const auto first = IndexAt(asked_.particle.sphere, ends->first).value;
      const auto last = IndexAt(asked_.particle.sphere, ends->second).value;
      if (first && last) index = {Span(first->n, last->n), Span(first->k, last->k)};
    }
    if (const auto real = SweptSpan(Swept::SphereIndex)) index.first = *real;
    if (const auto imaginary = SweptSpan(Swept::SphereAbsorption)) index.second = *imaginary;
    return index;
  }

  std::string MediumIndex() const {
    if (const auto swept = SweptSpan(Swept::MediumIndex)) return *swept;
    const auto ends = WavelengthEnds();
    if (!ends) return Number(results_.last.indices.MediumInUse());
    const auto first = MediumIndexAt(asked_.particle.medium, ends->first).value;
    const auto last = MediumIndexAt(asked_.particle.medium, ends->second).value;
    return first && last ? Span(first->n, last->n) : "";
  }

  /// First and last wavelength (um) of a graph that goes through them.
  std::optional<std::pair<double, double>> WavelengthEnds() const {
    if (graph_.WavelengthAxis() && Axis() != nullptr) return std::pair(Axis()->xmin / 1000, Axis()->xmax / 1000);
    const auto* map = std::get_if<AngleMapRun>(&asked_.run);
    if (map == nullptr || map->columns.quantity != Swept::Wavelength) return std::nullopt;
    return std::pair(map->columns.low / 1000, map->columns.high / 1000);
  }

  void SphereLine() {
    const auto [real, imaginary] = SphereIndex();
    Group("Refractive index (sphere)\tReal part: \t" + real + "\tImaginary part: \t" + imaginary);
  }

  void MediumLine() { Group("Refractive index (medium)\t" + MediumIndex()); }

  void WavelengthLine() {
    std::string value = Number(asked_.light.lambda);
    if (const auto ends = WavelengthEnds()) value = Span(ends->first, ends->second);
    if (const auto& light = asked_.light.spectrum)
      value = Single(light->wavelength[1]) + " to " + Single(light->wavelength.back());
    Group("Wavelength: \t" + value + "\t um");
  }

  /// The size as it was asked for: a radius, or a diameter where the graph is against it.
  void SizeLine(bool withSizeParameter) {
    std::string line = "Radius: \t" + Number(asked_.particle.radius) + "\t um";
    if (look_.diameter) line = "Diameter: \t" + Number(2 * asked_.particle.radius) + "\t um";
    if (const auto radii = SweptSpan(Swept::Radius))
      line = "Radius: \t" + *radii + "\t um";
    else if (withSizeParameter)
      line += "\tSize parameter x: \t" + Format(results_.last.sizeParameter, "0.0000");
    Group(line);
  }

  void OfOneSphere() {
    SphereLine();
    MediumLine();
    WavelengthLine();
    SizeLine(true);
  }

  void OfAxis() {
    if (graph_.axis == AxisVariable::RefractiveIndex && graph_.family == Family::Axis) {
      WavelengthLine();
      SizeLine(false);
      return;
    }
    SphereLine();
    if (graph_.SizeAxis() && Axis() != nullptr) {
      const std::string range = Span(Axis()->xmin, Axis()->xmax);
      Group(graph_.axis == AxisVariable::SizeParameter ? "Size parameter x: \t" + range
                                                       : AxisHeadingOf(graph_) + ": \t" + range + "\t um");
    } else if (!graph_.WavelengthAxis()) {
      if (const auto sizes = SweptSpan(Swept::SizeParameter))
        Group("Size parameter x: \t" + *sizes);
      else
        SizeLine(false);
    }
    WavelengthLine();
  }

  /// What is within a sphere whose outermost layer the groups above tell.
  void Layers() {
    if (const auto& core = asked_.particle.core) {
      const IndexValue& index = results_.last.core;
      Line("Core: \tRadius: \t" + Number(core->radius) + "\t um\tReal part: \t" + Number(index.n) +
           "\tImaginary part: \t" + Number(index.k));
    }
    if (!asked_.words.paths.empty()) Line("Ray paths: \t" + OnOneLine(asked_.words.paths));
    if (const std::string further = FurtherWordsOf(results_); !further.empty()) Line("Added: \t" + further);
    if (asked_.method.method == Method::InhomogeneousSphere)
      Line("Layers: \t" + std::to_string(asked_.method.layers.layers) + "\t" +
           (asked_.method.layers.byTangents ? "old code" : "new code"));
  }

  /// What the groups above have no place for.
  void Further() {
    const std::string before = text_;
    if (!graph_.OfAngles() && graph_.family != Family::DebyeAnalysis && graph_.family != Family::Convergence)
      Line("Refractive index (medium)\t" + MediumIndex());
    if (graph_.WavelengthAxis()) Line("Radius: \t" + Number(asked_.particle.radius) + "\t um");
    Layers();
    if (const std::string pulse = PulseWords(asked_); !pulse.empty()) Line("Pulse: \t" + pulse);
    if (asked_.Cloud()) Line("Size distribution: \t" + OnOneLine(asked_.words.sizes));
    if (asked_.light.spectrum) {
      Line("Wavelengths: \t" + std::to_string(asked_.Wavelengths()));
      Line("Light: \t" + OnOneLine(asked_.words.light));
    }
    if (graph_.InUnitsOfLight()) {
      Line("Distance: \t" + Number(asked_.light.distance) + "\t m");
      Line("Incident light: \t" + Number(asked_.light.incidentDensity) + "\t W/sq m");
    }
    if (const auto* angles = std::get_if<TwoAngleRun>(&asked_.run))
      Line("Angles: \t" + Span(angles->angle1Min, angles->angle1Max) + " and " +
           Span(angles->angle2Min, angles->angle2Max));
    if (const auto* volume = std::get_if<VolumeRun>(&asked_.run)) {
      if (graph_.axis != AxisVariable::Number) Line("Number of spheres: \t" + std::to_string(volume->count));
      Line("Side of the cube: \t" + Number(volume->side) + "\t um");
      Line("Seed: \t" + std::to_string(volume->seed));
    }
    if (text_ != before) EndGroup();
  }

  const Results& results_;
  const BatchBlockLook& look_;
  const RunRequest& asked_;
  const Graph& graph_;
  std::string text_;
};

/// The angle of a graph against something else; empty without.
std::string AngleLine(const RunRequest& asked) {
  std::string angle;
  if (const AxisRun* axis = AxisOf(asked.run); axis != nullptr) {
    if (asked.graph.AtOneAngle()) angle = Number(axis->angle * degreesPerRadian);
    if (asked.graph.quantity == Quantity::Power) angle = Span(axis->range.low, axis->range.high);
  }
  if (const auto* terms = std::get_if<ConvergenceRun>(&asked.run)) angle = Number(terms->angle);
  if (const auto* analysis = std::get_if<DebyeAnalysisRun>(&asked.run))
    angle = Number(analysis->angle * degreesPerRadian);
  if (const auto* map = std::get_if<EfficiencyMapRun>(&asked.run);
      map != nullptr && asked.graph.quantity == Quantity::Intensity)
    angle = Number(map->angle * degreesPerRadian);
  return angle.empty() ? "" : "Scattering angle = " + angle + "\n";
}

std::string Rows(const Results& results, const Page& page, const CurveLook& look) {
  const Drawing drawing = results.asked.graph.drawing;
  const bool ofPage = drawing == Drawing::ColourImage || drawing == Drawing::TwoAngleChart;
  return AngleLine(results.asked) + (ofPage ? TableAsText(page) : TextOfColumns(CurveColumnsOf(results, look))) + "\n";
}

}  // namespace

std::string BatchBlock(const Results& results, const Page& page, const BatchBlockLook& look) {
  std::string text = BlockHeader(results, look).Text() + Rows(results, page, look.curves);
  if (look.amplitudes)
    if (const std::string rows = TextOfColumns(AmplitudeColumnsOf(results)); !rows.empty())
      text += std::string(amplitudesTitle) + "\n\n" + rows + "\n";
  return text + std::string(lastLine) + "\n\n";
}

}  // namespace lumivex
