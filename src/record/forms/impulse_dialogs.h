#pragma once

#include <vector>

#include "record/form.h"

namespace lumivex {

/// The pulse of light that a sphere answers to, with a drawing of it and of its spectrum.
struct DlogImpulse final : Form {
  DlogImpulse();

  using List = SelectionList;
  static constexpr auto Typed = List::Style::Editable;

  Label lblWavelength{*this, "lblWavelength", "Wavelength (\u00B5m)"};
  TextInput txtWavelength{*this, "txtWavelength", "0.65", "Wavelength of the carrier in the vacuum, in micrometres"};
  Label lblPulseShape{*this, "lblPulseShape", "Pulse shape"};
  List cboPulseShape{*this, "cboPulseShape", Typed, "Gaussian",
                     "Form of the pulse's amplitude; the test signals AM and FM can be typed"};
  Label lblPulseDuration{*this, "lblPulseDuration", "Pulse duration (fs)"};
  List cboPulseDuration{*this, "cboPulseDuration", Typed, "5",
                        "Width of the pulse's amplitude at half of its height, in femtoseconds"};
  Label lblFFT{*this, "lblFFT", "N-point FFT"};
  List cboFFT{*this, "cboFFT", Typed, "2048", "Samples of time: a power of two, 128 to 131072"};
  Label lbldB{*this, "lbldB", "Cut-off (dB)"};
  List cbodB{*this, "cbodB", Typed, "-20",
             "Wavelengths whose magnitude lies further below the highest are left out; weak light needs -40"};
  Label lblN{*this, "lblN", "Sampling  factor"};
  List cboN{*this, "cboN", Typed, "1", "Samples in a quarter of a period of the carrier: 1, 2, 4 to 64"};
  Label lblFC{*this, "lblFC", "Carrier (Hz)"};
  TextInput txtFC{*this, "txtFC", "10.64E6", "Frequency of the carrier of the test signals AM and FM, in hertz"};
  Label lblFM{*this, "lblFM", "Modulation (Hz)"};
  TextInput txtFM{*this, "txtFM", "9500", "Frequency of the modulation of the test signals, in hertz"};
  Label lblFD{*this, "lblFD", "Deviation (Hz)"};
  TextInput txtFD{*this, "txtFD", "75E3", "Greatest deviation of the frequency of FM, in hertz"};
  Label lblFS{*this, "lblFS", "Sample rate (Hz)"};
  TextInput txtFS{*this, "txtFS", "608E3", "Samples a second of the test signals"};
  Picture Picture1{*this, "Picture1", "The pulse and its spectrum"};
  Frame Frame1{*this, "Frame1", "Spectrum"};
  Label lblSpectrum{*this, "lblSpectrum", "Spectrum"};
  OptionButton optLinear{*this, "optLinear", "spectrum", "Linear y-axis", true, "Magnitudes from 0 to 1"};
  OptionButton optLog{
      *this, "optLog", "spectrum", "Logarithmic y-axis", false, "Magnitudes in decibels under the highest"};
  CheckBox chkTimeDelay{*this, "chkTimeDelay", "Time plot", false, "Times of rays over the picture of each run"};
  CheckBox chkTimeRef{
      *this, "chkTimeRef", "Time reference = 0", false,
      "Times are counted from the passage of the sphere's centre; otherwise from the light that its front "
      "reflects straight back"};
  CheckBox chkSave{*this, "chkSave", "Save all?", false,
                   "A text file of the response at one angle holds those of all angles too"};
  CommandButton cmdPrint{*this, "cmdPrint", "Print",
                         "Save the drawing of the pulse as a picture or a page for a printer"};
  CommandButton OKButton{*this, "OKButton", "OK"};
};

/// The answer of a sphere to a pulse at one scattering angle, as curves in a window of their own.
struct ImpulsePlotForm final : Form {
  ImpulsePlotForm();

  using List = SelectionList;
  static constexpr auto Typed = List::Style::Editable;

