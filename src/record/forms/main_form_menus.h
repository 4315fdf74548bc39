#pragma once

#include "record/forms/main_form_inputs.h"
#include "record/forms/numbered_entries.h"

namespace lumivex {

/// The menu entries of the main window, each declared once with its caption and whether it is ticked at the start.
/// Where an entry stands in the menu bar is told by the menu description (session/layout/menu_tree).
struct Form1Menus : Form1Inputs {
  // File.
  MenuEntry mnuRead{*this, "mnuRead", "Read results ..."};
  MenuEntry mnuSave{*this, "mnuSave", "Save results ..."};
  MenuEntry mnuOverplot{*this, "mnuOverplot", "Overplot from file ..."};
  MenuEntry mnuS1S2{*this, "mnuS1S2", "Include S1 and S2 in text"};
  MenuEntry mnuOpenData{*this, "mnuOpenData", "Open measured data ...", false,
                        "Columns of a text file as points over the curves"};
  MenuEntry mnuBatchFile{*this, "mnuBatchFile", "Batch file ..."};
  MenuEntry mnuRecent{*this, "mnuRecent", "Recent files"};
  NumberedEntries recentEntries{*this, recentEntryNames};
  MenuEntry mnuClearRecent{*this, "mnuClearRecent", "Clear this list"};
  MenuEntry mnuExamples{*this, "mnuExamples", "Open example"};
  NumberedEntries exampleEntries{*this, exampleEntryNames};
  MenuEntry mnuContinueSession{*this, "mnuContinueSession", "Continue last session", false,
                               "Every input as it was when the program was last closed"};
  MenuEntry mnuSavePicture{*this, "mnuSavePicture", "Save picture ..."};
  MenuEntry mnuCopyPicture{*this, "mnuCopyPicture", "Copy picture"};
  MenuEntry mnuCopyData{*this, "mnuCopyData", "Copy data"};
  MenuEntry mnuSaveData{*this, "mnuSaveData", "Save data as CSV ..."};
  MenuEntry mnuSaveText{*this, "mnuSaveText", "Save text report ...", false,
                        "The parameters of the run and its columns, to be read"};
  MenuEntry mnuExit{*this, "mnuExit", "Exit"};

  // Edit.
  MenuEntry mnuUndo{*this, "mnuUndo", "Undo"};
  MenuEntry mnuRedo{*this, "mnuRedo", "Redo"};
  MenuEntry mnuRestoreDefaults{*this, "mnuRestoreDefaults", "Restore defaults"};
  MenuEntry mnuKeepParameters{*this, "mnuKeepParameters", "Keep parameters when the graph changes"};

