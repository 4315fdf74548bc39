#pragma once

#include <string>
#include <vector>

#include "materials/index/table_lookup.h"

namespace lumivex {

/// A measured table of n and k, read from a file; first index 1, row 0 stands empty.
struct IndexTable {
  std::string name;            ///< of the material
  std::vector<float> lambda;   ///< ascending (um)
  std::vector<IndexRow> rows;  ///< n and k
  int count = 0;               ///< the last row
  int endRow = fileEndRow;     ///< the row that stands for exactly the last wavelength (see LookUpFile)

  FileTable View() const { return {lambda, rows, count, endRow}; }
  void Add(float wavelength, float n, float k);
};

}  // namespace lumivex
