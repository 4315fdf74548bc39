#pragma once

#include "record/session.h"

namespace lumivex {

/// Turned on, proposes the largest power of two of points that the curves hold, asks in dlogFFT and replots; a
/// cancelled dialog leaves it off. Turned off, enables Replot and leaves everything else. Curves without equal steps or
/// of several wavelengths have no spectrum, which is told.
void mnuFFT_Click(Session& session);

/// Transforms take equal steps: with logarithmic ones nothing but the way back is offered.
void OfferTransform(Session& session);

/// Tells a length that is no power of two, which a script or a file can set while no dialog looks.
/// @return whether there is nothing against a transform of the length, or none is wanted.
bool LengthHolds(Session& session);

/// The dialog is shown.
void AskFourier(Session& session);

/// Its fields as they are typed: the points must lie within the curves, the frequencies within half the inverse of the
/// step, where limits beyond are put back; the button is for good fields only.
void dlogFFT_Change(Session& session);
void dlogFFT_Inputs_Click(Session& session);

}  // namespace lumivex
