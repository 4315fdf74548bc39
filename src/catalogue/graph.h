#pragma once

#include <optional>
#include <span>

namespace lumivex {

/// How a graph is calculated: one kind of run each.
enum class Family {
  Angle,          ///< rows of scattering angle, at one wavelength or several
  TwoAngle,       ///< cross-sections into two ranges of angle, by radius and index
  Axis,           ///< points of wavelength, size or index
  Convergence,    ///< running sums of one series at one angle
  DebyeAnalysis,  ///< what is left of the Mie amplitude of one point after each Debye term
  PulseAnswer,    ///< what one sphere answers to a pulse of light, against time: efficiencies, or light at one angle
  Impulse,        ///< the same over angle and time
  Lee,
  AngleMap,
  EfficiencyMap,
  Volume,
};

/// What runs along the horizontal axis.
enum class AxisVariable {
  Angle,
  Wavelength,
  Radius,
  Diameter,
  SizeParameter,
  RefractiveIndex,
  Terms,         ///< number of terms of a series
  CrossSection,  ///< into a range of angles
  Time,
  PulseTime,  ///< femtoseconds
  Number,     ///< of spheres
  Place,      ///< of a sphere
  Clock,      ///< angle along a bow
};

/// What is calculated.
enum class Quantity {
  Intensity,
  PhaseFunction,
  Irradiance,  ///< Watts/m2 at a distance
  DifferentialCrossSection,
  RangeCrossSections,
  ScatteringMatrix,
  CumulativeProbability,
  Efficiencies,   ///< Qext, Qsca, Qabs
  CrossSections,  ///< Cext, Csca, Cabs
  Qback,
  Qradar,
  Asymmetry,
  Albedo,
  Power,      ///< scattered into a range of angles
  Remainder,  ///< of an amplitude, after terms have been taken away
  BowAngle,   ///< scattering angle of rainbows
};

/// How it is drawn.
enum class Drawing { Curves, MatrixPanels, TwoAngleChart, PhasorDiagram, ColourImage };

/// Which methods a graph takes.
enum class MethodsTaken {
  Any,
  MieAlone,              ///< others are refused
  MieInstead,            ///< others give way to Mie
  DebyeAlone,            ///< others are refused
  Series,                ///< those that sum partial waves
  SeriesAndClosedForms,  ///< those that have efficiencies
  DropsAlone,            ///< others are refused
};

/// The numbers by which files and scripts name a graph.
struct GraphCode {
  int type = 1;
  int subType = 1;  ///< 0 in the table below: any
  bool operator==(const GraphCode&) const = default;
};

/// One graph, as far as a run and the kinds of drawing need it.
struct Graph {
  GraphCode code;
  Family family = Family::Angle;
  AxisVariable axis = AxisVariable::Angle;
  Quantity quantity = Quantity::Intensity;
  Drawing drawing = Drawing::Curves;
  MethodsTaken methods = MethodsTaken::Any;

