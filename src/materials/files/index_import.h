#pragma once

#include <istream>

#include "materials/files/index_file.h"

namespace lumivex {

/// Reads a table of other programs: lines of wavelength, n and perhaps k, parted by commas, semicolons, blanks or tabs;
/// with semicolons, tabs or blanks a comma may stand for the decimal point.
///
/// A line of headings before the first row names columns in any order: n, k and the wavelength (or "energy",
/// "wavenumber") with its unit as a word, angstrom (A), nm, um, mm, m, eV or cm-1; wavelengths without one are in
/// micrometres. Another unit, and names other than those of an index where n and k are looked for, are refused. Without
/// headings the columns are wavelength, n and k. A heading "k" without "n" further down begins a block that gives k by
/// wavelength; any other heading there is refused. A missing column k is 0. Titles before the first row and lines that
/// begin with # are passed over; any other line must be a row without empty cells. Rows may stand in any order; of
/// equal wavelengths the first counts.
IndexFileResult ReadIndexCsv(std::istream& stream);

/// Reads an index file in the YAML layout of the database refractiveindex.info: its blocks "tabulated nk", "tabulated
/// n", "tabulated k" and "formula 1" to "formula 9" (M. N. Polyanskiy, Sci. Data 11, 94, 2024). A formula becomes a
/// table of 1001 rows, equally spaced in the logarithm of the wavelength over its range; k comes from its own block,
/// straight between its rows and 0 outside. Other kinds of block, lines of a table that are no rows, and a formula that
/// gives no number somewhere in its range are refused.
IndexFileResult ReadIndexYaml(std::istream& stream);

}  // namespace lumivex