  // View: size, background, lines.
  MenuEntry mnuVLarge{*this, "mnuVLarge", "Very large"};
  MenuEntry mnuLarge{*this, "mnuLarge", "Large"};
  MenuEntry mnuMedium{*this, "mnuMedium", "Medium"};
  MenuEntry mnuSmall{*this, "mnuSmall", "Small"};
  MenuEntry mnuSizeSpecial{*this, "mnuSizeSpecial", "Special"};
  MenuEntry mnuSizeVariable{*this, "mnuSizeVariable", "Variable"};
  MenuEntry mnuDefault{*this, "mnuDefault", "Default", true};
  MenuEntry mnuWhite{*this, "mnuWhite", "White"};
  MenuEntry mnuGrey{*this, "mnuGrey", "Grey"};
  MenuEntry mnuBlack{*this, "mnuBlack", "Black"};
  MenuEntry mnuTrueColour{*this, "mnuTrueColour", "True colour", true};
  MenuEntry mnuBlackLine{*this, "mnuBlackLine", "Black"};
  MenuEntry mnuRedLine{*this, "mnuRedLine", "Red"};
  MenuEntry mnuGreenLine{*this, "mnuGreenLine", "Green"};
  MenuEntry mnuBlueLine{*this, "mnuBlueLine", "Blue"};
  MenuEntry mnuGreyLine{*this, "mnuGreyLine", "Grey"};
  MenuEntry mnuCyanLine{*this, "mnuCyanLine", "Cyan"};
  MenuEntry mnuMagentaLine{*this, "mnuMagentaLine", "Magenta"};
  MenuEntry mnuYellowLine{*this, "mnuYellowLine", "Yellow"};
  MenuEntry mnuMoreColours{*this, "mnuMoreColours", "More colours ..."};
  MenuEntry mnuSolid{*this, "mnuSolid", "Solid", true};
  MenuEntry mnuDash{*this, "mnuDash", "Dash"};
  MenuEntry mnuDot{*this, "mnuDot", "Dot"};
  MenuEntry mnuDrawWidth0{*this, "mnuDrawWidth0", "Markers"};
  MenuEntry mnuDrawWidth1{*this, "mnuDrawWidth1", "1"};
  MenuEntry mnuDrawWidth2{*this, "mnuDrawWidth2", "2"};
  MenuEntry mnuMajorGridX{*this, "mnuMajorGridX", "Major, horizontal axis"};
  MenuEntry mnuMinorGridX{*this, "mnuMinorGridX", "Minor, horizontal axis"};
  MenuEntry mnuMajorGridY{*this, "mnuMajorGridY", "Major, vertical axis"};
  MenuEntry mnuMinorGridY{*this, "mnuMinorGridY", "Minor, vertical axis"};
  MenuEntry mnuLogoPositionTR{*this, "mnuLogoPositionTR", "Top right"};
  MenuEntry mnuLogoPositionTL{*this, "mnuLogoPositionTL", "Top left"};
  MenuEntry mnuLogoPositionBR{*this, "mnuLogoPositionBR", "Bottom right"};
  MenuEntry mnuLogoPositionBL{*this, "mnuLogoPositionBL", "Bottom left"};
  MenuEntry mnuHideLogo{*this, "mnuHideLogo", "Hide logo"};
  MenuEntry mnuDataVisible{*this, "mnuDataVisible", "Show data", true, "Print Q, g and the rest beside the inputs"};
  MenuEntry mnuInfo{*this, "mnuInfo", "Parameters of the run"};

  // Graph.
  MenuEntry mnuAmplitude{*this, "mnuAmplitude", "Amplitude", false, "Plot moduli instead of intensities"};
  MenuEntry mnuAmpPhase{*this, "mnuAmpPhase", "Amplitude and phase"};
  MenuEntry mnuIntPol{*this, "mnuIntPol", "Intensity and polarisation"};
  MenuEntry mnuPolarPlot{*this, "mnuPolarPlot", "Polar plot"};
  MenuEntry mnuAverage{*this, "mnuAverage", "Average ..."};
  MenuEntry mnuInterpolate{*this, "mnuInterpolate", "Cubic interpolation"};
  MenuEntry mnuFFT{*this, "mnuFFT", "Fourier transform ..."};
  MenuEntry mnuDiffCrossSection{*this, "mnuDiffCrossSection", "Differential cross-section ..."};
  MenuEntry mnuConvergence{*this, "mnuConvergence", "Convergence of the series"};
  MenuEntry mnuTwoAngle{*this, "mnuTwoAngle", "Two-angle contour ...", false,
                        "Light of spheres of several indices and radii into two ranges of angle"};
  MenuEntry mnuBowClock{*this, "mnuBowClock", "Bow of flattened drops ...", false,
                        "The angle of rainbows along the clock: at their top, at their sides and below"};
  MenuEntry mnuXStepLog{*this, "mnuXStepLog", "Logarithmic steps"};
  MenuEntry mnuInvWavelength{*this, "mnuInvWavelength", "Intensity independent of wavelength"};
  MenuEntry mnuConstantVolume{*this, "mnuConstantVolume", "Constant volume"};
  MenuEntry mnuLiveGraph{*this, "mnuLiveGraph", "Live graph", true,
                         "The graph follows what is typed and chosen, as long as that takes no time"};
  MenuEntry mnuSlider{*this, "mnuSlider", "Slider ...", false,
                      "Sweeps the radius, the wavelength, the index, the temperature or p by hand or as a film"};
  MenuEntry mnuCurves{*this, "mnuCurves", "Curves ...", false,
                      "Names, colours, differences and ratios of curves, measured data and marked points"};
  MenuEntry mnuMarkPoints{*this, "mnuMarkPoints", "Mark points by clicks", false,
                          "A click on a curve marks its nearest point and keeps its values"};

