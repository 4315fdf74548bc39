#pragma once

#include <string>
#include <string_view>

#include "record/page.h"
#include "runs/curves.h"
#include "runs/results.h"

namespace lumivex {

/// How a run is written into the output of a batch.
struct BatchBlockLook {
  CurveLook curves;
  bool diameter = false;         ///< the size was asked for as a diameter
  bool amplitudes = false;       ///< S1 and S2 follow the curves
  std::string_view dateAndTime;  ///< as it is to stand there
};

/// The block of one run in the output of a batch: groups of lines, each ended by an empty line; labels and values are
/// parted by tabs. What was asked comes first (program, time, method, materials, the parameters that the graph leaves
/// fixed), then the name of the graph, the rows, and a line of asterisks.
///
/// Where the groups of a graph have no place for something that the run was asked (the radius of a graph against
/// wavelength, the sizes of a cloud, a spectrum), one further group before the name of the graph has it.
/// @param page  of the run: of charts of two angles and maps the rows are those of its tables.
std::string BatchBlock(const Results& results, const Page& page, const BatchBlockLook& look);

}  // namespace lumivex
