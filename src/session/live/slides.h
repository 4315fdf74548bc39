#pragma once

#include <array>
#include <string>
#include <string_view>

#include "record/session.h"

namespace lumivex {

/// What a slider can sweep.
enum class Slid { Radius, Wavelength, Index, Temperature, Rays };
inline constexpr std::array allSlid = {Slid::Radius, Slid::Wavelength, Slid::Index, Slid::Temperature, Slid::Rays};

/// The range of a slider, and the numbers that its places stand for.
struct SlideRange {
  double low = 0, high = 1;
  bool logarithmic = false;  ///< equal ratios in place of equal differences, where both ends are above 0
  bool whole = false;        ///< whole numbers only

  /// The number at a place of the slider, 0 to 1, with as many digits as a thousandth of the range needs.
  std::string TextAt(double place) const;
  /// The place of a number; one beyond the range is at its end.
  double PlaceOf(double value) const;
};

/// What the inputs call it now: "Radius (um)", "Wavelength (um) in vacuo", "p".
std::string NameOfSlid(const Session& session, Slid what);
/// Whether the present graph and materials take it: a temperature belongs to water by its formula.
bool CanSlide(const Session& session, Slid what);
/// The number that stands there now, as text.
const std::string& SlidText(const Session& session, Slid what);
/// The range to begin with: about the present number for a size, else what is met in nature.
SlideRange RangeToBeginWith(const Session& session, Slid what);
/// What a control of the main window is called among these; radius for any other.
Slid SlidOf(const Session& session, const Control* control);

/// The user has moved the slider: as if the number had been typed. Moves that follow each other are one step of undo.
void UserSlides(Session& session, Slid what, const std::string& text);

/// Name of a picture of a film: "bow.png" and 12 give "bow_0012.png"; a name without an ending is taken for .png.
std::string FilmName(std::string_view path, int number);
/// Why a film cannot be saved under a name; empty where it can.
std::string FaultOfFilmName(std::string_view path);

}  // namespace lumivex
