#include "session/inputs/axis_graphs.h"

#include <algorithm>
#include <array>

namespace lumivex {

namespace {

using enum AxisVariable;
using enum AxisQuantity;

constexpr std::array graphs = {
    AxisGraph{10, 1, Wavelength, Intensity, false, "400", "700", "0.5"},
    AxisGraph{10, 2, Wavelength, ScatteringMatrix, false, "400", "700", "0.5"},
    AxisGraph{11, 1, Radius, Intensity, false, "1", "20", "0.02"},
    AxisGraph{11, 2, AxisVariable::SizeParameter, Intensity, false, "1", "100", "0.1"},
    AxisGraph{11, 3, Diameter, Intensity, false, "2", "40", "0.04"},
    AxisGraph{12, 0, RefractiveIndex, Intensity, false, "1.2", "1.6", "0.0005"},
    AxisGraph{13, 0, Iterations, Intensity, false, "1", "100", "1"},
    AxisGraph{14, 1, Radius, Q, true, "0.01", "100", "1000"},
    AxisGraph{14, 2, Radius, CrossSection, true, "0.01", "100", "1000"},
    AxisGraph{14, 3, AxisVariable::SizeParameter, Q, true, "0.1", "1000", "1000"},
    AxisGraph{14, 4, AxisVariable::SizeParameter, CrossSection, true, "0.1", "1000", "1000"},
    AxisGraph{14, 5, Diameter, Q, true, "0.02", "200", "1000"},
    AxisGraph{14, 6, Diameter, CrossSection, true, "0.02", "200", "1000"},
    AxisGraph{14, 7, Radius, AxisQuantity::Qback, true, "0.01", "100", "1000"},
    AxisGraph{14, 8, Diameter, AxisQuantity::Qback, true, "0.02", "200", "1000"},
    AxisGraph{14, 9, AxisVariable::SizeParameter, AxisQuantity::Qback, true, "0.1", "1000", "1000"},
    AxisGraph{14, 10, Radius, Qradar, true, "0.01", "100", "1000"},
    AxisGraph{14, 11, Diameter, Qradar, true, "0.02", "200", "1000"},
    AxisGraph{14, 12, AxisVariable::SizeParameter, Qradar, true, "0.1", "1000", "1000"},
    AxisGraph{15, 1, Wavelength, Q, false, "400", "700", "0.5"},
    AxisGraph{15, 2, Wavelength, CrossSection, false, "400", "700", "0.5"},
    AxisGraph{15, 9, Wavelength, AxisQuantity::Qback, false, "400", "700", "0.5"},
    AxisGraph{15, 12, Wavelength, Qradar, false, "400", "700", "0.5"},
    AxisGraph{16, 1, Radius, Asymmetry, true, "0.01", "100", "1000"},
    AxisGraph{16, 2, AxisVariable::SizeParameter, Asymmetry, true, "0.1", "1000", "1000"},
    AxisGraph{16, 3, Wavelength, Asymmetry, true, "10", "10000", "2000"},
    AxisGraph{17, 1, Radius, Albedo, true, "0.01", "100", "1000"},
    AxisGraph{17, 2, AxisVariable::SizeParameter, Albedo, true, "0.1", "1000", "1000"},
    AxisGraph{17, 3, Wavelength, Albedo, true, "10", "10000", "2000"},
    AxisGraph{18, 1, Radius, Power, false, "1", "20", "0.1"},
    AxisGraph{18, 2, Diameter, Power, false, "2", "40", "0.2"},
    AxisGraph{18, 3, Wavelength, Power, false, "400", "700", "2"},
};

}  // namespace

const AxisGraph* FindAxisGraph(int type, int subType) {
  const auto row = std::ranges::find_if(graphs, [=](const AxisGraph& graph) {
    return graph.type == type && (graph.subType == subType || graph.subType == 0);
  });
  return row == graphs.end() ? nullptr : &*row;
}

AxisCaptions CaptionsOf(const AxisGraph& graph) {
  const bool sphere = graph.type == 11;  // its captions name the sphere
  switch (graph.variable) {
    case Wavelength:
      return {graph.type == 18 ? "Wavelength" : "Wavelength scale", "nm"};
    case Radius:
      return {sphere ? "Radius of sphere" : "Radius", "\u00B5m"};
    case Diameter:
      return {sphere ? "Diameter of sphere" : "Diameter", "\u00B5m"};
    case AxisVariable::SizeParameter:
      return {"Size parameter x", ""};
    case RefractiveIndex:
      return {"Refractive index scale", ""};
    case Iterations:
      return {"Iterations", ""};
  }
  return {"", ""};
}

bool NeedsNoAngle(const AxisGraph& graph) {
  return graph.quantity != Intensity && graph.quantity != ScatteringMatrix && graph.quantity != Power;
}

}  // namespace lumivex
