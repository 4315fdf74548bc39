#pragma once

#include "record/form.h"

namespace lumivex {

/// The simulation window: the colours of a run painted over a photograph.
struct Form2 final : Form {
  Form2() : Form("Form2", "Simulation") {
    cboPoint.Items = {"Anti-solar point", "Sun", "Altitude/Azimuth", "Arc"};
    cboScale.Items = {"8.9",  "14",  "17",  "20",  "24",  "28",   "29",   "35",   "36",  "38",  "50",
                      "54.5", "70",  "80",  "85",  "100", "108",  "114",  "135",  "180", "200", "250",
                      "300",  "400", "500", "600", "800", "1000", "1200", "1500", "2000"};
    cboMapping.Items = {"Rectilinear", "Equidistant", "Stereographic", "Equal area", "Orthographic"};
    cboPolarisation.Items = {"Unpolarised", "Perpendicular", "Parallel"};
    cboView.Items = {"Unpolarised", "Polarised V", "Polarised H"};
    cboRStep.Items = cboGrid.Items = {"10", "5", "2", "1"};
    cboComposite.Items = {"In place of the photograph", "Over the photograph"};
    cmdStopSim.Enabled = false;
  }

  using List = SelectionList;
  static constexpr auto Fixed = List::Style::Fixed;
  static constexpr auto Typed = List::Style::Editable;

  Picture Picture1{*this, "Picture1",
                   "The photograph: drag to move the chosen point; the wheel zooms, the right button moves the view"};

  // The centre.
  Frame FrameCentre{*this, "FrameCentre", "Centre"};
  Label lblPoint{*this, "lblPoint", "Point"};
  List cboPoint{*this, "cboPoint", Fixed, "Anti-solar point",
                "What is known of the picture, and what angles are measured from"};
  Label lblX1{*this, "lblX1", "X"};
  // Of the picture of the start, where the point begins.
  TextInput txtX1{*this, "txtX1", "900", "Column of the point in pixels, or altitude of the camera's axis in degrees"};
  Label lblY1{*this, "lblY1", "Y"};
  TextInput txtY1{*this, "txtY1", "1140",
                  "Row of the point in pixels from the top, or azimuth of the camera's axis from the sun in degrees"};
  Label lblSunElevation{*this, "lblSunElevation", "Elevation of sun"};
  TextInput txtSunElevation{*this, "txtSunElevation", "15",
                            "Elevation of the sun in degrees, or scattering angle of the marked arc"};
  CommandButton cmdAnalyse{*this, "cmdAnalyse", "Analyse", "Mark three points on an arc to find its centre"};
  Label lblArc{*this, "lblArc", ""};

  // The camera.
  Frame FrameCamera{*this, "FrameCamera", "Camera"};
  Label lblScale{*this, "lblScale", "Focal length (mm)"};
  List cboScale{*this, "cboScale", Typed, "28", "Input focal length of lens (35mm film equivalent)"};
  Label lblMapping{*this, "lblMapping", "Mapping"};
  List cboMapping{*this, "cboMapping", Fixed, "Rectilinear",
                  "How the lens maps angles: rectilinear, or a kind of fisheye"};

  // The light.
  Frame FrameLight{*this, "FrameLight", "Light"};
  Label lblPolarisation{*this, "lblPolarisation", "Polarisation"};
  List cboPolarisation{*this, "cboPolarisation", Fixed, "Unpolarised",
                       "Polarisation of the light, relative to the scattering plane"};
  Label lblView{*this, "lblView", "View"};
  List cboView{*this, "cboView", Fixed, "Unpolarised", "Polariser before the camera: none, vertical or horizontal"};
  OptionButton optPlaneWave{*this, "optPlaneWave", "light", "Plane wave", true, "Light of the sun"};
  OptionButton optDivergingLight{*this, "optDivergingLight", "light", "Diverging light", false, "Light of a lamp"};
  Label lblD1{*this, "lblD1", "D1"};
  TextInput txtD1{*this, "txtD1", "100",
                  "Distance from the observer to a plane sheet of drops; only the ratio to D2 counts"};
  Label lblD2{*this, "lblD2", "D2"};
  TextInput txtD2{
      *this, "txtD2", "100",
      "Distance of the lamp: behind the observer, or beyond the drops where the point is the lamp; a bow of 42 "
      "degrees needs 4.05 D1"};
  Label lblDropRadius{*this, "lblDropRadius", "Drop radius (\u00B5m)"};
  TextInput txtDropRadius{*this, "txtDropRadius", "10",
                          "Radius in micrometres of the drops that a Lee diagram is read for"};

