#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "pages/compare/compare_page.h"
#include "record/session.h"

namespace lumivex {

/// What a user does to compare curves. Each of these is a step of undo, and the page in the main window follows at
/// once. Names that no curve has do nothing.

/// The curves of the page and the measured data along its axis, hidden ones too.
std::vector<ListedCurve> CurvesOnPage(const Session& session);

/// Gives a curve or data a name; an empty one is its own again.
void NameCurve(Session& session, const CurveId& id, const std::string& name);
void ShowCurve(Session& session, const CurveId& id, bool shown);
/// Nothing: the colour that its run gives it.
void ColourCurve(Session& session, const CurveId& id, std::optional<Colour> colour);
/// Holds a curve over the runs to come, in a colour of its own; or lets it go, which takes one whose run has left the
/// page with it.
void KeepCurve(Session& session, const CurveId& id, bool kept);
/// Takes a curve off the page and out of the list; data are forgotten.
void RemoveCurve(Session& session, const CurveId& id);

/// Shows the first curve less the second, or over it, below the graph. One that is measured data is held against the
/// other.
void ComparePair(Session& session, const CurveId& first, const CurveId& second, BelowGraph how);
/// What the panel below the graph shows of pairs and data; with Nothing pairs are forgotten.
void ShowBelow(Session& session, BelowGraph how);

/// Takes up measured data, which are held against the first curve of the page with a fitted factor, and shows their
/// ratio to it below the graph, where nothing is shown there yet. A curve of the last run gives way to that of the next
/// one. @return its number.
int AddMeasured(Session& session, std::shared_ptr<const MeasuredPoints> points, const std::string& name);
/// Nothing: the factor is fitted.
void ScaleData(Session& session, int number, std::optional<double> factor);
void HoldAgainst(Session& session, int number, const CurveId& id);
/// The data of that number; null where there are none.
const MeasuredData* FindData(const Session& session, int number);

/// Puts the key into the plot, or with nothing below the graph again. Moves that follow each other are one step.
void MoveKey(Session& session, std::optional<KeyPlace> place);

/// Marks the point of a curve that is nearest to a place of the surface. @return whether there is a curve.
bool MarkPoint(Session& session, double surfaceX, double surfaceY);
void DeleteMarker(Session& session, int number);
void ClearMarkers(Session& session);
/// The marked points as a table with a heading, parted by a separator.
std::string MarkersAsText(const Comparison& comparison, char separator);

/// A run of New plot has come to the page: names, colours and pairs of curves that have gone are dropped.
void BeginNewPlot(Session& session, const Page& page);

/// The window of curves; a page without anything on it stands for it in the session.
void mnuCurves_Click(Session& session);
void mnuMarkPoints_Click(Session& session);

}  // namespace lumivex
