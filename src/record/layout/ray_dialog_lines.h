#pragma once

#include "record/forms/ray_dialogs.h"
#include "record/layout/panel_layout.h"

namespace lumivex {

/// Lines of the dialogs of rays and Debye terms.
inline constexpr LayoutLine severalRaysLines[] = {
    {{rayBoxNames[0], rayBoxNames[1], rayBoxNames[2], rayBoxNames[3], rayBoxNames[4], rayBoxNames[5], rayBoxNames[6],
      rayBoxNames[7], rayBoxNames[8], rayBoxNames[9]}},
    {{rayBoxNames[10], rayBoxNames[11], rayBoxNames[12], rayBoxNames[13], rayBoxNames[14], rayBoxNames[15],
      rayBoxNames[16], rayBoxNames[17], rayBoxNames[18], rayBoxNames[19]}},
    {{rayBoxNames[20], rayBoxNames[21], rayBoxNames[22], rayBoxNames[23], rayBoxNames[24], rayBoxNames[25],
      rayBoxNames[26], rayBoxNames[27], rayBoxNames[28], rayBoxNames[29]}},
    {{rayBoxNames[30], rayBoxNames[31], rayBoxNames[32], rayBoxNames[33], rayBoxNames[34], rayBoxNames[35],
      rayBoxNames[36], rayBoxNames[37], rayBoxNames[38], rayBoxNames[39]}},
    {{rayBoxNames[40], rayBoxNames[41], rayBoxNames[42], rayBoxNames[43], rayBoxNames[44], rayBoxNames[45],
      rayBoxNames[46], rayBoxNames[47], rayBoxNames[48], rayBoxNames[49]}},
    {{rayBoxNames[50]}},
    {{"cmdSelectAll", "cmdSelectNone"}},
    {{"chkMultStep"}},
    {{"lblPmin", "txtPmin"}},
    {{"lblPmax", "txtPmax"}},
    {{"lblPstep", "txtPstep"}},
    {{"chkDiffraction"}},
};
inline constexpr LayoutLine debyeSequenceLines[] = {
    {{"lblLimit", "txtLimit"}}, {{"chkLabels"}}, {{"lblTerms", "txtTerms"}}, {{"optTerms"}}, {{"optDecades"}},
};
inline constexpr LayoutLine partialWavesLines[] = {
    {{"optFull"}},
    {{"optPartial"}},
    {{"lblMin", "txtMin"}},
    {{"lblMax", "txtMax"}},
};

inline constexpr DialogLayout rayDialogLayouts[] = {
    {"dlogP", severalRaysLines},
    {"dlogDebyeSeq", debyeSequenceLines},
    {"dlogPartial", partialWavesLines},
};

}  // namespace lumivex
