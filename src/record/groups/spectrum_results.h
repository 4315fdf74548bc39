#pragma once

#include <string>
#include <type_traits>
#include <vector>

#include "axes/table2d.h"

namespace lumivex {

/// What a run of several wavelengths leaves: the intensity of each wavelength by row, which Replot weighs anew, and the
/// sums over the spectrum by row. First index 1 throughout; element 0 is unused.
struct SpectrumResults {
  int ResultWavelengths = 1;  ///< wavelengths of the results that are stored; 1 for a run of a single one
  int WavelengthsDone = 0;    ///< of them, those that were calculated, from the first: fewer after a Stop
  std::string ResultSource;   ///< their light source by name
  int ResultSamples = 1;      ///< sizes of the cloud that they belong to; 1 for a single size
  int SpectrumRowLow = 1;     ///< first and last row that hold results
  int SpectrumRowHigh = 0;

  /// |S1|^2 and |S2|^2, in a size distribution their means: element (i - 1) n + j - SpectrumRowLow + 1 is wavelength i
  /// at row j, with n rows. Neither weighed by the light source nor divided by the square of the wave number.
  std::vector<double> WavelengthPerp;
  std::vector<double> WavelengthPar;
  std::vector<double> WavelengthWaveNumber;  ///< 2 pi n_medium / wavelength of each (1/m)

  // Sums over the wavelengths that were done, of intensity times weight of the light source. Row j is the row of the
  // curves; column 0 is the total, columns 1, 2 and 3 are red, green and blue (each wavelength by its own triple, 0 to
  // 1), columns 4 to 7 are free.
  Table2D ColourPerp;  ///< perpendicular polarisation
  Table2D ColourPar;   ///< parallel
  Table2D ColourMain;  ///< their mean: unpolarised light
};

/// Columns of the three tables.
inline constexpr std::size_t colourColumns = 8;

template <class Group, class Visitor>
requires std::is_same_v<std::remove_const_t<Group>, SpectrumResults>
void ForEachField(Group& g, Visitor&& visit) {
  visit("ResultWavelengths", g.ResultWavelengths);
  visit("WavelengthsDone", g.WavelengthsDone);
  visit("ResultSource", g.ResultSource);
  visit("ResultSamples", g.ResultSamples);
  visit("SpectrumRowLow", g.SpectrumRowLow);
  visit("SpectrumRowHigh", g.SpectrumRowHigh);
  visit("WavelengthPerp", g.WavelengthPerp);
  visit("WavelengthPar", g.WavelengthPar);
  visit("WavelengthWaveNumber", g.WavelengthWaveNumber);
  visit("ColourPerp", g.ColourPerp);
  visit("ColourPar", g.ColourPar);
  visit("ColourMain", g.ColourMain);
}

}  // namespace lumivex
