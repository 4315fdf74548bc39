#pragma once

#include <string>

#include "files/file_dialogs.h"
#include "record/session.h"

namespace lumivex {

/// Text reports: the numbers of the page as a text that is read, and that spreadsheets take.

/// The report of a page: title and parameters of its runs as CSV has them, then the table of the page, parted by tabs.
/// @param results  where S1 and S2 are to follow: of the last run of the page; otherwise null.
std::string TextReport(const Page& page, const Results* results);

/// The convergence of a beam, row by row: moduli of what the parts with pi and with tau add, the sum so far over that
/// of the whole, and the L and M up to which it goes.
/// @param parallel  of the parallel polarisation in place of the perpendicular one.
std::string Save_MieGConv(const Results& results, bool parallel);

/// Under which kind a report of such a run is saved: many spheres in a volume, the convergence of a Gaussian beam and
/// impulses have kinds of their own.
SaveKind ReportKindOf(const RunRequest& asked);

/// Writes the report of the present graph. With "Include S1 and S2 in text" the amplitudes follow, where the graph
/// shows the results that are held.
/// @return empty, or in one sentence what went wrong.
std::string Save_Text(Session& session, const std::string& path);

/// Asks for a name and saves the report of the present graph.
void mnuSaveText_Click(Session& session);

}  // namespace lumivex
