#pragma once

#include <istream>
#include <string>

#include "materials/index/index_table.h"

namespace lumivex {

/// What is wrong with an index file.
enum class IndexFileFault {
  None,
  FirstLine,  ///< no file of this kind; detail is what the line reads, as far as it can be quoted
  Unit,       ///< line 14
  Type,       ///< line 15
  Data        ///< detail names the line
};

struct IndexFileResult {
  IndexFileFault fault = IndexFileFault::None;
  std::string detail;
  IndexTable table;
};

/// Most rows of a table.
inline constexpr int mostTableRows = 32767;

/// Reads the format .rix: "Lumivex 300", eleven lines of free text, the material's name, the unit of wavelength, "Real"
/// or "Complex", the number of rows, the rows (wavelength, n and for "Complex" k). A line is an item (see InputItems).
/// Wavelengths become micrometres in single precision. That they ascend is not tested. A row with more numbers than its
/// type has, and whatever follows the last row, make the file a damaged one: nothing is left out in silence.
IndexFileResult ReadIndexFile(std::istream& stream);

}  // namespace lumivex
