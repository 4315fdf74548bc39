#pragma once

#include <optional>

#include "session/record/session.h"

namespace lumivex {

/// Whether an index that cannot be had is told to the user, or only by the empty result.
enum class LookupVoice { Aloud, Quiet };

/// Evaluates the selected models of sphere and medium at a vacuum wavelength (um).
///
/// Writes RefractReal, RefractImag, RefractMedium, RefRelImag and the three index fields (seven decimals; fields that
/// the user fixed or typed stay as typed), clears RIUserEdited and the labels' colours.
/// @return the real part of the relative index. A wavelength of 0 or less gives the ratio that stands in the fields and
///         changes nothing. Empty, with nothing changed, for the layered methods 13 and 17, which have indices of their
///         own; empty after "Help! RI of sphere undefined" where the sphere's index is not to be had.
std::optional<double> RefRel(Session& session, double wavelength, LookupVoice voice = LookupVoice::Aloud);

/// What an index field shows of a value: seven decimals from 0.0001 to 10000, else the format "Scientific".
std::string IndexText(double value);

}  // namespace lumivex
