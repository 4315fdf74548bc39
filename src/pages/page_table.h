#pragma once

#include <string>
#include <vector>

#include "record/page.h"

namespace lumivex {

/// The numbers behind a page, as far as it shows them. Values that were not computed are empty; numbers read back as
/// the same values.
struct TableColumn {
  std::string name;
  std::vector<std::string> cells;
};

/// x once for curves that share it, then a column a curve, by the names that the key has, and of several wavelengths
/// the sums of red, green and blue of each bar. Of a two-angle chart the
/// radii of a run and both cross-sections of each index; of a phasor diagram the moduli and phases of what is left, by
/// number of terms taken away; of a map the first of its tables (pages/maps/map_table.h).
std::vector<TableColumn> TableOf(const Page& page);

/// The parameters of the runs, a line each; of several each under its number. CSV and text reports begin with them.
std::vector<std::string> HeaderOf(const Page& page);

/// The parameters of the runs for a picture: of one run its lines; of several first the lines that all have, then a
/// line a run with what is its own.
std::vector<std::string> HeaderInShort(const Page& page);

/// The table with a line of names above, parted by tabs, as a spreadsheet takes it from the clipboard; empty for an
/// empty page. A map has several under each other, with a name over each.
std::string TableAsText(const Page& page);

/// The same parted by commas.
std::string TableAsCsv(const Page& page);

/// That, after the parameters of the runs as comments, each begun with "# ".
std::string TableWithHeader(const Page& page);

}  // namespace lumivex
