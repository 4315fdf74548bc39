#pragma once

#include "colour/wavelength_colour.h"
#include "record/session.h"

namespace lumivex {

/// The saturation and gamma rules ticked in the menus.
SaturationRule SaturationTicked(const Form1& form);
GammaRule GammaTicked(const Form1& form);

/// Three channels as one colour, each clipped to 0 to 255.
Colour ToColour(ColourTriple channels);

/// Sets ForeColour to the line colour ticked in the menus and SecondLineColour to its darker shade; the true colour is
/// that of Lambda.
void LineColour(Session& session);

/// Sets ForeColour to the false colour of ColourValue: a grey where the number in cboBright is not positive; the ramp
/// of ratios for the maps of Q; otherwise the rainbow of a logarithm below zero.
void ColourScale(Session& session);

/// Sets ForeColour to three channels, each clipped at 255.
void ColourSet(Session& session, double r, double g, double b);

/// Draws the key of the false colours over the graph, from 0 at the left to -7 at the right, in a black box.
void cmdColourTest_Click(Session& session);

}  // namespace lumivex
