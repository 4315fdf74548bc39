#pragma once

#include <span>
#include <string_view>

#include "record/session.h"

namespace lumivex {

/// An event of the menus of this folder and what it does.
struct GraphEvent {
  std::string_view name;
  void (*handler)(Session&);
};

/// The events of the menus that shape the graph: sizes, backgrounds, line colours, pens, grid lines, the logo, second
/// panels, averaging and interpolation, the polar plot, saturation and gamma, and the colour test.
std::span<const GraphEvent> LookEvents();

/// Sizes: each sets the plot box and the polar circle, ticks itself and replots; while the session is busy it presses
/// New plot instead. "Very large" follows the surface and alone enables mnuSizeVariable.
void mnuLarge_Click(Session& session);
void mnuMedium_Click(Session& session);
void mnuSmall_Click(Session& session);
void mnuVLarge_Click(Session& session);
/// Large bold text for slides, on white (a polar plot on the default background); a second click goes back.
void mnuSizeSpecial_Click(Session& session);
/// On: very large. Off: large on a screen of up to 1024 pixels, else very large.
void mnuSizeVariable_Click(Session& session);
/// Plot box and polar circle of the size that is ticked.
void SetTickedGeometry(Session& session);
/// Distance of the panels of a map in the size that is ticked; a third of the surface in the very large one, with air.
double TickedPanelWidth(const Session& session);
/// The size and the colours that are ticked, where the ticks were not clicked but taken back.
void TakeTickedLook(Session& session);

/// Backgrounds: each sets the colours of plot box and logo, ticks itself and replots.
void mnuDefault_Click(Session& session);
void mnuWhite_Click(Session& session);
void mnuGrey_Click(Session& session);
void mnuBlack_Click(Session& session);
/// What the backgrounds share: enables Replot and unticks all four.
void BackgroundColour(Session& session);

/// What the line colours share: unticks them all, enables Replot, and cboLee for maps.
void PlotLineColour(Session& session);
void mnuTrueColour_Click(Session& session);
/// Asks for a colour in dlogPlotColour; a cancelled dialog changes nothing.
void mnuMoreColours_Click(Session& session);

/// What the pens share: untick them all and enable Replot.
void PlotLineStyle(Session& session);
void PlotDrawWidth(Session& session);

/// Turns the polar plot on or off and replots. Turning it on is refused with a message titled "Option not available"
/// for graphs of intensity and polarisation, for an angle range other than 0 to 180 degrees without a plane wave, and
/// for more than one wavelength.
void mnuPolarPlot_Click(Session& session);

/// The row of the angle tables nearest to txtAngle (degrees), from 1 to 2 NANG - 1.
int AngleDelta(const Session& session);

/// Second panels exclude each other; both replot.
void mnuAmpPhase_Click(Session& session);
void mnuIntPol_Click(Session& session);
/// Moduli instead of intensities; replots.
void mnuAmplitude_Click(Session& session);
void mnuInterpolate_Click(Session& session);
/// Intensities freed of the square of the wave number; the replot fills the curves anew.
void mnuInvWavelength_Click(Session& session);
/// A rectangular sun instead of a round one, for curves folded with its disc.
void mnuSun_Click(Session& session);
/// Turned on, asks for the width in dlogAverage (not while settings are restored); a cancelled dialog leaves it off.
void mnuAverage_Click(Session& session);
/// A width that is not positive is marked and told.
void dlogAverage_OKButton_Click(Session& session);

void mnuPhoto_Click(Session& session);
void mnuSaturated_Click(Session& session);
/// Turned on, the map on show becomes the scale of all that follow; without one the next becomes it.
void mnuMapNormalise_Click(Session& session);

/// The scale of bars: the unpolarised one by itself, or all by the reference of the page on show, which later pages
/// keep until the entry is clicked again.
void mnuNormalised_Click(Session& session);
void mnuSetNormal_Click(Session& session);
/// Another brightness: a number draws the bars anew, any other text is marked.
void cboBright_Change(Session& session);

}  // namespace lumivex
