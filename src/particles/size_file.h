#pragma once

#include <istream>
#include <string>
#include <vector>

namespace lumivex {

enum class SizeFileFault {
  None,
  Format,  ///< the first line or the kind of table is wrong
  Data     ///< detail names the line
};

/// How the numbers of a file are to be taken.
struct SizeFileOptions {
  bool normalise = true;  ///< divide all numbers by their sum
  bool perWidth = false;  ///< divide the number of a class by its width
};

/// A table of sizes, as radii (um); first index 1, element 0 stands 0.
struct SizeFile {
  SizeFileFault fault = SizeFileFault::None;
  std::string detail;
  bool sizeWordMissing = false;  ///< version 301 without "radius" or "diameter" in line 14: sizes are taken as radii
  bool uniform = true;
  int count = 0;
  std::vector<float> size{0.0F};    ///< as given, or the lower end of a class
  std::vector<float> upper{0.0F};   ///< upper end of a class; 0 in a uniform table
  std::vector<float> middle{0.0F};  ///< of a class; 0 in a uniform table
  std::vector<float> number{0.0F};
  float lowest = 0, highest = 0;  ///< limits of the distribution
  double total = 0;               ///< sum of the numbers after all divisions
  double peak = 0;                ///< the largest of them
};

/// Reads the format .dis: "Lumivex 300" or "Lumivex 301", twelve lines of free text, for 301 "radius" or "diameter",
/// the unit of size, "Uniform" or "Non uniform", the number of rows, the rows (size and number, or lower size, upper
/// size and number).
///
/// Three peculiarities that files rely on: the unit "m" means 1e9 um; a uniform table is in micrometres whatever its
/// unit says; a diameter in a uniform table halves the number as well as the size.
SizeFile ReadSizeFile(std::istream& stream, const SizeFileOptions& options);

}  // namespace lumivex