  Frame Frame1{*this, "Frame1", "Scattering angle"};
  List cboTheta{*this, "cboTheta", Typed, "180", "Scattering angle in degrees; its response is calculated anew"};
  Frame Frame2{*this, "Frame2", "Polarisation"};
  List cboPol{*this, "cboPol", List::Style::Fixed, "Both", "Curves that are drawn"};
  Frame Frame3{*this, "Frame3", "Intensity axis"};
  Label lblYmax{*this, "lblYmax", "Maximum"};
  List cboYmax{*this, "cboYmax", Typed, "Automatic", "Upper end of the vertical axis"};
  Label lblYmin{*this, "lblYmin", "Minimum"};
  List cboYmin{*this, "cboYmin", Typed, "Automatic", "Lower end of the vertical axis"};
  OptionButton OptLog{*this, "OptLog", "scale", "Log", true, "Logarithmic intensities"};
  OptionButton OptLinear{*this, "OptLinear", "scale", "Linear", false, "Intensities as they are"};
  Frame Frame4{*this, "Frame4", "Time axis (fs)"};
  Label lblXmin{*this, "lblXmin", "Minimum"};
  TextInput txtXmin{*this, "txtXmin", "0", "Where the axis begins, in femtoseconds"};
  Label lblXmax{*this, "lblXmax", "Maximum"};
  TextInput txtXmax{*this, "txtXmax", "500", "Where the axis ends, in femtoseconds"};
  CommandButton cmdReplot{*this, "cmdReplot", "Replot", "Draw the curves as the inputs ask for them"};
  CommandButton cmdClose{*this, "cmdClose", "Close", "Close this window"};
  Label lblTime{*this, "lblTime"};
  Label lblIntensity1{*this, "lblIntensity1"};
  Label lblIntensity2{*this, "lblIntensity2"};
  MenuEntry mnuSave{*this, "mnuSave", "Save as text file"};
  MenuEntry mnuPicture{*this, "mnuPicture", "Save picture ..."};
};

/// Which rays and surface waves are marked over a picture of angle and time.
struct DlogTimePlot final : Form {
  DlogTimePlot();

  Label lblRaysGO{*this, "lblRaysGO", "Highest p of rays"};
  TextInput txtRaysGO{*this, "txtRaysGO", "3", "Rays of p = 0 to this number are marked"};
  Label lblStep{*this, "lblStep", "Step of impacts"};
  SelectionList cboStep{*this, "cboStep", SelectionList::Style::Editable, "0.01",
                        "From ray to ray, as a share of the sphere's radius"};
  CheckBox chkNS{*this, "chkNS", "Halves of the sphere in two colours", false,
                 "Rays whose phase rises with the angle and rays whose phase falls have colours of their own"};
  CheckBox chkValues{*this, "chkValues", "Values", false, "Angle and time beside the marks"};
  Label lblRI_Surface{*this, "lblRI_Surface", "Index along the surface"};
  TextInput txtRI_Surface{*this, "txtRI_Surface", "1",
                          "Refractive index that a surface wave creeps with: that of the medium, or a little more"};
  Label lblB{*this, "lblB", "Highest p of surface waves"};
  TextInput txtB{*this, "txtB", "3", "Surface waves of p = 0 to this number of short cuts through the sphere"};
  Label lblQ{*this, "lblQ", "Half turns"};
  TextInput txtQ{*this, "txtQ", "2", "How often a surface wave passes 0 or 180 degrees"};
  CommandButton cmdGO{*this, "cmdGO", "Geometrical optics", "Mark the times of rays over the picture"};
  CommandButton cmdSW{*this, "cmdSW", "Surface wave", "Draw the times of surface waves over the picture"};
  CommandButton cmdClear{*this, "cmdClear", "Remove", "Take marks and lines off the picture"};
};

/// The dialogs of answers to a pulse, and the window of one angle.
struct ImpulseDialogs {
  DlogImpulse dlogImpulse;
  ImpulsePlotForm impulsePlot;
  DlogTimePlot dlogTimePlot;

  std::vector<Form*> ImpulseForms() { return {&dlogImpulse, &impulsePlot, &dlogTimePlot}; }
};

}  // namespace lumivex
