#pragma once

#include <istream>
#include <string>
#include <vector>

namespace lumivex {

enum class SpectrumFileFault { None, FirstLine, Minimum, Maximum, Data };

/// A measured spectrum; first index 1, element 0 stands 0.
struct SpectrumFile {
  SpectrumFileFault fault = SpectrumFileFault::None;
  std::string detail;                   ///< for Data: the line and what is wrong
  std::vector<double> wavelength{0.0};  ///< nm
  std::vector<double> value{0.0};       ///< relative
  float minimum = 0, maximum = 0;       ///< as the header tells (nm)
  int points = 0;
  bool nonUniform = false;
};

/// Reads the format .spe: "Lumivex", a line, "non-uniform" or anything, a line, three numbers (minimum, maximum and
/// step; the third is the number of rows of a non-uniform file), two lines, the rows (wavelength in nanometres,
/// relative intensity). The first and last wavelength must be the minimum and maximum, compared in single precision.
/// The others of a uniform file must stand within a quarter of a step of where they are counted; those of a non-uniform
/// file must not descend, nor its intensities be negative.
SpectrumFile ReadSpectrumFile(std::istream& stream);

}  // namespace lumivex
