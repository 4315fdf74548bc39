#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "materials/index/table_lookup.h"
#include "record/session.h"

namespace lumivex {

/// Whether an index that cannot be had is told to the user, or only by the empty result.
enum class LookupVoice { Aloud, Quiet };

/// Evaluates the selected models of sphere and medium at a vacuum wavelength (um).
///
/// Writes RefractReal, RefractImag, RefractMedium, RefRelImag and the three index fields (seven decimals; fields that
/// the user fixed or typed stay as typed), clears RIUserEdited and the labels' colours.
/// @return the real part of the relative index. A wavelength of 0 or less gives the ratio that stands in the fields and
///         changes nothing. Empty, with nothing changed, for the layered methods 13 and 17, which have indices of their
///         own; empty after "Help! RI of sphere undefined" or "Help! RI of medium undefined" where the index is not to
///         be had; RefractMedium and the fields then stay.
std::optional<double> RefRel(Session& session, double wavelength, LookupVoice voice = LookupVoice::Aloud);

/// Index n of a layer of a coated sphere by the name of its material; k goes to RefractImag.
///
/// Materials: "Fixed" (the layer's field in dlogCoatedSphere), "Water" (IAPWS at 5 C, k = 0), "Vacuum", "Glass" (a
/// crown glass), "Gold", "Silver", "Copper". "Fixed", "Vacuum" and "Glass" leave RefractImag alone. A metal read along
/// straight lines does not absorb, but for gold and silver at exactly the last row; copper never does, by cubics
/// either.
/// @param layer       1 the core, 2 the shell, 3 the medium.
/// @param wavelength  um.
/// @return nothing for an unknown name, or outside a metal's table.
std::optional<double> RIcoat(Session& session, int layer, double wavelength, std::string_view material);

/// The cubic through four points at x, into y. Two equal x_i are told ("All x values must be different"), and the
/// calculation goes on into its division by zero.
void LagrangeCubic(Session& session, double x1, double y1, double x2, double y2, double x3, double y3, double x4,
                   double y4, double x, double& y, LookupVoice voice = LookupVoice::Aloud);

/// What an index field shows of a value: seven decimals from 0.0001 to 10000, else the format "Scientific".
std::string IndexText(double value);

}  // namespace lumivex
