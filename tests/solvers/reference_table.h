#pragma once

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "source_folder.h"

namespace lumivex::testing {

/// The rows of a table of reference values: comments (#) and the line of column names are left out.
inline std::vector<std::vector<double>> ReadReferenceTable(const std::string& name) {
  const std::string path = SourceFolder() + "/tests/reference/" + name;
  std::ifstream file(path);
  if (!file) throw std::runtime_error("cannot read " + path);
  std::vector<std::vector<double>> rows;
  std::string line;
  bool names = true;
  while (std::getline(file, line)) {
    if (line.empty() || line[0] == '#') continue;
    if (names) {
      names = false;
      continue;
    }
    std::vector<double> row;
    std::istringstream cells(line);
    for (std::string cell; std::getline(cells, cell, ',');) row.push_back(std::strtod(cell.c_str(), nullptr));
    rows.push_back(row);
  }
  return rows;
}

}  // namespace lumivex::testing
