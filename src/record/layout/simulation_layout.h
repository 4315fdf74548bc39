#pragma once

#include <span>

#include "record/layout/menu_tree.h"
#include "record/layout/panel_layout.h"

namespace lumivex {

/// The panel of the simulation window, and its menu bar.
inline constexpr LayoutLine centreLines[] = {
    {{"cboPoint"}},   {{"lblX1", "txtX1"}}, {{"lblY1", "txtY1"}}, {{"lblSunElevation", "txtSunElevation"}},
    {{"cmdAnalyse"}}, {{"lblArc"}},
};
inline constexpr LayoutLine cameraLines[] = {
    {{"lblScale", "cboScale"}},
    {{"lblMapping", "cboMapping"}},
};
inline constexpr LayoutLine skyLightLines[] = {
    {{"lblPolarisation", "cboPolarisation"}},
    {{"lblView", "cboView"}},
    {{"optPlaneWave", "optDivergingLight"}},
    {{"lblD1", "txtD1"}},
    {{"lblD2", "txtD2"}},
};
inline constexpr LayoutLine paintLines[] = {
    {{"cboComposite"}},
    {{"lblStrength", "txtStrength"}},
    {{"lblBackground", "txtBackRed", "txtBackGreen", "txtBackBlue"}},
    {{"cmdQuadNW", "cmdQuadNE"}},
    {{"cmdQuadSW", "cmdQuadSE"}},
    {{"chkPreview"}},
};
inline constexpr LayoutLine skyLineLines[] = {
    {{"cmdCircle", "cboRStep"}},
    {{"cmdGrid", "cboGrid"}},
};
inline constexpr LayoutLine simulationCommandLines[] = {
    {{"cmdSimPlot"}}, {{"lblDropRadius", "txtDropRadius"}}, {{"cmdSimLee"}}, {{"cmdStopSim"}}, {{"cmdRestorePic"}},
    {{"cmdExit2"}},
};

inline constexpr FrameLayout simulationFrames[] = {
    {"FrameCentre", 0, centreLines, 9}, {"FrameCamera", 0, cameraLines, 11}, {"FrameLight", 0, skyLightLines, 11},
    {"FramePaint", 0, paintLines, 12},  {"FrameLines", 0, skyLineLines, 8},  {"", 0, simulationCommandLines, 9},
};

inline constexpr MenuRow simulationMenu[] = {
    {"Picture", "mnuOpenPicture", Feature::Always, "Ctrl+O"},
    {"Picture", "mnuLandscape"},
    {"Picture", "-"},
    {"Picture", "mnuSavePicture", Feature::Always, "Ctrl+S"},
    {"Picture", "mnuCopyPicture", Feature::Always, "Ctrl+C"},
    {"Edit", "mnuRestorePicture", Feature::Always, "Ctrl+R"},
    {"Edit", "mnuKeepPicture"},
    {"Edit", "-"},
    {"Edit", "mnuInvert"},
    {"Edit", "mnuSatCol"},
    {"View", "mnuWholePicture", Feature::Always, "Ctrl+0"},
};

}  // namespace lumivex
