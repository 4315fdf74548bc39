#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "record/session.h"

namespace lumivex {

/// What the script commands look up and print; each is independent of the script that asks.

/// A control by "NAME" (of Form1) or "FORM.NAME", whatever the case; null where there is none.
Control* FindControl(Session& session, std::string_view name);

/// A value as `get` prints it: of a control, of one of its looks ("txtRadius.Visible"), or of a scalar of the record.
std::optional<std::string> ReadValue(Session& session, std::string_view name);

/// The stored curve's displayed points as CSV; of a chart of two angles, and where curves
/// are compared, what the page shows.
std::string CurveTable(const Session& session);

/// The amplitudes of the displayed rows, or of the points of an x-axis run, as CSV.
std::string AmplitudeRows(const Session& session);

/// An array of the record, one row a line; nothing where there is no array of that name.
std::optional<std::string> ArrayRows(Session& session, std::string_view name);

/// The window of that form, whatever the case; null where the form has no page.
Window* FindWindow(Session& session, std::string_view form);

/// The operations of a window's drawing, one a line.
std::string DrawingLines(const Window& window);

/// Whether a list may be set to a text: it holds it, or the tables of methods or graphs know it and can do it.
bool ListTakes(const SelectionList& list, std::string_view text);

}  // namespace lumivex