  /// Rows of scattering angle along the axis.
  bool AgainstAngle() const { return family == Family::Angle; }
  /// Scattering angles in any form: the two-angle chart is one of these graphs for the user.
  bool OfAngles() const { return family == Family::Angle || family == Family::TwoAngle; }
  /// Points along an axis, those of the families of one point included.
  bool AgainstAxis() const {
    return family == Family::Axis || family == Family::Convergence || family == Family::DebyeAnalysis ||
           family == Family::PulseAnswer || family == Family::Volume;
  }
  bool WavelengthAxis() const { return axis == AxisVariable::Wavelength && family == Family::Axis; }
  /// Calculated for the wavelengths of a pulse.
  bool OfPulse() const { return family == Family::PulseAnswer || family == Family::Impulse; }
  /// Wavelengths run along a side of it, so that the light is no other's.
  bool SweepsWavelength() const {
    return WavelengthAxis() || (family == Family::AngleMap && axis == AxisVariable::Wavelength);
  }
  /// The size of the sphere runs along the axis.
  bool SizeAxis() const {
    return axis == AxisVariable::Radius || axis == AxisVariable::Diameter || axis == AxisVariable::SizeParameter;
  }
  /// Intensity or its like at one scattering angle, which is asked for.
  bool AtOneAngle() const {
    return AgainstAxis() && (quantity == Quantity::Intensity || quantity == Quantity::ScatteringMatrix ||
                             quantity == Quantity::Remainder);
  }
  /// Efficiencies and what follows from them.
  bool OfEfficiencies() const {
    switch (quantity) {
      case Quantity::Efficiencies:
      case Quantity::CrossSections:
      case Quantity::Qback:
      case Quantity::Qradar:
      case Quantity::Asymmetry:
      case Quantity::Albedo:
        return true;
      default:
        return false;
    }
  }
  /// Quantities that can be told per volume of the spheres.
  bool TakesVolume() const {
    return family == Family::Axis && (quantity == Quantity::Efficiencies || quantity == Quantity::CrossSections);
  }
  /// Intensity against the size of the sphere.
  bool IntensityBySize() const { return SizeAxis() && family == Family::Axis && quantity == Quantity::Intensity; }
  /// Efficiencies of a spectrum: Q, C, Qback and Qradar.
  bool SpectrumOfEfficiencies() const {
    return WavelengthAxis() && OfEfficiencies() && quantity != Quantity::Asymmetry && quantity != Quantity::Albedo;
  }
  /// Absolute units, for which distance and incident light are asked.
  bool InUnitsOfLight() const {
    return quantity == Quantity::Irradiance || quantity == Quantity::DifferentialCrossSection ||
           quantity == Quantity::RangeCrossSections || quantity == Quantity::Power;
  }
  /// Calculated at one wavelength only.
  bool OneWavelengthOnly() const {
    return (OfAngles() && quantity != Quantity::Intensity) || AgainstAxis() || family == Family::Impulse ||
           family == Family::EfficiencyMap || (family == Family::AngleMap && axis == AxisVariable::Wavelength);
  }
  /// Whether its index of the sphere is one of its own, and no material's.
  bool VariesIndex() const;
  /// Whether its index of the medium is.
  bool VariesMedium() const;
  /// A map over real index and size parameter.
  bool MapsIndexAndSize() const { return code.type == 26; }
  /// Graphs of one type have their ranges in common: a change between them keeps what was typed.
  bool SharesRangesWith(const Graph& other) const { return code.type == other.code.type; }
  /// Integrals over all angles, so that the solver is asked for every row.
  bool NeedsAllRows() const {
    return AgainstAngle() && (quantity == Quantity::PhaseFunction || quantity == Quantity::Irradiance ||
                              quantity == Quantity::CumulativeProbability);
  }
  bool IsMap() const {
    return family == Family::AngleMap || family == Family::EfficiencyMap || family == Family::Impulse;
  }
  /// Columns of scattering angles.
  bool ColumnsOfAngles() const {
    return family == Family::Lee || family == Family::AngleMap || family == Family::Impulse;
  }
  /// Colours of cells: Lee diagrams and maps.
  bool InColour() const { return family == Family::Lee || IsMap(); }
  bool operator==(const Graph&) const = default;
};

/// What a map varies along one of its sides.
enum class Swept {
  Radius,            ///< um
  SphereIndex,       ///< real part
  SphereAbsorption,  ///< imaginary part
  MediumIndex,
  Wavelength,     ///< nm
  SizeParameter,  ///< of the sphere in its medium
  Time,           ///< fs, after a pulse
};

/// What a Lee diagram or a map varies from column to column, and from row to row where these are no angles.
struct SweptQuantities {
  GraphCode code;
  Swept columns = Swept::Radius;
  std::optional<Swept> rows;
  bool geometric = false;  ///< columns of equal ratios
};

/// The row of a Lee diagram or a map; null for any other graph.
const SweptQuantities* FindSwept(const Graph& graph);

/// All graphs, by code.
std::span<const Graph> GraphTraitsTable();

/// The graph of that code; where there is none, intensity against angle.
const Graph& GraphOf(GraphCode code);

}  // namespace lumivex
