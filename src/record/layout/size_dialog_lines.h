#pragma once

#include "record/layout/panel_layout.h"

namespace lumivex {

/// Lines of the dialogs of the size distributions.
inline constexpr LayoutLine distOptionLines[] = {{{"optNormalise"}}, {{"optActual"}}, {{"chkNormalise"}}};
inline constexpr LayoutLine distDisplayLines[] = {{{"optLogX"}}, {{"optLinearX"}}};
inline constexpr LayoutLine multiModalLines[] = {
    {{"", "lblMedian", "lblSpread", "lblFraction"}},
    {{"lblMode1", "txtMedian1", "txtSpread1", "txtFraction1"}},
    {{"chkMode2", "txtMedian2", "txtSpread2", "txtFraction2"}},
    {{"chkMode3", "txtMedian3", "txtSpread3", "txtFraction3"}},
    {{"lblSamples", "cboN"}},
};

inline constexpr DialogLayout sizeDialogLayouts[] = {
    {"dlogDistOption", distOptionLines},
    {"dlogDistDisplay", distDisplayLines},
    {"dlogMultiModal", multiModalLines},
};

}  // namespace lumivex
