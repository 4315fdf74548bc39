#pragma once

#include <cstdint>
#include <vector>

#include "runs/results.h"

namespace lumivex {

/// The cells of one column while its wavelengths come in: sums in double precision of intensity times weight, of a
/// spectrum by red, green and blue, and which wavelength gave most to each cell. Written into the map once it is whole.
class ColumnSums {
 public:
  /// What a wavelength counts with.
  struct Weight {
    double intensity = 1;
    double red = 1, green = 1, blue = 1;
  };

  /// @param window    rows of the grid that the cells are.
  /// @param spectrum  whether cells have channels.
  ColumnSums(RowWindow window, bool spectrum);

  /// Empties the sums.
  void Begin();
  /// Adds |S1|^2 and |S2|^2 of a wavelength (from 1).
  void Add(const AmplitudeTable& S1, const AmplitudeTable& S2, const Weight& weight, int wavelength);
  void Write(MapFound& map, int column) const;

 private:
  struct Panel {
    std::vector<double> first, green, blue;  ///< of one wavelength `first` is the value, of a spectrum red
    std::vector<double> most;
    std::vector<std::uint16_t> strongest;
  };
  void Add(Panel& panel, const AmplitudeTable& S, const Weight& weight, int wavelength) const;

  RowWindow window_;
  bool spectrum_;
  Panel perpendicular_, parallel_;
};

/// A map without a column: every cell is 0.
/// @param panels  2 of intensities, 3 of efficiencies.
MapFound EmptyMap(int columns, int rows, int panels, bool spectrum);

/// The same map with no more than its first columns; what other threads are at beyond them is not looked at.
MapFound FirstColumns(const MapFound& map, int columns);

/// A map of one wavelength, of which all columns stand, with no more than its lowest rows; what other threads are at
/// above them is not looked at.
MapFound FirstRows(const MapFound& map, int rows);

}  // namespace lumivex
