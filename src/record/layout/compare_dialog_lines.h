#pragma once

#include "record/layout/panel_layout.h"

namespace lumivex {

/// Lines of the dialog of measured data.
inline constexpr LayoutLine measuredLines[] = {
    {{"lblPreview1"}},
    {{"lblPreview2"}},
    {{"lblPreview3"}},
    {{"lblPreview4"}},
    {{"lblPreview5"}},
    {{"lblXColumn", "cboXColumn"}},
    {{"lblYColumn", "cboYColumn"}},
    {{"lblErrorColumn", "cboErrorColumn"}},
    {{"lblDataName", "txtDataName"}},
};

inline constexpr DialogLayout compareDialogLayouts[] = {
    {"dlogMeasured", measuredLines},
};

}  // namespace lumivex