  // The painting.
  Frame FramePaint{*this, "FramePaint", "Painting"};
  List cboComposite{*this, "cboComposite", Fixed, "In place of the photograph",
                    "Whether the painted quadrants lose the photograph or the light is added to it"};
  Label lblStrength{*this, "lblStrength", "Strength"};
  TextInput txtStrength{*this, "txtStrength", "1", "Factor of the light that is added to the photograph, 0 to 10"};
  Label lblBackground{*this, "lblBackground", "Background"};
  TextInput txtBackRed{*this, "txtBackRed", "84", "Red of the sky behind the painted light, 0 to 255"};
  TextInput txtBackGreen{*this, "txtBackGreen", "100", "Green of the sky behind the painted light, 0 to 255"};
  TextInput txtBackBlue{*this, "txtBackBlue", "124", "Blue of the sky behind the painted light, 0 to 255"};
  CommandButton cmdQuadNW{*this, "cmdQuadNW", "NW OFF", quadTip};
  CommandButton cmdQuadNE{*this, "cmdQuadNE", "NE ON", quadTip};
  CommandButton cmdQuadSW{*this, "cmdQuadSW", "SW OFF", quadTip};
  CommandButton cmdQuadSE{*this, "cmdQuadSE", "SE ON", quadTip};
  CheckBox chkPreview{*this, "chkPreview", "Preview", true, "Show the light at once, as it would be painted"};

  // Lines over the picture.
  Frame FrameLines{*this, "FrameLines", "Lines"};
  CommandButton cmdCircle{*this, "cmdCircle", "Circles ON", "Circles centred on the sun or on the anti-solar point"};
  List cboRStep{*this, "cboRStep", Typed, "10", "Degrees from circle to circle"};
  CommandButton cmdGrid{*this, "cmdGrid", "Grid", "Lines of equal altitude and azimuth; once more takes them away"};
  List cboGrid{*this, "cboGrid", Typed, "10", "Degrees from line to line of the grid"};

  // Commands.
  CommandButton cmdSimPlot{*this, "cmdSimPlot", "Simulate", "Paint the colours of the run into the picture (Enter)"};
  CommandButton cmdSimLee{*this, "cmdSimLee", "Simulation from Lee diagram",
                          "Paint the colours of a column of the Lee diagram on show"};
  CommandButton cmdStopSim{*this, "cmdStopSim", "Stop simulation", "Stop painting (Esc)"};
  CommandButton cmdRestorePic{*this, "cmdRestorePic", "Restore picture",
                              "The photograph as it was before any painting"};
  CommandButton cmdExit2{*this, "cmdExit2", "Exit", "Close this window"};
  Label lblPosition{*this, "lblPosition", ""};

  // Menus.
  MenuEntry mnuOpenPicture{*this, "mnuOpenPicture", "Open picture..."};
  MenuEntry mnuSavePicture{*this, "mnuSavePicture", "Save picture..."};
  MenuEntry mnuCopyPicture{*this, "mnuCopyPicture", "Copy picture"};
  MenuEntry mnuRestorePicture{*this, "mnuRestorePicture", "Restore picture"};
  MenuEntry mnuKeepPicture{*this, "mnuKeepPicture", "Take painting for photograph", false,
                           "Further light is added to the picture as it is now, and Restore picture goes back to it"};
  MenuEntry mnuLandscape{*this, "mnuLandscape", "Default landscape", false, "The picture of the start"};
  MenuEntry mnuInvert{*this, "mnuInvert", "Invert colours", false, "Each channel becomes 255 less its value"};
  MenuEntry mnuWholePicture{*this, "mnuWholePicture", "Whole picture"};
  MenuEntry mnuSatCol{*this, "mnuSatCol", "Saturate colours", false,
                      "Each pixel is scaled until its greatest channel is 255"};

 private:
  static constexpr const char* quadTip = "Specify which quadrant(s) should be replaced by the simulation";
};

}  // namespace lumivex
