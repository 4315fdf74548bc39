#pragma once

#include <optional>

#include "pages/look.h"
#include "sky/light_table.h"

namespace lumivex {

/// The light of the bars of a page, a row an angle of the run's range, in linear channels: 255 is what the bars paint
/// with full brightness; with the sectors of the clock where the run has them. Nothing without bars.
std::optional<LightTable> LightOfBars(const Page& page, XRange range, const ColourRules& rules);

/// The light of a column of a Lee diagram over radius.
struct LeeLight {
  LightTable table;
  double radius = 0;  ///< of the column (um)
};

/// The column whose radius is nearest to the one wanted, in equal ratios; of a cloud it is the mean over its sizes
/// already. Full brightness is the greatest value of the column, or with `look.absolute` that of the whole diagram.
/// @param lambda  of a diagram of one wavelength (um).
/// @return nothing where the page is no Lee diagram over radius, or the column was not calculated.
std::optional<LeeLight> LightOfLee(const Page& page, double radius, const ColourLook& look, double lambda);

}  // namespace lumivex
