#pragma once

#include "record/layout/panel_layout.h"

namespace lumivex {

/// Lines of the dialogs of flattened drops and of dew.
inline constexpr LayoutLine nonSphericalLines[] = {
    {{"frmShape"}},
    {{"optSpheroid", "optBurgeroid"}},
    {{"optRatioSize", "optRatioTyped", "txtAxisRatio"}},
    {{"frmLight"}},
    {{"lblElevation", "txtElevation", "chkAllRound"}},
    {{"lblClock", "txtClock", "lblClockWidth", "txtClockWidth"}},
    {{"frmOrders"}},
    {{"chkP0", "chkP1", "chkP2", "chkP3", "chkP4"}},
    {{"lblRayCount", "cboRayCount", "chkSky"}},
    {{"lblDrop"}},
    {{"picDrop"}},
};
inline constexpr LayoutLine heiligenscheinLines[] = {
    {{"lblDistance", "txtDistance"}},
    {{"lblSlope", "txtSlope"}},
};

inline constexpr DialogLayout dropDialogLayouts[] = {
    {"dlogNonSpherical", nonSphericalLines},
    {"dlogHeiligenschein", heiligenscheinLines},
};

}  // namespace lumivex
