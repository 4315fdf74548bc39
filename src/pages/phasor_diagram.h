#pragma once

#include "record/groups/graph_state.h"
#include "record/session.h"
#include "solvers/angles/amplitude_table.h"

namespace lumivex {

/// Which terms of the diagram have their number beside the dot.
struct DotLabels {
  enum class Rule {
    All,       ///< every term
    UpToTerm,  ///< terms up to the number
    AboveSize  ///< terms of at least 10^-number times the top of the scale
  };
  Rule rule = Rule::All;
  int number = 0;
};

/// Which polarisation a set of terms belongs to: cboPol chooses which are drawn.
enum class DotSeries { Perpendicular, Parallel };

/// The phasor diagram: the terms of a series at one point as dots in the complex plane, phase clockwise from the top,
/// modulus outward on the scale from ymin to ymax. On a plain run (PlotMode 1) the circle with its decades is drawn
/// first. Term 1 is labelled " Mie", term j with j - 1.
///
/// Where the surface is too narrow for the circle at its place, it is smaller and stands further left.
///
/// @param a            terms, rows 1 to `count`.
/// @param ymin, ymax   values at the centre and at the rim.
void PlotDots(Session& session, const AmplitudeTable& a, int count, double ymin, double ymax,
              const DotLabels& labels = {}, DotSeries series = DotSeries::Perpendicular);

/// Draws the Debye analysis that stands in the record (DebyeDots1, DebyeDots2) with the present scale, labels and
/// polarisations: circle, dots, and the terms as a table in the box beside it. A new surface, as a frame is.
void DrawDebyeAnalysis(Session& session);

/// Whether the graph on the screen is that.
bool ShowsDebyeAnalysis(const GraphState& graph);

}  // namespace lumivex
