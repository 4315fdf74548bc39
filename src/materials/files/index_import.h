#pragma once

#include <istream>

#include "materials/files/index_file.h"

namespace lumivex {

/// Reads a table of other programs: lines of wavelength, n and perhaps k, parted by commas, semicolons, blanks or tabs.
///
/// Wavelengths are in micrometres; "nm" in a line of headings says nanometres. A heading "k" without "n" begins a
/// second block that gives k by wavelength. A missing k is 0. Lines of text and lines that begin with # are passed
/// over. Rows may stand in any order; of equal wavelengths the first counts.
IndexFileResult ReadIndexCsv(std::istream& stream);

/// Reads an index file in the YAML layout of the database refractiveindex.info: its blocks "tabulated nk", "tabulated
/// n", "tabulated k" and "formula 1" to "formula 9" (M. N. Polyanskiy, Sci. Data 11, 94, 2024). A formula becomes a
/// table of 1001 rows, equally spaced in the logarithm of the wavelength over its range; k comes from its own block,
/// straight between its rows and 0 outside.
IndexFileResult ReadIndexYaml(std::istream& stream);

}  // namespace lumivex
