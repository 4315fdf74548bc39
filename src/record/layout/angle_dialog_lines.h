#pragma once

#include "record/layout/panel_layout.h"

namespace lumivex {

/// Lines of the dialogs of graphs against angle.
inline constexpr LayoutLine twoAngleLines[] = {
    {{"lblAngle1", "txtAngle1min", "txtAngle1max"}},
    {{"lblAngle2", "txtAngle2min", "txtAngle2max"}},
    {{"", "lblMin", "lblMax", "lblStep"}},
    {{"lblRI", "txtRImin", "txtRImax", "txtRIstep"}},
    {{"lblRadius", "txtRmin", "txtRmax", "txtRstep"}},
};

inline constexpr LayoutLine fourierLines[] = {
    {{"lblFFT", "cboFFT"}},
    {{"lblThetaMin", "txtThetaMin"}},
    {{"lblThetaMax", "txtThetaMax"}},
    {{"lblFmin", "txtFmin"}},
    {{"lblFmax", "txtFmax"}},
    {{"optFFTreal", "optFFTcomplex"}},
    {{"chkSqrt"}},
};

inline constexpr DialogLayout angleDialogLayouts[] = {
    {"dlogTwoAngle", twoAngleLines},
    {"dlogFFT", fourierLines},
};

}  // namespace lumivex
