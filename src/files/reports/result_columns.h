#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "runs/curves.h"
#include "runs/results.h"

namespace lumivex {

/// Columns of numbers under their headings, first index 1. A value that is not a number was not calculated.
struct ResultColumns {
  struct Column {
    std::string heading;
    std::vector<double> values;
  };
  std::vector<Column> columns;
  std::size_t first = 1, last = 0;  ///< rows that hold results; none when last < first
};

/// What runs along the axis of a graph: "Angle", "Wavelength", "Refractive index".
std::string AxisHeadingOf(const Graph& graph);

/// The curves of results as columns, before any average or sun's disc: the axis, of any axis but the angle both parts
/// of the refractive index of the sphere, and the values of the graph's quantity. Wavelengths are in nanometres,
/// whatever the look. None for a graph without curves: charts of two angles and maps.
ResultColumns CurveColumnsOf(const Results& results, const CurveLook& look);

/// What stands over the columns of amplitudes.
inline constexpr std::string_view amplitudesTitle =
    "Real and imaginary values of S1 (perpendicular polarisation) and S2 (parallel polarisation) ";

/// S1 and S2 of the same rows: real and imaginary part, magnitude and phase (degrees). None where there are none:
/// efficiencies, charts and maps. Of a spectrum those of the last wavelength.
ResultColumns AmplitudeColumnsOf(const Results& results);

/// A line of headings and a line a row, parted by tabs; numbers read back as the same values. Empty without rows.
std::string TextOfColumns(const ResultColumns& columns);

}  // namespace lumivex
