#include "catalogue/graph.h"

#include <algorithm>
#include <array>

namespace lumivex {

namespace {

using F = Family;
using A = AxisVariable;
using Q = Quantity;
using D = Drawing;
using M = MethodsTaken;

constexpr std::array rows = {
    Graph{{1, 1}, F::Angle, A::Angle, Q::Intensity, D::Curves, M::Any},
    Graph{{1, 2}, F::Angle, A::Angle, Q::PhaseFunction, D::Curves, M::Any},
    Graph{{1, 3}, F::Angle, A::Angle, Q::Irradiance, D::Curves, M::Any},
    Graph{{1, 4}, F::Angle, A::Angle, Q::DifferentialCrossSection, D::Curves, M::Any},
    Graph{{1, 5}, F::TwoAngle, A::CrossSection, Q::RangeCrossSections, D::TwoAngleChart, M::MieAlone},
    Graph{{1, 6}, F::Angle, A::Angle, Q::ScatteringMatrix, D::MatrixPanels, M::MieInstead},
    Graph{{1, 7}, F::Angle, A::Angle, Q::CumulativeProbability, D::Curves, M::Any},
    Graph{{10, 1}, F::Axis, A::Wavelength, Q::Intensity, D::Curves, M::Any},
    Graph{{10, 2}, F::Axis, A::Wavelength, Q::ScatteringMatrix, D::MatrixPanels, M::MieInstead},
    Graph{{10, 10}, F::DebyeAnalysis, A::Terms, Q::Remainder, D::PhasorDiagram, M::DebyeAlone},
    Graph{{11, 1}, F::Axis, A::Radius, Q::Intensity, D::Curves, M::Any},
    Graph{{11, 2}, F::Axis, A::SizeParameter, Q::Intensity, D::Curves, M::Any},
    Graph{{11, 3}, F::Axis, A::Diameter, Q::Intensity, D::Curves, M::Any},
    Graph{{12, 0}, F::Axis, A::RefractiveIndex, Q::Intensity, D::Curves, M::Any},
    Graph{{13, 0}, F::Convergence, A::Terms, Q::Intensity, D::Curves, M::Series},
    Graph{{14, 1}, F::Axis, A::Radius, Q::Efficiencies, D::Curves, M::SeriesAndClosedForms},
    Graph{{14, 2}, F::Axis, A::Radius, Q::CrossSections, D::Curves, M::SeriesAndClosedForms},
    Graph{{14, 3}, F::Axis, A::SizeParameter, Q::Efficiencies, D::Curves, M::SeriesAndClosedForms},
    Graph{{14, 4}, F::Axis, A::SizeParameter, Q::CrossSections, D::Curves, M::SeriesAndClosedForms},
    Graph{{14, 5}, F::Axis, A::Diameter, Q::Efficiencies, D::Curves, M::SeriesAndClosedForms},
    Graph{{14, 6}, F::Axis, A::Diameter, Q::CrossSections, D::Curves, M::SeriesAndClosedForms},
    Graph{{14, 7}, F::Axis, A::Radius, Q::Qback, D::Curves, M::SeriesAndClosedForms},
    Graph{{14, 8}, F::Axis, A::Diameter, Q::Qback, D::Curves, M::SeriesAndClosedForms},
    Graph{{14, 9}, F::Axis, A::SizeParameter, Q::Qback, D::Curves, M::SeriesAndClosedForms},
    Graph{{14, 10}, F::Axis, A::Radius, Q::Qradar, D::Curves, M::SeriesAndClosedForms},
    Graph{{14, 11}, F::Axis, A::Diameter, Q::Qradar, D::Curves, M::SeriesAndClosedForms},
    Graph{{14, 12}, F::Axis, A::SizeParameter, Q::Qradar, D::Curves, M::SeriesAndClosedForms},
    Graph{{15, 1}, F::Axis, A::Wavelength, Q::Efficiencies, D::Curves, M::Series},
    Graph{{15, 2}, F::Axis, A::Wavelength, Q::CrossSections, D::Curves, M::Series},
    Graph{{15, 9}, F::Axis, A::Wavelength, Q::Qback, D::Curves, M::Series},
    Graph{{15, 12}, F::Axis, A::Wavelength, Q::Qradar, D::Curves, M::Series},
    Graph{{15, 13}, F::PulseAnswer, A::PulseTime, Q::Efficiencies, D::Curves, M::Series},
    Graph{{16, 1}, F::Axis, A::Radius, Q::Asymmetry, D::Curves, M::Series},
    Graph{{16, 2}, F::Axis, A::SizeParameter, Q::Asymmetry, D::Curves, M::Series},
    Graph{{16, 3}, F::Axis, A::Wavelength, Q::Asymmetry, D::Curves, M::Series},
    Graph{{17, 1}, F::Axis, A::Radius, Q::Albedo, D::Curves, M::Series},
    Graph{{17, 2}, F::Axis, A::SizeParameter, Q::Albedo, D::Curves, M::Series},
    Graph{{17, 3}, F::Axis, A::Wavelength, Q::Albedo, D::Curves, M::Series},
    Graph{{18, 1}, F::Axis, A::Radius, Q::Power, D::Curves, M::Any},
    Graph{{18, 2}, F::Axis, A::Diameter, Q::Power, D::Curves, M::Any},
    Graph{{18, 3}, F::Axis, A::Wavelength, Q::Power, D::Curves, M::Any},
    Graph{{19, 1}, F::Impulse, A::PulseTime, Q::Intensity, D::ColourImage, M::Any},
    Graph{{20, 1}, F::Lee, A::Radius, Q::Intensity, D::ColourImage, M::Any},
    Graph{{20, 2}, F::Lee, A::RefractiveIndex, Q::Intensity, D::ColourImage, M::Any},
    Graph{{22, 1}, F::AngleMap, A::RefractiveIndex, Q::Intensity, D::ColourImage, M::Any},
    Graph{{22, 2}, F::AngleMap, A::RefractiveIndex, Q::Intensity, D::ColourImage, M::Any},
    Graph{{23, 1}, F::AngleMap, A::RefractiveIndex, Q::Intensity, D::ColourImage, M::Any},
    Graph{{24, 1}, F::AngleMap, A::Radius, Q::Intensity, D::ColourImage, M::Any},
    Graph{{25, 1}, F::AngleMap, A::Wavelength, Q::Intensity, D::ColourImage, M::Any},
    Graph{{26, 1}, F::EfficiencyMap, A::RefractiveIndex, Q::Efficiencies, D::ColourImage, M::Series},
    Graph{{26, 2}, F::EfficiencyMap, A::RefractiveIndex, Q::Efficiencies, D::ColourImage, M::Series},
    Graph{{26, 4}, F::EfficiencyMap, A::RefractiveIndex, Q::Intensity, D::ColourImage, M::Any},
    Graph{{27, 1}, F::EfficiencyMap, A::RefractiveIndex, Q::Efficiencies, D::ColourImage, M::Series},
    Graph{{28, 1}, F::EfficiencyMap, A::RefractiveIndex, Q::Efficiencies, D::ColourImage, M::Series},
    Graph{{28, 3}, F::EfficiencyMap, A::RefractiveIndex, Q::Intensity, D::ColourImage, M::Any},
    Graph{{30, 0}, F::Volume, A::Place, Q::Intensity, D::Curves, M::Any},
    Graph{{31, 0}, F::Volume, A::Number, Q::Intensity, D::Curves, M::Any},
    Graph{{32, 0}, F::Volume, A::Time, Q::Intensity, D::Curves, M::Any},
    Graph{{33, 0}, F::Volume, A::Radius, Q::Intensity, D::Curves, M::Any},
    Graph{{34, 0}, F::Axis, A::Clock, Q::BowAngle, D::Curves, M::DropsAlone},
};

constexpr std::array sweptRows = {
    SweptQuantities{{19, 1}, Swept::Time, std::nullopt},
    SweptQuantities{{20, 1}, Swept::Radius, std::nullopt, true},
    SweptQuantities{{20, 2}, Swept::SphereIndex, std::nullopt},
    SweptQuantities{{22, 1}, Swept::SphereIndex, std::nullopt},
    SweptQuantities{{22, 2}, Swept::MediumIndex, std::nullopt},
    SweptQuantities{{23, 1}, Swept::SphereAbsorption, std::nullopt},
    SweptQuantities{{24, 1}, Swept::Radius, std::nullopt},
    SweptQuantities{{25, 1}, Swept::Wavelength, std::nullopt},
    SweptQuantities{{26, 1}, Swept::SphereIndex, Swept::SizeParameter},
    SweptQuantities{{26, 2}, Swept::SphereIndex, Swept::SizeParameter},
    SweptQuantities{{26, 4}, Swept::SphereIndex, Swept::SizeParameter},
    SweptQuantities{{27, 1}, Swept::SphereAbsorption, Swept::SizeParameter},
    SweptQuantities{{28, 1}, Swept::SphereIndex, Swept::SphereAbsorption},
    SweptQuantities{{28, 3}, Swept::SphereIndex, Swept::SphereAbsorption},
};

bool Sweeps(const Graph& graph, Swept quantity) {
  const SweptQuantities* swept = FindSwept(graph);
  return swept != nullptr && (swept->columns == quantity || swept->rows == quantity);
}

}  // namespace

bool Graph::VariesIndex() const {
  const bool alongAxis = family == Family::Axis && axis == AxisVariable::RefractiveIndex;
  return alongAxis || Sweeps(*this, Swept::SphereIndex) || Sweeps(*this, Swept::SphereAbsorption);
}

bool Graph::VariesMedium() const {
  return Sweeps(*this, Swept::MediumIndex);
}

const SweptQuantities* FindSwept(const Graph& graph) {
  const auto row = std::ranges::find(sweptRows, graph.code, &SweptQuantities::code);
  return row == sweptRows.end() ? nullptr : &*row;
}

std::span<const Graph> GraphTraitsTable() {
  return rows;
}

const Graph& GraphOf(GraphCode code) {
  const auto row = std::ranges::find_if(rows, [code](const Graph& graph) {
    return graph.code.type == code.type && (graph.code.subType == code.subType || graph.code.subType == 0);
  });
  return row == rows.end() ? rows.front() : *row;
}

}  // namespace lumivex
