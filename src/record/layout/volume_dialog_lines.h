#pragma once

#include "record/layout/panel_layout.h"

namespace lumivex {

/// Lines of the dialog of the volume graphs.
inline constexpr LayoutLine volumeLines[] = {
    {{"lblCount", "txtCount"}},
    {{"lblSide", "txtSide"}},
    {{"lblSeed", "txtSeed"}},
    {{"lblNote"}},
};

inline constexpr DialogLayout volumeDialogLayouts[] = {
    {"dlogVolume", volumeLines},
};

}  // namespace lumivex