  // Colour.
  MenuEntry mnuPhoto{*this, "mnuPhoto", "Photo", true};
  MenuEntry mnuFreeze{*this, "mnuFreeze", "Freeze"};
  MenuEntry mnuPeakWhite{*this, "mnuPeakWhite", "Peak White"};
  MenuEntry mnuGamma{*this, "mnuGamma", "Gamma"};
  MenuEntry mnuGammaNone{*this, "mnuGammaNone", "None"};
  MenuEntry mnuGammaA{*this, "mnuGammaA", "Individual RGB", true};
  MenuEntry mnuGammaB{*this, "mnuGammaB", "Group RGB"};
  MenuEntry mnuSaturated{*this, "mnuSaturated", "Saturated colours"};
  MenuEntry mnuFalseColours{*this, "mnuFalseColours", "False colours"};
  MenuEntry mnuMapNormalise{*this, "mnuMapNormalise", "Map normalise"};
  MenuEntry mnuNormalised{*this, "mnuNormalised", "Normalise unpolarised"};
  MenuEntry mnuSetNormal{*this, "mnuSetNormal", "Set normalisation"};

  // Light.
  MenuEntry mnuSpectrum{*this, "mnuSpectrum", "Spectrum"};
  MenuEntry mnuSpectrumLee{*this, "mnuSpectrumLee", "Sun (Lee)", true};
  MenuEntry mnuSpectrumWernand{*this, "mnuSpectrumWernand", "Sun (Wernand)"};
  MenuEntry mnuSpectrumWernand2{*this, "mnuSpectrumWernand2", "Sun at elevation ..."};
  MenuEntry mnuSpectrumFlat{*this, "mnuSpectrumFlat", "Flat"};
  MenuEntry mnuBlackBody{*this, "mnuBlackBody", "Black body ..."};
  MenuEntry mnuSpectrumFile{*this, "mnuSpectrumFile", "Data file ..."};
  MenuEntry mnuSpectrumBand{*this, "mnuSpectrumBand", "Band ..."};
  MenuEntry mnuSun{*this, "mnuSun", "Sun Rectangular"};
  MenuEntry mnuIllumination{*this, "mnuIllumination", "Illumination"};
  MenuEntry mnuPlaneWave{*this, "mnuPlaneWave", "Plane wave", true, "Light from far away"};
  MenuEntry mnuGaussian{*this, "mnuGaussian", "Gaussian beam ...", false,
                        "A focused beam, whose place and width are asked for"};
  MenuEntry mnuTopHat{*this, "mnuTopHat", "Top hat beam ...", false, "A beam of even brightness with a sharp edge"};
  MenuEntry mnuCentralBeam{*this, "mnuCentralBeam", "Central beam", false,
                           "One more beam on the axis; rays are then those of a plane wave"};
  MenuEntry mnuMultBeams{*this, "mnuMultBeams", "Multiple beams", false,
                         "A second beam on the other side of the axis, in phase with the first"};

