#include "record/layout/panel_layout.h"

#include <vector>

#include "record/layout/angle_dialog_lines.h"
#include "record/layout/beam_dialog_lines.h"
#include "record/layout/compare_dialog_lines.h"
#include "record/layout/drop_dialog_lines.h"
#include "record/layout/impulse_dialog_lines.h"
#include "record/layout/layer_dialog_lines.h"
#include "record/layout/light_dialog_lines.h"
#include "record/layout/material_dialog_lines.h"
#include "record/layout/ray_dialog_lines.h"
#include "record/layout/settings_dialog_lines.h"
#include "record/layout/size_dialog_lines.h"
#include "record/layout/volume_dialog_lines.h"

namespace lumivex {

namespace {

constexpr LayoutLine calculationLines[] = {
    {{"cboType"}},
    {{"cboGraph"}},
    {{"Label8", "cboPol"}},
    {{"Label9", "cboRays"}},
    {{"chkDiffraction"}},
    {{"lblQminQmax", "cboQmin", "cboQmax"}},
    {{"lblSWAmp", "txtSWAmp"}},
    {{"Label18", "cboBright"}},
    {{"Label26", "cboLee"}},
};
constexpr LayoutLine sizeLines[] = {
    {{"optMono", "optDisp"}}, {{"Label7", "txtRadius"}}, {{"Label24", "txtRmax"}}, {{"lblRstep", "txtRstep"}},
    {{"cboDistrib"}},         {{"Label11", "cboSD"}},    {{"Label13", "cboN"}},
};
constexpr LayoutLine lightLines[] = {
    {{"Label4", "cboWave"}}, {{"Label6"}},        {{"txtLambda"}}, {{"optPoint", "optSun"}}, {{"lblSpectrum"}},
    {{"lblSpectrumBand"}},   {{"chkComponents"}}, {{"lblWatts"}},  {{"lblDistance"}},
};
constexpr LayoutLine indexLines[] = {
    {{"lblSphere"}},
    {{"txtRefractReal", "Label10", "txtRefractImag"}},
    {{"lblRI_Medium"}},
    {{"txtRefractMedium"}},
};
constexpr LayoutLine verticalLines[] = {
    {{"Label1", "cboYmax"}},
    {{"Label12", "cboYmin"}},
    {{"OptLog", "optLinear"}},
};
constexpr LayoutLine horizontalLines[] = {
    {{"Label3", "txtXmin"}},
    {{"Label2", "txtXmax"}},
    {{"Label5", "cboStep"}},
    {{"OptXLinear", "optXLog"}},
};
constexpr LayoutLine furtherLines[] = {
    {{"Label19", "txtAngle"}},
    {{"Label30", "txtF9_fixed"}},
    {{"Label32", "txtF9_min", "txtF9_max"}},
    {{"Label35", "txtF9_step"}},
};
constexpr LayoutLine commandLines[] = {
    {{"cmdNewPlot"}}, {{"cmdOverPlot"}}, {{"cmdReplot"}}, {{"cmdSimulation"}}, {{"cmdStop"}},
};

// Columns of even height: what is rarely shown shares a column with what is short.
constexpr FrameLayout mainFrames[] = {
    {"Frame1", 0, calculationLines, 11}, {"Frame3", 1, sizeLines, 5},     {"Frame4", 2, lightLines, 5},
    {"Frame5", 3, indexLines, 8},        {"Frame8", 3, verticalLines, 9}, {"Frame2", 4, horizontalLines, 5, true},
    {"Frame9", 4, furtherLines, 7},      {"", 5, commandLines, 8},
};

constexpr LayoutLine temperatureLines[] = {
    {{"lblTemp", "txtTemp"}},
    {{"lblDensity", "txtDensity"}},
    {{"chkRI_Complex"}},
};
constexpr LayoutLine bandLines[] = {
    {{"lblSpectrumMin", "txtSpectrumMin"}},
    {{"lblSpectrumMax", "txtSpectrumMax"}},
};

constexpr LayoutLine averageLines[] = {
    {{"lblAverageWidth", "txtAverage"}},
};
constexpr LayoutLine plotColourLines[] = {
    {{"lblPalette", "cboPalette"}},
    {{"lblRed", "txtRed"}},
    {{"lblGreen", "txtGreen"}},
    {{"lblBlue", "txtBlue"}},
};

constexpr DialogLayout dialogLayouts[] = {
    {"dlogTemp", temperatureLines},
    {"dlogSpectrumBand", bandLines},
    {"dlogAverage", averageLines},
    {"dlogPlotColour", plotColourLines},
};

}  // namespace

std::span<const FrameLayout> MainPanel() {
  return mainFrames;
}

std::span<const DialogLayout> Dialogs() {
  static const std::vector<DialogLayout> all = [] {
    std::vector<DialogLayout> layouts(std::begin(dialogLayouts), std::end(dialogLayouts));
    const auto add = [&layouts](std::span<const DialogLayout> more) {
      layouts.insert(layouts.end(), more.begin(), more.end());
    };
    add(materialDialogLayouts);
    add(lightDialogLayouts);
    add(sizeDialogLayouts);
    add(rayDialogLayouts);
    add(angleDialogLayouts);
    add(volumeDialogLayouts);
    add(settingsDialogLayouts);
    add(layerDialogLayouts);
    add(beamDialogLayouts);
    add(dropDialogLayouts);
    add(impulseDialogLayouts);
    add(compareDialogLayouts);
    return layouts;
  }();
  return all;
}

}  // namespace lumivex
