#pragma once

#include <initializer_list>

#include "files/results/file_lines.h"
#include "files/results/input_sheet.h"
#include "files/results/layout.h"
#include "record/session.h"
#include "runs/results.h"

namespace lumivex {

// What the layout has no lines for follows it in one block of our own: every input, the look, tables of files, and the
// results to the last digit. docs/results-file.md has it line by line.

/// The line that leads it.
inline constexpr std::string_view ownBlockLine = "Lumivex: every input and result of this run, layout 1";

/// What the scales of a page remember of the one before, and what cells are held against.
struct ScaleFields {
  ScaleMemory scale;
  double leeOverallMaximum = 0;
};

/// Walks the inputs of a sheet's session, by the names of forms and controls. Names that this program lacks are passed
/// over, and inputs that the file lacks stay as they are.
void WalkInputState(FileLines& lines, Session& sheet, InputState& state);

/// Walks inputs with the tables of input files that they use: indices, spectrum, sizes. What is read stands in the
/// session then, as far as it goes without events: Settle follows.
void WalkInputsAndTables(FileLines& lines, Session& sheet, InputState& state);

/// Lets graph, method, menus and names of a sheet follow from inputs that were read into it, and their codes in each of
/// the states; the first of them stands in the sheet then. Throws BadFile where there is no such method or graph.
void SettleInputs(InputSheet& sheet, std::initializer_list<InputState*> states);

void WalkScaleFields(FileLines& lines, ScaleFields& fields);

/// Walks what was found and of which sphere. When read, `results.asked` must be there: it says which family.
void WalkFound(FileLines& lines, Results& results);

/// What was found has the shape that was asked for: rows, points, cells and counts fit each other, and nothing lies
/// below 0 that cannot. Empty, or what does not.
std::string MisfitOf(const Results& results);

/// Results of the lines of the layout alone, where a file has no block of ours: intensities without phases. Nothing
/// where the layout keeps no numbers of that graph.
bool FillFromRows(const CurveRows& rows, Results& results);

/// The rows of results as the layout keeps them.
CurveRows RowsForFile(const Results& results, RowWindow window);

}  // namespace lumivex
