#pragma once

#include <optional>

#include "record/session.h"
#include "sky/paint_sky.h"

namespace lumivex {

/// Whether inputs that cannot be used are told, and marked, or only found out: a preview bothers nobody.
enum class Telling { Aloud, Quiet };

/// Holds the three background boxes, of which the integer part counts, against 0 to 255.
/// @return whether they can be used.
bool ErrorRGB(Session& session, Telling telling = Telling::Aloud);

/// The focal length in pixels, from the one typed and the shape of the picture, into ImageFocal.
/// @return whether it can be used: one that is not above 0 cannot.
bool ScaleCalc(Session& session, Telling telling = Telling::Aloud);

/// Columns and rows that hold the chosen quadrants, into XFrom to YTo: quarters about the middle of the picture.
/// @return whether any is chosen.
bool QuadSelect(Session& session);

/// Camera, pose and light as the controls have them; ScaleCalc has been called. Nothing where they cannot be used: an
/// input that is no number, an arc that is not marked, or marks on one line.
std::optional<Sight> ReadSight(Session& session, Telling telling);

/// Whether the three marks of an arc have no circle through them, and the words for it.
bool MarksOnOneLine(const Session& session);
inline constexpr const char* onOneLine = "The three points lie on one line: there is no arc through them";

/// All that a painting needs, with the colours of Simulation's light by the rules of the Colour menu.
std::optional<SkyPainting> ReadPainting(Session& session, Telling telling);

/// Whether light is added to the photograph, which needs no background.
bool PaintsOver(const Form2& form);

/// What is being looked for in the picture.
enum class PointKind { Antisolar, Sun, AltitudeAzimuth, Arc };
PointKind ChosenPoint(const Form2& form);

}  // namespace lumivex
