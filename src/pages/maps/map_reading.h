#pragma once

#include <optional>

#include "pages/read_out.h"

namespace lumivex {

/// A cell of a picture.
struct MapCell {
  std::size_t picture = 0;
  int column = 0, row = 0;  ///< from 0, the lowest row first
};

/// Reads a map at a place of the surface: the values of both sides there, then the nearest cell with its channels and
/// the wavelength that gives most to it, or its value. Nothing outside the pictures; of a cell that was not calculated
/// the sides alone.
std::optional<GraphReading> ReadMap(const Page& page, double surfaceX, double surfaceY);

/// The reading of a cell, as if the pointer stood in its middle.
GraphReading ReadCell(const Page& page, MapCell cell);

/// The cell that a reading tells of.
MapCell CellOf(const Page& page, const GraphReading& reading);

}  // namespace lumivex
