#pragma once

#include <span>

#include "record/layout/menu_tree.h"
#include "record/layout/panel_layout.h"

namespace lumivex {

/// Lines of the dialogs of answers to a pulse.
inline constexpr LayoutLine impulseLines[] = {
    {{"lblWavelength", "txtWavelength"}},
    {{"lblPulseShape", "cboPulseShape"}},
    {{"lblPulseDuration", "cboPulseDuration"}},
    {{"lblFFT", "cboFFT"}},
    {{"lblN", "cboN"}},
    {{"lbldB", "cbodB"}},
    {{"lblFC", "txtFC"}},
    {{"lblFM", "txtFM"}},
    {{"lblFD", "txtFD"}},
    {{"lblFS", "txtFS"}},
    {{"Picture1"}},
    {{"lblSpectrum", "optLinear", "optLog", "cmdPrint"}},
    {{"chkTimeDelay", "chkTimeRef", "chkSave"}},
};

inline constexpr LayoutLine timePlotLines[] = {
    {{"lblRaysGO", "txtRaysGO"}}, {{"lblStep", "cboStep"}}, {{"chkNS"}},     {{"lblRI_Surface", "txtRI_Surface"}},
    {{"lblB", "txtB"}},           {{"lblQ", "txtQ"}},       {{"chkValues"}}, {{"cmdGO", "cmdSW", "cmdClear"}},
};

inline constexpr DialogLayout impulseDialogLayouts[] = {
    {"dlogImpulse", impulseLines},
    {"dlogTimePlot", timePlotLines},
};

/// The panel of the window of one angle, and its menu bar.
inline constexpr LayoutLine plotAngleLines[] = {{{"cboTheta"}}};
inline constexpr LayoutLine plotPolLines[] = {{{"cboPol"}}};
inline constexpr LayoutLine plotIntensityLines[] = {
    {{"lblYmax", "cboYmax"}},
    {{"lblYmin", "cboYmin"}},
    {{"OptLog", "OptLinear"}},
};
inline constexpr LayoutLine plotTimeLines[] = {{{"lblXmin", "txtXmin"}}, {{"lblXmax", "txtXmax"}}};
inline constexpr LayoutLine plotCommandLines[] = {{{"cmdReplot"}}, {{"cmdClose"}}};

inline constexpr FrameLayout impulsePlotFrames[] = {
    {"Frame1", 0, plotAngleLines, 9}, {"Frame2", 0, plotPolLines, 11}, {"Frame3", 0, plotIntensityLines, 9},
    {"Frame4", 0, plotTimeLines, 9},  {"", 0, plotCommandLines, 9},
};

inline constexpr MenuRow impulsePlotMenu[] = {
    {"File", "mnuSave", Feature::Always, "Ctrl+S"},
    {"File", "mnuPicture", Feature::Always, "Ctrl+P"},
};

}  // namespace lumivex