  // Advanced: size, series, solvers.
  MenuEntry mnuRadiusDiameter{*this, "mnuRadiusDiameter", "Size of sphere"};
  MenuEntry mnuRadius{*this, "mnuRadius", "Radius", true};
  MenuEntry mnuDiameter{*this, "mnuDiameter", "Diameter"};
  MenuEntry mnuRadiusX{*this, "mnuRadiusX", "Size parameter x"};
  MenuEntry mnuSize{*this, "mnuSize", "Divide amplitudes by x"};
  MenuEntry mnuClassicStart{*this, "mnuClassicStart", "Classic start of the Mie recurrence", false,
                            "Start the logarithmic derivative from zero 20 terms above the series, to show what a "
                            "short start costs: wrong for large spheres"};
  MenuEntry mnuHidden{*this, "mnuHidden", "Diagnostics", false,
                      "Numbers that a calculation goes by, and the limits of a beam's series"};
  MenuEntry mnuMieDebye{*this, "mnuMieDebye", "Mie - Debye"};
  MenuEntry mnuGODebye{*this, "mnuGODebye", "GO - Debye"};
  MenuEntry mnuSWsub{*this, "mnuSWsub", "Debye series - GO"};
  MenuEntry mnuDebyeRecursion{*this, "mnuDebyeRecursion", "Recursion for Debye coefficients"};
  MenuEntry mnuPartial{*this, "mnuPartial", "Partial waves of Debye terms ..."};
  MenuEntry mnuDebyeSequence{*this, "mnuDebyeSequence", "Debye terms of one point ..."};
  MenuEntry mnuDiffractionNew{*this, "mnuDiffractionNew", "Diffraction by partial waves"};
  MenuEntry mnuHuygens{*this, "mnuHuygens", "Huygens' wavefronts"};
  MenuEntry mnuAperture{*this, "mnuAperture", "Aperture of strips"};
  MenuEntry mnuvdh{*this, "mnuvdh", "Glory of a ring (van de Hulst)"};
  MenuEntry mnuCoatedSphere{*this, "mnuCoatedSphere", "Coated sphere ..."};
  MenuEntry mnuInhomSphere{*this, "mnuInhomSphere", "Inhomogeneous sphere ..."};
  MenuEntry mnuBessel{*this, "mnuBessel", "Bessel functions"};
  MenuEntry mnuAiry{*this, "mnuAiry", "Airy function"};
  MenuEntry mnuReadDiff{*this, "mnuReadDiff", "Read a table of Bessel functions ..."};
  MenuEntry mnuCalibration{*this, "mnuCalibration", "Speed of this machine ...", false,
                           "By which the time of a long calculation is told before it begins"};
  MenuEntry mnuNonSpherical{*this, "mnuNonSpherical", "Flattened drops ...", false,
                            "Rays of drops that the air flattens, and their bows"};
  MenuEntry mnuHeiligenschein{*this, "mnuHeiligenschein", "Heiligenschein ...", false,
                              "Light that comes back from dew on leaves"};
  MenuEntry mnuSurfaceWave{*this, "mnuSurfaceWave", "Surface wave"};
  MenuEntry mnuSWBoth{*this, "mnuSWBoth", "Short and long paths", true, "Waves that reach an angle either way round"};
  MenuEntry mnuSWShort{*this, "mnuSWShort", "Short path", false,
                       "Waves that creep the shorter way; beyond the edge of the shadow there are none"};
  MenuEntry mnuSWLong{*this, "mnuSWLong", "Long path", false, "Waves that have crossed the axis"};
  MenuEntry mnuMieGConv{*this, "mnuMieGConv", "Convergence against L", false,
                        "Sums of a beam at one angle over more and more partial waves L"};
  MenuEntry mnuMieGConv2{*this, "mnuMieGConv2", "Convergence against M", false,
                         "Sums of a beam at one angle over more and more azimuthal orders M"};
  MenuEntry mnuSizeDist{*this, "mnuSizeDist", "Size distribution from file ..."};

  // Advanced: many spheres in a volume.
  MenuEntry mnuVolumePlace{*this, "mnuVolumePlace", "Intensity v. position of one ...", false,
                           "Light of many spheres at random places while one of them moves across the cube"};
  MenuEntry mnuVolumeNumber{*this, "mnuVolumeNumber", "Intensity v. number ...", false,
                            "Light of more and more spheres at random places, beside that of each for itself"};
  MenuEntry mnuVolumeTime{*this, "mnuVolumeTime", "Intensity v. time ...", false,
                          "Light of many spheres in Brownian motion in water"};
  MenuEntry mnuVolumeRadius{*this, "mnuVolumeRadius", "Intensity v. radius ...", false,
                            "Light of many spheres at random places for each radius"};

