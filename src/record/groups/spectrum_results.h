#pragma once

#include <type_traits>

#include "axes/table2d.h"

namespace lumivex {

/// What a run of several wavelengths leaves: the sums over the spectrum by row. First index 1; element 0 is unused.
struct SpectrumResults {
  int ResultWavelengths = 1;  ///< wavelengths of the results that are stored; 1 for a run of a single one
  int WavelengthsDone = 0;    ///< of them, those that were calculated, from the first: fewer after a Stop

  // Sums over the wavelengths that were done, of intensity times weight of the light source. Row j is the row of the
  // curves; column 0 is the total, columns 1, 2 and 3 are red, green and blue (each wavelength by its own triple, 0 to
  // 1), columns 4 to 7 are free.
  Table2D ColourPerp;  ///< perpendicular polarisation
  Table2D ColourPar;   ///< parallel
  Table2D ColourMain;  ///< their mean: unpolarised light

  /// Colours of the bars as they are painted, a row an angle in view, first row 1: column 0 is the angle (degrees),
  /// columns 1 to 3 are red, green and blue (0 to 255) of perpendicular, 4 to 6 of parallel, 7 to 9 of unpolarised
  /// light.
  Table2D SimColourTable;
  double BarScale = 0;         ///< sum that the bars on show paint with full brightness; 0 without bars
  double BarMaximumPerp = 0;   ///< greatest channel in view of the perpendicular bar
  double BarMaximumPar = 0;    ///< of the parallel one
  double BarMaximumUnpol = 0;  ///< of the unpolarised one
};

inline constexpr std::size_t simColourColumns = 10;

/// Columns and rows of the three tables: 0 to 180 degrees in steps of 0.01.
inline constexpr std::size_t colourColumns = 8;
inline constexpr int mostSpectrumRows = 18001;

/// Gives the three tables rows 0 to mostSpectrumRows and colourColumns columns, all 0.
inline void SizeColourTables(SpectrumResults& results) {
  for (Table2D* table : {&results.ColourMain, &results.ColourPerp, &results.ColourPar})
    table->Resize(mostSpectrumRows + 1, colourColumns);
}

template <class Group, class Visitor>
requires std::is_same_v<std::remove_const_t<Group>, SpectrumResults>
void ForEachField(Group& g, Visitor&& visit) {
  visit("ResultWavelengths", g.ResultWavelengths);
  visit("WavelengthsDone", g.WavelengthsDone);
  visit("ColourPerp", g.ColourPerp);
  visit("ColourPar", g.ColourPar);
  visit("ColourMain", g.ColourMain);
  visit("SimColourTable", g.SimColourTable);
  visit("BarScale", g.BarScale);
  visit("BarMaximumPerp", g.BarMaximumPerp);
  visit("BarMaximumPar", g.BarMaximumPar);
  visit("BarMaximumUnpol", g.BarMaximumUnpol);
}

}  // namespace lumivex
