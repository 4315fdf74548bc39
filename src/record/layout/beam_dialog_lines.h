#pragma once

#include "record/layout/panel_layout.h"

namespace lumivex {

/// Lines of the dialogs of focused beams.
inline constexpr LayoutLine gaussianBeamLines[] = {
    {{"lblBeamXF", "txtBeamXF"}},
    {{"lblBeamYF", "txtBeamYF"}},
    {{"lblBeamZF", "txtBeamZF"}},
    {{"lblBeamWo", "txtBeamWo"}},
    {{"lblPhi", "txtPhi"}},
    {{"chkLock"}},
    {{"Frame1"}},
    {{"lblWarning"}},
};
inline constexpr LayoutLine beamLimitsLines[] = {
    {{"lblMmax", "txtMmax"}},   {{"lblLmax", "txtLmax"}},   {{"lblMmax1", "txtMmax1"}},
    {{"lblJmax1", "txtJmax1"}}, {{"lblError", "txtError"}},
};

inline constexpr DialogLayout beamDialogLayouts[] = {
    {"dlogGaussianBeam", gaussianBeamLines},
    {"dlogMmax", beamLimitsLines},
};

}  // namespace lumivex
