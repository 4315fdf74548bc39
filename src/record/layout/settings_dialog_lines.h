#pragma once

#include "record/layout/panel_layout.h"

namespace lumivex {

/// Lines of the dialogs of settings.
inline constexpr LayoutLine calibrationLines[] = {
    {{"lblMeasured", "cmdMeasure"}},
    {{"lblCalibration", "txtCalibration"}},
    {{"lblExample"}},
    {{"chkFast"}},
};

inline constexpr DialogLayout settingsDialogLayouts[] = {
    {"dlogCalibration", calibrationLines},
};

}  // namespace lumivex
