#include "record/layout/menu_tree.h"

#include <algorithm>
#include <array>

#include "record/forms/numbered_entries.h"

namespace lumivex {

namespace {

using enum Feature;

constexpr std::array menuRows = {
    MenuRow{"File", "mnuRead", Always, "Ctrl+O"},
    MenuRow{"File", "mnuSave", Always, "Ctrl+S"},
    MenuRow{"File", "mnuOverplot"},
    MenuRow{"File", "mnuOpenData"},
    MenuRow{"File", "mnuBatchFile", BatchFiles},
    MenuRow{"File", "mnuS1S2"},
    MenuRow{"File", "-"},
    MenuRow{"File/Recent files", "mnuRecent#"},
    MenuRow{"File/Recent files", "-"},
    MenuRow{"File/Recent files", "mnuClearRecent"},
    MenuRow{"File/Open example", "mnuExample#"},
    MenuRow{"File", "mnuContinueSession"},
    MenuRow{"File", "-"},
    MenuRow{"File", "mnuSavePicture", Always, "Ctrl+P"},
    MenuRow{"File", "mnuCopyPicture", Always, "Ctrl+Shift+C"},
    MenuRow{"File", "mnuSaveData", Always, "Ctrl+D"},
    MenuRow{"File", "mnuSaveText"},
    MenuRow{"File", "mnuCopyData", Always, "Ctrl+Shift+D"},
    MenuRow{"File", "-"},
    MenuRow{"File", "mnuExit", Always, "Ctrl+Q"},

    MenuRow{"Edit", "mnuUndo", Always, "Ctrl+Z"},
    MenuRow{"Edit", "mnuRedo", Always, "Ctrl+Y"},
    MenuRow{"Edit", "-"},
    MenuRow{"Edit", "mnuRestoreDefaults"},
    MenuRow{"Edit", "mnuKeepParameters", AxisFamilies},

    MenuRow{"View/Size", "mnuVLarge", GraphLook},
    MenuRow{"View/Size", "mnuLarge", GraphLook},
    MenuRow{"View/Size", "mnuMedium", GraphLook},
    MenuRow{"View/Size", "mnuSmall", GraphLook},
    MenuRow{"View/Size", "-", GraphLook},
    MenuRow{"View/Size", "mnuSizeSpecial", GraphLook},
    MenuRow{"View/Size", "mnuSizeVariable", GraphLook},
    MenuRow{"View/Background", "mnuDefault", GraphLook},
    MenuRow{"View/Background", "mnuWhite", GraphLook},
    MenuRow{"View/Background", "mnuGrey", GraphLook},
    MenuRow{"View/Background", "mnuBlack", GraphLook},
    MenuRow{"View/Line colour", "mnuTrueColour", GraphLook},
    MenuRow{"View/Line colour", "mnuBlackLine", GraphLook},
    MenuRow{"View/Line colour", "mnuRedLine", GraphLook},
    MenuRow{"View/Line colour", "mnuGreenLine", GraphLook},
    MenuRow{"View/Line colour", "mnuBlueLine", GraphLook},
    MenuRow{"View/Line colour", "mnuGreyLine", GraphLook},
    MenuRow{"View/Line colour", "mnuCyanLine", GraphLook},
    MenuRow{"View/Line colour", "mnuMagentaLine", GraphLook},
    MenuRow{"View/Line colour", "mnuYellowLine", GraphLook},
    MenuRow{"View/Line colour", "mnuMoreColours", GraphLook},
    MenuRow{"View/Line style", "mnuSolid", GraphLook},
    MenuRow{"View/Line style", "mnuDash", GraphLook},
    MenuRow{"View/Line style", "mnuDot", GraphLook},
    MenuRow{"View/Line width", "mnuDrawWidth1", GraphLook},
    MenuRow{"View/Line width", "mnuDrawWidth2", GraphLook},
    MenuRow{"View/Line width", "mnuDrawWidth0", GraphLook},
    MenuRow{"View/Grid lines", "mnuMajorGridX", GraphLook},
    MenuRow{"View/Grid lines", "mnuMinorGridX", GraphLook},
    MenuRow{"View/Grid lines", "mnuMajorGridY", GraphLook},
    MenuRow{"View/Grid lines", "mnuMinorGridY", GraphLook},
    MenuRow{"View/Logo", "mnuLogoPositionTR", GraphLook},
    MenuRow{"View/Logo", "mnuLogoPositionTL", GraphLook},
    MenuRow{"View/Logo", "mnuLogoPositionBR", GraphLook},
    MenuRow{"View/Logo", "mnuLogoPositionBL", GraphLook},
    MenuRow{"View/Logo", "-", GraphLook},
    MenuRow{"View/Logo", "mnuHideLogo", GraphLook},
    MenuRow{"View", "-"},
    MenuRow{"View", "mnuDataVisible"},
    MenuRow{"View", "mnuInfo", Always, "Ctrl+I"},

    MenuRow{"Graph", "mnuAmplitude", GraphLook},
    MenuRow{"Graph", "mnuAmpPhase", GraphLook},
    MenuRow{"Graph", "mnuIntPol", GraphLook},
    MenuRow{"Graph", "mnuPolarPlot", GraphLook},
    MenuRow{"Graph", "-", GraphLook},
    MenuRow{"Graph", "mnuAverage", GraphLook},
    MenuRow{"Graph", "mnuInterpolate", GraphLook},
    MenuRow{"Graph", "mnuFFT", FourierTransform},
    MenuRow{"Graph", "-", AngleFamily},
    MenuRow{"Graph", "mnuDiffCrossSection", AngleFamily},
    MenuRow{"Graph", "mnuConvergence", AxisFamilies},
    MenuRow{"Graph", "mnuTwoAngle", AngleFamily},
    MenuRow{"Graph", "mnuBowClock", NonSphericalDrops},
    MenuRow{"Graph", "-", AxisFamilies},
    MenuRow{"Graph", "mnuXStepLog", AxisFamilies},
    MenuRow{"Graph", "mnuInvWavelength", GraphLook},
    MenuRow{"Graph", "mnuConstantVolume", AxisFamilies},
    MenuRow{"Graph", "-"},
    MenuRow{"Graph", "mnuLiveGraph", Always, "Ctrl+L"},
    MenuRow{"Graph", "mnuSlider", Always, "Ctrl+Shift+L"},
    MenuRow{"Graph", "mnuCurves", Always, "Ctrl+U"},
    MenuRow{"Graph", "mnuMarkPoints", Always, "Ctrl+M"},

    MenuRow{"Colour/Saturation", "mnuPhoto", ColourBars},
    MenuRow{"Colour/Saturation", "mnuFreeze", ColourBars},
    MenuRow{"Colour/Saturation", "mnuPeakWhite", ColourBars},
    MenuRow{"Colour/Gamma", "mnuGammaNone", ColourBars},
    MenuRow{"Colour/Gamma", "mnuGammaA", ColourBars},
    MenuRow{"Colour/Gamma", "mnuGammaB", ColourBars},
    MenuRow{"Colour", "mnuSaturated", ColourBars},
    MenuRow{"Colour", "mnuNormalised", ColourBars},
    MenuRow{"Colour", "mnuSetNormal", ColourBars},
    MenuRow{"Colour", "mnuFalseColours", LeeDiagrams},
    MenuRow{"Colour", "mnuMapNormalise", Maps},

    MenuRow{"Light/Spectrum", "mnuSpectrumLee", SeveralWavelengths},
    MenuRow{"Light/Spectrum", "mnuSpectrumWernand", SeveralWavelengths},
    MenuRow{"Light/Spectrum", "mnuSpectrumWernand2", SeveralWavelengths},
    MenuRow{"Light/Spectrum", "mnuSpectrumFlat", SeveralWavelengths},
    MenuRow{"Light/Spectrum", "mnuBlackBody", SeveralWavelengths},
    MenuRow{"Light/Spectrum", "mnuSpectrumFile", SeveralWavelengths},
    MenuRow{"Light/Spectrum", "-", SeveralWavelengths},
    MenuRow{"Light/Spectrum", "mnuSpectrumBand", SeveralWavelengths},
    MenuRow{"Light", "mnuSun", GraphLook},
    MenuRow{"Light/Illumination", "mnuPlaneWave", Beams},
    MenuRow{"Light/Illumination", "mnuGaussian", Beams},
    MenuRow{"Light/Illumination", "mnuTopHat", Beams},
    MenuRow{"Light/Illumination", "mnuCentralBeam", Beams},
    MenuRow{"Light/Illumination", "mnuMultBeams", Beams},

    MenuRow{"Advanced/Refractive index/Sphere/Water", "mnuRI_IAPWS"},
    MenuRow{"Advanced/Refractive index/Sphere/Water", "mnuRI_Segelstein", AllMaterials},
    MenuRow{"Advanced/Refractive index/Sphere/Water", "mnuRI_Ray", AllMaterials},
    MenuRow{"Advanced/Refractive index/Sphere/Water", "mnuRI_KayeLaby", AllMaterials},
    MenuRow{"Advanced/Refractive index/Sphere", "mnuRI_Au", AllMaterials},
    MenuRow{"Advanced/Refractive index/Sphere", "mnuRI_Ag", AllMaterials},
    MenuRow{"Advanced/Refractive index/Sphere", "mnuRI_Cu", AllMaterials},
    MenuRow{"Advanced/Refractive index/Sphere", "mnuRI_Air1", AllMaterials},
    MenuRow{"Advanced/Refractive index/Sphere", "mnuRI_Vacuum1"},
    MenuRow{"Advanced/Refractive index/Sphere", "mnuRI_Fixed1"},
    MenuRow{"Advanced/Refractive index/Sphere", "mnuRI_Formula", AllMaterials},
    MenuRow{"Advanced/Refractive index/Sphere", "mnuRI_Perm1", AllMaterials},
    MenuRow{"Advanced/Refractive index/Sphere", "mnuRI_User1", AllMaterials},
    MenuRow{"Advanced/Refractive index/Sphere", "mnuRI_File1", AllMaterials},
    MenuRow{"Advanced/Refractive index/Medium", "mnuRI_Vacuum2"},
    MenuRow{"Advanced/Refractive index/Medium", "mnuRI_Air2", AllMaterials},
    MenuRow{"Advanced/Refractive index/Medium/Water", "mnuRI_IAPWS2", AllMaterials},
    MenuRow{"Advanced/Refractive index/Medium/Water", "mnuRI_Segelstein2", AllMaterials},
    MenuRow{"Advanced/Refractive index/Medium", "mnuRI_Fixed2"},
    MenuRow{"Advanced/Refractive index/Medium", "mnuRI_Perm2", AllMaterials},
    MenuRow{"Advanced/Refractive index/Medium", "mnuRI_User2", AllMaterials},
    MenuRow{"Advanced/Refractive index/Medium", "mnuRI_File2", AllMaterials},
    MenuRow{"Advanced/Size of sphere", "mnuRadius"},
    MenuRow{"Advanced/Size of sphere", "mnuDiameter"},
    MenuRow{"Advanced/Size of sphere", "mnuRadiusX"},
    MenuRow{"Advanced/Spheres in a volume", "mnuVolumePlace", VolumeGraphs},
    MenuRow{"Advanced/Spheres in a volume", "mnuVolumeNumber", VolumeGraphs},
    MenuRow{"Advanced/Spheres in a volume", "mnuVolumeTime", VolumeGraphs},
    MenuRow{"Advanced/Spheres in a volume", "mnuVolumeRadius", VolumeGraphs},
    MenuRow{"Advanced/Impulse response", "mnuImpulse", Feature::ImpulseResponse},
    MenuRow{"Advanced/Impulse response", "mnuImpulseQ", Feature::ImpulseResponse},
    MenuRow{"Advanced/Impulse response", "-", Feature::ImpulseResponse},
    MenuRow{"Advanced/Impulse response", "mnuImpulsePlot", Feature::ImpulseResponse},
    MenuRow{"Advanced/Impulse response", "mnuTimePlot", Feature::ImpulseResponse},
    MenuRow{"Advanced/Impulse response", "mnuCCF", Feature::ImpulseResponse, "Ctrl+K"},
    MenuRow{"Advanced", "mnuSizeDist", SizeDistributions},
    MenuRow{"Advanced", "-"},
    MenuRow{"Advanced", "mnuSize"},
    MenuRow{"Advanced", "mnuClassicStart"},
    MenuRow{"Advanced", "mnuMieDebye", DebyeSeries},
    MenuRow{"Advanced", "mnuGODebye", DebyeSeries},
    MenuRow{"Advanced", "mnuSWsub", DebyeSeries},
    MenuRow{"Advanced", "mnuDebyeRecursion", DebyeSeries},
    MenuRow{"Advanced", "mnuPartial", DebyeSeries},
    MenuRow{"Advanced", "mnuDebyeSequence", DebyeSeries},
    MenuRow{"Advanced/Further methods", "mnuDiffractionNew", SimpleScattering},
    MenuRow{"Advanced/Further methods", "mnuHuygens", RayOptics},
    MenuRow{"Advanced/Further methods", "mnuAperture", SimpleScattering},
    MenuRow{"Advanced/Further methods", "mnuvdh", SimpleScattering},
    MenuRow{"Advanced/Further methods", "mnuCoatedSphere", CoatedSphere},
    MenuRow{"Advanced/Further methods", "mnuInhomSphere", InhomogeneousSphere},
    MenuRow{"Advanced/Further methods", "mnuNonSpherical", NonSphericalDrops},
    MenuRow{"Advanced/Further methods", "mnuHeiligenschein", Heiligenschein},
    MenuRow{"Advanced/Surface wave", "mnuSWBoth", SurfaceWaves},
    MenuRow{"Advanced/Surface wave", "mnuSWShort", SurfaceWaves},
    MenuRow{"Advanced/Surface wave", "mnuSWLong", SurfaceWaves},
    MenuRow{"Advanced", "mnuMieGConv", Beams},
    MenuRow{"Advanced", "mnuMieGConv2", Beams},
    MenuRow{"Advanced", "mnuHidden", RayOptics},
    MenuRow{"Advanced", "mnuBessel", RayOptics},
    MenuRow{"Advanced", "mnuAiry", RayOptics},
    MenuRow{"Advanced", "mnuReadDiff", RayOptics},
    MenuRow{"Advanced", "-"},
    MenuRow{"Advanced", "mnuCalibration"},

    MenuRow{"Window", "mnuWindowGraph", Simulation},
    MenuRow{"Window", "mnuWindowSimulation", Simulation},

    MenuRow{"Help", "mnuHelpContents", Always, "F1"},
    MenuRow{"Help", "mnuAbout"},
};

constexpr std::array submenuRows = {
    SubmenuRow{"File/Recent files", "mnuRecent"},
    SubmenuRow{"File/Open example", "mnuExamples"},
    SubmenuRow{"Light/Spectrum", "mnuSpectrum"},
    SubmenuRow{"Light/Illumination", "mnuIllumination"},
    SubmenuRow{"Colour/Gamma", "mnuGamma"},
    SubmenuRow{"Advanced/Refractive index", "mnuRI"},
    SubmenuRow{"Advanced/Refractive index/Sphere", "mnuSphere"},
    SubmenuRow{"Advanced/Refractive index/Medium", "mnuSurround"},
    SubmenuRow{"Advanced/Refractive index/Medium/Water", "mnuWater2"},
    SubmenuRow{"Advanced/Size of sphere", "mnuRadiusDiameter"},
    SubmenuRow{"Advanced/Surface wave", "mnuSurfaceWave"},
};

/// Entries that stand one below the other in the place of one row.
struct NumberedRow {
  std::string_view entry;
  std::span<const std::string_view> names;
};
constexpr std::array numberedRows = {
    NumberedRow{"mnuRecent#", recentEntryNames},
    NumberedRow{"mnuExample#", exampleEntryNames},
};

}  // namespace

std::vector<MenuRow> OfferedMenu() {
  std::vector<MenuRow> rows;
  for (const MenuRow& row : menuRows) {
    if (!IsAvailable(row.feature)) continue;
    const auto numbered = std::ranges::find(numberedRows, row.entry, &NumberedRow::entry);
    if (numbered == numberedRows.end()) {
      rows.push_back(row);
    } else {
      for (const std::string_view name : numbered->names) rows.push_back({row.path, name, row.feature});
    }
  }
  return rows;
}

std::span<const SubmenuRow> Submenus() {
  return submenuRows;
}

}  // namespace lumivex