  // Advanced: answers to a pulse of light.
  MenuEntry mnuImpulse{*this, "mnuImpulse", "Angle v. time ...", false,
                       "Light of a sphere after a short pulse, over scattering angle and time"};
  MenuEntry mnuImpulseQ{*this, "mnuImpulseQ", "Efficiencies v. time ...", false,
                        "Qext, Qsca and Qabs of a sphere as its answer to a short pulse"};
  MenuEntry mnuImpulsePlot{*this, "mnuImpulsePlot", "Response at one angle ...", false,
                           "Curves of the answer at one scattering angle, in a window of their own"};
  MenuEntry mnuTimePlot{*this, "mnuTimePlot", "Time plot ...", false,
                        "Times of rays and of surface waves over the picture"};
  MenuEntry mnuCCF{*this, "mnuCCF", "Correlate with pulse", false,
                   "The picture becomes its correlation with the pulse, as a receiver that waits for the pulse has it"};

  // Advanced: refractive index.
  MenuEntry mnuRI{*this, "mnuRI", "Refractive index"};
  MenuEntry mnuSphere{*this, "mnuSphere", "Sphere"};
  MenuEntry mnuSurround{*this, "mnuSurround", "Medium"};
  MenuEntry mnuRI_Formula{*this, "mnuRI_Formula", "Sellmeier equation"};
  MenuEntry mnuRI_Ray{*this, "mnuRI_Ray", "Ray"};
  MenuEntry mnuRI_Segelstein{*this, "mnuRI_Segelstein", "Segelstein"};
  MenuEntry mnuRI_File1{*this, "mnuRI_File1", "Data from file ..."};
  MenuEntry mnuRI_Au{*this, "mnuRI_Au", "Gold"};
  MenuEntry mnuRI_Ag{*this, "mnuRI_Ag", "Silver"};
  MenuEntry mnuRI_Cu{*this, "mnuRI_Cu", "Copper"};
  MenuEntry mnuRI_KayeLaby{*this, "mnuRI_KayeLaby", "Kaye + Laby"};
  MenuEntry mnuRI_IAPWS{*this, "mnuRI_IAPWS", "IAPWS 5C", true};
  MenuEntry mnuRI_Air1{*this, "mnuRI_Air1", "Air"};
  MenuEntry mnuRI_Vacuum1{*this, "mnuRI_Vacuum1", "Vacuum"};
  MenuEntry mnuRI_Fixed1{*this, "mnuRI_Fixed1", "Fixed"};
  MenuEntry mnuRI_Perm1{*this, "mnuRI_Perm1", "Dielectric function"};
  MenuEntry mnuRI_User1{*this, "mnuRI_User1", "User defined"};
  MenuEntry mnuRI_Air2{*this, "mnuRI_Air2", "Air"};
  MenuEntry mnuRI_Vacuum2{*this, "mnuRI_Vacuum2", "Vacuum", true};
  MenuEntry mnuRI_Fixed2{*this, "mnuRI_Fixed2", "Fixed"};
  MenuEntry mnuRI_File2{*this, "mnuRI_File2", "Data from file ..."};
  MenuEntry mnuWater2{*this, "mnuWater2", "Water"};
  MenuEntry mnuRI_IAPWS2{*this, "mnuRI_IAPWS2", "IAPWS"};
  MenuEntry mnuRI_User2{*this, "mnuRI_User2", "User defined"};
  MenuEntry mnuRI_Segelstein2{*this, "mnuRI_Segelstein2", "Segelstein"};
  MenuEntry mnuRI_Perm2{*this, "mnuRI_Perm2", "Dielectric function"};

  // Window and Help.
  MenuEntry mnuWindowGraph{*this, "mnuWindowGraph", "Graph"};
  MenuEntry mnuWindowSimulation{*this, "mnuWindowSimulation", "Simulation"};
  MenuEntry mnuHelpContents{*this, "mnuHelpContents", "User guide"};
  MenuEntry mnuAbout{*this, "mnuAbout", "About Lumivex"};
};

}  // namespace lumivex
