#include "record/catalogue/graph_texts.h"

#include <algorithm>
#include <array>

namespace lumivex {

namespace {

using enum Feature;

constexpr std::string_view micrometres = "\u00B5m";

constexpr std::array graphRows = {
    GraphRow{{1, 1}, "Intensity v. scattering angle", 1, AngleIntensity},
    GraphRow{{1, 2}, "Phase function", 3, AngleFamily},
    GraphRow{{1, 3}, "Watts/sq. m. v. scattering angle", 2, AngleFamily},
    GraphRow{{1, 4}, "Differential cross-section v. angle", 0, AngleFamily},
    GraphRow{{1, 5}, "Contour 2-angle", 0, AngleFamily},
    GraphRow{{1, 6}, "Scattering matrix", 4, AngleFamily},
    GraphRow{{1, 7}, "CPDF", 6, AngleFamily},
    GraphRow{{10, 1}, "Intensity v. wavelength", 10, AxisFamilies},
    GraphRow{{10, 2}, "Scattering matrix: wavelength", 5, AxisFamilies},
    GraphRow{{10, 10}, "Debye analysis", 0, DebyeSeries},
    GraphRow{{11, 1}, "Intensity v. radius", 11, AxisFamilies},
    GraphRow{{11, 2}, "Intensity v. size parameter x", 13, AxisFamilies},
    GraphRow{{11, 3}, "Intensity v. diameter", 12, AxisFamilies},
    GraphRow{{12, 0}, "Intensity v. refractive index", 14, AxisFamilies},
    GraphRow{{13, 0}, "Convergence", 0, AxisFamilies},
    GraphRow{{14, 1}, "Qext/Qsca/Qabs v. radius", 17, AxisFamilies},
    GraphRow{{14, 2}, "Cext/Csca/Cabs v. radius", 18, AxisFamilies},
    GraphRow{{14, 3}, "Qext/Qsca/Qabs v. size x", 21, AxisFamilies},
    GraphRow{{14, 4}, "Cext/Csca/Cabs v. size x", 22, AxisFamilies},
    GraphRow{{14, 5}, "Qext/Qsca/Qabs v. diameter", 19, AxisFamilies},
    GraphRow{{14, 6}, "Cext/Csca/Cabs v. diameter", 20, AxisFamilies},
    GraphRow{{14, 7}, "Qback v. radius", 25, AxisFamilies},
    GraphRow{{14, 8}, "Qback v. diameter", 26, AxisFamilies},
    GraphRow{{14, 9}, "Qback v. size x", 27, AxisFamilies},
    GraphRow{{14, 10}, "Qradar v. radius", 29, AxisFamilies},
    GraphRow{{14, 11}, "Qradar v. diameter", 30, AxisFamilies},
    GraphRow{{14, 12}, "Qradar v. size x", 31, AxisFamilies},
    GraphRow{{15, 1}, "Qext/Qsca/Qabs v. wavelength", 23, AxisFamilies},
    GraphRow{{15, 2}, "Cext/Csca/Cabs v. wavelength", 24, AxisFamilies},
    GraphRow{{15, 9}, "Qback v. wavelength", 28, AxisFamilies},
    GraphRow{{15, 12}, "Qradar v. wavelength", 32, AxisFamilies},
    GraphRow{{15, 13}, "Qext/Qsca/Qabs impulse response", 0, Feature::ImpulseResponse},
    GraphRow{{16, 1}, "Asymmetry g v. radius", 33, AxisFamilies},
    GraphRow{{16, 2}, "Asymmetry g v. size x", 34, AxisFamilies},
    GraphRow{{16, 3}, "Asymmetry g v. wavelength", 35, AxisFamilies},
    GraphRow{{17, 1}, "Albedo v. radius", 36, AxisFamilies},
    GraphRow{{17, 2}, "Albedo v. size x", 37, AxisFamilies},
    GraphRow{{17, 3}, "Albedo v. wavelength", 38, AxisFamilies},
    GraphRow{{18, 1}, "Scattered power v. radius", 7, AxisFamilies},
    GraphRow{{18, 2}, "Scattered power v. diameter", 8, AxisFamilies},
    GraphRow{{18, 3}, "Scattered power v. wavelength", 9, AxisFamilies},
    GraphRow{{19, 1}, "Impulse response", 49, Feature::ImpulseResponse},
    GraphRow{{20, 1}, "Lee diagram: radius", 15, LeeDiagrams},
    GraphRow{{20, 2}, "Lee diagram: refractive index", 16, LeeDiagrams},
    GraphRow{{22, 1}, "Map: angle v. RI of sphere", 39, Maps},
    GraphRow{{22, 2}, "Map: angle v. RI of medium", 40, Maps},
    GraphRow{{23, 1}, "Map: angle v. imaginary RI", 41, Maps},
    GraphRow{{24, 1}, "Map: angle v. radius", 42, Maps},
    GraphRow{{25, 1}, "Map: angle v. wavelength", 43, Maps},
    GraphRow{{26, 1}, "Map: Q v. RI & size x", 46, Maps},
    GraphRow{{26, 2}, "Map: Q1 v. RI and size x", 0, Maps},
    GraphRow{{26, 4}, "Map: RI v. size x", 45, Maps},
    GraphRow{{27, 1}, "Map: Q v. Imag RI & size x", 47, Maps},
    GraphRow{{28, 1}, "Map: Q v. Real RI & Imag RI", 48, Maps},
    GraphRow{{28, 3}, "Map: real RI v. imag RI", 44, Maps},
    GraphRow{{30, 0}, "Vol: Int v. xPart", 0, VolumeGraphs},
    GraphRow{{31, 0}, "Vol: Int v. N", 0, VolumeGraphs},
    GraphRow{{32, 0}, "Vol: Int v. time", 0, VolumeGraphs},
    GraphRow{{33, 0}, "Vol: Int v. radius", 0, VolumeGraphs},
    GraphRow{{34, 0}, "Rainbow v. clock angle", 0, NonSphericalDrops},
};

constexpr std::array axisStarts = {
    AxisStart{{10, 1}, false, "400", "700", "0.5"},   AxisStart{{10, 2}, false, "400", "700", "0.5"},
    AxisStart{{11, 1}, false, "1", "20", "0.02"},     AxisStart{{11, 2}, false, "1", "100", "0.1"},
    AxisStart{{11, 3}, false, "2", "40", "0.04"},     AxisStart{{12, 0}, false, "1.2", "1.6", "0.0005"},
    AxisStart{{13, 0}, false, "1", "100", "1"},       AxisStart{{14, 1}, true, "0.01", "100", "1000"},
    AxisStart{{14, 2}, true, "0.01", "100", "1000"},  AxisStart{{14, 3}, true, "0.1", "1000", "1000"},
    AxisStart{{14, 4}, true, "0.1", "1000", "1000"},  AxisStart{{14, 5}, true, "0.02", "200", "1000"},
    AxisStart{{14, 6}, true, "0.02", "200", "1000"},  AxisStart{{14, 7}, true, "0.01", "100", "1000"},
    AxisStart{{14, 8}, true, "0.02", "200", "1000"},  AxisStart{{14, 9}, true, "0.1", "1000", "1000"},
    AxisStart{{14, 10}, true, "0.01", "100", "1000"}, AxisStart{{14, 11}, true, "0.02", "200", "1000"},
    AxisStart{{14, 12}, true, "0.1", "1000", "1000"}, AxisStart{{15, 1}, false, "400", "700", "0.5"},
    AxisStart{{15, 2}, false, "400", "700", "0.5"},   AxisStart{{15, 9}, false, "400", "700", "0.5"},
    AxisStart{{15, 12}, false, "400", "700", "0.5"},  AxisStart{{15, 13}, false, "400", "700", "0.5"},
    AxisStart{{16, 1}, true, "0.01", "100", "1000"},  AxisStart{{16, 2}, true, "0.1", "1000", "1000"},
    AxisStart{{16, 3}, true, "10", "10000", "2000"},  AxisStart{{17, 1}, true, "0.01", "100", "1000"},
    AxisStart{{17, 2}, true, "0.1", "1000", "1000"},  AxisStart{{17, 3}, true, "10", "10000", "2000"},
    AxisStart{{18, 1}, false, "1", "20", "0.1"},      AxisStart{{18, 2}, false, "2", "40", "0.2"},
    AxisStart{{18, 3}, false, "400", "700", "2"},     AxisStart{{30, 0}, false, "0", "20", "0.02"},
    AxisStart{{31, 0}, false, "1", "100", "1"},       AxisStart{{32, 0}, false, "0", "10", "0.01"},
    AxisStart{{33, 0}, false, "1", "5", "0.01"},      AxisStart{{34, 0}, false, "0", "180", "1"},
};

/// What an axis is called.
struct AxisText {
  AxisVariable axis;
  std::string_view title, frequencyTitle;
  std::string_view frame, unit;  ///< caption of the inputs' frame, unit of the limits
};

constexpr std::array axisTexts = {
    AxisText{AxisVariable::Angle, "Scattering angle (deg.)", "Frequency (1/deg.)", "Angle scale", "deg"},
    AxisText{AxisVariable::Wavelength, "Wavelength (nm)", "Frequency (1/nm)", "Wavelength scale", "nm"},
    AxisText{AxisVariable::Radius, "Radius (\u00B5m)", "Frequency (1/\u00B5m)", "Radius", micrometres},
    AxisText{AxisVariable::Diameter, "Diameter (\u00B5m)", "Frequency (1/\u00B5m)", "Diameter", micrometres},
    AxisText{AxisVariable::SizeParameter, "Size parameter x", "Size parameter x", "Size parameter x", ""},
    AxisText{AxisVariable::RefractiveIndex, "Refractive index", "Refractive index", "Refractive index scale", ""},
    AxisText{AxisVariable::Terms, "Convergence", "Convergence", "Iterations", ""},
    AxisText{AxisVariable::CrossSection, "", "", "Horizontal scale", "sq \u00B5m"},
    AxisText{AxisVariable::Time, "Time (s)", "Frequency (1/s)", "Time", "s"},
    AxisText{AxisVariable::PulseTime, "Time (femtoseconds)", "Time (femtoseconds)", "Wavelength scale", "fs"},
    AxisText{AxisVariable::Number, "Number of spheres N", "Number of spheres N", "Number of spheres N", ""},
    AxisText{AxisVariable::Place, "Position x of one sphere (\u00B5m)", "Frequency (1/\u00B5m)",
             "Position of one sphere", micrometres},
    AxisText{AxisVariable::Clock, "Clock angle (deg.)", "Frequency (1/deg.)", "Clock angle", "deg"},
};

const AxisText& TextOf(AxisVariable axis) {
  static constexpr AxisText none{AxisVariable::Angle, "", "", "", ""};
  const auto row = std::ranges::find(axisTexts, axis, &AxisText::axis);
  return row == axisTexts.end() ? none : *row;
}

/// A quantity's unit, and its curves where they are not polarisations.
struct QuantityText {
  Quantity quantity;
  std::string_view unit;
  std::array<std::string_view, 3> curves;
};

constexpr std::array<std::string_view, 3> polarisations = {"Perpendicular polarisation", "Parallel polarisation",
                                                           "Unpolarised"};
constexpr std::array quantityTexts = {
    QuantityText{Quantity::Irradiance, "W/sq m", polarisations},
    QuantityText{Quantity::DifferentialCrossSection, "sq m/sr", polarisations},
    QuantityText{Quantity::RangeCrossSections, "sq \u00B5m", polarisations},
    QuantityText{Quantity::ScatteringMatrix, "", {"S11", "S11", "S11"}},
    QuantityText{Quantity::Efficiencies, "", {"Qext", "Qsca", "Qabs"}},
    QuantityText{Quantity::CrossSections, "sq m", {"Cext", "Csca", "Cabs"}},
    QuantityText{Quantity::Qback, "", {"Qback", "Qback", "Qback"}},
    QuantityText{Quantity::Qradar, "", {"Qradar", "Qradar", "Qradar"}},
    QuantityText{Quantity::Asymmetry, "", {"Asymmetry parameter g", "Asymmetry parameter g", "Asymmetry parameter g"}},
    QuantityText{Quantity::Albedo, "", {"Albedo", "Albedo", "Albedo"}},
    QuantityText{Quantity::Power, "W", polarisations},
    QuantityText{Quantity::BowAngle, "deg", {"Bow p = 2", "Bow p = 3", "Bow p = 4"}},
};

const QuantityText& TextOf(Quantity quantity) {
  static constexpr QuantityText plain{Quantity::Intensity, "", polarisations};
  const auto row = std::ranges::find(quantityTexts, quantity, &QuantityText::quantity);
  return row == quantityTexts.end() ? plain : *row;
}

}  // namespace

std::span<const GraphRow> GraphTable() {
  return graphRows;
}

const GraphRow* FindGraph(std::string_view text) {
  const auto row =
      std::ranges::find_if(graphRows, [text](const GraphRow& r) { return r.text == text && IsAvailable(r.feature); });
  return row == graphRows.end() ? nullptr : &*row;
}

std::vector<std::string> OfferedGraphs() {
  std::vector<const GraphRow*> rows;
  for (const auto& row : graphRows)
    if (row.place > 0 && IsAvailable(row.feature)) rows.push_back(&row);
  std::ranges::sort(rows, {}, &GraphRow::place);
  std::vector<std::string> texts;
  texts.reserve(rows.size());
  for (const auto* row : rows) texts.emplace_back(row->text);
  return texts;
}

const AxisStart* FindAxisStart(const Graph& graph) {
  const auto row = std::ranges::find(axisStarts, graph.code, &AxisStart::code);
  return row == axisStarts.end() ? nullptr : &*row;
}

AxisCaptions CaptionsOf(const Graph& graph) {
  const AxisText& text = TextOf(graph.axis);
  // Intensities against size name the sphere; the scale of a power is named in its own frame.
  const bool ofSphere = graph.quantity == Quantity::Intensity;
  if (ofSphere && graph.axis == AxisVariable::Radius) return {"Radius of sphere", text.unit};
  if (ofSphere && graph.axis == AxisVariable::Diameter) return {"Diameter of sphere", text.unit};
  // The wavelengths of a pulse stand in the place of an axis.
  if (graph.axis == AxisVariable::PulseTime) return {text.frame, "nm"};
  if (graph.quantity == Quantity::Power && graph.axis == AxisVariable::Wavelength) return {"Wavelength", text.unit};
  return {text.frame, text.unit};
}

std::string_view XTitleOf(const Graph& graph, XAxisChange change) {
  const AxisText& text = TextOf(graph.axis);
  if (change.invWavelength && !change.fourier && graph.WavelengthAxis()) return "Inverse wavelength (1/\u00B5m)";
  const bool spectrum = graph.AgainstAngle() || graph.quantity == Quantity::Intensity ||
                        graph.quantity == Quantity::ScatteringMatrix ||
                        (graph.axis == AxisVariable::Wavelength && graph.OfEfficiencies() &&
                         graph.quantity != Quantity::Asymmetry && graph.quantity != Quantity::Albedo);
  return change.fourier && spectrum ? text.frequencyTitle : text.title;
}

std::string_view YTitleOf(const Graph& graph, bool amplitude) {
  switch (graph.quantity) {
    case Quantity::Intensity:
      return amplitude ? " Amplitude" : " Intensity";
    case Quantity::PhaseFunction:
      return "Phase";
    case Quantity::DifferentialCrossSection:
      return "sq m/sr";
    case Quantity::CumulativeProbability:
      return "CPDF";
    case Quantity::Efficiencies:
      return "Efficiency";
    case Quantity::CrossSections:
      return "Area (sq m)";
    case Quantity::Qback:
      return "Qback";
    case Quantity::Qradar:
      return "Qradar";
    case Quantity::Asymmetry:
      return "Asymmetry";
    case Quantity::Albedo:
      return "Albedo";
    case Quantity::Power:
      return "Power (W)";
    case Quantity::ScatteringMatrix:
      return " S11";
    case Quantity::BowAngle:
      return "Angle";
    default:
      return "";
  }
}

std::string_view YTitleSecondLineOf(const Graph& graph, YTitleLook look) {
  switch (graph.quantity) {
    case Quantity::Intensity:
      if (!look.invWavelength) return "";
      return look.amplitude ? " (m)" : " (sq m)";
    case Quantity::PhaseFunction:
      return "function";
    case Quantity::Efficiencies:
      return look.perVolume ? "(1/\u00B5m)" : "";
    case Quantity::CrossSections:
      return look.perVolume ? "per cu \u00B5m" : "";
    case Quantity::BowAngle:
      return "(deg)";
    default:
      return "";
  }
}

std::string_view SecondTitleOf(bool phases) {
  return phases ? "Phase angle" : "Degree of linear polarisation";
}

std::string_view XUnitOf(const Graph& graph, XAxisChange change) {
  if (change.fourier) return "";
  if (change.invWavelength && graph.WavelengthAxis()) return "1/\u00B5m";
  return TextOf(graph.axis).unit;
}

std::string_view YUnitOf(const Graph& graph, YTitleLook look) {
  if (graph.quantity == Quantity::Intensity && look.invWavelength) return look.amplitude ? "m" : "sq m";
  if (look.perVolume && graph.quantity == Quantity::Efficiencies) return "1/\u00B5m";
  if (look.perVolume && graph.quantity == Quantity::CrossSections) return "sq m/cu \u00B5m";
  return TextOf(graph.quantity).unit;
}

std::string_view CurveNameOf(const Graph& graph, CurveKind kind) {
  return TextOf(graph.quantity).curves[static_cast<std::size_t>(kind) - 1];
}

std::string_view RatioNameOf(CurveKind kind) {
  static constexpr std::array<std::string_view, 3> names = {"S12/S11", "S33/S11", "S34/S11"};
  return names[static_cast<std::size_t>(kind) - 1];
}

}  // namespace lumivex
