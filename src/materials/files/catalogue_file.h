#pragma once

#include <array>
#include <istream>
#include <string>
#include <vector>

namespace lumivex {

/// A material of the Sellmeier catalogue: B1, B2, B3, C1, C2, C3 (um^2) and the limits of wavelength (um; 0 and 0 are
/// none), as the texts that stand in the file.
struct CatalogueEntry {
  std::string name;
  std::array<std::string, 8> numbers;
};

struct Catalogue {
  std::vector<CatalogueEntry> entries;
  std::string failure;  ///< empty, or what is wrong and where: then there are no entries
};

/// Reads "Dispersion.rxi": the marker "Lumivex: Coefficients for Sellmeier equation", a line that is not tested, a
/// version above 3999, the number of entries, then for each an empty line, its name and eight numbers.
Catalogue ReadCatalogueFile(std::istream& stream);

/// The same as a file's content. The numbers are kept in single precision, each as the shortest text that reads back
/// as the same; a text that is no number counts as 0, as an empty limit does.
std::string CatalogueText(const std::vector<CatalogueEntry>& entries);

}  // namespace lumivex
