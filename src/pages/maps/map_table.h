#pragma once

#include <string>
#include <vector>

#include "pages/page_table.h"

namespace lumivex {

/// A table of a map: what runs upward by rows, the lowest first, and what runs to the right by columns. Of a spectrum
/// each picture has a table for red, for green and for blue; otherwise it has one. Rows are those on show; columns
/// those that were calculated. Numbers are in single precision, and read back the same in it.
struct MapTable {
  std::string name;  ///< the picture, and the channel
  std::vector<TableColumn> columns;
};

/// How many tables a map has.
std::size_t MapTableCount(const PageMap& map);

/// One of them, from 0: a map of many cells fills some hundred MB as text, so that they are made one at a time.
MapTable MapTableOf(const PageMap& map, std::size_t number);

}  // namespace lumivex
