#pragma once

#include "record/session.h"

namespace lumivex {

/// The window of the answer at one angle; made with a surface of its own when it is first asked for.
Window& ImpulseWindow(Session& session);

/// Calculates the answer at a scattering angle (degrees) with what the last results were asked with, draws it over the
/// times of the further axis and shows the window. Efficiencies have no angle: they are drawn as they are.
///
/// Tells the user where the last results are no answer to a pulse. A run that is stopped leaves the window as it was.
void OpenImpulsePlot(Session& session, double angle);

/// Draws the curves of the window as its inputs ask for them. Limits that make no axis are told, and draw nothing.
void IPgraph(Session& session);

/// After a run: the window can be drawn anew of it.
void OfferImpulsePlot(Session& session);

/// One curve of the window as rows of time and intensity, by its kind: 1 and 2 are those of InversePlot.
struct ImpulseCurveRows {
  const std::vector<double>* time = nullptr;
  const std::vector<double>* value = nullptr;
};
/// Null rows where the page does not have the curve.
ImpulseCurveRows ImpulseCurve(const Page& page, int kind);

/// A click on the window's picture (surface units): time and the intensities of both curves at the nearest sample. To
/// the left and to the right of the graph it does nothing.
void InversePlot(Session& session, double x, double y);

/// The page on the surface that the window has now.
void DrawImpulsePlot(Session& session);

// Events of the window.
void ImpulsePlot_Change(Session& session);
void ImpulsePlot_cmdReplot_Click(Session& session);
void ImpulsePlot_cmdClose_Click(Session& session);
void ImpulsePlot_mnuPicture_Click(Session& session);

}  // namespace lumivex
